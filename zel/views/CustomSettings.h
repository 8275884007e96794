#pragma once

#include <zel/Export.h>

#include <string>
#include <string_view>
#include <vector>

namespace ZEL {

/// The platform settings the framework applies at start-up, each read from
/// krocore's settings by name with a default when the host gives none:
///
///   "ZEL.ToolTip.InitialDelayMs"       tooltip delay of nodes without their own (500)
///   "ZEL.Theme.Brightness"             theme brightness, 0 to 1 (0.5)
///   "ZEL.Skin.Version"                 skin generation (5)
///   "ZEL.PopupMenu.DefaultCheckStyle"  check column in pop-up menus (true)
class ZEL_API CustomSettings {
public:
  static constexpr std::string_view kToolTipInitialDelay = "ZEL.ToolTip.InitialDelayMs";
  static constexpr std::string_view kThemeBrightness = "ZEL.Theme.Brightness";
  static constexpr std::string_view kSkinVersion = "ZEL.Skin.Version";
  static constexpr std::string_view kPopupMenuCheckStyle = "ZEL.PopupMenu.DefaultCheckStyle";

  /// Reads the four settings and hands each to the platform piece it tunes.
  static void Apply();
  /// "name = value" for each setting, as Apply would read it now.
  static std::vector<std::string> Describe();

  CustomSettings() = delete;
};

} // namespace ZEL
