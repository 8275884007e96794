#include <krocore/geom/Geometry.h>

#include <gtest/gtest.h>

namespace {

using Rect = krocore::geom::RectT<int>;
using Point = krocore::geom::PointT<int>;

TEST(RectT, RightAndBottomEdgesLieOutside) {
  const Rect r = Rect::FromOriginAndExtent({10, 20}, {30, 40});
  EXPECT_EQ(r, (Rect{10, 20, 40, 60}));
  EXPECT_TRUE(r.Contains(Point{10, 20}));
  EXPECT_TRUE(r.Contains(Point{39, 59}));
  EXPECT_FALSE(r.Contains(Point{40, 30}));
  EXPECT_FALSE(r.Contains(Point{20, 60}));
}

TEST(RectT, IntersectionAndUnionTreatEmptyRectanglesAsNothing) {
  const Rect a{0, 0, 10, 10};
  const Rect b{5, 5, 20, 20};
  EXPECT_EQ(a.Intersection(b), (Rect{5, 5, 10, 10}));
  EXPECT_EQ(a.Union(b), (Rect{0, 0, 20, 20}));
  const Rect touching{10, 0, 20, 10};
  EXPECT_FALSE(a.Intersects(touching)) << "sharing an edge is not overlapping";
  EXPECT_TRUE(a.Intersection(touching).IsEmpty());
  EXPECT_EQ(Rect{}.Union(b), b);
  EXPECT_EQ(b.Union(Rect{100, 100, 100, 200}), b);
}

} // namespace
