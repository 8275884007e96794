#include <be/markers/Markers.h>

#include <be/markers/ICompoundAction.h>
#include <be/markers/MarkerImpl.h>
#include <be/markers/MarkersChangedMessage.h>
#include <be/markers/MarkersImpl.h>
#include <be/markers/UpgradeValidator.h>

#include <krocore/debug/Assert.h>

#include <algorithm>
#include <utility>

namespace BE {
namespace {

const MarkerList kNoMarkers;

bool CheckRead(const ReadValidator& validator) {
  return KROCORE_ASSERT(validator.IsValid(), "Markers read without a valid read validator");
}

bool CheckChange(const UpgradeValidator& validator) {
  return KROCORE_ASSERT(validator.IsValid(), "Markers changed without a valid upgrade validator");
}

bool CheckFields(const MarkerFields& fields) {
  const std::string problem = CheckMarkerFields(fields);
  return KROCORE_ASSERT(problem.empty(), "Marker refused: " + problem);
}

} // namespace

IMarker::~IMarker() = default;
IMarkers::~IMarkers() = default;

std::size_t MarkersImpl::IndexOf(const IMarker& marker) const noexcept {
  const auto at = std::lower_bound(mMarkers.begin(), mMarkers.end(), &marker,
                                   [](const IMarkerRef& m, const IMarker* key) { return ComesBefore(*m, *key); });
  if (at == mMarkers.end() || at->get() != &marker) return kNotFound;
  return static_cast<std::size_t>(at - mMarkers.begin());
}

void MarkersImpl::Insert(const IMarkerRef& marker) {
  const auto at = std::upper_bound(mMarkers.begin(), mMarkers.end(), marker,
                                   [](const IMarkerRef& a, const IMarkerRef& b) { return ComesBefore(*a, *b); });
  mMarkers.insert(at, marker);
  mNextID = std::max(mNextID, marker->GetID() + 1);
}

void MarkersImpl::Erase(const IMarker& marker) {
  if (const std::size_t index = IndexOf(marker); index != kNotFound)
    mMarkers.erase(mMarkers.begin() + static_cast<std::ptrdiff_t>(index));
}

void MarkersImpl::SetFields(const IMarkerRef& marker, const MarkerFields& fields) {
  if (IndexOf(*marker) == kNotFound) return;
  Erase(*marker);
  static_cast<MarkerImpl&>(*marker).SetFields(fields);
  Insert(marker);
}

void MarkersImpl::SetAll(const MarkerList& markers) {
  mMarkers = markers;
  std::sort(mMarkers.begin(), mMarkers.end(),
            [](const IMarkerRef& a, const IMarkerRef& b) { return ComesBefore(*a, *b); });
  for (const IMarkerRef& marker : mMarkers) mNextID = std::max(mNextID, marker->GetID() + 1);
}

void MarkersImpl::Notify() const { mStation.Broadcast(MarkersChangedMessage()); }

std::shared_ptr<Markers> Markers::Create(std::shared_ptr<UndoStack> undoStack) {
  return std::shared_ptr<Markers>(new Markers(std::move(undoStack)));
}

Markers::Markers(std::shared_ptr<UndoStack> undoStack) : mImpl(std::make_unique<MarkersImpl>()) {
  mImpl->mUndoStack = std::move(undoStack);
}

Markers::~Markers() = default;

const MarkerList& Markers::GetMarkers(const ReadValidator& validator) const {
  return CheckRead(validator) ? mImpl->mMarkers : kNoMarkers;
}

IMarkerRef Markers::FindMarker(MarkerID id, const ReadValidator& validator) const {
  if (!CheckRead(validator)) return nullptr;
  const auto at = std::find_if(mImpl->mMarkers.begin(), mImpl->mMarkers.end(),
                               [id](const IMarkerRef& m) { return m->GetID() == id; });
  return at == mImpl->mMarkers.end() ? nullptr : *at;
}

bool Markers::Contains(const IMarker& marker, const ReadValidator& validator) const {
  return CheckRead(validator) && mImpl->IndexOf(marker) != MarkersImpl::kNotFound;
}

void Markers::Record(ICompoundAction* action, std::function<void(MarkersImpl&)> undo,
                     std::function<void(MarkersImpl&)> redo) {
  mImpl->Notify();
  if (!action) return;
  const auto run = [self = weak_from_this()](const std::function<void(MarkersImpl&)>& change) {
    if (const auto markers = self.lock()) {
      change(*markers->mImpl);
      markers->mImpl->Notify();
    }
  };
  action->Record([run, undo = std::move(undo)] { run(undo); }, [run, redo = std::move(redo)] { run(redo); });
}

IMarkerRef Markers::AddMarker(const MarkerFields& fields, const UpgradeValidator& validator,
                              ICompoundAction* action) {
  if (!CheckChange(validator) || !CheckFields(fields)) return nullptr;
  auto marker = std::make_shared<MarkerImpl>(mImpl->mNextID, fields);
  mImpl->Insert(marker);
  Record(action, [marker](MarkersImpl& m) { m.Erase(*marker); }, [marker](MarkersImpl& m) { m.Insert(marker); });
  return marker;
}

bool Markers::RemoveMarker(const IMarker& marker, const UpgradeValidator& validator, ICompoundAction* action) {
  if (!CheckChange(validator)) return false;
  const std::size_t index = mImpl->IndexOf(marker);
  if (!KROCORE_ASSERT(index != MarkersImpl::kNotFound, "The marker belongs to another collection")) return false;
  IMarkerRef held = mImpl->mMarkers[index];
  mImpl->Erase(marker);
  Record(action, [held](MarkersImpl& m) { m.Insert(held); }, [held](MarkersImpl& m) { m.Erase(*held); });
  return true;
}

bool Markers::ChangeMarker(const IMarker& marker, const MarkerFields& fields, const UpgradeValidator& validator,
                           ICompoundAction* action) {
  if (!CheckChange(validator) || !CheckFields(fields)) return false;
  const std::size_t index = mImpl->IndexOf(marker);
  if (!KROCORE_ASSERT(index != MarkersImpl::kNotFound, "The marker belongs to another collection")) return false;
  IMarkerRef held = mImpl->mMarkers[index];
  MarkerFields before = held->GetFields();
  mImpl->SetFields(held, fields);
  Record(
      action, [held, before](MarkersImpl& m) { m.SetFields(held, before); },
      [held, fields](MarkersImpl& m) { m.SetFields(held, fields); });
  return true;
}

void Markers::ReplaceMarkers(const std::vector<MarkerRecord>& records, const UpgradeValidator& validator,
                             ICompoundAction* action) {
  if (!CheckChange(validator)) return;
  MarkerList after;
  after.reserve(records.size());
  for (const MarkerRecord& record : records) after.push_back(std::make_shared<MarkerImpl>(record.id, record.fields));
  MarkerList before = std::move(mImpl->mMarkers);
  mImpl->SetAll(after);
  Record(action, [before](MarkersImpl& m) { m.SetAll(before); }, [after](MarkersImpl& m) { m.SetAll(after); });
}

const krocore::utility::ImmutableString& Markers::GetStationID() const noexcept { return mImpl->mStation.GetID(); }

std::shared_ptr<UndoStack> Markers::GetUndoStack() const { return mImpl->mUndoStack; }

} // namespace BE
