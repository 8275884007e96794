#include <kromediatypes/TickTime.h>

#include <kromediatypes/FrameRate.h>
#include <kromediatypes/TimeDisplayImpl.h>

#include <cmath>
#include <limits>

namespace kromediatypes {

using detail::FloorDivide;

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

// 2^63 as a double: the first tick count beyond the range.
constexpr double kBeyondRange = 9223372036854775808.0;

} // namespace

TickTime TickTime::FromSecondsDouble(double seconds) noexcept {
  if (std::isnan(seconds)) return Unknown();
  const double ticks = std::round(seconds * static_cast<double>(kTicksPerSecond));
  if (ticks >= kBeyondRange) return Unknown();
  if (ticks <= -kBeyondRange) return Earliest();
  return TickTime(static_cast<std::int64_t>(ticks));
}

double TickTime::ToSeconds() const noexcept {
  if (IsUnknown()) return kInfinity;
  // Whole seconds and the rest apart, so that large times keep their fraction.
  const std::int64_t whole = FloorDivide(mTicks, kTicksPerSecond);
  const std::int64_t rest = mTicks - whole * kTicksPerSecond;
  return static_cast<double>(whole) + static_cast<double>(rest) / static_cast<double>(kTicksPerSecond);
}

std::int64_t TickTime::ToWholeSeconds() const noexcept {
  if (IsUnknown()) return std::numeric_limits<std::int64_t>::max();
  return FloorDivide(mTicks, kTicksPerSecond);
}

TickTime TickTime::FromFrames(std::int64_t frames, const FrameRate& rate) noexcept {
  return rate.GetFrameDuration() * frames;
}

std::int64_t TickTime::ToFrames(const FrameRate& rate) const noexcept {
  if (IsUnknown()) return std::numeric_limits<std::int64_t>::max();
  if (!rate.IsKnown()) return 0;
  return FloorDivide(mTicks, rate.GetFrameDuration().GetTicks());
}

TickTime TickTime::FromSamples(std::int64_t samples, const FrameRate& sampleRate) noexcept {
  return FromFrames(samples, sampleRate);
}

std::int64_t TickTime::ToSamples(const FrameRate& sampleRate) const noexcept {
  return ToFrames(sampleRate);
}

TickTime TickTime::FloorToFrame(const FrameRate& rate) const noexcept {
  if (IsUnknown() || !rate.IsKnown()) return *this;
  return FromFrames(ToFrames(rate), rate);
}

double operator/(TickTime a, TickTime b) noexcept {
  if (a.IsUnknown() && b.IsUnknown()) return kNotANumber;
  if (a.IsUnknown()) return b.GetTicks() < 0 ? -kInfinity : kInfinity;
  if (b.IsUnknown()) return 0.0;
  if (b.GetTicks() == 0) return a.GetTicks() == 0 ? kNotANumber : (a.GetTicks() < 0 ? -kInfinity : kInfinity);
  return static_cast<double>(a.GetTicks()) / static_cast<double>(b.GetTicks());
}

} // namespace kromediatypes
