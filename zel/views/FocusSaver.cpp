#include <zel/views/FocusSaver.h>
#include <zel/views/FocusSaverImpl.h>

#include <kroui/backend/Backend.h>
#include <kroui/ui/UI_Container.h>
#include <kroui/ui/UI_Window.h>

namespace ZEL {

void FocusSaverImpl::Save() {
  const kroui::ui::UI_Window* window =
      kroui::ui::UI_Window::FromNativeWindow(kroui::backend::GetBackend().GetFocusedNativeWindow());
  if (!window) return;
  windowRoot = kroui::ui::RefCountedWeakPtr<kroui::ui::UI_Node>(&window->GetRoot());
  focused = kroui::ui::RefCountedWeakPtr<kroui::ui::UI_Node>(window->GetFocusedNode());
}

void FocusSaverImpl::Restore() const {
  const krocore::IntrusivePtr<kroui::ui::UI_Node> root = windowRoot.Lock();
  kroui::ui::UI_Window* window = root ? root->GetWindow() : nullptr;
  if (!window) return; // the window went with the focus it had
  const krocore::IntrusivePtr<kroui::ui::UI_Node> node = focused.Lock();
  // A node that is gone, or has left the window, or can no longer take the focus leaves nobody focused.
  if (!node || !window->SetFocusedNode(node.Get())) {
    window->SetFocusedNode(nullptr);
    return;
  }
  // The dialog took the keyboard with it: give it back to the window.
  if (window->IsShown()) window->Focus();
}

FocusSaver::FocusSaver() : mImpl(std::make_unique<FocusSaverImpl>()) { mImpl->Save(); }

FocusSaver::~FocusSaver() {
  if (mImpl->shouldRestore) mImpl->Restore();
}

void FocusSaver::Clear() { mImpl->shouldRestore = false; }

// The saved focus is a node until tab views exist; then it is the focused tab view, and this its type.
UTF8String FocusSaver::GetTabViewType() const { return {}; }

} // namespace ZEL
