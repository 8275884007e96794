#include <kroui/ui/EventLoop.h>

#include <kroui/backend/Backend.h>
#include <kroui/base/OS_Event.h>
#include <kroui/ui/ToolTipManager.h>
#include <kroui/ui/UI_Window.h>

#include <krocore/threads/MainThreadQueue.h>

#include <algorithm>
#include <vector>

namespace kroui::ui {
namespace {

// Events taken in one go before timers and paints get their turn, so that a
// flood of input cannot starve them.
constexpr std::size_t kMaxEventsPerPass = 256;

// While a loop runs, work posted from another thread ends the backend's wait.
// Loops nest: the outermost one installs and removes the wake-up.
class WakeUpInstaller {
public:
  WakeUpInstaller() {
    if (sDepth++ == 0) {
      krocore::threads::MainThreadQueue::Instance().SetWakeUpFunction([] { backend::GetBackend().WakeUp(); });
    }
  }
  ~WakeUpInstaller() {
    if (--sDepth == 0) krocore::threads::MainThreadQueue::Instance().SetWakeUpFunction({});
  }
  WakeUpInstaller(const WakeUpInstaller&) = delete;
  WakeUpInstaller& operator=(const WakeUpInstaller&) = delete;

private:
  static inline int sDepth = 0;
};

// Timers run on the backend's clock and a tooltip is one of its windows: the
// loop lets go of them whenever the backend is replaced, from the library's load on.
[[maybe_unused]] const bool sResetsWithBackend =
    (backend::SetBackendReplacingHook([] { EventLoop::Instance().Reset(); }), true);

} // namespace

EventLoop& EventLoop::Instance() {
  static EventLoop sLoop;
  return sLoop;
}

std::int64_t EventLoop::Now() const { return backend::GetBackend().GetTimeMs(); }

std::optional<std::int64_t> EventLoop::TimeToNextTimer() const {
  const std::optional<std::int64_t> deadline = mTimers.NextDeadline();
  if (!deadline) return std::nullopt;
  return std::max<std::int64_t>(0, *deadline - Now());
}

void EventLoop::Run() {
  const WakeUpInstaller wakeUp;
  ++mRunDepth;
  while (!mQuitRequested) {
    ProcessPending();
    if (mQuitRequested) break;
    OS_Event event;
    const backend::WaitResult result = GetNextEvent(event, TimeToNextTimer());
    if (result == backend::WaitResult::Event) DispatchEvent(event);
    const bool idleForever = result == backend::WaitResult::NoMoreEvents &&
                             krocore::threads::MainThreadQueue::Instance().PendingCount() == 0;
    if (idleForever) break;
  }
  mQuitRequested = false;
  --mRunDepth;
}

void EventLoop::Quit() { mQuitRequested = true; }

void EventLoop::RunFor(std::int64_t durationMs) {
  const WakeUpInstaller wakeUp;
  const std::int64_t end = Now() + durationMs;
  while (!mQuitRequested) {
    ProcessPending();
    const std::int64_t now = Now();
    if (mQuitRequested || now >= end) break;
    std::int64_t wait = end - now;
    if (const std::optional<std::int64_t> toTimer = TimeToNextTimer()) wait = std::min(wait, *toTimer);
    OS_Event event;
    if (GetNextEvent(event, wait) == backend::WaitResult::Event) DispatchEvent(event);
  }
  if (mRunDepth == 0) mQuitRequested = false;
}

std::size_t EventLoop::ProcessPending() {
  std::size_t done = krocore::threads::DrainMainThreadQueue();
  done += DispatchPendingEvents();
  done += mTimers.FireDue(Now());
  PaintWindows();
  return done;
}

std::size_t EventLoop::DispatchPendingEvents() {
  std::size_t dispatched = 0;
  while (dispatched < kMaxEventsPerPass && !mQuitRequested && PumpEvent()) ++dispatched;
  return dispatched;
}

bool EventLoop::PumpEvent() {
  OS_Event event;
  if (GetNextEvent(event, 0) != backend::WaitResult::Event) return false;
  DispatchEvent(event);
  return true;
}

backend::WaitResult EventLoop::GetNextEvent(OS_Event& event, std::optional<std::int64_t> timeoutMs) {
  return backend::GetBackend().WaitForEvent(event, timeoutMs);
}

void EventLoop::DispatchEvent(const OS_Event& event) {
  if (mProcessFilter || mFilter) {
    const MSG message = ToMSG(event);
    if (mProcessFilter && mProcessFilter(message)) return;
    if (mFilter && mFilter(message)) return;
  }
  if (event.type == OS_Event::Type::Quit) {
    Quit();
    return;
  }
  if (UI_Window* window = UI_Window::FromNativeWindow(event.window)) window->DispatchEvent(event);
}

void EventLoop::PaintWindows() {
  // A paint may open or close windows: walk a copy, and skip those gone meanwhile.
  const std::vector<UI_Window*> windows(UI_Window::GetAllWindows().begin(), UI_Window::GetAllWindows().end());
  for (UI_Window* window : windows) {
    const auto all = UI_Window::GetAllWindows();
    if (std::find(all.begin(), all.end(), window) != all.end()) window->PaintNow();
  }
}

void EventLoop::Reset() {
  ToolTipManager::Instance().Reset();
  mTimers.Clear();
  mFilter = {};
  mQuitRequested = false;
}

} // namespace kroui::ui
