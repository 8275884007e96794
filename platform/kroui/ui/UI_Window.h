#pragma once

#include <kroui/Export.h>
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
#include <vector>

namespace kroui::ui {

/// A top-level window: a backend window, the root container of a node tree,
/// the window's invalid region, and who has the focus, the capture and the pointer.
///
/// Road of a keystroke through a window:
///
///   OS_Event --> event hook (raw, first look)
///            --> pre-dispatch hook    (the framework's shortcut pre-dispatch)   true: done
///            --> focused node's KeyDownSelf / KeyUpSelf / CharacterInputSelf  true: done
///            --> post-dispatch hook   (the framework's shortcut dispatch)       true: done
///            --> Tab / Shift+Tab moves the focus along the chain
///
/// Pointer events hit-test from the root (or go to the capturing node) and
/// bubble to parents while hooks return false. Invalidation is merged into a
/// few rectangles; the event loop paints them into the window's raster
/// surface and presents the pixels through the backend.
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

  bool IsCreated() const noexcept { return mNative != nullptr; }
  HWND GetNativeWindow() const noexcept { return mNative; }
  /// The window of a native handle, or null.
  static UI_Window* FromNativeWindow(HWND native);
  /// Every window alive, oldest first.
  static std::span<UI_Window* const> GetAllWindows();

  /// Fills the client area; its bounds are always 0,0 to the client size.
  UI_Container& GetRoot() const noexcept { return *mRoot; }

  // The backend window.
  void Show(bool activate = true);
  void Hide();
  bool IsShown() const noexcept { return mIsShown; }
  /// The client area in screen coordinates.
  backend::Rect GetBounds() const noexcept { return mScreenBounds; }
  void SetBounds(const backend::Rect& screenBounds);
  void Move(Point screenOrigin);
  void Resize(Extent extent);
  void SetTitle(std::string utf8);
  const std::string& GetTitle() const noexcept { return mDescription.title; }
  backend::WindowStyle GetStyle() const noexcept { return mDescription.style; }
  void Minimize();
  /// Gives the window the keyboard focus.
  void Focus();
  /// Whether the window has the keyboard focus.
  bool IsActive() const noexcept { return mIsActive; }
  void SetEnabled(bool enabled);
  bool IsEnabled() const noexcept { return !mDescription.style.Has(backend::kWindowStyle_Disabled); }
  void SetAlpha(float alpha);
  float GetAlpha() const noexcept { return mDescription.alpha; }
  Point WindowToScreen(Point p) const noexcept { return p + mScreenBounds.Origin(); }
  Point ScreenToWindow(Point p) const noexcept { return p - mScreenBounds.Origin(); }

  // Hooks the framework installs.
  void SetKeyboardPreDispatchHook(KeyboardHook hook) { mPreDispatch = std::move(hook); }
  void SetKeyboardPostDispatchHook(KeyboardHook hook) { mPostDispatch = std::move(hook); }
  /// Sees every event of this window first; true consumes it.
  void SetEventHook(EventHook hook) { mEventHook = std::move(hook); }
  /// Called when the user asks to close the window; without a hook the window hides.
  void SetCloseHook(CloseHook hook) { mCloseHook = std::move(hook); }

  // Invalidation and painting.
  /// Marks an area, in window coordinates, for the next paint.
  void InvalidateWindowRect(const Rect& area);
  /// The merged invalid region: a few disjoint-enough rectangles.
  std::span<const Rect> GetInvalidRects() const noexcept { return mInvalid; }
  bool NeedsPaint() const noexcept { return !mInvalid.empty(); }
  /// Paints the invalid region now and presents it; does nothing when nothing is invalid.
  void PaintNow();
  /// Filled under the root before anything paints (opaque white by default).
  /// A translucent one is not blended: the window is painted whole from pixels
  /// set to it, so that a layer over other windows can be transparent.
  void SetBackgroundColor(const drawbot::ColorRGBA& color);
  /// How many paints ran, for tests and statistics.
  std::uint64_t GetPaintCount() const noexcept { return mPaintCount; }
  /// The pixels as last painted (invalid before the first paint).
  drawbot::Image GetPixels() const;

  // Focus, capture, pointer.
  UI_Node* GetFocusedNode() const noexcept { return mFocus; }
  /// Moves the focus (null: nobody). False when `node` cannot take it: not in
  /// this window, hidden or disabled.
  bool SetFocusedNode(UI_Node* node);
  /// Moves the focus along the Tab chain; false when no node takes it.
  bool AdvanceFocus(bool forward);
  UI_Node* GetCaptureNode() const noexcept { return mCapture; }
  bool SetCaptureNode(UI_Node* node);
  /// The deepest node under the pointer, as last seen.
  UI_Node* GetHoverNode() const noexcept { return mHover.empty() ? nullptr : mHover.back(); }
  /// The node whose tooltip is showing or waiting for its delay; null for none.
  UI_Node* GetToolTipNode() const noexcept { return mToolTipNode; }

  /// Handles one event the backend addressed to this window.
  void DispatchEvent(const OS_Event& event);

  /// Drops every reference to `node` and its descendants (focus, capture,
  /// pointer, drag target, tooltip) before the subtree leaves, hides or is disabled.
  void ForgetSubtree(UI_Node& node, Forget why);

private:
  struct Surface;

  // Input (UI_WindowInput.cpp).
  void DispatchPointer(const OS_Event& event);
  void DispatchMove(const OS_Event& event);
  void DispatchButton(const OS_Event& event);
  void DispatchKeyboard(const OS_Event& event);
  void DispatchDrag(const OS_Event& event);
  void HandleWindowEvent(const OS_Event& event);
  void UpdateHover(UI_Node* hit, const PointerEvent& event);
  void LeaveAll();
  void UpdateCursor(const PointerEvent& event);
  UI_Node* PointerTarget(Point windowPoint) const;
  /// Offers the event to `target`, then its ancestors, until a hook consumes it (then mConsumer names it).
  bool Deliver(UI_Node* target, PointerEvent event);
  bool CallPointerHook(UI_Node& node, const PointerEvent& event);
  static std::uint32_t PressedFlag(PointerEvent::Button button);
  bool DeliverKey(const KeyboardEvent& event);

  // Focus and tooltips (UI_WindowFocus.cpp).
  void CollectFocusChain(UI_Node& scope, std::vector<UI_Node*>& chain) const;
  UI_Node* FocusScopeOf(UI_Node* node) const;
  bool Contains(const UI_Node& ancestor, const UI_Node* node) const;
  void StartToolTip(const PointerEvent& event);
  void CancelToolTip();
  void ShowToolTipNow();

  // Painting (UI_WindowPaint.cpp).
  void PaintInvalid();
  void ResizeRoot(Extent extent);

  void SetScreenBounds(const backend::Rect& bounds);
  bool IsBackendCurrent() const noexcept;

  backend::WindowDescription mDescription;
  HWND mNative = nullptr;
  std::uint64_t mBackendGeneration = 0;
  krocore::IntrusivePtr<UI_Container> mRoot;
  backend::Rect mScreenBounds;
  bool mIsShown = false;
  bool mIsActive = false;

  std::vector<Rect> mInvalid;
  std::unique_ptr<Surface> mSurface;
  drawbot::ColorRGBA mBackground{1.f, 1.f, 1.f, 1.f};
  std::uint64_t mPaintCount = 0;
  bool mIsPainting = false;

  UI_Node* mFocus = nullptr;
  UI_Node* mCapture = nullptr;
  std::vector<UI_Node*> mHover; ///< root first, deepest last
  UI_Node* mPressed[4] = {};    ///< by PointerEvent::Button
  UI_Node* mDragTarget = nullptr;
  UI_Node* mToolTipNode = nullptr;
  UI_Node* mConsumer = nullptr;
  Point mLastPointer;
  bool mPointerInside = false;

  KeyboardHook mPreDispatch;
  KeyboardHook mPostDispatch;
  EventHook mEventHook;
  CloseHook mCloseHook;
};

} // namespace kroui::ui
