#include "ViewTestSupport.h"

#include <zel/views/ScrollBar.h>

#include <krocore/debug/Assert.h>
#include <krocore/messaging/Listener.h>
#include <kroui/base/KeyTable.h>
#include <kroui/drawbot/RecordingDrawbot.h>

#include <gtest/gtest.h>

namespace {

using Strings = std::vector<std::string>;
using Orientation = ZEL::ScrollBar::Orientation;

/// Hears a bar's station: "changing 160", "changed 160", with the cookie checked.
class BarListener : public krocore::messaging::Listener {
public:
  void ListenToMessage(const krocore::messaging::Message& message) override {
    if (const auto* m = message.As<ZEL::ScrollBarPositionChangingMessage>()) Hear("changing", m->GetCookie(), m->GetPosition());
    if (const auto* m = message.As<ZEL::ScrollBarPositionChangedMessage>()) Hear("changed", m->GetCookie(), m->GetPosition());
  }
  Strings Take() { return std::exchange(heard, {}); }

private:
  void Hear(const char* what, unsigned cookie, int position) {
    heard.push_back(std::string(what) + " " + std::to_string(position) + (cookie == 77 ? "" : " (wrong cookie)"));
  }
  Strings heard;
};

// A vertical bar 15x230 at 10,10 in the window, over a range of 0 to 1000
// with a page of 200 and a step of 10. Along it: arrows of 15, a track of
// 200 from 15 to 215, a thumb of 40 (200 * 200 / 1000) with 160 pixels of
// travel for 800 positions: 5 positions a pixel.
class ScrollBarTest : public ZELTest::ViewFixture<> {
protected:
  void SetUp() override {
    ViewFixture::SetUp();
    bar = std::make_shared<ZEL::ScrollBar>(root);
    ASSERT_TRUE(bar->Create(root, {10, 10, 25, 240}, Orientation::Vertical, 77));
    bar->SetScrollParameters(0, 1000, 200, 10);
    listener.SubscribeTo(bar->GetStationID());
    Pump();
    TakeLog();
  }
  void TearDown() override {
    bar.reset();
    ViewFixture::TearDown();
  }

  /// Points along the bar, in the window.
  void MoveAlong(int y) { MoveTo(17, 10 + y); }
  void Press() {
    Headless().PressButton();
    Pump();
  }
  void Release() {
    Headless().ReleaseButton();
    Pump();
  }
  void Wait(int ms) { kroui::ui::EventLoop::Instance().RunFor(ms); }

  std::shared_ptr<ZEL::ScrollBar> bar;
  BarListener listener;
};

TEST_F(ScrollBarTest, DraggingTheThumbGivesTheExactPositionAndEndsWithAChange) {
  MoveAlong(30); // 15 into the thumb
  TakeLog();
  Press();
  MoveAlong(62); // 32 pixels down: 160 positions
  MoveAlong(500); // far below: held at the end
  MoveAlong(62);
  EXPECT_EQ(bar->GetScrollBarPosition(), 160);
  Release();
  EXPECT_EQ(listener.Take(), (Strings{"changing 160", "changing 800", "changing 160", "changed 160"}));
  EXPECT_TRUE(TakeLog().empty()) << "the bar took every event of the drag";
}

TEST_F(ScrollBarTest, AHeldArrowStepsThenRepeatsUntilReleased) {
  MoveAlong(225);
  Press();
  EXPECT_EQ(bar->GetScrollBarPosition(), 10);
  Wait(299);
  EXPECT_EQ(bar->GetScrollBarPosition(), 10) << "a pause before repeating";
  Wait(151); // at 300, 350, 400, 450
  EXPECT_EQ(bar->GetScrollBarPosition(), 50);
  Release();
  Wait(500);
  EXPECT_EQ(bar->GetScrollBarPosition(), 50);
  EXPECT_EQ(listener.Take(), (Strings{"changed 10", "changed 20", "changed 30", "changed 40", "changed 50"}));
}

TEST_F(ScrollBarTest, HidingTheBarWhileHeldEndsThePress) {
  MoveAlong(225);
  Press();
  bar->Hide();
  Wait(1000);
  bar->Show(true);
  Wait(1000);
  EXPECT_EQ(bar->GetScrollBarPosition(), 10) << "no repeats once the release can no longer come";
}

TEST_F(ScrollBarTest, AHeldTrackPagesUntilTheThumbReachesThePointer) {
  MoveAlong(150);
  Press();
  Wait(2000);
  Release();
  // Pages of 200 move the thumb 40 pixels each: at 600 it covers 135 to 175.
  EXPECT_EQ(bar->GetScrollBarPosition(), 600);
  EXPECT_EQ(listener.Take(), (Strings{"changed 200", "changed 400", "changed 600"}));
}

TEST_F(ScrollBarTest, TheWheelScrollsThreeStepsANotchOrPassesWhenThereIsNothingToScroll) {
  MoveAlong(100);
  TakeLog();
  Headless().Wheel(0, -120);
  Pump();
  EXPECT_EQ(bar->GetScrollBarPosition(), 30);
  EXPECT_TRUE(TakeLog().empty());

  bar->SetScrollParameters(0, 100, 200, 10);
  Headless().Wheel(0, -120);
  Pump();
  EXPECT_EQ(TakeLog(), (Strings{"root.Wheel0,-120@17,110"}));
}

TEST_F(ScrollBarTest, KeysMoveItOnlyWhileItHasTheFocus) {
  Headless().TypeKey(kroui::ui::kKey_Down);
  Pump();
  EXPECT_EQ(bar->GetScrollBarPosition(), 0);
  ASSERT_TRUE(bar->SetFocus());
  std::vector<int> positions;
  for (const auto key : {kroui::ui::kKey_Down, kroui::ui::kKey_PageDown, kroui::ui::kKey_End, kroui::ui::kKey_Up,
                         kroui::ui::kKey_Home}) {
    Headless().TypeKey(key);
    Pump();
    positions.push_back(bar->GetScrollBarPosition());
  }
  EXPECT_EQ(positions, (std::vector<int>{10, 210, 800, 790, 0}));
}

TEST_F(ScrollBarTest, CodeMovesItQuietlyUnlessAskedToNotify) {
  bar->SetScrollBarPosition(300, false);
  bar->SetScrollBarPosition(5000, true); // held inside the range
  bar->OffsetScrollBarPosition(-25);
  bar->SetScrollParameters(0, 500, 100, 5);
  EXPECT_EQ(bar->GetScrollBarPosition(), 400) << "a smaller range pulls the position in";
  EXPECT_EQ(listener.Take(), (Strings{"changed 800", "changed 775"}));
}

TEST_F(ScrollBarTest, AHorizontalBarIsDraggedAlongItsWidth) {
  auto wide = std::make_shared<ZEL::ScrollBar>(root);
  ASSERT_TRUE(wide->Create(root, {40, 100, 270, 115}, Orientation::Horizontal, 77));
  wide->SetScrollParameters(0, 1000, 200, 10);
  EXPECT_EQ(wide->GetDefaultSize(), 15);
  MoveTo(40 + 20, 107);
  Press();
  MoveTo(40 + 20 + 16, 107);
  Release();
  EXPECT_EQ(wide->GetScrollBarPosition(), 80);
}

TEST_F(ScrollBarTest, PaintsTrackThumbAndArrowsWhereTheyLie) {
  bar->SetScrollBarPosition(400, false); // thumb from 95 to 135
  kroui::drawbot::RecordingDrawbot drawbot(300, 260);
  bar->GetKRONode()->PaintInto(drawbot);
  const auto fills = drawbot.FindAll(kroui::drawbot::DrawKind::FillRect);
  ASSERT_EQ(fills.size(), 2u);
  EXPECT_EQ(fills[0]->rect, (kroui::drawbot::RectF{0, 0, 15, 230}));
  EXPECT_EQ(fills[1]->rect, (kroui::drawbot::RectF{2, 95, 11, 40}));
  EXPECT_EQ(drawbot.Count(kroui::drawbot::DrawKind::FillPolygon), 2u) << "two arrows";

  drawbot.ClearCommands();
  bar->SetOuterCornersRoundingRadius(4.f);
  bar->GetKRONode()->PaintInto(drawbot);
  EXPECT_EQ(drawbot.Count(kroui::drawbot::DrawKind::FillPolygon), 3u) << "a rounded track is a polygon";
}

TEST_F(ScrollBarTest, BeforeCreationItsOwnOperationsReportAndAnswerNeutrally) {
  ZEL::ScrollBar idle(ZEL::CommanderWeakPtr{});
  krocore::debug::ScopedAssertionRecorder recorder;
  idle.SetScrollParameters(0, 10, 1, 1);
  idle.SetScrollBarPosition(3, true);
  EXPECT_EQ(idle.GetScrollBarPosition(), 0);
  EXPECT_FALSE(idle.IsScrollable());
  EXPECT_TRUE(idle.GetStationID().IsEmpty());
  ASSERT_EQ(recorder.Count(), 5u);
  for (const auto& report : recorder.Reports()) EXPECT_EQ(report.message, "ScrollBar has not been initialized");
  EXPECT_EQ(recorder.Reports()[0].operation, "ZEL::ScrollBar::SetScrollParameters");

  recorder.Clear();
  idle.Invalidate(); // the control's own operations stay quiet
  EXPECT_EQ(recorder.Count(), 0u);
}

} // namespace
