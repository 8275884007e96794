#pragma once

#include <be/markers/ISequence.h>
#include <be/markers/UndoStack.h>

#include <memory>
#include <unordered_set>
#include <vector>

namespace BE {

class SequenceImpl {
public:
  std::shared_ptr<UndoStack> mUndoStack;
  IMarkersRef mMarkers;
  std::vector<ITrackItemRef> mItems;
  std::unordered_set<const ITrackItem*> mSelected;
};

} // namespace BE
