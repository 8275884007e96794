// The umbrella header must stand on its own: a host includes only it.
#include <zel/ZEL.h>

#include <gtest/gtest.h>

TEST(Umbrella, BringsTheWholeFrameworkIntoView) {
  EXPECT_EQ(ZEL::KeySpec(0x4B, true, false, false).GetModKey(), ZEL::kModifier_Control);
  EXPECT_EQ(ZEL::Command(ZEL::kCommand_Copy).GetID(), 57634);
}
