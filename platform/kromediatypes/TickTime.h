#pragma once

#include <kromediatypes/Export.h>

#include <compare>
#include <concepts>
#include <cstdint>
#include <limits>

namespace kromediatypes {

class FrameRate;

/// A media time: a signed count of ticks at 254,016,000,000 ticks per second.
/// Every video and audio rate of the platform divides that rate exactly, so a
/// frame or sample boundary is a whole number of ticks and all arithmetic on
/// times is exact integer arithmetic.
///
/// The largest value is the unknown (or unbounded) time. It is sticky: any sum,
/// difference, negation or product with it is unknown again. A known result
/// beyond the range saturates: upwards to the unknown time, downwards to
/// Earliest(), so that an overflow never wraps into a plausible time.
///
/// Conversions to counts (whole seconds, frames, samples) round down, also for
/// negative times: -0.5 frames is in frame -1, as the frame that holds it.
class KROMEDIATYPES_API TickTime {
public:
  static constexpr std::int64_t kTicksPerSecond = 254'016'000'000;

  constexpr TickTime() noexcept = default;
  constexpr explicit TickTime(std::int64_t ticks) noexcept : mTicks(ticks) {}

  static constexpr TickTime Unknown() noexcept { return TickTime(kUnknownTicks); }
  static constexpr TickTime Earliest() noexcept { return TickTime(kEarliestTicks); }

  constexpr std::int64_t GetTicks() const noexcept { return mTicks; }
  constexpr bool IsUnknown() const noexcept { return mTicks == kUnknownTicks; }

  static constexpr TickTime FromSeconds(std::int64_t seconds) noexcept { return TickTime(kTicksPerSecond) * seconds; }
  /// Rounds to the nearest tick, since a double is an approximation anyway;
  /// NaN and +infinity give the unknown time.
  static TickTime FromSecondsDouble(double seconds) noexcept;
  /// +infinity for the unknown time.
  double ToSeconds() const noexcept;
  /// Rounded down; the largest count for the unknown time.
  std::int64_t ToWholeSeconds() const noexcept;

  /// An unknown rate (an endless frame) gives the unknown time.
  static TickTime FromFrames(std::int64_t frames, const FrameRate& rate) noexcept;
  /// The frame that holds this time, rounded down; the largest count for the
  /// unknown time, 0 at an unknown rate.
  std::int64_t ToFrames(const FrameRate& rate) const noexcept;
  static TickTime FromSamples(std::int64_t samples, const FrameRate& sampleRate) noexcept;
  std::int64_t ToSamples(const FrameRate& sampleRate) const noexcept;
  /// The start of the frame that holds this time; an unknown rate or time
  /// leaves the time as it is.
  TickTime FloorToFrame(const FrameRate& rate) const noexcept;

  constexpr TickTime operator-() const noexcept {
    if (IsUnknown() || mTicks == kEarliestTicks) return Unknown();
    return TickTime(-mTicks);
  }

  constexpr TickTime& operator+=(TickTime other) noexcept {
    if (IsUnknown() || other.IsUnknown())
      mTicks = kUnknownTicks;
    else if (other.mTicks > 0 && mTicks > kUnknownTicks - other.mTicks)
      mTicks = kUnknownTicks;
    else if (other.mTicks < 0 && mTicks < kEarliestTicks - other.mTicks)
      mTicks = kEarliestTicks;
    else
      mTicks += other.mTicks;
    return *this;
  }

  constexpr TickTime& operator-=(TickTime other) noexcept {
    if (IsUnknown() || other.IsUnknown())
      mTicks = kUnknownTicks;
    else if (other.mTicks < 0 && mTicks > kUnknownTicks + other.mTicks)
      mTicks = kUnknownTicks;
    else if (other.mTicks > 0 && mTicks < kEarliestTicks + other.mTicks)
      mTicks = kEarliestTicks;
    else
      mTicks -= other.mTicks;
    return *this;
  }

  friend constexpr TickTime operator+(TickTime a, TickTime b) noexcept { return a += b; }
  friend constexpr TickTime operator-(TickTime a, TickTime b) noexcept { return a -= b; }

  friend constexpr TickTime operator*(TickTime time, std::int64_t factor) noexcept {
    if (time.IsUnknown()) return time;
    if (MultiplicationOverflows(time.mTicks, factor))
      return (time.mTicks < 0) != (factor < 0) ? Earliest() : Unknown();
    return TickTime(time.mTicks * factor);
  }
  friend constexpr TickTime operator*(std::int64_t factor, TickTime time) noexcept { return time * factor; }

  constexpr auto operator<=>(const TickTime&) const noexcept = default;
  constexpr bool operator==(const TickTime&) const noexcept = default;

private:
  static constexpr std::int64_t kUnknownTicks = std::numeric_limits<std::int64_t>::max();
  static constexpr std::int64_t kEarliestTicks = std::numeric_limits<std::int64_t>::min();

  static constexpr bool MultiplicationOverflows(std::int64_t a, std::int64_t b) noexcept {
    if (a == 0 || b == 0) return false;
    if (a > 0) return b > 0 ? a > kUnknownTicks / b : b < kEarliestTicks / a;
    return b > 0 ? a < kEarliestTicks / b : b < kUnknownTicks / a;
  }

  std::int64_t mTicks = 0;
};

/// The ratio of two times, for scales such as seconds per pixel. The unknown
/// time counts as +infinity; unknown by unknown is NaN.
KROMEDIATYPES_API double operator/(TickTime a, TickTime b) noexcept;

// A fractional factor would be truncated without a word; scale seconds instead.
template <std::floating_point F>
TickTime operator*(TickTime, F) = delete;
template <std::floating_point F>
TickTime operator*(F, TickTime) = delete;

} // namespace kromediatypes
