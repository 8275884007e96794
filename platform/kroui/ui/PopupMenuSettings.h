#pragma once

#include <kroui/Export.h>

namespace kroui::ui {

/// Whether pop-up menu items that carry no check style of their own show a
/// check mark column, so that checkable and plain items line up. Off by default.
KROUI_API void SetPopupMenuDefaultCheckStyle(bool isOn) noexcept;
KROUI_API bool IsPopupMenuDefaultCheckStyleOn() noexcept;

} // namespace kroui::ui
