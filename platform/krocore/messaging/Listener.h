#pragma once

#include <krocore/Export.h>
#include <krocore/Forward.h>
#include <krocore/utility/ImmutableString.h>

namespace krocore::messaging {

/// Something that hears the messages broadcast on the stations it subscribes
/// to. Subscriptions belong to the station registry, not to the listener;
/// the listener's destructor ends all of them, so the registry never holds a
/// dangling listener, also when one is destroyed in the middle of a broadcast.
///
/// Listeners are called on the main thread. Subscribing and unsubscribing are
/// safe from any thread, but a listener must not be destroyed on another
/// thread while the main thread may be calling it.
class KROCORE_API Listener {
public:
  virtual ~Listener();

  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;

  /// Called for every message broadcast on a station this listener subscribes
  /// to, whatever its type: compare the message's type identifier and ignore
  /// the messages of other types.
  virtual void ListenToMessage(const Message& message) = 0;

  /// Subscribes to a station, creating it if it does not exist yet. Returns
  /// false when already subscribed: a listener hears each broadcast once.
  bool SubscribeTo(const utility::ImmutableString& stationID);

  /// Returns false when it was not subscribed.
  bool UnsubscribeFrom(const utility::ImmutableString& stationID);

  void UnsubscribeFromAll();

  bool IsSubscribedTo(const utility::ImmutableString& stationID) const;

protected:
  Listener() = default;
};

} // namespace krocore::messaging
