#include <zel/views/ScrollBar.h>

#include <zel/views/ScrollBarImpl.h>

#include <krocore/debug/Assert.h>

#include <algorithm>
#include <climits>

/// Opens every ScrollBar operation: without a node, report and return the neutral value.
#define ZEL_SCROLLBAR_REQUIRE_IMPL(...)                                                                     \
  if (!KROCORE_ASSERT(mImpl, "ScrollBar has not been initialized")) return __VA_ARGS__

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
  ZEL_SCROLLBAR_REQUIRE_IMPL();
  ScrollRange range = mImpl->GetRange();
  range.minimum = minimum;
  range.maximum = maximum;
  range.page = page;
  range.step = step;
  mImpl->SetRange(range);
}

void ScrollBar::GetScrollParameters(int& minimum, int& maximum, int& page, int& step) const {
  ZEL_SCROLLBAR_REQUIRE_IMPL();
  const ScrollRange& range = mImpl->GetRange();
  minimum = range.minimum;
  maximum = range.maximum;
  page = range.page;
  step = range.step;
}

void ScrollBar::SetScrollBarPosition(int position, bool notify) {
  ZEL_SCROLLBAR_REQUIRE_IMPL();
  mImpl->MoveTo(position, notify);
}

int ScrollBar::GetScrollBarPosition() const {
  ZEL_SCROLLBAR_REQUIRE_IMPL(0);
  return mImpl->GetRange().position;
}

void ScrollBar::OffsetScrollBarPosition(int delta) {
  ZEL_SCROLLBAR_REQUIRE_IMPL();
  const long long target = static_cast<long long>(mImpl->GetRange().position) + delta;
  mImpl->MoveTo(static_cast<int>(std::clamp<long long>(target, INT_MIN, INT_MAX)), true);
}

int ScrollBar::GetStep() const {
  ZEL_SCROLLBAR_REQUIRE_IMPL(0);
  return mImpl->GetRange().step;
}

bool ScrollBar::IsScrollable() const {
  ZEL_SCROLLBAR_REQUIRE_IMPL(false);
  return mImpl->GetRange().IsScrollable();
}

void ScrollBar::SetOuterCornersRoundingRadius(float radius) {
  ZEL_SCROLLBAR_REQUIRE_IMPL();
  mImpl->SetCornerRadius(radius);
}

krocore::utility::ImmutableString ScrollBar::GetStationID() const {
  ZEL_SCROLLBAR_REQUIRE_IMPL({});
  return mImpl->GetStationID();
}

} // namespace ZEL
