#pragma once

#include <kroui/Export.h>

#include <functional>

namespace kroui::ui {

/// The one function the theme calls when the skin version changes, before the
/// theme change is notified: a framework reloads its colours there, since the
/// way colour names resolve changed with the version.
using SkinVersionChangedFunction = std::function<void(int newVersion)>;

/// Installs `function` (empty: none) and returns the one it replaces.
KROUI_API SkinVersionChangedFunction SetSkinVersionChangedFunction(SkinVersionChangedFunction function);
KROUI_API bool HasSkinVersionChangedFunction();
/// Calls the installed function, if any, on this thread.
KROUI_API void CallSkinVersionChangedFunction(int newVersion);

} // namespace kroui::ui
