#include <be/markers/MarkerUtils.h>

#include <be/markers/IMarkers.h>
#include <be/markers/ScopedUndoStep.h>
#include <be/markers/UpgradeValidator.h>

#include <krocore/debug/Assert.h>

#include <limits>

namespace BE::MarkerUtils {
namespace {

int Distance(const MarkerColor& a, const MarkerColor& b) noexcept {
  const auto square = [](int x) { return x * x; };
  return square(a.red - b.red) + square(a.green - b.green) + square(a.blue - b.blue);
}

} // namespace

const MarkerColorTable& GetMarkerColors() {
  static const MarkerColorTable sColors = {
      {MarkerColorID::kGreen, {64, 190, 80}},   {MarkerColorID::kRed, {228, 52, 48}},
      {MarkerColorID::kPurple, {168, 98, 222}}, {MarkerColorID::kOrange, {246, 128, 30}},
      {MarkerColorID::kYellow, {238, 200, 24}}, {MarkerColorID::kWhite, {255, 255, 255}},
      {MarkerColorID::kBlue, {58, 128, 232}},   {MarkerColorID::kCyan, {38, 198, 200}},
  };
  return sColors;
}

MarkerColorID FindNearestMarkerColor(const MarkerColor& color) noexcept {
  MarkerColorID nearest = MarkerColorID::kGreen;
  int best = std::numeric_limits<int>::max();
  for (const auto& [id, standard] : GetMarkerColors()) {
    if (const int distance = Distance(color, standard); distance < best) {
      best = distance;
      nearest = id;
    }
  }
  return nearest;
}

std::size_t SetMarkerColor(IMarkers& markers, const MarkerList& list, const MarkerColor& color,
                           const UpgradeValidator& validator, ICompoundAction* action) {
  return SetMarkerColorByIndex(markers, list, FindNearestMarkerColor(color), validator, action);
}

std::size_t SetMarkerColorByIndex(IMarkers& markers, const MarkerList& list, MarkerColorID id,
                                  const UpgradeValidator& validator, ICompoundAction* action) {
  if (!KROCORE_ASSERT(IsMarkerColorIndex(static_cast<std::int64_t>(id)), "Marker colour index out of range"))
    return 0;
  ScopedUndoStep step(markers.GetUndoStack(), "Set Marker Color", action);
  std::size_t changed = 0;
  for (const IMarkerRef& marker : list) {
    if (!marker || marker->GetColorID() == id) continue;
    MarkerFields fields = marker->GetFields();
    fields.color = id;
    if (markers.ChangeMarker(*marker, fields, validator, &step.Action())) ++changed;
  }
  return changed;
}

} // namespace BE::MarkerUtils
