#pragma once

// The arithmetic of a zoom bar's range, apart from its events and paint.

#include <kromediaui/Export.h>

#include <cstdint>

namespace kromediaui {

/// The part of the whole that a zoom bar shows: two fractions from 0 to 1,
/// start before end. The distance of the edges is the zoom.
struct KROMEDIAUI_API ZoomBarRange {
  enum class Edge : std::uint8_t { Start, End };

  double start = 0.0;
  double end = 1.0;

  double Span() const noexcept { return end - start; }
  double Center() const noexcept { return (start + end) / 2.0; }
  bool IsFinite() const noexcept;
  bool IsWhole() const noexcept { return start <= 0.0 && end >= 1.0; }
  bool operator==(const ZoomBarRange&) const noexcept = default;

  // Each of these answers a legal range: ordered, inside [0, 1], and at
  // least `minimumSpan` wide (itself taken inside [0, 1]).

  /// This range made legal: ordered, clamped, and widened about its centre
  /// (then pushed back inside) when it is narrower than the minimum.
  ZoomBarRange Legal(double minimumSpan) const noexcept;
  /// The same span with its start at `newStart`, held inside [0, 1].
  ZoomBarRange MovedTo(double newStart, double minimumSpan) const noexcept;
  /// One edge at `value`, the other where it is; the moved edge stops short
  /// of the other by the minimum span, and at 0 or 1.
  ZoomBarRange WithEdgeAt(Edge edge, double value, double minimumSpan) const noexcept;
  /// One edge at `value` and the other mirrored about the centre, which stays.
  ZoomBarRange SymmetricWithEdgeAt(Edge edge, double value, double minimumSpan) const noexcept;
  /// The span times `factor`, the point at fraction `anchor` of the whole
  /// staying where it is on the bar (as far as the limits allow).
  ZoomBarRange ZoomedAround(double anchor, double factor, double minimumSpan) const noexcept;
};

} // namespace kromediaui
