// Axis-aligned opaque shapes on whole pixels are written straight into the
// surface's memory; everything else goes through Cairo. Both must give the
// very same pixels, also when the two take turns.
#include <kroui/drawbot/RasterSurface.h>

#include "DrawbotTestSupport.h"

#include <functional>

namespace {

using namespace kroui::drawbot;
using namespace kroui::drawbot::testing;

struct TransformCase {
  const char* name;
  std::function<void(Drawbot&)> apply;
};

/// Premultiplied pixels from opaque to clear, so that blending shows.
Image Swatch() {
  std::vector<std::uint32_t> pixels;
  for (std::uint32_t alpha : {0xFFu, 0xC0u, 0x80u, 0x40u, 0x00u, 0xFFu}) {
    for (std::uint32_t red : {alpha, alpha / 2, 0u})
      pixels.push_back(alpha << 24 | red << 16 | (alpha / 3) << 8);
  }
  return Image(3, 6, std::move(pixels));
}

void DrawScene(Drawbot& drawbot, const TransformCase& transform) {
  transform.apply(drawbot);
  drawbot.FillRect({0.f, 0.f, 60.f, 40.f}, kWhite);
  drawbot.Save();
  drawbot.ClipRect({1.f, 1.f, 57.f, 36.f});
  for (int i = 0; i < 12; ++i) {
    const auto x = static_cast<float>(2 + 4 * i);
    drawbot.DrawLine({x, 3.f}, {x, 3.f + static_cast<float>(i)}, kOddOrange, static_cast<float>(1 + i % 3));
    drawbot.DrawLine({x, 30.f}, {x - 3.f, 30.f}, kBlue);
  }
  drawbot.DrawLine({40.f, 20.f}, {40.f, 20.f}, kBlack);
  drawbot.DrawLine({5.f, 24.f}, {80.f, 24.f}, kRed, 2.f);
  drawbot.DrawLine({3.f, 16.f}, {20.f, 27.f}, kBlack); // diagonal: Cairo, between spans
  drawbot.StrokeRect({30.f, 14.f, 12.f, 9.f}, kBlue);
  drawbot.StrokeRect({44.f, 14.f, 10.f, 9.f}, kOddOrange, 2.f);
  drawbot.StrokeRect({50.f, 30.f, 1.f, 5.f}, kBlack, 2.f);
  drawbot.FillRect({20.f, 32.f, 9.f, 3.f}, kOddOrange);
  drawbot.DrawPixels(Swatch(), {52.f, 2.f});
  drawbot.DrawPixels(Swatch(), {-1.f, 35.f});
  drawbot.Restore();
}

void PrintTo(const TransformCase& transform, std::ostream* out) { *out << transform.name; }

class PixelSpans : public ::testing::TestWithParam<TransformCase> {};

TEST_P(PixelSpans, GiveTheSamePixelsAsCairo) {
  RasterSurface spans(130, 90), cairo(130, 90);
  cairo.SetPixelSpansEnabled(false);
  for (RasterSurface* surface : {&spans, &cairo}) {
    surface->Clear({0.2f, 0.4f, 0.6f, 1.f});
    DrawScene(surface->BeginDrawing(), GetParam());
    surface->EndDrawing();
  }
  const Image image = spans.Snapshot();
  EXPECT_TRUE(AreIdentical(image, cairo.Snapshot()));
  EXPECT_GT(InkBounds(image, image.PixelAt(129, 89)).right, 50) << "the scene was drawn";
}

INSTANTIATE_TEST_SUITE_P(
    Transforms, PixelSpans,
    ::testing::Values(TransformCase{"Identity", [](Drawbot&) {}},
                      TransformCase{"Translation", [](Drawbot& d) { d.Translate(3.f, 5.f); }},
                      TransformCase{"NegativeTranslation", [](Drawbot& d) { d.Translate(-2.f, 7.f); }},
                      TransformCase{"DoubleScale",
                                    [](Drawbot& d) {
                                      d.Translate(4.f, 2.f);
                                      d.Scale(2.f, 2.f);
                                    }}),
    [](const auto& row) { return row.param.name; });

} // namespace
