// What a timeline pays on every zoom or scroll step: clamping the seconds per
// pixel, then the left edge at that zoom, through a host's limiter whose
// answers are virtual calls; and the zoom bar's curve both ways.
#include <zel/timecontrols/ZoomLimiter.h>

#include <benchmark/benchmark.h>

#include "AllocationCounter.h"

namespace {

using kromediatypes::TickTime;

class HostLimiter : public ZEL::ZoomLimiter {
public:
  HostLimiter() : ZoomLimiter(true) { SetScrollWidthInPixels(1920); }
  void GetContentDuration(TickTime& out) const override { out = TickTime::FromSeconds(3600); }
  void GetTrailingScrollTime(TickTime& out) const override { out = TickTime::FromSeconds(60); }
  const TickTime& GetAlignmentUnitDuration() const override { return mFrame; }

private:
  TickTime mFrame{TickTime::kTicksPerSecond / 25};
};

void ConstrainPair(benchmark::State& state) {
  HostLimiter limiter;
  double perPixel = 0.0005;
  TickTime base = TickTime::FromSeconds(1200);
  const long long before = ZELBench::sAllocations;
  for (auto _ : state) {
    benchmark::DoNotOptimize(perPixel);
    benchmark::DoNotOptimize(base);
    const double legal = limiter.ConstrainTimePerPixel(perPixel);
    benchmark::DoNotOptimize(limiter.ConstrainVisibleBaseTime(base, legal));
    perPixel = perPixel < 10.0 ? perPixel * 1.5 : 0.0005; // walk the whole zoom range
  }
  state.counters["allocations/pair"] =
    benchmark::Counter(static_cast<double>(ZELBench::sAllocations - before), benchmark::Counter::kAvgIterations);
}
BENCHMARK(ConstrainPair);

void ZoomBarCurveBothWays(benchmark::State& state) {
  HostLimiter limiter;
  kromediaui::ZoomBarRange thumbs{0.25, 0.5};
  for (auto _ : state) {
    benchmark::DoNotOptimize(thumbs);
    benchmark::DoNotOptimize(limiter.VisibleRangeToThumbs(limiter.ThumbsToVisibleRange(thumbs)));
  }
}
BENCHMARK(ZoomBarCurveBothWays);

} // namespace
