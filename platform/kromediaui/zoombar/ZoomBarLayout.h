#pragma once

// Where the parts of a zoom bar lie, for its size, range and thickness.

#include <kromediaui/Export.h>
#include <kromediaui/zoombar/ZoomBarRange.h>

#include <krocore/geom/Geometry.h>

#include <cstdint>

namespace kromediaui {

enum class ZoomBarPart : std::uint8_t { None, PageBefore, StartEdge, Center, EndEdge, PageAfter };

/// Along the axis (x of a horizontal bar, y of a vertical one):
///
///   0          thumbStart                         thumbEnd        length
///   |  page-   | start edge |  center  | end edge |   page+        |
///
/// The thumb is as long, against the bar, as the range against the whole,
/// but never shorter than kMinThumbLength, so that a tiny range keeps both
/// edges and its centre grabbable. A lengthened thumb travels the rest of the
/// bar in proportion to start / (1 - span), the range's relative position.
/// Across the axis the bar shows a strip of the given thickness against its
/// far edge (the bottom, or the right); the parts are hit across the whole
/// bar, so that a thin minimised strip is easy to reach.
class KROMEDIAUI_API ZoomBarLayout {
public:
  using Point = krocore::geom::PointT<int>;
  using Rect = krocore::geom::RectT<int>;
  using Extent = krocore::geom::ExtentT<int>;

  static constexpr int kEdgeLength = 8;
  static constexpr int kMinCenterLength = 6;
  static constexpr int kMinThumbLength = 2 * kEdgeLength + kMinCenterLength;

  ZoomBarLayout(Extent extent, bool isVertical, const ZoomBarRange& range, int thickness);

  int Length() const noexcept { return mLength; }
  /// The coordinate of a point along the axis.
  int Along(Point point) const noexcept { return mIsVertical ? point.y : point.x; }
  int ThumbStart() const noexcept { return mThumbStart; }
  int ThumbLength() const noexcept { return mThumbLength; }
  /// The strip that is painted, across its thickness, the whole length.
  Rect Strip() const;
  /// A part's rectangle within the strip; empty for None.
  Rect PartRect(ZoomBarPart part) const;
  ZoomBarPart PartAt(Point point) const;
  /// The fraction of the whole at a coordinate along the axis.
  double FractionAt(double along) const noexcept;
  /// The range start that puts the thumb's start at `thumbStart`.
  double StartForThumbStart(double thumbStart) const noexcept;
  /// The narrowest span the thumb shows as it is: shorter ranges get the minimum thumb.
  double MinimumShownSpan() const noexcept;

private:
  Rect Span(int from, int to) const;
  int Travel() const noexcept { return mLength - mThumbLength; }
  /// Edges share a thumb shorter than the minimum fairly; the centre keeps what is left.
  int EdgeLength() const noexcept { return mThumbLength < kMinThumbLength ? mThumbLength / 3 : kEdgeLength; }

  bool mIsVertical;
  int mLength;
  int mBreadth;
  int mThickness;
  int mThumbStart = 0;
  int mThumbLength = 0;
  ZoomBarRange mRange;
};

} // namespace kromediaui
