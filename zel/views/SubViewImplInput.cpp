// SubViewImpl: hit testing, keys and the focus chain, handed to the view's
// hooks. IsPointerEventHandled lets a view pass pointer events on to its
// parent without seeing them.

#include <zel/views/SubViewImpl.h>

#include <kroui/base/KeyboardEvent.h>

namespace ZEL {
namespace {

using kroui::ui::KeyboardEvent;
using kroui::ui::PointerEvent;

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

// The focus chain.

bool SubViewImpl::WantsFocusSelf() const {
  const std::shared_ptr<SubView> view = GetView();
  return view && view->WantsFocusSelf();
}

bool SubViewImpl::AllowFocusToAdvanceFromChildrenSelf() const {
  const std::shared_ptr<SubView> view = GetView();
  return !view || view->AllowFocusToAdvanceFromChildrenSelf();
}

} // namespace ZEL
