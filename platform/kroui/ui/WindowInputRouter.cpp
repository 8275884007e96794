// WindowInputRouter: the road of pointer and drag events to nodes.

#include <kroui/ui/WindowInputRouterImpl.h>

#include <kroui/backend/Backend.h>
#include <kroui/ui/UI_NodeExtras.h>
#include <kroui/ui/UI_WindowImpl.h>
#include <kroui/utility/CursorDisplay.h>

#include <algorithm>

namespace kroui::ui {
namespace {

PointerEvent::Action ActionOf(OS_Event::Type type) {
  switch (type) {
  case OS_Event::Type::MouseMove: return PointerEvent::Action::Move;
  case OS_Event::Type::MouseDown: return PointerEvent::Action::Down;
  case OS_Event::Type::MouseUp: return PointerEvent::Action::Up;
  case OS_Event::Type::MouseWheel: return PointerEvent::Action::Wheel;
  case OS_Event::Type::MouseMagnify: return PointerEvent::Action::Magnify;
  case OS_Event::Type::MouseRotate: return PointerEvent::Action::Rotate;
  case OS_Event::Type::MousePan: return PointerEvent::Action::Pan;
  case OS_Event::Type::MouseGestureEnd: return PointerEvent::Action::GestureEnd;
  default: return PointerEvent::Action::None;
  }
}

PointerEvent MakePointerEvent(const OS_Event& event) {
  PointerEvent pointer;
  pointer.action = ActionOf(event.type);
  pointer.button = event.button;
  pointer.subType = event.subType;
  pointer.isPrimary = event.isPrimary;
  pointer.clickCount = event.clickCount;
  pointer.isPreciseWheel = event.isPreciseWheel;
  pointer.modifiers = event.modifiers;
  pointer.position = event.position;
  pointer.windowPosition = event.position;
  pointer.screenPosition = event.screenPosition;
  pointer.wheelDeltaX = event.wheelDeltaX;
  pointer.wheelDeltaY = event.wheelDeltaY;
  pointer.gestureValue = event.gestureValue;
  pointer.panDelta = event.panDelta;
  pointer.time = event.time;
  return pointer;
}

bool Contains(const UI_Node& ancestor, const UI_Node* node) {
  for (; node; node = node->GetParent()) {
    if (node == &ancestor) return true;
  }
  return false;
}

} // namespace

WindowInputRouter::WindowInputRouter(UI_WindowImpl& state)
    : mWindow(state.window), mState(state), mToolTip(state.window, mLastPointer) {}

std::uint32_t WindowInputRouter::PressedFlag(PointerEvent::Button button) {
  switch (button) {
  case PointerEvent::Button::Left: return UI_Node::kFlag_LeftDown;
  case PointerEvent::Button::Right: return UI_Node::kFlag_RightDown;
  case PointerEvent::Button::Middle: return UI_Node::kFlag_MiddleDown;
  default: return 0;
  }
}

bool WindowInputRouter::IsOwnWindow(const UI_Node& node) const { return node.GetWindow() == &mWindow; }

void WindowInputRouter::Dispatch(const OS_Event& event) {
  if (event.IsPointer()) {
    DispatchPointer(event);
  } else if (event.IsKeyboard()) {
    DispatchKeyboard(event);
  } else if (event.IsDrag()) {
    DispatchDrag(event);
  }
}

// Pointer.

UI_Node* WindowInputRouter::PointerTarget(Point windowPoint) const {
  return mCapture ? mCapture : mState.root->HitTest(windowPoint);
}

void WindowInputRouter::DispatchPointer(const OS_Event& event) {
  if (event.type == OS_Event::Type::MouseLeaveWindow) {
    mPointerInside = false;
    mToolTip.Cancel();
    if (!mCapture) LeaveAll();
    return;
  }
  if (event.type != OS_Event::Type::MouseGestureEnd) {
    mLastPointer = event.position;
    mPointerInside = true;
  }
  switch (event.type) {
  case OS_Event::Type::MouseMove: DispatchMove(event); break;
  case OS_Event::Type::MouseDown:
  case OS_Event::Type::MouseUp: DispatchButton(event); break;
  default:
    if (event.type == OS_Event::Type::MouseWheel) mToolTip.Cancel();
    Deliver(PointerTarget(event.position), MakePointerEvent(event));
    break;
  }
}

void WindowInputRouter::DispatchMove(const OS_Event& event) {
  const PointerEvent pointer = MakePointerEvent(event);
  // While a node holds the capture, the pointer stays "over" it: no enter or leave.
  if (!mCapture) UpdateHover(mState.root->HitTest(event.position), pointer);
  Deliver(PointerTarget(event.position), pointer);
  NotePointerMoved();
  UpdateCursor(pointer);
}

void WindowInputRouter::DispatchButton(const OS_Event& event) {
  mToolTip.Cancel();
  PointerEvent pointer = MakePointerEvent(event);
  UI_Node* target = PointerTarget(event.position);
  const auto button = static_cast<std::size_t>(event.button);
  if (event.type == OS_Event::Type::MouseUp) {
    Deliver(target, pointer);
    if (UI_Node* pressed = std::exchange(mPressed[button], nullptr)) pressed->SetFlag(PressedFlag(event.button), false);
    return;
  }
  UI_Node* consumer = nullptr;
  if (event.clickCount > 1) {
    pointer.action = PointerEvent::Action::MultiClick;
    consumer = Deliver(target, pointer) ? mConsumer : nullptr;
    pointer.action = PointerEvent::Action::Down;
  }
  if (!consumer && Deliver(target, pointer)) consumer = mConsumer;
  UI_Node* pressed = consumer ? consumer : target;
  if (pressed && IsOwnWindow(*pressed)) {
    if (mPressed[button]) mPressed[button]->SetFlag(PressedFlag(event.button), false);
    mPressed[button] = pressed;
    pressed->SetFlag(PressedFlag(event.button), true);
  }
}

bool WindowInputRouter::Deliver(UI_Node* target, PointerEvent event) {
  mConsumer = nullptr;
  for (UI_NodePtr node(target); node && IsOwnWindow(*node); node = UI_NodePtr(node->GetParent())) {
    // Events at a disabled node go nowhere, not to its parent.
    if (!node->IsEnabledThroughAncestors()) return false;
    PointerEvent local = event;
    local.position = node->WindowToLocal(event.windowPosition);
    if (local.subType == PointerEvent::SubType::Pen && !node->GetTabletPenEvents()) {
      local.subType = PointerEvent::SubType::Mouse;
    }
    if (!local.isPrimary && !node->GetDispatchNonPrimaryPointerEvents()) continue;
    if (!node->IsPointerEventHandled(local)) continue;
    if (CallPointerHook(*node, local)) {
      mConsumer = node.Get();
      return true;
    }
  }
  return false;
}

bool WindowInputRouter::CallPointerHook(UI_Node& node, const PointerEvent& event) {
  UI_NodeExtras& extras = node.Extras();
  extras.dispatchingSubType = event.subType;
  using Action = PointerEvent::Action;
  bool consumed = false;
  switch (event.action) {
  case Action::Down: extras.downPoint = event.position; consumed = node.MouseDownSelf(event); break;
  case Action::MultiClick: extras.downPoint = event.position; consumed = node.MouseMultiClickSelf(event); break;
  case Action::Up: extras.upPoint = event.position; consumed = node.MouseUpSelf(event); break;
  case Action::Move: extras.movePoint = event.position; consumed = node.MouseMoveSelf(event); break;
  case Action::Wheel: consumed = node.MouseWheelSelf(event); break;
  case Action::Magnify: consumed = node.MouseMagnifySelf(event); break;
  case Action::Rotate: consumed = node.MouseRotateSelf(event); break;
  case Action::Pan: consumed = node.MousePanSelf(event); break;
  case Action::GestureEnd: consumed = node.MouseGestureEndSelf(event); break;
  default: break;
  }
  if (node.mExtras) node.mExtras->dispatchingSubType = PointerEvent::SubType::Mouse;
  return consumed;
}

// Hover, cursor, capture.

void WindowInputRouter::UpdateHover(UI_Node* hit, const PointerEvent& event) {
  std::vector<UI_Node*> path;
  for (UI_Node* node = hit; node; node = node->GetParent()) path.push_back(node);
  std::reverse(path.begin(), path.end());
  std::size_t common = 0;
  while (common < path.size() && common < mHover.size() && path[common] == mHover[common]) ++common;
  if (common == path.size() && common == mHover.size()) return;
  const std::vector<UI_NodePtr> leaving(mHover.begin() + static_cast<std::ptrdiff_t>(common), mHover.end());
  const std::vector<UI_NodePtr> entering(path.begin() + static_cast<std::ptrdiff_t>(common), path.end());
  mHover = std::move(path);
  for (auto it = leaving.rbegin(); it != leaving.rend(); ++it) (*it)->MouseLeaveSelf();
  for (const UI_NodePtr& node : entering) {
    if (!IsOwnWindow(*node)) continue; // an earlier hook took it out
    PointerEvent local = event;
    local.action = PointerEvent::Action::Enter;
    local.position = node->WindowToLocal(event.windowPosition);
    node->MouseEnterSelf(local);
  }
  mToolTip.Start(mHover);
}

void WindowInputRouter::LeaveAll() {
  const std::vector<UI_NodePtr> leaving(mHover.begin(), mHover.end());
  mHover.clear();
  for (auto it = leaving.rbegin(); it != leaving.rend(); ++it) (*it)->MouseLeaveSelf();
}

void WindowInputRouter::UpdateCursor(const PointerEvent& event) {
  UI_Node* start = mCapture ? mCapture : GetHoverNode();
  for (UI_NodePtr node(start); node && IsOwnWindow(*node); node = UI_NodePtr(node->GetParent())) {
    PointerEvent local = event;
    local.position = node->WindowToLocal(event.windowPosition);
    if (node->SetCursorSelf(local)) return;
  }
  // A cursor set to stay (a tool's, a drag's) is not replaced by the arrow.
  const bool isButtonDown =
      std::any_of(std::begin(mPressed), std::end(mPressed), [](UI_Node* n) { return n != nullptr; });
  if (!IsCursorHeld(isButtonDown)) backend::GetBackend().SetCursor(nullptr);
}

bool WindowInputRouter::SetCaptureNode(UI_Node* node) {
  if (node && (!IsOwnWindow(*node) || !node->IsVisible())) return false;
  mCapture = node;
  const HWND native = mState.GetLiveNative();
  if (!native) return true;
  backend::Backend& backend = backend::GetBackend();
  if (node) {
    backend.SetCapture(native);
  } else {
    if (backend.GetCapture() == native) backend.ReleaseCapture();
    // What is under the pointer may have changed during the capture.
    if (mPointerInside) {
      PointerEvent pointer;
      pointer.action = PointerEvent::Action::Move;
      pointer.windowPosition = pointer.position = mLastPointer;
      pointer.screenPosition = mWindow.WindowToScreen(mLastPointer);
      UpdateHover(mState.root->HitTest(mLastPointer), pointer);
    }
  }
  return true;
}

// Drag and drop.

void WindowInputRouter::DispatchDrag(const OS_Event& event) {
  if (!event.drag) return;
  DragSession& session = *event.drag;
  UI_Node* target = nullptr;
  for (UI_Node* node = mState.root->HitTest(event.position); node; node = node->GetParent()) {
    if (node->WantsDragAndDropEvents() && node->IsEnabledThroughAncestors()) {
      target = node;
      break;
    }
  }
  if (event.type == OS_Event::Type::DragLeave) target = nullptr;
  if (target != mDragTarget && mDragTarget) {
    const UI_NodePtr left(std::exchange(mDragTarget, nullptr));
    left->DragLeaveSelf();
    session.acceptedEffect = kDropEffect_None;
  }
  if (!target || !IsOwnWindow(*target)) return;
  const UI_NodePtr node(target);
  const Point local = node->WindowToLocal(event.position);
  if (event.type == OS_Event::Type::Drop) {
    mDragTarget = nullptr;
    const int effect = session.acceptedEffect & session.allowedEffects;
    session.isDropAccepted = effect != kDropEffect_None && node->DropSelf(session.data, effect, local);
    return;
  }
  const bool isNew = target != mDragTarget;
  mDragTarget = target;
  const int answer = isNew ? node->DragEnterSelf(session.data, event.modifiers, local)
                           : node->DragOverSelf(session.data, event.modifiers, local);
  session.acceptedEffect = answer & session.allowedEffects;
}

// Forgetting nodes that leave.

void WindowInputRouter::ForgetSubtree(UI_Node& node, UI_Window::Forget why) {
  const UI_NodePtr keep(&node);
  if (Contains(node, mCapture)) {
    // Released without looking under the pointer again: the subtree is still
    // in place and would be found. The next move brings the hover up to date.
    mCapture = nullptr;
    const HWND native = mState.GetLiveNative();
    if (native && backend::GetBackend().GetCapture() == native) backend::GetBackend().ReleaseCapture();
  }
  if (Contains(node, mFocus)) SetFocusedNode(nullptr);
  for (UI_Node*& pressed : mPressed) {
    if (!Contains(node, pressed)) continue;
    pressed->SetFlag(UI_Node::kFlag_LeftDown | UI_Node::kFlag_RightDown | UI_Node::kFlag_MiddleDown, false);
    pressed = nullptr;
  }
  if (Contains(node, mToolTip.GetNode())) mToolTip.Cancel();
  if (Contains(node, mDragTarget)) {
    const UI_NodePtr target(std::exchange(mDragTarget, nullptr));
    target->DragLeaveSelf();
  }
  // A disabled node is still under the pointer: only leaving the tree or hiding ends hovering.
  if (why == UI_Window::Forget::Disabled) return;
  const auto first = std::find(mHover.begin(), mHover.end(), &node);
  if (first == mHover.end()) return;
  std::vector<UI_NodePtr> leaving(first, mHover.end());
  mHover.erase(first, mHover.end());
  for (auto it = leaving.rbegin(); it != leaving.rend(); ++it) (*it)->MouseLeaveSelf();
}

} // namespace kroui::ui
