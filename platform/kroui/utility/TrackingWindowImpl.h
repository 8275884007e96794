#pragma once

// Private: what a TrackingWindow holds.

#include <kroui/os/NativeTypes.h>

#include <cstdint>

namespace kroui::utility {

struct TrackingWindowImpl {
  HWND window = nullptr;
  /// The backend that made the window: a replaced backend took it along.
  std::uint64_t backendGeneration = 0;
};

} // namespace kroui::utility
