// Theme files arrive with their own DTD: whatever the entities declare,
// reading must end in bounded time and memory, and a file that reads gives
// colours inside the unit cube at every brightness.
#include <kroui/theme/ColorTrack.h>
#include <kroui/theme/ThemeReader.h>

#include <cstdint>
#include <cstdlib>
#include <map>
#include <string_view>

namespace {

bool InUnitRange(float x) { return x >= 0.f && x <= 1.f; }

void CheckColour(const kroui::drawbot::ColorRGBA& c) {
  if (!InUnitRange(c.red) || !InUnitRange(c.green) || !InUnitRange(c.blue) || !InUnitRange(c.alpha))
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const auto read = kroui::ui::ThemeReader::Read(std::string_view(reinterpret_cast<const char*>(data), size));
  if (!read) {
    if (read.Error().empty()) std::abort(); // a refusal always says why
    return 0;
  }
  std::map<kroui::ui::ColorID, kroui::ui::ColorTrack> tracks;
  for (const auto& frame : read.Value().keyFrames) tracks[frame.name].Add(frame);
  for (const auto& [id, track] : tracks) {
    if (track.IsEmpty()) std::abort();
    for (const float brightness : {0.f, 0.25f, 0.5f, 0.50005f, 0.5001f, 1.f})
      CheckColour(track.At(brightness));
  }
  return 0;
}
