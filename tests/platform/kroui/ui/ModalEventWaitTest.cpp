#include <kroui/ui/EventLoop.h>
#include <kroui/ui/ModalEventWait.h>

#include <krocore/threads/MainThreadQueue.h>

#include "NodeTestSupport.h"

#include <gtest/gtest.h>

namespace {

using namespace kroui::ui;
using kroui::backend::WaitResult;
using Strings = std::vector<std::string>;

class ModalEventWaitTest : public kroui::testing::WindowFixture<> {
protected:
  void TearDown() override {
    krocore::threads::MainThreadQueue::Instance().Clear();
    WindowFixture::TearDown();
  }
  EventLoop& Loop() { return EventLoop::Instance(); }
};

TEST_F(ModalEventWaitTest, GivesBackTheNextEventWithoutDispatchingIt) {
  UI_Window& window = MakeWindow();
  auto node = Add(window.GetRoot(), "node", {0, 0, 50, 50});
  TakeLog();
  Headless().MoveMouseTo(window.GetNativeWindow(), {5, 6});
  OS_Event event;
  ASSERT_EQ(WaitForModalEvent(event), WaitResult::Event);
  EXPECT_EQ(event.type, OS_Event::Type::MouseMove);
  EXPECT_EQ(event.screenPosition, (Point{105, 106}));
  EXPECT_TRUE(TakeLog().empty()) << "the caller decides what becomes of the event";
}

TEST_F(ModalEventWaitTest, RunsTasksTimersAndPaintsWhileWaiting) {
  UI_Window& window = MakeWindow();
  auto node = Add(window.GetRoot(), "node", {0, 0, 50, 50});
  const int paintsBefore = node->paints;
  int tasks = 0;
  krocore::threads::PostToMainThread([&] { ++tasks; });
  // The timer invalidates the node and brings the event the wait returns.
  Loop().GetTimers().Schedule(this, 1, Loop().Now(), 40, false, [&] {
    node->Invalidate();
    Headless().MoveMouseTo(window.GetNativeWindow(), {7, 8});
  });
  OS_Event event;
  ASSERT_EQ(WaitForModalEvent(event), WaitResult::Event);
  EXPECT_EQ(event.position, (Point{7, 8}));
  EXPECT_EQ(tasks, 1);
  EXPECT_EQ(Headless().GetTimeMs(), 40) << "the virtual clock jumped to the timer";
  EXPECT_GT(node->paints, paintsBefore);
}

TEST_F(ModalEventWaitTest, ReportsNoMoreEventsWhenTheQueueIsEmptyAndNothingIsScheduled) {
  MakeWindow();
  OS_Event event;
  EXPECT_EQ(WaitForModalEvent(event), WaitResult::NoMoreEvents);
}

TEST_F(ModalEventWaitTest, KeepsWaitingWhileATaskIsLeftThatMayBringAnEvent) {
  UI_Window& window = MakeWindow();
  // Posted by the first task: the empty queue alone does not end the wait.
  krocore::threads::PostToMainThread([&] {
    krocore::threads::PostToMainThread([&] { Headless().MoveMouseTo(window.GetNativeWindow(), {1, 1}); });
  });
  OS_Event event;
  EXPECT_EQ(WaitForModalEvent(event), WaitResult::Event);
}

} // namespace
