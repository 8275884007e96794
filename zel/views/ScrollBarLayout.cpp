#include <zel/views/ScrollBarLayout.h>

#include <cstdint>

namespace ZEL {
namespace {

// a * b / c, rounded to the nearest, without overflow for any int inputs.
int MulDivRound(std::int64_t a, std::int64_t b, std::int64_t c) {
  if (c == 0) return 0;
  const std::int64_t product = a * b;
  const std::int64_t half = c / 2;
  return static_cast<int>(product >= 0 ? (product + half) / c : (product - half) / c);
}

} // namespace

ScrollBarLayout::ScrollBarLayout(Extent extent, bool isVertical, const ScrollRange& range)
    : mIsVertical(isVertical),
      mLength(std::max(0, isVertical ? extent.height : extent.width)),
      mThickness(std::max(0, isVertical ? extent.width : extent.height)),
      mArrow(std::min(mThickness, mLength / 2)),
      mRange(range) {
  if (!range.IsScrollable() || TrackLength() <= 0) return;
  const std::int64_t span = static_cast<std::int64_t>(range.maximum) - range.minimum;
  mThumbLength = std::clamp(MulDivRound(TrackLength(), range.page, span), std::min(kMinThumbLength, TrackLength()),
                            TrackLength());
  mThumbStart = TrackStart() + MulDivRound(Travel(), static_cast<std::int64_t>(range.position) - range.minimum,
                                           static_cast<std::int64_t>(range.MaxPosition()) - range.minimum);
}

ScrollBarLayout::Rect ScrollBarLayout::Span(int from, int to) const {
  return mIsVertical ? Rect{0, from, mThickness, to} : Rect{from, 0, to, mThickness};
}

ScrollBarLayout::Rect ScrollBarLayout::PartRect(ScrollBarPart part) const {
  const int thumbEnd = mThumbStart + mThumbLength;
  switch (part) {
  case ScrollBarPart::DecrementArrow: return Span(0, mArrow);
  case ScrollBarPart::IncrementArrow: return Span(mLength - mArrow, mLength);
  case ScrollBarPart::PageDecrement: return mThumbLength ? Span(TrackStart(), mThumbStart) : Rect{};
  case ScrollBarPart::PageIncrement: return mThumbLength ? Span(thumbEnd, mLength - mArrow) : Rect{};
  case ScrollBarPart::Thumb: return mThumbLength ? Span(mThumbStart, thumbEnd) : Rect{};
  default: return {};
  }
}

ScrollBarPart ScrollBarLayout::PartAt(Point point) const {
  for (const ScrollBarPart part : {ScrollBarPart::DecrementArrow, ScrollBarPart::IncrementArrow, ScrollBarPart::Thumb,
                                   ScrollBarPart::PageDecrement, ScrollBarPart::PageIncrement}) {
    if (PartRect(part).Contains(point)) return part;
  }
  return ScrollBarPart::None;
}

int ScrollBarLayout::PositionForThumbStart(int thumbStart) const {
  if (Travel() <= 0) return mRange.minimum;
  const int moved = std::clamp(thumbStart - TrackStart(), 0, Travel());
  const std::int64_t positions = static_cast<std::int64_t>(mRange.MaxPosition()) - mRange.minimum;
  return mRange.Clamp(mRange.minimum + MulDivRound(moved, positions, Travel()));
}

} // namespace ZEL
