#include <kroui/base/OS_Event.h>
#include <kroui/ui/EventLoop.h>

#include <krocore/debug/Assert.h>

#include <HeadlessFixture.h>

#include <gtest/gtest.h>

namespace {

using namespace kroui::backend;
using kroui::ui::OS_Event;
using Type = OS_Event::Type;

class HeadlessWindows : public kroui::testing::HeadlessFixture<> {
protected:
  HWND Make(Rect bounds, WindowStyle style = kWindowStyle_Normal) {
    WindowDescription description;
    description.title = "w";
    description.bounds = bounds;
    description.style = style;
    return Headless().CreateNativeWindow(description);
  }
  std::vector<Type> TakeTypes() {
    std::vector<Type> types;
    OS_Event event;
    while (Headless().WaitForEvent(event, 0) == WaitResult::Event) types.push_back(event.type);
    return types;
  }
  OS_Event Next() {
    OS_Event event;
    EXPECT_EQ(Headless().WaitForEvent(event, 0), WaitResult::Event);
    return event;
  }
};

TEST_F(HeadlessWindows, ShowingActivatesUnlessTheStyleSaysNotAndHidingGivesTheFocusUp) {
  HWND main = Make({0, 0, 100, 100});
  HWND palette = Make({0, 0, 50, 50}, kWindowStyle_Tool | kWindowStyle_NoActivate);
  Headless().ShowNativeWindow(main, true, true);
  Headless().ShowNativeWindow(palette, true, true);
  EXPECT_EQ(Headless().GetFocusedNativeWindow(), main);
  EXPECT_EQ(TakeTypes(), std::vector<Type>{Type::WindowFocusIn});
  Headless().ShowNativeWindow(main, false, false);
  EXPECT_EQ(Headless().GetFocusedNativeWindow(), nullptr);
  EXPECT_EQ(TakeTypes(), std::vector<Type>{Type::WindowFocusOut});
}

TEST_F(HeadlessWindows, ThePointerReachesTheTopmostWindowUnderIt) {
  HWND bottom = Make({0, 0, 100, 100});
  HWND top = Make({50, 50, 150, 150});
  HWND pinned = Make({90, 90, 110, 110}, kWindowStyle_Topmost);
  Headless().ShowNativeWindow(pinned, true, false);
  Headless().ShowNativeWindow(bottom, true, false);
  Headless().ShowNativeWindow(top, true, false);
  EXPECT_EQ(Headless().GetWindowStack(), (std::vector<HWND>{bottom, top, pinned}));

  Headless().MoveMouseTo({60, 60});
  EXPECT_EQ(Next().window, top);
  Headless().MoveMouseTo({95, 95});
  const OS_Event leave = Next();
  EXPECT_EQ(leave.type, Type::MouseLeaveWindow);
  EXPECT_EQ(leave.window, top);
  const OS_Event move = Next();
  EXPECT_EQ(move.window, pinned) << "topmost stays above the window shown later";
  EXPECT_EQ(move.position, (Point{5, 5}));
  EXPECT_EQ(move.screenPosition, (Point{95, 95}));

  Headless().MinimizeNativeWindow(pinned);
  Headless().MoveMouseTo({96, 96});
  TakeTypes();
  Headless().MoveMouseTo({20, 20});
  EXPECT_EQ(TakeTypes(), (std::vector<Type>{Type::MouseLeaveWindow, Type::MouseMove}));
  EXPECT_EQ(Headless().GetCursorPosition(), (Point{20, 20}));
  EXPECT_EQ(Headless().FindWindow(pinned)->isMinimized, true);
  Headless().MoveMouseTo({21, 21});
  EXPECT_EQ(Next().window, bottom) << "a minimised window is under nothing";
}

TEST_F(HeadlessWindows, TheCaptureTakesThePointerWhereverItIs) {
  HWND left = Make({0, 0, 100, 100});
  HWND right = Make({200, 0, 300, 100});
  Headless().ShowNativeWindow(left, true, true);
  Headless().ShowNativeWindow(right, true, false);
  TakeTypes();
  Headless().SetCapture(left);
  Headless().MoveMouseTo({250, 50});
  const OS_Event move = Next();
  EXPECT_EQ(move.window, left);
  EXPECT_EQ(move.position, (Point{250, 50}));
  Headless().SetCapture(right);
  EXPECT_EQ(Next().type, Type::CaptureLost);
  Headless().ReleaseCapture();
  EXPECT_EQ(Headless().GetCapture(), nullptr);
}

TEST_F(HeadlessWindows, PressesCloseInTimeAndPlaceCountUp) {
  HWND window = Make({0, 0, 100, 100});
  Headless().ShowNativeWindow(window, true, true);
  Headless().MoveMouseTo({10, 10});
  const auto pressCount = [this] {
    Headless().Click();
    std::uint8_t count = 0;
    OS_Event event;
    while (Headless().WaitForEvent(event, 0) == WaitResult::Event) {
      if (event.type == Type::MouseDown) count = event.clickCount;
    }
    return count;
  };
  EXPECT_EQ(pressCount(), 1);
  Headless().AdvanceClock(HeadlessBackend::kMultiClickTimeMs);
  EXPECT_EQ(pressCount(), 2);
  Headless().MoveMouseTo({10 + HeadlessBackend::kMultiClickDistance + 1, 10});
  EXPECT_EQ(pressCount(), 1) << "too far away";
  Headless().AdvanceClock(HeadlessBackend::kMultiClickTimeMs + 1);
  EXPECT_EQ(pressCount(), 1) << "too late";
}

TEST_F(HeadlessWindows, WaitingJumpsTheClockOnlyWhenNothingIsQueued) {
  OS_Event event;
  EXPECT_EQ(Headless().WaitForEvent(event, 250), WaitResult::Timeout);
  EXPECT_EQ(Headless().GetTimeMs(), 250);
  EXPECT_EQ(Headless().WaitForEvent(event, std::nullopt), WaitResult::NoMoreEvents);
  Headless().PostQuit();
  EXPECT_EQ(Headless().WaitForEvent(event, 1000), WaitResult::Event);
  EXPECT_EQ(event.time, 250);
  EXPECT_EQ(Headless().GetTimeMs(), 250);
  Headless().WakeUp();
  EXPECT_EQ(Headless().WaitForEvent(event, 1000), WaitResult::Woken);
  EXPECT_EQ(Headless().GetTimeMs(), 250);
}

TEST_F(HeadlessWindows, DestroyingAWindowDropsItsEventsFocusAndCapture) {
  HWND window = Make({0, 0, 100, 100});
  Headless().ShowNativeWindow(window, true, true);
  Headless().SetCapture(window);
  Headless().MoveMouseTo({10, 10});
  Headless().DestroyNativeWindow(window);
  EXPECT_EQ(Headless().FindWindow(window), nullptr);
  EXPECT_EQ(Headless().GetFocusedNativeWindow(), nullptr);
  EXPECT_EQ(Headless().GetCapture(), nullptr);
  EXPECT_EQ(Headless().GetPendingEventCount(), 0u);
  Headless().SetNativeWindowTitle(window, "gone"); // a stale handle does nothing
  EXPECT_EQ(Headless().GetNativeWindowBounds(window), (Rect{}));
}

TEST_F(HeadlessWindows, MonitorsClipboardAndWindowStateAreKeptAsSet) {
  EXPECT_EQ(Headless().GetMonitors().size(), 1u);
  EXPECT_TRUE(Headless().GetMonitors()[0].isPrimary);
  Headless().SetMonitors({{{-1280, 0, 0, 1024}, {-1280, 0, 0, 1000}, 1.f, false},
                          {{0, 0, 2560, 1440}, {0, 0, 2560, 1400}, 2.f, true}});
  const auto monitors = Headless().GetMonitors();
  ASSERT_EQ(monitors.size(), 2u);
  EXPECT_TRUE(monitors[0].isPrimary) << "the first is the primary one";
  EXPECT_FALSE(monitors[1].isPrimary);
  EXPECT_EQ(monitors[1].scale, 2.f);
  {
    krocore::debug::ScopedAssertionRecorder recorder;
    Headless().SetMonitors({});
    EXPECT_EQ(recorder.Count(), 1u);
  }
  EXPECT_EQ(Headless().GetMonitors().size(), 2u);

  Headless().SetClipboardText("00:00:01:00");
  EXPECT_EQ(Headless().GetClipboardText(), "00:00:01:00");

  HWND window = Make({0, 0, 10, 10}, kWindowStyle_Layered);
  Headless().SetNativeWindowAlpha(window, 0.25f);
  Headless().SetNativeWindowEnabled(window, false);
  Headless().SetNativeWindowTitle(window, "Timeline");
  const auto* record = Headless().FindWindow(window);
  EXPECT_EQ(record->description.alpha, 0.25f);
  EXPECT_TRUE(record->description.style.Has(kWindowStyle_Disabled));
  EXPECT_EQ(record->description.title, "Timeline");
}

TEST_F(HeadlessWindows, ResetForgetsEverything) {
  HWND window = Make({0, 0, 10, 10});
  Headless().ShowNativeWindow(window, true, true);
  Headless().AdvanceClock(5);
  Headless().SetClipboardText("x");
  Headless().Reset();
  EXPECT_EQ(Headless().GetWindowStack().size(), 0u);
  EXPECT_EQ(Headless().GetPendingEventCount(), 0u);
  EXPECT_EQ(Headless().GetTimeMs(), 0);
  EXPECT_EQ(Headless().GetClipboardText(), "");
  EXPECT_EQ(Headless().GetFocusedNativeWindow(), nullptr);
}

TEST_F(HeadlessWindows, ChildSurfacesAreRecordedPerWindowAndGoWithIt) {
  HWND first = Make({0, 0, 100, 100});
  HWND second = Make({200, 0, 300, 100});
  EXPECT_EQ(Headless().CreateChildSurface(HWND(), {0, 0, 5, 5}, false), nullptr) << "no parent";
  HWND surface = Headless().CreateChildSurface(first, {1, 2, 11, 12}, true);
  ASSERT_NE(surface, nullptr);
  EXPECT_EQ(Headless().FindWindow(surface), nullptr) << "not a top-level window";
  const auto* record = Headless().FindChildSurface(surface);
  ASSERT_NE(record, nullptr);
  EXPECT_TRUE(record->isGPUAccelerated);
  EXPECT_FALSE(record->isShown);

  Headless().SetChildSurfaceBounds(surface, {3, 4, 13, 14});
  Headless().ShowChildSurface(surface, true);
  Headless().SetChildSurfaceOpacity(surface, 0.5f);
  Headless().SetChildSurfaceClipping(surface, true);
  EXPECT_EQ(record->bounds, (Rect{3, 4, 13, 14}));
  EXPECT_TRUE(record->isShown);
  EXPECT_FLOAT_EQ(record->opacity, 0.5f);
  EXPECT_TRUE(record->isClipped);

  EXPECT_TRUE(Headless().SetChildSurfaceParent(surface, second));
  EXPECT_TRUE(Headless().GetChildSurfaces(first).empty());
  EXPECT_EQ(Headless().GetChildSurfaces(second), (std::vector<HWND>{surface}));
  Headless().DestroyNativeWindow(second);
  EXPECT_EQ(Headless().FindChildSurface(surface), nullptr);
  EXPECT_FALSE(Headless().SetChildSurfaceParent(surface, first));
}

} // namespace
