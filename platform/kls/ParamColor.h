#pragma once

#include <compare>

namespace KLS {

/// A colour parameter as three channels in the order red, green, blue, with
/// no alpha. ParamColor<unsigned char> is the 8-bit colour of the colour
/// registry; ParamColor<float> holds channels from 0 to 1.
template <typename T>
struct ParamColor {
  T red{};
  T green{};
  T blue{};

  constexpr ParamColor() noexcept = default;
  constexpr ParamColor(T r, T g, T b) noexcept : red(r), green(g), blue(b) {}

  constexpr bool operator==(const ParamColor&) const noexcept = default;
  constexpr auto operator<=>(const ParamColor&) const noexcept = default;
};

} // namespace KLS
