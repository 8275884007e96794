#pragma once

#include <be/Export.h>
#include <be/markers/ITrackItem.h>

#include <memory>

namespace BE {

class TrackItemImpl;

/// The model's track item.
class BE_API TrackItem final : public ITrackItem {
public:
  TrackItem(IMarkersRef clipMarkers, TickTime inPoint, TickTime outPoint);
  ~TrackItem() override;

  IMarkersRef GetClipMarkers() const override;
  TickTime GetClipInPoint() const noexcept override;
  TickTime GetClipOutPoint() const noexcept override;

private:
  std::unique_ptr<TrackItemImpl> mImpl;
};

} // namespace BE
