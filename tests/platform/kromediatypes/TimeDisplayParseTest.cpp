#include <kromediatypes/TimeDisplay.h>

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

using namespace kromediatypes;

namespace {

const TickTime kSecond = TickTime::FromSeconds(1);

TickTime Frames(std::int64_t count, const FrameRate& rate) {
  return TickTime::FromFrames(count, rate);
}

TickTime Milliseconds(std::int64_t count) {
  return TickTime(count * (TickTime::kTicksPerSecond / 1000));
}

struct ParseCase {
  std::string name;
  TimeDisplay display;
  std::string typed;
  TickTime expected;
  TickTime current = TickTime();
  friend void PrintTo(const ParseCase& c, std::ostream* out) { *out << c.name; }
};

class TimeDisplayParse : public testing::TestWithParam<ParseCase> {};

std::vector<ParseCase> ParseCases() {
  const TimeDisplay tc25 = TimeDisplay::Timecode(kFrameRate25);
  const TimeDisplay df2997 = TimeDisplay::DropFrameTimecode(kFrameRate2997);
  const TimeDisplay df5994 = TimeDisplay::DropFrameTimecode(kFrameRate5994);
  const TimeDisplay feet35 = TimeDisplay::FeetAndFrames35mm(kFrameRate24);
  const TimeDisplay ms = TimeDisplay::Milliseconds();
  const TickTime tenSeconds = kSecond * 10;
  const TickTime minute = kSecond * 60;
  return {
      {"TrailingPointIsASecond", tc25, "1.", kSecond},
      {"TwoPointsAreAMinute", tc25, "1..", minute},
      {"DigitsAloneAreFrames", tc25, "10", Frames(10, kFrameRate25)},
      {"DigitsPairUpFromTheRight", tc25, "1000", tenSeconds},
      {"SevenDigitsReachHours", tc25, "1000000", minute * 60},
      {"SecondsAndFrames", tc25, "1:00", kSecond},
      {"SemicolonsInNonDrop", tc25, "0;0;1;2", kSecond + Frames(2, kFrameRate25)},
      {"PointsSeparateAllFields", tc25, "1.2.3.4", minute * 62 + kSecond * 3 + Frames(4, kFrameRate25)},
      {"EmptyFieldIsZero", tc25, ":5", Frames(5, kFrameRate25)},
      {"OverflowingFieldsCarry", TimeDisplay::Timecode(kFrameRate30), "90", kSecond * 3},
      {"HoursPast24", tc25, "25:00:00:00", minute * 60 * 25},
      {"PlusIsLater", tc25, "+10", tenSeconds + Frames(10, kFrameRate25), tenSeconds},
      {"MinusIsEarlier", tc25, "-1:00", kSecond * 9, tenSeconds},
      {"MinusFromZeroIsNegative", tc25, "-00:00:01:00", -kSecond},
      {"MinusSignCharacter", tc25, "\u22121:00", kSecond * 9, tenSeconds},
      {"FullWidthDigitsAndColon", tc25, "\uFF11\uFF1A\uFF10\uFF10", kSecond},
      {"FullWidthPlusAndPoint", tc25, "\uFF0B\uFF11\uFF0E", tenSeconds + kSecond, tenSeconds},
      {"FullWidthHyphenAndSemicolon", tc25, "\uFF0D\uFF11\uFF1B\uFF10\uFF10", kSecond * 9, tenSeconds},
      {"SpacesAround", tc25, " \t1:00\u3000 ", kSecond},
      {"DroppedLabelMeansTheNext", df2997, "00:01:00;00", Frames(1800, kFrameRate2997)},
      {"SecondDroppedLabelMeansTheNext", df2997, "00:01:00;01", Frames(1800, kFrameRate2997)},
      {"TenthMinuteLabelExists", df2997, "00:10:00;00", Frames(17982, kFrameRate2997)},
      {"DroppedLabelReachedByCarry", df2997, "59;30", Frames(1800, kFrameRate2997)},
      {"DroppedLabelBelowZero", df2997, "-0:2:0:0", -Frames(3598, kFrameRate2997)},
      {"FourDroppedLabelsAt5994", df5994, "00:01:00;03", Frames(3600, kFrameRate5994)},
      {"FeetPlusFrames", feet35, "123+4", Frames(123 * 16 + 4, kFrameRate24)},
      {"WholeFeet", feet35, "5+", Frames(80, kFrameRate24)},
      {"FramesWithoutFeet", feet35, "20", Frames(20, kFrameRate24)},
      {"FeetOffset", feet35, "+1+0", kSecond + Frames(16, kFrameRate24), kSecond},
      {"FullWidthFeet", feet35, "\uFF11\uFF12\uFF13\uFF0B\uFF14", Frames(123 * 16 + 4, kFrameRate24)},
      {"Feet16mm", TimeDisplay::FeetAndFrames16mm(kFrameRate24), "1+0", Frames(40, kFrameRate24)},
      {"FrameCount", TimeDisplay::Frames(kFrameRate2997), "1234", Frames(1234, kFrameRate2997)},
      {"SampleCount", TimeDisplay::AudioSamples(kSampleRate48000), "48000", kSecond},
      {"SampleOffset", TimeDisplay::AudioSamples(kSampleRate44100), "-44100", kSecond, kSecond * 2},
      {"DecimalSeconds", ms, "1.5", Milliseconds(1500)},
      {"MillisecondDigitsAlone", ms, "1500", Milliseconds(1500)},
      {"ShortFraction", ms, ".05", Milliseconds(50)},
      {"MinutesAndSeconds", ms, "1:30", Milliseconds(90'000)},
      {"FullMilliseconds", ms, "01:00:00.001", Milliseconds(3'600'001)},
      {"ClockDigitsPairUp", ms, "130.5", Milliseconds(90'500)},
      {"SecondWithPoint", ms, "1.", kSecond},
  };
}

} // namespace

TEST_P(TimeDisplayParse, ReadsTheTypedTime) {
  const ParseCase& c = GetParam();
  const auto result = c.display.Parse(c.typed, c.current);
  ASSERT_TRUE(result.IsSuccess()) << result.Error();
  EXPECT_EQ(result.Value(), c.expected) << c.display.Format(result.Value());
}

INSTANTIATE_TEST_SUITE_P(TypedForms, TimeDisplayParse, testing::ValuesIn(ParseCases()),
                         [](const auto& test) { return test.param.name; });

namespace {

struct RefusalCase {
  std::string name;
  TimeDisplay display;
  std::string typed;
  std::string message;
  friend void PrintTo(const RefusalCase& c, std::ostream* out) { *out << c.name; }
};

class TimeDisplayRefusal : public testing::TestWithParam<RefusalCase> {};

std::vector<RefusalCase> RefusalCases() {
  const TimeDisplay tc = TimeDisplay::Timecode(kFrameRate25);
  const TimeDisplay ms = TimeDisplay::Milliseconds();
  return {
      {"Empty", tc, "", "Type a time."},
      {"OnlySign", tc, "+", "Type a time after the sign."},
      {"TwoSigns", tc, "+-1", "Only one sign can lead a time."},
      {"SignInside", tc, "1+2", "A sign can only come first, before the time."},
      {"FiveFields", tc, "1:2:3:4:5", "A timecode has at most four fields: hours, minutes, seconds and frames."},
      {"Letters", tc, "12a", "\"a\" cannot be part of a time."},
      {"FullWidthComma", tc, "1\uFF0C2", "\"\uFF0C\" cannot be part of a time."},
      {"SpaceInside", tc, "1 00", "A time cannot have spaces inside it."},
      {"ControlCharacter", tc, std::string("1\0", 2), "The text holds a control character, which cannot be part of a time."},
      {"BrokenUtf8", tc, "1\xE2\x88", "The text is not valid UTF-8."},
      {"Surrogate", tc, "\xED\xA0\x80", "The text is not valid UTF-8."},
      {"OnlySeparators", tc, "...", "The text has no digits."},
      {"TooLarge", tc, "99999999999999999999", "The time is out of range."},
      {"LargerThanTicksAllow", tc, "9999999999:00:00:00", "The time is out of range."},
      {"TooLong", tc, std::string(65, '0'), "The text is too long to be a time."},
      {"FeetWithColon", TimeDisplay::FeetAndFrames35mm(kFrameRate24), "1:2",
       "Feet and frames are typed as feet+frames, for example 123+4."},
      {"TwoPlusesInFeet", TimeDisplay::FeetAndFrames35mm(kFrameRate24), "1+2+3",
       "Feet and frames are typed as feet+frames, for example 123+4."},
      {"FramesWithPoint", TimeDisplay::Frames(kFrameRate25), "1.5", "Frames are counted in whole numbers."},
      {"SamplesWithColon", TimeDisplay::AudioSamples(kSampleRate48000), "1:5", "Samples are counted in whole numbers."},
      {"FourMillisecondDigits", ms, "1.2345", "Milliseconds have at most three digits after the '.'."},
      {"TwoPointsInMilliseconds", ms, "1.2.3", "A time in milliseconds is typed as hours:minutes:seconds.milliseconds."},
      {"FourClockFields", ms, "1:2:3:4", "A time in milliseconds is typed as hours:minutes:seconds.milliseconds."},
      {"MillisecondsWithoutDigits", ms, ":.", "The text has no digits."},
  };
}

} // namespace

TEST_P(TimeDisplayRefusal, SaysWhatIsWrong) {
  const RefusalCase& c = GetParam();
  const auto result = c.display.Parse(c.typed, TickTime::FromSeconds(5));
  ASSERT_FALSE(result.IsSuccess()) << c.display.Format(result.Value());
  EXPECT_EQ(result.Error(), c.message);
}

INSTANTIATE_TEST_SUITE_P(NotATime, TimeDisplayRefusal, testing::ValuesIn(RefusalCases()),
                         [](const auto& test) { return test.param.name; });

TEST(TimeDisplay, RelativeEntryNeedsAKnownCurrentTime) {
  const auto result = TimeDisplay::Timecode(kFrameRate25).Parse("+1:00", TickTime::Unknown());
  ASSERT_FALSE(result.IsSuccess());
  EXPECT_EQ(result.Error(), "There is no current time to count from.");
  EXPECT_TRUE(TimeDisplay::Timecode(kFrameRate25).Parse("1:00", TickTime::Unknown()).IsSuccess());
}

TEST(TimeDisplay, OffsetsThatLeaveTheRangeAreRefused) {
  const TimeDisplay display = TimeDisplay::Frames(kFrameRate25);
  EXPECT_FALSE(display.Parse("+1", TickTime::Unknown() - TickTime(1)).IsSuccess());
  EXPECT_FALSE(display.Parse("-1", TickTime::Earliest()).IsSuccess());
  EXPECT_TRUE(display.Parse("-1", TickTime::Earliest() + Frames(1, kFrameRate25)).IsSuccess());
}

class TimeDisplayRoundTrip : public testing::TestWithParam<TimeDisplay> {};

// Every time inside a unit shows the label that reads back as the start of
// that unit, far from zero and below it too.
TEST_P(TimeDisplayRoundTrip, EveryLabelReadsBackAsItsTime) {
  const TimeDisplay& display = GetParam();
  const std::int64_t unit = display.GetKind() == TimeDisplay::Kind::kMilliseconds
                                ? Milliseconds(1).GetTicks()
                                : display.GetRate().GetFrameDuration().GetTicks();
  const auto largestUnits = static_cast<std::uint64_t>(TickTime::Unknown().GetTicks() / unit - 1);
  std::mt19937_64 random(12);
  for (int i = 0; i < 3000; ++i) {
    const auto spread = (random() % largestUnits) >> (random() % 40);
    const auto units = static_cast<std::int64_t>(spread) * (i % 2 ? 1 : -1);
    const TickTime start(units * unit);
    const TickTime inside = start + TickTime(static_cast<std::int64_t>(random() % static_cast<std::uint64_t>(unit)));
    const TimeText text = display.Format(inside);
    const auto parsed = display.Parse(text.View());
    ASSERT_TRUE(parsed.IsSuccess()) << text << ": " << parsed.Error();
    ASSERT_EQ(parsed.Value(), start) << text;
  }
}

INSTANTIATE_TEST_SUITE_P(
    AllDisplays, TimeDisplayRoundTrip,
    testing::Values(TimeDisplay::Timecode(kFrameRate23976), TimeDisplay::DropFrameTimecode(kFrameRate2997),
                    TimeDisplay::DropFrameTimecode(kFrameRate5994), TimeDisplay::Timecode(kFrameRate11988),
                    TimeDisplay::FeetAndFrames35mm(kFrameRate24), TimeDisplay::FeetAndFrames16mm(kFrameRate25),
                    TimeDisplay::Frames(kFrameRate50), TimeDisplay::AudioSamples(kSampleRate44100),
                    TimeDisplay::Milliseconds()));
