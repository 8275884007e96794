#pragma once

// Private: what the nodes of ZoomControl and ZoomSlider share.

#include <zel/timecontrols/ZoomPosition.h>
#include <zel/views/ControlViewImpl.h>

#include <krocore/messaging/Station.h>

namespace ZEL {

/// A control node that shows a zoom position and broadcasts the user's
/// changes of it, with its cookie, on a station of its own.
class ZoomPositionNode : public ControlViewImpl {
public:
  const ZoomPosition& GetPosition() const noexcept { return mPosition; }
  /// Shows the position, without a broadcast.
  void SetPosition(const ZoomPosition& position);
  const krocore::utility::ImmutableString& GetStationID() const noexcept { return mStation.GetID(); }

protected:
  explicit ZoomPositionNode(unsigned int cookie);
  ~ZoomPositionNode() override;

  /// Shows the position the user gave; true when it moved.
  bool MoveTo(const ZoomPosition& position);
  void BroadcastChanging() const;
  void BroadcastChanged() const;

private:
  krocore::messaging::Station mStation;
  unsigned int mCookie;
  ZoomPosition mPosition;
};

} // namespace ZEL
