#include <zel/commands/CommandContext.h>
#include <zel/commands/ShortcutManager.h>
#include <zel/commands/SyntheticCommand.h>
#include <zel/workspace/WindowClassRegistry.h>
#include <zel/workspace/WindowClasses.h>

#include <krocore/debug/Assert.h>
#include <krocore/threads/MainThreadQueue.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using ZEL::KeySpec;
using ZEL::ShortcutManager;
using ZEL::SyntheticCommand;
using ZEL::UTF8String;
using ZEL::WindowClassType;
using ZEL::WindowInfo;

namespace {

const KeySpec kCtrlK(0x4B, true, false, false);

class WindowClassesTest : public testing::Test {
protected:
  void SetUp() override {
    ShortcutManager::Initialize();
    SyntheticCommand::Initialize();
    ZEL::detail::ResetWindowClassRegistry();
  }
  void TearDown() override {
    ZEL::detail::ResetWindowClassRegistry();
    SyntheticCommand::Terminate();
    ShortcutManager::Finalize();
    krocore::threads::MainThreadQueue::Instance().Clear();
  }

  static std::vector<unsigned int> WindowIDs(const UTF8String& className) {
    std::vector<WindowInfo> windows;
    ZEL::GetWindows(className, windows);
    std::vector<unsigned int> ids;
    for (const WindowInfo& window : windows) ids.push_back(window.mWindowID);
    return ids;
  }
};

struct Recorder : ZEL::WindowClassCallback {
  void OnWindowClass(const UTF8String& className) override { mNames.push_back(className); }
  std::vector<UTF8String> mNames;
};

struct ByDisplayNameDescending : ZEL::WindowClassSortCallback {
  bool IsBefore(const UTF8String& left, const UTF8String& right) override {
    return ZEL::GetWindowClassDisplayName(left) > ZEL::GetWindowClassDisplayName(right);
  }
};

struct Project : ZEL::IProject {};

TEST_F(WindowClassesTest, ClassCommandIsDeclaredGloballyAndReachableByItsKey) {
  ZEL::CommandContext& global = ShortcutManager::Instance()->GetGlobalContext();
  global.BuildKeyCommandMapsIfNeeded();
  ZEL::AddWindowClass("Timelines", "&Timelines", WindowClassType::Multiple);
  const int id = ZEL::GetWindowClassCommandID("Timelines");
  ASSERT_NE(id, 0);
  ASSERT_NE(global.FindCommand(id), nullptr);
  EXPECT_EQ(global.FindCommand(id)->GetUIString(), "&Timelines") << "declared with its localized text";

  ASSERT_TRUE(global.SetCommandShortcuts(global.GetCommandNameFromID(id), {kCtrlK}));
  const std::vector<std::int32_t>* bound = global.GetKeyCommandMap(ZEL::CommandKeyMapID::Standard).Find(kCtrlK);
  ASSERT_NE(bound, nullptr);
  EXPECT_EQ(*bound, std::vector<std::int32_t>{id});

  ZEL::SetWindowClassCommandID("Timelines", 4000);
  EXPECT_EQ(global.FindCommand(id), nullptr) << "the old ID is withdrawn";
  ASSERT_NE(global.FindCommand(4000), nullptr);

  ZEL::RemoveWindowClass("Timelines");
  EXPECT_EQ(global.FindCommand(4000), nullptr);
  EXPECT_EQ(ZEL::GetWindowClassType("Timelines"), WindowClassType::Unknown);
}

TEST_F(WindowClassesTest, UnknownClassesAnswerNeutrally) {
  EXPECT_EQ(ZEL::GetWindowCount("Nowhere"), 0u);
  EXPECT_EQ(ZEL::GetWindowClassCommandID("Nowhere"), 0);
  EXPECT_EQ(ZEL::GetWindowClassDisplayName("Nowhere"), "");
  krocore::debug::ScopedAssertionRecorder assertions;
  ZEL::AddWindow("Nowhere", 1, "Lost", 0);
  EXPECT_TRUE(assertions.Contains("AddWindow: unknown window class"));
  EXPECT_EQ(ZEL::GetWindowCount("Nowhere"), 0u) << "a window does not make its class";
}

TEST_F(WindowClassesTest, WindowsAreKeptInOrderAndReplacedByID) {
  ZEL::AddWindowClass("Timelines", "Timelines", WindowClassType::Multiple);
  ZEL::AddWindow("Timelines", 2, "Sequence 02", 0);
  ZEL::AddWindow("Timelines", 1, "Sequence 01", 0);
  ZEL::AddWindow("Timelines", 2, "Sequence 02b", 0);
  EXPECT_EQ(WindowIDs("Timelines"), (std::vector<unsigned int>{2, 1}));
  ZEL::RenameWindow("Timelines", 1, "Main", 0);
  ZEL::SetWindowClassWindowInfoCommandID("Timelines", 1, 77);
  std::vector<WindowInfo> windows;
  ZEL::GetWindows("Timelines", windows);
  EXPECT_EQ(windows[0].mName, "Sequence 02b");
  EXPECT_EQ(windows[1].mName, "Main");
  EXPECT_EQ(windows[1].mWindowInfoCommandID, 77);
  ZEL::RemoveWindow("Timelines", 2u, false);
  EXPECT_EQ(WindowIDs("Timelines"), std::vector<unsigned int>{1});
}

TEST_F(WindowClassesTest, RemovingAProjectRemovesOnlyItsWindows) {
  ZEL::AddWindowClass("Timelines", "Timelines", WindowClassType::Multiple);
  auto mine = std::make_shared<Project>();
  auto other = std::make_shared<Project>();
  ZEL::AddWindow("Timelines", 1, "A", mine, {}, 0);
  ZEL::AddWindow("Timelines", 2, "B", other, {}, 0);
  ZEL::AddWindow("Timelines", 3, "C", {}, mine, 0);
  ZEL::AddWindow("Timelines", 4, "D", mine, {}, 0);
  ZEL::RemoveWindow("Timelines", ZEL::InterfaceRef<ZEL::IProject>(mine), 0u);
  EXPECT_EQ(WindowIDs("Timelines"), (std::vector<unsigned int>{2, 3})) << "the item reference is not the project";
}

TEST_F(WindowClassesTest, ForEachWalksInSortOrderAndMakesWindowCommandsOnce) {
  ZEL::AddWindowClass("Effects", "Effects", WindowClassType::Single);
  ZEL::AddWindowClass("Timelines", "Timelines", WindowClassType::Multiple);
  ZEL::AddWindowClass("History", "History", WindowClassType::Single);
  ZEL::AddWindow("Timelines", 1, "Sequence 01", 0);
  ZEL::AddWindow("Timelines", 2, "Sequence 02", 0);
  ZEL::AddWindow("Effects", 0, "Effects", 555);

  Recorder recorder;
  ByDisplayNameDescending sort;
  ZEL::ForEachWindowClass(recorder, sort);
  EXPECT_EQ(recorder.mNames, (std::vector<UTF8String>{"Timelines", "History", "Effects"}));

  std::vector<WindowInfo> first;
  ZEL::GetWindows("Timelines", first);
  ASSERT_EQ(first.size(), 2u);
  EXPECT_TRUE(SyntheticCommand::IsSynthetic(static_cast<int>(first[0].mCommandID)));
  EXPECT_NE(first[0].mCommandID, first[1].mCommandID);
  ASSERT_TRUE(SyntheticCommand::GetCommandInfo(static_cast<int>(first[1].mCommandID)));
  EXPECT_EQ(SyntheticCommand::GetCommandInfo(static_cast<int>(first[1].mCommandID))->GetUIString(), "Sequence 02");
  EXPECT_EQ(WindowIDs("Effects"), std::vector<unsigned int>{0});

  ZEL::ForEachWindowClass(recorder, sort);
  std::vector<WindowInfo> second;
  ZEL::GetWindows("Timelines", second);
  EXPECT_EQ(second[0].mCommandID, first[0].mCommandID);
  EXPECT_EQ(second[1].mCommandID, first[1].mCommandID);
  std::vector<WindowInfo> effects;
  ZEL::GetWindows("Effects", effects);
  EXPECT_EQ(effects[0].mCommandID, 555u) << "a window's own command is kept";

  const int next = SyntheticCommand::MakeID(ZEL::CommandInfo("probe", 0, ZEL::CommandKind::Action, "", "", {}, false));
  EXPECT_EQ(next, static_cast<int>(std::min(first[0].mCommandID, first[1].mCommandID)) - 1)
      << "the second walk made no new IDs";
}

TEST_F(WindowClassesTest, RemovingAWindowCanForgetItsSyntheticCommand) {
  ZEL::AddWindowClass("Timelines", "Timelines", WindowClassType::Multiple);
  ZEL::AddWindow("Timelines", 1, "Sequence 01", 0);
  Recorder recorder;
  ByDisplayNameDescending sort;
  ZEL::ForEachWindowClass(recorder, sort);
  std::vector<WindowInfo> windows;
  ZEL::GetWindows("Timelines", windows);
  const int id = static_cast<int>(windows[0].mCommandID);
  ZEL::RemoveWindow("Timelines", 1u, true);
  EXPECT_FALSE(SyntheticCommand::GetCommandInfo(id));
  EXPECT_TRUE(SyntheticCommand::GetCommandInfo(ZEL::GetWindowClassCommandID("Timelines")))
      << "the class's own command stays";
}

struct DisplayNameRow {
  const char* mClassName;
  const char* mDisplayName;
};

class StandardDisplayNames : public testing::TestWithParam<DisplayNameRow> {};

TEST_P(StandardDisplayNames, MapClassNameToLocalizedTitle) {
  EXPECT_EQ(ZEL::SetWindowClassDisplayName(GetParam().mClassName), GetParam().mDisplayName);
}

INSTANTIATE_TEST_SUITE_P(Table, StandardDisplayNames,
                         testing::Values(DisplayNameRow{"Program Monitors", "&Program Monitor"},
                                         DisplayNameRow{"Source Monitors", "&Source Monitor"},
                                         DisplayNameRow{"Audio Mixers", "Audio Track Mixer"},
                                         DisplayNameRow{"Audio Meter", "Audio Meters"},
                                         DisplayNameRow{"Graphics", "Essential Graphics"},
                                         DisplayNameRow{"Properties2", "Properties"},
                                         DisplayNameRow{"Effect Controls", "Effect Controls"},
                                         DisplayNameRow{"Events", "Events"},
                                         DisplayNameRow{"My Plug-in Panel", "My Plug-in Panel"}));

} // namespace
