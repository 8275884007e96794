#pragma once

#include <zel/Export.h>

#include <string>
#include <string_view>
#include <vector>

namespace ZEL::detail {

/// What the skin manager answered at start-up.
struct StartupSkinInfo {
  int version = 0;
  bool isLegacyTestingAllowed = false;
  std::vector<std::string> skinSets;
  bool requiresLegacyTheme = false;
};

/// The steps the living or last Initializer ran, start-up then shut-down, by name.
ZEL_API const std::vector<std::string>& GetInitializerTrace();

/// The answers of the living or last Initializer's start-up.
ZEL_API const StartupSkinInfo& GetStartupSkinInfo();

/// The drag-and-drop data formats the framework registers at start-up.
ZEL_API std::vector<std::string_view> GetFrameworkDragAndDropDataTypes();

} // namespace ZEL::detail
