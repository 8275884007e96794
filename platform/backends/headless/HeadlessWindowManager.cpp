// HeadlessBackend: owners, minimised and enabled state, the list of windows.

#include <backends/headless/HeadlessBackend.h>
#include <backends/headless/HeadlessStateImpl.h>

#include <algorithm>

namespace kroui::backend {

void HeadlessBackend::RestoreNativeWindow(HWND window) {
  HeadlessWindow* found = mState->Find(window);
  if (!found || !found->record.isMinimized) return;
  found->record.isMinimized = false;
  found->raisedAt = mState->nextRaise++;
  if (!found->record.description.style.Has(kWindowStyle_NoActivate)) FocusNativeWindow(window);
}

bool HeadlessBackend::IsNativeWindowMinimized(HWND window) const {
  const HeadlessWindow* found = mState->Find(window);
  return found && found->record.isMinimized;
}

bool HeadlessBackend::IsNativeWindowEnabled(HWND window) const {
  const HeadlessWindow* found = mState->Find(window);
  return found && !found->record.description.style.Has(kWindowStyle_Disabled);
}

HWND HeadlessBackend::GetNativeWindowOwner(HWND window) const {
  const HeadlessWindow* found = mState->Find(window);
  // An owner destroyed before its owned window leaves it unowned.
  if (!found || !mState->Find(found->record.description.owner)) return nullptr;
  return found->record.description.owner;
}

std::vector<HWND> HeadlessBackend::GetTopLevelWindows() const {
  std::vector<HWND> windows = GetWindowStack();
  std::reverse(windows.begin(), windows.end());
  return windows;
}

} // namespace kroui::backend
