#pragma once

#include <zel/Export.h>

#include <kroui/os/NativeTypes.h>

namespace ZEL {

/// The process's chain of raw message filters. Every platform event the event
/// loop dispatches is offered to it, as a MSG, before its window sees it:
///
///   backend event --> kroui EventLoop --> FilterEvent: filter 1 -> filter 2 -> ...  (true: dropped)
///                                     --> window --> nodes
///
/// Filters are asked in registration order; the first that returns true takes
/// the message and hides it from those after it. The chain is plugged into the
/// event loop while it holds any filter. A filter may register and unregister
/// filters, itself included, while it runs: one unregistered meanwhile is not
/// asked any more, one registered meanwhile is asked from the next message on.
/// UI thread only.
class ZEL_API WinOSEventFilterer {
public:
  /// Returns true to take the message; `context` is the one given at registration.
  using FilterFunction = bool (*)(const MSG& message, void* context);

  WinOSEventFilterer() = delete;

  /// Appends an entry; the same function with another context is another
  /// entry. Throws std::length_error when the list can hold no more.
  static void RegisterFilter(FilterFunction function, void* context);
  /// Removes the first entry with this function and this context; without one it does nothing.
  static void UnregisterFilter(FilterFunction function, void* context);
  /// Whether a filter took the message.
  static bool FilterEvent(const MSG& message);
};

} // namespace ZEL
