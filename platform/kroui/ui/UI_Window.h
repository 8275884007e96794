#pragma once

#include <kroui/Export.h>
#include <kroui/Forward.h>
#include <kroui/backend/BackendTypes.h>
#include <kroui/base/KeyboardEvent.h>
#include <kroui/base/OS_Event.h>
#include <kroui/drawbot/DrawTypes.h>
#include <kroui/drawbot/Image.h>
#include <kroui/ui/UI_Container.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>

namespace kroui::ui {

/// A top-level window: a backend window, the root container of a node tree,
/// the window's invalid region, and who has the focus, the capture and the pointer.
///
/// Road of a keystroke through a window:
///
///   OS_Event --> event hook (raw, first look)
///            --> pre-dispatch hook    (the framework's shortcut pre-dispatch)   true: done
///            --> focused node's KeyDownSelf / KeyUpSelf / CharacterInputSelf  true: done
///            --> the same hook of each parent in turn, up to the root          true: done
///            --> post-dispatch hook   (the framework's shortcut dispatch)       true: done
///            --> Tab / Shift+Tab moves the focus along the chain
///
/// Pointer events hit-test from the root (or go to the capturing node) and
/// bubble to parents while hooks return false. Invalidation is merged into a
/// few rectangles; the event loop paints them into the window's raster
/// surface and presents the pixels through the backend.
///
/// The window's parts, each in its own private class:
///
///   UI_Window (this front: the backend window, its bounds, style and hooks)
///     UI_WindowImpl        the state, held by one pointer
///       WindowInputRouter  pointer, key and drag dispatch, capture, hover,
///                          cursor, focus and the Tab chain (WindowToolTip: the tooltip)
///       WindowPainter      the invalid region, the raster surface, painting, presenting
///
/// The window owns its root; the creator owns the window. UI thread only.
class KROUI_API UI_Window {
public:
  using KeyboardHook = std::function<bool(const KeyboardEvent&)>;
  using EventHook = std::function<bool(const OS_Event&)>;
  using CloseHook = std::function<void(UI_Window&)>;

  /// What a node left, for ForgetSubtree.
  enum class Forget : std::uint8_t { Removed, Hidden, Disabled };

  /// Makes the backend window (hidden until Show). Without one, IsCreated answers false.
  explicit UI_Window(const backend::WindowDescription& description);
  ~UI_Window();
  UI_Window(const UI_Window&) = delete;
  UI_Window& operator=(const UI_Window&) = delete;

  bool IsCreated() const noexcept;
  HWND GetNativeWindow() const noexcept;
  /// The window of a native handle, or null.
  static UI_Window* FromNativeWindow(HWND native);
  /// Every window alive, oldest first.
  static std::span<UI_Window* const> GetAllWindows();

  /// Fills the client area; its bounds are always 0,0 to the client size.
  UI_Container& GetRoot() const noexcept;

  // The backend window.
  void Show(bool activate = true);
  void Hide();
  bool IsShown() const noexcept;
  /// The client area in screen coordinates.
  backend::Rect GetBounds() const noexcept;
  void SetBounds(const backend::Rect& screenBounds);
  void Move(Point screenOrigin);
  void Resize(Extent extent);
  void SetTitle(std::string utf8);
  const std::string& GetTitle() const noexcept;
  backend::WindowStyle GetStyle() const noexcept;
  void Minimize();
  /// Un-minimises the window and activates it, unless its style says not to.
  void Restore();
  bool IsMinimized() const;
  /// The window this one stays above and is disabled with, while it lives; null for none.
  HWND GetOwner() const;
  /// Gives the window the keyboard focus.
  void Focus();
  /// Whether the window has the keyboard focus.
  bool IsActive() const noexcept;
  void SetEnabled(bool enabled);
  bool IsEnabled() const noexcept;
  void SetAlpha(float alpha);
  float GetAlpha() const noexcept;
  Point WindowToScreen(Point p) const noexcept;
  Point ScreenToWindow(Point p) const noexcept;

  // Hooks the framework installs.
  void SetKeyboardPreDispatchHook(KeyboardHook hook);
  void SetKeyboardPostDispatchHook(KeyboardHook hook);
  /// Sees every event of this window first; true consumes it.
  void SetEventHook(EventHook hook);
  /// Called when the user asks to close the window; without a hook the window hides.
  void SetCloseHook(CloseHook hook);

  // Invalidation and painting.
  /// Marks an area, in window coordinates, for the next paint.
  void InvalidateWindowRect(const Rect& area);
  /// The merged invalid region: a few disjoint-enough rectangles.
  std::span<const Rect> GetInvalidRects() const noexcept;
  bool NeedsPaint() const noexcept;
  /// Paints the invalid region now and presents it, after the layouts asked
  /// for meanwhile; does nothing when nothing is invalid or asked for.
  void PaintNow();
  /// Runs `node`'s LayoutSelf before the next paint (UI_Node::RequestLayout).
  void ScheduleLayout(UI_Node& node);
  /// Filled under the root before anything paints (opaque white by default).
  /// A translucent one is not blended: the window is painted whole from pixels
  /// set to it, so that a layer over other windows can be transparent.
  void SetBackgroundColor(const drawbot::ColorRGBA& color);
  /// How many paints ran, for tests and statistics.
  std::uint64_t GetPaintCount() const noexcept;
  /// The pixels as last painted (invalid before the first paint).
  drawbot::Image GetPixels() const;

  // Focus, capture, pointer.
  UI_Node* GetFocusedNode() const noexcept;
  /// Moves the focus (null: nobody). False when `node` cannot take it: not in
  /// this window, hidden or disabled.
  bool SetFocusedNode(UI_Node* node);
  /// Moves the focus along the Tab chain; false when no node takes it.
  bool AdvanceFocus(bool forward);
  UI_Node* GetCaptureNode() const noexcept;
  bool SetCaptureNode(UI_Node* node);
  /// The deepest node under the pointer, as last seen.
  UI_Node* GetHoverNode() const noexcept;
  /// The node whose tooltip is showing or waiting for its delay; null for none.
  UI_Node* GetToolTipNode() const noexcept;

  /// Handles one event the backend addressed to this window.
  void DispatchEvent(const OS_Event& event);

  /// Drops every reference to `node` and its descendants (focus, capture,
  /// pointer, drag target, tooltip) before the subtree leaves, hides or is disabled.
  void ForgetSubtree(UI_Node& node, Forget why);

private:
  void HandleWindowEvent(const OS_Event& event);
  void SetScreenBounds(const backend::Rect& bounds);

  std::unique_ptr<UI_WindowImpl> mImpl;
};

} // namespace kroui::ui
