// SubViewImpl: pointer, keyboard and focus events, handed to the view's hooks.
//
// The node gets each event with its position already in the node's own
// coordinates, which are the view's. Button, move and gesture hooks return
// nothing: the view they reach takes the event (IsPointerEventHandled lets a
// view pass on events without seeing them). Bool hooks decide for themselves.

#include <zel/views/SubViewImpl.h>

#include <zel/views/ViewSupport.h>

#include <kroui/ui/KeyboardEvent.h>

namespace ZEL {
namespace {

using kroui::ui::KeyboardEvent;
using kroui::ui::PointerEvent;
using Button = PointerEvent::Button;

KeyModifiers ModifiersOf(const PointerEvent& event) { return detail::ToKeyModifiers(event.modifiers); }

wchar_t CharacterOf(const KeyboardEvent& event) { return static_cast<wchar_t>(event.GetCharacter()); }

short VirtualKeyOf(const KeyboardEvent& event) { return static_cast<short>(event.GetCode().GetControlCode(false)); }

} // namespace

bool SubViewImpl::HitTestSelf(kroui::ui::Point local) const {
  const std::shared_ptr<SubView> view = GetView();
  return view ? view->HitTestSelf(local) : UI_Container::HitTestSelf(local);
}

bool SubViewImpl::IsPointerEventHandled(const PointerEvent& event) const {
  const std::shared_ptr<SubView> view = GetView();
  return view && view->IsPointerEventHandled(event);
}

// Buttons.

bool SubViewImpl::MouseDownSelf(const PointerEvent& event) {
  const std::shared_ptr<SubView> view = GetView();
  if (!view) return false;
  switch (event.button) {
  case Button::Left: view->LeftButtonDownSelf(event.position, ModifiersOf(event)); return true;
  case Button::Right: view->RightButtonDownSelf(event.position, ModifiersOf(event)); return true;
  default: return false; // middle-button hooks belong to native child views
  }
}

bool SubViewImpl::MouseUpSelf(const PointerEvent& event) {
  const std::shared_ptr<SubView> view = GetView();
  if (!view) return false;
  switch (event.button) {
  case Button::Left: view->LeftButtonUpSelf(event.position, ModifiersOf(event)); return true;
  case Button::Right: view->RightButtonUpSelf(event.position, ModifiersOf(event)); return true;
  default: return false;
  }
}

bool SubViewImpl::MouseMultiClickSelf(const PointerEvent& event) {
  const std::shared_ptr<SubView> view = GetView();
  if (!view) return false;
  if (event.button == Button::Left) {
    view->LeftButtonMultiClickSelf(event.position, ModifiersOf(event), event.clickCount);
    return true;
  }
  // A third right press in a row is a plain press again.
  if (event.button == Button::Right && event.clickCount == 2) {
    view->RightButtonDoubleClickSelf(event.position, ModifiersOf(event));
    return true;
  }
  return false;
}

// Moving.

bool SubViewImpl::MouseMoveSelf(const PointerEvent& event) {
  const std::shared_ptr<SubView> view = GetView();
  if (!view) return false;
  view->MouseMoveSelf(event.position, ModifiersOf(event));
  return true;
}

void SubViewImpl::MouseLeaveSelf() {
  if (const std::shared_ptr<SubView> view = GetView()) view->MouseLeaveSelf();
}

bool SubViewImpl::SetCursorSelf(const PointerEvent& event) {
  const std::shared_ptr<SubView> view = GetView();
  return view && view->SetCursorSelf(event.position, ModifiersOf(event));
}

// Wheel and gestures.

bool SubViewImpl::MouseWheelSelf(const PointerEvent& event) {
  const std::shared_ptr<SubView> view = GetView();
  return view && view->MouseWheelSelf(event.position, ModifiersOf(event), event.wheelDeltaX, event.wheelDeltaY,
                                      event.isPreciseWheel);
}

bool SubViewImpl::MouseMagnifySelf(const PointerEvent& event) {
  const std::shared_ptr<SubView> view = GetView();
  return Gesture(event, view && view->MouseMagnifySelf(event.position, event.gestureValue, ModifiersOf(event)));
}

bool SubViewImpl::MouseRotateSelf(const PointerEvent& event) {
  const std::shared_ptr<SubView> view = GetView();
  return Gesture(event, view && view->MouseRotateSelf(event.position, event.gestureValue, ModifiersOf(event)));
}

bool SubViewImpl::MousePanSelf(const PointerEvent& event) {
  const std::shared_ptr<SubView> view = GetView();
  return Gesture(event, view && view->MousePanSelf(event.position, event.panDelta));
}

bool SubViewImpl::Gesture(const PointerEvent& event, bool consumed) {
  if (consumed) mGesture = event.action;
  return consumed;
}

bool SubViewImpl::MouseGestureEndSelf(const PointerEvent&) {
  // The end goes to the view that took the gesture; others pass it on.
  const Action gesture = std::exchange(mGesture, Action::None);
  const std::shared_ptr<SubView> view = GetView();
  if (!view || gesture == Action::None) return false;
  view->MouseGestureEndSelf(gesture);
  return true;
}

// Keyboard.

bool SubViewImpl::KeyDownSelf(const KeyboardEvent& event) {
  const std::shared_ptr<SubView> view = GetView();
  return view && view->KeyDownSelf(CharacterOf(event), VirtualKeyOf(event), event.IsAutoRepeat());
}

bool SubViewImpl::KeyUpSelf(const KeyboardEvent& event) {
  const std::shared_ptr<SubView> view = GetView();
  return view && view->KeyUpSelf(CharacterOf(event), VirtualKeyOf(event), event.IsAutoRepeat());
}

bool SubViewImpl::CharacterInputSelf(const KeyboardEvent& event) {
  const std::shared_ptr<SubView> view = GetView();
  return view && view->CharacterInputSelf(CharacterOf(event), event.IsAutoRepeat());
}

// Focus.

void SubViewImpl::SetFocusSelf() {
  const std::shared_ptr<SubView> view = GetView();
  if (!view) return;
  // The focused view receives commands first; the old target's chain goes off duty.
  Commander::SwitchTarget(view);
  view->SetFocusSelf();
}

void SubViewImpl::KillFocusSelf() {
  if (const std::shared_ptr<SubView> view = GetView()) view->KillFocusSelf();
}

bool SubViewImpl::WantsFocusSelf() const {
  const std::shared_ptr<SubView> view = GetView();
  return view && view->WantsFocusSelf();
}

bool SubViewImpl::AllowFocusToAdvanceFromChildrenSelf() const {
  const std::shared_ptr<SubView> view = GetView();
  return !view || view->AllowFocusToAdvanceFromChildrenSelf();
}

} // namespace ZEL
