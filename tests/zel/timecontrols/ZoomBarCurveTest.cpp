#include <zel/timecontrols/ZoomBarCurve.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace {

using kromediaui::ZoomBarRange;
using ZEL::ZoomBarCurve;

constexpr double kExponent = 4.2;

TEST(ZoomBarCurve, ThumbsShowAPowerOfTheirSpanAndKeepTheScrollPosition) {
  const ZoomBarRange visible = ZoomBarCurve::ThumbsToVisible({0.25, 0.75}, kExponent);
  const double span = std::pow(0.5, kExponent);
  EXPECT_DOUBLE_EQ(visible.end - visible.start, span);
  EXPECT_DOUBLE_EQ(visible.start / (1 - span), 0.5); // as 0.25 / (1 - 0.5)
}

// Thumbs spanning t show t^4.2 of the timeline, and the visible pair of
// doubles holds that span only to about one ulp of its end: below ~0.5 % of the
// bar that ulp, taken back through the 4.2th root, is worth more than 1e-9 of
// the bar. There the round trip must stay within that rounding bound instead.
double RoundTripTolerance(double thumbSpan) {
  const double visibleSpan = std::pow(thumbSpan, kExponent);
  const double ulpBound = 16 * std::numeric_limits<double>::epsilon() * thumbSpan / (kExponent * visibleSpan);
  return std::max(1e-9, ulpBound);
}

TEST(ZoomBarCurve, RoundTripReturnsTheThumbsForEverySpanBetweenNothingAndAll) {
  std::mt19937_64 random(20261123);
  std::uniform_real_distribution<double> fraction(0.0, 1.0);
  int pairs = 0, withinOneBillionth = 0;
  while (pairs < 100000) {
    double a = fraction(random), b = fraction(random);
    if (a > b) std::swap(a, b);
    if (b - a <= 0.0 || b - a >= 1.0) continue;
    ++pairs;
    const ZoomBarRange back = ZoomBarCurve::VisibleToThumbs(ZoomBarCurve::ThumbsToVisible({a, b}, kExponent), kExponent);
    const double tolerance = RoundTripTolerance(b - a);
    ASSERT_NEAR(back.start, a, tolerance) << a << " " << b;
    ASSERT_NEAR(back.end, b, tolerance) << a << " " << b;
    withinOneBillionth += tolerance == 1e-9;
  }
  EXPECT_GT(withinOneBillionth, 97000); // every thumb span over about 1.3 %
}

TEST(ZoomBarCurve, EdgeSpansTakeTheirExplicitCase) {
  // All of it: no scroll position to keep.
  EXPECT_EQ(ZoomBarCurve::ThumbsToVisible({0.0, 1.0}, kExponent), (ZoomBarRange{0.0, 1.0}));
  EXPECT_EQ(ZoomBarCurve::ThumbsToVisible({-0.5, 1.5}, kExponent), (ZoomBarRange{0.0, 1.0}));
  EXPECT_EQ(ZoomBarCurve::VisibleToThumbs({0.0, 1.0}, kExponent), (ZoomBarRange{0.0, 1.0}));
  // Reversed or empty: nothing visible, the start kept.
  EXPECT_EQ(ZoomBarCurve::ThumbsToVisible({0.6, 0.4}, kExponent), (ZoomBarRange{0.6, 0.6}));
  EXPECT_EQ(ZoomBarCurve::VisibleToThumbs({0.6, 0.4}, kExponent), (ZoomBarRange{0.6, 0.6}));
  EXPECT_EQ(ZoomBarCurve::VisibleToThumbs({0.3, 0.3}, kExponent), (ZoomBarRange{0.3, 0.3}));
  // Out of range: each end clamped.
  const ZoomBarRange clamped = ZoomBarCurve::VisibleToThumbs({0.9, 1.4}, kExponent);
  EXPECT_EQ(clamped.end, 1.0);
  EXPECT_GE(clamped.start, 0.0);
}

TEST(ZoomBarCurve, InputNoBarProducesGetsANeutralAnswer) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double inf = std::numeric_limits<double>::infinity();
  for (ZoomBarRange bad : {ZoomBarRange{nan, 0.5}, ZoomBarRange{0.1, inf}, ZoomBarRange{-inf, 0.5}}) {
    EXPECT_EQ(ZoomBarCurve::ThumbsToVisible(bad, kExponent), (ZoomBarRange{0.0, 1.0}));
    EXPECT_EQ(ZoomBarCurve::VisibleToThumbs(bad, kExponent), (ZoomBarRange{0.0, 1.0}));
  }
  // A faulty exponent makes the bar linear: both directions are the identity.
  for (double exponent : {0.0, -2.0, nan, inf}) {
    const ZoomBarRange thumbs = ZoomBarCurve::ThumbsToVisible({0.2, 0.4}, exponent);
    EXPECT_NEAR(thumbs.start, 0.2, 1e-15);
    EXPECT_NEAR(thumbs.end, 0.4, 1e-15);
    EXPECT_NEAR(ZoomBarCurve::VisibleToThumbs({0.2, 0.4}, exponent).end, 0.4, 1e-15);
  }
}

} // namespace
