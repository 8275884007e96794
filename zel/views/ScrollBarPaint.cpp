// ScrollBarImpl: how a scroll bar looks.

#include <zel/views/ScrollBarImpl.h>

#include <zel/views/DC.h>

#include <cmath>
#include <numbers>
#include <vector>

namespace ZEL {
namespace {

using Point = DC::Point;
using Rect = DC::Rect;
using Key = krocore::utility::ImmutableString;

// The theme's scroll bar colours, as the registry names them.
const Key kColor_Track{"colors.kls.audio.zoom.bar.control.background"};
const Key kColor_Thumb{"colors.kls.audio.zoom.bar.control.thumb"};
const Key kColor_ThumbActive{"colors.kls.audio.zoom.bar.control.thumb.active"};
const Key kColor_Arrow{"colors.kls.text"};
const Key kColor_ArrowDisabled{"colors.kls.text.disabled"};

constexpr int kSegmentsPerCorner = 6;

// The outline of a rectangle whose corners are quarter circles of `radius`.
std::vector<Point> RoundedRect(const Rect& r, float radius) {
  const float rr = std::min({radius, r.Width() / 2.f, r.Height() / 2.f});
  const float centres[4][2] = {{r.right - rr, r.top + rr}, {r.right - rr, r.bottom - rr},
                               {r.left + rr, r.bottom - rr}, {r.left + rr, r.top + rr}};
  std::vector<Point> outline;
  for (int corner = 0; corner < 4; ++corner) {
    for (int i = 0; i <= kSegmentsPerCorner; ++i) {
      const double angle = std::numbers::pi / 2 * (corner - 1 + static_cast<double>(i) / kSegmentsPerCorner);
      outline.push_back({static_cast<int>(std::lround(centres[corner][0] + rr * std::cos(angle))),
                         static_cast<int>(std::lround(centres[corner][1] + rr * std::sin(angle)))});
    }
  }
  return outline;
}

// A triangle in `box` pointing towards the start (`towardsStart`) or the end of the axis.
std::vector<Point> Arrow(const Rect& box, bool isVertical, bool towardsStart) {
  const int inset = std::max(2, std::min(box.Width(), box.Height()) / 4);
  const Rect r = box.Inset(inset, inset);
  const Point middle{(r.left + r.right) / 2, (r.top + r.bottom) / 2};
  if (isVertical) {
    return towardsStart ? std::vector<Point>{{middle.x, r.top}, {r.right, r.bottom}, {r.left, r.bottom}}
                        : std::vector<Point>{{r.left, r.top}, {r.right, r.top}, {middle.x, r.bottom}};
  }
  return towardsStart ? std::vector<Point>{{r.left, middle.y}, {r.right, r.top}, {r.right, r.bottom}}
                      : std::vector<Point>{{r.left, r.top}, {r.right, middle.y}, {r.left, r.bottom}};
}

} // namespace

void ScrollBarImpl::PaintSelf(kroui::drawbot::Drawbot& drawbot) {
  DC dc(drawbot);
  const Rect whole = GetLocalBounds();
  if (mCornerRadius > 0.f) {
    dc.FillPolygon(RoundedRect(whole, mCornerRadius), kColor_Track);
  } else {
    dc.FillRect(whole, kColor_Track);
  }
  const ScrollBarLayout layout = Layout();
  const Rect thumb = layout.PartRect(ScrollBarPart::Thumb);
  // The thumb stands a little inside the track across the axis.
  if (!thumb.IsEmpty()) {
    dc.FillRect(mIsVertical ? thumb.Inset(2, 0) : thumb.Inset(0, 2),
                mPressed == ScrollBarPart::Thumb ? kColor_ThumbActive : kColor_Thumb);
  }
  const Key& arrow = IsEnabledThroughAncestors() && mRange.IsScrollable() ? kColor_Arrow : kColor_ArrowDisabled;
  dc.FillPolygon(Arrow(layout.PartRect(ScrollBarPart::DecrementArrow), mIsVertical, true), arrow);
  dc.FillPolygon(Arrow(layout.PartRect(ScrollBarPart::IncrementArrow), mIsVertical, false), arrow);
}

} // namespace ZEL
