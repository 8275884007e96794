// PlatformViewImpl: pointer and drag events, handed to the view's hooks in
// the view's coordinates. Only this node takes the middle button: a native
// surface receives it directly.

#include <zel/views/PlatformViewImpl.h>

#include <zel/views/ViewSupport.h>

#include <kroui/ui/DataObject.h>

#include <utility>

namespace ZEL {
namespace {

using kroui::ui::PointerEvent;
using Button = PointerEvent::Button;

KeyModifiers ModifiersOf(const PointerEvent& event) { return detail::ToKeyModifiers(event.modifiers); }

} // namespace

bool PlatformViewImpl::MouseDownSelf(const PointerEvent& event) {
  const std::shared_ptr<PlatformView> view = GetView();
  if (!view) return false;
  switch (event.button) {
  case Button::Left: view->LeftButtonDownSelf(event.position, ModifiersOf(event)); return true;
  case Button::Middle: view->MiddleButtonDownSelf(event.position, ModifiersOf(event)); return true;
  case Button::Right: view->RightButtonDownSelf(event.position, ModifiersOf(event)); return true;
  default: return false;
  }
}

bool PlatformViewImpl::MouseUpSelf(const PointerEvent& event) {
  const std::shared_ptr<PlatformView> view = GetView();
  if (!view) return false;
  switch (event.button) {
  case Button::Left: view->LeftButtonUpSelf(event.position, ModifiersOf(event)); return true;
  case Button::Middle: view->MiddleButtonUpSelf(event.position, ModifiersOf(event)); return true;
  case Button::Right: view->RightButtonUpSelf(event.position, ModifiersOf(event)); return true;
  default: return false;
  }
}

bool PlatformViewImpl::MouseMultiClickSelf(const PointerEvent& event) {
  const std::shared_ptr<PlatformView> view = GetView();
  if (!view) return false;
  if (event.button == Button::Left) {
    view->LeftButtonMultiClickSelf(event.position, ModifiersOf(event), event.clickCount);
    return true;
  }
  if (event.button == Button::Right && event.clickCount == 2) {
    view->RightButtonDoubleClickSelf(event.position, ModifiersOf(event));
    return true;
  }
  return false; // offered again as a plain press
}

bool PlatformViewImpl::MouseMoveSelf(const PointerEvent& event) {
  const std::shared_ptr<PlatformView> view = GetView();
  if (!view) return false;
  view->MouseMoveSelf(event.position, ModifiersOf(event));
  return true;
}

void PlatformViewImpl::MouseLeaveSelf() {
  if (const std::shared_ptr<PlatformView> view = GetView()) view->MouseLeaveSelf();
}

bool PlatformViewImpl::SetCursorSelf(const PointerEvent& event) {
  const std::shared_ptr<PlatformView> view = GetView();
  return view && view->SetCursorSelf(event.position, ModifiersOf(event));
}

bool PlatformViewImpl::MouseWheelSelf(const PointerEvent& event) {
  const std::shared_ptr<PlatformView> view = GetView();
  return view && view->MouseWheelSelf(event.position, ModifiersOf(event), event.wheelDeltaX, event.wheelDeltaY,
                                      event.isPreciseWheel);
}

bool PlatformViewImpl::MouseMagnifySelf(const PointerEvent& event) {
  const std::shared_ptr<PlatformView> view = GetView();
  return Gesture(event, view && view->MouseMagnifySelf(event.position, event.gestureValue, ModifiersOf(event)));
}

bool PlatformViewImpl::MouseRotateSelf(const PointerEvent& event) {
  const std::shared_ptr<PlatformView> view = GetView();
  return Gesture(event, view && view->MouseRotateSelf(event.position, event.gestureValue, ModifiersOf(event)));
}

bool PlatformViewImpl::MousePanSelf(const PointerEvent& event) {
  const std::shared_ptr<PlatformView> view = GetView();
  return Gesture(event, view && view->MousePanSelf(event.position, event.panDelta));
}

bool PlatformViewImpl::Gesture(const PointerEvent& event, bool consumed) {
  if (consumed) mGesture = event.action;
  return consumed;
}

bool PlatformViewImpl::MouseGestureEndSelf(const PointerEvent&) {
  // The end goes to the view that took the gesture.
  const Action gesture = std::exchange(mGesture, Action::None);
  const std::shared_ptr<PlatformView> view = GetView();
  if (!view || gesture == Action::None) return false;
  view->MouseGestureEndSelf(gesture);
  return true;
}

std::string PlatformViewImpl::GetToolTipTextSelf() const {
  const std::shared_ptr<PlatformView> view = GetView();
  return view ? view->GetToolTipTextSelf() : std::string();
}

// Drag and drop.

int PlatformViewImpl::DragEnterSelf(kroui::ui::DataObject& data, kroui::ui::ModifierKeys modifiers,
                                    kroui::ui::Point local) {
  const std::shared_ptr<PlatformView> view = GetView();
  return view ? view->DragEnterSelf(data, detail::ToKeyModifiers(modifiers), local) : kroui::ui::kDropEffect_None;
}

int PlatformViewImpl::DragOverSelf(kroui::ui::DataObject& data, kroui::ui::ModifierKeys modifiers,
                                   kroui::ui::Point local) {
  const std::shared_ptr<PlatformView> view = GetView();
  return view ? view->DragOverSelf(data, detail::ToKeyModifiers(modifiers), local) : kroui::ui::kDropEffect_None;
}

void PlatformViewImpl::DragLeaveSelf() {
  if (const std::shared_ptr<PlatformView> view = GetView()) view->DragLeaveSelf();
}

bool PlatformViewImpl::DropSelf(kroui::ui::DataObject& data, int effect, kroui::ui::Point local) {
  const std::shared_ptr<PlatformView> view = GetView();
  return view && view->DropSelf(data, effect, local);
}

} // namespace ZEL
