#pragma once

#include <kroui/Export.h>
#include <kroui/Forward.h>
#include <kroui/backend/BackendTypes.h>
#include <kroui/base/Cursor.h>
#include <kroui/base/MessageBoxRequest.h>
#include <kroui/base/ModifierKeys.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kroui::backend {

/// The one place where kroui reaches an operating system. Everything above it
/// asks the current backend, so the same code runs on a screen or headless:
///
///   kroui::utility::GetCurrentModKeys()  --+
///   kroui::ui::ShowMessageBox(...)       --+
///   kroui::ui::UI_Window (windows, pixels)--+-->  GetBackend()  -->  HeadlessBackend (tests, offscreen)
///   kroui::ui::EventLoop (events, clock)  --+                        or a backend with real windows
///
/// A backend has top-level windows named by HWND, presents finished pixels
/// into them, and is the event loop's source of events and of time. Window
/// operations given a handle the backend does not know do nothing.
///
/// Only the first four operations are required. The others default to a
/// backend without a window system: no window can be made (CreateNativeWindow
/// answers null), no monitor or clipboard exists, the clock is the steady
/// clock and waiting sleeps until woken or timed out; every backend with
/// screens overrides them all. Used on the UI thread only, except WakeUp.
class KROUI_API Backend {
public:
  virtual ~Backend();
  Backend(const Backend&) = delete;
  Backend& operator=(const Backend&) = delete;

  /// The name KRO_BACKEND selects it by ("headless").
  virtual std::string_view GetName() const = 0;

  /// The modifier keys held now: kModKey_Shift, kModKey_Control, kModKey_Alt.
  virtual ui::ModifierKeys GetModifierState() const = 0;

  /// Whether the key with this virtual key (see KeyboardCode) is held now. A
  /// generic modifier (Shift 0x10, Ctrl 0x11, Alt 0x12) is held when either of its sides is.
  virtual bool IsKeyDown(std::uint32_t virtualKey) const = 0;

  /// Shows a modal message box and returns the button that closed it. The
  /// request's type always names an existing button set.
  virtual int ShowMessageBox(const ui::MessageBoxRequest& request) = 0;

  // Top-level windows. Bounds are the client area in screen coordinates.
  /// Null when no window can be made.
  virtual HWND CreateNativeWindow(const WindowDescription& description);
  virtual void DestroyNativeWindow(HWND window);
  /// Shows (activating it unless its style says not to, or `activate` is false) or hides.
  virtual void ShowNativeWindow(HWND window, bool show, bool activate);
  virtual void SetNativeWindowBounds(HWND window, const Rect& bounds);
  virtual Rect GetNativeWindowBounds(HWND window) const;
  virtual void SetNativeWindowTitle(HWND window, std::string_view utf8);
  virtual void MinimizeNativeWindow(HWND window);
  virtual void SetNativeWindowEnabled(HWND window, bool enabled);
  /// The opacity of a layered window, 0 to 1.
  virtual void SetNativeWindowAlpha(HWND window, float alpha);
  /// Gives the window the keyboard focus (activates it).
  virtual void FocusNativeWindow(HWND window);
  virtual HWND GetFocusedNativeWindow() const;
  /// Shows finished pixels: `pixels` covers the whole client area, `changed` is the part that differs.
  virtual void PresentPixels(HWND window, const drawbot::Image& pixels, const Rect& changed);

  // Top-level windows as a window manager sees them: owners, minimised and
  // enabled state, and the list of the process's windows (what a dialog
  // disables while it runs).
  /// Un-minimises the window and activates it, unless its style says not to.
  virtual void RestoreNativeWindow(HWND window);
  virtual bool IsNativeWindowMinimized(HWND window) const;
  virtual bool IsNativeWindowEnabled(HWND window) const;
  /// The window this one was made owned by (WindowDescription::owner), while
  /// that one lives; null otherwise.
  virtual HWND GetNativeWindowOwner(HWND window) const;
  /// Every top-level window of the process, the top of the stack first.
  virtual std::vector<HWND> GetTopLevelWindows() const;

  // Child surfaces: native windows inside a top-level window, for content
  // others draw (video, web). Bounds are in the parent's client coordinates;
  // a surface is made hidden, opaque and unclipped, and goes with its parent.
  /// Null when no surface can be made (the default).
  virtual HWND CreateChildSurface(HWND parent, const Rect& bounds, bool gpuAccelerated);
  virtual void DestroyChildSurface(HWND surface);
  /// Moves the surface into another top-level window; false when either is gone.
  virtual bool SetChildSurfaceParent(HWND surface, HWND parent);
  virtual void SetChildSurfaceBounds(HWND surface, const Rect& bounds);
  virtual void ShowChildSurface(HWND surface, bool show);
  /// 0 to 1.
  virtual void SetChildSurfaceOpacity(HWND surface, float opacity);
  /// Whether the parent window's other content over the surface clips it.
  virtual void SetChildSurfaceClipping(HWND surface, bool clipped);

  // Pointer.
  /// Null shows the system arrow.
  virtual void SetCursor(ui::CursorPtr cursor);
  /// Hides or shows the pointer over every window; kroui counts nested hides before asking.
  virtual void SetCursorVisible(bool visible);
  /// Sends every pointer event to `window` until released, wherever the pointer is.
  virtual void SetCapture(HWND window);
  virtual void ReleaseCapture();
  virtual HWND GetCapture() const;
  /// Where the pointer is, in screen coordinates.
  virtual Point GetCursorPosition() const;

  // The desktop.
  /// Every display; the primary one first.
  virtual std::vector<MonitorInfo> GetMonitors() const;
  virtual std::string GetClipboardText() const;
  virtual void SetClipboardText(std::string_view utf8);

  // Events and time.
  /// The event loop's clock, in milliseconds from an arbitrary start.
  virtual std::int64_t GetTimeMs() const;
  /// Takes the next event into `event`, waiting up to `timeoutMs` (forever
  /// when empty) for one to arrive. Returns early, with Woken, after WakeUp.
  virtual WaitResult WaitForEvent(ui::OS_Event& event, std::optional<std::int64_t> timeoutMs);
  /// Ends a WaitForEvent in progress, or the next one. Any thread.
  virtual void WakeUp();

protected:
  Backend();

private:
  struct WaitState;
  std::unique_ptr<WaitState> mWaitState;
};

/// The current backend; the headless one is made on first use when none was set.
KROUI_API Backend& GetBackend();

/// Replaces the current backend, destroying the previous one. Null drops it,
/// so that the next GetBackend() makes a fresh default. The event loop's
/// timers and quit request go with it: they were set on the old backend's clock.
KROUI_API void SetBackend(std::unique_ptr<Backend> backend);

/// What GetBackend makes when no backend is set. The headless backend, a
/// level above and compiled into kroui, installs itself as it when the
/// library loads, so that the backend need not know it.
using DefaultBackendMaker = std::unique_ptr<Backend> (*)();
KROUI_API void SetDefaultBackendMaker(DefaultBackendMaker maker) noexcept;

/// What SetBackend calls before the previous backend goes. The event loop, a
/// level above, installs it to let go of what it made on that backend (timers
/// on its clock, a tooltip window), so that the backend need not know it.
using BackendReplacingHook = void (*)();
KROUI_API void SetBackendReplacingHook(BackendReplacingHook hook) noexcept;

/// Counts replacements of the backend, so that a window can tell whether the
/// backend that made its handle is still the current one.
KROUI_API std::uint64_t GetBackendGeneration() noexcept;

} // namespace kroui::backend
