#pragma once

// The hashing that the libraries share, so that a table's spread does not
// depend on which copy of a constant its author typed.

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace krocore::utility {

inline constexpr std::uint64_t kFnv1aOffsetBasis = 14695981039346656037ull;
inline constexpr std::uint64_t kFnv1aPrime = 1099511628211ull;
/// 2^64 divided by the golden ratio: odd, with its bits spread evenly.
inline constexpr std::uint64_t kGoldenRatio64 = 0x9E3779B97F4A7C15ull;

/// FNV-1a over bytes. Short keys dominate our tables, and it needs no seed to
/// stay the same from run to run; pass a seeded `basis` where a hostile
/// author of the keys must not know it.
constexpr std::uint64_t Fnv1a(std::string_view bytes, std::uint64_t basis = kFnv1aOffsetBasis) noexcept {
  std::uint64_t hash = basis;
  for (const char c : bytes) hash = (hash ^ static_cast<unsigned char>(c)) * kFnv1aPrime;
  return hash;
}

/// Spreads an integer's bits over the high bits of the product (Fibonacci
/// hashing): a table of 2^n slots takes the top n bits.
constexpr std::uint64_t GoldenMix(std::uint64_t value) noexcept { return value * kGoldenRatio64; }

/// Folds the hash of one more part of a key into the hash of the parts before.
constexpr std::size_t HashCombine(std::size_t seed, std::size_t value) noexcept {
  return seed ^ (value + static_cast<std::size_t>(kGoldenRatio64) + (seed << 6) + (seed >> 2));
}

} // namespace krocore::utility
