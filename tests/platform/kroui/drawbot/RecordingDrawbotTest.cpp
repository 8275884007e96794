#include <kroui/drawbot/FontTable.h>
#include <kroui/drawbot/RasterSurface.h>
#include <kroui/drawbot/RecordingDrawbot.h>

#include <krocore/debug/Assert.h>

#include "DrawbotTestSupport.h"

#include <cmath>
#include <functional>
#include <memory>

namespace {

using namespace kroui::drawbot;
using namespace kroui::drawbot::testing;

const FontKey kSmall{kFont_CleanTimecodeSmall};

TEST(RecordingDrawbot, KeepsTheDisplayListInDeviceCoordinatesWithTheClipInForce) {
  RecordingDrawbot drawbot(200, 100);
  const PointF triangle[] = {{0.f, 0.f}, {40.f, 0.f}, {0.f, 30.f}};
  drawbot.Save();
  drawbot.Translate(10.f, 20.f);
  drawbot.ClipRect({0.f, 0.f, 100.f, 50.f});
  drawbot.Save();
  drawbot.ClipPolygon(triangle);
  drawbot.FillPolygon(triangle, kRed);
  drawbot.Restore();
  drawbot.DrawLine({5.f, 5.f}, {5.f, 45.f}, kBlue);
  drawbot.DrawText("00:01:23:12", kSmall, kBlack, {0.f, 30.f, 100.f, 20.f});
  drawbot.Restore();
  drawbot.FillRect({0.f, 0.f, 200.f, 100.f}, kWhite);

  const auto commands = drawbot.Commands();
  ASSERT_EQ(commands.size(), 4u) << drawbot.Describe();
  const RectF nodeClip{10.f, 20.f, 100.f, 50.f};

  const DrawCommand& polygon = commands[0];
  EXPECT_EQ(polygon.kind, DrawKind::FillPolygon);
  EXPECT_EQ(polygon.points, (std::vector<PointF>{{10.f, 20.f}, {50.f, 20.f}, {10.f, 50.f}}));
  EXPECT_EQ(polygon.clip, (RectF{10.f, 20.f, 40.f, 30.f}))
      << "the rectangle cut down to the polygon's bounds";
  ASSERT_EQ(polygon.clipPolygons.size(), 1u);
  EXPECT_EQ(polygon.clipPolygons[0], polygon.points);
  EXPECT_EQ(polygon.saveDepth, 2);

  const DrawCommand& line = commands[1];
  EXPECT_EQ(line.kind, DrawKind::Line);
  EXPECT_EQ(line.points, (std::vector<PointF>{{15.f, 25.f}, {15.f, 65.f}}));
  EXPECT_EQ(line.color, kBlue);
  EXPECT_EQ(line.clip, nodeClip);
  EXPECT_TRUE(line.clipPolygons.empty()) << "Restore ended the polygon clip";

  const DrawCommand* text = drawbot.FindText("00:01:23:12");
  ASSERT_EQ(text, &commands[2]);
  const TextMetrics metrics = drawbot.MeasureText("00:01:23:12", kSmall);
  EXPECT_EQ(text->rect, (RectF{10.f, 50.f, 100.f, 20.f}));
  EXPECT_EQ(text->textMetrics.width, metrics.width);
  EXPECT_EQ(text->textOrigin.x, 10.f);
  EXPECT_EQ(text->textOrigin.y, std::floor(50.f + (20.f - metrics.Height()) / 2.f + metrics.ascent + 0.5f));
  EXPECT_EQ(text->clip, nodeClip);

  EXPECT_EQ(commands[3].clip, (RectF{0.f, 0.f, 200.f, 100.f}))
      << "the outer Restore gave the whole device back";
  EXPECT_EQ(commands[3].saveDepth, 0);
}

TEST(RecordingDrawbot, DescribesEachCommandOnALine) {
  RecordingDrawbot drawbot(100, 50);
  drawbot.Translate(2.f, 3.f);
  drawbot.StrokeRect({0.f, 0.f, 10.f, 5.f}, kRed, 2.f);
  drawbot.Scale(2.f, 2.f);
  drawbot.DrawLine({1.f, 1.f}, {4.f, 1.f}, kBlue);
  EXPECT_EQ(drawbot.Describe(),
            "StrokeRect [2, 3 10x5] rgba(1, 0, 0, 1) width 2 clip [0, 0 100x50]\n"
            "Line (4, 5)-(10, 5) rgba(0, 0, 1, 1) width 1 scale (2, 2) clip [0, 0 100x50]\n");
}

TEST(RecordingDrawbot, RecordsWhatTheClipHidesAsInvisible) {
  RecordingDrawbot drawbot(100, 100);
  drawbot.ClipRect({0.f, 0.f, 50.f, 50.f});
  drawbot.FillRect({60.f, 60.f, 10.f, 10.f}, kRed);
  drawbot.DrawLine({49.f, 0.f}, {49.f, 80.f}, kRed);
  drawbot.DrawText("far away", FontKey{kFont_Default}, kBlack, {70.f, 0.f, 30.f, 20.f});
  drawbot.DrawText("near", FontKey{kFont_Default}, kBlack, {10.f, 10.f, 30.f, 20.f});
  ASSERT_EQ(drawbot.Commands().size(), 4u);
  EXPECT_FALSE(drawbot.Commands()[0].IsVisible());
  EXPECT_TRUE(drawbot.Commands()[1].IsVisible());
  EXPECT_FALSE(drawbot.FindText("far away")->IsVisible());
  EXPECT_TRUE(drawbot.FindText("near")->IsVisible());
}

TEST(RecordingDrawbot, RecordsThePenAndPixelsAsTheRasterSurfaceDrawsThem) {
  RecordingDrawbot drawbot(100, 100);
  drawbot.Translate(0.4f, 0.6f);
  drawbot.DrawPixels(Image(3, 2), {10.f, 10.f});
  drawbot.Scale(2.f, 3.f);
  drawbot.DrawLine({1.f, 1.f}, {1.f, 5.f}, kRed, 1.f);
  const DrawCommand* pixels = drawbot.FindFirst(DrawKind::Pixels);
  ASSERT_NE(pixels, nullptr);
  EXPECT_EQ(pixels->rect, (RectF{10.f, 11.f, 3.f, 2.f})) << "unscaled, on whole pixels";
  const DrawCommand* line = drawbot.FindFirst(DrawKind::Line);
  ASSERT_NE(line, nullptr);
  EXPECT_EQ(line->scale, (PointF{2.f, 3.f}));
  // The ends at (2.4, 3.6) and (2.4, 15.6); a pen 2 pixels wide and 3 tall, and half a pixel more each side.
  const RectF bounds = line->Bounds();
  EXPECT_FLOAT_EQ(bounds.x, 0.9f);
  EXPECT_FLOAT_EQ(bounds.y, 1.6f);
  EXPECT_FLOAT_EQ(bounds.width, 3.f);
  EXPECT_FLOAT_EQ(bounds.height, 16.f);
}

TEST(RecordingDrawbot, FindsCommandsByKindAndForgetsThem) {
  RecordingDrawbot drawbot(10, 10);
  drawbot.FillRect({0.f, 0.f, 1.f, 1.f}, kRed);
  drawbot.DrawLine({0.f, 0.f}, {1.f, 1.f}, kRed);
  drawbot.FillRect({0.f, 0.f, 2.f, 2.f}, kBlue);
  EXPECT_EQ(drawbot.Count(DrawKind::FillRect), 2u);
  EXPECT_EQ(drawbot.FindAll(DrawKind::FillRect).at(1)->color, kBlue);
  EXPECT_EQ(drawbot.FindFirst(DrawKind::Text), nullptr);
  EXPECT_EQ(drawbot.FindText("absent"), nullptr);
  drawbot.ClearCommands();
  EXPECT_TRUE(drawbot.Commands().empty());
}

// --- The state stack, on both surfaces -------------------------------------------

/// Either surface, as a drawbot of 200 x 100 pixels.
struct Surface {
  std::unique_ptr<RecordingDrawbot> recording;
  std::unique_ptr<RasterSurface> raster;

  explicit Surface(bool isRaster) {
    if (isRaster) {
      raster = std::make_unique<RasterSurface>(200, 100);
    } else {
      recording = std::make_unique<RecordingDrawbot>(200, 100);
    }
  }
  ~Surface() {
    if (raster) raster->EndDrawing();
  }
  Drawbot& Get() { return raster ? raster->BeginDrawing() : *recording; }
};

struct ClipCase {
  const char* name;
  std::function<void(Drawbot&)> steps;
  RectF clipBounds; ///< in user coordinates after the steps
};

void PrintTo(const ClipCase& clip, std::ostream* out) { *out << clip.name; }

class ClipBounds : public ::testing::TestWithParam<std::tuple<ClipCase, bool>> {};

TEST_P(ClipBounds, AreReportedInUserCoordinatesUntilRestored) {
  const auto& [clipCase, isRaster] = GetParam();
  Surface surface(isRaster);
  Drawbot& drawbot = surface.Get();
  drawbot.Save();
  clipCase.steps(drawbot);
  EXPECT_EQ(drawbot.GetClipBounds(), clipCase.clipBounds);
  drawbot.Restore();
  EXPECT_EQ(drawbot.GetClipBounds(), (RectF{0.f, 0.f, 200.f, 100.f}));
}

const PointF kDiamond[] = {{50.f, 0.f}, {80.f, 30.f}, {50.f, 60.f}, {20.f, 30.f}};

// clang-format off
const ClipCase kClipCases[] = {
  {"Plain", [](Drawbot& d) { d.ClipRect({10.f, 10.f, 50.f, 50.f}); }, {10.f, 10.f, 50.f, 50.f}},
  {"Translated", [](Drawbot& d) { d.Translate(150.f, 10.f); d.ClipRect({0.f, 0.f, 100.f, 50.f}); },
   {0.f, 0.f, 50.f, 50.f}},
  {"Scaled", [](Drawbot& d) { d.Scale(2.f, 4.f); d.ClipRect({5.f, 5.f, 10.f, 10.f}); },
   {5.f, 5.f, 10.f, 10.f}},
  {"Flipped", [](Drawbot& d) { d.Translate(200.f, 0.f); d.Scale(-1.f, 1.f);
                               d.ClipRect({0.f, 0.f, 50.f, 100.f}); }, {0.f, 0.f, 50.f, 100.f}},
  {"Nested", [](Drawbot& d) { d.ClipRect({0.f, 0.f, 100.f, 100.f}); d.Translate(50.f, 0.f);
                              d.ClipRect({0.f, 20.f, 100.f, 10.f}); }, {0.f, 20.f, 50.f, 10.f}},
  {"Polygon", [](Drawbot& d) { d.ClipPolygon(kDiamond); }, {20.f, 0.f, 60.f, 60.f}},
  {"Disjoint", [](Drawbot& d) { d.ClipRect({0.f, 0.f, 10.f, 10.f}); d.ClipRect({20.f, 20.f, 10.f, 10.f}); },
   {}},
  {"Collapsed", [](Drawbot& d) { d.Scale(0.f, 1.f); }, {}},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(BothSurfaces, ClipBounds,
                         ::testing::Combine(::testing::ValuesIn(kClipCases), ::testing::Bool()),
                         [](const auto& row) {
                           return std::string(std::get<0>(row.param).name) +
                                  (std::get<1>(row.param) ? "Raster" : "Recording");
                         });

class UnmatchedRestore : public ::testing::TestWithParam<bool> {};

TEST_P(UnmatchedRestore, IsReportedAndIgnored) {
  Surface surface(GetParam());
  Drawbot& drawbot = surface.Get();
  drawbot.ClipRect({0.f, 0.f, 20.f, 20.f});
  krocore::debug::ScopedAssertionRecorder recorder;
  drawbot.Restore();
  EXPECT_TRUE(recorder.Contains("Restore without a matching Save"));
  EXPECT_EQ(drawbot.GetClipBounds(), (RectF{0.f, 0.f, 20.f, 20.f})) << "the clip stays";
}

INSTANTIATE_TEST_SUITE_P(BothSurfaces, UnmatchedRestore, ::testing::Bool());

} // namespace
