#include <kromediatypes/TimeDisplay.h>

#include <krocore/debug/Assert.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace kromediatypes;

namespace {

TickTime Frames(std::int64_t count, const FrameRate& rate) {
  return TickTime::FromFrames(count, rate);
}

TickTime Milliseconds(std::int64_t count) {
  return TickTime(count * (TickTime::kTicksPerSecond / 1000));
}

struct FormatCase {
  std::string name;
  TimeDisplay display;
  TickTime time;
  std::string expected;
  friend void PrintTo(const FormatCase& c, std::ostream* out) { *out << c.name; }
};

class TimeDisplayFormat : public testing::TestWithParam<FormatCase> {};

std::vector<FormatCase> FormatCases() {
  const TimeDisplay tc25 = TimeDisplay::Timecode(kFrameRate25);
  const TimeDisplay df2997 = TimeDisplay::DropFrameTimecode(kFrameRate2997);
  const TimeDisplay df5994 = TimeDisplay::DropFrameTimecode(kFrameRate5994);
  const TimeDisplay feet35 = TimeDisplay::FeetAndFrames35mm(kFrameRate24);
  const TimeDisplay feet16 = TimeDisplay::FeetAndFrames16mm(kFrameRate24);
  const TimeDisplay samples = TimeDisplay::AudioSamples(kSampleRate48000);
  const TimeDisplay ms = TimeDisplay::Milliseconds();
  return {
      {"NextSecond", tc25, Frames(25, kFrameRate25), "00:00:01:00"},
      {"HoursGoOnPast24", tc25, TickTime::FromSeconds(24 * 3600), "24:00:00:00"},
      {"NtscFilmCountsTwentyFour", TimeDisplay::Timecode(kFrameRate23976), Frames(24, kFrameRate23976), "00:00:01:00"},
      {"NonDropAt2997", TimeDisplay::Timecode(kFrameRate2997), Frames(1800, kFrameRate2997), "00:01:00:00"},
      {"ThreeDigitFramesAt120", TimeDisplay::Timecode(kFrameRate120), Frames(5, kFrameRate120), "00:00:00:005"},
      {"LastLabelBeforeTheDrop", df2997, Frames(1799, kFrameRate2997), "00:00:59;29"},
      {"DropSkipsTwoLabels", df2997, Frames(1800, kFrameRate2997), "00:01:00;02"},
      {"TenthMinuteKeepsItsLabels", df2997, Frames(17982, kFrameRate2997), "00:10:00;00"},
      {"BeforeTheTenthMinute", df2997, Frames(17981, kFrameRate2997), "00:09:59;29"},
      {"DropFrameDay", df2997, Frames(2'589'408, kFrameRate2997), "24:00:00;00"},
      {"DropSkipsFourLabelsAt5994", df5994, Frames(3600, kFrameRate5994), "00:01:00;04"},
      {"LastLabelBeforeTheDropAt5994", df5994, Frames(3599, kFrameRate5994), "00:00:59;59"},
      {"NegativeFrame", df2997, Frames(-1, kFrameRate2997), "-00:00:00;01"},
      {"NegativeDroppedMinute", df2997, Frames(-1800, kFrameRate2997), "-00:01:00;02"},
      {"NegativeTickIsInFrameMinusOne", tc25, TickTime(-1), "-00:00:00:01"},
      {"LastFrameOf35mmFoot", feet35, Frames(15, kFrameRate24), "0000+15"},
      {"First35mmFoot", feet35, Frames(16, kFrameRate24), "0001+00"},
      {"FeetAndFrames", feet35, Frames(88, kFrameRate24), "0005+08"},
      {"FeetBeyondFourDigits", feet35, Frames(160'000, kFrameRate24), "10000+00"},
      {"NegativeFeet", feet35, Frames(-88, kFrameRate24), "-0005+08"},
      {"LastFrameOf16mmFoot", feet16, Frames(39, kFrameRate24), "0000+39"},
      {"First16mmFoot", feet16, Frames(40, kFrameRate24), "0001+00"},
      {"FramesCount", TimeDisplay::Frames(kFrameRate25), Frames(1234, kFrameRate25), "1234"},
      {"FramesBelowZero", TimeDisplay::Frames(kFrameRate25), TickTime(-1), "-1"},
      {"LastSampleOfASecond", samples, TickTime::FromSeconds(1) - TickTime(1), "47999"},
      {"SampleSecond", samples, TickTime::FromSeconds(1), "48000"},
      {"SampleBelowZero", samples, TickTime(-1), "-1"},
      {"MillisecondsZero", ms, TickTime(), "00:00:00.000"},
      {"JustBelowOneMillisecond", ms, Milliseconds(1) - TickTime(1), "00:00:00.000"},
      {"LastMillisecondOfASecond", ms, Milliseconds(999), "00:00:00.999"},
      {"LastMillisecondOfAnHour", ms, Milliseconds(3'599'999), "00:59:59.999"},
      {"MillisecondsPast24Hours", ms, TickTime::FromSeconds(25 * 3600), "25:00:00.000"},
      {"NegativeTickInMilliseconds", ms, TickTime(-1), "-00:00:00.001"},
  };
}

} // namespace

TEST_P(TimeDisplayFormat, ShowsTheLabel) {
  const FormatCase& c = GetParam();
  EXPECT_EQ(c.display.Format(c.time).View(), c.expected);
}

INSTANTIATE_TEST_SUITE_P(Labels, TimeDisplayFormat, testing::ValuesIn(FormatCases()),
                         [](const auto& test) { return test.param.name; });

TEST(TimeDisplay, UnknownTimeIsEmptyInEveryDisplay) {
  for (const TimeDisplay& display :
       {TimeDisplay::Timecode(kFrameRate25), TimeDisplay::DropFrameTimecode(kFrameRate2997),
        TimeDisplay::FeetAndFrames16mm(kFrameRate24), TimeDisplay::Frames(kFrameRate60),
        TimeDisplay::AudioSamples(kSampleRate96000), TimeDisplay::Milliseconds()}) {
    EXPECT_TRUE(display.Format(TickTime::Unknown()).IsEmpty());
    EXPECT_TRUE(display.Format(TickTime::Unknown(), kFrameRate25).IsEmpty());
  }
}

TEST(TimeDisplay, ExtremeTimesFitTheText) {
  const TimeDisplay ms = TimeDisplay::Milliseconds();
  EXPECT_EQ(ms.Format(TickTime::Earliest()).View(), "-10086:10:01.078");
  EXPECT_EQ(TimeDisplay::Frames(kFrameRate120).Format(TickTime::Earliest()).View(), "-4357224130");
  EXPECT_EQ(TimeDisplay::Timecode(kFrameRate5994).Format(TickTime(9'000'000'000'000'000'000)).View(),
            "9832:04:03:33");
}

TEST(TimeDisplay, QuantizingRoundsDownToTheVideoFrame) {
  const TickTime time = Milliseconds(1050);
  EXPECT_EQ(TimeDisplay::Milliseconds().Format(time, kFrameRate25).View(), "00:00:01.040");
  EXPECT_EQ(TimeDisplay::AudioSamples(kSampleRate48000).Format(time, kFrameRate25).View(), "49920");
  EXPECT_EQ(TimeDisplay::Milliseconds().Format(-Milliseconds(1), kFrameRate25).View(), "-00:00:00.040");
  EXPECT_EQ(TimeDisplay::Milliseconds().Format(time, FrameRate()).View(), "00:00:01.050");
}

TEST(TimeDisplay, DropFrameIsRefusedWhereItDoesNotExist) {
  krocore::debug::ScopedAssertionRecorder recorder;
  const TimeDisplay display = TimeDisplay::DropFrameTimecode(kFrameRate30);
  EXPECT_TRUE(recorder.Contains("Drop-frame timecode exists only at 29.97 and 59.94 fps"));
  EXPECT_FALSE(display.IsDropFrame());
  EXPECT_EQ(display, TimeDisplay::Timecode(kFrameRate30));
  EXPECT_EQ(display.Format(TickTime::FromFrames(1800, kFrameRate30)).View(), "00:01:00:00");
}

TEST(TimeDisplay, CountingDisplaysNeedAKnownRate) {
  krocore::debug::ScopedAssertionRecorder recorder;
  EXPECT_EQ(TimeDisplay::Frames(FrameRate()), TimeDisplay::Milliseconds());
  EXPECT_EQ(TimeDisplay::DropFrameTimecode(FrameRate()), TimeDisplay::Milliseconds());
  EXPECT_EQ(recorder.Count(), 2u);
  EXPECT_TRUE(recorder.Contains("A time display that counts frames or samples needs a known rate"));
}
