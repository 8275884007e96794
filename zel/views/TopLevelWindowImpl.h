#pragma once

// Private: what the copies of one TopLevelWindow share.

#include <zel/views/TopLevelWindow.h>

#include <kroworkspace/workspace/TopLevelWindow.h>

namespace ZEL {

class TopLevelWindowImpl {
public:
  TopLevelWindowImpl(Workspace* workspace, const krocore::geom::RectT<int>& bounds);

  /// The workspace the window belongs to; null until the workspace exists.
  Workspace* const workspace;
  kroworkspace::workspace::TopLevelWindow window;

private:
  void InstallShortcutDispatch();
};

} // namespace ZEL
