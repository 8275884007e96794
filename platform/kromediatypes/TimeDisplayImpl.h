#pragma once

// Private to the sources of TimeDisplay: the timecode numbering that both
// formatting and parsing follow, so that the two cannot drift apart.

#include <kromediatypes/TickTime.h>

#include <cstdint>

namespace kromediatypes::detail {

inline constexpr std::int64_t kTicksPerMillisecond = TickTime::kTicksPerSecond / 1000;

/// Rounds towards minus infinity, as every conversion of a time to a count does.
constexpr std::int64_t FloorDivide(std::int64_t value, std::int64_t divisor) noexcept {
  const std::int64_t quotient = value / divisor;
  return (value % divisor != 0 && (value < 0) != (divisor < 0)) ? quotient - 1 : quotient;
}

/// The distance of a count from zero; exact even for the most negative count.
constexpr std::uint64_t Magnitude(std::int64_t value) noexcept {
  return value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
}

struct TimecodeFields {
  std::uint64_t hours = 0;
  std::uint64_t minutes = 0;
  std::uint64_t seconds = 0;
  std::uint64_t frames = 0;
};

/// Frame numbers and timecode labels. A label count is the position of a
/// label when every label existed: ((hh * 60 + mm) * 60 + ss) * base + ff.
///
/// Drop-frame (SMPTE 12M) keeps 29.97 and 59.94 fps labels close to the
/// clock by leaving out the first 2 (or 4) labels of every minute, except
/// every tenth minute: 00:00:59;29 is followed by 00:01:00;02. The frames
/// themselves are never dropped, only their labels.
class TimecodeNumbering {
public:
  constexpr TimecodeNumbering(std::uint64_t base, bool dropFrame) noexcept
      : mBase(base), mDropped(dropFrame ? base / 15 : 0), mLabelsPerMinute(base * 60),
        mFramesPerTenMinutes(base * 600 - 9 * mDropped), mFramesPerDroppingMinute(base * 60 - mDropped) {}

  constexpr std::uint64_t GetBase() const noexcept { return mBase; }

  constexpr TimecodeFields LabelOf(std::uint64_t frame) const noexcept {
    const std::uint64_t count = LabelCountOf(frame);
    const std::uint64_t totalSeconds = count / mBase;
    const std::uint64_t totalMinutes = totalSeconds / 60;
    return {totalMinutes / 60, totalMinutes % 60, totalSeconds % 60, count % mBase};
  }

  /// A label count that names no frame (a dropped label) counts as the next
  /// label that does. Counts up to 2^63 never overflow.
  constexpr std::uint64_t FrameOf(std::uint64_t labelCount) const noexcept {
    if (mDropped == 0) return labelCount;
    const std::uint64_t totalMinutes = labelCount / mLabelsPerMinute;
    const std::uint64_t inMinute = labelCount % mLabelsPerMinute;
    if (totalMinutes % 10 != 0 && inMinute < mDropped) labelCount += mDropped - inMinute;
    return labelCount - mDropped * (totalMinutes - totalMinutes / 10);
  }

private:
  constexpr std::uint64_t LabelCountOf(std::uint64_t frame) const noexcept {
    if (mDropped == 0) return frame;
    const std::uint64_t tens = frame / mFramesPerTenMinutes;
    const std::uint64_t inTen = frame % mFramesPerTenMinutes;
    // The first minute of ten keeps all its labels; each later one skips mDropped.
    const std::uint64_t laterMinutes = inTen < mDropped ? 0 : (inTen - mDropped) / mFramesPerDroppingMinute;
    return frame + mDropped * (9 * tens + laterMinutes);
  }

  std::uint64_t mBase;
  std::uint64_t mDropped;
  std::uint64_t mLabelsPerMinute;
  std::uint64_t mFramesPerTenMinutes;
  std::uint64_t mFramesPerDroppingMinute;
};

} // namespace kromediatypes::detail
