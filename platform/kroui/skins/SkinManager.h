#pragma once

#include <kroui/Export.h>

#include <string>
#include <string_view>
#include <vector>

namespace kroui::skins {

namespace core {

/// Which generation of skin the application shows. Versions up to 6 name
/// theme colours through numbered palettes; from version 7 on a skin resolves
/// colour names itself (utilities::GetColorByName).
class KROUI_API SkinManager {
public:
  /// The skin of the version 5 palette, which the library's theme files carry.
  static constexpr int kDefaultSkinVersion = 5;

  /// The last version whose colours come from the numbered (legacy) palettes.
  static constexpr int kLastLegacyThemeVersion = 6;
  /// The skin set every process has.
  static constexpr std::string_view kDefaultSkinSet = "Default";

  static int GetSkinVersion() noexcept;
  /// Changing the version changes how colours resolve, so it calls the
  /// theme's skin-version-changed function, then notifies a theme change.
  static void SetSkinVersion(int version);

  /// Whether the current skin still takes its colours from the legacy theme files.
  static bool RequiresLegacyTheme() noexcept;

  /// Whether a tester may switch back to a legacy skin at run time. Off by default.
  static bool IsLegacyTestingAllowed() noexcept;
  static void SetLegacyTestingAllowed(bool isAllowed) noexcept;

  /// The skin sets a host registered, after the default one, in registration order.
  static std::vector<std::string> GetRegisteredSkinSets();
  /// Returns false, changing nothing, for an empty name or one registered already.
  static bool RegisterSkinSet(std::string_view name);
  static bool UnregisterSkinSet(std::string_view name);
};

} // namespace core

KROUI_API bool IsRunningV7OrBeyond() noexcept;

} // namespace kroui::skins
