#pragma once

// Messages, a listener and a fixture shared by the messaging tests.
#include <krocore/messaging/Listener.h>
#include <krocore/messaging/Message.h>
#include <krocore/messaging/Station.h>
#include <krocore/threads/MainThreadQueue.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace messaging_test {

class ValueChangedMessage : public krocore::messaging::Message {
  KROCORE_MESSAGE_CLASS(ValueChangedMessage, "test.ValueChangedMessage")

  ValueChangedMessage(int sender, int value) : mSender(sender), mValue(value) {}
  int GetSender() const { return mSender; }
  int GetValue() const { return mValue; }

private:
  int mSender;
  int mValue;
};

class ClosedMessage : public krocore::messaging::Message {
  KROCORE_MESSAGE_CLASS(ClosedMessage, "test.ClosedMessage")
};

/// Counts what it hears, keeps the values of ValueChangedMessages, appends
/// "<name><value> " to a shared log when given one, then runs its action.
class RecordingListener : public krocore::messaging::Listener {
public:
  explicit RecordingListener(std::string name = {}, std::string* log = nullptr)
      : mName(std::move(name)), mLog(log) {}

  void ListenToMessage(const krocore::messaging::Message& message) override {
    ++mHeard;
    if (const auto* changed = message.As<ValueChangedMessage>()) {
      mValues.push_back(changed->GetValue());
      if (mLog) *mLog += mName + std::to_string(changed->GetValue()) + " ";
    }
    if (mAction) mAction(message);
  }

  std::string mName;
  std::string* mLog;
  std::function<void(const krocore::messaging::Message&)> mAction;
  std::vector<int> mValues;
  int mHeard = 0;
};

/// Each case starts and ends with no stations and an empty main-thread queue.
class MessagingTest : public testing::Test {
protected:
  void SetUp() override { TakeDown(); }
  void TearDown() override { TakeDown(); }

  static void TakeDown() {
    krocore::threads::MainThreadQueue::Instance().Clear();
    krocore::messaging::DisposeAllStations();
  }
};

} // namespace messaging_test
