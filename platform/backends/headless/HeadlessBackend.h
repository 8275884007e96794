#pragma once

#include <kroui/Export.h>
#include <kroui/backend/Backend.h>
#include <kroui/base/KeyboardCode.h>
#include <kroui/base/OS_Event.h>
#include <kroui/drawbot/Image.h>

#include <krocore/utility/Result.h>

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string_view>
#include <vector>

namespace kroui::backend {

/// The backend with no screen and no keyboard: what tests and offscreen runs
/// use. Its input is scripted: keys are pressed and released by calls, and each
/// message box is recorded and answered with a queued button, or, with none
/// queued, with its default button, as if the user pressed Enter.
///
/// Windows are images: what the event loop presents is kept per window and
/// can be written as PNG. Monitors are set by the test. Cursor, capture,
/// focus and clipboard are recorded in memory. The clock is virtual: it moves
/// only when a test advances it, or when the event loop waits with a timeout
/// (the wait jumps straight to its end). Scripted pointer and keyboard input
/// is queued as OS_Events and reaches the windows through the event loop,
/// the path a backend with real windows uses:
///
///   MoveMouseTo / PressButton / TypeKey --> event queue --> EventLoop --> UI_Window --> nodes
class KROUI_API HeadlessBackend final : public Backend {
public:
  /// Presses of the same button closer than this in time (ms) and distance (px) count up the click count.
  static constexpr std::int64_t kMultiClickTimeMs = 500;
  static constexpr int kMultiClickDistance = 4;

  /// What a headless window is.
  struct WindowRecord {
    WindowDescription description;
    bool isShown = false;
    bool isMinimized = false;
    drawbot::Image pixels;
    Rect lastPresented;
    std::size_t presentCount = 0;
  };

  /// What a headless child surface is.
  struct ChildSurfaceRecord {
    HWND parent = nullptr;
    /// In the parent's client coordinates.
    Rect bounds;
    bool isGPUAccelerated = false;
    bool isShown = false;
    float opacity = 1.f;
    bool isClipped = false;
  };

  HeadlessBackend();
  ~HeadlessBackend() override;

  /// Makes a fresh headless backend current and returns it.
  static HeadlessBackend& Install();

  std::string_view GetName() const override;
  ui::ModifierKeys GetModifierState() const override;
  bool IsKeyDown(std::uint32_t virtualKey) const override;
  int ShowMessageBox(const ui::MessageBoxRequest& request) override;

  HWND CreateNativeWindow(const WindowDescription& description) override;
  void DestroyNativeWindow(HWND window) override;
  void ShowNativeWindow(HWND window, bool show, bool activate) override;
  void SetNativeWindowBounds(HWND window, const Rect& bounds) override;
  Rect GetNativeWindowBounds(HWND window) const override;
  void SetNativeWindowTitle(HWND window, std::string_view utf8) override;
  void MinimizeNativeWindow(HWND window) override;
  void SetNativeWindowEnabled(HWND window, bool enabled) override;
  void SetNativeWindowAlpha(HWND window, float alpha) override;
  void FocusNativeWindow(HWND window) override;
  HWND GetFocusedNativeWindow() const override;
  void PresentPixels(HWND window, const drawbot::Image& pixels, const Rect& changed) override;
  void RestoreNativeWindow(HWND window) override;
  bool IsNativeWindowMinimized(HWND window) const override;
  bool IsNativeWindowEnabled(HWND window) const override;
  HWND GetNativeWindowOwner(HWND window) const override;
  std::vector<HWND> GetTopLevelWindows() const override;
  HWND CreateChildSurface(HWND parent, const Rect& bounds, bool gpuAccelerated) override;
  void DestroyChildSurface(HWND surface) override;
  bool SetChildSurfaceParent(HWND surface, HWND parent) override;
  void SetChildSurfaceBounds(HWND surface, const Rect& bounds) override;
  void ShowChildSurface(HWND surface, bool show) override;
  void SetChildSurfaceOpacity(HWND surface, float opacity) override;
  void SetChildSurfaceClipping(HWND surface, bool clipped) override;
  void SetCursor(ui::CursorPtr cursor) override;
  void SetCursorVisible(bool visible) override;
  void SetCapture(HWND window) override;
  void ReleaseCapture() override;
  HWND GetCapture() const override;
  Point GetCursorPosition() const override;
  std::vector<MonitorInfo> GetMonitors() const override;
  std::string GetClipboardText() const override;
  void SetClipboardText(std::string_view utf8) override;
  std::int64_t GetTimeMs() const override;
  WaitResult WaitForEvent(ui::OS_Event& event, std::optional<std::int64_t> timeoutMs) override;
  void WakeUp() override;

  /// Holds a key down. A generic Ctrl or Alt is held on the side its extended
  /// bit names (set: right), a generic Shift on the left, as a PC keyboard sends them.
  void PressKey(ui::KeyboardCode key);
  void ReleaseKey(ui::KeyboardCode key);
  /// Holds exactly these of Shift, Ctrl and Alt: a modifier not held yet goes
  /// down on the left, one not in `modifiers` is released on both sides.
  void SetModifiers(ui::ModifierKeys modifiers);
  void ReleaseAllKeys();

  /// The button the next message box answers with; answers are used in the order queued.
  void QueueMessageBoxAnswer(int button);
  std::size_t GetQueuedAnswerCount() const;
  /// Every message box shown, oldest first.
  std::span<const ui::MessageBoxRequest> GetShownMessageBoxes() const;

  // Windows as tests see them.
  /// Null for a handle that is not a live window.
  const WindowRecord* FindWindow(HWND window) const;
  /// The live windows, bottom of the stack first (topmost windows above the others).
  std::vector<HWND> GetWindowStack() const;
  /// The pixels last presented to the window (invalid before the first present).
  drawbot::Image GetWindowImage(HWND window) const;
  /// Null for a handle that is not a live child surface.
  const ChildSurfaceRecord* FindChildSurface(HWND surface) const;
  /// The live child surfaces of a window, oldest first.
  std::vector<HWND> GetChildSurfaces(HWND window) const;
  krocore::utility::Result<void> WriteWindowPNG(HWND window, const std::filesystem::path& path) const;

  // The desktop.
  /// Replaces the monitors; the first is the primary one. An empty list is refused.
  void SetMonitors(std::vector<MonitorInfo> monitors);
  ui::CursorPtr GetCurrentCursor() const;
  std::size_t GetCursorChangeCount() const;
  bool IsCursorVisible() const;

  // The clock.
  void AdvanceClock(std::int64_t ms);

  // Scripted input, queued for the event loop. Positions are on the screen
  // unless a window is named; the window under the pointer (or the one with
  // the capture) receives pointer events, the focused window keyboard events.
  void MoveMouseTo(Point screen);
  void MoveMouseTo(HWND window, Point client);
  /// Pressing activates the window under the pointer, as clicking does.
  void PressButton(ui::PointerEvent::Button button = ui::PointerEvent::Button::Left);
  void ReleaseButton(ui::PointerEvent::Button button = ui::PointerEvent::Button::Left);
  void Click(ui::PointerEvent::Button button = ui::PointerEvent::Button::Left);
  void Wheel(int deltaX, int deltaY, bool precise = false);
  void Magnify(float magnification);
  void Rotate(float degrees);
  void Pan(Point delta);
  void EndGesture();
  void SendKeyDown(ui::KeyboardCode key, ui::ModifierKeys modifiers = {}, bool autoRepeat = false);
  void SendKeyUp(ui::KeyboardCode key, ui::ModifierKeys modifiers = {});
  /// A key typed with modifiers held: key down (and the character it types,
  /// when it types one without Ctrl or Alt), then key up. The modifiers are
  /// held for its duration, as the modifier state reports, without key events of their own.
  void TypeKey(ui::KeyboardCode key, ui::ModifierKeys modifiers = {});
  /// Each character as character input, as an input method sends composed text.
  void TypeText(std::u32string_view text);
  /// Starts dragging `data` at the pointer; returns the session the windows answer into.
  std::shared_ptr<ui::DragSession> BeginDrag(ui::DataObject data, int allowedEffects);
  /// Moves the drag to a screen point (DragEnter, DragOver or DragLeave as windows are crossed).
  void DragTo(Point screen);
  void Drop();
  void CancelDrag();
  /// The user asks to close the window (its close box).
  void RequestClose(HWND window);
  /// The user moves or resizes the window: its bounds change and the window hears of it.
  void UserSetWindowBounds(HWND window, const Rect& bounds);
  void PostQuit();
  /// Queues any event as is.
  void PostEvent(const ui::OS_Event& event);
  std::size_t GetPendingEventCount() const;

  /// All keys up, no message box recorded, no answer queued, no window, no
  /// event queued, one 1920x1080 monitor, the clock at 0.
  void Reset();

private:
  struct State;

  ui::OS_Event MakePointerEvent(ui::OS_Event::Type type, HWND window) const;
  HWND PointerTargetWindow() const;
  void QueueGesture(ui::OS_Event::Type type, const std::function<void(ui::OS_Event&)>& fill);
  void QueueKey(const ui::KeyboardEvent& key, std::optional<std::set<std::uint32_t>> held);
  void QueueDrag(ui::OS_Event::Type type, HWND window);

  std::unique_ptr<State> mState;
};

} // namespace kroui::backend
