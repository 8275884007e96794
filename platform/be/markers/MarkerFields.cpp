#include <be/markers/MarkerFields.h>

#include <algorithm>

namespace BE {

bool IsKnownMarkerType(std::string_view type) noexcept {
  return std::find(kMarkerTypes.begin(), kMarkerTypes.end(), type) != kMarkerTypes.end();
}

std::string CheckMarkerFields(const MarkerFields& fields) {
  if (fields.start.IsUnknown()) return "the start time is unknown";
  if (fields.duration.IsUnknown()) return "the duration is unknown";
  if (fields.duration < TickTime()) return "the duration is negative";
  if (!MarkerUtils::IsMarkerColorIndex(static_cast<std::int64_t>(fields.color)))
    return "the colour index " + std::to_string(static_cast<int>(fields.color)) + " is not one of 0 to 7";
  if (!IsKnownMarkerType(fields.type)) return "the type \"" + fields.type + "\" is not a kind of marker";
  return {};
}

} // namespace BE
