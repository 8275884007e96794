#pragma once

#include <kroscripting/events/Event.h>
#include <krocore/messaging/Message.h>

#include <utility>

namespace kroscripting::events {

// Queued events ride on krocore's messaging, which already gives the
// ordering, the main-thread delivery and the safety of removing listeners
// while they are being called. Each event name has a station of its own, so
// that a listener for one name is not woken by the others:
//
//   QueueEvent("ZELCommandEvent") --> main-thread queue --> (drain)
//       --> station "kroscripting.event.ZELCommandEvent" --> listeners of that name
//       --> station "kroscripting.events"                --> listeners of all events

class EventMessage : public krocore::messaging::Message {
  KROCORE_MESSAGE_CLASS(EventMessage, "kroscripting.EventMessage")

  explicit EventMessage(Event event) : mEvent(std::move(event)) {}
  const Event& GetEvent() const noexcept { return mEvent; }

private:
  Event mEvent;
};

inline krocore::utility::ImmutableString StationForEvent(const krocore::utility::ImmutableString& name) {
  return krocore::utility::ImmutableString("kroscripting.event." + name.ToString());
}

inline krocore::utility::ImmutableString StationForAllEvents() {
  static const krocore::utility::ImmutableString sStation("kroscripting.events");
  return sStation;
}

} // namespace kroscripting::events
