// The raw message filter chain: the cost every platform event pays before its
// window sees it, with eight filters registered (a host with a few modules
// that watch raw input), and the heap it touches per message (none expected).
#include <zel/views/WinOSEventFilterer.h>

#include <benchmark/benchmark.h>

#include "AllocationCounter.h"

namespace {

using ZEL::WinOSEventFilterer;

constexpr int kFilters = 8;

bool Decline(const MSG& message, void* context) {
  benchmark::DoNotOptimize(message.message);
  benchmark::DoNotOptimize(context);
  return false;
}

bool Take(const MSG& message, void* context) {
  benchmark::DoNotOptimize(message.message);
  benchmark::DoNotOptimize(context);
  return true;
}

// Registers `decliners` declining filters, then the taking one when `lastTakes`.
void FilterThroughEight(benchmark::State& state, bool lastTakes) {
  int contexts[kFilters] = {};
  const int decliners = lastTakes ? kFilters - 1 : kFilters;
  for (int i = 0; i < decliners; ++i) WinOSEventFilterer::RegisterFilter(&Decline, &contexts[i]);
  if (lastTakes) WinOSEventFilterer::RegisterFilter(&Take, &contexts[kFilters - 1]);
  MSG message;
  message.message = 1;
  const long long before = ZELBench::sAllocations;
  for (auto _ : state) benchmark::DoNotOptimize(WinOSEventFilterer::FilterEvent(message));
  state.counters["allocations/message"] =
      benchmark::Counter(static_cast<double>(ZELBench::sAllocations - before), benchmark::Counter::kAvgIterations);
  for (int i = 0; i < decliners; ++i) WinOSEventFilterer::UnregisterFilter(&Decline, &contexts[i]);
  if (lastTakes) WinOSEventFilterer::UnregisterFilter(&Take, &contexts[kFilters - 1]);
}

void BM_FilterEventEighthTakes(benchmark::State& state) { FilterThroughEight(state, true); }
BENCHMARK(BM_FilterEventEighthTakes);

void BM_FilterEventAllEightDecline(benchmark::State& state) { FilterThroughEight(state, false); }
BENCHMARK(BM_FilterEventAllEightDecline);

} // namespace
