#pragma once

#include <zel/Export.h>
#include <zel/commands/CommandTypes.h>

#include <krocore/utility/Flags.h>
#include <kroui/base/KeyboardCode.h>

#include <cstdint>

namespace ZEL {

inline constexpr std::uint8_t kModifier_Shift = 0x02;
inline constexpr std::uint8_t kModifier_Control = 0x04;
inline constexpr std::uint8_t kModifier_Alt = 0x10;
inline constexpr std::uint8_t kModifier_All = kModifier_Shift | kModifier_Control | kModifier_Alt;

/// The modifier keys down at one moment. Made by default, it reads the
/// keyboard as it is now.
class ZEL_API KeyModifiers : public krocore::utility::Flags<std::uint8_t> {
public:
  KeyModifiers();
  explicit KeyModifiers(std::uint8_t bits) : Flags(Flags::FromValue(bits)) {}
};

/// One keyboard shortcut: a key code and the Shift, Control and Alt bits.
/// Ordered for maps in descending key code, then ascending modifier byte.
class ZEL_API KeySpec {
public:
  KeySpec() noexcept = default;
  KeySpec(std::uint32_t key, const KeyModifiers& modifiers) noexcept;
  KeySpec(std::uint32_t key, bool control, bool alt, bool shift) noexcept;
  /// With `useLiveModifiers`, the modifiers are those held down now.
  KeySpec(std::uint32_t key, bool useLiveModifiers);

  std::uint32_t GetKey() const noexcept { return mKey.GetValue(true); }
  std::uint8_t GetModKey() const noexcept { return mModifiers.GetValue(); }

  void SetKey(std::uint32_t key) noexcept { mKey = kroui::ui::KeyboardCode(key); }
  void SetShift(bool down) noexcept { mModifiers.Set(kModifier_Shift, down); }
  void SetControl(bool down) noexcept { mModifiers.Set(kModifier_Control, down); }
  void SetAlt(bool down) noexcept { mModifiers.Set(kModifier_Alt, down); }
  bool Shift() const noexcept { return mModifiers.Has(kModifier_Shift); }
  bool Control() const noexcept { return mModifiers.Has(kModifier_Control); }
  bool Alt() const noexcept { return mModifiers.Has(kModifier_Alt); }

  /// A key is needed: modifiers alone never make a shortcut.
  bool HasShortcut() const noexcept { return GetKey() != 0; }
  void Clear() noexcept { *this = KeySpec(); }

  /// The shortcut as the user reads it in menus ("Ctrl+Shift+K").
  UTF8String GetString() const;

  /// Kept for hosts that call it at start-up; key codes need no table.
  static void InitExtendedFlagsTable() {}

  bool operator==(const KeySpec& other) const noexcept {
    return GetKey() == other.GetKey() && GetModKey() == other.GetModKey();
  }
  bool operator!=(const KeySpec& other) const noexcept { return !(*this == other); }
  /// Descending key code first: iteration over shortcut maps depends on it.
  bool operator<(const KeySpec& other) const noexcept {
    if (GetKey() != other.GetKey()) return other.GetKey() < GetKey();
    return GetModKey() < other.GetModKey();
  }

private:
  kroui::ui::KeyboardCode mKey{0};
  krocore::utility::Flags<std::uint8_t> mModifiers;
};

} // namespace ZEL
