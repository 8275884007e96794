#pragma once

#include <kroui/Export.h>
#include <kroui/base/KeyboardCode.h>
#include <kroui/base/ModifierKeys.h>

#include <cstdint>
#include <string>

namespace kroui::ksv {

/// How actions and their shortcuts are shown to the user.
class KROUI_API ActionInfo {
public:
  /// The text of a shortcut in this OS's convention: "Ctrl+Alt+Shift+K",
  /// "Shift+Page Down", "Num 7". Only the Shift, Control and Alt bits count;
  /// a modifier key as the key is not named twice ("Ctrl", not "Ctrl+Ctrl").
  /// Key code 0 gives the modifiers alone; a code no key has is named by its
  /// number ("Key 0xE9") so that different unknown keys stay apart.
  static std::u16string GetShortcutString(krocore::utility::Flags<std::uint8_t> modifiers, ui::KeyboardCode key);
};

} // namespace kroui::ksv
