#pragma once

#include <kroui/Export.h>

namespace kroui::ui {

/// Whether a drag shows the platform's default drop-effect cursors (copy,
/// move, no-drop). A framework that sets its own cursors during a drag turns
/// this off, so that the two do not fight over the pointer. On by default.
KROUI_API void SetDefaultCursorSupport(bool isSupported) noexcept;
KROUI_API bool HasDefaultCursorSupport() noexcept;

} // namespace kroui::ui
