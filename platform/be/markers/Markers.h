#pragma once

#include <be/Export.h>
#include <be/markers/IMarkers.h>

#include <functional>
#include <memory>

namespace BE {

class MarkersImpl;

/// The model's marker collection: a vector kept in order, so that finding a
/// time is a binary search.
class BE_API Markers final : public IMarkers, public std::enable_shared_from_this<Markers> {
public:
  /// Undo steps made on the collection's behalf go on `undoStack` (may be null).
  static std::shared_ptr<Markers> Create(std::shared_ptr<UndoStack> undoStack = {});
  ~Markers() override;

  const MarkerList& GetMarkers(const ReadValidator& validator) const override;
  IMarkerRef FindMarker(MarkerID id, const ReadValidator& validator) const override;
  bool Contains(const IMarker& marker, const ReadValidator& validator) const override;
  IMarkerRef AddMarker(const MarkerFields& fields, const UpgradeValidator& validator,
                       ICompoundAction* action) override;
  bool RemoveMarker(const IMarker& marker, const UpgradeValidator& validator, ICompoundAction* action) override;
  bool ChangeMarker(const IMarker& marker, const MarkerFields& fields, const UpgradeValidator& validator,
                    ICompoundAction* action) override;
  void ReplaceMarkers(const std::vector<MarkerRecord>& records, const UpgradeValidator& validator,
                      ICompoundAction* action) override;
  const krocore::utility::ImmutableString& GetStationID() const noexcept override;
  std::shared_ptr<UndoStack> GetUndoStack() const override;

private:
  explicit Markers(std::shared_ptr<UndoStack> undoStack);

  // Records a change just made: each function runs on this collection, and
  // only while it lives.
  void Record(ICompoundAction* action, std::function<void(MarkersImpl&)> undo,
              std::function<void(MarkersImpl&)> redo);

  std::unique_ptr<MarkersImpl> mImpl;
};

} // namespace BE
