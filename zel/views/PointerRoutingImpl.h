#pragma once

// Private: how a view's node hands pointer events to the view's hooks. The
// nodes of SubView and PlatformView share it; their hook sets agree on all
// of this and differ only in the middle button, which each node routes itself.

#include <zel/views/ViewSupport.h>

#include <kroui/base/PointerEvent.h>

#include <memory>
#include <utility>

namespace ZEL::detail {

template <typename View>
struct PointerRouting {
  using PointerEvent = kroui::ui::PointerEvent;
  using Action = PointerEvent::Action;
  using ViewPtr = std::shared_ptr<View>;

  static KeyModifiers ModifiersOf(const PointerEvent& event) { return ToKeyModifiers(event.modifiers); }

  static bool MultiClick(const ViewPtr& view, const PointerEvent& event) {
    if (!view) return false;
    if (event.button == PointerEvent::Button::Left) {
      view->LeftButtonMultiClickSelf(event.position, ModifiersOf(event), event.clickCount);
      return true;
    }
    // A third right press in a row is a plain press again.
    if (event.button == PointerEvent::Button::Right && event.clickCount == 2) {
      view->RightButtonDoubleClickSelf(event.position, ModifiersOf(event));
      return true;
    }
    return false;
  }

  static bool Move(const ViewPtr& view, const PointerEvent& event) {
    if (!view) return false;
    view->MouseMoveSelf(event.position, ModifiersOf(event));
    return true;
  }

  static void Leave(const ViewPtr& view) {
    if (view) view->MouseLeaveSelf();
  }

  static bool SetCursor(const ViewPtr& view, const PointerEvent& event) {
    return view && view->SetCursorSelf(event.position, ModifiersOf(event));
  }

  static bool Wheel(const ViewPtr& view, const PointerEvent& event) {
    return view && view->MouseWheelSelf(event.position, ModifiersOf(event), event.wheelDeltaX, event.wheelDeltaY,
                                        event.isPreciseWheel);
  }

  // Gestures: `taken` is the node's record of the gesture its view consumed,
  // so that the gesture's end reaches that view and passes by the others.
  static bool Magnify(const ViewPtr& view, const PointerEvent& event, Action& taken) {
    return Took(event, view && view->MouseMagnifySelf(event.position, event.gestureValue, ModifiersOf(event)), taken);
  }

  static bool Rotate(const ViewPtr& view, const PointerEvent& event, Action& taken) {
    return Took(event, view && view->MouseRotateSelf(event.position, event.gestureValue, ModifiersOf(event)), taken);
  }

  static bool Pan(const ViewPtr& view, const PointerEvent& event, Action& taken) {
    return Took(event, view && view->MousePanSelf(event.position, event.panDelta), taken);
  }

  static bool GestureEnd(const ViewPtr& view, Action& taken) {
    const Action gesture = std::exchange(taken, Action::None);
    if (!view || gesture == Action::None) return false;
    view->MouseGestureEndSelf(gesture);
    return true;
  }

private:
  static bool Took(const PointerEvent& event, bool consumed, Action& taken) {
    if (consumed) taken = event.action;
    return consumed;
  }
};

} // namespace ZEL::detail
