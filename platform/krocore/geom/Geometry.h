#pragma once

#include <algorithm>

namespace krocore::geom {

template <typename T>
struct PointT {
  T x{};
  T y{};

  constexpr PointT operator+(const PointT& o) const noexcept { return {x + o.x, y + o.y}; }
  constexpr PointT operator-(const PointT& o) const noexcept { return {x - o.x, y - o.y}; }
  constexpr bool operator==(const PointT&) const noexcept = default;
};

template <typename T>
struct ExtentT {
  T width{};
  T height{};

  constexpr bool IsEmpty() const noexcept { return width <= 0 || height <= 0; }
  constexpr bool operator==(const ExtentT&) const noexcept = default;
};

/// A rectangle as its four edges; right and bottom lie outside it, so a
/// rectangle from 0 to 10 is 10 pixels wide.
template <typename T>
struct RectT {
  T left{};
  T top{};
  T right{};
  T bottom{};

  static constexpr RectT FromOriginAndExtent(PointT<T> origin, ExtentT<T> extent) noexcept {
    return {origin.x, origin.y, origin.x + extent.width, origin.y + extent.height};
  }

  constexpr T Width() const noexcept { return right - left; }
  constexpr T Height() const noexcept { return bottom - top; }
  constexpr PointT<T> Origin() const noexcept { return {left, top}; }
  constexpr ExtentT<T> Extent() const noexcept { return {Width(), Height()}; }
  constexpr bool IsEmpty() const noexcept { return right <= left || bottom <= top; }

  constexpr bool Contains(PointT<T> p) const noexcept { return p.x >= left && p.x < right && p.y >= top && p.y < bottom; }
  constexpr bool Intersects(const RectT& o) const noexcept { return !Intersection(o).IsEmpty(); }

  constexpr RectT Intersection(const RectT& o) const noexcept {
    RectT r{std::max(left, o.left), std::max(top, o.top), std::min(right, o.right), std::min(bottom, o.bottom)};
    return r.IsEmpty() ? RectT{} : r;
  }

  /// The smallest rectangle holding both; an empty side does not count.
  constexpr RectT Union(const RectT& o) const noexcept {
    if (IsEmpty()) return o;
    if (o.IsEmpty()) return *this;
    return {std::min(left, o.left), std::min(top, o.top), std::max(right, o.right), std::max(bottom, o.bottom)};
  }

  constexpr RectT Offset(T dx, T dy) const noexcept { return {left + dx, top + dy, right + dx, bottom + dy}; }
  constexpr RectT Inset(T dx, T dy) const noexcept { return {left + dx, top + dy, right - dx, bottom - dy}; }
  constexpr bool operator==(const RectT&) const noexcept = default;
};

} // namespace krocore::geom
