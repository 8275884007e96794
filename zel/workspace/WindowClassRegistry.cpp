#include <zel/workspace/WindowClassRegistry.h>

#include <memory>

namespace ZEL {
namespace {

std::unique_ptr<WindowClassMap> sClasses;

} // namespace

WindowClassMap& GetWindowClassMap() {
  if (!sClasses) sClasses = std::make_unique<WindowClassMap>();
  return *sClasses;
}

WindowClassEntry* FindWindowClass(const UTF8String& className) {
  auto found = GetWindowClassMap().find(className);
  return found == GetWindowClassMap().end() ? nullptr : &found->second;
}

void SetWindowViewID(const UTF8String& className, unsigned int windowID, unsigned int viewID) {
  WindowClassEntry* entry = FindWindowClass(className);
  if (!entry) return;
  for (WindowInfo& window : entry->mWindows)
    if (window.mWindowID == windowID && window.mViewID == 0) window.mViewID = viewID;
}

namespace detail {
void ResetWindowClassRegistry() {
  sClasses.reset();
}
} // namespace detail

} // namespace ZEL
