#pragma once

// Private: the pictures of the system's and the platform's own cursors.

#include <kroui/base/Cursor.h>
#include <kroui/utility/CursorCanvas.h>

#include <cstdint>
#include <span>

namespace kroui::utility {

struct PlatformCursorArt {
  std::int32_t id = 0;
  ui::SystemCursor shape = ui::SystemCursor::None;
  ui::Point hotSpot;
  void (*draw)(CursorCanvas& canvas, CursorCanvas::PointF hotSpot) = nullptr;
};

/// Every cursor OS_ResourceManager draws, the arrow (which the system shows) excepted.
std::span<const PlatformCursorArt> GetPlatformCursorArt();

} // namespace kroui::utility
