#pragma once

#include <kroscripting/Export.h>
#include <kroscripting/events/EventPayload.h>
#include <krocore/utility/ImmutableString.h>

namespace kroscripting::events {

/// Queues an event for the scripting layer; safe from any thread. It reaches
/// the listeners registered at the time the main-thread queue is drained,
/// after the events this thread queued before it.
KROSCRIPTING_API void QueueEvent(const krocore::utility::ImmutableString& name, EventPayload payload = {});

} // namespace kroscripting::events
