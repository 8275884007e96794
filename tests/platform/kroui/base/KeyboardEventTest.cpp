#include <kroui/base/KeyTable.h>
#include <kroui/base/KeyboardEvent.h>

#include <gtest/gtest.h>

using kroui::ui::KeyboardEvent;

namespace {

// The numbers shortcut dispatch relies on.
static_assert(KeyboardEvent::kAction_KeyDown == 1);
static_assert(KeyboardEvent::kAction_KeyUp == 2);
static_assert(KeyboardEvent::kAction_CharacterInput == 3);

TEST(KeyboardEvent, AnEventMadeEmptyIsNoAction) {
  EXPECT_EQ(KeyboardEvent().GetAction(), KeyboardEvent::kAction_None);
}

TEST(KeyboardEvent, OnlyAKeyDownRepeatsAndComposedTextHasNoKey) {
  const kroui::ui::ModifierKeys control(kroui::ui::kModKey_Control);
  EXPECT_TRUE(KeyboardEvent::MakeKeyDown(kroui::ui::kKey_K, control, true).IsAutoRepeat());
  EXPECT_FALSE(KeyboardEvent::MakeKeyUp(kroui::ui::kKey_K, control).IsAutoRepeat());
  const KeyboardEvent typed = KeyboardEvent::MakeCharacterInput(U'\u00E9', {});
  EXPECT_TRUE(typed.GetCode().IsNone());
  EXPECT_EQ(typed.GetCharacter(), U'\u00E9');
}

} // namespace
