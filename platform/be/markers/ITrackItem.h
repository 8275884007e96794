#pragma once

#include <be/Export.h>
#include <be/markers/IMarkers.h>

#include <memory>

namespace BE {

/// A clip placed in a sequence: the markers of its clip, and the part of the
/// clip it uses, [in, out) in clip time.
class BE_API ITrackItem {
public:
  virtual ~ITrackItem();

  virtual IMarkersRef GetClipMarkers() const = 0;
  virtual TickTime GetClipInPoint() const noexcept = 0;
  virtual TickTime GetClipOutPoint() const noexcept = 0;
};

using ITrackItemRef = std::shared_ptr<ITrackItem>;

} // namespace BE
