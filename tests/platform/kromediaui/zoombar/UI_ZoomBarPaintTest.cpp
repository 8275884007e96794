// How a zoom bar looks: what it draws, and four states in two palettes
// compared with reference images of ours. Rewrite the references with
// ZEL_UPDATE_REFERENCE_IMAGES=1, and look at them before committing them.
#include <kromediaui/zoombar/UI_ZoomBar.h>

#include <kroui/drawbot/RasterSurface.h>
#include <kroui/drawbot/RecordingDrawbot.h>

#include <support/ImageCompare.h>
#include <support/SourceTree.h>

#include <HeadlessFixture.h>

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using kromediaui::UI_ZoomBar;
using kromediaui::ZoomBarColors;
using kroui::drawbot::DrawKind;
using kroui::drawbot::RectF;

constexpr int kWidth = 240;
constexpr int kRowHeight = 16;

krocore::IntrusivePtr<UI_ZoomBar> MakeBar(double start, double end, int width = kWidth) {
  auto bar = krocore::MakeIntrusive<UI_ZoomBar>();
  bar->SetBounds({0, 0, width, UI_ZoomBar::GetDefaultSize()});
  bar->SetValueRange(start, end);
  return bar;
}

ZoomBarColors LightColors() {
  return {{0.86f, 0.86f, 0.86f, 1.f}, {0.68f, 0.68f, 0.68f, 1.f}, {0.56f, 0.56f, 0.56f, 1.f}, {0.32f, 0.32f, 0.32f, 1.f}};
}

using UI_ZoomBarPaint = kroui::testing::HeadlessFixture<>;

TEST_F(UI_ZoomBarPaint, ABarDrawsTrackThumbHandlesAndGrip) {
  auto bar = MakeBar(0.25, 0.75);
  kroui::drawbot::RecordingDrawbot drawbot(kWidth, 12);
  bar->PaintInto(drawbot);
  const auto fills = drawbot.FindAll(DrawKind::FillRect);
  ASSERT_EQ(fills.size(), 7u) << "track, thumb, two handles, three grip lines";
  EXPECT_EQ(fills[0]->rect, (RectF{0, 0, 240, 12}));
  EXPECT_EQ(fills[1]->rect, (RectF{60, 1, 120, 10}));
  EXPECT_EQ(fills[2]->rect, (RectF{63, 3, 2, 6})) << "the start handle in the middle of its 8 pixels";

  drawbot.ClearCommands();
  bar->DrawCenterThumb(false);
  bar->PaintInto(drawbot);
  EXPECT_EQ(drawbot.Count(DrawKind::FillRect), 4u);
}

TEST_F(UI_ZoomBarPaint, AMinimisedBarDrawsAThinStripAndAThinThumb) {
  auto bar = MakeBar(0.5, 0.5001);
  bar->SetScroomBarToMinimizedMode();
  kroui::drawbot::RecordingDrawbot drawbot(kWidth, 12);
  bar->PaintInto(drawbot);
  const auto fills = drawbot.FindAll(DrawKind::FillRect);
  ASSERT_EQ(fills.size(), 2u);
  EXPECT_EQ(fills[0]->rect, (RectF{0, 9, 240, 3}));
  EXPECT_EQ(fills[1]->rect.width, 22.f) << "a tiny range keeps the minimum thumb";
}

TEST_F(UI_ZoomBarPaint, AVerticalBarLiesAlongItsHeight) {
  auto bar = krocore::MakeIntrusive<UI_ZoomBar>(UI_ZoomBar::Orientation::Vertical);
  bar->SetBounds({0, 0, 12, 200});
  bar->SetValueRange(0.5, 1.0);
  kroui::drawbot::RecordingDrawbot drawbot(12, 200);
  bar->PaintInto(drawbot);
  const auto fills = drawbot.FindAll(DrawKind::FillRect);
  ASSERT_GE(fills.size(), 2u);
  EXPECT_EQ(fills[1]->rect, (RectF{1, 100, 10, 100}));
}

// Full range, 30 %, a tiny fraction and minimised, one under the other.
kroui::drawbot::Image DrawStates(const ZoomBarColors& colors, const kroui::drawbot::ColorRGBA& background) {
  kroui::drawbot::RasterSurface surface(kWidth, 4 * kRowHeight);
  surface.Clear(background);
  const krocore::IntrusivePtr<UI_ZoomBar> bars[] = {MakeBar(0.0, 1.0), MakeBar(0.4, 0.7), MakeBar(0.8, 0.8002),
                                                    MakeBar(0.2, 0.5)};
  bars[3]->SetScroomBarToMinimizedMode();
  auto& drawbot = surface.BeginDrawing();
  for (int row = 0; row < 4; ++row) {
    bars[row]->SetColors(colors);
    drawbot.Save();
    drawbot.Translate(0.f, static_cast<float>(row * kRowHeight + 2));
    bars[row]->PaintInto(drawbot);
    drawbot.Restore();
  }
  surface.EndDrawing();
  return surface.Snapshot();
}

std::filesystem::path Reference(const char* name) {
  return testsupport::SourcePath("tests/platform/kromediaui/zoombar/reference") / name;
}

TEST_F(UI_ZoomBarPaint, ItsStatesLookAsCommittedInDarkAndLightColours) {
  EXPECT_TRUE(testsupport::MatchesReferenceImage(DrawStates(ZoomBarColors{}, {0.2f, 0.2f, 0.2f, 1.f}),
                                                 Reference("zoombar-dark.png")));
  EXPECT_TRUE(testsupport::MatchesReferenceImage(DrawStates(LightColors(), {0.95f, 0.95f, 0.95f, 1.f}),
                                                 Reference("zoombar-light.png")));
}

} // namespace
