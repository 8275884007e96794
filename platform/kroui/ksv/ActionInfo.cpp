#include <kroui/ksv/ActionInfo.h>

#include <kroui/base/KeyTable.h>

#include <string_view>

namespace kroui::ksv {
namespace {

struct ModifierName {
  std::uint8_t modifier;
  std::u16string_view name;
};

// The shortcut convention of the OS kroui is built for: modifier names in the
// order they are written, and what goes between the parts.
#if defined(__APPLE__)
// The Mac convention belongs here: symbols in the order Control, Option, Shift,
// Command, no separator, and symbols for keys such as Enter and Delete.
#error "kroui: the macOS shortcut convention is not written yet"
#else
constexpr ModifierName kModifierNames[] = {
    {ui::kModKey_Control, u"Ctrl"},
    {ui::kModKey_Alt, u"Alt"},
    {ui::kModKey_Shift, u"Shift"},
};
constexpr std::u16string_view kSeparator = u"+";
#endif

std::u16string UnknownKeyName(ui::KeyboardCode key) {
  constexpr std::u16string_view kDigits = u"0123456789ABCDEF";
  std::u16string digits;
  for (std::uint32_t rest = key.GetControlCode(false); rest != 0 || digits.size() < 2; rest >>= 4) {
    digits.insert(digits.begin(), kDigits[rest & 0xF]);
  }
  return u"Key 0x" + digits;
}

void AppendPart(std::u16string& text, std::u16string_view part) {
  if (!text.empty()) text += kSeparator;
  text += part;
}

} // namespace

std::u16string ActionInfo::GetShortcutString(krocore::utility::Flags<std::uint8_t> modifiers, ui::KeyboardCode key) {
  const ui::KeyInfo* info = ui::FindKey(key);
  if (info != nullptr) modifiers.Clear(info->GetModifier());
  std::u16string text;
  for (const ModifierName& modifier : kModifierNames) {
    if (modifiers.Has(modifier.modifier)) AppendPart(text, modifier.name);
  }
  if (info != nullptr) {
    AppendPart(text, info->displayName);
  } else if (!key.IsNone()) {
    AppendPart(text, UnknownKeyName(key));
  }
  return text;
}

} // namespace kroui::ksv
