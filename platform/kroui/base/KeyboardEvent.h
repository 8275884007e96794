#pragma once

#include <kroui/Export.h>
#include <kroui/base/KeyboardCode.h>
#include <kroui/base/ModifierKeys.h>

#include <cstdint>

namespace kroui::ui {

/// One keyboard event as a backend delivers it: what happened, to which key,
/// with which modifiers held, and the character typed. A small value, copied freely.
///
/// A key press arrives as a key down (carrying the character the key types,
/// when the backend knows it) and, for keys that type, a character input with
/// that character; holding the key repeats the key down with IsAutoRepeat().
class KROUI_API KeyboardEvent {
public:
  using Action = std::int32_t;
  static constexpr Action kAction_None = 0;
  static constexpr Action kAction_KeyDown = 1;
  static constexpr Action kAction_KeyUp = 2;
  /// Text input: a character typed, also one composed by an input method with no key of its own.
  static constexpr Action kAction_CharacterInput = 3;

  constexpr KeyboardEvent() noexcept = default;
  constexpr KeyboardEvent(Action action, KeyboardCode code, ModifierKeys modifiers, bool autoRepeat = false,
                          char32_t character = 0) noexcept
      : mCode(code), mCharacter(character), mAction(action), mModifiers(modifiers), mAutoRepeat(autoRepeat) {}

  static constexpr KeyboardEvent MakeKeyDown(KeyboardCode code, ModifierKeys modifiers, bool autoRepeat = false,
                                             char32_t character = 0) noexcept {
    return {kAction_KeyDown, code, modifiers, autoRepeat, character};
  }
  static constexpr KeyboardEvent MakeKeyUp(KeyboardCode code, ModifierKeys modifiers) noexcept {
    return {kAction_KeyUp, code, modifiers};
  }
  static constexpr KeyboardEvent MakeCharacterInput(char32_t character, ModifierKeys modifiers,
                                                    KeyboardCode code = KeyboardCode()) noexcept {
    return {kAction_CharacterInput, code, modifiers, false, character};
  }

  constexpr Action GetAction() const noexcept { return mAction; }
  constexpr KeyboardCode GetCode() const noexcept { return mCode; }
  constexpr ModifierKeys GetModKey() const noexcept { return mModifiers; }
  constexpr bool IsAutoRepeat() const noexcept { return mAutoRepeat; }
  /// The character typed; 0 when the event types none.
  constexpr char32_t GetCharacter() const noexcept { return mCharacter; }

  constexpr bool operator==(const KeyboardEvent&) const noexcept = default;

private:
  KeyboardCode mCode;
  char32_t mCharacter = 0;
  Action mAction = kAction_None;
  ModifierKeys mModifiers;
  bool mAutoRepeat = false;
};

} // namespace kroui::ui
