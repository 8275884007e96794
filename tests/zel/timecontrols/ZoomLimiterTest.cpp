#include <zel/timecontrols/ZoomLimiter.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace {

using kromediatypes::TickTime;

constexpr std::int64_t kSecond = TickTime::kTicksPerSecond;
const TickTime kFrame25(kSecond / 25);
const TickTime kSample48k(kSecond / 48000);

TickTime Seconds(double seconds) { return TickTime::FromSecondsDouble(seconds); }

// A host's limiter that records which of its answers were asked for, in order.
class RecordingLimiter : public ZEL::ZoomLimiter {
public:
  RecordingLimiter(TickTime content, TickTime trailing, TickTime unit, int width = 1000)
      : ZoomLimiter(true), mContent(content), mTrailing(trailing), mUnit(unit) {
    SetScrollWidthInPixels(width);
  }

  void GetContentDuration(TickTime& out) const override { Record("content", out = mContent); }
  void GetTrailingScrollTime(TickTime& out) const override { Record("trailing", out = mTrailing); }
  const TickTime& GetAlignmentUnitDuration() const override {
    mCalls.push_back("unit");
    return mUnit;
  }

  mutable std::vector<std::string> mCalls;
  TickTime mContent, mTrailing, mUnit;

private:
  void Record(const char* call, TickTime) const { mCalls.push_back(call); }
};

TEST(ZoomLimiter, StartsWithTheDocumentedFieldsAndKeepsTheWidthPositive) {
  RecordingLimiter limiter(Seconds(10), Seconds(5), kFrame25, 0);
  EXPECT_TRUE(limiter.IsZoomSynchedToSize());
  EXPECT_EQ(limiter.GetScrollWidthInPixels(), 1);
  EXPECT_EQ(limiter.GetAudioFrameAlignment(), 0u);
  EXPECT_DOUBLE_EQ(limiter.GetPowerExponent(), 4.2);
  limiter.SetScrollWidthInPixels(-5);
  EXPECT_EQ(limiter.GetScrollWidthInPixels(), 1);
  EXPECT_EQ(ZEL::GetPixelsPerFrameMax(), 30u);
  EXPECT_EQ(ZEL::GetPixelsPerSampleMax(), 20u);
}

TEST(ZoomLimiter, VideoLimitsRunFromOneFrameAcrossThirtyPixelsToTheScrollableDurationAcrossTheWidth) {
  RecordingLimiter limiter(Seconds(10), Seconds(5), kFrame25);
  double minimum = 0, maximum = 0;
  limiter.GetSecondsPerPixelLimits(minimum, maximum);
  EXPECT_DOUBLE_EQ(minimum, 1.0 / (30 * 25));
  EXPECT_DOUBLE_EQ(maximum, 15.0 / 1000);
  EXPECT_DOUBLE_EQ(limiter.ConstrainTimePerPixel(0.005), 0.005);

  double pixelsMin = 0, pixelsMax = 0, factorMin = 0, factorMax = 0;
  limiter.GetPixelsPerSecondLimits(pixelsMin, pixelsMax);
  limiter.CalculateZoomFactors(factorMin, factorMax);
  EXPECT_DOUBLE_EQ(pixelsMin, 1000 / 15.0);
  EXPECT_DOUBLE_EQ(pixelsMax, 750.0);
  EXPECT_EQ(factorMin, pixelsMin);
  EXPECT_EQ(factorMax, pixelsMax);

  ZEL::SetPixelsPerFrameMax(60);
  EXPECT_DOUBLE_EQ(limiter.ConstrainTimePerPixel(0.0), 1.0 / (60 * 25));
  ZEL::SetPixelsPerFrameMax(30);
}

TEST(ZoomLimiter, AudioLimitsCountSamples) {
  RecordingLimiter limiter(Seconds(10), Seconds(5), kSample48k);
  limiter.SetAudioFrameAlignment(1);
  EXPECT_DOUBLE_EQ(limiter.ConstrainTimePerPixel(0.0), 1.0 / (20 * 48000));
}

TEST(ZoomLimiter, TrailingTimeNeverTakesTheScrollableDurationPastADay) {
  const double hour = 3600;
  struct Case { double content, trailing, scrollable; };
  for (const Case& c : {Case{30 * hour, 2 * hour, 30 * hour}, Case{23.5 * hour, 2 * hour, 24 * hour},
                        Case{hour, 2 * hour, 3 * hour}}) {
    RecordingLimiter limiter(Seconds(c.content), Seconds(c.trailing), kFrame25, 1);
    EXPECT_DOUBLE_EQ(limiter.ConstrainTimePerPixel(1e9), c.scrollable) << c.content / hour << " h";
  }
}

TEST(ZoomLimiter, TheWidestZoomWinsWhereTheLimitsCross) {
  RecordingLimiter oneFrame(kFrame25, TickTime(), kFrame25, 1000);
  EXPECT_DOUBLE_EQ(oneFrame.ConstrainTimePerPixel(0.0), 0.04 / 1000);
  RecordingLimiter empty(TickTime(), TickTime(), kFrame25, 1000);
  EXPECT_DOUBLE_EQ(empty.ConstrainTimePerPixel(5.0), 1.0);
}

TEST(ZoomLimiter, FaultyAnswersAndRequestsGiveFiniteLimits) {
  // An unknown unit leaves the widest zoom alone in charge.
  RecordingLimiter unknownUnit(Seconds(10), Seconds(5), TickTime::Unknown());
  EXPECT_DOUBLE_EQ(unknownUnit.ConstrainTimePerPixel(0.0), 0.015);
  // A unit of no length, or less, sets no deepest zoom.
  for (TickTime unit : {TickTime(), TickTime(-kSecond)}) {
    RecordingLimiter faulty(Seconds(10), Seconds(5), unit);
    EXPECT_DOUBLE_EQ(faulty.ConstrainTimePerPixel(1e-9), 1e-9);
  }
  RecordingLimiter limiter(Seconds(10), Seconds(5), kFrame25);
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double inf = std::numeric_limits<double>::infinity();
  EXPECT_DOUBLE_EQ(limiter.ConstrainTimePerPixel(nan), 1.0 / 750);
  EXPECT_DOUBLE_EQ(limiter.ConstrainTimePerPixel(-inf), 1.0 / 750);
  EXPECT_DOUBLE_EQ(limiter.ConstrainTimePerPixel(inf), 0.015);
  // Content of unknown length scrolls through a day, like the longest known content.
  RecordingLimiter live(TickTime::Unknown(), Seconds(5), TickTime::Unknown(), 1);
  EXPECT_DOUBLE_EQ(live.ConstrainTimePerPixel(1e9), 86400.0);
  EXPECT_EQ(live.ConstrainVisibleBaseTime(TickTime::Unknown(), 1.0), Seconds(86399));
}

TEST(ZoomLimiter, BaseTimeStaysBetweenZeroAndTheLastFullView) {
  RecordingLimiter limiter(Seconds(10), Seconds(5), kFrame25, 1000);
  const double perPixel = 0.01; // 10 s visible of 15 s scrollable
  EXPECT_EQ(limiter.ConstrainVisibleBaseTime(Seconds(-3), perPixel), TickTime());
  EXPECT_EQ(limiter.ConstrainVisibleBaseTime(Seconds(2), perPixel), Seconds(2));
  EXPECT_EQ(limiter.ConstrainVisibleBaseTime(Seconds(5), perPixel), Seconds(5));
  EXPECT_EQ(limiter.ConstrainVisibleBaseTime(Seconds(9), perPixel), Seconds(5));
  EXPECT_EQ(limiter.ConstrainVisibleBaseTime(TickTime::Unknown(), perPixel), Seconds(5));
  // A view wider than the scrollable duration starts at 0, whatever the base.
  EXPECT_EQ(limiter.ConstrainVisibleBaseTime(Seconds(4), 0.02), TickTime());
}

TEST(ZoomLimiter, VisibleWidthsBeyondSixtyFourBitsOrNotANumberSaturate) {
  RecordingLimiter limiter(Seconds(10), Seconds(5), kFrame25, 1000);
  const double inf = std::numeric_limits<double>::infinity();
  for (double perPixel : {1e300, inf, 1e7})
    EXPECT_EQ(limiter.ConstrainVisibleBaseTime(Seconds(4), perPixel), TickTime()) << perPixel;
  // No width at all: the base may go to the end of the scrollable duration.
  for (double perPixel : {0.0, -1.0, -inf, std::numeric_limits<double>::quiet_NaN()})
    EXPECT_EQ(limiter.ConstrainVisibleBaseTime(Seconds(20), perPixel), Seconds(15)) << perPixel;
}

TEST(ZoomLimiter, AsksTheHostInItsDocumentedOrder) {
  RecordingLimiter limiter(Seconds(10), Seconds(5), kFrame25);
  limiter.ConstrainTimePerPixel(0.1);
  EXPECT_EQ(limiter.mCalls, (std::vector<std::string>{"content", "unit", "trailing"}));
  limiter.mCalls.clear();
  limiter.ConstrainVisibleBaseTime(Seconds(1), 0.01);
  EXPECT_EQ(limiter.mCalls, (std::vector<std::string>{"trailing", "content"}));
}

// A host that overrides the clamp and the exponent: the base's helpers must use both.
class OverridingLimiter : public RecordingLimiter {
public:
  OverridingLimiter() : RecordingLimiter(Seconds(10), Seconds(5), kFrame25) {}
  double ConstrainTimePerPixel(const double& secondsPerPixel) const override {
    mRequests.push_back(secondsPerPixel);
    return 0.5;
  }
  double GetPowerExponent() const override { return 1.0; }
  mutable std::vector<double> mRequests;
};

TEST(ZoomLimiter, LimitsAndCurveGoThroughTheOverridableOperations) {
  OverridingLimiter limiter;
  double minimum = 0, maximum = 0;
  limiter.GetSecondsPerPixelLimits(minimum, maximum);
  limiter.GetPixelsPerSecondLimits(minimum, maximum);
  EXPECT_EQ(limiter.mRequests, (std::vector<double>{0.0, 1000000.0, 1000000.0, 0.0}));
  EXPECT_EQ(minimum, 2.0);
  const kromediaui::ZoomBarRange thumbs{0.2, 0.4};
  EXPECT_EQ(limiter.ThumbsToVisibleRange(thumbs).start, thumbs.start);
  EXPECT_NEAR(limiter.ThumbsToVisibleRange(thumbs).end, thumbs.end, 1e-15);
}

TEST(ZoomLimiter, CopiesCarryEveryField) {
  RecordingLimiter original(Seconds(10), Seconds(5), kFrame25, 640);
  original.SetAudioFrameAlignment(3);
  original.SetVisibleBaseTime(Seconds(2), 0.01);
  RecordingLimiter copy(original);
  EXPECT_EQ(copy.GetScrollWidthInPixels(), 640);
  EXPECT_EQ(copy.GetAudioFrameAlignment(), 3u);
  RecordingLimiter assigned(TickTime(), TickTime(), kFrame25, 1);
  assigned = original;
  EXPECT_EQ(assigned.GetScrollWidthInPixels(), 640);
  EXPECT_DOUBLE_EQ(assigned.ConstrainTimePerPixel(1.0), 15.0 / 640);
}

} // namespace
