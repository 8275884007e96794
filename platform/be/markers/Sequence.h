#pragma once

#include <be/Export.h>
#include <be/markers/ISequence.h>

#include <memory>

namespace BE {

class SequenceImpl;

/// The model's sequence: its markers share its undo history.
class BE_API Sequence final : public ISequence {
public:
  Sequence();
  ~Sequence() override;

  IMarkersRef GetMarkers() const override;
  std::shared_ptr<UndoStack> GetUndoStack() const override;
  const std::vector<ITrackItemRef>& GetTrackItems() const noexcept override;
  void AddTrackItem(ITrackItemRef item) override;
  bool SetTrackItemSelected(const ITrackItem& item, bool selected) override;
  std::vector<ITrackItemRef> GetSelectedTrackItems() const override;

private:
  std::unique_ptr<SequenceImpl> mImpl;
};

} // namespace BE
