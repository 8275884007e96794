#include <kroui/ui/ToolTipManager.h>

#include "NodeTestSupport.h"

#include <gtest/gtest.h>

namespace {

using namespace kroui::ui;
using kroui::testing::LogNodePtr;

// A 200x100 window at 100,100 with a play button (tooltip after 200 ms) in a
// panel, a plain node beside it, and a node whose tooltip uses the default delay.
class ToolTips : public kroui::testing::WindowFixture<> {
protected:
  void SetUp() override {
    WindowFixture::SetUp();
    window = &MakeWindow();
    panel = Add(window->GetRoot(), "panel", {0, 0, 100, 100});
    play = Add(*panel, "play", {10, 10, 40, 40});
    play->SetToolTipText("Play", 200);
    plain = Add(window->GetRoot(), "plain", {100, 0, 150, 50});
    slow = Add(window->GetRoot(), "slow", {150, 0, 200, 50});
    slow->SetToolTipText("Loop");
  }

  void RestOn(int x, int y) {
    Headless().MoveMouseTo(window->GetNativeWindow(), {x, y});
    Pump();
  }
  void Wait(std::int64_t ms) { EventLoop::Instance().RunFor(ms); }
  ToolTipManager& Manager() { return ToolTipManager::Instance(); }

  UI_Window* window = nullptr;
  LogNodePtr panel, play, plain, slow;
};

TEST_F(ToolTips, AppearsOnlyOnceThePointerRestedForTheDelay) {
  RestOn(20, 20);
  Wait(199);
  EXPECT_FALSE(Manager().IsShown());
  EXPECT_EQ(window->GetToolTipNode(), play.Get()) << "waiting";
  Wait(1);
  ASSERT_TRUE(Manager().IsShown());
  EXPECT_EQ(Manager().GetText(), "Play");
  EXPECT_EQ(Manager().GetOwner(), window);

  // Its window: a topmost pop-up that took no focus, just below the pointer, painted.
  const auto* record = Headless().FindWindow(Manager().GetWindow()->GetNativeWindow());
  ASSERT_NE(record, nullptr);
  EXPECT_TRUE(record->isShown);
  EXPECT_TRUE(record->description.style.Has(kroui::backend::kWindowStyle_Topmost));
  EXPECT_EQ(Headless().GetFocusedNativeWindow(), window->GetNativeWindow());
  EXPECT_EQ(record->description.bounds.Origin(), (Point{120, 140}));
  EXPECT_GT(record->description.bounds.Width(), 8);
  Pump();
  EXPECT_EQ(Headless().FindWindow(Manager().GetWindow()->GetNativeWindow())->presentCount, 1u);
}

TEST_F(ToolTips, MovingWithinTheNodeKeepsTheWaitGoing) {
  RestOn(20, 20);
  Wait(150);
  RestOn(25, 30);
  Wait(50);
  ASSERT_TRUE(Manager().IsShown());
  // Where the pointer rests when the delay ends, not where the wait began.
  const auto* record = Headless().FindWindow(Manager().GetWindow()->GetNativeWindow());
  ASSERT_NE(record, nullptr);
  EXPECT_EQ(record->description.bounds.Origin(), (Point{125, 150}));
}

struct DismissCase {
  const char* label;
  void (*dismiss)(kroui::backend::HeadlessBackend&, HWND);
};

class ToolTipDismissal : public ToolTips, public testing::WithParamInterface<DismissCase> {};

TEST_P(ToolTipDismissal, GoesAwayAndDoesNotComeBackByItself) {
  RestOn(20, 20);
  Wait(200);
  ASSERT_TRUE(Manager().IsShown());
  GetParam().dismiss(Headless(), window->GetNativeWindow());
  Pump();
  EXPECT_FALSE(Manager().IsShown());
  EXPECT_EQ(window->GetToolTipNode(), nullptr);
  Wait(1000);
  EXPECT_FALSE(Manager().IsShown());
}

INSTANTIATE_TEST_SUITE_P(
    Ways, ToolTipDismissal,
    testing::Values(DismissCase{"Press", [](auto& h, HWND) { h.PressButton(); }},
                    DismissCase{"Key", [](auto& h, HWND) { h.TypeKey(kroui::ui::KeyboardCode(0x41)); }},
                    DismissCase{"Wheel", [](auto& h, HWND) { h.Wheel(0, 120); }},
                    DismissCase{"MovingToANodeWithout", [](auto& h, HWND w) { h.MoveMouseTo(w, {120, 20}); }},
                    DismissCase{"LeavingTheWindow", [](auto& h, HWND) { h.MoveMouseTo({0, 0}); }}),
    [](const auto& row) { return std::string(row.param.label); });

TEST_F(ToolTips, ANodeWithoutADelayWaitsTheManagersInitialDelay) {
  Manager().SetInitialDelay(300);
  RestOn(160, 20);
  Wait(299);
  EXPECT_FALSE(Manager().IsShown());
  Wait(1);
  EXPECT_EQ(Manager().GetText(), "Loop");
}

TEST_F(ToolTips, DynamicTextWinsAndAnAncestorMaySpeakForItsChildren) {
  play->dynamicToolTip = "Play (Space)";
  RestOn(20, 20);
  Wait(200);
  EXPECT_EQ(Manager().GetText(), "Play (Space)");

  RestOn(120, 20);
  panel->SetToolTipText("Transport", 0);
  panel->showsToolTipForChildren = true;
  RestOn(20, 20);
  Wait(1);
  EXPECT_EQ(Manager().GetText(), "Transport");
  EXPECT_EQ(window->GetToolTipNode(), panel.Get());
}

TEST_F(ToolTips, StaysOnTheMonitorThatHoldsThePointer) {
  Headless().SetMonitors({{{0, 0, 1920, 1080}, {0, 0, 1920, 1040}, 1.f, true},
                          {{1920, 0, 2200, 1080}, {1920, 0, 2200, 1080}, 2.f, false}});
  window->SetBounds({2000, 100, 2200, 200});
  RestOn(160, 20); // the pointer at 2160,120: the tooltip would run past 2200
  Manager().SetInitialDelay(0);
  RestOn(170, 20);
  Wait(500);
  ASSERT_TRUE(Manager().IsShown());
  const auto bounds = Headless().FindWindow(Manager().GetWindow()->GetNativeWindow())->description.bounds;
  EXPECT_LE(bounds.right, 2200);
  EXPECT_GE(bounds.left, 1920);
}

} // namespace
