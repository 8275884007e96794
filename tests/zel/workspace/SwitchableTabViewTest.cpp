#include <zel/commands/ShortcutManager.h>
#include <zel/commands/SyntheticCommand.h>
#include <zel/workspace/SwitchableTabView.h>
#include <zel/workspace/WindowClassRegistry.h>
#include <zel/workspace/WindowClasses.h>
#include <zel/workspace/WindowContextHandler.h>
#include <zel/workspace/WindowContexts.h>

#include <krocore/threads/MainThreadQueue.h>

#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

using ZEL::SwitchableTabView;
using ZEL::UTF8String;
using ZEL::WindowClassType;
using ZEL::WindowInfo;

namespace {

using Items = std::vector<std::pair<unsigned int, UTF8String>>;

Items MenuOf(const SwitchableTabView& view) {
  Items items;
  for (const auto& item : view.GetContextMenuItems()) items.emplace_back(item.mContextID, item.mName);
  return items;
}

struct FixedHandler : ZEL::WindowContextHandler {
  explicit FixedHandler(unsigned int id) : mID(id) {}
  unsigned int GetEmptyContextID() override { return mID; }
  unsigned int mID;
};

TEST(SwitchableTabView, ContextMenuIsAnOrderedListOfUniqueContexts) {
  SwitchableTabView view(7);
  EXPECT_TRUE(view.AddContextMenuItem(3, "Sequence 03"));
  EXPECT_TRUE(view.AddContextMenuItem(1, "Sequence 01"));
  EXPECT_FALSE(view.AddContextMenuItem(3, "Again")) << "one item per context";
  EXPECT_TRUE(view.RenameContextMenuItem(1, "Main"));
  EXPECT_FALSE(view.RenameContextMenuItem(9, "Nothing"));
  EXPECT_EQ(MenuOf(view), (Items{{3, "Sequence 03"}, {1, "Main"}}));

  EXPECT_FALSE(view.SelectContextMenuItem(9));
  EXPECT_FALSE(view.GetSelectedContextID());
  EXPECT_TRUE(view.SelectContextMenuItem(1));
  EXPECT_EQ(view.GetSelectedContextID(), 1u);
  EXPECT_TRUE(view.RemoveContextMenuItem(1));
  EXPECT_FALSE(view.GetSelectedContextID()) << "a removed item is no longer selected";
  EXPECT_FALSE(view.RemoveContextMenuItem(1));
  EXPECT_EQ(MenuOf(view), (Items{{3, "Sequence 03"}}));
}

TEST(SwitchableTabView, EmptyContextComesFromTheHandler) {
  SwitchableTabView view(7);
  EXPECT_EQ(view.GetEmptyContextID(), ZEL::kDefaultWindowContextID);
  view.SetContextHandler(std::make_shared<FixedHandler>(42));
  EXPECT_EQ(view.GetEmptyContextID(), 42u);
  view.SetContextHandler(nullptr);
  EXPECT_EQ(view.GetEmptyContextID(), ZEL::kDefaultWindowContextID);
}

class WindowContextsTest : public testing::Test {
protected:
  void SetUp() override {
    ZEL::ShortcutManager::Initialize();
    ZEL::SyntheticCommand::Initialize();
    ZEL::detail::ResetWindowClassRegistry();
    ZEL::AddWindowClass(kClass, "Timelines", WindowClassType::Single);
    ZEL::AddWindow(kClass, ZEL::kDefaultWindowID, "Timeline", ZEL::kDefaultWindowContextID);
  }
  void TearDown() override {
    ZEL::detail::ResetWindowClassRegistry();
    ZEL::SyntheticCommand::Terminate();
    ZEL::ShortcutManager::Finalize();
    krocore::threads::MainThreadQueue::Instance().Clear();
  }

  static std::vector<std::pair<unsigned int, UTF8String>> Windows() {
    std::vector<WindowInfo> windows;
    ZEL::GetWindows(kClass, windows);
    Items result;
    for (const WindowInfo& window : windows) result.emplace_back(window.mWindowID, window.mName);
    return result;
  }

  static constexpr const char* kClass = "Timelines";
  SwitchableTabView mView{7};
};

TEST_F(WindowContextsTest, FirstContextReplacesTheDefaultWindow) {
  ZEL::AddWindowContext(mView, 3, kClass, "Sequence 03", "");
  EXPECT_EQ(Windows(), (Items{{3, "Sequence 03"}}));
  EXPECT_EQ(ZEL::GetWindowClassType(kClass), WindowClassType::Contexts);
  ZEL::AddWindowContext(mView, 5, kClass, "Sequence 05", "Sequence 05 (main)");
  EXPECT_EQ(Windows(), (Items{{3, "Sequence 03"}, {5, "Sequence 05 (main)"}}));
  EXPECT_EQ(MenuOf(mView), (Items{{3, "Sequence 03"}, {5, "Sequence 05"}}));
}

TEST_F(WindowContextsTest, RemovingTheLastContextLeavesOnlyTheDefaultWindow) {
  ZEL::AddWindowContext(mView, 3, kClass, "Sequence 03", "");
  ZEL::AddWindowContext(mView, 5, kClass, "Sequence 05", "");
  ZEL::RemoveWindowContext(&mView, 3, kClass, "Timeline");
  EXPECT_EQ(Windows(), (Items{{5, "Sequence 05"}})) << "windows remain: no default window";
  ZEL::RemoveWindowContext(&mView, 5, kClass, "Timeline");
  EXPECT_EQ(Windows(), (Items{{ZEL::kDefaultWindowID, "Timeline"}}));
  EXPECT_EQ(ZEL::GetWindowClassType(kClass), WindowClassType::Single);
  EXPECT_TRUE(mView.GetContextMenuItems().empty());
}

TEST_F(WindowContextsTest, ContextsOfTwoViewsAreToldApart) {
  SwitchableTabView other(8);
  ZEL::AddWindowContext(mView, 3, kClass, "Left", "");
  ZEL::AddWindowContext(other, 3, kClass, "Right", "");
  EXPECT_EQ(Windows(), (Items{{3, "Left"}, {3, "Right"}}));
  ZEL::RenameWindowContext(other, 3, kClass, "Right", "Right 2");
  EXPECT_EQ(Windows(), (Items{{3, "Left"}, {3, "Right 2"}}));
  ZEL::RemoveWindowContext(&mView, 3, kClass, "Timeline");
  EXPECT_EQ(Windows(), (Items{{3, "Right 2"}}));
  EXPECT_EQ(MenuOf(other), (Items{{3, "Right 2"}}));
}

TEST_F(WindowContextsTest, WithoutAViewTheContextIDAloneRemovesTheWindow) {
  ZEL::AddWindowContext(mView, 3, kClass, "Sequence 03", "");
  ZEL::RemoveWindowContext(nullptr, 3, kClass, "Timeline");
  EXPECT_EQ(Windows(), (Items{{ZEL::kDefaultWindowID, "Timeline"}}));
  EXPECT_EQ(MenuOf(mView), (Items{{3, "Sequence 03"}})) << "no view: its menu is left alone";
}

TEST_F(WindowContextsTest, RemoveAllKeepsTheGivenContext) {
  ZEL::AddWindowContext(mView, 3, kClass, "Sequence 03", "");
  ZEL::AddWindowContext(mView, 5, kClass, "Sequence 05", "");
  mView.AddContextMenuItem(9, "Empty");
  ZEL::RemoveAllWindowContexts(mView, 9, kClass, "Timeline");
  EXPECT_EQ(MenuOf(mView), (Items{{9, "Empty"}}));
  EXPECT_EQ(Windows(), (Items{{ZEL::kDefaultWindowID, "Timeline"}}));
}

TEST_F(WindowContextsTest, SwitchToEmptyContextSelectsItAndAddsNoDefaultWhileWindowsRemain) {
  mView.SetContextHandler(std::make_shared<FixedHandler>(42));
  ZEL::AddWindowContext(mView, 3, kClass, "Sequence 03", "");
  ZEL::SwitchToEmptyContext(&mView, kClass, "Timeline", "(no sequence)");
  EXPECT_EQ(mView.GetSelectedContextID(), 42u);
  EXPECT_EQ(MenuOf(mView), (Items{{3, "Sequence 03"}, {42, "(no sequence)"}}));
  EXPECT_EQ(Windows(), (Items{{3, "Sequence 03"}}));
  EXPECT_EQ(ZEL::GetWindowClassType(kClass), WindowClassType::Contexts);
}

TEST_F(WindowContextsTest, SwitchToEmptyContextGivesAnEmptyClassItsDefaultWindow) {
  ZEL::RemoveWindow(kClass, ZEL::kDefaultWindowID, false);
  ZEL::SetWindowClassType(kClass, WindowClassType::Contexts);
  ZEL::SwitchToEmptyContext(nullptr, kClass, "Timeline", "(no sequence)");
  EXPECT_EQ(Windows(), (Items{{ZEL::kDefaultWindowID, "Timeline"}}));
  EXPECT_EQ(ZEL::GetWindowClassType(kClass), WindowClassType::Single);
}

} // namespace
