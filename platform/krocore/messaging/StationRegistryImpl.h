#pragma once

#include <krocore/Forward.h>
#include <krocore/utility/ImmutableString.h>

#include <atomic>
#include <cstddef>
#include <memory>
#include <mutex>
#include <unordered_map>
#include <vector>

namespace krocore::messaging {

/// The process's stations and their listeners, behind Station.h and Listener.h.
///
///   mStations   "zel.theme" --> list [ sub(A) | sub(B) | sub(C) ]     one sub per
///               "zel.tool"  --> list [ sub(B) ]                       listener and station
///   mStationsOfListener   B --> { "zel.theme", "zel.tool" }            for unsubscribing B
///
/// A delivery takes a reference to the station's list under the lock and
/// walks it without the lock, so a broadcast neither allocates nor holds a
/// lock while listeners run. Changes never disturb a list being walked: a
/// list that no delivery walks is edited in place; one that a delivery walks
/// is copied, and the copy replaces it. Removing a listener first clears its
/// sub, which old and new lists share, so a walk that has not reached it yet
/// skips it; a listener added meanwhile is only in the new list.
class StationRegistryImpl {
public:
  static StationRegistryImpl& Instance();

  bool Create(const utility::ImmutableString& stationID);
  bool Dispose(const utility::ImmutableString& stationID);
  void DisposeAll();
  bool Exists(const utility::ImmutableString& stationID) const;
  std::size_t CountListeners(const utility::ImmutableString& stationID) const;

  bool Subscribe(Listener& listener, const utility::ImmutableString& stationID);
  bool Unsubscribe(const Listener& listener, const utility::ImmutableString& stationID);
  void UnsubscribeFromAll(const Listener& listener);
  bool IsSubscribed(const Listener& listener, const utility::ImmutableString& stationID) const;

  /// Calls the station's listeners now, on the calling thread.
  void Deliver(const utility::ImmutableString& stationID, const Message& message) const;

private:
  struct Subscription {
    explicit Subscription(Listener* target) : listener(target) {}
    std::atomic<Listener*> listener; // null once unsubscribed
  };
  struct SubscriptionList {
    SubscriptionList() = default;
    SubscriptionList(const SubscriptionList& other) : subscriptions(other.subscriptions) {}
    std::vector<std::shared_ptr<Subscription>> subscriptions;
    // Deliveries walking the list now. Counted apart from the shared_ptr's
    // references, whose count is read without ordering: an editor must see
    // the end of a walk before it writes.
    mutable std::atomic<int> walkers{0};
  };
  using ListPtr = std::shared_ptr<SubscriptionList>;
  class Walk;

  StationRegistryImpl() = default;

  std::shared_ptr<const SubscriptionList> StartWalk(const utility::ImmutableString& stationID) const;
  static std::vector<std::shared_ptr<Subscription>>& EditableList(ListPtr& list);
  static bool RemoveFromList(ListPtr& list, const Listener& listener);
  void ForgetStation(const Listener* listener, const utility::ImmutableString& stationID);
  void DropSubscriptions(const utility::ImmutableString& stationID, const SubscriptionList& list);

  mutable std::mutex mMutex;
  std::unordered_map<utility::ImmutableString, ListPtr> mStations;
  std::unordered_map<const Listener*, std::vector<utility::ImmutableString>> mStationsOfListener;
};

} // namespace krocore::messaging
