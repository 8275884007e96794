#include <kromediatypes/FrameRate.h>
#include <kromediatypes/TickTime.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using kromediatypes::FrameRate;
using kromediatypes::kFrameRate25;
using kromediatypes::kFrameRate2997;
using kromediatypes::kSampleRate48000;
using kromediatypes::TickTime;

namespace {

constexpr TickTime kSecond = TickTime::FromSeconds(1);
constexpr TickTime kUnknown = TickTime::Unknown();
constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();

template <typename Factor>
concept ScalesTime = requires(TickTime time, Factor factor) {
  time * factor;
  factor * time;
};

// A fractional factor must not compile, rather than truncate.
static_assert(ScalesTime<int> && ScalesTime<std::int64_t>);
static_assert(!ScalesTime<double> && !ScalesTime<float>);

} // namespace

TEST(TickTime, UnknownStaysUnknownThroughArithmetic) {
  EXPECT_EQ(kUnknown.GetTicks(), kLargest);
  EXPECT_TRUE((kUnknown + kSecond).IsUnknown());
  EXPECT_TRUE((kSecond + kUnknown).IsUnknown());
  EXPECT_TRUE((kUnknown - kSecond).IsUnknown());
  EXPECT_TRUE((kSecond - kUnknown).IsUnknown());
  EXPECT_TRUE((-kUnknown).IsUnknown());
  EXPECT_TRUE((kUnknown * 0).IsUnknown());
  EXPECT_TRUE((kUnknown * -3).IsUnknown());
  TickTime time = kUnknown;
  time -= kUnknown;
  EXPECT_TRUE(time.IsUnknown());
  time = kSecond;
  time += kUnknown;
  EXPECT_TRUE(time.IsUnknown());
}

TEST(TickTime, OverflowSaturatesInsteadOfWrapping) {
  EXPECT_TRUE((TickTime(kLargest - 1) + TickTime(2)).IsUnknown());
  EXPECT_EQ(TickTime::Earliest() - TickTime(1), TickTime::Earliest());
  EXPECT_EQ(TickTime::Earliest() + TickTime(-1), TickTime::Earliest());
  EXPECT_TRUE((TickTime(5) - TickTime::Earliest()).IsUnknown());
  EXPECT_EQ(TickTime(-5) - TickTime::Earliest(), TickTime(kLargest - 4));
  EXPECT_TRUE((-TickTime::Earliest()).IsUnknown());
  EXPECT_TRUE((TickTime(kLargest / 2 + 1) * 2).IsUnknown());
  EXPECT_EQ(TickTime(kLargest / 2 + 1) * -2, TickTime::Earliest());
  EXPECT_TRUE((-3 * TickTime(-(kLargest / 2))).IsUnknown());
  EXPECT_EQ(TickTime(-(kLargest / 2)) * 2, TickTime(-(kLargest / 2) * 2));
}

TEST(TickTime, ArithmeticIsExact) {
  TickTime time = kSecond * 3;
  time -= TickTime::FromFrames(1, kFrameRate2997);
  time += TickTime::FromFrames(1, kFrameRate2997);
  EXPECT_EQ(time, TickTime::FromSeconds(3));
  EXPECT_EQ(TickTime::FromFrames(30000, kFrameRate2997), TickTime::FromSeconds(1001));
  EXPECT_LT(kSecond * 1000000, kUnknown);
}

TEST(TickTime, DivisionGivesTheRatio) {
  EXPECT_DOUBLE_EQ(kSecond / TickTime::FromFrames(1, kFrameRate25), 25.0);
  EXPECT_DOUBLE_EQ(-kSecond / (kSecond * 4), -0.25);
  EXPECT_EQ(kUnknown / kSecond, std::numeric_limits<double>::infinity());
  EXPECT_EQ(kSecond / kUnknown, 0.0);
  EXPECT_TRUE(std::isnan(kUnknown / kUnknown));
  EXPECT_EQ(kSecond / TickTime(), std::numeric_limits<double>::infinity());
  EXPECT_TRUE(std::isnan(TickTime() / TickTime()));
}

TEST(TickTime, CountsRoundDownAlsoBelowZero) {
  const TickTime frame = TickTime::FromFrames(1, kFrameRate25);
  EXPECT_EQ(TickTime(-1).ToFrames(kFrameRate25), -1);
  EXPECT_EQ((-frame).ToFrames(kFrameRate25), -1);
  EXPECT_EQ((-frame - TickTime(1)).ToFrames(kFrameRate25), -2);
  EXPECT_EQ((frame - TickTime(1)).ToFrames(kFrameRate25), 0);
  EXPECT_EQ(TickTime(-1).ToWholeSeconds(), -1);
  EXPECT_EQ((kSecond * 2 - TickTime(1)).ToWholeSeconds(), 1);
  EXPECT_EQ(TickTime(-1).ToSamples(kSampleRate48000), -1);
  EXPECT_EQ(kSecond.ToSamples(kSampleRate48000), 48000);
  EXPECT_EQ(TickTime::FromSamples(48000, kSampleRate48000), kSecond);
  EXPECT_EQ(TickTime(-1).FloorToFrame(kFrameRate25), -frame);
  EXPECT_EQ((frame * 7 + TickTime(5)).FloorToFrame(kFrameRate25), frame * 7);
}

TEST(TickTime, UnknownTimesAndRatesConvertNeutrally) {
  EXPECT_EQ(kUnknown.ToFrames(kFrameRate25), kLargest);
  EXPECT_EQ(kUnknown.ToWholeSeconds(), kLargest);
  EXPECT_EQ(kUnknown.ToSeconds(), std::numeric_limits<double>::infinity());
  EXPECT_TRUE(TickTime::FromFrames(5, FrameRate()).IsUnknown());
  EXPECT_EQ(kSecond.ToFrames(FrameRate()), 0);
  EXPECT_EQ(kSecond.FloorToFrame(FrameRate()), kSecond);
}

TEST(TickTime, SecondsAsDoublesRoundToTheNearestTick) {
  EXPECT_EQ(TickTime::FromSecondsDouble(0.1).GetTicks(), 25'401'600'000);
  EXPECT_EQ(TickTime::FromSecondsDouble(-1.5), TickTime(-381'024'000'000));
  EXPECT_TRUE(TickTime::FromSecondsDouble(std::nan("")).IsUnknown());
  EXPECT_EQ(TickTime::FromSecondsDouble(-1e300), TickTime::Earliest());
  EXPECT_DOUBLE_EQ(TickTime(-381'024'000'000).ToSeconds(), -1.5);
  // Far from zero the fraction survives: whole seconds and the rest are apart.
  EXPECT_DOUBLE_EQ((kSecond * 10'000'000 + TickTime(127'008'000'000)).ToSeconds(), 10'000'000.5);
}
