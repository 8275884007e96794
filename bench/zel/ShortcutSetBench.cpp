// Saving and reading a shortcut set of 10,000 shortcuts over 5 contexts.
#include <zel/commands/ShortcutManager.h>

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <unistd.h>

namespace {

struct LargeSet {
  std::filesystem::path path;

  LargeSet() {
    ZEL::ShortcutManager::Initialize();
    auto& manager = *ZEL::ShortcutManager::Instance();
    int id = 1;
    for (int c = 0; c < 5; ++c) {
      auto& context =
          c == 0 ? manager.GetGlobalContext() : manager.AddContext("Panel" + std::to_string(c), "Panel");
      for (int n = 0; n < 2000; ++n, ++id) {
        const std::string name = "command." + std::to_string(id);
        context.DeclareCommand(name, id, ZEL::CommandKind::Menu, name, {}, false);
        context.SetCommandShortcuts(
            name, {ZEL::KeySpec(0x41 + static_cast<std::uint32_t>(n % 26), n & 1, n & 2, n & 4)});
      }
    }
    path = std::filesystem::temp_directory_path() / ("zel-bench-" + std::to_string(::getpid()) + ".kys");
    manager.SaveSet(path);
  }
  ~LargeSet() {
    std::filesystem::remove(path);
    ZEL::ShortcutManager::Finalize();
  }
};

void BM_SaveShortcutSet10000(benchmark::State& state) {
  LargeSet set;
  for (auto _ : state) benchmark::DoNotOptimize(ZEL::ShortcutManager::Instance()->SaveSet(set.path));
}
BENCHMARK(BM_SaveShortcutSet10000)->Unit(benchmark::kMillisecond);

void BM_ReadShortcutSet10000(benchmark::State& state) {
  LargeSet set;
  for (auto _ : state) benchmark::DoNotOptimize(ZEL::ShortcutManager::Instance()->ReadSet(set.path));
}
BENCHMARK(BM_ReadShortcutSet10000)->Unit(benchmark::kMillisecond);

} // namespace
