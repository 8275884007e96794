#include <kromediaui/zoombar/ZoomBarRange.h>

#include <algorithm>
#include <cmath>

namespace kromediaui {
namespace {

double Fraction(double value) { return std::clamp(value, 0.0, 1.0); }

// `span` from `from`, the end held at 1 against rounding.
ZoomBarRange From(double from, double span) { return {from, std::min(1.0, from + span)}; }

} // namespace

bool ZoomBarRange::IsFinite() const noexcept { return std::isfinite(start) && std::isfinite(end); }

ZoomBarRange ZoomBarRange::Legal(double minimumSpan) const noexcept {
  const double minimum = Fraction(minimumSpan);
  ZoomBarRange legal{Fraction(std::min(start, end)), Fraction(std::max(start, end))};
  if (legal.Span() >= minimum) return legal;
  const double from = legal.Center() - minimum / 2.0;
  const double clampedFrom = std::clamp(from, 0.0, 1.0 - minimum);
  return From(clampedFrom, minimum);
}

ZoomBarRange ZoomBarRange::MovedTo(double newStart, double minimumSpan) const noexcept {
  const ZoomBarRange legal = Legal(minimumSpan);
  const double span = legal.Span();
  const double from = std::clamp(newStart, 0.0, 1.0 - span);
  return From(from, span);
}

ZoomBarRange ZoomBarRange::WithEdgeAt(Edge edge, double value, double minimumSpan) const noexcept {
  const double minimum = Fraction(minimumSpan);
  const ZoomBarRange legal = Legal(minimum);
  if (edge == Edge::Start) return ZoomBarRange{std::clamp(value, 0.0, legal.end - minimum), legal.end}.Legal(minimum);
  return ZoomBarRange{legal.start, std::clamp(value, legal.start + minimum, 1.0)}.Legal(minimum);
}

ZoomBarRange ZoomBarRange::SymmetricWithEdgeAt(Edge edge, double value, double minimumSpan) const noexcept {
  const double minimum = Fraction(minimumSpan);
  const ZoomBarRange legal = Legal(minimum);
  const double center = legal.Center();
  const double roomToLimit = std::min(center, 1.0 - center);
  // Near an end the centre cannot hold the minimum span on both sides.
  if (roomToLimit < minimum / 2.0) return legal;
  const double half = std::clamp(edge == Edge::Start ? center - value : value - center, minimum / 2.0, roomToLimit);
  return ZoomBarRange{center - half, center + half}.Legal(minimum);
}

ZoomBarRange ZoomBarRange::ZoomedAround(double anchor, double factor, double minimumSpan) const noexcept {
  const double minimum = Fraction(minimumSpan);
  const ZoomBarRange legal = Legal(minimum);
  if (!std::isfinite(factor) || factor <= 0.0 || legal.Span() <= 0.0) return legal;
  const double span = std::clamp(legal.Span() * factor, minimum, 1.0);
  const double scale = span / legal.Span();
  const double point = std::clamp(anchor, 0.0, 1.0);
  const double from = std::clamp(point - (point - legal.start) * scale, 0.0, 1.0 - span);
  return From(from, span);
}

} // namespace kromediaui
