#pragma once

#include <kroui/Export.h>

namespace kroui::skins {

namespace core {

/// Which generation of skin the application shows. Versions up to 6 name
/// theme colours through numbered palettes; from version 7 on a skin resolves
/// colour names itself (utilities::GetColorByName).
class KROUI_API SkinManager {
public:
  /// The skin of the version 5 palette, which the library's theme files carry.
  static constexpr int kDefaultSkinVersion = 5;

  static int GetSkinVersion() noexcept;
  /// Changing the version changes how colours resolve, so it notifies a theme change.
  static void SetSkinVersion(int version);
};

} // namespace core

KROUI_API bool IsRunningV7OrBeyond() noexcept;

} // namespace kroui::skins
