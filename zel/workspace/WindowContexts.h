#pragma once

#include <zel/Export.h>
#include <zel/commands/CommandTypes.h>

// Window contexts: the contents a switchable tab view switches between. Each
// is an item of the view's context menu and a window of its class. A class
// without contexts keeps one default window (kDefaultWindowID), so that the
// window menu still lists it:
//
//   no context      -> type Single,   windows: [0 default]
//   add context 3   -> type Contexts, windows: [3]
//   remove 3        -> type Single,   windows: [0 default]

namespace ZEL {

class SwitchableTabView;

/// Adds a menu item `name` for the context and the context as a window
/// `windowName` (empty: `name`) of the class, which then holds contexts.
ZEL_API void AddWindowContext(SwitchableTabView& view, const unsigned int& contextID, const UTF8String& className,
                              const UTF8String& name, const UTF8String& windowName);
ZEL_API void RenameWindowContext(SwitchableTabView& view, const unsigned int& contextID, const UTF8String& className,
                                 const UTF8String& oldName, const UTF8String& newName);
/// Removes the context (of `view`, or by its ID alone without a view); a
/// class left without windows gets its default window `name` back.
ZEL_API void RemoveWindowContext(SwitchableTabView* view, const unsigned int& contextID, const UTF8String& className,
                                 const UTF8String& name);
/// Removes every context of `view` but `contextID`, the one the view keeps showing.
ZEL_API void RemoveAllWindowContexts(SwitchableTabView& view, const unsigned int& contextID,
                                     const UTF8String& className, const UTF8String& name);
/// Selects the view's empty context, adding its menu item `emptyContextName`;
/// a class without windows gets its default window `name`.
ZEL_API void SwitchToEmptyContext(SwitchableTabView* view, const UTF8String& className, const UTF8String& name,
                                  const UTF8String& emptyContextName);

} // namespace ZEL
