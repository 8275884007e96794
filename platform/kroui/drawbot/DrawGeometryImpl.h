#pragma once

// Small geometry both drawbot surfaces share: rectangles as origin and size,
// and the only transforms a drawbot can hold (a scale, then a translation).

#include <kroui/drawbot/DrawTypes.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>

namespace kroui::drawbot {

inline bool IsEmpty(const RectF& r) noexcept { return !(r.width > 0.f && r.height > 0.f); }

inline RectF Intersect(const RectF& a, const RectF& b) noexcept {
  const float left = std::max(a.x, b.x);
  const float top = std::max(a.y, b.y);
  const float right = std::min(a.x + a.width, b.x + b.width);
  const float bottom = std::min(a.y + a.height, b.y + b.height);
  if (!(right > left && bottom > top)) return {};
  return {left, top, right - left, bottom - top};
}

/// The smallest rectangle holding both; an empty one does not count.
inline RectF Union(const RectF& a, const RectF& b) noexcept {
  if (IsEmpty(a)) return b;
  if (IsEmpty(b)) return a;
  const float left = std::min(a.x, b.x);
  const float top = std::min(a.y, b.y);
  const float right = std::max(a.x + a.width, b.x + b.width);
  const float bottom = std::max(a.y + a.height, b.y + b.height);
  return {left, top, right - left, bottom - top};
}

inline bool Intersects(const RectF& a, const RectF& b) noexcept { return !IsEmpty(Intersect(a, b)); }

inline bool Contains(const RectF& outer, const RectF& inner) noexcept {
  return inner.x >= outer.x && inner.y >= outer.y && inner.x + inner.width <= outer.x + outer.width &&
         inner.y + inner.height <= outer.y + outer.height;
}

inline RectF Inflate(const RectF& r, float dx, float dy) noexcept {
  return {r.x - dx, r.y - dy, r.width + 2.f * dx, r.height + 2.f * dy};
}

inline RectF BoundsOf(std::span<const PointF> points) noexcept {
  if (points.empty()) return {};
  float left = points[0].x, right = points[0].x, top = points[0].y, bottom = points[0].y;
  for (const PointF& p : points) {
    left = std::min(left, p.x);
    right = std::max(right, p.x);
    top = std::min(top, p.y);
    bottom = std::max(bottom, p.y);
  }
  return {left, top, right - left, bottom - top};
}

inline bool IsWhole(float value) noexcept { return value == std::floor(value) && std::abs(value) < 1e7f; }

/// Whether all four edges of a rectangle fall on pixel boundaries.
inline bool IsWholePixels(const RectF& r) noexcept {
  return IsWhole(r.x) && IsWhole(r.y) && IsWhole(r.x + r.width) && IsWhole(r.y + r.height);
}

inline bool IsFinite(PointF p) noexcept { return std::isfinite(p.x) && std::isfinite(p.y); }
inline bool IsFinite(const RectF& r) noexcept {
  return std::isfinite(r.x) && std::isfinite(r.y) && std::isfinite(r.width) && std::isfinite(r.height);
}
inline bool AreFinite(std::span<const PointF> points) noexcept {
  return std::all_of(points.begin(), points.end(), [](PointF p) { return IsFinite(p); });
}

/// user -> device: scale first, then translate. Translate and Scale calls
/// compose into this form, so no rotation or shear can ever be in force.
struct Transform {
  float scaleX = 1.f;
  float scaleY = 1.f;
  float translateX = 0.f;
  float translateY = 0.f;

  PointF Apply(PointF p) const noexcept { return {p.x * scaleX + translateX, p.y * scaleY + translateY}; }

  /// The device rectangle a user rectangle covers, with positive size even under a flip.
  RectF Apply(const RectF& r) const noexcept {
    const PointF a = Apply(PointF{r.x, r.y});
    const PointF b = Apply(PointF{r.x + r.width, r.y + r.height});
    return {std::min(a.x, b.x), std::min(a.y, b.y), std::abs(b.x - a.x), std::abs(b.y - a.y)};
  }

  bool IsInvertible() const noexcept { return scaleX != 0.f && scaleY != 0.f; }
  bool IsTranslation() const noexcept { return scaleX == 1.f && scaleY == 1.f; }

  /// device -> user; only for an invertible transform.
  RectF Invert(const RectF& r) const noexcept {
    const PointF a{(r.x - translateX) / scaleX, (r.y - translateY) / scaleY};
    const PointF b{(r.x + r.width - translateX) / scaleX, (r.y + r.height - translateY) / scaleY};
    return {std::min(a.x, b.x), std::min(a.y, b.y), std::abs(b.x - a.x), std::abs(b.y - a.y)};
  }
};

} // namespace kroui::drawbot
