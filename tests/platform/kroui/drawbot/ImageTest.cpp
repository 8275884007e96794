#include <kroui/drawbot/Image.h>

#include <krocore/debug/Assert.h>

#include <gtest/gtest.h>

namespace {

using kroui::drawbot::Image;

TEST(Image, CopiesShareUntilOneWrites) {
  Image original(2, 1, {1u, 2u});
  const Image copy = original;
  EXPECT_EQ(copy.Pixels(), original.Pixels());
  original.MutablePixels()[0] = 7u;
  EXPECT_EQ(original.PixelAt(0, 0), 7u);
  EXPECT_EQ(copy.PixelAt(0, 0), 1u);
  const std::uint32_t* own = original.Pixels();
  original.MutablePixels()[1] = 8u;
  EXPECT_EQ(original.Pixels(), own) << "no other copy left: written in place";
  EXPECT_EQ(Image(3, 2).PixelAt(2, 1), 0u) << "new images are transparent";
}

TEST(Image, ReportsMisuseAndStaysEmpty) {
  krocore::debug::ScopedAssertionRecorder recorder;
  EXPECT_FALSE(Image(0, 4).IsValid()) << "no size is no misuse";
  EXPECT_EQ(Image().MutablePixels(), nullptr);
  EXPECT_EQ(recorder.Count(), 0u);
  EXPECT_FALSE(Image(-1, 4).IsValid());
  EXPECT_TRUE(recorder.Contains("An image's size must be positive and at most 2^29 pixels"));
  EXPECT_FALSE(Image(2, 2, {1u, 2u, 3u}).IsValid());
  EXPECT_TRUE(recorder.Contains("The pixels given do not fill an image of this size"));
  EXPECT_EQ(Image(2, 2).PixelAt(2, 0), 0u);
  EXPECT_TRUE(recorder.Contains("PixelAt outside the image"));
  EXPECT_EQ(recorder.Count(), 3u);
}

} // namespace
