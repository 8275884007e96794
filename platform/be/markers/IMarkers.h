#pragma once

#include <be/Export.h>
#include <be/markers/IMarker.h>
#include <be/markers/MarkerFields.h>

#include <krocore/utility/ImmutableString.h>

#include <memory>
#include <vector>

namespace BE {

class ICompoundAction;
class ReadValidator;
class UndoStack;
class UpgradeValidator;

/// The markers of one sequence or clip, ordered by start and, at one start,
/// by insertion. Every change is announced with a MarkersChangedMessage on
/// the collection's station and, when an action is given, recorded into it
/// so that it can be undone; without an action it cannot be.
///
/// Reads need a ReadValidator, changes an UpgradeValidator; with an invalid
/// one a read answers empty and a change does nothing, after an assertion. A
/// change that names a marker of another collection, or fields that do not
/// make a marker (CheckMarkerFields), is refused the same way.
class BE_API IMarkers {
public:
  virtual ~IMarkers();

  /// The markers in order; the list is valid until the next change.
  virtual const MarkerList& GetMarkers(const ReadValidator& validator) const = 0;
  virtual IMarkerRef FindMarker(MarkerID id, const ReadValidator& validator) const = 0;
  virtual bool Contains(const IMarker& marker, const ReadValidator& validator) const = 0;

  /// The new marker, with the next insertion ID; null when refused.
  virtual IMarkerRef AddMarker(const MarkerFields& fields, const UpgradeValidator& validator,
                               ICompoundAction* action) = 0;
  virtual bool RemoveMarker(const IMarker& marker, const UpgradeValidator& validator, ICompoundAction* action) = 0;
  /// Gives the marker new fields; it keeps its ID and moves to its new place in the order.
  virtual bool ChangeMarker(const IMarker& marker, const MarkerFields& fields, const UpgradeValidator& validator,
                            ICompoundAction* action) = 0;
  /// Replaces every marker with the records, IDs and all (a marker file read
  /// back). The caller has checked them: IDs unique and not zero, fields sound.
  virtual void ReplaceMarkers(const std::vector<MarkerRecord>& records, const UpgradeValidator& validator,
                              ICompoundAction* action) = 0;

  /// Where MarkersChangedMessage is broadcast after every change.
  virtual const krocore::utility::ImmutableString& GetStationID() const noexcept = 0;
  /// The history that steps changing these markers go on; may be null.
  virtual std::shared_ptr<UndoStack> GetUndoStack() const = 0;
};

using IMarkersRef = std::shared_ptr<IMarkers>;

} // namespace BE
