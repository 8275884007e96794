#include <krocore/utility/Flags.h>

#include <gtest/gtest.h>

#include <cstdint>

namespace {

enum class Modifier : std::uint8_t { Shift = 0x02, Control = 0x04, Alt = 0x10 };
using Modifiers = krocore::utility::Flags<Modifier>;

TEST(Flags, SetClearAndQuestionsWorkOnTheBits) {
  Modifiers mods = Modifiers(Modifier::Control) | Modifier::Shift;
  EXPECT_EQ(mods.GetValue(), 0x06);
  EXPECT_TRUE(mods.Has(Modifier::Control));
  EXPECT_FALSE(mods.Has(Modifiers(Modifier::Control) | Modifier::Alt));
  EXPECT_TRUE(mods.HasAny(Modifiers(Modifier::Control) | Modifier::Alt));
  mods.Clear(Modifier::Shift).Set(Modifier::Alt, true);
  EXPECT_EQ(mods.GetValue(), 0x14);
  mods.Set(Modifier::Alt, false);
  EXPECT_EQ(mods, Modifiers(Modifier::Control));
  EXPECT_TRUE(Modifiers().IsEmpty());
  EXPECT_TRUE(Modifiers().Has(Modifiers())) << "every set holds the empty set";
  EXPECT_LT(Modifiers(Modifier::Shift), Modifiers(Modifier::Control)) << "ordered by value, as key maps need";
}

TEST(Flags, WorkOnPlainUnsignedBytes) {
  krocore::utility::Flags<std::uint8_t> bits = krocore::utility::Flags<std::uint8_t>::FromValue(0xFF);
  bits.Clear(0x0F);
  EXPECT_EQ(bits.GetValue(), 0xF0);
  EXPECT_EQ((bits ^ 0xFF).GetValue(), 0x0F);
}

} // namespace
