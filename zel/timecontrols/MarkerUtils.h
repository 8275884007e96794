#pragma once

// The user-interface side of markers: the palettes they are drawn in, the
// marker filter that the time bar shows, the queries for visible markers and
// the marker changes behind the marker commands. The markers themselves are
// the backend's (BE::IMarkers).
//
// Palettes, by colour ID (BE::MarkerUtils::MarkerColorID):
//
//   ID  name     V5 (fixed)       V7 (theme key, SCALEDRGB of the V5 colour)
//   0   Green    112 133  55      colors.kls.Marker.Green
//   1   Red      234  56  41      colors.kls.Marker.Red
//   2   Purple   192 143 252      colors.kls.Marker.Purple
//   3   Orange   249 137  23      colors.kls.Marker.Orange
//   4   Yellow   199 162   0      colors.kls.Marker.Yellow
//   5   White    255 255 255      colors.kls.Marker.White
//   6   Blue      94 170 247      colors.kls.Marker.Blue
//   7   Cyan      52 187 132      colors.kls.Marker.Cyan
//
// The filter is process-wide and may be read from any thread. A marker is
// visible when it passes both halves:
//
//   colours selected?  no -> passes   yes -> its colour ID is among theirs
//   types selected?    no -> passes   yes -> its type is among them
//
// Each selected colour stands for the ID whose standard colour
// (GetStandardMarkerColors) is nearest to it, so a colour that went through
// float channels and back still selects its markers.
//
// Queries walk a collection in its order, by start and then by insertion:
// of markers at one time, "next" and "first" meet the earliest inserted one
// first, "previous" and "last" the latest inserted one.
//
// Every change is one undo step: recorded into the caller's compound action
// when one is given, else made a step of the collection's (or sequence's)
// undo history. Palettes and changes belong to the main thread.

#include <zel/Export.h>

#include <be/markers/IMarkers.h>
#include <be/markers/ISequence.h>
#include <be/markers/MarkerLocation.h>
#include <be/markers/MarkerUtils.h>

#include <krocore/utility/ImmutableString.h>
#include <kromediatypes/TickTime.h>
#include <kroui/drawbot/DrawTypes.h>

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace ZEL {

using kromediatypes::TickTime;

// Palettes.

/// The version-5 palette: built on first use, never rebuilt.
ZEL_API const BE::MarkerUtils::MarkerColorTable& GetNewMarkerColorsV5();
/// The version-7 palette from the current theme, rebuilt on the first call
/// after a theme change; the same object throughout.
ZEL_API const BE::MarkerUtils::MarkerColorTable& GetMarkerColorsV7();
/// The colour key that the version-7 palette reads for an ID.
ZEL_API const krocore::utility::ImmutableString& GetMarkerColorKeyV7(BE::MarkerUtils::MarkerColorID id);
/// The backend's colours (BE::MarkerUtils::GetMarkerColors) in ID order, as drawing colours.
ZEL_API const std::vector<kroui::drawbot::ColorRGBA>& GetStandardMarkerColors();

// The marker filter.

ZEL_API void AddColorToMarkerFilter(const kroui::drawbot::ColorRGBA& color);
ZEL_API void ClearMarkerFilter();
ZEL_API void SetSelectedMarkerFilterColors(const std::vector<kroui::drawbot::ColorRGBA>& colors);
ZEL_API std::vector<kroui::drawbot::ColorRGBA> GetSelectedMarkerFilterColors();
ZEL_API void SetSelectedMarkerFilterTypes(const std::vector<std::string>& types);
ZEL_API std::vector<std::string> GetSelectedMarkerFilterTypes();
/// Keeps the visible markers, in their order.
ZEL_API void FilterMarkers(BE::MarkerList& markers);
/// Whether the marker's colour is among the selected colours (false when none is selected).
ZEL_API bool IsMarkerColorSelected(const BE::IMarker& marker);
ZEL_API bool IsMarkerVisible(const BE::IMarker& marker);

// Visible markers. Each answers null when there is none.

ZEL_API BE::IMarkerRef GetFirstVisibleMarker(const BE::IMarkers& markers);
ZEL_API BE::IMarkerRef GetLastVisibleMarker(const BE::IMarkers& markers);
/// The first visible marker that starts after `time`.
ZEL_API BE::IMarkerRef GetNextVisibleMarker(const BE::IMarkers& markers, TickTime time);
/// The visible marker that follows `marker` in the order (one at its time inserted later comes first).
ZEL_API BE::IMarkerRef GetNextVisibleMarker(const BE::IMarkers& markers, const BE::IMarker& marker);
/// The last visible marker that starts before `time`.
ZEL_API BE::IMarkerRef GetPreviousVisibleMarker(const BE::IMarkers& markers, TickTime time);
ZEL_API BE::IMarkerRef GetPreviousVisibleMarker(const BE::IMarkers& markers, const BE::IMarker& marker);
/// The visible marker met at `time`: one starting there, else one whose
/// duration ends there, else one whose span holds it; `location` says which.
ZEL_API BE::IMarkerRef GetVisibleMarker(const BE::IMarkers& markers, TickTime time,
                                        BE::MarkerLocation* location = nullptr);
ZEL_API BE::IMarkerRef GetVisibleDurationMarkerEndingAtTime(const BE::IMarkers& markers, TickTime time);
/// The first visible marker of the collection, in its order, that is among `selected`.
ZEL_API BE::IMarkerRef GetVisibleMatchingSelectedMarker(const BE::IMarkers& markers,
                                                        const BE::MarkerList& selected);
ZEL_API BE::MarkerList GetVisibleSelectedMarkers(const BE::MarkerList& selected);

/// What FindAllVisibleInterestingTimes collects.
enum InterestingMarkerTimes : int {
  kInterestingMarkerStarts = 1,
  kInterestingMarkerEnds = 2, ///< the ends of markers with a duration
};
using MarkerTimeMap = std::map<TickTime, BE::MarkerList>;
/// Adds to `times` each start and/or end (by `kinds`) of the sequence's
/// visible markers within [start, end], with the markers there in their order.
ZEL_API void FindAllVisibleInterestingTimes(const BE::ReadValidator& validator, const BE::ISequence& sequence,
                                            TickTime start, TickTime end, int kinds, MarkerTimeMap& times);

// Changes.

ZEL_API BE::IMarkerRef AddMarker(BE::IMarkers& markers, const BE::MarkerFields& fields);
ZEL_API BE::IMarkerRef AddMarker(BE::IMarkers& markers, const BE::MarkerFields& fields, BE::ICompoundAction& action,
                                 const BE::UpgradeValidator& validator);
/// A marker of the sequence, as a step of the sequence's history.
ZEL_API BE::IMarkerRef AddMarker(BE::ISequence& sequence, const BE::MarkerFields& fields,
                                 const BE::UpgradeValidator& validator);

struct MarkerAddition {
  BE::IMarkersRef markers;
  BE::MarkerFields fields;
};
/// Adds each marker to its collection, all as one step: into `action`, else
/// on the history of the first addition's collection. The new markers, in order.
ZEL_API BE::MarkerList AddMarkers(const std::vector<MarkerAddition>& additions,
                                  BE::ICompoundAction* action = nullptr);
ZEL_API BE::IMarkerRef AddChapterMarker(BE::IMarkers& markers, TickTime start, TickTime duration);
ZEL_API BE::IMarkerRef AddFlashCueMarker(BE::IMarkers& markers, TickTime start, TickTime duration);

/// The add-marker command at `time`: adds a comment marker there, unless a
/// visible marker starts there already. `marker` is the new or the existing
/// marker; true when one was added.
ZEL_API bool HandleAddMarkerCommand(BE::IMarkers& markers, TickTime time, BE::IMarkerRef& marker);
/// The add-marker command with the markers given, all as one step; `marker`
/// is the first added. True when any was added.
ZEL_API bool HandleAddMarkerCommand(BE::IMarkers& markers, const std::vector<BE::MarkerFields>& list,
                                    BE::IMarkerRef& marker);

/// Removes the visible markers of a clip, as one step; returns them.
ZEL_API BE::MarkerList RemoveVisibleClipMarkers(BE::IMarkers& clipMarkers);
ZEL_API BE::MarkerList RemoveVisibleSequenceMarkers(BE::ISequence& sequence);
/// Removes, as one step of the sequence, the visible clip markers that the
/// selected track items use (those starting within each item's [in, out)).
ZEL_API BE::MarkerList RemoveVisibleClipMarkersFromTrackItemSelection(BE::ISequence& sequence);

/// As BE::MarkerUtils::SetMarkerColor, as one step of the collection's history.
ZEL_API std::size_t SetMarkerColor(BE::IMarkers& markers, const BE::MarkerList& list,
                                   const BE::MarkerUtils::MarkerColor& color);
ZEL_API std::size_t SetMarkerColorByIndex(BE::IMarkers& markers, const BE::MarkerList& list,
                                          BE::MarkerUtils::MarkerColorID id);

} // namespace ZEL
