#pragma once

#include <algorithm>

namespace ZEL {

/// A zoom level among the host's levels: `position` from 0 (zoomed out
/// furthest) to `maximum` (zoomed in furthest). A maximum of 0 means the
/// host gave no levels: the position then never moves.
struct ZoomPosition {
  unsigned int position = 0;
  unsigned int maximum = 0;

  bool HasLevels() const noexcept { return maximum > 0; }
  bool CanZoomIn() const noexcept { return position < maximum; }
  bool CanZoomOut() const noexcept { return position > 0; }
  /// `delta` levels further in (negative: out), held inside the levels.
  ZoomPosition Stepped(long long delta) const noexcept {
    const long long moved = std::clamp<long long>(static_cast<long long>(position) + delta, 0, maximum);
    return {static_cast<unsigned int>(moved), maximum};
  }
  bool operator==(const ZoomPosition&) const noexcept = default;
};

} // namespace ZEL
