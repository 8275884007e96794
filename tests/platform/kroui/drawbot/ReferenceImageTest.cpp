// A small scene of every kind of drawing, compared with a reference image of
// ours. Rewrite the reference with ZEL_UPDATE_REFERENCE_IMAGES=1, and look at
// it before committing it.
#include <kroui/drawbot/FontTable.h>
#include <kroui/drawbot/RasterSurface.h>

#include <support/ImageCompare.h>
#include <support/SourceTree.h>

#include "DrawbotTestSupport.h"

#include <cstdlib>
#include <filesystem>

namespace {

using namespace kroui::drawbot;
using namespace kroui::drawbot::testing;

std::filesystem::path ReferenceDirectory() {
  return testsupport::SourcePath("tests/platform/kroui/drawbot/reference");
}

/// A little timeline: a ruler with ticks and timecodes, a clip, a marker, a
/// selection and a thumbnail.
void DrawScene(Drawbot& drawbot) {
  drawbot.FillRect({0.f, 0.f, 240.f, 120.f}, {0.16f, 0.17f, 0.19f, 1.f});
  drawbot.FillRect({0.f, 0.f, 240.f, 24.f}, {0.24f, 0.25f, 0.28f, 1.f});
  for (int i = 0; i < 48; ++i) {
    const auto x = static_cast<float>(5 * i);
    drawbot.DrawLine({x, i % 10 == 0 ? 12.f : 19.f}, {x, 23.f}, {0.7f, 0.7f, 0.72f, 1.f});
  }
  drawbot.DrawText("00:00:00:00", FontKey{kFont_CleanTimecodeSmall}, kWhite, {2.f, 0.f, 90.f, 12.f},
                   HorizontalAlignment::Left, VerticalAlignment::Center);
  drawbot.DrawText("00:01:23:12", FontKey{kFont_CleanTimecodeSmall}, kWhite, {100.f, 0.f, 100.f, 12.f},
                   HorizontalAlignment::Left, VerticalAlignment::Center);

  drawbot.Save();
  drawbot.Translate(20.f, 32.f);
  drawbot.ClipRect({0.f, 0.f, 150.f, 30.f});
  drawbot.FillRect({0.f, 0.f, 180.f, 30.f}, {0.25f, 0.45f, 0.75f, 1.f});
  drawbot.StrokeRect({0.f, 0.f, 180.f, 30.f}, {0.6f, 0.75f, 1.f, 1.f});
  drawbot.DrawText("Interview take 3 with a long name", FontKey{kFont_Default}, kWhite,
                   {6.f, 0.f, 120.f, 30.f});
  drawbot.Restore();

  const std::uint32_t g = 0xFF20A040u, w = 0xFFF0F0F0u;
  drawbot.DrawImage(Image(2, 2, {g, w, w, g}), {176.f, 32.f, 40.f, 30.f}, 0.8f);

  const PointF marker[] = {{200.f, 24.f}, {206.f, 30.f}, {200.f, 36.f}, {194.f, 30.f}};
  drawbot.FillPolygon(marker, {1.f, 0.8f, 0.1f, 1.f});
  drawbot.DrawLine({200.f, 36.f}, {200.f, 119.f}, {1.f, 0.8f, 0.1f, 1.f});
  const PointF wave[] = {{10.f, 100.f}, {30.f, 90.f}, {50.f, 108.f}, {70.f, 86.f}, {90.f, 104.f}};
  drawbot.DrawPolyline(wave, {0.4f, 0.9f, 0.5f, 1.f}, 2.f);

  drawbot.DrawText("01:02:03:04", FontKey{kFont_CleanTimecodeMedium}, {0.9f, 0.9f, 0.5f, 1.f},
                   {100.f, 66.f, 130.f, 20.f}, HorizontalAlignment::Right, VerticalAlignment::Center);
  drawbot.DrawText("12:34:56:78", FontKey{kFont_CleanTimecodeLarge}, kWhite, {100.f, 86.f, 130.f, 30.f},
                   HorizontalAlignment::Right, VerticalAlignment::Baseline);
  drawbot.FillRect({100.f, 70.f, 40.f, 44.f}, {0.3f, 0.6f, 1.f, 0.3f});
}

TEST(ReferenceImage, SceneLooksAsCommitted) {
  RasterSurface surface(240, 120);
  DrawScene(surface.BeginDrawing());
  surface.EndDrawing();
  // Glyph edges may shift by a level between FreeType versions; nothing else may.
  EXPECT_TRUE(testsupport::MatchesReferenceImage(surface.Snapshot(),
                                                 ReferenceDirectory() / "timeline-scene.png",
                                                 {.channel = 8, .pixelFraction = 0.002}));
}

TEST(ReferenceImage, AFailedComparisonLeavesTheImagesAndSaysWhere) {
  if (std::getenv("ZEL_UPDATE_REFERENCE_IMAGES")) GTEST_SKIP() << "this run rewrites references";
  RasterSurface surface(240, 120);
  DrawScene(surface.BeginDrawing());
  surface.EndDrawing();
  const Image drawn = surface.Snapshot();
  Image changed = drawn;
  changed.MutablePixels()[240 * 60 + 120] ^= 0x00FFFFFFu;

  const testsupport::ImageDifference difference = testsupport::DiffImages(changed, drawn, 8);
  EXPECT_EQ(difference.differingPixels, 1);
  EXPECT_EQ(difference.picture.PixelAt(120, 60) & 0xFF00FFFFu, 0xFF000000u) << "marked in red";

  const auto directory = std::filesystem::path(::testing::TempDir()) / "zel-image-compare";
  std::filesystem::create_directories(directory);
  ASSERT_TRUE(WritePNG(drawn, directory / "scene.png"));
  ::setenv("ZEL_IMAGE_OUTPUT_DIR", (directory / "out").c_str(), 1);
  const ::testing::AssertionResult result =
      testsupport::MatchesReferenceImage(changed, directory / "scene.png");
  ::unsetenv("ZEL_IMAGE_OUTPUT_DIR");
  EXPECT_FALSE(result);
  EXPECT_NE(std::string(result.message()).find((directory / "out" / "scene.difference.png").string()),
            std::string::npos)
      << result.message();
  EXPECT_TRUE(testsupport::DiffImages(ReadPNG(directory / "out" / "scene.actual.png").Value(), changed, 0)
                  .differingPixels == 0);
  EXPECT_TRUE(testsupport::MatchesReferenceImage(drawn, directory / "scene.png", {.channel = 0}));
  std::filesystem::remove_all(directory);
}

} // namespace
