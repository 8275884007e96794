#include <zel/views/CustomSettings.h>

#include <krocore/settings/Settings.h>
#include <kroui/skins/SkinManager.h>
#include <kroui/theme/Theme.h>
#include <kroui/ui/PopupMenuSettings.h>
#include <kroui/ui/ToolTipManager.h>

#include <cstdint>

namespace ZEL {
namespace {

krocore::settings::Settings& Store() { return krocore::settings::Settings::Instance(); }

int ToolTipDelay() {
  return static_cast<int>(Store().GetInteger(CustomSettings::kToolTipInitialDelay,
                                             kroui::ui::ToolTipManager::kDefaultInitialDelay));
}

double Brightness() { return Store().GetReal(CustomSettings::kThemeBrightness, kroui::ui::Theme::kDefaultBrightness); }

int SkinVersion() {
  return static_cast<int>(
      Store().GetInteger(CustomSettings::kSkinVersion, kroui::skins::core::SkinManager::kDefaultSkinVersion));
}

bool CheckStyle() { return Store().GetBool(CustomSettings::kPopupMenuCheckStyle, true); }

std::string Line(std::string_view name, const std::string& value) { return std::string(name) + " = " + value; }

} // namespace

void CustomSettings::Apply() {
  kroui::ui::ToolTipManager::Instance().SetInitialDelay(ToolTipDelay());
  kroui::ui::Theme::Get().SetBrightness(static_cast<float>(Brightness()));
  kroui::skins::core::SkinManager::SetSkinVersion(SkinVersion());
  kroui::ui::SetPopupMenuDefaultCheckStyle(CheckStyle());
}

std::vector<std::string> CustomSettings::Describe() {
  return {Line(kToolTipInitialDelay, std::to_string(ToolTipDelay())),
          Line(kThemeBrightness, std::to_string(Brightness())),
          Line(kSkinVersion, std::to_string(SkinVersion())),
          Line(kPopupMenuCheckStyle, CheckStyle() ? "true" : "false")};
}

} // namespace ZEL
