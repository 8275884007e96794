#pragma once

#include <kroui/Export.h>
#include <kroui/Forward.h>
#include <kroui/backend/BackendTypes.h>

#include <functional>

namespace kroui::ui {

/// Waits for the next event for a loop that reads events itself (a modal
/// tracking loop), keeping the rest of the UI alive meanwhile:
///
///   main-thread queue --> due timers --> paint invalid windows --> wait, at most until the next timer
///        ^                                                              |
///        +---------------- timed out, or woken by posted work ----------+
///
/// Pending events are not dispatched: the caller takes each one, handles it or
/// hands it to EventLoop::DispatchEvent. Returns Event with `event` filled, or
/// NoMoreEvents when no event can ever arrive and no timer or task is left to
/// bring one (the headless backend with an empty queue and no timer).
/// `isStopped`, asked after each round of that work, ends the wait with
/// Woken when the work (a timer, a posted task) ended the loop. UI thread only.
KROUI_API backend::WaitResult WaitForModalEvent(OS_Event& event, const std::function<bool()>& isStopped = {});

} // namespace kroui::ui
