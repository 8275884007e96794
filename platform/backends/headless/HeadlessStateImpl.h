#pragma once

// Private: what a headless backend holds.

#include <backends/headless/HeadlessBackend.h>

#include <atomic>
#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace kroui::backend {

struct HeadlessWindow {
  HeadlessBackend::WindowRecord record;
  std::uint64_t raisedAt = 0; ///< higher: nearer the top of its layer
};

struct HeadlessBackend::State {
  // Keyboard and message boxes.
  std::set<std::uint32_t> keysDown;
  std::deque<int> answers;
  std::vector<ui::MessageBoxRequest> shown;

  // Windows, by the number their handle carries.
  std::map<std::uintptr_t, HeadlessWindow> windows;
  /// Child surfaces share the numbering, so that no handle names both kinds.
  std::map<std::uintptr_t, ChildSurfaceRecord> surfaces;
  std::uintptr_t nextWindow = 1;
  std::uint64_t nextRaise = 1;
  HWND focus = nullptr;
  HWND capture = nullptr;

  // The desktop.
  std::vector<MonitorInfo> monitors;
  ui::CursorPtr cursor;
  std::size_t cursorChanges = 0;
  bool isCursorVisible = true;
  std::string clipboard;

  // Input and time. A scripted key event carries the keys held while it is
  // handled; taking it makes them the live state until the queue runs dry.
  struct QueuedEvent {
    ui::OS_Event event;
    std::optional<std::set<std::uint32_t>> keysDown;
  };
  std::deque<QueuedEvent> events;
  std::optional<std::set<std::uint32_t>> eventKeysDown;
  std::int64_t clock = 0;
  std::atomic<bool> woken{false};
  Point pointer;
  HWND pointerWindow = nullptr; ///< the window the pointer was last over
  std::set<ui::PointerEvent::Button> buttonsDown;
  ui::PointerEvent::Button lastPressButton = ui::PointerEvent::Button::None;
  std::int64_t lastPressTime = 0;
  Point lastPressPoint;
  std::uint8_t clickCount = 0;
  std::shared_ptr<ui::DragSession> drag;
  HWND dragWindow = nullptr;

  State();
  /// The keys held as the event being handled sees them.
  const std::set<std::uint32_t>& LiveKeys() const { return eventKeysDown ? *eventKeysDown : keysDown; }
  bool IsHeld(ui::KeyboardCode key) const { return LiveKeys().contains(key.GetControlCode(false)); }
  HeadlessWindow* Find(HWND window);
  const HeadlessWindow* Find(HWND window) const;
  ChildSurfaceRecord* FindSurface(HWND surface);
  /// The shown, not minimised window at a screen point, topmost first.
  HWND WindowAt(Point screen) const;
  /// Queues an event stamped with the clock.
  void Queue(ui::OS_Event event, std::optional<std::set<std::uint32_t>> keys = std::nullopt);
};

/// An event about a window as a whole (focus, capture, close).
inline ui::OS_Event MakeWindowEvent(ui::OS_Event::Type type, HWND window) {
  ui::OS_Event event;
  event.type = type;
  event.window = window;
  return event;
}

inline std::uintptr_t HandleNumber(HWND window) { return reinterpret_cast<std::uintptr_t>(window); }
inline HWND HandleOf(std::uintptr_t number) { return reinterpret_cast<HWND>(number); }

} // namespace kroui::backend
