#include <kroscripting/events/Event.h>
#include <kroscripting/events/EventListenerToken.h>
#include <kroscripting/events/QueueEvent.h>

#include <krocore/threads/MainThreadQueue.h>

#include <benchmark/benchmark.h>

using namespace kroscripting::events;

namespace {

// Every posted command announces itself with an event; one script listens.
void BM_QueueAndDeliverCommandEvents(benchmark::State& state) {
  const auto count = static_cast<std::int64_t>(state.range(0));
  const krocore::utility::ImmutableString name("ZELCommandEvent");
  std::int64_t sum = 0;
  EventListenerToken token = AddEventListener(name, [&sum](const Event& event) {
    sum += *event.payload.GetIf<std::int64_t>("commandID");
  });
  for (auto _ : state) {
    for (std::int64_t i = 0; i < count; ++i) QueueEvent(name, {{"commandID", i}});
    krocore::threads::DrainMainThreadQueue();
  }
  benchmark::DoNotOptimize(sum);
  state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(BM_QueueAndDeliverCommandEvents)->Arg(1000);

} // namespace
