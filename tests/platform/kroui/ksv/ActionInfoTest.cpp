#include <kroui/base/KeyTable.h>
#include <kroui/ksv/ActionInfo.h>

#include <gtest/gtest.h>

#include <string>

using kroui::ksv::ActionInfo;
using kroui::ui::KeyboardCode;

namespace {

constexpr std::uint8_t kShift = kroui::ui::kModKey_Shift;
constexpr std::uint8_t kControl = kroui::ui::kModKey_Control;
constexpr std::uint8_t kAlt = kroui::ui::kModKey_Alt;

std::string Narrow(const std::u16string& text) { return {text.begin(), text.end()}; }

struct Shortcut {
  std::uint8_t modifiers;
  std::uint32_t code;
  const char* text;
};

void PrintTo(const Shortcut& shortcut, std::ostream* out) { *out << '"' << shortcut.text << '"'; }

class ShortcutText : public testing::TestWithParam<Shortcut> {};

TEST_P(ShortcutText, FollowsThePCConvention) {
  const Shortcut& shortcut = GetParam();
  EXPECT_EQ(Narrow(ActionInfo::GetShortcutString(shortcut.modifiers, KeyboardCode(shortcut.code))), shortcut.text);
}

INSTANTIATE_TEST_SUITE_P(
    ModifiersAndKeys, ShortcutText,
    testing::Values(Shortcut{kShift | kAlt | kControl, 0x4B, "Ctrl+Alt+Shift+K"}, Shortcut{kControl, 0x74, "Ctrl+F5"},
                    Shortcut{kShift, 0x22, "Shift+Page Down"}, Shortcut{kShift, 0x01000022, "Shift+Page Down"},
                    Shortcut{0, 0x67, "Num 7"}, Shortcut{kAlt, 0xBA, "Alt+;"}, Shortcut{kControl, 0xDC, "Ctrl+\\"},
                    Shortcut{kAlt, 0x6B, "Alt+Num +"}, Shortcut{0, 0x0100000D, "Num Enter"}, Shortcut{0, 0x0D, "Enter"},
                    Shortcut{kControl | kShift, 0x01000025, "Ctrl+Shift+Left"}));
INSTANTIATE_TEST_SUITE_P(
    EdgeCases, ShortcutText,
    testing::Values(Shortcut{kControl | kShift, 0, "Ctrl+Shift"}, Shortcut{0, 0, ""},
                    Shortcut{kControl, KeyboardCode::kFlag_Extended, "Ctrl"}, Shortcut{kControl, 0xE9, "Ctrl+Key 0xE9"},
                    Shortcut{0, 0x1234, "Key 0x1234"}, Shortcut{0, 0x07, "Key 0x07"},
                    Shortcut{0x01 | 0x08 | 0x20 | 0x40 | 0x80, 0x41, "A"},
                    Shortcut{kControl, 0x11, "Ctrl"}, Shortcut{kControl | kShift, 0xA1, "Ctrl+Right Shift"},
                    Shortcut{kAlt, 0x80000041, "Alt+A"}));

TEST(ShortcutText, EveryNamedKeyReadsAsItsName) {
  for (const kroui::ui::KeyInfo& key : kroui::ui::GetKeyTable()) {
    EXPECT_EQ(ActionInfo::GetShortcutString({}, key.code), key.displayName) << key.identifier;
  }
}

} // namespace
