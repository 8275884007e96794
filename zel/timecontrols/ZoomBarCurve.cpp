#include <zel/timecontrols/ZoomBarCurve.h>

#include <algorithm>
#include <cmath>

namespace ZEL {

using kromediaui::ZoomBarRange;

namespace {

double UsableExponent(double exponent) { return std::isfinite(exponent) && exponent > 0.0 ? exponent : 1.0; }

ZoomBarRange ClampedEach(double start, double span) {
  return {std::clamp(start, 0.0, 1.0), std::clamp(start + span, 0.0, 1.0)};
}

} // namespace

ZoomBarRange ZoomBarCurve::ThumbsToVisible(ZoomBarRange thumbs, double exponent) {
  if (!thumbs.IsFinite()) return {};
  const double span = std::clamp(thumbs.end - thumbs.start, 0.0, 1.0);
  if (span >= 1.0) return {}; // the position start / (1 - span) has no meaning
  const double position = std::max(thumbs.start / (1.0 - span), 0.0);
  const double visibleSpan = std::pow(span, UsableExponent(exponent));
  return ClampedEach(std::min(1.0, position) * (1.0 - visibleSpan), visibleSpan);
}

ZoomBarRange ZoomBarCurve::VisibleToThumbs(ZoomBarRange visible, double exponent) {
  if (!visible.IsFinite()) return {};
  const double span = visible.end - visible.start;
  // A fractional power of a negative span is NaN: an empty or reversed range has no thumb span.
  const double thumbSpan = span > 0.0 ? std::clamp(std::pow(span, 1.0 / UsableExponent(exponent)), 0.0, 1.0) : 0.0;
  const double rest = std::clamp(1.0 - span, 0.0, 1.0);
  const double start = rest > 0.0 ? std::min(1.0, std::max(1.0 - thumbSpan, 0.0)) * (visible.start / rest) : 0.0;
  return ClampedEach(start, thumbSpan);
}

} // namespace ZEL
