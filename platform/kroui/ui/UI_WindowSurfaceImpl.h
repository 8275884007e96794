#pragma once

// Private: the pixels a window paints into.

#include <kroui/drawbot/RasterSurface.h>
#include <kroui/ui/UI_Window.h>

namespace kroui::ui {

struct UI_Window::Surface {
  Surface(int width, int height) : raster(width, height) {}
  drawbot::RasterSurface raster;
};

} // namespace kroui::ui
