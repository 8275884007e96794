#pragma once

#include <zel/Export.h>
#include <zel/commands/CommandTypes.h>
#include <zel/workspace/IProject.h>
#include <zel/workspace/WindowClassCallback.h>
#include <zel/workspace/WindowInfo.h>

#include <cstdint>
#include <memory>
#include <vector>

// The registry of window classes behind the host's window menu. A class is one
// kind of panel, a window one open instance of it; each gets a command so that
// it can be chosen from the menu or bound to a key:
//
//   "Timelines"            class   -> command "window.Timelines" (global context)
//     0 "Sequence 01"      window  -> synthetic command, made by ForEachWindowClass
//     1 "Sequence 02"      window  -> synthetic command
//
// One process-wide registry; UI thread only.

namespace ZEL {

/// How a class holds its windows.
enum class WindowClassType : std::int32_t {
  Unknown = 0,
  Single = 1,   ///< only its default window
  Multiple = 2, ///< several independent windows
  Contexts = 3, ///< the contexts of switchable tab views
};

constexpr unsigned int kDefaultWindowID = 0;
constexpr unsigned int kDefaultWindowContextID = 0;

// Classes.
/// Registers the class and declares its command, localized, in the shortcut
/// manager's global context; the context's key maps are rebuilt with it.
ZEL_API void AddWindowClass(const UTF8String& className, const UTF8String& displayName, WindowClassType type);
ZEL_API void RemoveWindowClass(const UTF8String& className);
ZEL_API void SetWindowClassType(const UTF8String& className, WindowClassType type);
/// Unknown for an unknown class.
ZEL_API WindowClassType GetWindowClassType(const UTF8String& className);
ZEL_API void SetWindowClassCommandID(const UTF8String& className, int commandID);
/// 0 for an unknown class.
ZEL_API int GetWindowClassCommandID(const UTF8String& className);
/// Empty for an unknown class.
ZEL_API UTF8String GetWindowClassDisplayName(const UTF8String& className);
/// The localized display name of a standard class name; any other name is returned as it is.
ZEL_API UTF8String SetWindowClassDisplayName(const UTF8String& className);
ZEL_API void SetWindowClassWindowInfoCommandID(const UTF8String& className, unsigned int windowID, int commandID);
/// Calls `callback` once per class in the order of `sort`, after giving every
/// window without a command a synthetic one.
ZEL_API void ForEachWindowClass(WindowClassCallback& callback, WindowClassSortCallback& sort);

// Windows. Adding a window ID the class has already replaces that window.
ZEL_API void AddWindow(const UTF8String& className, const unsigned int& windowID, const UTF8String& name,
                       const unsigned int& commandID);
ZEL_API void AddWindow(const UTF8String& className, const unsigned int& windowID, const UTF8String& name,
                       std::weak_ptr<krocore::classref::UnknownBase> project,
                       std::weak_ptr<krocore::classref::UnknownBase> item, const unsigned int& commandID);
/// Removes every window `windowID`, of any tab view or none. With
/// `unregisterCommand`, a synthetic command of the window is forgotten too.
ZEL_API void RemoveWindow(const UTF8String& className, const unsigned int& windowID, bool unregisterCommand);
/// Removes the window of context `contextID` in the tab view `viewID`.
ZEL_API void RemoveWindow(const UTF8String& className, const unsigned int& viewID, const unsigned int& contextID,
                          bool unregisterCommand);
/// Removes the windows that belong to `project`, in the tab view `viewID` (0: in any view or none).
ZEL_API void RemoveWindow(const UTF8String& className, const InterfaceRef<IProject>& project,
                          const unsigned int& viewID);
/// Renames the window `windowID` of the tab view `viewID` (0: a window of no view).
ZEL_API void RenameWindow(const UTF8String& className, const unsigned int& windowID, const UTF8String& newName,
                          const unsigned int& viewID);
ZEL_API std::uint64_t GetWindowCount(const UTF8String& className);
/// Replaces `windows` with the class's windows in the order they were added.
ZEL_API void GetWindows(const UTF8String& className, std::vector<WindowInfo>& windows);

} // namespace ZEL
