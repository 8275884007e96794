// The whole road of a host's start and end: the framework brought up from
// nothing (theme files parsed, colour tables read, stations, console commands,
// resource manager and cursors) and taken down again, each time cold.
#include <zel/views/Initializer.h>

#include <benchmark/benchmark.h>

namespace {

void BM_InitializerStartUpAndShutDown(benchmark::State& state) {
  for (auto _ : state) {
    const ZEL::Initializer framework;
    benchmark::ClobberMemory();
  }
}
BENCHMARK(BM_InitializerStartUpAndShutDown)->Unit(benchmark::kMillisecond);

} // namespace
