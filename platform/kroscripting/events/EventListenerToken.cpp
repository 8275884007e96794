#include <kroscripting/events/EventListenerToken.h>

#include <kroscripting/events/EventMessageImpl.h>
#include <krocore/config/TopLevel.h>
#include <krocore/debug/Assert.h>
#include <krocore/messaging/Listener.h>

namespace kroscripting::events {

using krocore::utility::ImmutableString;

class EventListenerToken::HandlerListener : public krocore::messaging::Listener {
public:
  HandlerListener(const ImmutableString& stationID, EventHandler handler)
      : mStationID(stationID), mHandler(std::make_shared<const EventHandler>(std::move(handler))) {
    SubscribeTo(mStationID);
  }

  bool IsListening() const { return IsSubscribedTo(mStationID); }

  void ListenToMessage(const krocore::messaging::Message& message) override {
    const auto* eventMessage = message.As<EventMessage>();
    if (!eventMessage) return;
    // The handler may reset its own token and so destroy this listener:
    // the local reference keeps the running handler alive until it returns.
    const std::shared_ptr<const EventHandler> handler = mHandler;
    // Handlers are contained one by one, so that a failing script handler
    // does not keep the event from the others.
    krocore::config::ExecuteTopLevelFunction([&handler, eventMessage] { (*handler)(eventMessage->GetEvent()); });
  }

private:
  ImmutableString mStationID;
  std::shared_ptr<const EventHandler> mHandler;
};

EventListenerToken::EventListenerToken() noexcept = default;
EventListenerToken::~EventListenerToken() = default;
EventListenerToken::EventListenerToken(EventListenerToken&& other) noexcept = default;
EventListenerToken& EventListenerToken::operator=(EventListenerToken&& other) noexcept = default;

EventListenerToken::EventListenerToken(std::unique_ptr<HandlerListener> listener) noexcept
    : mListener(std::move(listener)) {}

void EventListenerToken::Reset() { mListener.reset(); }

bool EventListenerToken::IsListening() const { return mListener && mListener->IsListening(); }

EventListenerToken AddEventListener(const ImmutableString& eventName, EventHandler handler) {
  if (!KROCORE_ASSERT(!eventName.IsEmpty(), "An event listener needs an event name")) return {};
  if (!KROCORE_ASSERT(handler, "An event listener needs a handler")) return {};
  return EventListenerToken(
      std::make_unique<EventListenerToken::HandlerListener>(StationForEvent(eventName), std::move(handler)));
}

EventListenerToken AddEventListenerForAllEvents(EventHandler handler) {
  if (!KROCORE_ASSERT(handler, "An event listener needs a handler")) return {};
  return EventListenerToken(
      std::make_unique<EventListenerToken::HandlerListener>(StationForAllEvents(), std::move(handler)));
}

} // namespace kroscripting::events
