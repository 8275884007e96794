#include <zel/views/ParentAndChildWindowDisabler.h>
#include <zel/views/ParentAndChildWindowDisablerImpl.h>

#include <kroui/backend/Backend.h>
#include <kroui/ui/UI_Window.h>

namespace ZEL::Windows {
namespace {

// A window of kroui keeps its own enabled state and input routing: go through it.
bool IsWindowEnabled(HWND native) {
  if (const kroui::ui::UI_Window* window = kroui::ui::UI_Window::FromNativeWindow(native)) return window->IsEnabled();
  return kroui::backend::GetBackend().IsNativeWindowEnabled(native);
}

void SetWindowEnabled(HWND native, bool enabled) {
  if (kroui::ui::UI_Window* window = kroui::ui::UI_Window::FromNativeWindow(native)) {
    window->SetEnabled(enabled);
  } else {
    kroui::backend::GetBackend().SetNativeWindowEnabled(native, enabled);
  }
}

// Disables the enabled windows `parent` owns and returns them.
std::vector<HWND> DisableOwnedWindows(HWND parent) {
  const kroui::backend::Backend& backend = kroui::backend::GetBackend();
  std::vector<HWND> disabled;
  for (const HWND window : backend.GetTopLevelWindows()) {
    if (backend.GetNativeWindowOwner(window) != parent || !IsWindowEnabled(window)) continue;
    SetWindowEnabled(window, false);
    disabled.push_back(window);
  }
  return disabled;
}

} // namespace

ParentAndChildWindowDisabler::ParentAndChildWindowDisabler(HWND parent, bool disableOwnedWindows)
    : mImpl(std::make_unique<ParentAndChildWindowDisablerImpl>()) {
  if (!parent) return; // every unowned window would count as owned by it
  mImpl->parent = parent;
  mImpl->wasParentEnabled = IsWindowEnabled(parent);
  if (disableOwnedWindows) mImpl->disabled = DisableOwnedWindows(parent);
  SetWindowEnabled(parent, false);
}

ParentAndChildWindowDisabler::~ParentAndChildWindowDisabler() {
  // A window closed meanwhile is no longer kroui's, and the backend ignores its stale handle.
  for (const HWND window : mImpl->disabled) SetWindowEnabled(window, true);
  if (mImpl->wasParentEnabled) SetWindowEnabled(mImpl->parent, true);
  // The focus saver goes with mImpl, after the windows can take the focus again.
}

} // namespace ZEL::Windows
