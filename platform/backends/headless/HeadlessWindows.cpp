// HeadlessBackend: windows as images, the desktop, the clock and waiting.

#include <backends/headless/HeadlessBackend.h>
#include <backends/headless/HeadlessStateImpl.h>

#include <kroui/drawbot/RasterSurface.h>

#include <krocore/debug/Assert.h>
#include <krocore/threads/MainThreadQueue.h>

#include <algorithm>

namespace kroui::backend {
namespace {

// One full-HD display with a task bar at the bottom.
MonitorInfo DefaultMonitor() { return {{0, 0, 1920, 1080}, {0, 0, 1920, 1040}, 1.f, true}; }

} // namespace

HeadlessBackend::State::State() : monitors{DefaultMonitor()} {}

HeadlessWindow* HeadlessBackend::State::Find(HWND window) {
  const auto found = windows.find(HandleNumber(window));
  return found == windows.end() ? nullptr : &found->second;
}

const HeadlessWindow* HeadlessBackend::State::Find(HWND window) const {
  const auto found = windows.find(HandleNumber(window));
  return found == windows.end() ? nullptr : &found->second;
}

HWND HeadlessBackend::State::WindowAt(Point screen) const {
  HWND best = nullptr;
  std::pair<bool, std::uint64_t> bestRank{false, 0};
  for (const auto& [number, window] : windows) {
    const WindowRecord& record = window.record;
    if (!record.isShown || record.isMinimized || !record.description.bounds.Contains(screen)) continue;
    const std::pair<bool, std::uint64_t> rank{record.description.style.Has(kWindowStyle_Topmost), window.raisedAt};
    if (!best || rank > bestRank) {
      best = HandleOf(number);
      bestRank = rank;
    }
  }
  return best;
}

void HeadlessBackend::State::Queue(ui::OS_Event event, std::optional<std::set<std::uint32_t>> keys) {
  event.time = clock;
  events.push_back({std::move(event), std::move(keys)});
}

// Windows.

HWND HeadlessBackend::CreateNativeWindow(const WindowDescription& description) {
  const std::uintptr_t number = mState->nextWindow++;
  HeadlessWindow& window = mState->windows[number];
  window.record.description = description;
  window.raisedAt = mState->nextRaise++;
  return HandleOf(number);
}

void HeadlessBackend::DestroyNativeWindow(HWND window) {
  if (!mState->windows.erase(HandleNumber(window))) return;
  // Its child surfaces go with it, as native children do.
  std::erase_if(mState->surfaces, [window](const auto& entry) { return entry.second.parent == window; });
  // A window that is gone hears nothing more, and holds neither focus nor capture.
  std::erase_if(mState->events, [window](const State::QueuedEvent& queued) { return queued.event.window == window; });
  if (mState->focus == window) mState->focus = nullptr;
  if (mState->capture == window) mState->capture = nullptr;
  if (mState->pointerWindow == window) mState->pointerWindow = nullptr;
  if (mState->dragWindow == window) mState->dragWindow = nullptr;
}

void HeadlessBackend::ShowNativeWindow(HWND window, bool show, bool activate) {
  HeadlessWindow* found = mState->Find(window);
  if (!found) return;
  found->record.isShown = show;
  if (show) {
    found->record.isMinimized = false;
    found->raisedAt = mState->nextRaise++;
    if (activate && !found->record.description.style.Has(kWindowStyle_NoActivate)) FocusNativeWindow(window);
    return;
  }
  if (mState->focus == window) FocusNativeWindow(nullptr);
  if (mState->capture == window) ReleaseCapture();
}

void HeadlessBackend::SetNativeWindowBounds(HWND window, const Rect& bounds) {
  if (HeadlessWindow* found = mState->Find(window)) found->record.description.bounds = bounds;
}

Rect HeadlessBackend::GetNativeWindowBounds(HWND window) const {
  const HeadlessWindow* found = mState->Find(window);
  return found ? found->record.description.bounds : Rect{};
}

void HeadlessBackend::SetNativeWindowTitle(HWND window, std::string_view utf8) {
  if (HeadlessWindow* found = mState->Find(window)) found->record.description.title = std::string(utf8);
}

void HeadlessBackend::MinimizeNativeWindow(HWND window) {
  HeadlessWindow* found = mState->Find(window);
  if (!found) return;
  found->record.isMinimized = true;
  if (mState->focus == window) FocusNativeWindow(nullptr);
}

void HeadlessBackend::SetNativeWindowEnabled(HWND window, bool enabled) {
  if (HeadlessWindow* found = mState->Find(window)) found->record.description.style.Set(kWindowStyle_Disabled, !enabled);
}

void HeadlessBackend::SetNativeWindowAlpha(HWND window, float alpha) {
  if (HeadlessWindow* found = mState->Find(window)) found->record.description.alpha = alpha;
}

void HeadlessBackend::FocusNativeWindow(HWND window) {
  if (window && !mState->Find(window)) return;
  if (window == mState->focus) return;
  if (mState->focus) mState->Queue(MakeWindowEvent(ui::OS_Event::Type::WindowFocusOut, mState->focus));
  mState->focus = window;
  if (window) mState->Queue(MakeWindowEvent(ui::OS_Event::Type::WindowFocusIn, window));
}

HWND HeadlessBackend::GetFocusedNativeWindow() const { return mState->focus; }

void HeadlessBackend::PresentPixels(HWND window, const drawbot::Image& pixels, const Rect& changed) {
  HeadlessWindow* found = mState->Find(window);
  if (!found) return;
  found->record.pixels = pixels;
  found->record.lastPresented = changed;
  ++found->record.presentCount;
}

const HeadlessBackend::WindowRecord* HeadlessBackend::FindWindow(HWND window) const {
  const HeadlessWindow* found = mState->Find(window);
  return found ? &found->record : nullptr;
}

std::vector<HWND> HeadlessBackend::GetWindowStack() const {
  std::vector<std::pair<std::pair<bool, std::uint64_t>, HWND>> ranked;
  for (const auto& [number, window] : mState->windows) {
    ranked.push_back({{window.record.description.style.Has(kWindowStyle_Topmost), window.raisedAt}, HandleOf(number)});
  }
  std::sort(ranked.begin(), ranked.end());
  std::vector<HWND> stack;
  for (const auto& entry : ranked) stack.push_back(entry.second);
  return stack;
}

drawbot::Image HeadlessBackend::GetWindowImage(HWND window) const {
  const HeadlessWindow* found = mState->Find(window);
  return found ? found->record.pixels : drawbot::Image();
}

krocore::utility::Result<void> HeadlessBackend::WriteWindowPNG(HWND window, const std::filesystem::path& path) const {
  const HeadlessWindow* found = mState->Find(window);
  if (!found) return krocore::utility::Result<void>::Failure("No such headless window");
  if (!found->record.pixels.IsValid()) {
    return krocore::utility::Result<void>::Failure("The window has not been painted yet");
  }
  return drawbot::WritePNG(found->record.pixels, path);
}

// Pointer, desktop and clipboard.

void HeadlessBackend::SetCursor(ui::CursorPtr cursor) {
  mState->cursor = std::move(cursor);
  ++mState->cursorChanges;
}

ui::CursorPtr HeadlessBackend::GetCurrentCursor() const { return mState->cursor; }

std::size_t HeadlessBackend::GetCursorChangeCount() const { return mState->cursorChanges; }

void HeadlessBackend::SetCursorVisible(bool visible) { mState->isCursorVisible = visible; }

bool HeadlessBackend::IsCursorVisible() const { return mState->isCursorVisible; }

void HeadlessBackend::SetCapture(HWND window) {
  if (window && !mState->Find(window)) return;
  const HWND previous = std::exchange(mState->capture, window);
  if (previous && previous != window) mState->Queue(MakeWindowEvent(ui::OS_Event::Type::CaptureLost, previous));
}

void HeadlessBackend::ReleaseCapture() { mState->capture = nullptr; }

HWND HeadlessBackend::GetCapture() const { return mState->capture; }

Point HeadlessBackend::GetCursorPosition() const { return mState->pointer; }

std::vector<MonitorInfo> HeadlessBackend::GetMonitors() const { return mState->monitors; }

void HeadlessBackend::SetMonitors(std::vector<MonitorInfo> monitors) {
  if (!KROCORE_ASSERT(!monitors.empty(), "HeadlessBackend: a desktop has at least one monitor")) return;
  for (std::size_t i = 0; i < monitors.size(); ++i) monitors[i].isPrimary = i == 0;
  mState->monitors = std::move(monitors);
}

std::string HeadlessBackend::GetClipboardText() const { return mState->clipboard; }

void HeadlessBackend::SetClipboardText(std::string_view utf8) { mState->clipboard = std::string(utf8); }

// The clock and waiting.

std::int64_t HeadlessBackend::GetTimeMs() const { return mState->clock; }

void HeadlessBackend::AdvanceClock(std::int64_t ms) {
  if (!KROCORE_ASSERT(ms >= 0, "HeadlessBackend: the clock does not run backwards")) return;
  mState->clock += ms;
}

WaitResult HeadlessBackend::WaitForEvent(ui::OS_Event& event, std::optional<std::int64_t> timeoutMs) {
  if (!mState->events.empty()) {
    State::QueuedEvent& next = mState->events.front();
    event = std::move(next.event);
    mState->eventKeysDown = std::move(next.keysDown);
    mState->events.pop_front();
    return WaitResult::Event;
  }
  mState->eventKeysDown.reset();
  const bool woken = mState->woken.exchange(false);
  if (woken || krocore::threads::MainThreadQueue::Instance().PendingCount() > 0) return WaitResult::Woken;
  // Nothing scripted can arrive while waiting: a wait with an end jumps to it, one without never ends.
  if (!timeoutMs) return WaitResult::NoMoreEvents;
  mState->clock += std::max<std::int64_t>(0, *timeoutMs);
  return WaitResult::Timeout;
}

void HeadlessBackend::WakeUp() { mState->woken = true; }

void HeadlessBackend::PostEvent(const ui::OS_Event& event) { mState->events.push_back({event, std::nullopt}); }

std::size_t HeadlessBackend::GetPendingEventCount() const { return mState->events.size(); }

} // namespace kroui::backend
