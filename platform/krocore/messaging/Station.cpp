#include <krocore/messaging/Station.h>

#include <krocore/debug/Assert.h>
#include <krocore/messaging/Message.h>
#include <krocore/messaging/StationRegistryImpl.h>
#include <krocore/threads/MainThread.h>
#include <krocore/threads/MainThreadQueue.h>

#include <atomic>
#include <cstdint>
#include <string>

namespace krocore::messaging {

using utility::ImmutableString;

namespace {

void QueueDelivery(const ImmutableString& stationID, std::shared_ptr<const Message> message) {
  threads::PostToMainThread([stationID, message = std::move(message)] {
    StationRegistryImpl::Instance().Deliver(stationID, *message);
  });
}

ImmutableString MakeUniqueStationID() {
  static std::atomic<std::uint64_t> sNextNumber{1};
  return ImmutableString("krocore.station." + std::to_string(sNextNumber.fetch_add(1)));
}

} // namespace

bool CreateStation(const ImmutableString& stationID) {
  if (!KROCORE_ASSERT(!stationID.IsEmpty(), "A station needs a non-empty identifier")) return false;
  return StationRegistryImpl::Instance().Create(stationID);
}

bool DisposeStation(const ImmutableString& stationID) { return StationRegistryImpl::Instance().Dispose(stationID); }

void DisposeAllStations() { StationRegistryImpl::Instance().DisposeAll(); }

bool StationExists(const ImmutableString& stationID) { return StationRegistryImpl::Instance().Exists(stationID); }

std::size_t GetListenerCount(const ImmutableString& stationID) {
  return StationRegistryImpl::Instance().CountListeners(stationID);
}

void BroadcastMessageOnMainThread(const ImmutableString& stationID, const Message& message) {
  if (KROCORE_ASSERT(threads::CurrentThreadIsMainThread(),
                     "BroadcastMessageOnMainThread called off the main thread: the message is queued to the main "
                     "thread instead (use AsyncBroadcastMessagePtr)")) {
    StationRegistryImpl::Instance().Deliver(stationID, message);
    return;
  }
  QueueDelivery(stationID, message.Clone());
}

void AsyncBroadcastMessagePtr(const ImmutableString& stationID, std::shared_ptr<const Message> message) {
  if (!KROCORE_ASSERT(message, "A null message cannot be broadcast")) return;
  QueueDelivery(stationID, std::move(message));
}

Station::Station() : Station(MakeUniqueStationID()) {}

Station::Station(const ImmutableString& stationID) : mID(stationID) { CreateStation(mID); }

Station::~Station() { DisposeStation(mID); }

} // namespace krocore::messaging
