#pragma once

#include <be/Export.h>
#include <be/markers/IMarker.h>
#include <be/markers/MarkerColorID.h>

#include <kls/ParamColor.h>

#include <cstddef>
#include <map>

namespace BE {
class ICompoundAction;
class IMarkers;
class UpgradeValidator;
} // namespace BE

namespace BE::MarkerUtils {

using MarkerColor = KLS::ParamColor<unsigned char>;
/// A palette: one colour for each ID, in ID order.
using MarkerColorTable = std::map<MarkerColorID, MarkerColor>;

/// The backend's own colours of the eight IDs, the standard that other
/// palettes are told apart from. Built once, on first use.
BE_API const MarkerColorTable& GetMarkerColors();

/// The ID whose standard colour is nearest to `color` (an exact match when
/// there is one; of equally near ones the lowest ID).
BE_API MarkerColorID FindNearestMarkerColor(const MarkerColor& color) noexcept;

/// Gives each listed marker of `markers` the colour ID nearest to `color`,
/// recorded into `action`, or as one step of the collection's undo history
/// when no action is given. Markers of another collection are refused by
/// assertion. Returns how many markers changed.
BE_API std::size_t SetMarkerColor(IMarkers& markers, const MarkerList& list, const MarkerColor& color,
                                  const UpgradeValidator& validator, ICompoundAction* action = nullptr);
/// As SetMarkerColor, with the colour ID itself.
BE_API std::size_t SetMarkerColorByIndex(IMarkers& markers, const MarkerList& list, MarkerColorID id,
                                         const UpgradeValidator& validator, ICompoundAction* action = nullptr);

} // namespace BE::MarkerUtils
