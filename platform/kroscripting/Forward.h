#pragma once

#include <functional>

namespace kroscripting::events {

struct Event;
class EventPayload;
class EventListenerToken;

using EventHandler = std::function<void(const Event&)>;

} // namespace kroscripting::events
