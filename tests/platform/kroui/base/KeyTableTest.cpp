#include <kroui/base/KeyTable.h>

#include <gtest/gtest.h>

#include <set>
#include <string>

using kroui::ui::FindKey;
using kroui::ui::KeyboardCode;
using kroui::ui::KeyInfo;

namespace {

std::string Narrow(std::u16string_view text) { return {text.begin(), text.end()}; }

// What types a character, stated apart from the key list.
bool TypesACharacter(std::uint32_t vk) {
  return (vk >= 'A' && vk <= 'Z') || (vk >= '0' && vk <= '9') || vk == 0x20 || (vk >= 0x60 && vk <= 0x6F) ||
         (vk >= 0xBA && vk <= 0xC0) || (vk >= 0xDB && vk <= 0xDE);
}

TEST(KeyTable, EveryRowIsNamedAndFoundByItsOwnCode) {
  std::set<std::u16string_view> names;
  for (const KeyInfo& key : kroui::ui::GetKeyTable()) {
    SCOPED_TRACE(std::string(key.identifier));
    EXPECT_FALSE(key.displayName.empty());
    EXPECT_TRUE(names.insert(key.displayName).second) << "two keys would read alike in a menu";
    EXPECT_EQ(FindKey(key.code), &key);
    EXPECT_EQ(key.code.IsExtended(), (key.traits & kroui::ui::kKeyTrait_Extended) != 0);
  }
}

TEST(KeyTable, PrintableMeansTypesACharacterForEveryVirtualKey) {
  for (std::uint32_t vk = 0; vk < 0x100; ++vk) {
    EXPECT_EQ(KeyboardCode(vk).IsPrintable(), TypesACharacter(vk)) << std::hex << vk;
    EXPECT_EQ(KeyboardCode::Compose(vk, true).IsPrintable(), TypesACharacter(vk)) << std::hex << vk;
  }
}

TEST(KeyTable, DedicatedNavigationKeysKeypadEnterAndDivideAreExtended) {
  for (const KeyInfo& key : kroui::ui::GetKeyTable()) {
    const std::uint32_t vk = key.code.GetControlCode(false);
    if ((vk >= 0x21 && vk <= 0x28) || vk == 0x2D || vk == 0x2E) {
      EXPECT_TRUE(key.code.IsExtended()) << key.identifier;
    }
    if (key.IsPrintable() && vk != 0x6F) {
      EXPECT_FALSE(key.code.IsExtended()) << key.identifier;
    }
  }
  EXPECT_TRUE(kroui::ui::kKey_NumEnter.IsExtended());
  EXPECT_TRUE(kroui::ui::kKey_NumDivide.IsExtended());
  EXPECT_FALSE(kroui::ui::kKey_Enter.IsExtended());
}

TEST(KeyTable, FunctionKeysRunFromF1To24) {
  for (std::uint32_t n = 1; n <= 24; ++n) {
    const KeyInfo* key = FindKey(KeyboardCode(0x6F + n));
    ASSERT_NE(key, nullptr) << n;
    EXPECT_EQ(Narrow(key->displayName), "F" + std::to_string(n));
    EXPECT_FALSE(key->code.IsPrintable());
  }
}

TEST(KeyTable, TheKeypadTwinOfAnExtendedKeyFindsARowOfItsVirtualKey) {
  for (const KeyInfo& key : kroui::ui::GetKeyTable()) {
    if (!key.code.IsExtended()) continue;
    const KeyInfo* twin = FindKey(KeyboardCode(key.code.GetControlCode(false)));
    ASSERT_NE(twin, nullptr) << key.identifier;
    EXPECT_EQ(twin->code.GetControlCode(false), key.code.GetControlCode(false)) << key.identifier;
  }
  EXPECT_EQ(FindKey(KeyboardCode(0x0D))->identifier, "Enter") << "the main Enter keeps its own row";
}

TEST(KeyTable, CodesNoKeyHasFindNothing) {
  for (std::uint32_t value : {0x00u, 0x07u, 0xE9u, 0xFFu, 0x100u, 0xFFFFu, KeyboardCode::kFlag_Extended}) {
    EXPECT_EQ(FindKey(KeyboardCode(value)), nullptr) << std::hex << value;
  }
}

struct NamedKey {
  std::uint32_t code;
  const char* name;
};

class KeyNames : public testing::TestWithParam<NamedKey> {};

TEST_P(KeyNames, WindowsNumberingGivesTheName) {
  const KeyInfo* key = FindKey(KeyboardCode(GetParam().code));
  ASSERT_NE(key, nullptr);
  EXPECT_EQ(Narrow(key->displayName), GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(
    NavigationAndEditing, KeyNames,
    testing::Values(NamedKey{0x25, "Left"}, NamedKey{0x27, "Right"}, NamedKey{0x26, "Up"}, NamedKey{0x28, "Down"},
                    NamedKey{0x24, "Home"}, NamedKey{0x23, "End"}, NamedKey{0x21, "Page Up"},
                    NamedKey{0x22, "Page Down"}, NamedKey{0x2D, "Insert"}, NamedKey{0x2E, "Delete"},
                    NamedKey{0x08, "Backspace"}, NamedKey{0x09, "Tab"}, NamedKey{0x0D, "Enter"},
                    NamedKey{0x0100000D, "Num Enter"}, NamedKey{0x1B, "Esc"}, NamedKey{0x20, "Space"},
                    NamedKey{0x41, "A"}, NamedKey{0x5A, "Z"}, NamedKey{0x30, "0"}, NamedKey{0x39, "9"},
                    NamedKey{0x10, "Shift"}, NamedKey{0x11, "Ctrl"}, NamedKey{0x12, "Alt"}));
INSTANTIATE_TEST_SUITE_P(
    KeypadAndPunctuation, KeyNames,
    testing::Values(NamedKey{0x60, "Num 0"}, NamedKey{0x69, "Num 9"}, NamedKey{0x6B, "Num +"},
                    NamedKey{0x6D, "Num -"}, NamedKey{0x6A, "Num *"}, NamedKey{0x6F, "Num /"},
                    NamedKey{0x6E, "Num ."}, NamedKey{0xBA, ";"}, NamedKey{0xBB, "="}, NamedKey{0xBC, ","},
                    NamedKey{0xBD, "-"}, NamedKey{0xBE, "."}, NamedKey{0xBF, "/"}, NamedKey{0xC0, "`"},
                    NamedKey{0xDB, "["}, NamedKey{0xDC, "\\"}, NamedKey{0xDD, "]"}, NamedKey{0xDE, "'"}));

} // namespace
