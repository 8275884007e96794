#pragma once

#include <zel/Export.h>
#include <zel/commands/CommandTypes.h>

#include <memory>

namespace ZEL {

struct FocusSaverImpl;

/// Keeps the keyboard focus across a dialog. Made before the dialog runs, it
/// notes who has the focus; destroyed after, it gives the focus back:
///
///   FocusSaver saver;         // the focused node of the active window, weakly
///   RunTheDialog();           // the focus moves into the dialog and its window goes
///   // ~FocusSaver: the saved node focused again, its window activated;
///   //              the node gone meanwhile: its window's focus cleared instead
///
/// Until the workspace exists, the focus it keeps is the platform's: the
/// focused node of the active top-level window. UI thread only.
class ZEL_API FocusSaver {
public:
  FocusSaver();
  ~FocusSaver();
  FocusSaver(const FocusSaver&) = delete;
  FocusSaver& operator=(const FocusSaver&) = delete;

  /// Leaves the focus where it will be: the destructor restores nothing.
  void Clear();
  /// The type of the saved tab view; empty while no tab view can be saved.
  UTF8String GetTabViewType() const;

private:
  std::unique_ptr<FocusSaverImpl> mImpl;
};

} // namespace ZEL
