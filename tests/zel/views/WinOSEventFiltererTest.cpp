#include "ViewTestSupport.h"

#include <zel/views/WinOSEventFilterer.h>

#include <krocore/debug/Assert.h>
#include <kroui/ui/EventLoop.h>

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <utility>
#include <vector>

namespace {

using ZEL::WinOSEventFilterer;
using Strings = std::vector<std::string>;

// One filter's context: it logs its name, runs its action, and takes the message when told to.
struct Probe {
  std::string name;
  Strings* log = nullptr;
  bool takes = false;
  std::function<void()> action;
};

bool Record(const MSG&, void* context) {
  Probe& probe = *static_cast<Probe*>(context);
  probe.log->push_back(probe.name);
  if (probe.action) probe.action();
  return probe.takes;
}

// The same as Record under another address: another function.
bool RecordToo(const MSG& message, void* context) { return Record(message, context); }

bool IsChainPlugged() {
  return kroui::ui::EventLoop::Instance().GetProcessMessageFilter() == &WinOSEventFilterer::FilterEvent;
}

class WinOSEventFiltererTest : public testing::Test {
protected:
  void TearDown() override {
    for (auto& [function, context] : mRegistered) WinOSEventFilterer::UnregisterFilter(function, context);
    EXPECT_FALSE(IsChainPlugged()) << "the list was freed with its last entry";
  }

  Probe& MakeProbe(std::string name, bool takes = false) {
    mProbes.push_back(std::make_unique<Probe>(Probe{std::move(name), &log, takes, {}}));
    return *mProbes.back();
  }
  void Register(Probe& probe, WinOSEventFilterer::FilterFunction function = &Record) {
    WinOSEventFilterer::RegisterFilter(function, &probe);
    mRegistered.emplace_back(function, &probe);
  }
  /// Filters one message and returns the log it wrote.
  Strings Filter(bool expectTaken = false) {
    EXPECT_EQ(WinOSEventFilterer::FilterEvent(MSG{}), expectTaken);
    return std::exchange(log, {});
  }

  Strings log;

private:
  std::vector<std::unique_ptr<Probe>> mProbes;
  std::vector<std::pair<WinOSEventFilterer::FilterFunction, void*>> mRegistered;
};

TEST_F(WinOSEventFiltererTest, WithoutFiltersNothingIsTakenAndNothingIsPlugged) {
  EXPECT_FALSE(WinOSEventFilterer::FilterEvent(MSG{}));
  EXPECT_FALSE(IsChainPlugged());
  Probe& a = MakeProbe("a");
  WinOSEventFilterer::UnregisterFilter(&Record, &a); // nothing to remove
  krocore::debug::ScopedAssertionRecorder recorder;
  WinOSEventFilterer::RegisterFilter(nullptr, &a);
  EXPECT_TRUE(recorder.Contains("WinOSEventFilterer::RegisterFilter: no filter function"));
  EXPECT_FALSE(IsChainPlugged());
}

TEST_F(WinOSEventFiltererTest, FiltersAreAskedInRegistrationOrderUntilOneTakesTheMessage) {
  Probe& a = MakeProbe("a");
  Probe& b = MakeProbe("b");
  Probe& c = MakeProbe("c");
  Register(a);
  Register(b);
  Register(c);
  EXPECT_TRUE(IsChainPlugged());
  EXPECT_EQ(Filter(false), (Strings{"a", "b", "c"})) << "no taker";
  b.takes = true;
  EXPECT_EQ(Filter(true), (Strings{"a", "b"})) << "c never sees what b took";
}

TEST_F(WinOSEventFiltererTest, EntriesAreTheFunctionAndContextTogether) {
  Probe& a = MakeProbe("a");
  Probe& b = MakeProbe("b");
  Register(a);
  Register(b);
  Register(a, &RecordToo);
  Register(a);
  EXPECT_EQ(Filter(), (Strings{"a", "b", "a", "a"}));

  WinOSEventFilterer::UnregisterFilter(&RecordToo, &b); // no such pair
  EXPECT_EQ(Filter(), (Strings{"a", "b", "a", "a"}));
  WinOSEventFilterer::UnregisterFilter(&Record, &a);
  EXPECT_EQ(Filter(), (Strings{"b", "a", "a"})) << "the first match only";
  WinOSEventFilterer::UnregisterFilter(&Record, &b);
  WinOSEventFilterer::UnregisterFilter(&Record, &a);
  EXPECT_EQ(Filter(), (Strings{"a"})) << "the other function with the same context stays";
  EXPECT_TRUE(IsChainPlugged());
  WinOSEventFilterer::UnregisterFilter(&RecordToo, &a);
  EXPECT_FALSE(IsChainPlugged()) << "the last entry removed frees the list";
  EXPECT_EQ(Filter(false), Strings{});
}

TEST_F(WinOSEventFiltererTest, AFilterMayUnregisterItselfOrALaterOneWhileItRuns) {
  Probe& a = MakeProbe("a");
  Probe& b = MakeProbe("b");
  Probe& c = MakeProbe("c");
  a.action = [&] { WinOSEventFilterer::UnregisterFilter(&Record, &a); };
  b.action = [&] { WinOSEventFilterer::UnregisterFilter(&Record, &c); };
  Register(a);
  Register(b);
  Register(c);
  EXPECT_EQ(Filter(), (Strings{"a", "b"})) << "c went before its turn";
  b.action = {};
  EXPECT_EQ(Filter(), (Strings{"b"}));
}

TEST_F(WinOSEventFiltererTest, AFilterRemovingTheLastEntryFreesTheListAfterTheWalk) {
  Probe& a = MakeProbe("a");
  Probe& b = MakeProbe("b");
  a.action = [&] {
    WinOSEventFilterer::UnregisterFilter(&Record, &b);
    WinOSEventFilterer::UnregisterFilter(&Record, &a);
    EXPECT_TRUE(IsChainPlugged()) << "not while the walk still holds the list";
  };
  Register(a);
  Register(b);
  EXPECT_EQ(Filter(), (Strings{"a"}));
  EXPECT_FALSE(IsChainPlugged());
  EXPECT_EQ(Filter(), Strings{});
}

TEST_F(WinOSEventFiltererTest, AFilterRegisteredDuringAWalkIsAskedFromTheNextMessageOn) {
  Probe& a = MakeProbe("a");
  Probe& late = MakeProbe("late");
  // Enough entries that the registration moves the list's storage under the walk.
  a.action = [&] {
    for (int i = 0; i < 64; ++i) Register(late);
  };
  Register(a);
  EXPECT_EQ(Filter(), (Strings{"a"}));
  a.action = {};
  EXPECT_EQ(Filter().size(), 65u);
}

TEST_F(WinOSEventFiltererTest, AWalkInsideAFilterSeesRemovalsAndLeavesTheOuterWalkSound) {
  Probe& outer = MakeProbe("outer");
  Probe& b = MakeProbe("b");
  Probe& c = MakeProbe("c");
  bool nested = false;
  outer.action = [&] {
    if (std::exchange(nested, true)) return;
    // A filter running a loop of its own: the nested walk removes c, then b's turn comes in both walks.
    WinOSEventFilterer::UnregisterFilter(&Record, &c);
    EXPECT_FALSE(WinOSEventFilterer::FilterEvent(MSG{}));
    WinOSEventFilterer::UnregisterFilter(&Record, &outer);
  };
  Register(outer);
  Register(b);
  Register(c);
  EXPECT_EQ(Filter(), (Strings{"outer", "outer", "b", "b"}));
  EXPECT_EQ(Filter(), (Strings{"b"}));
}

TEST_F(WinOSEventFiltererTest, AFilterThatThrowsEndsTheWalkAndLeavesTheListTidy) {
  Probe& a = MakeProbe("a");
  Probe& b = MakeProbe("b");
  a.action = [&] {
    WinOSEventFilterer::UnregisterFilter(&Record, &a);
    WinOSEventFilterer::UnregisterFilter(&Record, &b);
    throw std::runtime_error("filter failed");
  };
  Register(a);
  Register(b);
  EXPECT_THROW(WinOSEventFilterer::FilterEvent(MSG{}), std::runtime_error);
  EXPECT_FALSE(IsChainPlugged());
}

// The chain in the event loop: what a filter takes never reaches a view.

bool TakePresses(const MSG& message, void* context) {
  static_cast<std::vector<HWND>*>(context)->push_back(message.hwnd);
  return message.message == static_cast<std::uint32_t>(kroui::ui::OS_Event::Type::MouseDown);
}

class WinOSEventFiltererLoopTest : public ZELTest::ViewFixture<> {};

TEST_F(WinOSEventFiltererLoopTest, AMessageAFilterTakesNeverReachesAView) {
  auto view = Add(root, "view", {10, 10, 110, 110});
  std::vector<HWND> seen;
  WinOSEventFilterer::RegisterFilter(&TakePresses, &seen);
  MoveTo(20, 20);
  TakeLog();
  Headless().Click();
  Pump();
  EXPECT_EQ(TakeLog(), (Strings{"view.LeftUp@10,10"})) << "the press was taken";
  ASSERT_FALSE(seen.empty());
  EXPECT_EQ(seen.back(), Window().GetNativeWindow());

  WinOSEventFilterer::UnregisterFilter(&TakePresses, &seen);
  Headless().AdvanceClock(1000); // a click of its own, not the second of a double click
  Headless().Click();
  Pump();
  EXPECT_EQ(TakeLog(), (Strings{"view.LeftDown@10,10", "view.LeftUp@10,10"}));
}

} // namespace
