#pragma once

#include <zel/Export.h>

#include <kromediaui/zoombar/UI_ZoomBar.h>

namespace ZEL {

/// The colours of a zoom bar in the current theme, from the colour registry
/// (colors.kls.audio.zoom.bar.control.*), for any control that shows a
/// kromediaui::UI_ZoomBar. Ask again after a theme change.
ZEL_API kromediaui::ZoomBarColors GetZoomBarThemeColors();

} // namespace ZEL
