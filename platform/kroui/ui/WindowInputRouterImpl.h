#pragma once

// Private: where a window's input goes.

#include <kroui/Forward.h>
#include <kroui/base/KeyboardEvent.h>
#include <kroui/base/PointerEvent.h>
#include <kroui/ui/UI_Window.h>
#include <kroui/ui/WindowToolTipImpl.h>

#include <cstdint>
#include <vector>

namespace kroui::ui {

/// Takes a window's pointer, keyboard and drag events to its nodes, and keeps
/// who has the focus, the capture and the pointer:
///
///   pointer --> the capturing node, else the deepest node hit --> its parents,
///               until a hook consumes it; moves update hover (enter, leave,
///               tooltip) and then the cursor
///   key     --> pre-dispatch hook --> focused node --> post-dispatch hook --> Tab
///   drag    --> the deepest node under the pointer that wants drag and drop
///
/// It holds nodes by plain pointer: the window forgets a subtree (ForgetSubtree)
/// before it leaves, hides or is disabled.
class WindowInputRouter {
public:
  /// `state` is the window's, which outlives the router.
  explicit WindowInputRouter(UI_WindowImpl& state);
  WindowInputRouter(const WindowInputRouter&) = delete;
  WindowInputRouter& operator=(const WindowInputRouter&) = delete;

  /// Routes a pointer, keyboard or drag event.
  void Dispatch(const OS_Event& event);

  // Focus and the Tab chain (WindowInputRouterFocus.cpp).
  UI_Node* GetFocusedNode() const noexcept { return mFocus; }
  bool SetFocusedNode(UI_Node* node);
  bool AdvanceFocus(bool forward);
  void SetKeyboardPreDispatchHook(UI_Window::KeyboardHook hook) { mPreDispatch = std::move(hook); }
  void SetKeyboardPostDispatchHook(UI_Window::KeyboardHook hook) { mPostDispatch = std::move(hook); }

  // Capture, hover, tooltip.
  UI_Node* GetCaptureNode() const noexcept { return mCapture; }
  bool SetCaptureNode(UI_Node* node);
  /// The backend took the capture away: the node loses it without a word.
  void DropCapture() noexcept { mCapture = nullptr; }
  UI_Node* GetHoverNode() const noexcept { return mHover.empty() ? nullptr : mHover.back(); }
  WindowToolTip& GetToolTip() noexcept { return mToolTip; }
  const WindowToolTip& GetToolTip() const noexcept { return mToolTip; }

  /// See UI_Window::ForgetSubtree.
  void ForgetSubtree(UI_Node& node, UI_Window::Forget why);

private:
  // Pointer (WindowInputRouter.cpp).
  void DispatchPointer(const OS_Event& event);
  void DispatchMove(const OS_Event& event);
  void DispatchButton(const OS_Event& event);
  void UpdateHover(UI_Node* hit, const PointerEvent& event);
  void LeaveAll();
  void UpdateCursor(const PointerEvent& event);
  UI_Node* PointerTarget(Point windowPoint) const;
  /// Offers the event to `target`, then its ancestors, until a hook consumes it (then mConsumer names it).
  bool Deliver(UI_Node* target, PointerEvent event);
  static bool CallPointerHook(UI_Node& node, const PointerEvent& event);
  static std::uint32_t PressedFlag(PointerEvent::Button button);
  void DispatchDrag(const OS_Event& event);
  bool IsOwnWindow(const UI_Node& node) const;

  // Keyboard (WindowInputRouterFocus.cpp).
  void DispatchKeyboard(const OS_Event& event);
  bool DeliverKey(const KeyboardEvent& event);
  static bool OfferKey(UI_Node& node, const KeyboardEvent& event);
  UI_Node* FocusScopeOf(UI_Node* node) const;
  static void CollectFocusChain(UI_Node& scope, std::vector<UI_Node*>& chain);

  UI_Window& mWindow;
  UI_WindowImpl& mState;
  UI_Node* mFocus = nullptr;
  UI_Node* mCapture = nullptr;
  std::vector<UI_Node*> mHover; ///< root first, deepest last
  UI_Node* mPressed[4] = {};    ///< by PointerEvent::Button
  UI_Node* mDragTarget = nullptr;
  UI_Node* mConsumer = nullptr;
  Point mLastPointer;
  bool mPointerInside = false;
  WindowToolTip mToolTip;
  UI_Window::KeyboardHook mPreDispatch;
  UI_Window::KeyboardHook mPostDispatch;
};

} // namespace kroui::ui
