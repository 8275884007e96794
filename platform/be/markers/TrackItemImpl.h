#pragma once

#include <be/markers/IMarkers.h>

namespace BE {

class TrackItemImpl {
public:
  IMarkersRef mClipMarkers;
  TickTime mIn;
  TickTime mOut;
};

} // namespace BE
