#pragma once

#include <cstddef>
#include <cstdint>

namespace BE::MarkerUtils {

/// The eight marker colours, as a marker stores its colour and a marker file
/// writes it. Palettes map each ID to a colour of their own.
enum class MarkerColorID : std::uint8_t {
  kGreen = 0,
  kRed = 1,
  kPurple = 2,
  kOrange = 3,
  kYellow = 4,
  kWhite = 5,
  kBlue = 6,
  kCyan = 7,
};

inline constexpr std::size_t kMarkerColorCount = 8;

/// Whether an index read from outside names one of the eight colours.
constexpr bool IsMarkerColorIndex(std::int64_t index) noexcept {
  return index >= 0 && index < static_cast<std::int64_t>(kMarkerColorCount);
}

} // namespace BE::MarkerUtils
