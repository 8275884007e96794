#include <kroui/ui/ModalEventWait.h>

#include <kroui/base/OS_Event.h>
#include <kroui/ui/EventLoop.h>

#include <krocore/threads/MainThreadQueue.h>

#include <algorithm>
#include <optional>

namespace kroui::ui {
namespace {

// Runs what is due without taking an event: the work a drag's feedback needs.
void RunDueWork(EventLoop& loop) {
  krocore::threads::DrainMainThreadQueue();
  loop.GetTimers().FireDue(loop.Now());
  loop.PaintWindows();
}

std::optional<std::int64_t> TimeToNextTimer(const EventLoop& loop, const utility::TimerQueue& timers) {
  const std::optional<std::int64_t> deadline = timers.NextDeadline();
  if (!deadline) return std::nullopt;
  return std::max<std::int64_t>(0, *deadline - loop.Now());
}

} // namespace

backend::WaitResult WaitForModalEvent(OS_Event& event, const std::function<bool()>& isStopped) {
  EventLoop& loop = EventLoop::Instance();
  for (;;) {
    RunDueWork(loop);
    if (isStopped && isStopped()) return backend::WaitResult::Woken;
    const backend::WaitResult result = loop.GetNextEvent(event, TimeToNextTimer(loop, loop.GetTimers()));
    if (result == backend::WaitResult::Event) return result;
    const bool idleForever = result == backend::WaitResult::NoMoreEvents &&
                             krocore::threads::MainThreadQueue::Instance().PendingCount() == 0;
    if (idleForever) return result;
  }
}

} // namespace kroui::ui
