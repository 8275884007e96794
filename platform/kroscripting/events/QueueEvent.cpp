#include <kroscripting/events/QueueEvent.h>

#include <kroscripting/events/EventMessageImpl.h>
#include <krocore/debug/Assert.h>
#include <krocore/messaging/Station.h>
#include <krocore/threads/MainThreadQueue.h>

#include <memory>

namespace kroscripting::events {

void QueueEvent(const krocore::utility::ImmutableString& name, EventPayload payload) {
  if (!KROCORE_ASSERT(!name.IsEmpty(), "A scripting event needs a name")) return;
  auto message = std::make_shared<const EventMessage>(Event{name, std::move(payload)});
  // One task for both stations, so that the listeners of the name and those
  // of all events see the events in the same order.
  krocore::threads::PostToMainThread([message] {
    const Event& event = message->GetEvent();
    krocore::messaging::BroadcastMessageOnMainThread(StationForEvent(event.name), *message);
    krocore::messaging::BroadcastMessageOnMainThread(StationForAllEvents(), *message);
  });
}

} // namespace kroscripting::events
