#pragma once

#include <zel/Export.h>
#include <zel/timecontrols/ZoomMessages.h>
#include <zel/views/ControlView.h>

#include <krocore/utility/ImmutableString.h>

namespace ZEL {

class ZoomControlImpl;

/// Two buttons that zoom a view out and in, with the zoom position between
/// them when asked for:
///
///   [ - ][====|position|........][ + ]     (Create with showsPosition)
///   [ - ][ + ]                              (without)
///
/// A click posts the button's command (SetCommandIDs) through the commander
/// chain, starting at the control, and moves the position one level, which
/// is broadcast on the control's station (ZoomPositionChangedMessage). With
/// levels given (SetPosition with a maximum above 0) a button at its end of
/// the levels is dimmed and does nothing. Until Create, its operations
/// report "ZoomControl has not been initialized".
class ZEL_API ZoomControl : public ControlView {
public:
  explicit ZoomControl(const krocore::FlexWeakPtr<Commander>& superCommander);
  ~ZoomControl() override;

  /// `cookie` is carried by every message of this control.
  bool Create(const std::weak_ptr<ViewBase>& parent, const Rect& bounds, unsigned int cookie, bool showsPosition);
  /// The commands the zoom-in and zoom-out buttons post; 0 posts none.
  void SetCommandIDs(int zoomInCommandID, int zoomOutCommandID);
  void GetPosition(unsigned int& position, unsigned int& maximum) const;
  /// Shows `position` of the levels 0 to `maximum`, without a broadcast.
  void SetPosition(unsigned int position, unsigned int maximum);
  /// The station of the control's messages; empty before Create.
  krocore::utility::ImmutableString GetStationID() const;

protected:
  ControlViewImpl* GetControlViewImpl() const override;

private:
  krocore::IntrusivePtr<ZoomControlImpl> mImpl;
};

} // namespace ZEL
