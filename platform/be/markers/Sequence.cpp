#include <be/markers/Sequence.h>

#include <be/markers/Markers.h>
#include <be/markers/SequenceImpl.h>

#include <algorithm>
#include <utility>

namespace BE {

ISequence::~ISequence() = default;

Sequence::Sequence() : mImpl(std::make_unique<SequenceImpl>()) {
  mImpl->mUndoStack = std::make_shared<UndoStack>();
  mImpl->mMarkers = Markers::Create(mImpl->mUndoStack);
}

Sequence::~Sequence() = default;

IMarkersRef Sequence::GetMarkers() const { return mImpl->mMarkers; }

std::shared_ptr<UndoStack> Sequence::GetUndoStack() const { return mImpl->mUndoStack; }

const std::vector<ITrackItemRef>& Sequence::GetTrackItems() const noexcept { return mImpl->mItems; }

void Sequence::AddTrackItem(ITrackItemRef item) {
  if (item) mImpl->mItems.push_back(std::move(item));
}

bool Sequence::SetTrackItemSelected(const ITrackItem& item, bool selected) {
  const auto& items = mImpl->mItems;
  if (std::none_of(items.begin(), items.end(), [&item](const ITrackItemRef& i) { return i.get() == &item; }))
    return false;
  if (selected)
    mImpl->mSelected.insert(&item);
  else
    mImpl->mSelected.erase(&item);
  return true;
}

std::vector<ITrackItemRef> Sequence::GetSelectedTrackItems() const {
  std::vector<ITrackItemRef> selected;
  for (const ITrackItemRef& item : mImpl->mItems)
    if (mImpl->mSelected.contains(item.get())) selected.push_back(item);
  return selected;
}

} // namespace BE
