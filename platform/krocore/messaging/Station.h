#pragma once

#include <krocore/Export.h>
#include <krocore/Forward.h>
#include <krocore/utility/ImmutableString.h>

#include <cstddef>
#include <memory>
#include <utility>

namespace krocore::messaging {

// A station is a name on which messages are broadcast; listeners subscribe to
// the name. Delivery is always on the main thread:
//
//   main thread:  BroadcastMessageOnMainThread(station, message)
//                   --> each listener's ListenToMessage, at once, in subscription order
//   any thread:   AsyncBroadcastMessagePtr(station, message)
//                   --> main-thread queue --> (DrainMainThreadQueue) --> listeners
//
// During a broadcast a listener may subscribe and unsubscribe listeners,
// destroy them, dispose of the station or broadcast again. A listener removed
// meanwhile is not called after its removal; one added is not called by the
// broadcast under way, only by later ones. Exceptions thrown by a listener
// leave the registry sound and go on to the broadcaster.

/// Creates a station with no listeners; returns false when it exists already.
/// Subscribing creates a station too: creating one explicitly only announces it.
KROCORE_API bool CreateStation(const utility::ImmutableString& stationID);

/// Drops the station and all its subscriptions; the listeners go on living,
/// unsubscribed. Returns false when there was no such station.
KROCORE_API bool DisposeStation(const utility::ImmutableString& stationID);

/// Disposes of every station (shut-down, test tear-down).
KROCORE_API void DisposeAllStations();

KROCORE_API bool StationExists(const utility::ImmutableString& stationID);
KROCORE_API std::size_t GetListenerCount(const utility::ImmutableString& stationID);

/// Delivers the message now. Main thread only: from another thread it reports
/// the misuse and queues a copy of the message, as AsyncBroadcastMessagePtr does.
KROCORE_API void BroadcastMessageOnMainThread(const utility::ImmutableString& stationID, const Message& message);

/// Queues the message to the main thread from any thread; it is delivered
/// when the main-thread queue is drained, after the messages this thread
/// queued before it, to the station's listeners at that time.
KROCORE_API void AsyncBroadcastMessagePtr(const utility::ImmutableString& stationID,
                                          std::shared_ptr<const Message> message);

/// A station owned by an object, such as a control that broadcasts its
/// changes: created with the owner, disposed of with it.
class KROCORE_API Station {
public:
  /// A station with a new identifier of its own ("krocore.station.<n>").
  Station();
  explicit Station(const utility::ImmutableString& stationID);
  ~Station();

  Station(const Station&) = delete;
  Station& operator=(const Station&) = delete;

  const utility::ImmutableString& GetID() const noexcept { return mID; }

  void Broadcast(const Message& message) const { BroadcastMessageOnMainThread(mID, message); }
  void AsyncBroadcast(std::shared_ptr<const Message> message) const {
    AsyncBroadcastMessagePtr(mID, std::move(message));
  }

private:
  utility::ImmutableString mID;
};

} // namespace krocore::messaging
