#pragma once

#include <zel/Export.h>

#include <krocore/utility/ImmutableString.h>

#include <vector>

namespace ZEL {

// The messaging stations the framework announces at start-up, so that
// listeners can subscribe before the first broadcast.
ZEL_API extern const krocore::utility::ImmutableString kStation_Workspace;
ZEL_API extern const krocore::utility::ImmutableString kStation_Theme;
ZEL_API extern const krocore::utility::ImmutableString kStation_ModalColorPickerStatusActive;
ZEL_API extern const krocore::utility::ImmutableString kStation_ApplicationWindowMenu;

namespace ToolMessaging {
/// Where tools (the current editing tool of a panel) announce changes.
ZEL_API extern const krocore::utility::ImmutableString kStation_Tool;
} // namespace ToolMessaging

/// Creating and disposing of the framework's stations as one group.
class ZEL_API FrameworkStations {
public:
  /// The six stations of start-up, in their order of creation.
  static std::vector<krocore::utility::ImmutableString> GetStations();
  static void Register();
  static void Dispose();

  FrameworkStations() = delete;
};

} // namespace ZEL
