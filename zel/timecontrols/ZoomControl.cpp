#include <zel/timecontrols/ZoomControl.h>

#include <zel/timecontrols/ZoomControlImpl.h>
#include <zel/views/ViewSupport.h>

#include <krocore/debug/Assert.h>

namespace ZEL {

ZoomControl::ZoomControl(const krocore::FlexWeakPtr<Commander>& superCommander) : ControlView(superCommander) {}

ZoomControl::~ZoomControl() {
  if (mImpl) mImpl->RemoveFromParent();
}

bool ZoomControl::Create(const std::weak_ptr<ViewBase>& parent, const Rect& bounds, unsigned int cookie,
                         bool showsPosition) {
  if (!KROCORE_ASSERT(!mImpl, "ZoomControl has already been initialized")) return false;
  const auto impl = krocore::MakeIntrusive<ZoomControlImpl>(cookie, showsPosition);
  if (!AttachImpl(*impl, parent, bounds)) return false;
  mImpl = impl;
  return true;
}

ControlViewImpl* ZoomControl::GetControlViewImpl() const { return mImpl.Get(); }

void ZoomControl::SetCommandIDs(int zoomInCommandID, int zoomOutCommandID) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->SetCommandIDs(zoomInCommandID, zoomOutCommandID);
}

void ZoomControl::GetPosition(unsigned int& position, unsigned int& maximum) const {
  position = maximum = 0;
  if (!detail::HasNode(mImpl)) return;
  position = mImpl->GetPosition().position;
  maximum = mImpl->GetPosition().maximum;
}

void ZoomControl::SetPosition(unsigned int position, unsigned int maximum) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->SetPosition(ZoomPosition{0, maximum}.Stepped(position));
}

krocore::utility::ImmutableString ZoomControl::GetStationID() const {
  if (!detail::HasNode(mImpl)) return {};
  return mImpl->GetStationID();
}

} // namespace ZEL
