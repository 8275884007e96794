#pragma once

#include <kroui/Export.h>
#include <kroui/Forward.h>
#include <kroui/backend/BackendTypes.h>
#include <kroui/os/NativeTypes.h>
#include <kroui/utility/TimerQueue.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>

namespace kroui::ui {

/// The UI thread's loop: takes events from the backend and hands them to
/// their windows, runs the krocore main-thread queue, fires timers and paints
/// the windows' invalid regions. One iteration:
///
///   main-thread queue --> pending backend events --> due timers --> paint invalid windows
///                     --> wait for the next event, at most until the next timer
///
/// The clock is the backend's (virtual for the headless backend, whose waits
/// jump straight to the next deadline). Loops nest: a modal loop may Run, or
/// read events with GetNextEvent and dispatch them itself; Quit ends the
/// innermost Run. UI thread only.
class KROUI_API EventLoop {
public:
  using MessageFilter = std::function<bool(const MSG&)>;

  static EventLoop& Instance();
  EventLoop(const EventLoop&) = delete;
  EventLoop& operator=(const EventLoop&) = delete;

  /// Runs until Quit, or until the backend says no event can ever arrive and nothing is left to do.
  void Run();
  /// Ends the innermost Run (or the next one, when none runs) after the current event.
  void Quit();
  bool IsQuitRequested() const noexcept { return mQuitRequested; }
  int GetRunDepth() const noexcept { return mRunDepth; }
  /// Runs for `durationMs` of the clock, then returns; Quit ends it early.
  void RunFor(std::int64_t durationMs);
  /// Does what is due now, without waiting: queued tasks, pending events,
  /// due timers, paints. Returns how many tasks, events and timers ran.
  std::size_t ProcessPending();
  /// Dispatches one pending event without waiting; false when none was pending.
  bool PumpEvent();
  /// Waits up to `timeoutMs` (forever when empty) for the next event and
  /// gives it back undispatched, for loops that read events themselves.
  backend::WaitResult GetNextEvent(OS_Event& event, std::optional<std::int64_t> timeoutMs);
  /// The process filter and the message filter, then the event's window (or Quit, for a quit event).
  void DispatchEvent(const OS_Event& event);
  /// Sees every event, as a MSG, before its window does; true drops the event.
  void SetMessageFilter(MessageFilter filter) { mFilter = std::move(filter); }
  /// The process's own filter, before the message filter: the layer above
  /// plugs its chain of filters in here while the chain has any. It belongs
  /// to the process, not to a backend or a test, so Reset keeps it; null unplugs it.
  using ProcessMessageFilter = bool (*)(const MSG&);
  void SetProcessMessageFilter(ProcessMessageFilter filter) noexcept { mProcessFilter = filter; }
  ProcessMessageFilter GetProcessMessageFilter() const noexcept { return mProcessFilter; }

  /// The clock, in milliseconds.
  std::int64_t Now() const;
  utility::TimerQueue& GetTimers() noexcept { return mTimers; }
  /// Paints every window that has an invalid region.
  void PaintWindows();

  /// Drops timers, the quit request and the message filter (the backend changed, or a test ends).
  void Reset();

private:
  EventLoop() = default;
  std::optional<std::int64_t> TimeToNextTimer() const;
  std::size_t DispatchPendingEvents();

  utility::TimerQueue mTimers;
  MessageFilter mFilter;
  ProcessMessageFilter mProcessFilter = nullptr;
  bool mQuitRequested = false;
  int mRunDepth = 0;
};

} // namespace kroui::ui
