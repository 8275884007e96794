#pragma once

#include <compare>
#include <concepts>
#include <type_traits>

namespace krocore::utility {

/// A set of bits over an unsigned integer (or an enum over one), with the
/// operations a modifier byte or a style mask needs.
template <typename T>
class Flags {
public:
  using Underlying = typename std::conditional_t<std::is_enum_v<T>, std::underlying_type<T>, std::type_identity<T>>::type;
  static_assert(std::is_unsigned_v<Underlying>, "Flags hold unsigned bits");

  constexpr Flags() noexcept = default;
  constexpr Flags(T bits) noexcept : mBits(static_cast<Underlying>(bits)) {} // NOLINT: a bit is a set
  static constexpr Flags FromValue(Underlying value) noexcept { return Flags(static_cast<T>(value)); }

  constexpr Underlying GetValue() const noexcept { return mBits; }
  constexpr bool IsEmpty() const noexcept { return mBits == 0; }
  constexpr bool Has(Flags other) const noexcept { return (mBits & other.mBits) == other.mBits; }
  constexpr bool HasAny(Flags other) const noexcept { return (mBits & other.mBits) != 0; }

  constexpr Flags& Set(Flags other) noexcept { mBits |= other.mBits; return *this; }
  constexpr Flags& Clear(Flags other) noexcept { mBits &= static_cast<Underlying>(~other.mBits); return *this; }
  constexpr Flags& Set(Flags other, bool on) noexcept { return on ? Set(other) : Clear(other); }

  constexpr Flags operator|(Flags other) const noexcept { return FromValue(mBits | other.mBits); }
  constexpr Flags operator&(Flags other) const noexcept { return FromValue(mBits & other.mBits); }
  constexpr Flags operator^(Flags other) const noexcept { return FromValue(mBits ^ other.mBits); }
  constexpr Flags& operator|=(Flags other) noexcept { return Set(other); }
  constexpr Flags& operator&=(Flags other) noexcept { mBits &= other.mBits; return *this; }
  constexpr bool operator==(const Flags&) const noexcept = default;
  constexpr auto operator<=>(const Flags&) const noexcept = default;

private:
  Underlying mBits = 0;
};

} // namespace krocore::utility
