#include <krocore/messaging/Listener.h>
#include <krocore/messaging/Message.h>
#include <krocore/messaging/Station.h>
#include <krocore/threads/MainThreadQueue.h>

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

using namespace krocore::messaging;
using krocore::utility::ImmutableString;

namespace {

class DragMessage : public Message {
  KROCORE_MESSAGE_CLASS(DragMessage, "bench.DragMessage")

  explicit DragMessage(int x) : mX(x) {}
  int mX;
};

class OtherMessage : public Message {
  KROCORE_MESSAGE_CLASS(OtherMessage, "bench.OtherMessage")
};

/// Does what a real listener does first: checks the type, then reads the message.
class SummingListener : public Listener {
public:
  void ListenToMessage(const Message& message) override {
    if (const auto* drag = message.As<DragMessage>()) mSum += drag->mX;
  }
  long long mSum = 0;
};

const ImmutableString kStation("bench.station");

// A control broadcasting a changing message on every mouse move of a drag.
void BM_BroadcastToListeners(benchmark::State& state) {
  std::vector<SummingListener> listeners(static_cast<std::size_t>(state.range(0)));
  for (auto& listener : listeners) listener.SubscribeTo(kStation);
  const DragMessage message(1);
  for (auto _ : state) BroadcastMessageOnMainThread(kStation, message);
  benchmark::DoNotOptimize(listeners.front().mSum);
  state.SetItemsProcessed(state.iterations() * state.range(0));
  DisposeStation(kStation);
}
BENCHMARK(BM_BroadcastToListeners)->Arg(1)->Arg(10)->Arg(100);

// Listeners that ignore the message type: the cost of filtering by type identifier.
void BM_BroadcastIgnoredByListeners(benchmark::State& state) {
  std::vector<SummingListener> listeners(static_cast<std::size_t>(state.range(0)));
  for (auto& listener : listeners) listener.SubscribeTo(kStation);
  const OtherMessage message;
  for (auto _ : state) BroadcastMessageOnMainThread(kStation, message);
  state.SetItemsProcessed(state.iterations() * state.range(0));
  DisposeStation(kStation);
}
BENCHMARK(BM_BroadcastIgnoredByListeners)->Arg(100);

// A control nobody listens to still broadcasts.
void BM_BroadcastWithoutStation(benchmark::State& state) {
  const ImmutableString nobody("bench.nobody");
  const DragMessage message(1);
  for (auto _ : state) BroadcastMessageOnMainThread(nobody, message);
}
BENCHMARK(BM_BroadcastWithoutStation);

void BM_SubscribeAndUnsubscribe(benchmark::State& state) {
  std::vector<SummingListener> others(static_cast<std::size_t>(state.range(0)));
  for (auto& listener : others) listener.SubscribeTo(kStation);
  SummingListener listener;
  for (auto _ : state) {
    listener.SubscribeTo(kStation);
    listener.UnsubscribeFrom(kStation);
  }
  DisposeStation(kStation);
}
BENCHMARK(BM_SubscribeAndUnsubscribe)->Arg(0)->Arg(100);

// Posting a batch of tasks to the main-thread queue and draining it.
void BM_PostAndDrainMainThreadQueue(benchmark::State& state) {
  const auto count = static_cast<int>(state.range(0));
  long long ran = 0;
  for (auto _ : state) {
    for (int i = 0; i < count; ++i) krocore::threads::PostToMainThread([&ran] { ++ran; });
    krocore::threads::DrainMainThreadQueue();
  }
  benchmark::DoNotOptimize(ran);
  state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(BM_PostAndDrainMainThreadQueue)->Arg(1000);

// Queued broadcasts of a message made once: queueing, draining and delivery to one listener.
void BM_AsyncBroadcastAndDrain(benchmark::State& state) {
  const auto count = static_cast<int>(state.range(0));
  SummingListener listener;
  listener.SubscribeTo(kStation);
  const auto message = std::make_shared<const DragMessage>(1);
  for (auto _ : state) {
    for (int i = 0; i < count; ++i) AsyncBroadcastMessagePtr(kStation, message);
    krocore::threads::DrainMainThreadQueue();
  }
  benchmark::DoNotOptimize(listener.mSum);
  state.SetItemsProcessed(state.iterations() * count);
  DisposeStation(kStation);
}
BENCHMARK(BM_AsyncBroadcastAndDrain)->Arg(1000);

} // namespace
