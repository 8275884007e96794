#include <kroscripting/events/Event.h>
#include <kroscripting/events/EventListenerToken.h>
#include <kroscripting/events/QueueEvent.h>

#include <krocore/debug/Assert.h>
#include <krocore/messaging/Station.h>
#include <krocore/threads/MainThreadQueue.h>

#include <gtest/gtest.h>

#include <map>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

using namespace kroscripting::events;
using krocore::threads::DrainMainThreadQueue;
using krocore::utility::ImmutableString;

namespace {

const ImmutableString kCommandEvent("ZELCommandEvent");

class QueueEventTest : public testing::Test {
protected:
  void SetUp() override { krocore::threads::MainThreadQueue::Instance().Clear(); }
  void TearDown() override {
    krocore::threads::MainThreadQueue::Instance().Clear();
    krocore::messaging::DisposeAllStations();
  }

  /// A handler that logs "<tag><commandID or event name> ".
  EventHandler Logger(const std::string& tag) {
    return [this, tag](const Event& event) {
      const auto* id = event.payload.GetIf<std::int64_t>("commandID");
      mLog += tag + (id ? std::to_string(*id) : event.name.ToString()) + " ";
    };
  }

  static void QueueCommand(std::int64_t id) { QueueEvent(kCommandEvent, {{"commandID", id}}); }

  std::string mLog;
};

} // namespace

TEST_F(QueueEventTest, EventsWaitForTheDrainThenReachTheirNameAndThenEveryEventListeners) {
  EventListenerToken all = AddEventListenerForAllEvents(Logger("all:"));
  EventListenerToken commands = AddEventListener(kCommandEvent, Logger("c"));
  QueueCommand(1);
  QueueEvent("OtherEvent");
  QueueCommand(2);
  EXPECT_EQ(mLog, "");
  EXPECT_EQ(DrainMainThreadQueue(), 3u);
  EXPECT_EQ(mLog, "c1 all:1 all:OtherEvent c2 all:2 ");
}

TEST_F(QueueEventTest, TokenRemovesItsListenerAlsoDuringDelivery) {
  EventListenerToken second;
  EventListenerToken first = AddEventListener(kCommandEvent, [this, &first, &second](const Event&) {
    mLog += "first ";
    first.Reset(); // its own token, while its handler runs
    second.Reset();
  });
  second = AddEventListenerForAllEvents(Logger("second"));
  EventListenerToken moved = AddEventListenerForAllEvents(Logger("moved"));
  EventListenerToken kept = std::move(moved);
  { EventListenerToken scoped = AddEventListener(kCommandEvent, Logger("scoped")); }
  QueueCommand(1);
  QueueCommand(2);
  DrainMainThreadQueue();
  EXPECT_EQ(mLog, "first moved1 moved2 ");
  EXPECT_FALSE(first.IsListening());
  EXPECT_TRUE(kept.IsListening());
}

TEST_F(QueueEventTest, EventsQueuedOnWorkersAllArriveInOrderPerThread) {
  constexpr int kThreads = 3;
  constexpr int kEach = 200;
  std::map<std::int64_t, std::vector<std::int64_t>> byThread;
  EventListenerToken token = AddEventListener(kCommandEvent, [&byThread](const Event& event) {
    byThread[*event.payload.GetIf<std::int64_t>("thread")].push_back(*event.payload.GetIf<std::int64_t>("commandID"));
  });
  std::vector<std::thread> threads;
  for (std::int64_t t = 0; t < kThreads; ++t)
    threads.emplace_back([t] {
      for (std::int64_t i = 0; i < kEach; ++i) QueueEvent(kCommandEvent, {{"thread", t}, {"commandID", i}});
    });
  for (auto& thread : threads) thread.join();
  EXPECT_TRUE(byThread.empty());
  DrainMainThreadQueue();
  ASSERT_EQ(byThread.size(), static_cast<std::size_t>(kThreads));
  std::vector<std::int64_t> expected(kEach);
  for (int i = 0; i < kEach; ++i) expected[i] = i;
  for (const auto& [thread, ids] : byThread) EXPECT_EQ(ids, expected) << "thread " << thread;
}

TEST_F(QueueEventTest, FailingHandlerIsReportedAndOthersStillHear) {
  krocore::debug::ScopedAssertionRecorder recorder;
  EventListenerToken failing = AddEventListener(kCommandEvent, [](const Event&) { throw std::runtime_error("boom"); });
  EventListenerToken healthy = AddEventListenerForAllEvents(Logger("ok"));
  QueueCommand(3);
  DrainMainThreadQueue();
  EXPECT_EQ(mLog, "ok3 ");
  EXPECT_TRUE(recorder.Contains("Exception escaped a top-level task: boom"));
}
