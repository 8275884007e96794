// What the modal tracking loop costs per event against the plain event loop:
// the same scripted pointer moves over a window, drained by EventLoop::Run
// (moves dispatched to the window's nodes) or by RunEventLoop (moves handed to
// a control), the drain inside the timing. A drag of 10 moves shows the fixed
// cost of the tracking window and capture; one of 1,000 the cost per event.

#include <zel/views/ModalControlInterface.h>
#include <zel/views/ModalEventLoopDriver.h>

#include <kroui/ui/EventLoop.h>
#include <kroui/ui/UI_Container.h>
#include <kroui/ui/UI_Window.h>

#include <backends/headless/HeadlessBackend.h>

#include <benchmark/benchmark.h>

#include "AllocationCounter.h"

#include <cstdlib>
#include <memory>

namespace {

using kroui::backend::HeadlessBackend;

class CountingControl : public ZEL::ModalControlInterface {
public:
  bool ModalIsStillActive() const override { return true; }
  void ModalMouseMoved(const Point& point, ZEL::KeyModifiers) override { mSum += point.x; }
  void ModalKeyModifiersChanged(const Point&, ZEL::KeyModifiers) override {}
  void ModalCommit(const Point& point, ZEL::KeyModifiers) override { mSum += point.y; }
  void ModalCancel() override { std::abort(); } // every drag here ends with the button's release
  long long GetSum() const noexcept { return mSum; }

private:
  long long mSum = 0;
};

struct Desk {
  HeadlessBackend& headless = HeadlessBackend::Install();
  std::unique_ptr<kroui::ui::UI_Window> window;

  Desk() {
    kroui::backend::WindowDescription description;
    description.bounds = {0, 0, 800, 600};
    window = std::make_unique<kroui::ui::UI_Window>(description);
    window->GetRoot().InsertChild(krocore::MakeIntrusive<kroui::ui::UI_Container>(), {0, 0, 800, 600});
    window->Show();
    kroui::ui::EventLoop::Instance().ProcessPending();
  }
  ~Desk() {
    window.reset();
    kroui::backend::SetBackend(nullptr);
  }

  void QueueMoves(std::int64_t count) {
    for (std::int64_t i = 0; i < count; ++i) {
      headless.MoveMouseTo(window->GetNativeWindow(), {static_cast<int>(i % 700), static_cast<int>(i % 500)});
    }
  }
};

// Allocations per event inside the timing (queueing the scripted moves is not counted).
void CountAllocationsPerEvent(benchmark::State& state, long long allocations) {
  state.counters["allocations/event"] = benchmark::Counter(
      static_cast<double>(allocations) / static_cast<double>(state.range(0)), benchmark::Counter::kAvgIterations);
}

void BM_PlainLoopMoves(benchmark::State& state) {
  Desk desk;
  long long allocations = 0;
  for (auto _ : state) {
    state.PauseTiming();
    desk.QueueMoves(state.range(0));
    const long long before = ZELBench::sAllocations;
    state.ResumeTiming();
    kroui::ui::EventLoop::Instance().Run(); // returns once no event is left
    allocations += ZELBench::sAllocations - before;
  }
  CountAllocationsPerEvent(state, allocations);
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_PlainLoopMoves)->Arg(10)->Arg(1000);

void BM_ModalLoopMoves(benchmark::State& state) {
  Desk desk;
  CountingControl control;
  long long allocations = 0;
  for (auto _ : state) {
    state.PauseTiming();
    desk.QueueMoves(state.range(0));
    desk.headless.ReleaseButton();
    const long long before = ZELBench::sAllocations;
    state.ResumeTiming();
    ZEL::ModalEventLoopDriver(control).RunEventLoop();
    allocations += ZELBench::sAllocations - before;
  }
  benchmark::DoNotOptimize(control.GetSum());
  CountAllocationsPerEvent(state, allocations);
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_ModalLoopMoves)->Arg(10)->Arg(1000);

} // namespace
