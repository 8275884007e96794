#pragma once

// Private: the arithmetic of a scroll bar, apart from its events and paint.

#include <krocore/geom/Geometry.h>

#include <algorithm>
#include <cstdint>

namespace ZEL {

/// A scroll bar's range and position, the position always inside the range:
/// from the minimum to the maximum less one page.
struct ScrollRange {
  int minimum = 0;
  int maximum = 0;
  int page = 0;
  int step = 1;
  int position = 0;

  int MaxPosition() const noexcept { return std::max(minimum, maximum - page); }
  bool IsScrollable() const noexcept { return MaxPosition() > minimum; }
  int Clamp(int p) const noexcept { return std::clamp(p, minimum, MaxPosition()); }
};

enum class ScrollBarPart : std::uint8_t { None, DecrementArrow, IncrementArrow, PageDecrement, PageIncrement, Thumb };

/// Where the parts of a bar lie, for its size and range. Along the axis:
///
///   0      arrow   thumbStart   thumbEnd    length-arrow   length
///   | arrow |  page-  | thumb    | page+      | arrow |
///
/// The arrows are square (shorter when the bar is too short for both); the
/// thumb is as long, against the track, as the page against the range, but
/// never shorter than kMinThumbLength. A bar with nothing to scroll has no thumb.
class ScrollBarLayout {
public:
  using Point = krocore::geom::PointT<int>;
  using Rect = krocore::geom::RectT<int>;
  using Extent = krocore::geom::ExtentT<int>;

  static constexpr int kMinThumbLength = 8;

  ScrollBarLayout(Extent extent, bool isVertical, const ScrollRange& range);

  Rect PartRect(ScrollBarPart part) const;
  ScrollBarPart PartAt(Point point) const;
  /// The coordinate of a point along the bar's axis.
  int Along(Point point) const noexcept { return mIsVertical ? point.y : point.x; }
  int ThumbStart() const noexcept { return mThumbStart; }
  int ThumbLength() const noexcept { return mThumbLength; }
  /// The position that puts the thumb's start at `thumbStart`, rounded to the nearest.
  int PositionForThumbStart(int thumbStart) const;

private:
  Rect Span(int from, int to) const;
  int TrackStart() const noexcept { return mArrow; }
  int TrackLength() const noexcept { return mLength - 2 * mArrow; }
  int Travel() const noexcept { return TrackLength() - mThumbLength; }

  bool mIsVertical;
  int mLength;
  int mThickness;
  int mArrow;
  int mThumbStart = 0;
  int mThumbLength = 0;
  ScrollRange mRange;
};

} // namespace ZEL
