#include <zel/timecontrols/AudioZoomBarControl.h>

#include <zel/timecontrols/AudioZoomBarControlImpl.h>
#include <zel/views/ViewSupport.h>

#include <krocore/debug/Assert.h>

namespace ZEL {

AudioZoomBarControl::AudioZoomBarControl(const krocore::FlexWeakPtr<Commander>& superCommander)
    : ControlView(superCommander) {}

AudioZoomBarControl::~AudioZoomBarControl() {
  if (mImpl) mImpl->RemoveFromParent();
}

bool AudioZoomBarControl::Create(const std::weak_ptr<ViewBase>& parent, const Rect& bounds, unsigned int cookie) {
  if (!KROCORE_ASSERT(!mImpl, "AudioZoomBarControl has already been initialized")) return false;
  const auto impl = krocore::MakeIntrusive<AudioZoomBarControlImpl>(cookie);
  if (!AttachImpl(*impl, parent, bounds)) return false;
  impl->FitBar();
  mImpl = impl;
  return true;
}

int AudioZoomBarControl::GetDefaultWidth() { return kromediaui::UI_ZoomBar::GetDefaultSize(); }

ControlViewImpl* AudioZoomBarControl::GetControlViewImpl() const { return mImpl.Get(); }

float AudioZoomBarControl::GetValueMin() const {
  if (!detail::HasNode(mImpl)) return 0.f;
  return mImpl->GetWindow().minimum;
}

void AudioZoomBarControl::SetValueMin(float value) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->SetWindowEnd(true, value);
}

float AudioZoomBarControl::GetValueMax() const {
  if (!detail::HasNode(mImpl)) return 0.f;
  return mImpl->GetWindow().maximum;
}

void AudioZoomBarControl::SetValueMax(float value) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->SetWindowEnd(false, value);
}

float AudioZoomBarControl::GetZoomInValue() const {
  if (!detail::HasNode(mImpl)) return 0.f;
  return mImpl->GetZoomInValue();
}

void AudioZoomBarControl::SetZoomInValue(float value) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->SetZoomInValue(value);
}

float AudioZoomBarControl::GetZoomOutValue() const {
  if (!detail::HasNode(mImpl)) return 0.f;
  return mImpl->GetZoomOutValue();
}

void AudioZoomBarControl::SetZoomOutValue(float value) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->SetZoomOutValue(value);
}

bool AudioZoomBarControl::IsZooming() const {
  if (!detail::HasNode(mImpl)) return false;
  return mImpl->IsZooming();
}

krocore::utility::ImmutableString AudioZoomBarControl::GetStationID() const {
  if (!detail::HasNode(mImpl)) return {};
  return mImpl->GetStationID();
}

} // namespace ZEL
