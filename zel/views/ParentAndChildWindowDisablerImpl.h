#pragma once

// Private: what a ParentAndChildWindowDisabler keeps.

#include <zel/views/FocusSaver.h>

#include <kroui/os/NativeTypes.h>

#include <vector>

namespace ZEL::Windows {

struct ParentAndChildWindowDisablerImpl {
  HWND parent = nullptr;
  bool wasParentEnabled = false;
  /// First in, last out: it restores the focus once every window is enabled again.
  FocusSaver focusSaver;
  /// The owned windows this disabler disabled, to enable again.
  std::vector<HWND> disabled;
};

} // namespace ZEL::Windows
