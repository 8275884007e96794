#pragma once

#include <cstdint>

namespace BE {

/// Where a time meets a marker: at its start, at the end of its duration, or
/// inside the span between them.
enum class MarkerLocation : std::uint8_t {
  kStart,
  kEnd,
  kInside,
};

} // namespace BE
