// Time to text and text to time, each beside libavutil's timecode functions
// on the same frames, so that one run shows both.
#include <kromediatypes/TimeDisplay.h>

#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <string>

extern "C" {
#include <libavutil/timecode.h>
}

using namespace kromediatypes;

namespace {

struct Setting {
  FrameRate rate;
  bool isDropFrame;
};

const Setting kDropFrame2997{kFrameRate2997, true};
const Setting kNonDrop25{kFrameRate25, false};

constexpr std::size_t kFrameCount = 1024;

/// Frames spread over a day, so that every field changes from one to the next.
std::array<int, kFrameCount> SpreadFrames() {
  std::array<int, kFrameCount> frames{};
  for (std::size_t i = 0; i < kFrameCount; ++i) frames[i] = static_cast<int>((i * 2'478'211) % 2'589'408);
  return frames;
}

AVTimecode Oracle(const Setting& setting) {
  AVTimecode timecode{};
  const AVRational rate{static_cast<int>(setting.rate.GetNumerator()),
                        static_cast<int>(setting.rate.GetDenominator())};
  av_timecode_init(&timecode, rate, setting.isDropFrame ? AV_TIMECODE_FLAG_DROPFRAME : 0, 0, nullptr);
  return timecode;
}

TimeDisplay DisplayOf(const Setting& setting) {
  return setting.isDropFrame ? TimeDisplay::DropFrameTimecode(setting.rate) : TimeDisplay::Timecode(setting.rate);
}

std::array<std::string, kFrameCount> Labels(const Setting& setting) {
  const AVTimecode oracle = Oracle(setting);
  const auto frames = SpreadFrames();
  std::array<std::string, kFrameCount> labels;
  char text[AV_TIMECODE_STR_SIZE];
  for (std::size_t i = 0; i < kFrameCount; ++i) labels[i] = av_timecode_make_string(&oracle, text, frames[i]);
  return labels;
}

void BM_TimeToText(benchmark::State& state, Setting setting) {
  const TimeDisplay display = DisplayOf(setting);
  std::array<TickTime, kFrameCount> times;
  const auto frames = SpreadFrames();
  for (std::size_t i = 0; i < kFrameCount; ++i) times[i] = TickTime::FromFrames(frames[i], setting.rate);
  std::size_t i = 0;
  for (auto _ : state) benchmark::DoNotOptimize(display.Format(times[i++ % kFrameCount]));
}

void BM_TimeToText_Libavutil(benchmark::State& state, Setting setting) {
  const AVTimecode oracle = Oracle(setting);
  const auto frames = SpreadFrames();
  char text[AV_TIMECODE_STR_SIZE];
  std::size_t i = 0;
  for (auto _ : state) benchmark::DoNotOptimize(av_timecode_make_string(&oracle, text, frames[i++ % kFrameCount]));
}

void BM_TextToTime(benchmark::State& state, Setting setting) {
  const TimeDisplay display = DisplayOf(setting);
  const auto labels = Labels(setting);
  std::size_t i = 0;
  for (auto _ : state) benchmark::DoNotOptimize(display.Parse(labels[i++ % kFrameCount]));
}

// libavutil reads a label into the first frame of a timecode; that is its text to time.
void BM_TextToTime_Libavutil(benchmark::State& state, Setting setting) {
  const AVRational rate{static_cast<int>(setting.rate.GetNumerator()),
                        static_cast<int>(setting.rate.GetDenominator())};
  const auto labels = Labels(setting);
  AVTimecode timecode{};
  std::size_t i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(av_timecode_init_from_string(&timecode, rate, labels[i++ % kFrameCount].c_str(), nullptr));
    benchmark::DoNotOptimize(timecode.start);
  }
}

// What a user types: short, partial and relative forms.
void BM_TextToTime_TypedForms(benchmark::State& state) {
  const TimeDisplay display = TimeDisplay::DropFrameTimecode(kFrameRate2997);
  const std::array<std::string, 6> typed{"1.", "10", "+1:00", "0;0;1;2", "1.2.3.4", "\uFF11\uFF1A\uFF10\uFF10"};
  const TickTime current = TickTime::FromSeconds(3600);
  std::size_t i = 0;
  for (auto _ : state) benchmark::DoNotOptimize(display.Parse(typed[i++ % typed.size()], current));
}

void BM_TimeToText_Milliseconds(benchmark::State& state) {
  const TimeDisplay display = TimeDisplay::Milliseconds();
  std::int64_t ticks = 0;
  for (auto _ : state) benchmark::DoNotOptimize(display.Format(TickTime(ticks += 987'654'321'987)));
}

} // namespace

BENCHMARK_CAPTURE(BM_TimeToText, DropFrame2997, kDropFrame2997);
BENCHMARK_CAPTURE(BM_TimeToText_Libavutil, DropFrame2997, kDropFrame2997);
BENCHMARK_CAPTURE(BM_TimeToText, NonDrop25, kNonDrop25);
BENCHMARK_CAPTURE(BM_TimeToText_Libavutil, NonDrop25, kNonDrop25);
BENCHMARK_CAPTURE(BM_TextToTime, DropFrame2997, kDropFrame2997);
BENCHMARK_CAPTURE(BM_TextToTime_Libavutil, DropFrame2997, kDropFrame2997);
BENCHMARK_CAPTURE(BM_TextToTime, NonDrop25, kNonDrop25);
BENCHMARK_CAPTURE(BM_TextToTime_Libavutil, NonDrop25, kNonDrop25);
BENCHMARK(BM_TextToTime_TypedForms);
BENCHMARK(BM_TimeToText_Milliseconds);
