#pragma once

#include <be/markers/IMarker.h>
#include <be/markers/UndoStack.h>

#include <krocore/messaging/Station.h>

#include <cstddef>
#include <memory>
#include <vector>

namespace BE {

class MarkersImpl {
public:
  static constexpr std::size_t kNotFound = static_cast<std::size_t>(-1);

  /// The marker's index in the order, found by binary search; kNotFound when it is not ours.
  std::size_t IndexOf(const IMarker& marker) const noexcept;
  void Insert(const IMarkerRef& marker);
  void Erase(const IMarker& marker);
  void SetFields(const IMarkerRef& marker, const MarkerFields& fields);
  void SetAll(const MarkerList& markers);
  void Notify() const;

  MarkerList mMarkers;
  MarkerID mNextID = 1;
  std::shared_ptr<UndoStack> mUndoStack;
  krocore::messaging::Station mStation;
};

} // namespace BE
