// What a view costs: the heap it holds once created (the handle, its node,
// and its place in the parent), and the time to create and destroy views
// in the numbers a busy panel has.
#include <zel/views/SubView.h>

#include <kroui/ui/UI_Container.h>

#include <benchmark/benchmark.h>

#include "AllocationCounter.h"

#include <memory>
#include <vector>

namespace {

using ZEL::SubView;
using Container = kroui::ui::UI_Container;

struct Parent {
  krocore::IntrusivePtr<Container> node = krocore::MakeIntrusive<Container>();
  kroui::ui::RefCountedWeakPtr<Container> link{node};
};

std::vector<std::shared_ptr<SubView>> CreateViews(const Parent& parent, int count) {
  std::vector<std::shared_ptr<SubView>> views;
  views.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) {
    views.push_back(std::make_shared<SubView>(ZEL::CommanderWeakPtr()));
    views.back()->Create(parent.link, {i % 100, i / 100, i % 100 + 10, i / 100 + 10});
  }
  return views;
}

// Heap held per created view: the handle with its count block, the node, and
// the parent's slot for it (with the growth slack of the parent's vector);
// the caller's vector of handles is made before counting starts.
void BM_MemoryPerCreatedSubView(benchmark::State& state) {
  constexpr int kViews = 1000;
  double perView = 0;
  for (auto _ : state) {
    state.PauseTiming();
    Parent parent;
    std::vector<std::shared_ptr<SubView>> views;
    views.reserve(kViews);
    const long long before = ZELBench::sLiveBytes;
    for (int i = 0; i < kViews; ++i) {
      views.push_back(std::make_shared<SubView>(ZEL::CommanderWeakPtr()));
      views.back()->Create(parent.link, {0, 0, 10, 10});
    }
    perView = static_cast<double>(ZELBench::sLiveBytes - before) / kViews;
    views.clear();
    state.ResumeTiming();
  }
  state.counters["bytes/view"] = perView;
  state.counters["sizeof(SubView)"] = static_cast<double>(sizeof(SubView));
}
BENCHMARK(BM_MemoryPerCreatedSubView)->Iterations(3);

// Destroyed first-made first (arg 0), as a vector of views goes, or last-made
// first (arg 1): each view leaves its parent's list of children, so the order
// decides how much of the list moves.
void BM_CreateAndDestroy10000SubViews(benchmark::State& state) {
  constexpr int kViews = 10000;
  const bool lastFirst = state.range(0) != 0;
  Parent parent;
  for (auto _ : state) {
    auto views = CreateViews(parent, kViews);
    benchmark::DoNotOptimize(views.data());
    if (lastFirst) {
      while (!views.empty()) views.pop_back();
    }
    views.clear();
  }
  state.SetItemsProcessed(state.iterations() * kViews);
}
BENCHMARK(BM_CreateAndDestroy10000SubViews)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void BM_Create10000SubViews(benchmark::State& state) {
  constexpr int kViews = 10000;
  for (auto _ : state) {
    state.PauseTiming();
    auto parent = std::make_unique<Parent>();
    state.ResumeTiming();
    auto views = CreateViews(*parent, kViews);
    state.PauseTiming();
    while (!views.empty()) views.pop_back();
    parent.reset();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * kViews);
}
BENCHMARK(BM_Create10000SubViews)->Unit(benchmark::kMillisecond);

} // namespace
