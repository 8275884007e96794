#include <kromediaui/zoombar/ZoomBarLayout.h>

#include <algorithm>
#include <cmath>

namespace kromediaui {

ZoomBarLayout::ZoomBarLayout(Extent extent, bool isVertical, const ZoomBarRange& range, int thickness)
    : mIsVertical(isVertical),
      mLength(std::max(0, isVertical ? extent.height : extent.width)),
      mBreadth(std::max(0, isVertical ? extent.width : extent.height)),
      mThickness(std::clamp(thickness, 0, mBreadth)),
      mRange(range) {
  if (mLength <= 0) return;
  const double span = std::clamp(range.Span(), 0.0, 1.0);
  mThumbLength = std::clamp(static_cast<int>(std::lround(span * mLength)), std::min(kMinThumbLength, mLength), mLength);
  if (span < 1.0) {
    const double position = std::clamp(range.start / (1.0 - span), 0.0, 1.0);
    mThumbStart = static_cast<int>(std::lround(position * Travel()));
  }
}

ZoomBarLayout::Rect ZoomBarLayout::Span(int from, int to) const {
  const int across = mBreadth - mThickness;
  return mIsVertical ? Rect{across, from, mBreadth, to} : Rect{from, across, to, mBreadth};
}

ZoomBarLayout::Rect ZoomBarLayout::Strip() const { return Span(0, mLength); }

ZoomBarLayout::Rect ZoomBarLayout::PartRect(ZoomBarPart part) const {
  const int thumbEnd = mThumbStart + mThumbLength;
  const int edge = EdgeLength();
  switch (part) {
  case ZoomBarPart::PageBefore: return Span(0, mThumbStart);
  case ZoomBarPart::StartEdge: return Span(mThumbStart, mThumbStart + edge);
  case ZoomBarPart::Center: return Span(mThumbStart + edge, thumbEnd - edge);
  case ZoomBarPart::EndEdge: return Span(thumbEnd - edge, thumbEnd);
  case ZoomBarPart::PageAfter: return Span(thumbEnd, mLength);
  default: return {};
  }
}

ZoomBarPart ZoomBarLayout::PartAt(Point point) const {
  // Tested along the axis only: the whole breadth of the bar is live.
  const int across = mIsVertical ? point.x : point.y, along = Along(point);
  if (across < 0 || across >= mBreadth || along < 0 || along >= mLength) return ZoomBarPart::None;
  const int thumbEnd = mThumbStart + mThumbLength;
  if (along < mThumbStart) return ZoomBarPart::PageBefore;
  if (along < mThumbStart + EdgeLength()) return ZoomBarPart::StartEdge;
  if (along < thumbEnd - EdgeLength()) return ZoomBarPart::Center;
  if (along < thumbEnd) return ZoomBarPart::EndEdge;
  return ZoomBarPart::PageAfter;
}

double ZoomBarLayout::FractionAt(double along) const noexcept {
  return mLength > 0 ? std::clamp(along / mLength, 0.0, 1.0) : 0.0;
}

double ZoomBarLayout::StartForThumbStart(double thumbStart) const noexcept {
  if (Travel() <= 0) return 0.0;
  const double span = std::clamp(mRange.Span(), 0.0, 1.0);
  return std::clamp(thumbStart, 0.0, static_cast<double>(Travel())) / Travel() * (1.0 - span);
}

double ZoomBarLayout::MinimumShownSpan() const noexcept {
  return mLength > 0 ? std::min(1.0, static_cast<double>(kMinThumbLength) / mLength) : 1.0;
}

} // namespace kromediaui
