#include <kromediaui/messages/HotTimecodeMessages.h>

#include <krocore/messaging/Listener.h>
#include <krocore/messaging/Station.h>
#include <kromediatypes/FrameRate.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace kromediaui;
using kromediatypes::TickTime;
using kromediatypes::TimeDisplay;

/// Writes what it hears: "changing 5 @7" (seconds, cookie), "video 25", "audio 48000" (the display's rate).
class HotTimecodeListener : public krocore::messaging::Listener {
public:
  void ListenToMessage(const krocore::messaging::Message& message) override {
    if (const auto* m = message.As<HotTimecodeValueChangingMessage>()) Time("changing", m->GetValue(), m->GetCookie());
    if (const auto* m = message.As<HotTimecodeValueChangedMessage>()) Time("changed", m->GetValue(), m->GetCookie());
    if (const auto* m = message.As<HotTimecodeVideoTimeDisplayChangedMessage>()) Display("video", m->GetValue());
    if (const auto* m = message.As<HotTimecodeAudioTimeDisplayChangedMessage>()) Display("audio", m->GetValue());
  }
  std::vector<std::string> heard;

private:
  void Time(const char* what, TickTime time, unsigned cookie) {
    heard.push_back(std::string(what) + " " + std::to_string(time.GetTicks() / TickTime::kTicksPerSecond) + " @" +
                    std::to_string(cookie));
  }
  void Display(const char* what, const TimeDisplay& display) {
    heard.push_back(std::string(what) + " " + std::to_string(display.GetRate().GetNumerator()));
  }
};

TEST(HotTimecodeMessages, EachTypeIsHeardAsItselfWithItsValueAndCookie) {
  krocore::messaging::Station station;
  HotTimecodeListener listener;
  listener.SubscribeTo(station.GetID());
  station.Broadcast(HotTimecodeValueChangingMessage(TickTime::FromSeconds(5), 7));
  station.Broadcast(HotTimecodeValueChangedMessage(TickTime::FromSeconds(6), 7));
  station.Broadcast(HotTimecodeVideoTimeDisplayChangedMessage(TimeDisplay::Timecode(kromediatypes::kFrameRate25)));
  station.Broadcast(
      HotTimecodeAudioTimeDisplayChangedMessage(TimeDisplay::AudioSamples(kromediatypes::kSampleRate48000)));
  EXPECT_EQ(listener.heard, (std::vector<std::string>{"changing 5 @7", "changed 6 @7", "video 25", "audio 48000"}));
  EXPECT_NE(HotTimecodeValueChangingMessage::TypeID(), HotTimecodeValueChangedMessage::TypeID());
  krocore::messaging::DisposeAllStations();
}

TEST(HotTimecodeMessages, AQueuedCopyKeepsItsValueAndCookie) {
  const HotTimecodeValueChangedMessage original(TickTime::FromSeconds(3), 42);
  const auto copy = original.Clone();
  const auto* changed = copy->As<HotTimecodeValueChangedMessage>();
  ASSERT_NE(changed, nullptr);
  EXPECT_EQ(changed->GetValue(), TickTime::FromSeconds(3));
  EXPECT_EQ(changed->GetCookie(), 42u);
  EXPECT_EQ(copy->As<HotTimecodeValueChangingMessage>(), nullptr);
}

} // namespace
