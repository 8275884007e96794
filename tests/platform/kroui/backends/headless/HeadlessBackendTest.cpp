#include <kroui/base/KeyTable.h>

#include <krocore/debug/Assert.h>

#include <HeadlessFixture.h>

namespace {

using namespace kroui::ui;

using HeadlessBackend = kroui::testing::HeadlessFixture<>;

TEST_F(HeadlessBackend, AGenericModifierIsHeldOnTheSideItsExtendedBitNames) {
  Headless().PressKey(kKey_Control);
  Headless().PressKey(KeyboardCode::Compose(0x12, true)); // the right Alt, as a PC keyboard sends it
  EXPECT_TRUE(Headless().IsKeyDown(0xA2));
  EXPECT_FALSE(Headless().IsKeyDown(0xA3));
  EXPECT_TRUE(Headless().IsKeyDown(0xA5));
  EXPECT_FALSE(Headless().IsKeyDown(0xA4));
  EXPECT_EQ(Headless().GetModifierState(), ModifierKeys(kModKey_Control | kModKey_Alt));

  Headless().ReleaseKey(KeyboardCode::Compose(0x12, true));
  EXPECT_EQ(Headless().GetModifierState(), ModifierKeys(kModKey_Control));
}

TEST_F(HeadlessBackend, EitherSideHoldsTheModifierUntilBothAreUp) {
  Headless().PressKey(kKey_LeftShift);
  Headless().PressKey(kKey_RightShift);
  Headless().ReleaseKey(kKey_LeftShift);
  EXPECT_TRUE(Headless().IsKeyDown(0x10));
  Headless().ReleaseKey(kKey_RightShift);
  EXPECT_FALSE(Headless().IsKeyDown(0x10));
}

TEST_F(HeadlessBackend, SettingModifiersReleasesSidesPressedOneByOne) {
  Headless().PressKey(kKey_RightControl);
  Headless().SetModifiers(kModKey_Control);
  EXPECT_TRUE(Headless().IsKeyDown(0xA3)) << "a modifier already held stays on its side";
  EXPECT_FALSE(Headless().IsKeyDown(0xA2));
  Headless().SetModifiers(kModKey_Shift);
  EXPECT_FALSE(Headless().IsKeyDown(0x11));
  EXPECT_EQ(Headless().GetModifierState(), ModifierKeys(kModKey_Shift));
}

TEST_F(HeadlessBackend, PressingNoKeyIsReported) {
  krocore::debug::ScopedAssertionRecorder recorder;
  Headless().PressKey(KeyboardCode());
  EXPECT_TRUE(recorder.Contains("HeadlessBackend: no key to press"));
  EXPECT_FALSE(Headless().IsKeyDown(0));
}

} // namespace
