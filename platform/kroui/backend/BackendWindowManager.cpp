// Backend: the window-manager defaults of a backend without a window system,
// which knows no window: every query answers as for a handle it does not know.

#include <kroui/backend/Backend.h>

namespace kroui::backend {

void Backend::RestoreNativeWindow(HWND) {}
bool Backend::IsNativeWindowMinimized(HWND) const { return false; }
bool Backend::IsNativeWindowEnabled(HWND) const { return false; }
HWND Backend::GetNativeWindowOwner(HWND) const { return nullptr; }
std::vector<HWND> Backend::GetTopLevelWindows() const { return {}; }

} // namespace kroui::backend
