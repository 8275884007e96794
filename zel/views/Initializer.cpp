#include <zel/views/Initializer.h>

#include <zel/appearance/ColorManager.h>
#include <zel/appearance/Cursor.h>
#include <zel/appearance/ThemeResources.h>
#include <zel/commands/SyntheticCommand.h>
#include <zel/views/Bitmap.h>
#include <zel/views/CustomSettings.h>
#include <zel/views/FrameworkConsoleCommands.h>
#include <zel/views/FrameworkStations.h>
#include <zel/views/InitializerImpl.h>

#include <kls/Foundation.h>
#include <krocore/debug/Assert.h>
#include <krocore/messaging/Station.h>
#include <kroui/base/DataObject.h>
#include <kroui/base/DragAndDropDataTypes.h>
#include <kroui/base/DragCursorSupport.h>
#include <kroui/skins/SkinManager.h>
#include <kroui/theme/KeyframeThemeEditor.h>
#include <kroui/theme/SkinVersionChange.h>
#include <kroui/theme/Theme.h>
#include <kroui/ui/PopupMenuSettings.h>
#include <kroui/ui/ToolTipManager.h>
#include <kroui/utility/OS_ResourceManager.h>

#include <memory>
#include <optional>
#include <span>
#include <utility>

namespace ZEL {
namespace {

constexpr int kToolTipInitialDelayMs = 500;

const Initializer* sLiving = nullptr;

/// What start-up changed in the platform beyond its own objects, so that
/// shut-down leaves the platform as the framework found it.
struct PlatformState {
  int toolTipDelay = kroui::ui::ToolTipManager::kDefaultInitialDelay;
  int skinVersion = kroui::skins::core::SkinManager::kDefaultSkinVersion;
  bool hasDragCursors = true;
  bool isCheckStyleOn = false;
  std::optional<CursorInitializer> cursors;
  kroui::ui::SkinVersionChangedFunction skinVersionChanged;
  detail::StartupSkinInfo skin;
};

PlatformState& Saved() {
  static PlatformState sState;
  return sState;
}

std::vector<std::string>& Trace() {
  static std::vector<std::string> sTrace;
  return sTrace;
}

struct Step {
  const char* name;
  void (*run)();
};

void SavePlatformState() {
  PlatformState& saved = Saved();
  saved.toolTipDelay = kroui::ui::ToolTipManager::Instance().GetInitialDelay();
  saved.skinVersion = kroui::skins::core::SkinManager::GetSkinVersion();
  saved.hasDragCursors = kroui::ui::HasDefaultCursorSupport();
  saved.isCheckStyleOn = kroui::ui::IsPopupMenuDefaultCheckStyleOn();
}

void StartTheme() {
  SavePlatformState();
  kroui::ui::KeyframeThemeEditor::Create();
  // Start-up reports no errors: a theme file that cannot be read leaves its
  // colours at the theme's fallback, which is visible enough.
  static_cast<void>(ThemeResources::Install());
  kroui::ui::SetDefaultCursorSupport(false);
}

void AskSkinManager() {
  using kroui::skins::core::SkinManager;
  Saved().skin = {SkinManager::GetSkinVersion(), SkinManager::IsLegacyTestingAllowed(),
                  SkinManager::GetRegisteredSkinSets(), SkinManager::RequiresLegacyTheme()};
}

void StartResources() {
  kroui::utility::SetResourceManager(
      std::make_unique<kroui::utility::OS_ResourceManager>(std::string(ThemeResources::kModule)));
  Saved().cursors.emplace();
  AskSkinManager();
  // Colour names resolve differently from one skin version to the next.
  Saved().skinVersionChanged = kroui::ui::SetSkinVersionChangedFunction([](int) { ColorManager::FlushCache(); });
}

void RegisterDragAndDropDataTypes() {
  for (std::string_view format : detail::GetFrameworkDragAndDropDataTypes())
    kroui::ui::DragAndDropDataTypes::Register(format);
}

void StartColors() {
  ColorManager::Initialize();
  RegisterDragAndDropDataTypes();
  krocore::messaging::CreateStation(ToolMessaging::kStation_Tool);
}

void StartMenus() { kroui::ui::SetPopupMenuDefaultCheckStyle(true); }

void StartToolTips() { kroui::ui::ToolTipManager::Instance().SetInitialDelay(kToolTipInitialDelayMs); }

void StopStations() {
  FrameworkStations::Dispose();
  krocore::messaging::DisposeStation(ToolMessaging::kStation_Tool);
}

void StopTheme() {
  PlatformState& saved = Saved();
  kroui::ui::SetSkinVersionChangedFunction(std::move(saved.skinVersionChanged));
  kroui::ui::KeyframeThemeEditor::Destroy();
  kroui::ui::Theme::Get().Reset();
  kroui::skins::core::SkinManager::SetSkinVersion(saved.skinVersion);
  kroui::ui::SetDefaultCursorSupport(saved.hasDragCursors);
}

void RestorePlatformSettings() {
  const PlatformState& saved = Saved();
  kroui::ui::ToolTipManager::Instance().SetInitialDelay(saved.toolTipDelay);
  kroui::ui::SetPopupMenuDefaultCheckStyle(saved.isCheckStyleOn);
  for (std::string_view format : detail::GetFrameworkDragAndDropDataTypes())
    kroui::ui::DragAndDropDataTypes::Unregister(format);
}

void StopResources() {
  Saved().cursors.reset();
  kroui::utility::SetResourceManager(nullptr);
}

constexpr Step kStartUp[] = {
    {"foundation", [] { KLS::Foundation::Initialize(); }},
    {"synthetic commands", [] { SyntheticCommand::Initialize(); }},
    {"theme", StartTheme},
    {"resources", StartResources},
    {"colours, drag types, tool station", StartColors},
    {"stations", [] { FrameworkStations::Register(); }},
    {"console commands", [] { FrameworkConsoleCommands::Register(); }},
    {"menu check style", StartMenus},
    {"tooltip delay", StartToolTips},
    {"custom settings", [] { CustomSettings::Apply(); }},
    {"bitmap cache", [] { InitBitmapCache(); }},
};

constexpr Step kShutDown[] = {
    {"clean up bitmap cache", [] { CleanupBitmapCache(); }},
    {"dispose stations", StopStations},
    {"unregister console commands", [] { FrameworkConsoleCommands::Unregister(); }},
    {"terminate colours", [] { ColorManager::Terminate(); }},
    {"terminate theme", StopTheme},
    {"restore platform settings", RestorePlatformSettings},
    {"release resources", StopResources},
    {"terminate synthetic commands", [] { SyntheticCommand::Terminate(); }},
    {"terminate foundation", [] { KLS::Foundation::Terminate(); }},
};

void Run(std::span<const Step> steps) {
  for (const Step& step : steps) {
    Trace().emplace_back(step.name);
    step.run();
  }
}

} // namespace

namespace detail {

const std::vector<std::string>& GetInitializerTrace() { return Trace(); }

const StartupSkinInfo& GetStartupSkinInfo() { return Saved().skin; }

std::vector<std::string_view> GetFrameworkDragAndDropDataTypes() {
  return {kroui::ui::DataObject::kFormat_Text, "application/x-zel-clip", "application/x-zel-panel",
          "application/x-zel-marker", "application/x-zel-color"};
}

} // namespace detail

Initializer::Initializer() {
  if (!KROCORE_ASSERT(sLiving == nullptr, "The framework has been initialized already")) return;
  sLiving = this;
  Trace().clear();
  Run(kStartUp);
}

Initializer::~Initializer() {
  if (sLiving != this) return;
  Run(kShutDown);
  sLiving = nullptr;
}

} // namespace ZEL
