#pragma once

#include <zel/Export.h>

#include <string>
#include <string_view>
#include <vector>

namespace ZEL::detail {

/// The steps the living or last Initializer ran, start-up then shut-down, by name.
ZEL_API const std::vector<std::string>& GetInitializerTrace();

/// The drag-and-drop data formats the framework registers at start-up.
ZEL_API std::vector<std::string_view> GetFrameworkDragAndDropDataTypes();

} // namespace ZEL::detail
