// A key press as the window delivers it: the pre-dispatch pass and the
// second pass, in a setting the size of a real editor: 30 contexts, 5,000
// declared commands, some keys shared by several commands, and a command
// chain 12 deep whose 7th commander handles the command.
#include <zel/commands/Command.h>
#include <zel/commands/Commander.h>
#include <zel/commands/ShortcutManager.h>

#include <krocore/threads/MainThreadQueue.h>
#include <kroui/base/KeyboardEvent.h>

#include <benchmark/benchmark.h>

#include "AllocationCounter.h"

#include <malloc.h>

#include <atomic>
#include <cstdlib>
#include <memory>
#include <new>
#include <string>
#include <vector>

// Counts heap allocations, so that the benchmarks can report them per press,
// and the bytes held, for the benchmarks of memory per object
// (AllocationCounter.h shares both with the other files of zel_bench).
namespace ZELBench {
std::atomic<long long> sAllocations{0};
std::atomic<long long> sLiveBytes{0};
} // namespace ZELBench

using ZELBench::sAllocations;

// Not inlined: GCC would otherwise pair an inlined new with free() and warn.
[[gnu::noinline]] void* operator new(std::size_t size) {
  ++sAllocations;
  if (void* p = std::malloc(size ? size : 1)) {
    ZELBench::sLiveBytes += static_cast<long long>(malloc_usable_size(p));
    return p;
  }
  throw std::bad_alloc();
}
// The standard library asks for temporary buffers without exceptions; they come
// back through the delete below, so they must come from malloc as well.
[[gnu::noinline]] void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  ++sAllocations;
  void* p = std::malloc(size ? size : 1);
  if (p) ZELBench::sLiveBytes += static_cast<long long>(malloc_usable_size(p));
  return p;
}
[[gnu::noinline]] void operator delete(void* p) noexcept {
  if (p) ZELBench::sLiveBytes -= static_cast<long long>(malloc_usable_size(p));
  std::free(p);
}
[[gnu::noinline]] void operator delete(void* p, std::size_t) noexcept { operator delete(p); }

namespace {

using kroui::ui::KeyboardCode;
using kroui::ui::KeyboardEvent;
using kroui::ui::ModifierKeys;

class Level : public ZEL::Commander {
public:
  Level(const ZEL::CommanderWeakPtr& super, bool handles) : Commander(super), mHandles(handles) {}
  bool ObeyCommand(const ZEL::Command&) override { return mHandles; }

private:
  bool mHandles;
};

struct Setting {
  std::vector<std::shared_ptr<Level>> chain;
  KeyboardEvent bound;
  KeyboardEvent unbound;

  Setting() {
    ZEL::ShortcutManager::Initialize();
    auto& manager = *ZEL::ShortcutManager::Instance();
    int id = 1000;
    for (int c = 0; c < 30; ++c) {
      auto& context = c == 0 ? manager.GetGlobalContext()
                             : manager.AddContext("Panel" + std::to_string(c), "Panel " + std::to_string(c));
      for (int i = 0; i < 5000 / 30; ++i, ++id) {
        const std::string name = "command." + std::to_string(id);
        context.DeclareCommand(name, id, ZEL::CommandKind::Action, name, {}, false);
        // Letters and F-keys under every modifier mix; every fifth key shared by two commands.
        const std::uint32_t key = 0x41 + static_cast<std::uint32_t>(i % 26);
        const auto mods = static_cast<std::uint8_t>((i / 26) % 8);
        context.SetCommandShortcuts(name, {ZEL::KeySpec(key, (mods & 1) != 0, (mods & 2) != 0, (mods & 4) != 0)});
        if (i % 5 == 0) context.AddCommandShortcut(name, ZEL::KeySpec(0x70 + (i % 12), false, false, false));
      }
    }
    manager.ApplyContext("Panel15");
    ZEL::CommanderWeakPtr super;
    for (int level = 0; level < 12; ++level) {
      chain.push_back(std::make_shared<Level>(super, level == 5)); // 6 levels above the target
      super = chain.back();
    }
    ZEL::Commander::SetTarget(chain.back());
    bound = KeyboardEvent::MakeKeyDown(KeyboardCode(0x43), ModifierKeys::FromValue(0x04)); // Ctrl+C
    unbound = KeyboardEvent::MakeKeyDown(KeyboardCode(0x2D), ModifierKeys::FromValue(0x16)); // Ctrl+Alt+Shift+Insert
    Press(bound); // builds the key maps
  }

  ~Setting() {
    ZEL::Commander::SetTarget({});
    chain.clear();
    ZEL::ShortcutManager::Finalize();
  }

  static bool Press(const KeyboardEvent& event) {
    auto& manager = *ZEL::ShortcutManager::Instance();
    return manager.DispatchKeyboardEvent(event, true) || manager.DispatchKeyboardEvent(event, false);
  }
};

void ReportAllocations(benchmark::State& state, long long before) {
  state.counters["allocs/press"] =
      benchmark::Counter(static_cast<double>(sAllocations - before), benchmark::Counter::kAvgIterations);
}

void BM_BoundKeyPreDispatchAndDispatch(benchmark::State& state) {
  Setting setting;
  long long presses = 0;
  const long long before = sAllocations;
  for (auto _ : state) {
    benchmark::DoNotOptimize(Setting::Press(setting.bound));
    // Each post queues a scripting event; drain now and then, as the event loop would.
    if (++presses % 256 == 0) {
      state.PauseTiming();
      krocore::threads::DrainMainThreadQueue();
      state.ResumeTiming();
    }
  }
  ReportAllocations(state, before);
  krocore::threads::DrainMainThreadQueue();
}
BENCHMARK(BM_BoundKeyPreDispatchAndDispatch);

void BM_UnboundKeyPreDispatchAndDispatch(benchmark::State& state) {
  Setting setting;
  const long long before = sAllocations;
  for (auto _ : state) benchmark::DoNotOptimize(Setting::Press(setting.unbound));
  ReportAllocations(state, before);
}
BENCHMARK(BM_UnboundKeyPreDispatchAndDispatch);

} // namespace
