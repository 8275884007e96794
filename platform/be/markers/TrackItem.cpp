#include <be/markers/TrackItem.h>

#include <be/markers/TrackItemImpl.h>

#include <utility>

namespace BE {

ITrackItem::~ITrackItem() = default;

TrackItem::TrackItem(IMarkersRef clipMarkers, TickTime inPoint, TickTime outPoint)
    : mImpl(std::make_unique<TrackItemImpl>()) {
  mImpl->mClipMarkers = std::move(clipMarkers);
  mImpl->mIn = inPoint;
  mImpl->mOut = outPoint;
}

TrackItem::~TrackItem() = default;

IMarkersRef TrackItem::GetClipMarkers() const { return mImpl->mClipMarkers; }

TickTime TrackItem::GetClipInPoint() const noexcept { return mImpl->mIn; }

TickTime TrackItem::GetClipOutPoint() const noexcept { return mImpl->mOut; }

} // namespace BE
