// The marker changes of MarkerUtils.h: each is one undo step.
#include <zel/timecontrols/MarkerUtils.h>

#include <zel/Localization.h>

#include <be/markers/ScopedUndoStep.h>
#include <be/markers/UpgradeValidator.h>

namespace ZEL {
namespace {

using BE::IMarkerRef;
using BE::MarkerList;

std::string AddMarkerName() { return Localize("$$$/Vantor/Libraries/ZEL/MarkerUtils/AddMarker=Add Marker"); }

std::string RemoveMarkersName() {
  return Localize("$$$/Vantor/Libraries/ZEL/MarkerUtils/RemoveMarkers=Remove Markers");
}

BE::MarkerFields FieldsOfKind(std::string_view type, TickTime start, TickTime duration) {
  BE::MarkerFields fields;
  fields.start = start;
  fields.duration = duration;
  fields.type = std::string(type);
  return fields;
}

// Removes the visible markers that `keep` does not hold back, into `action`.
template <typename Keep>
void RemoveVisible(BE::IMarkers& markers, BE::ICompoundAction& action, MarkerList& removed, Keep keep) {
  const BE::UpgradeValidator validator;
  MarkerList visible = markers.GetMarkers(validator);
  FilterMarkers(visible);
  for (const IMarkerRef& marker : visible)
    if (!keep(*marker) && markers.RemoveMarker(*marker, validator, &action)) removed.push_back(marker);
}

} // namespace

IMarkerRef AddMarker(BE::IMarkers& markers, const BE::MarkerFields& fields) {
  const BE::UpgradeValidator validator;
  BE::ScopedUndoStep step(markers.GetUndoStack(), AddMarkerName());
  return markers.AddMarker(fields, validator, &step.Action());
}

IMarkerRef AddMarker(BE::IMarkers& markers, const BE::MarkerFields& fields, BE::ICompoundAction& action,
                     const BE::UpgradeValidator& validator) {
  return markers.AddMarker(fields, validator, &action);
}

IMarkerRef AddMarker(BE::ISequence& sequence, const BE::MarkerFields& fields, const BE::UpgradeValidator& validator) {
  BE::ScopedUndoStep step(sequence.GetUndoStack(), AddMarkerName());
  return sequence.GetMarkers()->AddMarker(fields, validator, &step.Action());
}

MarkerList AddMarkers(const std::vector<MarkerAddition>& additions, BE::ICompoundAction* action) {
  MarkerList added;
  if (additions.empty()) return added;
  const BE::UpgradeValidator validator;
  const auto& first = additions.front().markers;
  BE::ScopedUndoStep step(first ? first->GetUndoStack() : nullptr, AddMarkerName(), action);
  for (const MarkerAddition& addition : additions) {
    if (!addition.markers) continue;
    if (IMarkerRef marker = addition.markers->AddMarker(addition.fields, validator, &step.Action()))
      added.push_back(std::move(marker));
  }
  return added;
}

IMarkerRef AddChapterMarker(BE::IMarkers& markers, TickTime start, TickTime duration) {
  return AddMarker(markers, FieldsOfKind(BE::kMarkerType_Chapter, start, duration));
}

IMarkerRef AddFlashCueMarker(BE::IMarkers& markers, TickTime start, TickTime duration) {
  return AddMarker(markers, FieldsOfKind(BE::kMarkerType_FlashCuePoint, start, duration));
}

bool HandleAddMarkerCommand(BE::IMarkers& markers, TickTime time, IMarkerRef& marker) {
  BE::MarkerLocation location{};
  if (IMarkerRef existing = GetVisibleMarker(markers, time, &location);
      existing && location == BE::MarkerLocation::kStart) {
    marker = std::move(existing);
    return false;
  }
  marker = AddMarker(markers, FieldsOfKind(BE::kMarkerType_Comment, time, TickTime()));
  return marker != nullptr;
}

bool HandleAddMarkerCommand(BE::IMarkers& markers, const std::vector<BE::MarkerFields>& list, IMarkerRef& marker) {
  const BE::UpgradeValidator validator;
  BE::ScopedUndoStep step(markers.GetUndoStack(), AddMarkerName());
  IMarkerRef first;
  for (const BE::MarkerFields& fields : list) {
    IMarkerRef added = markers.AddMarker(fields, validator, &step.Action());
    if (!first) first = std::move(added);
  }
  marker = first;
  return first != nullptr;
}

MarkerList RemoveVisibleClipMarkers(BE::IMarkers& clipMarkers) {
  MarkerList removed;
  BE::ScopedUndoStep step(clipMarkers.GetUndoStack(), RemoveMarkersName());
  RemoveVisible(clipMarkers, step.Action(), removed, [](const BE::IMarker&) { return false; });
  return removed;
}

MarkerList RemoveVisibleSequenceMarkers(BE::ISequence& sequence) {
  MarkerList removed;
  BE::ScopedUndoStep step(sequence.GetUndoStack(), RemoveMarkersName());
  RemoveVisible(*sequence.GetMarkers(), step.Action(), removed, [](const BE::IMarker&) { return false; });
  return removed;
}

MarkerList RemoveVisibleClipMarkersFromTrackItemSelection(BE::ISequence& sequence) {
  MarkerList removed;
  BE::ScopedUndoStep step(sequence.GetUndoStack(), RemoveMarkersName());
  for (const BE::ITrackItemRef& item : sequence.GetSelectedTrackItems()) {
    const BE::IMarkersRef clipMarkers = item->GetClipMarkers();
    if (!clipMarkers) continue;
    const TickTime in = item->GetClipInPoint();
    const TickTime out = item->GetClipOutPoint();
    RemoveVisible(*clipMarkers, step.Action(), removed,
                  [in, out](const BE::IMarker& m) { return m.GetStart() < in || !(m.GetStart() < out); });
  }
  return removed;
}

std::size_t SetMarkerColor(BE::IMarkers& markers, const MarkerList& list, const BE::MarkerUtils::MarkerColor& color) {
  return BE::MarkerUtils::SetMarkerColor(markers, list, color, BE::UpgradeValidator());
}

std::size_t SetMarkerColorByIndex(BE::IMarkers& markers, const MarkerList& list, BE::MarkerUtils::MarkerColorID id) {
  return BE::MarkerUtils::SetMarkerColorByIndex(markers, list, id, BE::UpgradeValidator());
}

} // namespace ZEL
