#include <kroui/base/KeyTable.h>
#include <kroui/utility/KeyState.h>

#include <HeadlessFixture.h>

namespace {

using kroui::ui::ModifierKeys;
using kroui::utility::GetCurrentModKeys;
using kroui::utility::IsKeyDown;

class ScriptedModifiers : public kroui::testing::HeadlessFixture<testing::TestWithParam<std::uint8_t>> {};

TEST_P(ScriptedModifiers, ReadBackAsTheLiveModifierState) {
  const ModifierKeys modifiers(GetParam());
  Headless().SetModifiers(modifiers);
  EXPECT_EQ(GetCurrentModKeys(), modifiers);
#if !defined(_WIN32) // Windows answers from its own keyboard state.
  EXPECT_EQ(IsKeyDown(0x10u), modifiers.Has(kroui::ui::kModKey_Shift));
  EXPECT_EQ(IsKeyDown(0x11u), modifiers.Has(kroui::ui::kModKey_Control));
  EXPECT_EQ(IsKeyDown(0x12u), modifiers.Has(kroui::ui::kModKey_Alt));
#endif
  Headless().SetModifiers({});
  EXPECT_TRUE(GetCurrentModKeys().IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(EveryCombination, ScriptedModifiers, testing::Values(0x00, 0x02, 0x04, 0x10, 0x06, 0x12, 0x14, 0x16));

using KeyState = kroui::testing::HeadlessFixture<>;

TEST_F(KeyState, OtherKeysHeldAreNoModifiers) {
  Headless().PressKey(kroui::ui::kKey_A);
  Headless().PressKey(kroui::ui::kKey_Left);
  EXPECT_TRUE(GetCurrentModKeys().IsEmpty());
#if !defined(_WIN32)
  EXPECT_TRUE(IsKeyDown(kroui::ui::kKey_A));
  EXPECT_TRUE(IsKeyDown(0x25u)) << "where the key sits does not matter to the question";
  EXPECT_FALSE(IsKeyDown(kroui::ui::kKey_B));
#endif
}

TEST_F(KeyState, ANewBackendHoldsNothing) {
  Headless().SetModifiers(kroui::ui::kModKey_All);
  Headless().PressKey(kroui::ui::kKey_A);
  kroui::backend::HeadlessBackend::Install();
  EXPECT_TRUE(GetCurrentModKeys().IsEmpty());
}

} // namespace
