// What one step of a thumb drag costs on a full-width zoom bar: the pointer
// move dispatched to the held bar, its range changed, and the 1920 x 12 bar
// repainted and presented, as the event loop does it. Allocations per step
// are counted; a plain node that repaints on every move gives the event
// loop's own share of both.

#include <kromediaui/zoombar/UI_ZoomBar.h>

#include <kroui/drawbot/Drawbot.h>
#include <kroui/ui/EventLoop.h>
#include <kroui/ui/UI_Window.h>

#include <backends/headless/HeadlessBackend.h>

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <new>

namespace {

std::atomic<long long> sAllocations{0};

} // namespace

// Counts every allocation of the program; the benchmark reads the count around its steps.
[[gnu::noinline]] void* operator new(std::size_t size) {
  ++sAllocations;
  if (void* p = std::malloc(size ? size : 1)) return p;
  throw std::bad_alloc();
}
[[gnu::noinline]] void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  ++sAllocations;
  return std::malloc(size ? size : 1);
}
[[gnu::noinline]] void operator delete(void* p) noexcept { std::free(p); }
[[gnu::noinline]] void operator delete(void* p, std::size_t) noexcept { std::free(p); }

namespace {

using kroui::backend::HeadlessBackend;

constexpr int kWidth = 1920;

/// The event loop's part of a step, for comparison: a node as wide as the
/// bar that repaints itself, one rectangle, on every move of a held pointer.
class RepaintingNode final : public kroui::ui::UI_Node {
protected:
  bool MouseDownSelf(const kroui::ui::PointerEvent&) override { return CaptureMouse(); }
  bool MouseMoveSelf(const kroui::ui::PointerEvent& event) override {
    mX = event.position.x;
    Invalidate();
    return true;
  }
  void PaintSelf(kroui::drawbot::Drawbot& drawbot) override {
    drawbot.FillRect({static_cast<float>(mX), 0.f, 100.f, 12.f}, {0.5f, 0.5f, 0.5f, 1.f});
  }

private:
  int mX = 0;
};

/// Holds the pointer down on `node` in a window 1920 x 12, then moves it 3
/// pixels right and left, a step an iteration: dispatch, paint and present.
void RunHeldDrag(benchmark::State& state, const kroui::ui::UI_NodePtr& node) {
  HeadlessBackend& headless = HeadlessBackend::Install();
  kroui::backend::WindowDescription description;
  description.bounds = {0, 0, kWidth, kromediaui::UI_ZoomBar::GetDefaultSize()};
  auto window = std::make_unique<kroui::ui::UI_Window>(description);
  window->GetRoot().InsertChild(node, {0, 0, kWidth, kromediaui::UI_ZoomBar::GetDefaultSize()});
  window->Show();
  auto& loop = kroui::ui::EventLoop::Instance();
  const HWND native = window->GetNativeWindow();
  headless.MoveMouseTo(native, {864, 6});
  headless.PressButton();
  loop.ProcessPending();

  int step = 0;
  long long allocations = 0;
  const std::uint64_t paintsBefore = window->GetPaintCount();
  for (auto _ : state) {
    const long long before = sAllocations;
    headless.MoveMouseTo(native, {864 + (step++ % 2 == 0 ? 3 : -3), 6});
    loop.ProcessPending(); // dispatches the move, paints and presents
    allocations += sAllocations - before;
  }
  // One paint a step: every move changed what is shown.
  state.counters["paints"] = benchmark::Counter(static_cast<double>(window->GetPaintCount() - paintsBefore),
                                                benchmark::Counter::kAvgIterations);
  state.counters["allocations"] =
      benchmark::Counter(static_cast<double>(allocations), benchmark::Counter::kAvgIterations);
  headless.ReleaseButton();
  loop.ProcessPending();
  window.reset();
  kroui::backend::SetBackend(nullptr);
}

// Held on the thumb's centre, which lies between 576 and 1152.
void BM_ZoomBarThumbDragStep(benchmark::State& state) {
  auto bar = krocore::MakeIntrusive<kromediaui::UI_ZoomBar>();
  bar->SetValueRange(0.3, 0.6);
  RunHeldDrag(state, bar);
  benchmark::DoNotOptimize(bar->GetValueRange());
}
BENCHMARK(BM_ZoomBarThumbDragStep)->Unit(benchmark::kMicrosecond);

void BM_PlainNodeRepaintStep(benchmark::State& state) {
  RunHeldDrag(state, krocore::MakeIntrusive<RepaintingNode>());
}
BENCHMARK(BM_PlainNodeRepaintStep)->Unit(benchmark::kMicrosecond);

} // namespace
