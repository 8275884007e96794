// Typed time fields: whatever the user types must never crash the parser, and
// every time it reads must show a label that reads back as the same time.
//
// The first byte chooses the display ('0' to '9' below); the rest is the
// typed text, and its first eight bytes also make a raw time to format.
#include <kromediatypes/TimeDisplay.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

using namespace kromediatypes;

namespace {

const std::array<TimeDisplay, 10>& Displays() {
  static const std::array<TimeDisplay, 10> kDisplays{
      TimeDisplay::Timecode(kFrameRate25),           TimeDisplay::DropFrameTimecode(kFrameRate2997),
      TimeDisplay::DropFrameTimecode(kFrameRate5994), TimeDisplay::Timecode(kFrameRate23976),
      TimeDisplay::Timecode(kFrameRate120),          TimeDisplay::FeetAndFrames35mm(kFrameRate24),
      TimeDisplay::FeetAndFrames16mm(kFrameRate24),  TimeDisplay::Frames(kFrameRate25),
      TimeDisplay::AudioSamples(kSampleRate48000),   TimeDisplay::Milliseconds()};
  return kDisplays;
}

void Require(bool condition, const char* what, std::string_view text) {
  if (condition) return;
  std::fprintf(stderr, "%s: \"%.*s\"\n", what, static_cast<int>(text.size()), text.data());
  std::abort();
}

/// The start of the unit (frame, sample, millisecond) that holds the time.
TickTime UnitStart(const TimeDisplay& display, TickTime time) {
  if (display.GetKind() != TimeDisplay::Kind::kMilliseconds) return time.FloorToFrame(display.GetRate());
  constexpr std::int64_t kTicksPerMillisecond = TickTime::kTicksPerSecond / 1000;
  std::int64_t count = time.GetTicks() / kTicksPerMillisecond;
  if (time.GetTicks() % kTicksPerMillisecond < 0) --count;
  return TickTime(count * kTicksPerMillisecond);
}

/// A formatted time reads back as the start of its unit, whenever that start is a time at all.
void CheckRoundTrip(const TimeDisplay& display, TickTime time) {
  const TimeText label = display.Format(time);
  if (time.IsUnknown()) return Require(label.IsEmpty(), "unknown time has a label", label.View());
  const auto read = display.Parse(label.View());
  if (!read.IsSuccess()) return;
  Require(read.Value() == UnitStart(display, time), "label does not read back", label.View());
  Require(display.Format(read.Value()) == label, "label changes on reading back", label.View());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const TimeDisplay& display = Displays()[static_cast<std::uint8_t>(data[0] - '0') % Displays().size()];
  const std::string_view typed(reinterpret_cast<const char*>(data + 1), size - 1);

  // A current time off the frame grid, so that offsets land inside frames.
  const TickTime current = TickTime::FromSeconds(3600) + TickTime(12'345);
  const auto read = display.Parse(typed, current);
  if (read.IsSuccess()) {
    CheckRoundTrip(display, read.Value());
    const auto absolute = display.Parse(typed, TickTime::Unknown());
    const auto fromZero = display.Parse(typed);
    // Without a current time only entries without a sign read, and they do not depend on it.
    if (absolute.IsSuccess()) Require(fromZero.IsSuccess() && absolute.Value() == fromZero.Value(), "sign", typed);
  } else {
    Require(!read.Error().empty(), "failure without a message", typed);
  }

  std::int64_t raw = 0;
  std::memcpy(&raw, typed.data(), typed.size() < sizeof raw ? typed.size() : sizeof raw);
  CheckRoundTrip(display, TickTime(raw));
  return 0;
}
