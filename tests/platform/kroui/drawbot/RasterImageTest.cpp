#include <kroui/drawbot/RasterSurface.h>

#include "DrawbotTestSupport.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <span>

namespace {

using namespace kroui::drawbot;
using namespace kroui::drawbot::testing;

constexpr std::uint32_t kOpaqueGreen = 0xFF00FF00u;

/// Red, green / blue, white.
Image Quadrants() { return Image(2, 2, {kOpaqueRed, kOpaqueGreen, kOpaqueBlue, kOpaqueWhite}); }

Image Draw(int width, int height, const std::function<void(Drawbot&)>& paint) {
  RasterSurface surface(width, height);
  paint(surface.BeginDrawing());
  surface.EndDrawing();
  return surface.Snapshot();
}

TEST(RasterImages, AreScaledIntoTheirDestinationOnly) {
  const Image image = Draw(30, 30, [](Drawbot& d) { d.DrawImage(Quadrants(), {5.f, 5.f, 20.f, 20.f}); });
  EXPECT_EQ(InkBounds(image, kTransparent), (PixelBox{5, 5, 25, 25}));
  // Well inside each quadrant, the stretched pixel shows unmixed.
  EXPECT_EQ(image.PixelAt(7, 7), kOpaqueRed);
  EXPECT_EQ(image.PixelAt(5, 5), kOpaqueRed) << "edges stretch rather than fade";
  EXPECT_EQ(image.PixelAt(22, 7), kOpaqueGreen);
  EXPECT_EQ(image.PixelAt(7, 22), kOpaqueBlue);
  EXPECT_EQ(image.PixelAt(24, 24), kOpaqueWhite);
}

TEST(RasterImages, AreDrawnWithTheirOpacity) {
  const Image image = Draw(4, 4, [](Drawbot& d) { d.DrawImage(Quadrants(), {0.f, 0.f, 4.f, 4.f}, 0.5f); });
  const std::uint32_t pixel = image.PixelAt(0, 0);
  EXPECT_NEAR(Channel(pixel, 24), 128, 1) << Hex(pixel);
  EXPECT_NEAR(Channel(pixel, 16), 128, 1) << Hex(pixel);
  EXPECT_EQ(Channel(pixel, 0), 0) << Hex(pixel);
}

TEST(RasterImages, AtTheirOwnSizeAreCopiedExactly) {
  const Image swatch(3, 1, {0xFF102030u, 0x80402010u, 0xFFFFFFFFu});
  const Image image = Draw(5, 3, [&](Drawbot& d) {
    d.Translate(1.f, 1.f);
    d.DrawImage(swatch, {0.f, 0.f, 3.f, 1.f});
  });
  EXPECT_EQ(image.PixelAt(1, 1), 0xFF102030u);
  EXPECT_EQ(image.PixelAt(2, 1), 0x80402010u);
  EXPECT_EQ(image.PixelAt(3, 1), 0xFFFFFFFFu);
}

class RasterPixels : public ::testing::TestWithParam<bool> {};

TEST_P(RasterPixels, LandUnscaledOverWhatIsThereInsideTheClip) {
  const Image pixels(2, 2, {kOpaqueRed, 0x80008000u, 0u, kOpaqueWhite});
  RasterSurface surface(20, 20);
  surface.SetPixelSpansEnabled(GetParam());
  surface.Clear(kBlue);
  Drawbot& drawbot = surface.BeginDrawing();
  drawbot.Save();
  drawbot.Translate(0.4f, 0.f);
  drawbot.Scale(3.f, 3.f);
  drawbot.DrawPixels(pixels, {2.f, 2.f}); // at (6.4, 6): whole pixel (6, 6)
  drawbot.Restore();
  drawbot.ClipRect({0.f, 0.f, 10.f, 20.f});
  drawbot.DrawPixels(pixels, {9.f, 12.f});
  surface.EndDrawing();
  const Image image = surface.Snapshot();

  EXPECT_EQ(image.PixelAt(6, 6), kOpaqueRed);
  EXPECT_EQ(image.PixelAt(7, 6), 0xFF00807Fu) << "half green over blue";
  EXPECT_EQ(image.PixelAt(6, 7), kOpaqueBlue) << "clear pixels leave what is there";
  EXPECT_EQ(image.PixelAt(7, 7), kOpaqueWhite);
  EXPECT_EQ(image.PixelAt(8, 8), kOpaqueBlue) << "one to one, not scaled";
  EXPECT_EQ(image.PixelAt(9, 12), kOpaqueRed);
  EXPECT_EQ(image.PixelAt(10, 12), kOpaqueBlue) << "outside the clip";
  EXPECT_EQ(image.PixelAt(10, 13), kOpaqueBlue) << "outside the clip";
}

INSTANTIATE_TEST_SUITE_P(SpansAndRasterizer, RasterPixels, ::testing::Bool(),
                         [](const auto& row) { return row.param ? "Spans" : "Cairo"; });

// --- PNG files -----------------------------------------------------------------

class PNGFiles : public ::testing::Test {
protected:
  void SetUp() override {
    mDirectory = std::filesystem::path(::testing::TempDir()) /
                 ("zel-png-" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
    std::filesystem::create_directories(mDirectory);
  }
  void TearDown() override { std::filesystem::remove_all(mDirectory); }
  std::filesystem::path mDirectory;
};

/// Valid premultiplied pixels of many alphas: no channel above its alpha.
Image Translucent() {
  std::vector<std::uint32_t> pixels;
  for (std::uint32_t alpha : {0xFFu, 0xEEu, 0x80u, 0x41u, 0x10u, 0x01u, 0x00u}) {
    for (std::uint32_t part : {alpha, alpha * 2 / 3, alpha / 5, 0u}) {
      pixels.push_back(alpha << 24 | part << 16 | (alpha - part) << 8 | (part / 2));
    }
  }
  return Image(4, 7, std::move(pixels));
}

TEST_F(PNGFiles, GiveBackThePixelsWritten) {
  RasterSurface surface(4, 7);
  surface.BeginDrawing().DrawPixels(Translucent(), {0.f, 0.f});
  surface.EndDrawing();
  const auto path = mDirectory / "surface.png";
  ASSERT_TRUE(surface.WritePNG(path)) << surface.WritePNG(path).Error();
  const auto read = ReadPNG(path);
  ASSERT_TRUE(read) << read.Error();
  EXPECT_TRUE(AreIdentical(read.Value(), Translucent()));

  const auto copy = mDirectory / "copy.png";
  ASSERT_TRUE(WritePNG(read.Value(), copy));
  EXPECT_TRUE(AreIdentical(ReadPNG(copy).Value(), Translucent()));
}

TEST_F(PNGFiles, SayWhatWentWrong) {
  const auto missing = ReadPNG(mDirectory / "missing.png");
  ASSERT_FALSE(missing);
  EXPECT_NE(missing.Error().find("missing.png"), std::string::npos) << missing.Error();

  std::ofstream(mDirectory / "text.png") << "not a picture";
  EXPECT_FALSE(ReadPNG(mDirectory / "text.png"));

  EXPECT_FALSE(WritePNG(Image(), mDirectory / "empty.png"));
  const auto nowhere = WritePNG(Quadrants(), mDirectory / "no" / "such" / "folder.png");
  ASSERT_FALSE(nowhere);
  EXPECT_NE(nowhere.Error().find("folder.png"), std::string::npos) << nowhere.Error();
}

TEST_F(PNGFiles, DecodeFromMemoryAsFromAFile) {
  const auto path = mDirectory / "bytes.png";
  ASSERT_TRUE(WritePNG(Translucent(), path));
  std::ifstream in(path, std::ios::binary);
  const std::vector<unsigned char> bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  const auto decoded = DecodePNG(bytes);
  ASSERT_TRUE(decoded) << decoded.Error();
  EXPECT_TRUE(AreIdentical(decoded.Value(), Translucent()));

  EXPECT_FALSE(DecodePNG(std::span(bytes).first(bytes.size() / 2))) << "truncated";
  const std::string text = "not a picture";
  EXPECT_FALSE(DecodePNG(std::span(reinterpret_cast<const unsigned char*>(text.data()), text.size())));
  EXPECT_FALSE(DecodePNG({}));
}

} // namespace
