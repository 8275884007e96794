// SubViewImpl: pointer, keyboard and focus events, handed to the view's hooks.
//
// The node gets each event with its position already in the node's own
// coordinates, which are the view's. Button, move and gesture hooks return
// nothing: the view they reach takes the event (IsPointerEventHandled lets a
// view pass on events without seeing them). Bool hooks decide for themselves.

#include <zel/views/SubViewImpl.h>

#include <zel/views/PointerRoutingImpl.h>
#include <zel/views/ViewSupport.h>

#include <kroui/base/KeyboardEvent.h>

namespace ZEL {
namespace {

using kroui::ui::KeyboardEvent;
using kroui::ui::PointerEvent;
using Button = PointerEvent::Button;
using Routing = detail::PointerRouting<SubView>;

KeyModifiers ModifiersOf(const PointerEvent& event) { return Routing::ModifiersOf(event); }

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

bool SubViewImpl::MouseMultiClickSelf(const PointerEvent& event) { return Routing::MultiClick(GetView(), event); }

// Moving.

bool SubViewImpl::MouseMoveSelf(const PointerEvent& event) { return Routing::Move(GetView(), event); }

void SubViewImpl::MouseLeaveSelf() { Routing::Leave(GetView()); }

bool SubViewImpl::SetCursorSelf(const PointerEvent& event) { return Routing::SetCursor(GetView(), event); }

// Wheel and gestures.

bool SubViewImpl::MouseWheelSelf(const PointerEvent& event) { return Routing::Wheel(GetView(), event); }

bool SubViewImpl::MouseMagnifySelf(const PointerEvent& event) {
  return Routing::Magnify(GetView(), event, mGesture);
}

bool SubViewImpl::MouseRotateSelf(const PointerEvent& event) {
  return Routing::Rotate(GetView(), event, mGesture);
}

bool SubViewImpl::MousePanSelf(const PointerEvent& event) { return Routing::Pan(GetView(), event, mGesture); }

bool SubViewImpl::MouseGestureEndSelf(const PointerEvent&) { return Routing::GestureEnd(GetView(), mGesture); }

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
