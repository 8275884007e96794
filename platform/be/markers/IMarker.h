#pragma once

#include <be/Export.h>
#include <be/markers/MarkerFields.h>

#include <memory>
#include <string>
#include <vector>

namespace BE {

/// One marker of a sequence or clip: a point in time, or a span when it has
/// a duration. Read-only: a marker changes through the collection that holds
/// it (IMarkers), so that every change is announced and can be undone.
class BE_API IMarker {
public:
  virtual ~IMarker();

  virtual MarkerID GetID() const noexcept = 0;
  virtual const MarkerFields& GetFields() const noexcept = 0;

  TickTime GetStart() const noexcept { return GetFields().start; }
  TickTime GetDuration() const noexcept { return GetFields().duration; }
  /// The start plus the duration; the start itself for a point marker.
  TickTime GetEnd() const noexcept { return GetFields().start + GetFields().duration; }
  bool HasDuration() const noexcept { return GetFields().duration > TickTime(); }
  MarkerUtils::MarkerColorID GetColorID() const noexcept { return GetFields().color; }
  const std::string& GetType() const noexcept { return GetFields().type; }
  const std::string& GetName() const noexcept { return GetFields().name; }
  const std::string& GetComment() const noexcept { return GetFields().comment; }
};

using IMarkerRef = std::shared_ptr<IMarker>;
using MarkerList = std::vector<IMarkerRef>;

/// The order of a collection: by start, then by insertion.
inline bool ComesBefore(const IMarker& a, const IMarker& b) noexcept {
  return a.GetStart() != b.GetStart() ? a.GetStart() < b.GetStart() : a.GetID() < b.GetID();
}

} // namespace BE
