#pragma once

#include <zel/Export.h>
#include <zel/timecontrols/ZoomMessages.h>
#include <zel/views/ControlView.h>

#include <krocore/utility/ImmutableString.h>

namespace ZEL {

class AudioZoomBarControlImpl;

/// A vertical zoom bar beside an audio view, for the amplitude axis. Values
/// are amplitudes as fractions of full scale, 0 (silence) to 1 (full
/// scale); the bar's thumb is the window of that scale the view shows, full
/// scale at the top:
///
///   1 +-----+
///     |     |
///     |#####| <- value max      dragging an edge zooms; the centre pans;
///     |#####|                   the track pages; see kromediaui::UI_ZoomBar
///     |#####| <- value min
///   0 +-----+
///
/// The window is never narrower than the zoom-in value nor wider than the
/// zoom-out value. By default it shows the whole scale (0 to 1), may narrow
/// to 1/64 of it (about 36 dB of extra gain) and widen to all of it.
/// Every change the user makes is broadcast on the control's station:
/// AudioZoomChangingMessage during a drag, AudioZoomChangedMessage when a
/// change is complete. The bar takes its colours from the theme. Until
/// Create, its operations report "AudioZoomBarControl has not been initialized".
class ZEL_API AudioZoomBarControl : public ControlView {
public:
  static constexpr float kDefaultZoomInValue = 1.f / 64.f;
  static constexpr float kDefaultZoomOutValue = 1.f;

  explicit AudioZoomBarControl(const krocore::FlexWeakPtr<Commander>& superCommander);
  ~AudioZoomBarControl() override;

  /// `cookie` is carried by every message of this control.
  bool Create(const std::weak_ptr<ViewBase>& parent, const Rect& bounds, unsigned int cookie);
  /// The width of the control, in pixels.
  static int GetDefaultWidth();

  // The window shown. Setting it does not broadcast; it is kept inside the
  // scale and the zoom limits (an end that would cross the other is moved).
  float GetValueMin() const;
  void SetValueMin(float value);
  float GetValueMax() const;
  void SetValueMax(float value);
  /// The narrowest window, as a fraction of full scale (0 to 1).
  float GetZoomInValue() const;
  void SetZoomInValue(float value);
  /// The widest window, as a fraction of full scale (0 to 1).
  float GetZoomOutValue() const;
  void SetZoomOutValue(float value);
  /// Whether the user is dragging an edge or the window now.
  bool IsZooming() const;
  /// The station of the control's messages; empty before Create.
  krocore::utility::ImmutableString GetStationID() const;

protected:
  ControlViewImpl* GetControlViewImpl() const override;

private:
  krocore::IntrusivePtr<AudioZoomBarControlImpl> mImpl;
};

} // namespace ZEL
