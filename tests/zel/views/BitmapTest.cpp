#include <zel/views/Bitmap.h>

#include <krocore/debug/Assert.h>
#include <kroui/drawbot/RasterSurface.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>

namespace {

using ZEL::Bitmap;
using kroui::drawbot::Image;

class BitmapTest : public ::testing::Test {
protected:
  void SetUp() override { ZEL::InitBitmapCache(); }
  void TearDown() override { ZEL::CleanupBitmapCache(); }
};

TEST_F(BitmapTest, DecodesAFrameworkResourceOnceAndSharesIt) {
  const auto first = Bitmap::GetBitmapFromBaseName("Cur_3DRotate_7_7");
  ASSERT_TRUE(first);
  EXPECT_TRUE(first->IsValid());
  EXPECT_EQ(Bitmap::GetBitmapFromBaseName("Cur_3DRotate_7_7"), first);
  EXPECT_EQ(Bitmap::GetCachedCount(), 1u);
}

TEST_F(BitmapTest, AnUnknownNameGivesNullAndIsNotKept) {
  EXPECT_FALSE(Bitmap::GetBitmapFromBaseName("NoSuchImage"));
  EXPECT_FALSE(Bitmap::GetBitmapFromFile("/nonexistent/image.png"));
  EXPECT_EQ(Bitmap::GetCachedCount(), 0u);
}

TEST_F(BitmapTest, ReadsAFileAndKeepsIt) {
  const auto path = std::filesystem::path(::testing::TempDir()) / "zel_bitmap_test.png";
  ASSERT_TRUE(kroui::drawbot::WritePNG(Image(3, 2), path));
  const auto bitmap = Bitmap::GetBitmapFromFile(path);
  ASSERT_TRUE(bitmap);
  EXPECT_EQ(bitmap->GetWidth(), 3);
  std::filesystem::remove(path);
  EXPECT_EQ(Bitmap::GetBitmapFromFile(path), bitmap); // served from the cache
}

TEST_F(BitmapTest, CallsTheProviderOnlyUntilItGivesAnImage) {
  int calls = 0;
  const ZEL::ImageProvider fails = [&]() -> std::optional<Image> { ++calls; return std::nullopt; };
  const ZEL::ImageProvider makes = [&]() -> std::optional<Image> { ++calls; return Image(4, 4); };
  EXPECT_FALSE(Bitmap::GetBitmapUsingImageProvider("swatch", fails));
  const auto made = Bitmap::GetBitmapUsingImageProvider("swatch", makes);
  ASSERT_TRUE(made);
  EXPECT_EQ(Bitmap::GetBitmapUsingImageProvider("swatch", makes), made);
  EXPECT_EQ(calls, 2);
}

TEST_F(BitmapTest, KindsOfKeyDoNotMix) {
  const ZEL::ImageProvider makes = [] { return std::optional<Image>(Image(1, 1)); };
  const auto provided = Bitmap::GetBitmapUsingImageProvider("Cur_3DRotate_7_7", makes);
  EXPECT_NE(Bitmap::GetBitmapFromBaseName("Cur_3DRotate_7_7"), provided);
}

TEST_F(BitmapTest, CleanupEmptiesTheCacheButHandedOutImagesLive) {
  const auto bitmap = Bitmap::GetBitmapFromBaseName("Cur_3DRotate_7_7");
  ZEL::CleanupBitmapCache();
  EXPECT_EQ(Bitmap::GetCachedCount(), 0u);
  ASSERT_TRUE(bitmap);
  EXPECT_TRUE(bitmap->IsValid());
  krocore::debug::ScopedAssertionRecorder recorder;
  EXPECT_FALSE(Bitmap::GetBitmapFromBaseName("Cur_3DRotate_7_7"));
  EXPECT_TRUE(recorder.Contains("The bitmap cache has not been initialized"));
}

} // namespace
