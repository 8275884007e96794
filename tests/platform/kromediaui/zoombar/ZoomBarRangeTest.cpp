#include <kromediaui/zoombar/ZoomBarRange.h>

#include <gtest/gtest.h>

#include <cmath>

namespace {

using kromediaui::ZoomBarRange;
using Edge = ZoomBarRange::Edge;

::testing::AssertionResult Spans(const ZoomBarRange& range, double start, double end) {
  if (std::abs(range.start - start) < 1e-12 && std::abs(range.end - end) < 1e-12) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << range.start << " to " << range.end;
}

TEST(ZoomBarRange, LegalOrdersClampsAndWidensAboutTheCentre) {
  EXPECT_TRUE(Spans(ZoomBarRange{0.8, 0.2}.Legal(0.0), 0.2, 0.8));
  EXPECT_TRUE(Spans(ZoomBarRange{-0.5, 1.5}.Legal(0.0), 0.0, 1.0));
  EXPECT_TRUE(Spans(ZoomBarRange{0.5, 0.52}.Legal(0.1), 0.46, 0.56));
  EXPECT_TRUE(Spans(ZoomBarRange{0.0, 0.02}.Legal(0.1), 0.0, 0.1)) << "widened, then pushed back inside";
  EXPECT_TRUE(Spans(ZoomBarRange{0.99, 1.0}.Legal(0.1), 0.9, 1.0));
  EXPECT_TRUE(Spans(ZoomBarRange{0.3, 0.4}.Legal(7.0), 0.0, 1.0)) << "a minimum beyond the whole is the whole";
}

TEST(ZoomBarRange, AnEdgeStopsShortOfTheOtherAndAtTheEnds) {
  const ZoomBarRange range{0.25, 0.75};
  EXPECT_TRUE(Spans(range.WithEdgeAt(Edge::Start, 0.4, 0.1), 0.4, 0.75));
  EXPECT_TRUE(Spans(range.WithEdgeAt(Edge::Start, 0.9, 0.1), 0.65, 0.75));
  EXPECT_TRUE(Spans(range.WithEdgeAt(Edge::Start, -3.0, 0.1), 0.0, 0.75));
  EXPECT_TRUE(Spans(range.WithEdgeAt(Edge::End, 0.1, 0.1), 0.25, 0.35));
  EXPECT_TRUE(Spans(range.WithEdgeAt(Edge::End, 2.0, 0.1), 0.25, 1.0));
}

TEST(ZoomBarRange, ASymmetricDragKeepsTheCentreAndStopsAtTheNearerLimit) {
  const ZoomBarRange range{0.3, 0.5}; // centre 0.4
  EXPECT_TRUE(Spans(range.SymmetricWithEdgeAt(Edge::End, 0.6, 0.0), 0.2, 0.6));
  EXPECT_TRUE(Spans(range.SymmetricWithEdgeAt(Edge::Start, 0.35, 0.0), 0.35, 0.45));
  EXPECT_TRUE(Spans(range.SymmetricWithEdgeAt(Edge::End, 0.95, 0.0), 0.0, 0.8)) << "0 stops it, the centre stays";
  EXPECT_TRUE(Spans(range.SymmetricWithEdgeAt(Edge::Start, 0.5, 0.1), 0.35, 0.45)) << "past the centre: the minimum";
}

TEST(ZoomBarRange, MovingKeepsTheSpanInside) {
  const ZoomBarRange range{0.25, 0.5};
  EXPECT_TRUE(Spans(range.MovedTo(0.6, 0.0), 0.6, 0.85));
  EXPECT_TRUE(Spans(range.MovedTo(0.9, 0.0), 0.75, 1.0));
  EXPECT_TRUE(Spans(range.MovedTo(-0.2, 0.0), 0.0, 0.25));
}

TEST(ZoomBarRange, ZoomingKeepsTheAnchorWhereItIsUntilALimit) {
  const ZoomBarRange range{0.2, 0.6};
  EXPECT_TRUE(Spans(range.ZoomedAround(0.4, 0.5, 0.0), 0.3, 0.5));
  EXPECT_TRUE(Spans(range.ZoomedAround(0.2, 0.5, 0.0), 0.2, 0.4));
  EXPECT_TRUE(Spans(range.ZoomedAround(0.4, 4.0, 0.0), 0.0, 1.0));
  EXPECT_TRUE(Spans(range.ZoomedAround(0.4, 0.001, 0.1), 0.35, 0.45)) << "no narrower than the minimum";
  EXPECT_TRUE(Spans(range.ZoomedAround(0.4, 0.0, 0.0), 0.2, 0.6)) << "a factor of 0 changes nothing";
}

TEST(ZoomBarRange, EveryResultStaysInsideTheWholeDespiteRounding) {
  for (int i = 0; i <= 1000; ++i) {
    const double value = i / 1000.0 * 1.3 - 0.15;
    for (const ZoomBarRange& r :
         {ZoomBarRange{0.1, 0.3}.MovedTo(value, 0.0), ZoomBarRange{0.1, 0.3}.ZoomedAround(value, 1.7, 0.0),
          ZoomBarRange{0.1, 0.3}.WithEdgeAt(Edge::End, value, 0.001),
          ZoomBarRange{0.1, 0.3}.SymmetricWithEdgeAt(Edge::Start, value, 0.001)}) {
      ASSERT_GE(r.start, 0.0);
      ASSERT_LE(r.end, 1.0);
      ASSERT_LE(r.start, r.end);
    }
  }
}

} // namespace
