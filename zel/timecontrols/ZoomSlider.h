#pragma once

#include <zel/Export.h>
#include <zel/timecontrols/ZoomMessages.h>
#include <zel/views/ControlView.h>

#include <krocore/utility/ImmutableString.h>

namespace ZEL {

class ZoomSliderImpl;

/// The zoom position as a slider: a knob on a track, zoomed out at the left
/// and in at the right, a tick for each level when there is room.
///
///   |----|----|--[knob]--|----|
///
/// Dragging the knob (or pressing the track, which brings the knob there)
/// broadcasts changing messages and, at the release, a changed message on
/// the slider's station (ZoomPositionChangingMessage, ZoomPositionChangedMessage);
/// a notch of the wheel moves one level. Until Create, its operations report
/// "ZoomSlider has not been initialized".
class ZEL_API ZoomSlider : public ControlView {
public:
  explicit ZoomSlider(const krocore::FlexWeakPtr<Commander>& superCommander);
  ~ZoomSlider() override;

  /// `cookie` is carried by every message of this slider.
  bool Create(const std::weak_ptr<ViewBase>& parent, const Rect& bounds, unsigned int cookie);
  void GetPosition(unsigned int& position, unsigned int& maximum) const;
  /// Shows `position` of the levels 0 to `maximum`, without a broadcast.
  void SetPosition(unsigned int position, unsigned int maximum);
  /// The station of the slider's messages; empty before Create.
  krocore::utility::ImmutableString GetStationID() const;

protected:
  ControlViewImpl* GetControlViewImpl() const override;

private:
  krocore::IntrusivePtr<ZoomSliderImpl> mImpl;
};

} // namespace ZEL
