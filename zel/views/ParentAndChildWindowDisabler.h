#pragma once

#include <zel/Export.h>

#include <kroui/os/NativeTypes.h>

#include <memory>

namespace ZEL::Windows {

struct ParentAndChildWindowDisablerImpl;

/// Makes a dialog modal to its parent window for as long as it lives:
///
///   {
///     Windows::ParentAndChildWindowDisabler disabler(mainWindow, true);
///     RunTheDialog();   // the main window and the windows it owns take no input
///   }                   // enabled again, the focus back where it was (FocusSaver)
///
/// It disables the parent and, when asked to, each enabled top-level window
/// the parent owns (palettes, other dialogs), and enables again exactly those
/// it disabled: a window that was disabled already stays so. Windows of kroui
/// are disabled through their UI_Window, others through the backend. UI thread only.
class ZEL_API ParentAndChildWindowDisabler {
public:
  /// A null parent disables nothing; the focus is still saved and restored.
  ParentAndChildWindowDisabler(HWND parent, bool disableOwnedWindows);
  ~ParentAndChildWindowDisabler();
  ParentAndChildWindowDisabler(const ParentAndChildWindowDisabler&) = delete;
  ParentAndChildWindowDisabler& operator=(const ParentAndChildWindowDisabler&) = delete;

private:
  std::unique_ptr<ParentAndChildWindowDisablerImpl> mImpl;
};

} // namespace ZEL::Windows
