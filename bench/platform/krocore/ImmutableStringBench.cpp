#include <krocore/utility/ImmutableString.h>

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

using krocore::utility::ImmutableString;

namespace {

// Every iteration interns a text never seen before: the texts are made
// first, outside the timing, since a text can be new only once.
void BM_InternNewString(benchmark::State& state) {
  static long long counter = 0;
  std::vector<std::string> texts;
  texts.reserve(static_cast<std::size_t>(state.max_iterations));
  for (benchmark::IterationCount i = 0; i < state.max_iterations; ++i)
    texts.push_back("bench.new.key." + std::to_string(counter++));
  std::size_t next = 0;
  for (auto _ : state) benchmark::DoNotOptimize(ImmutableString(std::string_view(texts[next++])));
}
BENCHMARK(BM_InternNewString)->Iterations(1 << 20);

// Looks up texts that are interned already, as colour and station keys are.
void BM_LookUpExistingString(benchmark::State& state) {
  std::vector<std::string> texts;
  for (int i = 0; i < 1024; ++i) texts.push_back("colors.kls.bench." + std::to_string(i));
  for (const auto& text : texts) ImmutableString{std::string_view(text)};
  std::size_t i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(ImmutableString(std::string_view(texts[i++ & 1023])));
  }
}
BENCHMARK(BM_LookUpExistingString);

void BM_CompareInterned(benchmark::State& state) {
  const ImmutableString a("colors.kls.focus");
  const ImmutableString b("colors.kls.focus");
  for (auto _ : state) benchmark::DoNotOptimize(a == b);
}
BENCHMARK(BM_CompareInterned);

} // namespace
