#pragma once

#include <be/Export.h>
#include <be/markers/IMarkers.h>
#include <be/markers/ITrackItem.h>

#include <memory>
#include <vector>

namespace BE {

class UndoStack;

/// A sequence as the marker tools see it: its own markers, the track items
/// placed in it with the markers of their clips, the track items selected,
/// and the undo history that its steps go on.
class BE_API ISequence {
public:
  virtual ~ISequence();

  virtual IMarkersRef GetMarkers() const = 0;
  virtual std::shared_ptr<UndoStack> GetUndoStack() const = 0;

  virtual const std::vector<ITrackItemRef>& GetTrackItems() const noexcept = 0;
  virtual void AddTrackItem(ITrackItemRef item) = 0;
  /// Selects or deselects an item of this sequence; false for another's.
  virtual bool SetTrackItemSelected(const ITrackItem& item, bool selected) = 0;
  /// The selected items, in the order they were added to the sequence.
  virtual std::vector<ITrackItemRef> GetSelectedTrackItems() const = 0;
};

using ISequenceRef = std::shared_ptr<ISequence>;

} // namespace BE
