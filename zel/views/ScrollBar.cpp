#include <zel/views/ScrollBar.h>

#include <zel/views/ScrollBarImpl.h>
#include <zel/views/ViewSupport.h>

#include <algorithm>
#include <climits>

namespace ZEL {
namespace {

constexpr int kDefaultThickness = 15;

} // namespace

ScrollBar::ScrollBar(const krocore::FlexWeakPtr<Commander>& superCommander) : ControlView(superCommander) {}

ScrollBar::~ScrollBar() {
  if (mImpl) mImpl->RemoveFromParent();
}

bool ScrollBar::Create(const std::weak_ptr<ViewBase>& parent, const Rect& bounds, Orientation orientation,
                       unsigned int cookie) {
  const auto impl = krocore::MakeIntrusive<ScrollBarImpl>(orientation == Orientation::Vertical, cookie);
  // A bar made again keeps its range and position.
  if (mImpl) impl->SetRange(mImpl->GetRange());
  if (!AttachImpl(*impl, parent, bounds)) return false;
  mImpl = impl;
  return true;
}

int ScrollBar::GetDefaultSize() { return kDefaultThickness; }

ControlViewImpl* ScrollBar::GetControlViewImpl() const { return mImpl.Get(); }

void ScrollBar::SetScrollParameters(int minimum, int maximum, int page, int step) {
  if (!detail::HasNode(mImpl)) return;
  ScrollRange range = mImpl->GetRange();
  range.minimum = minimum;
  range.maximum = maximum;
  range.page = page;
  range.step = step;
  mImpl->SetRange(range);
}

void ScrollBar::GetScrollParameters(int& minimum, int& maximum, int& page, int& step) const {
  if (!detail::HasNode(mImpl)) return;
  const ScrollRange& range = mImpl->GetRange();
  minimum = range.minimum;
  maximum = range.maximum;
  page = range.page;
  step = range.step;
}

void ScrollBar::SetScrollBarPosition(int position, bool notify) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->MoveTo(position, notify);
}

int ScrollBar::GetScrollBarPosition() const {
  if (!detail::HasNode(mImpl)) return 0;
  return mImpl->GetRange().position;
}

void ScrollBar::OffsetScrollBarPosition(int delta) {
  if (!detail::HasNode(mImpl)) return;
  const long long target = static_cast<long long>(mImpl->GetRange().position) + delta;
  mImpl->MoveTo(static_cast<int>(std::clamp<long long>(target, INT_MIN, INT_MAX)), true);
}

int ScrollBar::GetStep() const {
  if (!detail::HasNode(mImpl)) return 0;
  return mImpl->GetRange().step;
}

bool ScrollBar::IsScrollable() const {
  if (!detail::HasNode(mImpl)) return false;
  return mImpl->GetRange().IsScrollable();
}

void ScrollBar::SetOuterCornersRoundingRadius(float radius) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->SetCornerRadius(radius);
}

krocore::utility::ImmutableString ScrollBar::GetStationID() const {
  if (!detail::HasNode(mImpl)) return {};
  return mImpl->GetStationID();
}

} // namespace ZEL
