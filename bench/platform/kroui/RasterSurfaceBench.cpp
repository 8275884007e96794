// The raster surface on a timecode ruler: a 3840 x 40 strip with 800 one-pixel
// ticks and 80 timecode labels, redrawn as a ruler is while the playhead
// moves; and a full-HD fill.
#include <kroui/drawbot/FontTable.h>
#include <kroui/drawbot/RasterSurface.h>
#include <kroui/drawbot/TextShaping.h>

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

using namespace kroui::drawbot;

namespace {

constexpr int kStripWidth = 3840;
constexpr int kStripHeight = 40;
constexpr int kTicks = 800;
constexpr int kLabels = 80;

const FontKey kLabelFont{kFont_CleanTimecodeSmall};
constexpr ColorRGBA kBackground{0.16f, 0.17f, 0.19f, 1.f};
constexpr ColorRGBA kTick{0.7f, 0.7f, 0.72f, 1.f};
constexpr ColorRGBA kText{0.9f, 0.9f, 0.9f, 1.f};

std::string Timecode(int frame) {
  char text[16];
  std::snprintf(text, sizeof text, "%02d:%02d:%02d:%02d", frame / 90000 % 24, frame / 1500 % 60,
                frame / 25 % 60, frame % 25);
  return text;
}

/// `count` distinct labels, made before any timing.
std::vector<std::string> Labels(int first, int count) {
  std::vector<std::string> labels;
  for (int i = 0; i < count; ++i) labels.push_back(Timecode(first + 37 * i));
  return labels;
}

/// Ticks on whole pixels (a ruler rounds them so they stay crisp); every tenth tall.
void DrawTicks(Drawbot& drawbot) {
  for (int i = 0; i < kTicks; ++i) {
    const float x = std::floor(static_cast<float>(i) * kStripWidth / kTicks);
    drawbot.DrawLine({x, i % 10 == 0 ? 16.f : 30.f}, {x, kStripHeight - 1.f}, kTick);
  }
}

void DrawRuler(RasterSurface& strip, const std::string* labels) {
  Drawbot& drawbot = strip.BeginDrawing();
  drawbot.FillRect({0.f, 0.f, kStripWidth, kStripHeight}, kBackground);
  DrawTicks(drawbot);
  for (int i = 0; i < kLabels; ++i) {
    const float x = static_cast<float>(i * kStripWidth / kLabels) + 2.f;
    drawbot.DrawText(labels[i], kLabelFont, kText, {x, 1.f, 80.f, 14.f});
  }
  strip.EndDrawing();
}

void BM_RulerStrip_CachedText(benchmark::State& state) {
  RasterSurface strip(kStripWidth, kStripHeight);
  const std::vector<std::string> labels = Labels(90000, kLabels);
  DrawRuler(strip, labels.data());
  for (auto _ : state) DrawRuler(strip, labels.data());
  benchmark::DoNotOptimize(strip.Snapshot().PixelAt(0, 0));
}
BENCHMARK(BM_RulerStrip_CachedText)->Unit(benchmark::kMicrosecond);

void BM_RulerStrip_FreshText(benchmark::State& state) {
  RasterSurface strip(kStripWidth, kStripHeight);
  // Far more labels than the cache holds, so that every one is shaped anew.
  const int rounds = static_cast<int>(3 * GetGlyphRunCacheStatistics().capacity / kLabels) + 1;
  const std::vector<std::string> labels = Labels(0, kLabels * rounds);
  int round = 0;
  for (auto _ : state) {
    DrawRuler(strip, labels.data() + kLabels * round);
    round = (round + 1) % rounds;
  }
  state.counters["shaped per label"] =
      benchmark::Counter(static_cast<double>(GetGlyphRunCacheStatistics().misses) /
                         static_cast<double>(state.iterations() * kLabels));
  ClearGlyphRunCache();
}
BENCHMARK(BM_RulerStrip_FreshText)->Unit(benchmark::kMicrosecond);

/// Every line through Cairo instead of pixel spans: what the spans save.
void BM_RulerStrip_CachedText_NoSpans(benchmark::State& state) {
  RasterSurface strip(kStripWidth, kStripHeight);
  strip.SetPixelSpansEnabled(false);
  const std::vector<std::string> labels = Labels(90000, kLabels);
  DrawRuler(strip, labels.data());
  for (auto _ : state) DrawRuler(strip, labels.data());
}
BENCHMARK(BM_RulerStrip_CachedText_NoSpans)->Unit(benchmark::kMicrosecond);

void BM_RulerStrip_TicksOnly(benchmark::State& state) {
  RasterSurface strip(kStripWidth, kStripHeight);
  for (auto _ : state) {
    Drawbot& drawbot = strip.BeginDrawing();
    drawbot.FillRect({0.f, 0.f, kStripWidth, kStripHeight}, kBackground);
    DrawTicks(drawbot);
    strip.EndDrawing();
  }
}
BENCHMARK(BM_RulerStrip_TicksOnly)->Unit(benchmark::kMicrosecond);

void BM_FillFullHD(benchmark::State& state) {
  RasterSurface surface(1920, 1080);
  const bool isTranslucent = state.range(0) != 0;
  const ColorRGBA color{0.2f, 0.4f, 0.6f, isTranslucent ? 0.5f : 1.f};
  for (auto _ : state) {
    surface.BeginDrawing().FillRect({0.f, 0.f, 1920.f, 1080.f}, color);
    surface.EndDrawing();
  }
  state.SetBytesProcessed(state.iterations() * 1920 * 1080 * 4);
}
BENCHMARK(BM_FillFullHD)->ArgName("translucent")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

} // namespace
