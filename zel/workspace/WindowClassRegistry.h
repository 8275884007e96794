#pragma once

// Private to the workspace: the process-wide registry of window classes.

#include <zel/Export.h>
#include <zel/workspace/WindowClasses.h>

#include <map>
#include <vector>

namespace ZEL {

struct WindowClassEntry {
  UTF8String mDisplayName;
  WindowClassType mType = WindowClassType::Unknown;
  int mCommandID = 0;
  std::vector<WindowInfo> mWindows; // in the order they were added
};

using WindowClassMap = std::map<UTF8String, WindowClassEntry>;

/// The registry; created on first use.
WindowClassMap& GetWindowClassMap();
/// The class's entry, or null for an unknown class.
WindowClassEntry* FindWindowClass(const UTF8String& className);
/// Tags the window `windowID` as the context of tab view `viewID`.
void SetWindowViewID(const UTF8String& className, unsigned int windowID, unsigned int viewID);

namespace detail {
/// Forgets every class, so that tests start from an empty registry.
ZEL_API void ResetWindowClassRegistry();
} // namespace detail

} // namespace ZEL
