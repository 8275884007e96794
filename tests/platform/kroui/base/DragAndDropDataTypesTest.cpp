#include <kroui/base/DragAndDropDataTypes.h>
#include <kroui/base/DragCursorSupport.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using kroui::ui::DragAndDropDataTypes;

namespace {

class DragAndDropDataTypesTest : public ::testing::Test {
protected:
  void TearDown() override { DragAndDropDataTypes::Clear(); }
};

TEST_F(DragAndDropDataTypesTest, KeepsRegistrationOrderAndRefusesRepeats) {
  EXPECT_TRUE(DragAndDropDataTypes::Register("application/x-b"));
  EXPECT_TRUE(DragAndDropDataTypes::Register("application/x-a"));
  EXPECT_FALSE(DragAndDropDataTypes::Register("application/x-b"));
  EXPECT_FALSE(DragAndDropDataTypes::Register(""));
  EXPECT_EQ(DragAndDropDataTypes::GetRegistered(), (std::vector<std::string>{"application/x-b", "application/x-a"}));
}

TEST_F(DragAndDropDataTypesTest, UnregisterRemovesOnlyThatFormat) {
  DragAndDropDataTypes::Register("a");
  DragAndDropDataTypes::Register("b");
  EXPECT_TRUE(DragAndDropDataTypes::Unregister("a"));
  EXPECT_FALSE(DragAndDropDataTypes::Unregister("a"));
  EXPECT_FALSE(DragAndDropDataTypes::IsRegistered("a"));
  EXPECT_TRUE(DragAndDropDataTypes::IsRegistered("b"));
}

TEST(DragCursorSupport, IsOnByDefaultAndFollowsTheSetting) {
  EXPECT_TRUE(kroui::ui::HasDefaultCursorSupport());
  kroui::ui::SetDefaultCursorSupport(false);
  EXPECT_FALSE(kroui::ui::HasDefaultCursorSupport());
  kroui::ui::SetDefaultCursorSupport(true);
  EXPECT_TRUE(kroui::ui::HasDefaultCursorSupport());
}

} // namespace
