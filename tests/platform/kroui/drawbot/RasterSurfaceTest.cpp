#include <kroui/drawbot/RasterSurface.h>

#include <krocore/debug/Assert.h>

#include "DrawbotTestSupport.h"

#include <functional>
#include <tuple>

namespace {

using namespace kroui::drawbot;
using namespace kroui::drawbot::testing;

/// kOddOrange as the surface stores it: each channel to 16 bits, then the top 8.
constexpr std::uint32_t kOddOrangePixel = 0xFFE64C11u;

struct LineCase {
  const char* name;
  std::function<void(Drawbot&)> transform;
  PointF from;
  PointF to;
  float width;
  PixelBox covered;
};

void PrintTo(const LineCase& line, std::ostream* out) { *out << line.name; }

class OpaqueLine : public ::testing::TestWithParam<std::tuple<LineCase, bool>> {};

TEST_P(OpaqueLine, CoversExactlyItsPixelsWithTheExactColour) {
  const auto& [line, isSpans] = GetParam();
  RasterSurface surface(20, 20);
  surface.SetPixelSpansEnabled(isSpans);
  Drawbot& drawbot = surface.BeginDrawing();
  line.transform(drawbot);
  drawbot.DrawLine(line.from, line.to, kOddOrange, line.width);
  surface.EndDrawing();
  EXPECT_TRUE(IsExactlyBox(surface.Snapshot(), line.covered, kOddOrangePixel, kTransparent));
}

const auto kNone = [](Drawbot&) {};

// A point names the pixel whose centre it is; both end pixels are covered.
// clang-format off
const LineCase kLines[] = {
  {"Vertical", kNone, {5.f, 2.f}, {5.f, 8.f}, 1.f, {5, 2, 6, 9}},
  {"Horizontal", kNone, {2.f, 7.f}, {12.f, 7.f}, 1.f, {2, 7, 13, 8}},
  {"Reversed", kNone, {12.f, 7.f}, {2.f, 7.f}, 1.f, {2, 7, 13, 8}},
  {"Translated", [](Drawbot& d) { d.Translate(3.f, 4.f); }, {5.f, 2.f}, {5.f, 8.f}, 1.f, {8, 6, 9, 13}},
  {"TwoWide", kNone, {5.f, 2.f}, {5.f, 8.f}, 2.f, {4, 1, 6, 9}},
  {"ThreeWide", kNone, {5.f, 2.f}, {5.f, 8.f}, 3.f, {4, 1, 7, 10}},
  {"ScaledPen", [](Drawbot& d) { d.Scale(2.f, 2.f); }, {2.f, 1.f}, {2.f, 4.f}, 1.f, {3, 1, 5, 9}},
  {"HalfPixelShift", [](Drawbot& d) { d.Translate(0.5f, 0.f); }, {4.5f, 2.f}, {4.5f, 8.f}, 1.f, {5, 2, 6, 9}},
  {"ClippedByTheSurface", kNone, {-5.f, 19.f}, {40.f, 19.f}, 1.f, {0, 19, 20, 20}},
  {"Dot", kNone, {5.f, 5.f}, {5.f, 5.f}, 1.f, {5, 5, 6, 6}},
  {"ScaledDot", [](Drawbot& d) { d.Scale(2.f, 3.f); }, {2.f, 2.f}, {2.f, 2.f}, 1.f, {3, 5, 5, 8}},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(SpansAndRasterizer, OpaqueLine,
                         ::testing::Combine(::testing::ValuesIn(kLines), ::testing::Bool()),
                         [](const auto& row) {
                           return std::string(std::get<0>(row.param).name) +
                                  (std::get<1>(row.param) ? "Spans" : "Cairo");
                         });

class RasterShapes : public ::testing::TestWithParam<bool> {
protected:
  RasterShapes() : mSurface(20, 20) { mSurface.SetPixelSpansEnabled(GetParam()); }
  ~RasterShapes() override {
    if (mSurface.IsDrawing()) mSurface.EndDrawing();
  }
  Drawbot& Draw(const ColorRGBA& background = {0.f, 0.f, 0.f, 0.f}) {
    mSurface.Clear(background);
    return mSurface.BeginDrawing();
  }
  Image Result() {
    mSurface.EndDrawing();
    return mSurface.Snapshot();
  }
  RasterSurface mSurface;
};

TEST_P(RasterShapes, FillBetweenPixelsCoversTheEdgesByHalf) {
  Draw().FillRect({2.5f, 2.f, 5.f, 5.f}, kRed);
  const Image image = Result();
  EXPECT_NEAR(Channel(image.PixelAt(2, 4), 24), 128, 1);
  EXPECT_EQ(image.PixelAt(3, 4), kOpaqueRed);
  EXPECT_EQ(image.PixelAt(6, 4), kOpaqueRed);
  EXPECT_NEAR(Channel(image.PixelAt(7, 4), 24), 128, 1);
  EXPECT_EQ(image.PixelAt(8, 4), kTransparent);
}

TEST_P(RasterShapes, StrokedRectangleHasItsBorderInside) {
  Draw().StrokeRect({2.f, 2.f, 10.f, 8.f}, kRed);
  const Image image = Result();
  for (int y = 0; y < 20; ++y) {
    for (int x = 0; x < 20; ++x) {
      const bool isBorder = PixelBox{2, 2, 12, 10}.Contains(x, y) && !PixelBox{3, 3, 11, 9}.Contains(x, y);
      ASSERT_EQ(image.PixelAt(x, y), isBorder ? kOpaqueRed : kTransparent) << "at " << x << ", " << y;
    }
  }
}

TEST_P(RasterShapes, NothingOutsideARectangleClipChanges) {
  Drawbot& drawbot = Draw(kBlue);
  drawbot.Save();
  drawbot.Translate(2.f, 3.f);
  drawbot.ClipRect({3.f, 2.f, 10.f, 10.f});
  drawbot.FillRect({-100.f, -100.f, 200.f, 200.f}, kRed);
  drawbot.DrawLine({0.f, 0.f}, {15.f, 15.f}, kWhite, 3.f);
  drawbot.Restore();
  drawbot.DrawLine({0.f, 19.f}, {0.f, 19.f}, kRed);
  const Image image = Result();
  for (int y = 0; y < 20; ++y) {
    for (int x = 0; x < 20; ++x) {
      if (!PixelBox{5, 5, 15, 15}.Contains(x, y) && !(x == 0 && y == 19)) {
        ASSERT_EQ(image.PixelAt(x, y), kOpaqueBlue) << "outside the clip at " << x << ", " << y;
      }
    }
  }
  EXPECT_EQ(image.PixelAt(5, 14), kOpaqueRed);
  EXPECT_EQ(image.PixelAt(0, 19), kOpaqueRed) << "Restore lifted the clip";
}

TEST_P(RasterShapes, PolygonClipKeepsTheOutsideAndFillsTheInside) {
  Drawbot& drawbot = Draw(kBlue);
  drawbot.Translate(4.f, 0.f);
  const PointF triangle[] = {{-4.f, 0.f}, {16.f, 0.f}, {-4.f, 20.f}}; // (0, 0), (20, 0), (0, 20) on the device
  drawbot.ClipPolygon(triangle);
  drawbot.FillRect({-4.f, 0.f, 20.f, 20.f}, kRed);
  const Image image = Result();
  for (int y = 0; y < 20; ++y) {
    for (int x = 0; x < 20; ++x) {
      // The pixel square is wholly on one side of the edge x + y = 20, or crosses it.
      if (x + y >= 20) {
        ASSERT_EQ(image.PixelAt(x, y), kOpaqueBlue) << "outside at " << x << ", " << y;
      } else if (x + y + 2 <= 20) {
        ASSERT_EQ(image.PixelAt(x, y), kOpaqueRed) << "inside at " << x << ", " << y;
      }
    }
  }
}

TEST_P(RasterShapes, TranslucentColourBlendsOverWhatIsThere) {
  Drawbot& drawbot = Draw(kBlue);
  drawbot.FillRect({0.f, 0.f, 10.f, 20.f}, {1.f, 0.f, 0.f, 0.5f});
  drawbot.DrawLine({15.f, 0.f}, {15.f, 19.f}, {1.f, 0.f, 0.f, 0.5f});
  const Image image = Result();
  for (const std::uint32_t pixel : {image.PixelAt(4, 4), image.PixelAt(15, 4)}) {
    EXPECT_EQ(Channel(pixel, 24), 255) << Hex(pixel);
    EXPECT_NEAR(Channel(pixel, 16), 128, 1) << Hex(pixel);
    EXPECT_EQ(Channel(pixel, 8), 0) << Hex(pixel);
    EXPECT_NEAR(Channel(pixel, 0), 127, 1) << Hex(pixel);
  }
  EXPECT_EQ(image.PixelAt(14, 4), kOpaqueBlue);
}

TEST_P(RasterShapes, PolygonsFillAndStrokeThroughPixelCentres) {
  Drawbot& drawbot = Draw();
  const PointF square[] = {{2.f, 2.f}, {8.f, 2.f}, {8.f, 8.f}, {2.f, 8.f}};
  drawbot.FillPolygon(square, kBlue);
  drawbot.Translate(10.f, 10.f);
  drawbot.StrokePolygon(square, kRed);
  const Image image = Result();
  EXPECT_EQ(InkBounds(image, kTransparent), (PixelBox{2, 2, 19, 19}));
  EXPECT_EQ(image.PixelAt(2, 2), kOpaqueBlue);
  EXPECT_EQ(image.PixelAt(8, 2), kTransparent) << "an area ends where its edge is";
  EXPECT_EQ(image.PixelAt(18, 15), kOpaqueRed) << "an outline covers the pixels its points name";
  EXPECT_EQ(image.PixelAt(15, 15), kTransparent);
}

INSTANTIATE_TEST_SUITE_P(SpansAndRasterizer, RasterShapes, ::testing::Bool(),
                         [](const auto& row) { return row.param ? "Spans" : "Cairo"; });

TEST(RasterSurface, StartsEachDrawingPassAfresh) {
  RasterSurface surface(10, 10);
  Drawbot& first = surface.BeginDrawing();
  first.Translate(5.f, 5.f);
  first.Save();
  first.ClipRect({0.f, 0.f, 1.f, 1.f});
  {
    krocore::debug::ScopedAssertionRecorder recorder;
    surface.EndDrawing();
    EXPECT_TRUE(recorder.Contains("A drawing pass ended with a Save not restored"));
  }
  Drawbot& second = surface.BeginDrawing();
  EXPECT_EQ(second.GetClipBounds(), (RectF{0.f, 0.f, 10.f, 10.f}));
  second.FillRect({0.f, 0.f, 1.f, 1.f}, kRed);
  surface.EndDrawing();
  EXPECT_EQ(InkBounds(surface.Snapshot(), kTransparent), (PixelBox{0, 0, 1, 1}));
}

TEST(RasterSurface, ReportsPassesOutOfOrder) {
  RasterSurface surface(4, 4);
  krocore::debug::ScopedAssertionRecorder recorder;
  surface.EndDrawing();
  EXPECT_TRUE(recorder.Contains("EndDrawing without BeginDrawing"));
  surface.BeginDrawing();
  surface.Clear(kRed);
  EXPECT_TRUE(recorder.Contains("Clear during a drawing pass"));
  surface.BeginDrawing();
  EXPECT_TRUE(recorder.Contains("BeginDrawing while a drawing pass is open; it is ended first"));
  surface.EndDrawing();
  EXPECT_EQ(recorder.Count(), 3u);
  EXPECT_EQ(InkBounds(surface.Snapshot(), kTransparent), PixelBox{}) << "the refused Clear changed nothing";
}

TEST(RasterSurface, SnapshotsShareNothingWithTheSurface) {
  RasterSurface surface(4, 3);
  surface.Clear({1.f, 0.f, 0.f, 0.5f});
  Image snapshot = surface.Snapshot();
  EXPECT_EQ(snapshot.GetWidth(), 4);
  EXPECT_EQ(snapshot.PixelAt(3, 2), 0x80800000u) << "premultiplied";
  snapshot.MutablePixels()[0] = kOpaqueBlue;
  EXPECT_EQ(surface.Snapshot().PixelAt(0, 0), 0x80800000u);
}

TEST(RasterSurface, OfNoSizeDrawsNothing) {
  RasterSurface surface(0, 5);
  Drawbot& drawbot = surface.BeginDrawing();
  drawbot.FillRect({0.f, 0.f, 10.f, 10.f}, kRed);
  drawbot.DrawText("text", FontKey{}, kRed, {0.f, 0.f, 10.f, 10.f});
  EXPECT_EQ(drawbot.GetClipBounds(), RectF{});
  surface.EndDrawing();
  EXPECT_FALSE(surface.Snapshot().IsValid());
}

} // namespace
