#include <zel/commands/KeySpec.h>

#include <backends/headless/HeadlessBackend.h>
#include <kroui/base/KeyTable.h>

#include <gtest/gtest.h>

#include <set>

using kroui::backend::HeadlessBackend;
using ZEL::KeyModifiers;
using ZEL::KeySpec;

namespace {

class KeySpecTest : public testing::Test {
protected:
  void SetUp() override { mHeadless = &HeadlessBackend::Install(); }
  void TearDown() override { kroui::backend::SetBackend(nullptr); }
  HeadlessBackend* mHeadless = nullptr;
};

TEST_F(KeySpecTest, ModifiersAloneNeverMakeAShortcut) {
  KeySpec ctrlOnly(0, true, false, false);
  EXPECT_FALSE(ctrlOnly.HasShortcut());
  ctrlOnly.SetKey(0x4B);
  EXPECT_TRUE(ctrlOnly.HasShortcut());
  ctrlOnly.Clear();
  EXPECT_EQ(ctrlOnly, KeySpec());
  EXPECT_EQ(ctrlOnly.GetModKey(), 0);
}

TEST_F(KeySpecTest, EveryConstructorGivesTheSameValueForTheSameKey) {
  const KeySpec fromBools(0x4B, true, true, false);
  const KeySpec fromModifiers(0x4B, KeyModifiers(0x04 | 0x10));
  KeySpec fromSetters(0x4B, false);
  fromSetters.SetAlt(true);
  fromSetters.SetControl(true);
  mHeadless->SetModifiers(kroui::ui::ModifierKeys::FromValue(0x14));
  const KeySpec fromLiveState(0x4B, true);
  EXPECT_EQ(fromBools, fromModifiers);
  EXPECT_EQ(fromBools, fromSetters);
  EXPECT_EQ(fromBools, fromLiveState);
  EXPECT_TRUE(fromBools.Control() && fromBools.Alt() && !fromBools.Shift());
  EXPECT_NE(fromBools, KeySpec(0x4B, true, true, true));
}

TEST_F(KeySpecTest, ForeignModifierBitsAreDropped) {
  const KeySpec key(0x41, KeyModifiers(0xFF));
  EXPECT_EQ(key.GetModKey(), 0x02 | 0x04 | 0x10);
}

TEST_F(KeySpecTest, LiveStateIsReadOnlyWhenAskedFor) {
  mHeadless->SetModifiers(kroui::ui::ModifierKeys::FromValue(0x02));
  EXPECT_EQ(KeySpec(0x41, true).GetModKey(), 0x02);
  EXPECT_EQ(KeySpec(0x41, false).GetModKey(), 0);
  EXPECT_EQ(KeyModifiers().GetValue(), 0x02);
  mHeadless->SetModifiers({});
  EXPECT_EQ(KeySpec(0x41, true).GetModKey(), 0);
}

TEST_F(KeySpecTest, OrderIsDescendingKeyThenAscendingModifiers) {
  const KeySpec a(0x41, false, false, false);
  const KeySpec b(0x42, false, false, false);
  EXPECT_TRUE(b < a) << "the larger key code sorts first";
  EXPECT_FALSE(a < b);
  const std::set<KeySpec> ordered{KeySpec(0x41, false, true, false), KeySpec(0x41, true, false, false),
                                  KeySpec(0x41, false, false, true), a, b};
  std::vector<std::uint8_t> order;
  for (const KeySpec& key : ordered) order.push_back(key.GetModKey());
  EXPECT_EQ(order, (std::vector<std::uint8_t>{0, 0, 0x02, 0x04, 0x10}));
  EXPECT_EQ(ordered.begin()->GetKey(), 0x42u);
  EXPECT_FALSE(a < a);
}

TEST_F(KeySpecTest, TheExtendedFlagIsNotPartOfTheKey) {
  const KeySpec left(kroui::ui::kKey_Left.GetValue(false), false, false, false);
  EXPECT_EQ(left.GetKey(), 0x25u);
  EXPECT_EQ(left, KeySpec(0x25, false, false, false));
}

TEST_F(KeySpecTest, TextComesFromThePlatformInItsConvention) {
  EXPECT_EQ(KeySpec(0x4B, true, true, true).GetString(), "Ctrl+Alt+Shift+K");
  EXPECT_EQ(KeySpec(0x22, false, false, true).GetString(), "Shift+Page Down");
  EXPECT_EQ(KeySpec(0x74, true, false, false).GetString(), "Ctrl+F5");
}

} // namespace
