// UI_Window: the road of pointer, keyboard and drag events to nodes.

#include <kroui/ui/UI_Window.h>

#include <kroui/backend/Backend.h>
#include <kroui/base/KeyTable.h>
#include <kroui/ui/UI_NodeExtras.h>
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

} // namespace

std::uint32_t UI_Window::PressedFlag(PointerEvent::Button button) {
  switch (button) {
  case PointerEvent::Button::Left: return UI_Node::kFlag_LeftDown;
  case PointerEvent::Button::Right: return UI_Node::kFlag_RightDown;
  case PointerEvent::Button::Middle: return UI_Node::kFlag_MiddleDown;
  default: return 0;
  }
}

void UI_Window::DispatchEvent(const OS_Event& event) {
  if (mEventHook && mEventHook(event)) return;
  const bool takesInput = IsEnabled();
  if (event.IsPointer()) {
    if (takesInput) DispatchPointer(event);
  } else if (event.IsKeyboard()) {
    if (takesInput) DispatchKeyboard(event);
  } else if (event.IsDrag()) {
    if (takesInput) DispatchDrag(event);
  } else {
    HandleWindowEvent(event);
  }
}

// Pointer.

UI_Node* UI_Window::PointerTarget(Point windowPoint) const { return mCapture ? mCapture : mRoot->HitTest(windowPoint); }

void UI_Window::DispatchPointer(const OS_Event& event) {
  if (event.type == OS_Event::Type::MouseLeaveWindow) {
    mPointerInside = false;
    CancelToolTip();
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
    if (event.type == OS_Event::Type::MouseWheel) CancelToolTip();
    Deliver(PointerTarget(event.position), MakePointerEvent(event));
    break;
  }
}

void UI_Window::DispatchMove(const OS_Event& event) {
  const PointerEvent pointer = MakePointerEvent(event);
  // While a node holds the capture, the pointer stays "over" it: no enter or leave.
  if (!mCapture) UpdateHover(mRoot->HitTest(event.position), pointer);
  Deliver(PointerTarget(event.position), pointer);
  NotePointerMoved();
  UpdateCursor(pointer);
}

void UI_Window::DispatchButton(const OS_Event& event) {
  CancelToolTip();
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
  if (pressed && pressed->GetWindow() == this) {
    if (mPressed[button]) mPressed[button]->SetFlag(PressedFlag(event.button), false);
    mPressed[button] = pressed;
    pressed->SetFlag(PressedFlag(event.button), true);
  }
}

bool UI_Window::Deliver(UI_Node* target, PointerEvent event) {
  mConsumer = nullptr;
  for (UI_NodePtr node(target); node && node->GetWindow() == this; node = UI_NodePtr(node->GetParent())) {
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

bool UI_Window::CallPointerHook(UI_Node& node, const PointerEvent& event) {
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

void UI_Window::UpdateHover(UI_Node* hit, const PointerEvent& event) {
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
    if (node->GetWindow() != this) continue; // an earlier hook took it out
    PointerEvent local = event;
    local.action = PointerEvent::Action::Enter;
    local.position = node->WindowToLocal(event.windowPosition);
    node->MouseEnterSelf(local);
  }
  StartToolTip(event);
}

void UI_Window::LeaveAll() {
  const std::vector<UI_NodePtr> leaving(mHover.begin(), mHover.end());
  mHover.clear();
  for (auto it = leaving.rbegin(); it != leaving.rend(); ++it) (*it)->MouseLeaveSelf();
}

void UI_Window::UpdateCursor(const PointerEvent& event) {
  UI_Node* start = mCapture ? mCapture : GetHoverNode();
  for (UI_NodePtr node(start); node && node->GetWindow() == this; node = UI_NodePtr(node->GetParent())) {
    PointerEvent local = event;
    local.position = node->WindowToLocal(event.windowPosition);
    if (node->SetCursorSelf(local)) return;
  }
  // A cursor set to stay (a tool's, a drag's) is not replaced by the arrow.
  const bool isButtonDown =
      std::any_of(std::begin(mPressed), std::end(mPressed), [](UI_Node* n) { return n != nullptr; });
  if (!IsCursorHeld(isButtonDown)) backend::GetBackend().SetCursor(nullptr);
}

bool UI_Window::SetCaptureNode(UI_Node* node) {
  if (node && (node->GetWindow() != this || !node->IsVisible())) return false;
  mCapture = node;
  if (!IsCreated() || !IsBackendCurrent()) return true;
  backend::Backend& backend = backend::GetBackend();
  if (node) {
    backend.SetCapture(mNative);
  } else {
    if (backend.GetCapture() == mNative) backend.ReleaseCapture();
    // What is under the pointer may have changed during the capture.
    if (mPointerInside) {
      PointerEvent pointer;
      pointer.action = PointerEvent::Action::Move;
      pointer.windowPosition = pointer.position = mLastPointer;
      pointer.screenPosition = WindowToScreen(mLastPointer);
      UpdateHover(mRoot->HitTest(mLastPointer), pointer);
    }
  }
  return true;
}

// Keyboard.

void UI_Window::DispatchKeyboard(const OS_Event& event) {
  const KeyboardEvent& key = event.key;
  CancelToolTip();
  if (mPreDispatch && mPreDispatch(key)) return;
  if (DeliverKey(key)) return;
  if (mPostDispatch && mPostDispatch(key)) return;
  const bool isTab = key.GetAction() == KeyboardEvent::kAction_KeyDown && key.GetCode().GetControlCode(false) ==
                                                                             kKey_Tab.GetControlCode(false);
  if (isTab && !key.GetModKey().HasAny(kModKey_Control | kModKey_Alt)) {
    AdvanceFocus(!key.GetModKey().Has(kModKey_Shift));
  }
}

bool UI_Window::DeliverKey(const KeyboardEvent& event) {
  if (!mFocus || !mFocus->IsVisible() || !mFocus->IsEnabledThroughAncestors()) return false;
  const UI_NodePtr node(mFocus);
  switch (event.GetAction()) {
  case KeyboardEvent::kAction_KeyDown: return node->KeyDownSelf(event);
  case KeyboardEvent::kAction_KeyUp: return node->KeyUpSelf(event);
  case KeyboardEvent::kAction_CharacterInput: return node->CharacterInputSelf(event);
  default: return false;
  }
}

// Drag and drop.

void UI_Window::DispatchDrag(const OS_Event& event) {
  if (!event.drag) return;
  DragSession& session = *event.drag;
  UI_Node* target = nullptr;
  for (UI_Node* node = mRoot->HitTest(event.position); node; node = node->GetParent()) {
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
  if (!target || target->GetWindow() != this) return;
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

// The window itself.

void UI_Window::HandleWindowEvent(const OS_Event& event) {
  switch (event.type) {
  case OS_Event::Type::WindowCloseRequest:
    if (mCloseHook) {
      mCloseHook(*this);
    } else {
      Hide();
    }
    break;
  case OS_Event::Type::WindowMoved:
  case OS_Event::Type::WindowResized: SetScreenBounds(event.bounds); break;
  case OS_Event::Type::WindowFocusIn: mIsActive = true; break;
  case OS_Event::Type::WindowFocusOut:
    mIsActive = false;
    CancelToolTip();
    break;
  case OS_Event::Type::WindowExposed: InvalidateWindowRect(mRoot->GetLocalBounds()); break;
  case OS_Event::Type::CaptureLost: mCapture = nullptr; break;
  default: break;
  }
}

} // namespace kroui::ui
