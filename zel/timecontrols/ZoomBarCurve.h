#pragma once

#include <zel/Export.h>

namespace ZEL {

/// A stretch of the timeline or of the zoom bar, as fractions of the whole.
struct FractionRange {
  double start = 0.0;
  double end = 1.0;

  bool operator==(const FractionRange&) const = default;
};

/// The power curve between the zoom bar's thumbs and the visible part of the
/// timeline. The thumbs span a larger fraction t of the bar than the fraction
/// v = t^exponent of the timeline that is visible, so the bar stays usable
/// when a few frames of an hour-long sequence are shown. Both directions keep
/// the relative scroll position, start / (1 - span).
///
/// Input no real bar produces is answered neutrally: a start or end that is
/// not finite gives the whole range, and an exponent that is not finite and
/// positive counts as 1 (a linear bar).
class ZEL_API ZoomBarCurve {
public:
  static FractionRange ThumbsToVisible(FractionRange thumbs, double exponent);
  static FractionRange VisibleToThumbs(FractionRange visible, double exponent);

  ZoomBarCurve() = delete;
};

} // namespace ZEL
