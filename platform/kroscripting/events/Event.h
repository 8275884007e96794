#pragma once

#include <kroscripting/events/EventPayload.h>
#include <krocore/utility/ImmutableString.h>

namespace kroscripting::events {

/// A scripting event as listeners receive it: "ZELCommandEvent" with the
/// command's ID in its payload, for example.
struct Event {
  krocore::utility::ImmutableString name;
  EventPayload payload;
};

} // namespace kroscripting::events
