#include "MessagingTestSupport.h"

#include <atomic>
#include <memory>
#include <thread>

using namespace krocore::messaging;
using krocore::utility::ImmutableString;
using messaging_test::RecordingListener;
using messaging_test::ValueChangedMessage;

using StationTest = messaging_test::MessagingTest;

namespace {
const ImmutableString kStation("test.station");
const ImmutableString kOtherStation("test.station.other");
} // namespace

TEST_F(StationTest, DestroyedListenerLeavesEveryStation) {
  RecordingListener survivor;
  survivor.SubscribeTo(kStation);
  {
    RecordingListener shortLived;
    shortLived.SubscribeTo(kStation);
    shortLived.SubscribeTo(kOtherStation);
  }
  EXPECT_EQ(GetListenerCount(kStation), 1u);
  EXPECT_EQ(GetListenerCount(kOtherStation), 0u);
  BroadcastMessageOnMainThread(kStation, ValueChangedMessage(0, 3));
  BroadcastMessageOnMainThread(kOtherStation, ValueChangedMessage(0, 4));
  EXPECT_EQ(survivor.mValues, std::vector<int>{3});
}

TEST_F(StationTest, DisposingDropsListenersWhoStayUsable) {
  auto listener = std::make_unique<RecordingListener>();
  listener->SubscribeTo(kStation);
  listener->SubscribeTo(kOtherStation);
  EXPECT_TRUE(DisposeStation(kStation));
  EXPECT_FALSE(listener->IsSubscribedTo(kStation));
  EXPECT_TRUE(listener->IsSubscribedTo(kOtherStation));
  BroadcastMessageOnMainThread(kStation, ValueChangedMessage(0, 1));
  EXPECT_TRUE(listener->SubscribeTo(kStation)) << "subscribing again opens a fresh station";
  BroadcastMessageOnMainThread(kStation, ValueChangedMessage(0, 2));
  EXPECT_EQ(listener->mValues, std::vector<int>{2});
  DisposeAllStations();
  listener.reset();
  EXPECT_FALSE(StationExists(kOtherStation));
}

TEST_F(StationTest, WorkersSubscribingWhileTheMainThreadBroadcasts) {
  constexpr int kBroadcasts = 2000;
  RecordingListener steady;
  steady.SubscribeTo(kStation);
  std::vector<RecordingListener> churning(3);
  std::atomic<bool> done{false};
  std::vector<std::thread> workers;
  for (auto& listener : churning) {
    workers.emplace_back([&listener, &done] {
      while (!done.load()) {
        listener.SubscribeTo(kStation);
        listener.UnsubscribeFrom(kStation);
      }
    });
  }
  for (int i = 0; i < kBroadcasts; ++i) BroadcastMessageOnMainThread(kStation, ValueChangedMessage(0, i));
  done = true;
  for (auto& worker : workers) worker.join();
  EXPECT_EQ(steady.mHeard, kBroadcasts);
  EXPECT_EQ(GetListenerCount(kStation), 1u);
}
