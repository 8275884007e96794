#pragma once

#include <zel/Export.h>

#include <kromediaui/zoombar/UI_ZoomBar.h>

#include <krocore/utility/ImmutableString.h>

namespace ZEL {

// The registry's colours of the zoom controls.
inline const krocore::utility::ImmutableString kColor_ZoomBarTrack{"colors.kls.audio.zoom.bar.control.background"};
inline const krocore::utility::ImmutableString kColor_ZoomBarThumb{"colors.kls.audio.zoom.bar.control.thumb"};
/// A thumb, knob or button while it is held.
inline const krocore::utility::ImmutableString kColor_ZoomBarThumbActive{
    "colors.kls.audio.zoom.bar.control.thumb.active"};
/// Handles, grips, knobs and the level shown.
inline const krocore::utility::ImmutableString kColor_ZoomBarHandle{"colors.kls.audio.zoom.bar.control.handle"};

/// The colours of a zoom bar in the current theme, from the colour registry,
/// for any control that shows a kromediaui::UI_ZoomBar. Ask again after a
/// theme change.
ZEL_API kromediaui::ZoomBarColors GetZoomBarThemeColors();

} // namespace ZEL
