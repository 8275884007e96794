#include "MessagingTestSupport.h"

#include <memory>
#include <string>

using namespace krocore::messaging;
using messaging_test::ClosedMessage;
using messaging_test::RecordingListener;
using messaging_test::ValueChangedMessage;

namespace {

const krocore::utility::ImmutableString kStation("test.broadcast");

void Send(int value) { BroadcastMessageOnMainThread(kStation, ValueChangedMessage(0, value)); }

int ValueOf(const Message& message) { return message.As<ValueChangedMessage>()->GetValue(); }

class BroadcastTest : public messaging_test::MessagingTest {
protected:
  void SubscribeAll(std::initializer_list<Listener*> listeners) {
    for (Listener* listener : listeners) listener->SubscribeTo(kStation);
  }
  std::string mLog;
};

} // namespace

TEST_F(BroadcastTest, DeliversAtOnceInSubscriptionOrderToListenersThatPickTheirType) {
  RecordingListener b("b", &mLog), a("a", &mLog);
  SubscribeAll({&b, &a});
  EXPECT_FALSE(a.SubscribeTo(kStation)) << "a listener hears each broadcast once";
  BroadcastMessageOnMainThread(kStation, ClosedMessage());
  Send(1);
  EXPECT_EQ(mLog, "b1 a1 ");
  EXPECT_EQ(a.mHeard, 2);
}

TEST_F(BroadcastTest, ListenersRemovedOrAddedDuringBroadcastWaitForTheNext) {
  RecordingListener a("a", &mLog), b("b", &mLog), d("d", &mLog), late("late", &mLog);
  auto destroyed = std::make_unique<RecordingListener>("destroyed", &mLog);
  SubscribeAll({&a, &b, destroyed.get(), &d});
  a.mAction = [&](const Message&) {
    d.UnsubscribeFrom(kStation);
    destroyed.reset();
    late.SubscribeTo(kStation);
  };
  b.mAction = [&b](const Message&) { b.UnsubscribeFrom(kStation); };
  Send(1);
  Send(2);
  EXPECT_EQ(mLog, "a1 b1 a2 late2 ");
}

TEST_F(BroadcastTest, ListenerMayDestroyItself) {
  class SelfDestroyingListener : public Listener {
    void ListenToMessage(const Message&) override { delete this; }
  };
  RecordingListener last;
  SubscribeAll({new SelfDestroyingListener(), &last});
  Send(1);
  Send(2);
  EXPECT_EQ(last.mValues, (std::vector<int>{1, 2}));
  EXPECT_EQ(GetListenerCount(kStation), 1u);
}

TEST_F(BroadcastTest, NestedBroadcastReachesEveryoneAndItsRemovalsHoldForTheOuter) {
  RecordingListener a("a", &mLog), b("b", &mLog), c("c", &mLog);
  SubscribeAll({&a, &b, &c});
  a.mAction = [](const Message& message) {
    if (ValueOf(message) == 1) Send(2);
  };
  b.mAction = [&c](const Message& message) {
    if (ValueOf(message) == 2) c.UnsubscribeFrom(kStation);
  };
  Send(1);
  EXPECT_EQ(mLog, "a1 a2 b2 b1 ");
}

TEST_F(BroadcastTest, DisposingTheStationDuringBroadcastEndsIt) {
  RecordingListener a("a", &mLog), b("b", &mLog);
  SubscribeAll({&a, &b});
  a.mAction = [](const Message&) { DisposeStation(kStation); };
  Send(1);
  Send(2);
  EXPECT_EQ(mLog, "a1 ");
  EXPECT_FALSE(a.IsSubscribedTo(kStation));
}
