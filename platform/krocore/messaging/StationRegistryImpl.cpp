#include <krocore/messaging/StationRegistryImpl.h>

#include <krocore/messaging/Listener.h>

#include <algorithm>

namespace krocore::messaging {

using utility::ImmutableString;

/// A delivery's hold on a list: ends the walk even when a listener throws.
class StationRegistryImpl::Walk {
public:
  explicit Walk(std::shared_ptr<const SubscriptionList> list) : mList(std::move(list)) {}
  ~Walk() {
    if (mList) mList->walkers.fetch_sub(1, std::memory_order_release);
  }
  Walk(const Walk&) = delete;
  Walk& operator=(const Walk&) = delete;
  const SubscriptionList* operator->() const noexcept { return mList.get(); }
  explicit operator bool() const noexcept { return mList != nullptr; }

private:
  std::shared_ptr<const SubscriptionList> mList;
};

StationRegistryImpl& StationRegistryImpl::Instance() {
  // Never destroyed: listeners held by static objects unsubscribe at exit.
  static auto* registry = new StationRegistryImpl();
  return *registry;
}

bool StationRegistryImpl::Create(const ImmutableString& stationID) {
  std::lock_guard lock(mMutex);
  return mStations.try_emplace(stationID, std::make_shared<SubscriptionList>()).second;
}

bool StationRegistryImpl::Dispose(const ImmutableString& stationID) {
  std::lock_guard lock(mMutex);
  auto it = mStations.find(stationID);
  if (it == mStations.end()) return false;
  DropSubscriptions(stationID, *it->second);
  mStations.erase(it);
  return true;
}

void StationRegistryImpl::DisposeAll() {
  std::lock_guard lock(mMutex);
  for (const auto& [stationID, list] : mStations) DropSubscriptions(stationID, *list);
  mStations.clear();
}

bool StationRegistryImpl::Exists(const ImmutableString& stationID) const {
  std::lock_guard lock(mMutex);
  return mStations.contains(stationID);
}

std::size_t StationRegistryImpl::CountListeners(const ImmutableString& stationID) const {
  std::lock_guard lock(mMutex);
  auto it = mStations.find(stationID);
  return it == mStations.end() ? 0 : it->second->subscriptions.size();
}

bool StationRegistryImpl::Subscribe(Listener& listener, const ImmutableString& stationID) {
  std::lock_guard lock(mMutex);
  auto& stations = mStationsOfListener[&listener];
  if (std::find(stations.begin(), stations.end(), stationID) != stations.end()) return false;
  ListPtr& list = mStations[stationID];
  if (!list) list = std::make_shared<SubscriptionList>();
  EditableList(list).push_back(std::make_shared<Subscription>(&listener));
  stations.push_back(stationID);
  return true;
}

bool StationRegistryImpl::Unsubscribe(const Listener& listener, const ImmutableString& stationID) {
  std::lock_guard lock(mMutex);
  auto it = mStations.find(stationID);
  if (it == mStations.end() || !RemoveFromList(it->second, listener)) return false;
  ForgetStation(&listener, stationID);
  return true;
}

void StationRegistryImpl::UnsubscribeFromAll(const Listener& listener) {
  std::lock_guard lock(mMutex);
  auto byListener = mStationsOfListener.find(&listener);
  if (byListener == mStationsOfListener.end()) return;
  for (const ImmutableString& stationID : byListener->second) {
    if (auto it = mStations.find(stationID); it != mStations.end()) RemoveFromList(it->second, listener);
  }
  mStationsOfListener.erase(byListener);
}

bool StationRegistryImpl::IsSubscribed(const Listener& listener, const ImmutableString& stationID) const {
  std::lock_guard lock(mMutex);
  auto it = mStationsOfListener.find(&listener);
  return it != mStationsOfListener.end() &&
         std::find(it->second.begin(), it->second.end(), stationID) != it->second.end();
}

void StationRegistryImpl::Deliver(const ImmutableString& stationID, const Message& message) const {
  const Walk walk(StartWalk(stationID));
  if (!walk) return;
  for (const auto& subscription : walk->subscriptions) {
    // Read afresh for each listener: an earlier one may have removed or destroyed it.
    if (Listener* listener = subscription->listener.load(std::memory_order_acquire))
      listener->ListenToMessage(message);
  }
}

std::shared_ptr<const StationRegistryImpl::SubscriptionList>
StationRegistryImpl::StartWalk(const ImmutableString& stationID) const {
  std::lock_guard lock(mMutex);
  auto it = mStations.find(stationID);
  if (it == mStations.end()) return nullptr;
  it->second->walkers.fetch_add(1, std::memory_order_relaxed);
  return it->second;
}

std::vector<std::shared_ptr<StationRegistryImpl::Subscription>>& StationRegistryImpl::EditableList(ListPtr& list) {
  // Walks start only under the registry's lock, which the caller holds, so
  // a list that no one walks now stays unwalked while it is edited.
  if (list->walkers.load(std::memory_order_acquire) > 0) list = std::make_shared<SubscriptionList>(*list);
  return list->subscriptions;
}

bool StationRegistryImpl::RemoveFromList(ListPtr& list, const Listener& listener) {
  auto matches = [&listener](const std::shared_ptr<Subscription>& subscription) {
    return subscription->listener.load(std::memory_order_relaxed) == &listener;
  };
  auto& subscriptions = list->subscriptions;
  auto it = std::find_if(subscriptions.begin(), subscriptions.end(), matches);
  if (it == subscriptions.end()) return false;
  (*it)->listener.store(nullptr, std::memory_order_release);
  const auto index = it - subscriptions.begin();
  auto& editable = EditableList(list);
  editable.erase(editable.begin() + index);
  return true;
}

void StationRegistryImpl::ForgetStation(const Listener* listener, const ImmutableString& stationID) {
  auto it = mStationsOfListener.find(listener);
  if (it == mStationsOfListener.end()) return;
  std::erase(it->second, stationID);
  if (it->second.empty()) mStationsOfListener.erase(it);
}

void StationRegistryImpl::DropSubscriptions(const ImmutableString& stationID, const SubscriptionList& list) {
  for (const auto& subscription : list.subscriptions) {
    if (Listener* listener = subscription->listener.exchange(nullptr, std::memory_order_acq_rel))
      ForgetStation(listener, stationID);
  }
}

} // namespace krocore::messaging
