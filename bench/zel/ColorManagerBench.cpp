// The colour registry as paints use it: a colour asked for again (the cache),
// and every key of the shipped tables evaluated afresh after a theme change.
#include <zel/appearance/ColorManager.h>
#include <zel/appearance/ColorTableParser.h>
#include <zel/appearance/ThemeResources.h>

#include <krocore/resources/ModuleResources.h>
#include <kroui/theme/Theme.h>

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <vector>

namespace {

using ZEL::ColorManager;

// The shipped keys, with the library's themes and tables in place.
const std::vector<ColorManager::Key>& ShippedKeys() {
  static const std::vector<ColorManager::Key> sKeys = [] {
    if (!ZEL::ThemeResources::Install()) std::abort();
    ColorManager::Initialize();
    std::vector<ColorManager::Key> keys;
    for (const auto* table : {u"zelcolors", u"appcolors"}) {
      const auto text = krocore::utility::GetBinaryFromModule(ZEL::ThemeResources::kModule,
                                                              ZEL::ThemeResources::kTableType, table);
      ZEL::ColorTableParser::ForEachLine(text.AsText(), [&](std::string_view line) {
        if (auto parsed = ZEL::ColorTableParser::ParseLine(line)) keys.emplace_back(parsed->key);
      });
    }
    return keys;
  }();
  return sKeys;
}

void BM_GetColorCached(benchmark::State& state) {
  const ColorManager::Key key = ShippedKeys()[0];
  ColorManager::GetColor(key);
  for (auto _ : state) benchmark::DoNotOptimize(ColorManager::GetColor(key));
}
BENCHMARK(BM_GetColorCached);

// A paint asks for many different keys: walk all of them, each cached.
void BM_GetColorCachedAcrossKeys(benchmark::State& state) {
  const auto& keys = ShippedKeys();
  for (const auto& key : keys) ColorManager::GetColor(key);
  std::size_t next = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(ColorManager::GetColor(keys[next]));
    next = next + 1 == keys.size() ? 0 : next + 1;
  }
}
BENCHMARK(BM_GetColorCachedAcrossKeys);

void BM_EvaluateAllKeysAfterFlush(benchmark::State& state) {
  const auto& keys = ShippedKeys();
  for (auto _ : state) {
    ColorManager::FlushCache();
    for (const auto& key : keys) benchmark::DoNotOptimize(ColorManager::GetColor(key));
  }
  state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * keys.size()));
  state.counters["keys"] = static_cast<double>(keys.size());
}
BENCHMARK(BM_EvaluateAllKeysAfterFlush);

// What a brightness slider costs: the theme change and the repaint's colours.
void BM_BrightnessChangeAndRepaint(benchmark::State& state) {
  const auto& keys = ShippedKeys();
  float brightness = 0.f;
  for (auto _ : state) {
    brightness = brightness >= 0.5f ? 0.f : brightness + 0.01f;
    kroui::ui::Theme::Get().SetBrightness(brightness);
    for (const auto& key : keys) benchmark::DoNotOptimize(ColorManager::GetColor(key));
  }
}
BENCHMARK(BM_BrightnessChangeAndRepaint);

} // namespace
