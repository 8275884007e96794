#include <zel/timecontrols/ZoomLimiter.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <limits>

namespace ZEL {

using kromediatypes::TickTime;

namespace {

std::atomic<std::uint32_t> sPixelsPerFrameMax{30};
constexpr std::uint32_t kPixelsPerSampleMax = 20;

constexpr TickTime kLongestScrollableDuration = TickTime::FromSeconds(24 * 60 * 60);
constexpr double kTicksPerSecond = static_cast<double>(TickTime::kTicksPerSecond);

// Seconds times ticks per second, truncated toward zero. A faulty seconds per
// pixel (negative or NaN) is no width at all, and a width beyond 64 bits stops
// one tick short of the unknown time, which would stick to every difference.
TickTime WidthInTicks(double seconds) {
  if (!(seconds > 0.0)) return TickTime();
  const double ticks = seconds * kTicksPerSecond;
  constexpr double kLimit = 9223372036854775808.0; // 2^63, the first double beyond int64
  if (ticks >= kLimit) return TickTime(std::numeric_limits<std::int64_t>::max() - 1);
  return TickTime(static_cast<std::int64_t>(ticks));
}

// Content of unknown length (a live source) scrolls through the longest
// duration known content is given, so that no limit is infinite.
TickTime ScrollableDuration(TickTime content, TickTime trailing) {
  TickTime room = kLongestScrollableDuration - content;
  if (room < TickTime()) room = TickTime();
  if (trailing < room) room = trailing;
  const TickTime scrollable = content + room;
  return scrollable.IsUnknown() ? kLongestScrollableDuration : scrollable;
}

} // namespace

std::uint32_t GetPixelsPerFrameMax() { return sPixelsPerFrameMax.load(std::memory_order_relaxed); }
void SetPixelsPerFrameMax(std::uint32_t pixels) { sPixelsPerFrameMax.store(pixels, std::memory_order_relaxed); }
std::uint32_t GetPixelsPerSampleMax() { return kPixelsPerSampleMax; }

ZoomLimiter::ZoomLimiter(bool zoomSynchedToSize) : mZoomSynchedToSize(zoomSynchedToSize) {}

ZoomLimiter::~ZoomLimiter() = default;

double ZoomLimiter::GetPowerExponent() const { return mPowerExponent; }

void ZoomLimiter::SetScrollWidthInPixels(int width) { mScrollWidthInPixels = std::max(width, 1); }

void ZoomLimiter::SetVisibleBaseTime(const TickTime& base, const double& secondsPerPixel) {
  mVisibleBaseTime = base;
  mVisibleTimePerPixel = secondsPerPixel;
}


// Seconds per pixel at the deepest zoom. An unknown unit gives +infinity, as
// 1 / (pixels x 0 units per second): the widest zoom then decides alone. A
// unit of no length or less, which no real medium has, sets no limit.
double ZoomLimiter::DeepestSecondsPerPixel() const {
  const TickTime& unit = GetAlignmentUnitDuration();
  if (!unit.IsUnknown() && unit.GetTicks() <= 0) return 0.0;
  const double unitsPerSecond =
    unit.IsUnknown() ? 0.0 : kTicksPerSecond / static_cast<double>(unit.GetTicks());
  const double pixels =
    mAudioFrameAlignment == 0 ? sPixelsPerFrameMax.load(std::memory_order_relaxed) : kPixelsPerSampleMax;
  return 1.0 / (pixels * unitsPerSecond);
}

double ZoomLimiter::ConstrainTimePerPixel(const double& secondsPerPixel) const {
  TickTime content;
  GetContentDuration(content);
  // NaN compares false both ways; as a request it means no zoom in particular, so the deepest one.
  const double requested = std::isnan(secondsPerPixel) ? 0.0 : secondsPerPixel;
  const double deepest = std::max(DeepestSecondsPerPixel(), requested);
  TickTime trailing;
  GetTrailingScrollTime(trailing);
  const TickTime scrollable = ScrollableDuration(content, trailing);
  // The scrollable duration is known here, so seconds are a plain division (TickTime's operator/ less its checks).
  const double widest = scrollable > TickTime() ? (static_cast<double>(scrollable.GetTicks()) / kTicksPerSecond) /
                                                    static_cast<double>(std::max(mScrollWidthInPixels, 1))
                                                : 1.0;
  return std::min(widest, deepest);
}

TickTime ZoomLimiter::ConstrainVisibleBaseTime(const TickTime& base, const double& secondsPerPixel) const {
  TickTime trailing;
  GetTrailingScrollTime(trailing);
  TickTime content;
  GetContentDuration(content);
  const double visibleSeconds = static_cast<double>(mScrollWidthInPixels) * secondsPerPixel;
  const TickTime latest = ScrollableDuration(content, trailing) - WidthInTicks(visibleSeconds);
  if (latest < base) return latest > TickTime() ? latest : TickTime();
  return base > TickTime() ? base : TickTime();
}

void ZoomLimiter::GetSecondsPerPixelLimits(double& minimum, double& maximum) const {
  minimum = ConstrainTimePerPixel(0.0);
  maximum = ConstrainTimePerPixel(1000000.0);
}

void ZoomLimiter::GetPixelsPerSecondLimits(double& minimum, double& maximum) const {
  minimum = 1.0 / ConstrainTimePerPixel(1000000.0);
  maximum = 1.0 / ConstrainTimePerPixel(0.0);
}

void ZoomLimiter::CalculateZoomFactors(double& minimum, double& maximum) const {
  GetPixelsPerSecondLimits(minimum, maximum);
}

kromediaui::ZoomBarRange ZoomLimiter::ThumbsToVisibleRange(kromediaui::ZoomBarRange thumbs) const {
  return ZoomBarCurve::ThumbsToVisible(thumbs, GetPowerExponent());
}

kromediaui::ZoomBarRange ZoomLimiter::VisibleRangeToThumbs(kromediaui::ZoomBarRange visible) const {
  return ZoomBarCurve::VisibleToThumbs(visible, GetPowerExponent());
}

} // namespace ZEL
