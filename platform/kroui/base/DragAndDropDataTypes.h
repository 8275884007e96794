#pragma once

#include <kroui/Export.h>

#include <string>
#include <string_view>
#include <vector>

namespace kroui::ui {

/// The process-wide list of data formats (DataObject format names) that drop
/// targets may be offered. A format is registered once, so that a drag source
/// and a drop target agree on it before either exists; the list keeps the
/// order of registration. UI thread only.
class KROUI_API DragAndDropDataTypes {
public:
  /// Returns false, changing nothing, when the name is empty or registered already.
  static bool Register(std::string_view format);
  static bool Unregister(std::string_view format);
  static bool IsRegistered(std::string_view format);
  static std::vector<std::string> GetRegistered();
  /// Forgets every format (shut-down, test tear-down).
  static void Clear();

  DragAndDropDataTypes() = delete;
};

} // namespace kroui::ui
