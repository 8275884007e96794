// The marker queries as the time bar uses them: jumping to the next visible
// marker, and filtering a sequence's markers for drawing, among 10,000
// markers of mixed colours and kinds with a filter that hides most of them.
// Goals: the jump under 1 µs, the filter under 100 µs, neither allocating
// more than it must.
#include "AllocationCounter.h"

#include <zel/timecontrols/MarkerUtils.h>

#include <be/markers/Markers.h>
#include <be/markers/UpgradeValidator.h>

#include <benchmark/benchmark.h>

#include <vector>

namespace {

constexpr int kMarkerCount = 10'000;

// One marker a second; colours cycle through all eight, every third a chapter.
const BE::IMarkers& TenThousandMarkers() {
  static const auto sMarkers = [] {
    auto markers = BE::Markers::Create();
    const BE::UpgradeValidator validator;
    for (int i = 0; i < kMarkerCount; ++i) {
      BE::MarkerFields fields;
      fields.start = kromediatypes::TickTime::FromSeconds(i);
      fields.color = static_cast<BE::MarkerUtils::MarkerColorID>(i % 8);
      fields.type = std::string(i % 3 ? BE::kMarkerType_Comment : BE::kMarkerType_Chapter);
      markers->AddMarker(fields, validator, nullptr);
    }
    return markers;
  }();
  return *sMarkers;
}

// Red and blue comments pass: one marker in six.
void SelectRedAndBlueComments() {
  using BE::MarkerUtils::MarkerColorID;
  const auto& standard = ZEL::GetStandardMarkerColors();
  ZEL::SetSelectedMarkerFilterColors({standard[static_cast<std::size_t>(MarkerColorID::kRed)],
                                      standard[static_cast<std::size_t>(MarkerColorID::kBlue)]});
  ZEL::SetSelectedMarkerFilterTypes({std::string(BE::kMarkerType_Comment)});
}

void CountAllocations(benchmark::State& state, long long before) {
  state.counters["allocs/op"] = benchmark::Counter(static_cast<double>(ZELBench::sAllocations - before),
                                                   benchmark::Counter::kAvgIterations);
}

void BM_NextVisibleMarkerAmong10000(benchmark::State& state) {
  const BE::IMarkers& markers = TenThousandMarkers();
  SelectRedAndBlueComments();
  int second = 0;
  const long long before = ZELBench::sAllocations;
  for (auto _ : state) {
    benchmark::DoNotOptimize(ZEL::GetNextVisibleMarker(markers, kromediatypes::TickTime::FromSeconds(second)));
    second = (second + 997) % kMarkerCount;
  }
  CountAllocations(state, before);
  ZEL::ClearMarkerFilter();
}
BENCHMARK(BM_NextVisibleMarkerAmong10000);

void BM_FilterMarkers10000(benchmark::State& state) {
  const BE::ReadValidator validator;
  const BE::MarkerList all = TenThousandMarkers().GetMarkers(validator);
  SelectRedAndBlueComments();
  BE::MarkerList list;
  list.reserve(all.size());
  long long allocations = 0;
  for (auto _ : state) {
    state.PauseTiming();
    list.assign(all.begin(), all.end());
    const long long before = ZELBench::sAllocations;
    state.ResumeTiming();
    ZEL::FilterMarkers(list);
    allocations += ZELBench::sAllocations - before;
    benchmark::DoNotOptimize(list.data());
  }
  state.counters["visible"] = static_cast<double>(list.size());
  state.counters["allocs/op"] = benchmark::Counter(static_cast<double>(allocations), benchmark::Counter::kAvgIterations);
  ZEL::ClearMarkerFilter();
}
BENCHMARK(BM_FilterMarkers10000)->Unit(benchmark::kMicrosecond);

} // namespace
