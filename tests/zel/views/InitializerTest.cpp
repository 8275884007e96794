#include <zel/appearance/ColorManager.h>
#include <zel/commands/SyntheticCommand.h>
#include <zel/views/Bitmap.h>
#include <zel/views/FrameworkConsoleCommands.h>
#include <zel/views/FrameworkStations.h>
#include <zel/views/Initializer.h>
#include <zel/views/InitializerImpl.h>

#include <kls/Foundation.h>
#include <krocore/console/ConsoleCommands.h>
#include <krocore/debug/Assert.h>
#include <krocore/messaging/Station.h>
#include <kroui/base/DragAndDropDataTypes.h>
#include <kroui/base/DragCursorSupport.h>
#include <kroui/skins/SkinManager.h>
#include <kroui/theme/KeyframeThemeEditor.h>
#include <kroui/theme/SkinVersionChange.h>
#include <kroui/theme/Theme.h>
#include <kroui/ui/PopupMenuSettings.h>
#include <kroui/ui/ToolTipManager.h>
#include <kroui/utility/ResourceManager.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using krocore::console::ConsoleCommands;

/// What the framework's start-up touches, read from each piece itself.
struct PlatformSnapshot {
  bool isFoundationUp = KLS::Foundation::IsInitialized();
  std::size_t colorCount = kroui::ui::Theme::Get().GetColorIDs().size();
  bool hasDragCursors = kroui::ui::HasDefaultCursorSupport();
  bool isCheckStyleOn = kroui::ui::IsPopupMenuDefaultCheckStyleOn();
  int toolTipDelay = kroui::ui::ToolTipManager::Instance().GetInitialDelay();
  int skinVersion = kroui::skins::core::SkinManager::GetSkinVersion();
  bool hasThemeEditor = kroui::ui::KeyframeThemeEditor::Get() != nullptr;
  bool hasSkinFunction = kroui::ui::HasSkinVersionChangedFunction();
  std::string resourceModule = kroui::utility::GetResourceManager().GetModule();
  std::vector<std::string> dragTypes = kroui::ui::DragAndDropDataTypes::GetRegistered();
  bool hasToolStation = krocore::messaging::StationExists(ZEL::ToolMessaging::kStation_Tool);
  bool hasWorkspaceStation = krocore::messaging::StationExists(ZEL::kStation_Workspace);
  bool hasBitmapCache = ZEL::IsBitmapCacheInitialized();
  bool hasColorCommand = ConsoleCommands::Instance().IsRegistered(ZEL::FrameworkConsoleCommands::kColors);

  bool operator==(const PlatformSnapshot&) const = default;
};

TEST(Initializer, StartsAndStopsInItsFixedOrder) {
  { const ZEL::Initializer framework; }
  const std::vector<std::string> expected{
      "foundation", "synthetic commands", "theme", "resources", "colours, drag types, tool station", "stations",
      "console commands", "menu check style", "tooltip delay", "custom settings", "bitmap cache",
      // shut-down
      "clean up bitmap cache", "dispose stations", "unregister console commands", "terminate colours", "terminate theme",
      "restore platform settings", "release resources", "terminate synthetic commands", "terminate foundation"};
  EXPECT_EQ(ZEL::detail::GetInitializerTrace(), expected);
}

TEST(Initializer, BringsEveryPieceUpWhileItLives) {
  const ZEL::Initializer framework;
  EXPECT_TRUE(KLS::Foundation::IsInitialized());
  EXPECT_FALSE(kroui::ui::Theme::Get().GetColorIDs().empty());
  EXPECT_EQ(kroui::utility::GetResourceManager().GetModule(), "zel");
  EXPECT_FALSE(kroui::ui::HasDefaultCursorSupport());
  EXPECT_TRUE(kroui::ui::IsPopupMenuDefaultCheckStyleOn());
  EXPECT_EQ(kroui::ui::ToolTipManager::Instance().GetInitialDelay(), 500);
  EXPECT_TRUE(ZEL::IsBitmapCacheInitialized());
  EXPECT_NE(kroui::ui::KeyframeThemeEditor::Get(), nullptr);
  for (std::string_view format : ZEL::detail::GetFrameworkDragAndDropDataTypes())
    EXPECT_TRUE(kroui::ui::DragAndDropDataTypes::IsRegistered(format)) << format;
  EXPECT_TRUE(krocore::messaging::StationExists(ZEL::ToolMessaging::kStation_Tool));
  const auto stations = ZEL::FrameworkStations::GetStations();
  ASSERT_EQ(stations.size(), 6u);
  EXPECT_EQ(stations[1], ZEL::kStation_Workspace);
  EXPECT_EQ(stations[5], ZEL::kStation_ApplicationWindowMenu);
  for (const auto& station : stations) EXPECT_TRUE(krocore::messaging::StationExists(station)) << station.View();
}

TEST(Initializer, AsksTheSkinManagerAndFollowsSkinVersionChanges) {
  using kroui::skins::core::SkinManager;
  const ZEL::Initializer framework;
  const auto& skin = ZEL::detail::GetStartupSkinInfo();
  EXPECT_EQ(skin.version, SkinManager::kDefaultSkinVersion);
  EXPECT_TRUE(skin.requiresLegacyTheme);
  EXPECT_FALSE(skin.isLegacyTestingAllowed);
  EXPECT_EQ(skin.skinSets, std::vector<std::string>{"Default"});
  EXPECT_TRUE(kroui::ui::HasSkinVersionChangedFunction());
}

TEST(Initializer, LeavesThePlatformAsItFoundIt) {
  const PlatformSnapshot before;
  { const ZEL::Initializer framework; }
  EXPECT_TRUE(PlatformSnapshot{} == before);
  EXPECT_FALSE(ZEL::SyntheticCommand::GetCommandInfo(ZEL::SyntheticCommand::kFirstID).has_value());
}

TEST(Initializer, SecondOneReportsAndChangesNothing) {
  const ZEL::Initializer framework;
  const auto trace = ZEL::detail::GetInitializerTrace();
  const PlatformSnapshot during;
  krocore::debug::ScopedAssertionRecorder recorder;
  { const ZEL::Initializer second; }
  EXPECT_TRUE(recorder.Contains("The framework has been initialized already"));
  EXPECT_EQ(recorder.Count(), 1u);
  EXPECT_EQ(ZEL::detail::GetInitializerTrace(), trace);
  EXPECT_TRUE(PlatformSnapshot{} == during);
}

TEST(Initializer, ConsoleCommandsAnswerWhileTheFrameworkLives) {
  const ZEL::Initializer framework;
  auto& commands = ConsoleCommands::Instance();
  const auto stations = commands.Execute(ZEL::FrameworkConsoleCommands::kStations);
  ASSERT_TRUE(stations);
  EXPECT_NE(stations.Value().find("zel.workspace: 0 listeners"), std::string::npos);
  const auto settings = commands.Execute(ZEL::FrameworkConsoleCommands::kSettings);
  ASSERT_TRUE(settings);
  EXPECT_NE(settings.Value().find("ZEL.ToolTip.InitialDelayMs = 500"), std::string::npos);
  const auto colors = commands.Execute(ZEL::FrameworkConsoleCommands::kColors);
  ASSERT_TRUE(colors);
  EXPECT_FALSE(colors.Value().empty());
}

} // namespace
