#pragma once

#include <kroui/Export.h>
#include <kroui/base/DataObject.h>
#include <kroui/base/KeyboardEvent.h>
#include <kroui/base/PointerEvent.h>
#include <kroui/os/NativeTypes.h>

#include <cstdint>
#include <memory>

namespace kroui::ui {

/// One drag over kroui's windows, from its first DragEnter to its Drop or
/// DragLeave. The backend makes it and sends it along with each drag event;
/// the window writes the target's answers into it.
struct DragSession {
  DataObject data;
  /// What the source allows (kDropEffect_ bits).
  int allowedEffects = kDropEffect_Copy | kDropEffect_Move;
  /// What the node under the pointer answered last; kDropEffect_None refuses.
  int acceptedEffect = kDropEffect_None;
  /// Whether the node dropped on took the data.
  bool isDropAccepted = false;
};

/// One event as a backend delivers it, already in kroui's terms: what
/// happened, to which top-level window, where (in the window's client
/// coordinates and on the screen) and with what. Every backend produces these
/// and the event loop hands them to the window they name:
///
///   backend (SDL, headless script) --OS_Event--> EventLoop::DispatchEvent
///       --> message filter (sees it as MSG) --> UI_Window::DispatchEvent --> nodes
struct OS_Event {
  enum class Type : std::uint32_t {
    None,
    // Pointer, in the window's client coordinates.
    MouseMove,
    MouseDown, ///< clickCount > 1 for a multi-click
    MouseUp,
    MouseWheel,
    MouseMagnify,
    MouseRotate,
    MousePan,
    MouseGestureEnd,
    MouseLeaveWindow,
    // Keyboard, to the window that has the keyboard focus.
    KeyDown,
    KeyUp,
    CharacterInput,
    // Drag and drop over a window.
    DragEnter,
    DragOver,
    DragLeave,
    Drop,
    // The window itself.
    WindowCloseRequest,
    WindowMoved,   ///< `bounds` holds the new client rectangle on the screen
    WindowResized, ///< likewise
    WindowFocusIn,
    WindowFocusOut,
    WindowExposed,
    CaptureLost,
    /// The application is asked to end (the last window closed, a signal).
    Quit,
  };

  Type type = Type::None;
  HWND window = nullptr;
  std::int64_t time = 0; ///< the event loop clock, in milliseconds
  Point position;
  Point screenPosition;
  PointerEvent::Button button = PointerEvent::Button::None;
  PointerEvent::SubType subType = PointerEvent::SubType::Mouse;
  bool isPrimary = true;
  bool isPreciseWheel = false;
  std::uint8_t clickCount = 0;
  ModifierKeys modifiers;
  int wheelDeltaX = 0;
  int wheelDeltaY = 0;
  float gestureValue = 0.f;
  Point panDelta;
  KeyboardEvent key;
  Rect bounds;
  /// The drag an event of the drag family belongs to; shared with the backend, which reads the answers.
  std::shared_ptr<DragSession> drag;

  bool IsPointer() const noexcept { return type >= Type::MouseMove && type <= Type::MouseLeaveWindow; }
  bool IsKeyboard() const noexcept { return type >= Type::KeyDown && type <= Type::CharacterInput; }
  bool IsDrag() const noexcept { return type >= Type::DragEnter && type <= Type::Drop; }
};

/// The event as the native message type that message filters take: `message`
/// is the event type, `wParam` the button or key code, `lParam` the position
/// packed as Windows packs it, `nativeEvent` the event itself.
KROUI_API MSG ToMSG(const OS_Event& event);

} // namespace kroui::ui
