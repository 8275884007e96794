#include "MessagingTestSupport.h"

#include <krocore/debug/Assert.h>

#include <map>
#include <memory>
#include <thread>

using namespace krocore::messaging;
using krocore::threads::DrainMainThreadQueue;
using messaging_test::RecordingListener;
using messaging_test::ValueChangedMessage;

namespace {

const krocore::utility::ImmutableString kStation("test.async");

using AsyncBroadcastTest = messaging_test::MessagingTest;

class PerSenderListener : public Listener {
public:
  void ListenToMessage(const Message& message) override {
    const auto* changed = message.As<ValueChangedMessage>();
    mValuesBySender[changed->GetSender()].push_back(changed->GetValue());
  }
  std::map<int, std::vector<int>> mValuesBySender;
};

} // namespace

TEST_F(AsyncBroadcastTest, WorkersMessagesArriveAtTheDrainAllInOrderPerSender) {
  constexpr int kSenders = 4;
  constexpr int kEach = 500;
  PerSenderListener listener;
  listener.SubscribeTo(kStation);
  auto send = [](int sender) {
    for (int i = 0; i < kEach; ++i) AsyncBroadcastMessagePtr(kStation, std::make_shared<ValueChangedMessage>(sender, i));
  };
  std::vector<std::thread> senders;
  for (int sender = 1; sender < kSenders; ++sender) senders.emplace_back(send, sender);
  send(0); // the main thread queues too: its messages wait for the drain like everyone's
  for (auto& thread : senders) thread.join();
  EXPECT_TRUE(listener.mValuesBySender.empty());

  EXPECT_EQ(DrainMainThreadQueue(), static_cast<std::size_t>(kSenders * kEach));
  ASSERT_EQ(listener.mValuesBySender.size(), static_cast<std::size_t>(kSenders));
  std::vector<int> expected(kEach);
  for (int i = 0; i < kEach; ++i) expected[i] = i;
  for (const auto& [sender, values] : listener.mValuesBySender) EXPECT_EQ(values, expected) << "sender " << sender;
}

TEST_F(AsyncBroadcastTest, ImmediateBroadcastFromAWorkerIsReportedAndQueued) {
  krocore::debug::ScopedAssertionRecorder recorder;
  RecordingListener listener;
  listener.SubscribeTo(kStation);
  std::thread([] { BroadcastMessageOnMainThread(kStation, ValueChangedMessage(1, 77)); }).join();
  ASSERT_EQ(recorder.Count(), 1u);
  EXPECT_EQ(recorder.Reports().front().message,
            "BroadcastMessageOnMainThread called off the main thread: the message is queued to the main thread "
            "instead (use AsyncBroadcastMessagePtr)");
  EXPECT_EQ(recorder.Reports().front().operation, "krocore::messaging::BroadcastMessageOnMainThread");
  EXPECT_TRUE(listener.mValues.empty());
  DrainMainThreadQueue();
  EXPECT_EQ(listener.mValues, std::vector<int>{77}) << "the worker's message was gone; a copy was queued";
}
