#include <kromediatypes/FrameRate.h>

#include <krocore/debug/Assert.h>

#include <gtest/gtest.h>

#include <string>

using namespace kromediatypes;

namespace {

struct DurationCase {
  FrameRate rate;
  std::int64_t frameTicks;
};

// The exact duration of one unit that the time bar keys its tick levels on.
class FrameRateDuration : public testing::TestWithParam<DurationCase> {};

std::string RateName(const FrameRate& rate) {
  return std::to_string(rate.GetNumerator()) + "_" + std::to_string(rate.GetDenominator());
}

} // namespace

TEST_P(FrameRateDuration, OneUnitLastsTheTicksOfTheTimeBarTable) {
  const auto& [rate, frameTicks] = GetParam();
  EXPECT_EQ(rate.GetFrameDuration().GetTicks(), frameTicks);
  EXPECT_EQ(FrameRate::FromFrameDuration(TickTime(frameTicks)), rate);
}

INSTANTIATE_TEST_SUITE_P(
    TickTable, FrameRateDuration,
    testing::Values(DurationCase{kFrameRate15, 16'934'400'000}, DurationCase{kFrameRate23976, 10'594'584'000},
                    DurationCase{kFrameRate24, 10'584'000'000}, DurationCase{kFrameRate25, 10'160'640'000},
                    DurationCase{kFrameRate2997, 8'475'667'200}, DurationCase{kFrameRate30, 8'467'200'000},
                    DurationCase{kFrameRate48, 5'292'000'000}, DurationCase{kFrameRate50, 5'080'320'000},
                    DurationCase{kFrameRate5994, 4'237'833'600}, DurationCase{kFrameRate60, 4'233'600'000},
                    DurationCase{kSampleRate22050, 11'520'000}, DurationCase{kSampleRate32000, 7'938'000},
                    DurationCase{kSampleRate44100, 5'760'000}, DurationCase{kSampleRate48000, 5'292'000},
                    DurationCase{kSampleRate88200, 2'880'000}, DurationCase{kSampleRate96000, 2'646'000},
                    DurationCase{kSampleRate192000, 1'323'000}),
    [](const auto& test) { return RateName(test.param.rate); });

class StandardRate : public testing::TestWithParam<FrameRate> {};

TEST_P(StandardRate, DividesTheTickRateExactly) {
  const FrameRate rate = GetParam();
  ASSERT_TRUE(rate.IsKnown());
  EXPECT_EQ(rate.GetFrameDuration().GetTicks() * rate.GetNumerator(),
            TickTime::kTicksPerSecond * rate.GetDenominator());
  EXPECT_EQ(TickTime::FromFrames(rate.GetNumerator(), rate), TickTime::FromSeconds(rate.GetDenominator()));
  EXPECT_EQ(FrameRate::FromFrameDuration(rate.GetFrameDuration()), rate);
}

INSTANTIATE_TEST_SUITE_P(Video, StandardRate, testing::ValuesIn(kVideoFrameRates),
                         [](const auto& test) { return RateName(test.param); });
INSTANTIATE_TEST_SUITE_P(Audio, StandardRate, testing::ValuesIn(kAudioSampleRates),
                         [](const auto& test) { return RateName(test.param); });

TEST(FrameRate, KeepsLowestTerms) {
  EXPECT_EQ(FrameRate(48000, 2002), kFrameRate23976);
  EXPECT_EQ(FrameRate(50, 2), kFrameRate25);
  EXPECT_EQ(kFrameRate2997.GetNumerator(), 30000);
  EXPECT_EQ(kFrameRate2997.GetDenominator(), 1001);
  EXPECT_DOUBLE_EQ(kFrameRate23976.ToDouble(), 24000.0 / 1001.0);
}

TEST(FrameRate, TimecodeCountsWholeFramesPerSecond) {
  EXPECT_EQ(kFrameRate23976.GetTimecodeBase(), 24);
  EXPECT_EQ(kFrameRate2997.GetTimecodeBase(), 30);
  EXPECT_EQ(kFrameRate5994.GetTimecodeBase(), 60);
  EXPECT_EQ(kFrameRate11988.GetTimecodeBase(), 120);
  EXPECT_EQ(kFrameRate25.GetTimecodeBase(), 25);
  EXPECT_EQ(FrameRate().GetTimecodeBase(), 0);
}

TEST(FrameRate, OnlyNtscThirtyAndSixtyHaveDropFrame) {
  for (const FrameRate& rate : kVideoFrameRates)
    EXPECT_EQ(rate.HasDropFrame(), rate == kFrameRate2997 || rate == kFrameRate5994) << RateName(rate);
}

TEST(FrameRate, UnknownRateLastsForever) {
  EXPECT_FALSE(FrameRate().IsKnown());
  EXPECT_TRUE(FrameRate().GetFrameDuration().IsUnknown());
  EXPECT_FALSE(FrameRate::FromFrameDuration(TickTime::Unknown()).IsKnown());
  EXPECT_FALSE(FrameRate::FromFrameDuration(TickTime(0)).IsKnown());
}

TEST(FrameRate, RatesWithoutWholeTickFramesAreRefused) {
  krocore::debug::ScopedAssertionRecorder recorder;
  EXPECT_FALSE(FrameRate(11).IsKnown()); // 254,016,000,000 is not a multiple of 11
  EXPECT_FALSE(FrameRate(0).IsKnown());
  EXPECT_FALSE(FrameRate(-25).IsKnown());
  EXPECT_FALSE(FrameRate(25, 0).IsKnown());
  EXPECT_EQ(recorder.Count(), 4u);
  EXPECT_TRUE(recorder.Contains("A frame rate must be positive, and one frame a whole number of ticks"));
}
