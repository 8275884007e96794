#include <zel/timecontrols/ZoomSlider.h>

#include <zel/timecontrols/ZoomSliderImpl.h>
#include <zel/views/ViewSupport.h>

#include <krocore/debug/Assert.h>

namespace ZEL {

ZoomSlider::ZoomSlider(const krocore::FlexWeakPtr<Commander>& superCommander) : ControlView(superCommander) {}

ZoomSlider::~ZoomSlider() {
  if (mImpl) mImpl->RemoveFromParent();
}

bool ZoomSlider::Create(const std::weak_ptr<ViewBase>& parent, const Rect& bounds, unsigned int cookie) {
  if (!KROCORE_ASSERT(!mImpl, "ZoomSlider has already been initialized")) return false;
  const auto impl = krocore::MakeIntrusive<ZoomSliderImpl>(cookie);
  if (!AttachImpl(*impl, parent, bounds)) return false;
  mImpl = impl;
  return true;
}

ControlViewImpl* ZoomSlider::GetControlViewImpl() const { return mImpl.Get(); }

void ZoomSlider::GetPosition(unsigned int& position, unsigned int& maximum) const {
  position = maximum = 0;
  if (!detail::HasNode(mImpl)) return;
  position = mImpl->GetPosition().position;
  maximum = mImpl->GetPosition().maximum;
}

void ZoomSlider::SetPosition(unsigned int position, unsigned int maximum) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->SetPosition(ZoomPosition{0, maximum}.Stepped(position));
}

krocore::utility::ImmutableString ZoomSlider::GetStationID() const {
  if (!detail::HasNode(mImpl)) return {};
  return mImpl->GetStationID();
}

} // namespace ZEL
