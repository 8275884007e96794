#pragma once

#include <krocore/utility/Flags.h>

#include <cstdint>

namespace kroui::ui {

/// The modifier keys held with a key, as one byte. The bit values are those
/// that shortcut files store, so they must never change.
using ModifierKeys = krocore::utility::Flags<std::uint8_t>;

inline constexpr std::uint8_t kModKey_Shift = 0x02;
inline constexpr std::uint8_t kModKey_Control = 0x04;
inline constexpr std::uint8_t kModKey_Alt = 0x10;
inline constexpr std::uint8_t kModKey_All = kModKey_Shift | kModKey_Control | kModKey_Alt;

} // namespace kroui::ui
