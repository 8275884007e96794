// UI_Window: what the window manager keeps about a window (its owner and
// minimised state), read from the backend, which is the one that knows.

#include <kroui/ui/UI_Window.h>

#include <kroui/backend/Backend.h>
#include <kroui/ui/UI_WindowImpl.h>

namespace kroui::ui {

void UI_Window::Restore() {
  const HWND native = mImpl->GetLiveNative();
  if (!native) return;
  backend::GetBackend().RestoreNativeWindow(native);
  // Not every window manager keeps a minimised window's pixels: paint it whole, as Show does.
  InvalidateWindowRect(mImpl->root->GetLocalBounds());
}

bool UI_Window::IsMinimized() const {
  const HWND native = mImpl->GetLiveNative();
  return native && backend::GetBackend().IsNativeWindowMinimized(native);
}

HWND UI_Window::GetOwner() const {
  const HWND native = mImpl->GetLiveNative();
  return native ? backend::GetBackend().GetNativeWindowOwner(native) : nullptr;
}

} // namespace kroui::ui
