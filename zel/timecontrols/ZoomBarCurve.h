#pragma once

#include <zel/Export.h>

#include <kromediaui/zoombar/ZoomBarRange.h>

namespace ZEL {

/// The power curve between the zoom bar's thumbs and the visible part of the
/// timeline, both as ranges of fractions of the whole. The thumbs span a
/// larger fraction t of the bar than the fraction v = t^exponent of the
/// timeline that is visible, so the bar stays usable when a few frames of an hour-long sequence are shown. Both directions keep
/// the relative scroll position, start / (1 - span).
///
/// Input no real bar produces is answered neutrally: a start or end that is
/// not finite gives the whole range, and an exponent that is not finite and
/// positive counts as 1 (a linear bar).
class ZEL_API ZoomBarCurve {
public:
  static kromediaui::ZoomBarRange ThumbsToVisible(kromediaui::ZoomBarRange thumbs, double exponent);
  static kromediaui::ZoomBarRange VisibleToThumbs(kromediaui::ZoomBarRange visible, double exponent);

  ZoomBarCurve() = delete;
};

} // namespace ZEL
