#include "ZoomBarTestSupport.h"

#include <krocore/debug/Assert.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <limits>
#include <string>
#include <vector>

namespace {

using kromediaui::UI_ZoomBar;
using kromediaui::ZoomBarRange;
using Edge = UI_ZoomBar::Edge;
using Strings = std::vector<std::string>;

std::string Text(double start, double end) {
  char text[32];
  std::snprintf(text, sizeof text, "%.4f-%.4f", start, end);
  return text;
}

/// Counts the changes a bar reports: "0.3500-0.7500" while dragging, with " final" when complete.
class ZoomBarTest : public kromediaui::testing::ZoomBarFixture {
protected:
  void SetUp() override {
    ZoomBarFixture::SetUp();
    bar->SetValueRange(0.25, 0.75); // the thumb from 100 to 300
    bar->SetRangeChangedFunction([this](UI_ZoomBar& changed, bool isFinal) {
      const ZoomBarRange range = changed.GetValueRange();
      changes.push_back(Text(range.start, range.end) + (isFinal ? " final" : ""));
    });
  }
  std::string Range() const {
    double start = 0, end = 0;
    bar->GetValueRange(start, end);
    return Text(start, end);
  }
  void Drag(int from, int to) {
    MoveTo(from);
    Press();
    MoveTo(to);
  }

  Strings changes;
};

TEST_F(ZoomBarTest, DraggingAnEdgeMovesThatEdgeOnly) {
  Drag(104, 144); // 40 pixels right
  EXPECT_EQ(Range(), "0.3500-0.7500");
  MoveTo(124);
  Release();
  EXPECT_EQ(changes, (Strings{"0.3500-0.7500", "0.3000-0.7500", "0.3000-0.7500 final"}));

  changes.clear();
  Drag(296, 256);
  Release();
  EXPECT_EQ(Range(), "0.3000-0.6500");
  EXPECT_EQ(changes.back(), "0.3000-0.6500 final");
}

TEST_F(ZoomBarTest, WithAltBothEdgesMoveAboutTheCentre) {
  MoveTo(296);
  Press();
  Headless().SetModifiers(kroui::ui::kModKey_Alt);
  MoveTo(316); // the end edge 20 pixels out: the start edge 20 in
  EXPECT_EQ(Range(), "0.2000-0.8000");
  Headless().SetModifiers({});
  MoveTo(336); // without Alt again: the start edge stays where it was left
  Release();
  EXPECT_EQ(Range(), "0.2000-0.8500");
}

TEST_F(ZoomBarTest, DraggingTheCentreMovesTheRangeAndStopsAtTheEnd) {
  Drag(200, 240);
  EXPECT_EQ(Range(), "0.3500-0.8500");
  MoveTo(900);
  EXPECT_EQ(Range(), "0.5000-1.0000");
  MoveTo(200);
  Release();
  EXPECT_EQ(Range(), "0.2500-0.7500");
  EXPECT_EQ(changes, (Strings{"0.3500-0.8500", "0.5000-1.0000", "0.2500-0.7500"})) << "no final change where it began";
}

TEST_F(ZoomBarTest, ATinyRangeStillHasAThumbToDrag) {
  bar->SetValueRange(0.5, 0.5001);
  // The 22-pixel thumb travels 378 pixels: its start at 0.5 / 0.9999 of them.
  ASSERT_EQ(bar->Layout().ThumbStart(), 189);
  Drag(200, 237);
  Release();
  EXPECT_NEAR(bar->GetValueRange().start, (189.0 + 37.0) / 378.0 * 0.9999, 1e-9);
  EXPECT_NEAR(bar->GetValueRange().Span(), 0.0001, 1e-9);
}

TEST_F(ZoomBarTest, PressingTheTrackPagesTowardsThePointerUntilTheThumbReachesIt) {
  bar->SetValueRange(0.0, 0.25);
  MoveTo(350);
  Press();
  EXPECT_EQ(Range(), "0.2500-0.5000");
  EXPECT_TRUE(bar->GetUserClickedInPageUpPageDownRegion());
  Wait(299);
  EXPECT_EQ(Range(), "0.2500-0.5000") << "a pause before repeating";
  Wait(500);
  EXPECT_EQ(Range(), "0.7500-1.0000");
  Release();
  EXPECT_FALSE(bar->GetUserClickedInPageUpPageDownRegion());
  EXPECT_EQ(changes, (Strings{"0.2500-0.5000 final", "0.5000-0.7500 final", "0.7500-1.0000 final"}));
}

TEST_F(ZoomBarTest, ClearingThePageFlagStopsTheRepeat) {
  bar->SetValueRange(0.75, 1.0);
  MoveTo(10);
  Press();
  bar->SetUserClickedInPageUpPageDownRegion(false);
  Wait(1000);
  Release();
  EXPECT_EQ(Range(), "0.5000-0.7500");
}

TEST_F(ZoomBarTest, TheWheelPansAndWithControlZoomsAboutThePointer) {
  MoveTo(200);
  Headless().Wheel(0, -120); // towards the user: towards the end, an eighth of the range
  Pump();
  EXPECT_EQ(Range(), "0.3125-0.8125");
  Headless().Wheel(0, 120);
  Pump();
  EXPECT_EQ(Range(), "0.2500-0.7500");

  MoveTo(100); // over 0.25, the start edge
  Headless().SetModifiers(kroui::ui::kModKey_Control);
  Headless().Wheel(0, 120); // away from the user: in, by a fifth
  Pump();
  EXPECT_EQ(Range(), "0.2500-0.6500");
  Headless().Wheel(0, -120);
  Pump();
  EXPECT_EQ(Range(), "0.2500-0.7500");
  EXPECT_EQ(changes.size(), 4u);

  bar->SetValueRange(0.0, 1.0);
  kroui::ui::PointerEvent wheel;
  wheel.wheelDeltaY = -120;
  EXPECT_FALSE(bar->HandleMouseWheelEvent(wheel)) << "nothing to pan: an enclosing view may scroll";
  wheel.wheelDeltaY = 120;
  wheel.modifiers = kroui::ui::kModKey_Control;
  wheel.position = {200, 6};
  EXPECT_TRUE(bar->HandleMouseWheelEvent(wheel));
  EXPECT_EQ(Range(), "0.1000-0.9000");
}

TEST_F(ZoomBarTest, ADoubleClickFitsTheWholeAndTheNextGoesBack) {
  MoveTo(200);
  Headless().Click();
  Headless().Click();
  Pump();
  EXPECT_EQ(Range(), "0.0000-1.0000");
  Wait(1000); // apart: not a triple click
  Headless().Click();
  Headless().Click();
  Pump();
  EXPECT_EQ(Range(), "0.2500-0.7500");
  EXPECT_EQ(changes, (Strings{"0.0000-1.0000 final", "0.2500-0.7500 final"}));
}

TEST_F(ZoomBarTest, TheRangeNeverLeavesTheWholeNorNarrowsBelowTheSmallestDifference) {
  bar->SetSmallestAllowableEdgeDifference(0.1f);
  Drag(104, 390); // the start edge pushed past the end
  Release();
  EXPECT_NEAR(bar->GetValueRange().Span(), 0.1, 1e-6);
  EXPECT_NEAR(bar->GetValueRange().end, 0.75, 1e-9);

  bar->SetValueRange(0.4, 0.42);
  EXPECT_NEAR(bar->GetValueRange().Span(), 0.1, 1e-6) << "widened about its centre";
  bar->SetSmallestAllowableEdgeDifference(0.5f);
  EXPECT_NEAR(bar->GetValueRange().Span(), 0.5, 1e-6) << "a larger minimum widens at once";
  EXPECT_FLOAT_EQ(bar->SmallestAllowableEdgeDifference(), 0.5f);

  EXPECT_TRUE(bar->DoPage(10));
  EXPECT_EQ(Range(), "0.5000-1.0000");
  EXPECT_FALSE(bar->DoPage(1)) << "at the end";
  EXPECT_TRUE(bar->DoPage(-1));
  EXPECT_EQ(Range(), "0.0000-0.5000");
}

TEST_F(ZoomBarTest, InputThatIsNotFiniteIsRefusedAndTheRangeKept) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinity = std::numeric_limits<double>::infinity();
  krocore::debug::ScopedAssertionRecorder recorder;
  bar->SetValueRange(nan, 0.5);
  bar->SetValueRange(0.1, infinity);
  bar->SetSmallestAllowableEdgeDifference(std::numeric_limits<float>::infinity());
  EXPECT_EQ(recorder.Count(), 3u);
  EXPECT_FALSE(bar->DoDragEdge(Edge::Start, nan));
  EXPECT_FALSE(bar->DoDragEdgeSymmetric(Edge::End, infinity));
  EXPECT_FALSE(bar->DoDragRange(-infinity));
  bar->SetRangeWillChangeFunction(
      [nan](UI_ZoomBar&, double, double, double, double) { return ZoomBarRange{nan, nan}; });
  EXPECT_FALSE(bar->DoPage(1));
  EXPECT_EQ(Range(), "0.2500-0.7500");
  EXPECT_TRUE(changes.empty());
}

TEST_F(ZoomBarTest, TheWillChangeFunctionSeesOldAndProposedAndDecides) {
  std::vector<double> seen;
  bar->SetRangeWillChangeFunction([&seen](UI_ZoomBar&, double oldStart, double oldEnd, double newStart, double newEnd) {
    seen = {oldStart, oldEnd, newStart, newEnd};
    return ZoomBarRange{newStart, std::min(newEnd, 0.9)}; // a limit of the owner's
  });
  EXPECT_TRUE(bar->DoPage(1));
  EXPECT_EQ(seen, (std::vector<double>{0.25, 0.75, 0.5, 1.0}));
  EXPECT_EQ(Range(), "0.5000-0.9000");
  bar->SetValueRange(0.1, 0.2); // code sets the range without asking
  EXPECT_EQ(seen[0], 0.25);
}

TEST_F(ZoomBarTest, APageFunctionDecidesPagingInstead) {
  std::vector<int> pages;
  bar->SetRangeWillChangeFunction([&pages](UI_ZoomBar&, int count) {
    pages.push_back(count);
    return ZoomBarRange{0.1, 0.2};
  });
  bar->SetRangeWillChangeFunction([](UI_ZoomBar&, double, double, double, double) -> ZoomBarRange {
    ADD_FAILURE() << "paging asks the page function only";
    return {};
  });
  MoveTo(350);
  Press();
  Release();
  EXPECT_EQ(pages, std::vector<int>{1});
  EXPECT_EQ(Range(), "0.1000-0.2000");
}

TEST_F(ZoomBarTest, AMinimisedBarGrowsOnHoverAndShrinksOnLeave) {
  bar->SetScroomBarToMinimizedMode();
  EXPECT_TRUE(bar->GetIsMinimized());
  EXPECT_EQ(bar->GetAnimatedScroomBarHeight(), 3.f);
  MoveTo(200);
  Wait(48);
  const float halfway = bar->GetAnimatedScroomBarHeight();
  EXPECT_GT(halfway, 3.f);
  EXPECT_LT(halfway, 12.f);
  Wait(150);
  EXPECT_EQ(bar->GetAnimatedScroomBarHeight(), 12.f);

  Press(); // held, the bar stays open when the pointer leaves
  MoveTo(200, 90);
  Wait(200);
  EXPECT_EQ(bar->GetAnimatedScroomBarHeight(), 12.f);
  Release();
  Wait(200);
  EXPECT_EQ(bar->GetAnimatedScroomBarHeight(), 3.f);

  bar->SetIsMinimized(false);
  Wait(200);
  EXPECT_EQ(bar->GetAnimatedScroomBarHeight(), 12.f);
  bar->SetScroomBarHeight(8);
  EXPECT_EQ(bar->GetAnimatedScroomBarHeight(), 8.f);
  EXPECT_EQ(bar->GetScroomBarHeight(), 8);
}

TEST_F(ZoomBarTest, HidingTheBarWhileHeldEndsThePress) {
  bar->SetValueRange(0.0, 0.1);
  MoveTo(350);
  Press();
  bar->Hide();
  Wait(1000);
  EXPECT_FALSE(bar->GetUserClickedInPageUpPageDownRegion());
  EXPECT_EQ(Range(), "0.1000-0.2000") << "no repeats once the release can no longer come";
}

TEST_F(ZoomBarTest, ItsMinimumShownSpanFollowsItsLength) {
  EXPECT_EQ(UI_ZoomBar::GetDefaultSize(), 12);
  EXPECT_DOUBLE_EQ(bar->GetMinimumValueRange(), 22.0 / 400.0);
  bar->SetBounds({0, 40, 11, 52});
  EXPECT_DOUBLE_EQ(bar->GetMinimumValueRange(), 1.0);
}

} // namespace
