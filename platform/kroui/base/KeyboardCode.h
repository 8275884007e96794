#pragma once

#include <kroui/Export.h>

#include <cstdint>

namespace kroui::ui {

/// One key, numbered as Windows numbers its virtual keys on every OS, so that a
/// saved shortcut names the same key everywhere ('A' = 0x41, F1 = 0x70,
/// Left = 0x25). The named keys are in <kroui/base/KeyTable.h>.
///
///   bits  0..15  virtual key (every named key is below 0x100; 0 = no key)
///   bit   24     extended: the key is of the extended set, as Windows marks
///                the dedicated arrows, Insert, Delete, Home, End, Page Up/Down,
///                keypad Enter and keypad divide (the same bit of a key
///                message's lParam, so a Win32 backend copies it across)
///   bits 16..23, 25..31  reserved: never set by kroui, kept as given so that a
///                value read from a file round-trips, ignored by every question
///
/// The extended bit tells where a key sits (the dedicated Left arrow against the
/// keypad's 4 with Num Lock off; the main Enter against the keypad's), not which
/// key it is: equality compares the whole value, GetControlCode(false) compares keys.
class KROUI_API KeyboardCode {
public:
  static constexpr std::uint32_t kVirtualKeyMask = 0x0000FFFF;
  static constexpr std::uint32_t kFlag_Extended = 0x01000000;

  constexpr KeyboardCode() noexcept = default;
  constexpr explicit KeyboardCode(std::uint32_t value) noexcept : mValue(value) {}
  static constexpr KeyboardCode Compose(std::uint32_t virtualKey, bool extended) noexcept {
    return KeyboardCode((virtualKey & kVirtualKeyMask) | (extended ? kFlag_Extended : 0));
  }

  /// With `portable`, the virtual key alone: the value a saved shortcut holds,
  /// free of where the key sits. Without, the whole value as constructed.
  constexpr std::uint32_t GetValue(bool portable) const noexcept {
    return portable ? (mValue & kVirtualKeyMask) : mValue;
  }

  /// The virtual key that names what the key does, for keys that type nothing
  /// (arrows, Home, Enter). With `keepExtended`, the extended bit stays, so
  /// that the keypad's Enter and the main Enter remain apart.
  constexpr std::uint32_t GetControlCode(bool keepExtended) const noexcept {
    return mValue & (keepExtended ? (kVirtualKeyMask | kFlag_Extended) : kVirtualKeyMask);
  }

  constexpr bool IsNone() const noexcept { return (mValue & kVirtualKeyMask) == 0; }
  constexpr bool IsExtended() const noexcept { return (mValue & kFlag_Extended) != 0; }

  /// Whether the key types a character: letters, digits, space, punctuation,
  /// the keypad's digits and operators. Unknown keys type nothing.
  bool IsPrintable() const noexcept;

  constexpr bool operator==(const KeyboardCode&) const noexcept = default;

private:
  std::uint32_t mValue = 0;
};

} // namespace kroui::ui
