// Every frame of a day, at every common video rate, against libavutil's
// timecode strings: the same label, and the label reads back as the frame.
#include <kromediatypes/TimeDisplay.h>

#include <gtest/gtest.h>

#include <functional>
#include <future>
#include <string>
#include <string_view>

extern "C" {
#include <libavutil/timecode.h>
}

using namespace kromediatypes;

// libavutil writes every label through snprintf, and AddressSanitizer checks
// the arguments of each such call: that tests libavutil, not this library,
// and costs more than the rest of a frame. Options given in ASAN_OPTIONS
// still apply on top.
extern "C" const char* __asan_default_options() {
  return "check_printf=0";
}

namespace {

struct OracleCase {
  std::string name;
  FrameRate rate;
  bool isDropFrame;
  friend void PrintTo(const OracleCase& c, std::ostream* out) { *out << c.name; }
};

class TimecodeOracle : public testing::TestWithParam<OracleCase> {};

/// Labels of 24 hours, less those that drop-frame leaves out: 2 or 4 in
/// 54 minutes of every hour.
std::int64_t FramesInADay(const FrameRate& rate, bool isDropFrame) {
  const std::int64_t base = rate.GetTimecodeBase();
  return base * 24 * 3600 - (isDropFrame ? base / 15 * 24 * 54 : 0);
}

struct Mismatches {
  std::int64_t format = 0;
  std::int64_t parse = 0;
  std::string first;
};

Mismatches Compare(const AVTimecode& oracle, const TimeDisplay& display, std::int64_t begin, std::int64_t end) {
  Mismatches found;
  const std::int64_t frameTicks = display.GetRate().GetFrameDuration().GetTicks();
  char expected[AV_TIMECODE_STR_SIZE];
  for (std::int64_t frame = begin; frame < end; ++frame) {
    av_timecode_make_string(&oracle, expected, static_cast<int>(frame));
    const std::string_view label(expected);
    const TickTime time(frame * frameTicks);
    const TimeText ours = display.Format(time);
    if (ours.View() != label && found.format++ == 0)
      found.first += "frame " + std::to_string(frame) + " is " + ours.ToString() + ", not " + expected + "; ";
    const auto parsed = display.Parse(label);
    if (!(parsed.IsSuccess() && parsed.Value() == time) && found.parse++ == 0)
      found.first += std::string(expected) + " does not read back as frame " + std::to_string(frame) + "; ";
  }
  return found;
}

} // namespace

TEST_P(TimecodeOracle, EveryFrameOfADayMatchesLibavutil) {
  const auto& [name, rate, isDropFrame] = GetParam();
  AVTimecode oracle{};
  const AVRational avRate{static_cast<int>(rate.GetNumerator()), static_cast<int>(rate.GetDenominator())};
  ASSERT_EQ(av_timecode_init(&oracle, avRate, isDropFrame ? AV_TIMECODE_FLAG_DROPFRAME : 0, 0, nullptr), 0);
  const TimeDisplay display = isDropFrame ? TimeDisplay::DropFrameTimecode(rate) : TimeDisplay::Timecode(rate);

  // Two halves of the day side by side: under the sanitizers this is the
  // longest test of the suite.
  const std::int64_t frames = FramesInADay(rate, isDropFrame);
  auto firstHalf = std::async(std::launch::async, Compare, std::cref(oracle), std::cref(display), 0, frames / 2);
  const Mismatches second = Compare(oracle, display, frames / 2, frames);
  const Mismatches first = firstHalf.get();
  EXPECT_EQ(first.format + second.format, 0) << first.first << second.first;
  EXPECT_EQ(first.parse + second.parse, 0) << first.first << second.first;
  // The day ends on the first label of hour 24, not on a wrap to zero.
  EXPECT_EQ(display.Format(TickTime::FromFrames(frames, rate)).View(),
            isDropFrame ? "24:00:00;00" : "24:00:00:00");
}

INSTANTIATE_TEST_SUITE_P(Day, TimecodeOracle,
                         testing::Values(OracleCase{"DropFrame2997", kFrameRate2997, true},
                                         OracleCase{"DropFrame5994", kFrameRate5994, true},
                                         OracleCase{"Fps23976", kFrameRate23976, false},
                                         OracleCase{"Fps24", kFrameRate24, false},
                                         OracleCase{"Fps25", kFrameRate25, false},
                                         OracleCase{"Fps30", kFrameRate30, false},
                                         OracleCase{"Fps50", kFrameRate50, false},
                                         OracleCase{"Fps60", kFrameRate60, false}),
                         [](const auto& test) { return test.param.name; });
