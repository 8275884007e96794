// The whole road of a host's start and end: the framework brought up (theme
// files parsed, colour tables read, stations, console commands, resource
// manager and cursors) and taken down again, with the heap it touches. Every
// step is redone each round, but process-wide statics (interned strings,
// module tables) stay warm after the first, and cursor images are decoded
// only on first use, so they are not in the figure.
#include <zel/views/Initializer.h>

#include <benchmark/benchmark.h>

#include "AllocationCounter.h"

namespace {

void BM_InitializerStartUpAndShutDown(benchmark::State& state) {
  const long long before = ZELBench::sAllocations;
  for (auto _ : state) {
    const ZEL::Initializer framework;
    benchmark::ClobberMemory();
  }
  state.counters["allocations"] =
      benchmark::Counter(static_cast<double>(ZELBench::sAllocations - before), benchmark::Counter::kAvgIterations);
}
BENCHMARK(BM_InitializerStartUpAndShutDown)->Unit(benchmark::kMillisecond);

} // namespace
