#pragma once

#include <kroscripting/Export.h>
#include <kroscripting/Forward.h>
#include <krocore/utility/ImmutableString.h>

#include <memory>

namespace kroscripting::events {

/// Calls the handler on the main thread for each queued event of that name,
/// until the returned token goes.
[[nodiscard]] KROSCRIPTING_API EventListenerToken AddEventListener(const krocore::utility::ImmutableString& eventName,
                                                                   EventHandler handler);

/// Calls the handler for every queued event, after the listeners of its name.
[[nodiscard]] KROSCRIPTING_API EventListenerToken AddEventListenerForAllEvents(EventHandler handler);

/// Keeps one event listener registered while it lives; destroying or
/// resetting it removes the listener, also while events are being delivered
/// (the listener is then not called again, not even by the delivery under way).
/// Move-only; a default-made token holds nothing.
class KROSCRIPTING_API EventListenerToken {
public:
  EventListenerToken() noexcept;
  ~EventListenerToken();
  EventListenerToken(EventListenerToken&& other) noexcept;
  EventListenerToken& operator=(EventListenerToken&& other) noexcept;

  /// Removes the listener now.
  void Reset();

  /// Whether the listener still hears events. Disposing of all stations at
  /// shut-down ends every listener, as resetting does.
  bool IsListening() const;

private:
  class HandlerListener;

  friend EventListenerToken AddEventListener(const krocore::utility::ImmutableString&, EventHandler);
  friend EventListenerToken AddEventListenerForAllEvents(EventHandler);

  explicit EventListenerToken(std::unique_ptr<HandlerListener> listener) noexcept;

  std::unique_ptr<HandlerListener> mListener;
};

} // namespace kroscripting::events
