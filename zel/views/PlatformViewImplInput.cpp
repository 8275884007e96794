// PlatformViewImpl: pointer and drag events, handed to the view's hooks in
// the view's coordinates. Only this node takes the middle button: a native
// surface receives it directly.

#include <zel/views/PlatformViewImpl.h>

#include <zel/views/PointerRoutingImpl.h>
#include <zel/views/ViewSupport.h>

#include <kroui/base/DataObject.h>

#include <utility>

namespace ZEL {
namespace {

using kroui::ui::PointerEvent;
using Button = PointerEvent::Button;
using Routing = detail::PointerRouting<PlatformView>;

KeyModifiers ModifiersOf(const PointerEvent& event) { return Routing::ModifiersOf(event); }

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

bool PlatformViewImpl::MouseMultiClickSelf(const PointerEvent& event) { return Routing::MultiClick(GetView(), event); }

bool PlatformViewImpl::MouseMoveSelf(const PointerEvent& event) { return Routing::Move(GetView(), event); }

void PlatformViewImpl::MouseLeaveSelf() { Routing::Leave(GetView()); }

bool PlatformViewImpl::SetCursorSelf(const PointerEvent& event) { return Routing::SetCursor(GetView(), event); }

bool PlatformViewImpl::MouseWheelSelf(const PointerEvent& event) { return Routing::Wheel(GetView(), event); }

bool PlatformViewImpl::MouseMagnifySelf(const PointerEvent& event) {
  return Routing::Magnify(GetView(), event, mGesture);
}

bool PlatformViewImpl::MouseRotateSelf(const PointerEvent& event) {
  return Routing::Rotate(GetView(), event, mGesture);
}

bool PlatformViewImpl::MousePanSelf(const PointerEvent& event) { return Routing::Pan(GetView(), event, mGesture); }

bool PlatformViewImpl::MouseGestureEndSelf(const PointerEvent&) { return Routing::GestureEnd(GetView(), mGesture); }

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
