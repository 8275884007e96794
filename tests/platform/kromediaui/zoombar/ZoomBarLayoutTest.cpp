#include <kromediaui/zoombar/ZoomBarLayout.h>

#include <gtest/gtest.h>

namespace {

using kromediaui::ZoomBarLayout;
using kromediaui::ZoomBarPart;
using kromediaui::ZoomBarRange;

TEST(ZoomBarLayout, AThumbIsAsLongAsItsRangeAndItsEdgesAreGrabbable) {
  const ZoomBarLayout layout({400, 12}, false, ZoomBarRange{0.25, 0.75}, 12);
  EXPECT_EQ(layout.ThumbStart(), 100);
  EXPECT_EQ(layout.ThumbLength(), 200);
  EXPECT_EQ(layout.PartAt({99, 5}), ZoomBarPart::PageBefore);
  EXPECT_EQ(layout.PartAt({100, 5}), ZoomBarPart::StartEdge);
  EXPECT_EQ(layout.PartAt({108, 5}), ZoomBarPart::Center);
  EXPECT_EQ(layout.PartAt({292, 0}), ZoomBarPart::EndEdge);
  EXPECT_EQ(layout.PartAt({300, 11}), ZoomBarPart::PageAfter);
  EXPECT_EQ(layout.PartAt({300, 12}), ZoomBarPart::None);
  EXPECT_EQ(layout.PartAt({400, 5}), ZoomBarPart::None);
}

TEST(ZoomBarLayout, ATinyRangeGetsTheMinimumThumbAtItsRelativePosition) {
  const ZoomBarLayout layout({1000, 12}, false, ZoomBarRange{0.5, 0.5001}, 12);
  EXPECT_EQ(layout.ThumbLength(), ZoomBarLayout::kMinThumbLength);
  // start / (1 - span) of the 978 pixels the thumb can travel.
  EXPECT_EQ(layout.ThumbStart(), 489);
  EXPECT_EQ(layout.PartAt({490, 5}), ZoomBarPart::StartEdge);
  EXPECT_EQ(layout.PartAt({500, 5}), ZoomBarPart::Center);
  EXPECT_EQ(layout.PartAt({509, 5}), ZoomBarPart::EndEdge);
  EXPECT_NEAR(layout.StartForThumbStart(489), 0.5, 0.001);
  EXPECT_DOUBLE_EQ(layout.MinimumShownSpan(), 0.022);
}

TEST(ZoomBarLayout, AThinStripLiesAgainstTheFarEdgeYetTheWholeBreadthHits) {
  const ZoomBarLayout across({400, 12}, false, ZoomBarRange{0.0, 0.5}, 3);
  EXPECT_EQ(across.Strip(), (ZoomBarLayout::Rect{0, 9, 400, 12}));
  EXPECT_EQ(across.PartAt({50, 0}), ZoomBarPart::Center);
  const ZoomBarLayout upright({12, 400}, true, ZoomBarRange{0.5, 1.0}, 3);
  EXPECT_EQ(upright.Strip(), (ZoomBarLayout::Rect{9, 0, 12, 400}));
  EXPECT_EQ(upright.PartAt({0, 100}), ZoomBarPart::PageBefore);
  EXPECT_EQ(upright.PartAt({0, 300}), ZoomBarPart::Center);
}

} // namespace
