#include <kroui/base/KeyTable.h>

#include <gtest/gtest.h>

using kroui::ui::KeyboardCode;

namespace {

TEST(KeyboardCode, PortableValueAndControlCodeDropTheExtendedBit) {
  const KeyboardCode left = kroui::ui::kKey_Left;
  EXPECT_EQ(left.GetValue(false), 0x01000025u) << "the extended bit sits where a key message's lParam has it";
  EXPECT_EQ(left.GetValue(true), 0x25u);
  EXPECT_EQ(left.GetControlCode(false), 0x25u);
  EXPECT_EQ(left.GetControlCode(true), 0x01000025u);
  EXPECT_TRUE(left.IsExtended());
}

TEST(KeyboardCode, ReservedBitsRoundTripButChangeNoAnswer) {
  const KeyboardCode code(0x80FF0041);
  EXPECT_EQ(code.GetValue(false), 0x80FF0041u);
  EXPECT_EQ(code.GetValue(true), 0x41u);
  EXPECT_EQ(code.GetControlCode(true), 0x41u);
  EXPECT_FALSE(code.IsExtended());
  EXPECT_TRUE(code.IsPrintable());
}

TEST(KeyboardCode, TheExtendedBitAloneIsNoKey) {
  EXPECT_TRUE(KeyboardCode().IsNone());
  EXPECT_TRUE(KeyboardCode(KeyboardCode::kFlag_Extended).IsNone());
  EXPECT_FALSE(KeyboardCode(KeyboardCode::kFlag_Extended).IsPrintable());
}

TEST(KeyboardCode, EqualityKeepsWhereTheKeySitsApart) {
  const KeyboardCode keypadLeft(0x25);
  EXPECT_NE(keypadLeft, kroui::ui::kKey_Left);
  EXPECT_EQ(keypadLeft.GetControlCode(false), kroui::ui::kKey_Left.GetControlCode(false));
  EXPECT_EQ(KeyboardCode::Compose(0x25, true), kroui::ui::kKey_Left);
}

} // namespace
