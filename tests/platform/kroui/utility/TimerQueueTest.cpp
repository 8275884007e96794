#include <kroui/ui/EventLoop.h>
#include <kroui/utility/TimerQueue.h>

#include "../ui/NodeTestSupport.h"

#include <gtest/gtest.h>

namespace {

using kroui::utility::TimerQueue;
using Strings = std::vector<std::string>;

class TimerQueueTest : public testing::Test {
protected:
  void Set(const void* owner, std::uint64_t id, std::int64_t now, std::int64_t interval, bool repeating,
           const std::string& name) {
    timers.Schedule(owner, id, now, interval, repeating, [this, name] { fired.push_back(name); });
  }
  TimerQueue timers;
  Strings fired;
  int ownerA = 0;
  int ownerB = 0;
};

TEST_F(TimerQueueTest, DueTimersFireEarliestFirstThenInTheOrderSet) {
  Set(&ownerA, 1, 0, 30, false, "a30");
  Set(&ownerB, 1, 0, 10, false, "b10");
  Set(&ownerB, 2, 0, 30, false, "b30");
  EXPECT_EQ(timers.NextDeadline(), 10);
  EXPECT_EQ(timers.FireDue(9), 0u);
  EXPECT_EQ(timers.FireDue(30), 3u);
  EXPECT_EQ(fired, (Strings{"b10", "a30", "b30"}));
  EXPECT_EQ(timers.GetCount(), 0u);
}

TEST_F(TimerQueueTest, ARepeatingTimerFiresOncePerCallAndDoesNotBurstAfterAStall) {
  Set(&ownerA, 1, 0, 10, true, "tick");
  timers.FireDue(10);
  EXPECT_EQ(timers.GetDeadline(&ownerA, 1), 20);
  timers.FireDue(95); // the loop stalled for several intervals
  EXPECT_EQ(fired.size(), 2u);
  EXPECT_EQ(timers.GetDeadline(&ownerA, 1), 105);
}

TEST_F(TimerQueueTest, SettingAgainReplacesAndOwnersAreKeptApart) {
  Set(&ownerA, 1, 0, 10, false, "old");
  Set(&ownerA, 1, 0, 50, false, "new");
  Set(&ownerB, 1, 0, 10, false, "other");
  timers.FireDue(10);
  EXPECT_EQ(fired, (Strings{"other"}));
  EXPECT_EQ(timers.CancelOwner(&ownerA), 1u);
  EXPECT_FALSE(timers.HasOwner(&ownerA));
}

TEST_F(TimerQueueTest, ACallbackMayCancelALaterTimerOrSetItselfAgain) {
  timers.Schedule(&ownerA, 1, 0, 10, false, [this] {
    fired.push_back("first");
    timers.Cancel(&ownerB, 1);
    Set(&ownerA, 1, 10, 10, false, "again");
  });
  Set(&ownerB, 1, 0, 10, false, "cancelled");
  timers.FireDue(10);
  EXPECT_EQ(fired, (Strings{"first"}));
  timers.FireDue(20);
  EXPECT_EQ(fired, (Strings{"first", "again"}));
}

// Node timers on the event loop's (virtual) clock.
using NodeTimers = kroui::testing::WindowFixture<>;

TEST_F(NodeTimers, FireInDeadlineOrderOnTheEventLoopClock) {
  kroui::ui::UI_Window& window = MakeWindow();
  auto a = Add(window.GetRoot(), "a", {0, 0, 10, 10});
  auto b = Add(window.GetRoot(), "b", {10, 0, 20, 10});
  a->SetTimer(1, 30);
  b->SetTimer(2, 20);
  EXPECT_TRUE(a->HasTimer(1));
  TakeLog();
  const std::int64_t start = Headless().GetTimeMs();
  kroui::ui::EventLoop::Instance().RunFor(60);
  EXPECT_EQ(Headless().GetTimeMs() - start, 60);
  EXPECT_EQ(TakeLog(), (Strings{"b.Timer2", "a.Timer1", "b.Timer2", "a.Timer1", "b.Timer2"}));

  b->RemoveTimer(2);
  EXPECT_FALSE(b->HasTimer(2));
  a->RemoveFromParent();
  a.Reset(); // a dies with its timer
  kroui::ui::EventLoop::Instance().RunFor(100);
  EXPECT_EQ(TakeLog(), Strings{});
  EXPECT_EQ(kroui::ui::EventLoop::Instance().GetTimers().GetCount(), 0u);
}

} // namespace
