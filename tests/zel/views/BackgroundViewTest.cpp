#include "../appearance/AppearanceFixture.h"
#include "ViewTestSupport.h"

#include <zel/views/BackgroundView.h>
#include <zel/views/ScrollBar.h>

#include <kroui/drawbot/RecordingDrawbot.h>

#include <gtest/gtest.h>

namespace {

using kroui::drawbot::ColorRGBA;
using kroui::drawbot::DrawKind;
using ColorID = ZEL::BackgroundView::ColorID;

// A background view at 20,30 (40x10) in the root view of the window.
class BackgroundViewTest : public ZELTest::ViewFixture<ZEL::testing::AppearanceFixture<>> {
protected:
  void SetUp() override {
    ViewFixture::SetUp();
    view = std::make_shared<ZEL::BackgroundView>(root);
  }
  void TearDown() override {
    view.reset();
    ViewFixture::TearDown();
  }

  /// What the view drew: the fills, in window coordinates.
  std::vector<kroui::drawbot::DrawCommand> Paint() {
    kroui::drawbot::RecordingDrawbot drawbot(300, 260);
    Window().GetRoot().PaintInto(drawbot);
    std::vector<kroui::drawbot::DrawCommand> fills;
    for (const auto* fill : drawbot.FindAll(DrawKind::FillRect)) fills.push_back(*fill);
    return fills;
  }
  /// Paints the window's invalid region, if any; true when it painted.
  bool Repainted() {
    const auto before = Window().GetPaintCount();
    Pump();
    return Window().GetPaintCount() > before;
  }

  std::shared_ptr<ZEL::BackgroundView> view;
};

TEST_F(BackgroundViewTest, AFixedColourStaysThroughThemeChanges) {
  view->SetBackgroundColor({255, 128, 0}); // before creation: kept for the first paint
  ASSERT_TRUE(view->Create(root, {20, 30, 60, 40}));
  Pump();
  auto fills = Paint();
  ASSERT_EQ(fills.size(), 1u);
  EXPECT_EQ(fills[0].rect, (kroui::drawbot::RectF{20, 30, 40, 10}));
  EXPECT_EQ(fills[0].color, (ColorRGBA{1.f, 128 / 255.f, 0.f, 1.f}));

  SetBrightness(0.2f);
  Pump();
  EXPECT_EQ(Paint().at(0).color, (ColorRGBA{1.f, 128 / 255.f, 0.f, 1.f})) << "a fixed colour has nothing to follow";
  ZEL::BackgroundView::Color color;
  ASSERT_TRUE(view->GetBackgroundColor(color));
  EXPECT_EQ(color, (ZEL::BackgroundView::Color{255, 128, 0}));
}

TEST_F(BackgroundViewTest, AColourIDFollowsTheThemeAndRepaints) {
  const ColorID text("colors.kls.text"); // a theme colour, which brightness changes
  ASSERT_TRUE(view->Create(root, {20, 30, 60, 40}));
  view->SetBackgroundColorID(text);
  SetBrightness(0.9f);
  Pump();
  const ColorRGBA light = ZEL::ColorManager::GetColorRGBA(text);
  ASSERT_EQ(Paint().at(0).color, light);

  SetBrightness(0.1f);
  EXPECT_TRUE(Repainted()) << "the theme change invalidated the view";
  const ColorRGBA dark = ZEL::ColorManager::GetColorRGBA(text);
  EXPECT_NE(dark, light);
  EXPECT_EQ(Paint().at(0).color, dark);
  ColorID id;
  ASSERT_TRUE(view->GetBackgroundColorID(id));
  EXPECT_EQ(id, text);
}

TEST_F(BackgroundViewTest, SettingOneKindOfColourDropsTheOther) {
  ASSERT_TRUE(view->Create(root, {20, 30, 60, 40}));
  view->SetBackgroundColorID(ColorID("colors.kls.text"));
  view->SetBackgroundColor({1, 2, 3});
  ColorID id;
  EXPECT_FALSE(view->GetBackgroundColorID(id));
  Pump();
  SetBrightness(0.3f);
  Pump();
  EXPECT_EQ(Paint().at(0).color, (ColorRGBA{1 / 255.f, 2 / 255.f, 3 / 255.f, 1.f})) << "the ID no longer counts";

  view->SetBackgroundColorID(ColorID("colors.kls.text"));
  ZEL::BackgroundView::Color color;
  EXPECT_FALSE(view->GetBackgroundColor(color));
}

// A control that does not listen to the theme still repaints in the new
// colours: the theme change repaints every window.
TEST_F(BackgroundViewTest, AThemeChangeRepaintsEveryWindowWithItsControls) {
  auto bar = std::make_shared<ZEL::ScrollBar>(root);
  ASSERT_TRUE(bar->Create(root, {20, 100, 220, 115}, ZEL::ScrollBar::Orientation::Horizontal, 1));
  SetBrightness(0.9f);
  Pump();
  const auto light = Paint();
  ASSERT_FALSE(light.empty());

  SetBrightness(0.1f);
  EXPECT_TRUE(Repainted());
  const auto dark = Paint();
  ASSERT_EQ(dark.size(), light.size());
  EXPECT_NE(dark.front().color, light.front().color) << "the bar's track follows the theme";
}

} // namespace
