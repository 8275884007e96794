#include <zel/workspace/WindowContexts.h>

#include <zel/workspace/SwitchableTabView.h>
#include <zel/workspace/WindowClassRegistry.h>
#include <zel/workspace/WindowClasses.h>

#include <krocore/debug/Assert.h>

namespace ZEL {
namespace {

// The default window is the one of no view.
constexpr unsigned int kNoViewID = 0;

bool HoldsOnlyDefaultWindow(const UTF8String& className) {
  if (GetWindowCount(className) != 1 || GetWindowClassType(className) != WindowClassType::Single) return false;
  std::vector<WindowInfo> windows;
  GetWindows(className, windows);
  return windows.front().mWindowID == kDefaultWindowID && windows.front().mViewID == kNoViewID;
}

void AddDefaultWindow(const UTF8String& className, const UTF8String& name) {
  AddWindow(className, kDefaultWindowID, name, kDefaultWindowContextID);
}

} // namespace

void AddWindowContext(SwitchableTabView& view, const unsigned int& contextID, const UTF8String& className,
                      const UTF8String& name, const UTF8String& windowName) {
  if (!KROCORE_ASSERT(FindWindowClass(className), "AddWindowContext: unknown window class")) return;
  view.AddContextMenuItem(contextID, name);
  if (HoldsOnlyDefaultWindow(className)) RemoveWindow(className, kNoViewID, kDefaultWindowID, false);
  AddWindow(className, contextID, windowName.empty() ? name : windowName, 0);
  SetWindowViewID(className, contextID, view.GetViewID());
  SetWindowClassType(className, WindowClassType::Contexts);
}

void RenameWindowContext(SwitchableTabView& view, const unsigned int& contextID, const UTF8String& className,
                         const UTF8String& oldName, const UTF8String& newName) {
  if (oldName == newName) return;
  view.RenameContextMenuItem(contextID, newName);
  RenameWindow(className, contextID, newName, view.GetViewID());
}

void RemoveWindowContext(SwitchableTabView* view, const unsigned int& contextID, const UTF8String& className,
                         const UTF8String& name) {
  if (!FindWindowClass(className)) return;
  if (view) {
    view->RemoveContextMenuItem(contextID);
    RemoveWindow(className, view->GetViewID(), contextID, true);
  } else {
    RemoveWindow(className, contextID, true);
  }
  if (GetWindowCount(className) > 0) return;
  if (GetWindowClassType(className) == WindowClassType::Contexts) {
    SetWindowClassType(className, WindowClassType::Single);
    RemoveWindow(className, kDefaultWindowID, false);
  }
  AddDefaultWindow(className, name);
}

void RemoveAllWindowContexts(SwitchableTabView& view, const unsigned int& contextID, const UTF8String& className,
                             const UTF8String& name) {
  // A copy: removing changes the view's list.
  const std::vector<SwitchableTabView::ContextMenuItem> items = view.GetContextMenuItems();
  for (const SwitchableTabView::ContextMenuItem& item : items)
    if (item.mContextID != contextID) RemoveWindowContext(&view, item.mContextID, className, name);
}

void SwitchToEmptyContext(SwitchableTabView* view, const UTF8String& className, const UTF8String& name,
                          const UTF8String& emptyContextName) {
  if (view) {
    const unsigned int emptyID = view->GetEmptyContextID();
    view->AddContextMenuItem(emptyID, emptyContextName);
    view->SelectContextMenuItem(emptyID);
  }
  if (!FindWindowClass(className) || GetWindowCount(className) > 0) return;
  SetWindowClassType(className, WindowClassType::Single);
  AddDefaultWindow(className, name);
}

} // namespace ZEL
