// The node side of SubView and PlatformView: events handed to the view's hooks.

#include <zel/views/ViewNodeImpl.h>

#include <zel/views/PlatformView.h>
#include <zel/views/SubView.h>
#include <zel/views/ViewSupport.h>

#include <kroui/base/DataObject.h>
#include <kroui/ui/UI_Container.h>

#include <utility>

namespace ZEL::detail {
namespace {

using kroui::ui::PointerEvent;
using Button = PointerEvent::Button;

KeyModifiers ModifiersOf(const PointerEvent& event) { return ToKeyModifiers(event.modifiers); }

} // namespace

// Only a native child surface receives the middle button directly.
template <>
inline constexpr bool kHasMiddleButtonHooks<PlatformView> = true;

template <typename View, typename NodeBase>
ViewNode<View, NodeBase>::ViewNode(std::weak_ptr<View> view) : mView(std::move(view)) {}

template <typename View, typename NodeBase>
ViewNode<View, NodeBase>::~ViewNode() = default;

// Buttons.

// A press or a release reaches the hook of its button; a button the view's
// hook set lacks is left to the parent.
template <typename View, typename NodeBase>
bool ViewNode<View, NodeBase>::Press(const PointerEvent& event, bool isDown) {
  const std::shared_ptr<View> view = GetView();
  if (!view) return false;
  const auto& at = event.position;
  const KeyModifiers modifiers = ModifiersOf(event);
  switch (event.button) {
  case Button::Left:
    isDown ? view->LeftButtonDownSelf(at, modifiers) : view->LeftButtonUpSelf(at, modifiers);
    return true;
  case Button::Right:
    isDown ? view->RightButtonDownSelf(at, modifiers) : view->RightButtonUpSelf(at, modifiers);
    return true;
  case Button::Middle:
    if constexpr (kHasMiddleButtonHooks<View>) {
      isDown ? view->MiddleButtonDownSelf(at, modifiers) : view->MiddleButtonUpSelf(at, modifiers);
      return true;
    }
    return false;
  default: return false;
  }
}

template <typename View, typename NodeBase>
bool ViewNode<View, NodeBase>::MouseDownSelf(const PointerEvent& event) {
  return Press(event, true);
}

template <typename View, typename NodeBase>
bool ViewNode<View, NodeBase>::MouseUpSelf(const PointerEvent& event) {
  return Press(event, false);
}

template <typename View, typename NodeBase>
bool ViewNode<View, NodeBase>::MouseMultiClickSelf(const PointerEvent& event) {
  const std::shared_ptr<View> view = GetView();
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

template <typename View, typename NodeBase>
bool ViewNode<View, NodeBase>::MouseMoveSelf(const PointerEvent& event) {
  const std::shared_ptr<View> view = GetView();
  if (!view) return false;
  view->MouseMoveSelf(event.position, ModifiersOf(event));
  return true;
}

template <typename View, typename NodeBase>
void ViewNode<View, NodeBase>::MouseLeaveSelf() {
  if (const std::shared_ptr<View> view = GetView()) view->MouseLeaveSelf();
}

template <typename View, typename NodeBase>
bool ViewNode<View, NodeBase>::SetCursorSelf(const PointerEvent& event) {
  const std::shared_ptr<View> view = GetView();
  return view && view->SetCursorSelf(event.position, ModifiersOf(event));
}

// Wheel and gestures.

template <typename View, typename NodeBase>
bool ViewNode<View, NodeBase>::MouseWheelSelf(const PointerEvent& event) {
  const std::shared_ptr<View> view = GetView();
  return view && view->MouseWheelSelf(event.position, ModifiersOf(event), event.wheelDeltaX, event.wheelDeltaY,
                                      event.isPreciseWheel);
}

template <typename View, typename NodeBase>
bool ViewNode<View, NodeBase>::MouseMagnifySelf(const PointerEvent& event) {
  const std::shared_ptr<View> view = GetView();
  return Gesture(event, view && view->MouseMagnifySelf(event.position, event.gestureValue, ModifiersOf(event)));
}

template <typename View, typename NodeBase>
bool ViewNode<View, NodeBase>::MouseRotateSelf(const PointerEvent& event) {
  const std::shared_ptr<View> view = GetView();
  return Gesture(event, view && view->MouseRotateSelf(event.position, event.gestureValue, ModifiersOf(event)));
}

template <typename View, typename NodeBase>
bool ViewNode<View, NodeBase>::MousePanSelf(const PointerEvent& event) {
  const std::shared_ptr<View> view = GetView();
  return Gesture(event, view && view->MousePanSelf(event.position, event.panDelta));
}

// The end of a gesture reaches the view that took it and passes by the others.
template <typename View, typename NodeBase>
bool ViewNode<View, NodeBase>::MouseGestureEndSelf(const PointerEvent&) {
  const Action gesture = std::exchange(mGesture, Action::None);
  const std::shared_ptr<View> view = GetView();
  if (!view || gesture == Action::None) return false;
  view->MouseGestureEndSelf(gesture);
  return true;
}

template <typename View, typename NodeBase>
bool ViewNode<View, NodeBase>::Gesture(const PointerEvent& event, bool consumed) {
  if (consumed) mGesture = event.action;
  return consumed;
}

// Focus.

template <typename View, typename NodeBase>
void ViewNode<View, NodeBase>::SetFocusSelf() {
  const std::shared_ptr<View> view = GetView();
  if (!view) return;
  // The old target's chain goes off duty, the focused view's comes on.
  Commander::SwitchTarget(view);
  view->SetFocusSelf();
}

template <typename View, typename NodeBase>
void ViewNode<View, NodeBase>::KillFocusSelf() {
  if (const std::shared_ptr<View> view = GetView()) view->KillFocusSelf();
}

// Drag and drop.

template <typename View, typename NodeBase>
int ViewNode<View, NodeBase>::DragEnterSelf(kroui::ui::DataObject& data, kroui::ui::ModifierKeys modifiers,
                                            kroui::ui::Point local) {
  const std::shared_ptr<View> view = GetView();
  return view ? view->DragEnterSelf(data, ToKeyModifiers(modifiers), local) : kroui::ui::kDropEffect_None;
}

template <typename View, typename NodeBase>
int ViewNode<View, NodeBase>::DragOverSelf(kroui::ui::DataObject& data, kroui::ui::ModifierKeys modifiers,
                                           kroui::ui::Point local) {
  const std::shared_ptr<View> view = GetView();
  return view ? view->DragOverSelf(data, ToKeyModifiers(modifiers), local) : kroui::ui::kDropEffect_None;
}

template <typename View, typename NodeBase>
void ViewNode<View, NodeBase>::DragLeaveSelf() {
  if (const std::shared_ptr<View> view = GetView()) view->DragLeaveSelf();
}

template <typename View, typename NodeBase>
bool ViewNode<View, NodeBase>::DropSelf(kroui::ui::DataObject& data, int effect, kroui::ui::Point local) {
  const std::shared_ptr<View> view = GetView();
  return view && view->DropSelf(data, effect, local);
}

// Tooltips and notifications.

template <typename View, typename NodeBase>
std::string ViewNode<View, NodeBase>::GetToolTipTextSelf() const {
  const std::shared_ptr<View> view = GetView();
  return view ? view->GetToolTipTextSelf() : std::string();
}

template <typename View, typename NodeBase>
void ViewNode<View, NodeBase>::SetBoundsSelf(const kroui::ui::Rect& bounds) {
  if (const std::shared_ptr<View> view = GetView()) view->SetBoundsSelf(bounds);
}

template <typename View, typename NodeBase>
void ViewNode<View, NodeBase>::LayoutSelf() {
  if (const std::shared_ptr<View> view = GetView()) view->SetBoundsSelf(this->GetBounds());
}

template <typename View, typename NodeBase>
void ViewNode<View, NodeBase>::PrepareForFocusFromAdvanceSelf() {
  if (const std::shared_ptr<View> view = GetView()) view->PrepareForKeyboardFocusFromAdvance(view);
}

template class ViewNode<SubView, kroui::ui::UI_Container>;
template class ViewNode<PlatformView, kroui::ui::UI_Node>;

} // namespace ZEL::detail
