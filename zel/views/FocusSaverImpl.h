#pragma once

// Private: what a FocusSaver keeps.

#include <kroui/ui/RefCountedWeakPtr.h>
#include <kroui/ui/UI_Node.h>

namespace ZEL {

struct FocusSaverImpl {
  /// The root of the window that was active: it finds the window again, if it still has one.
  kroui::ui::RefCountedWeakPtr<kroui::ui::UI_Node> windowRoot;
  /// The node that had the focus in that window; empty for none.
  kroui::ui::RefCountedWeakPtr<kroui::ui::UI_Node> focused;
  bool shouldRestore = true;

  void Save();
  void Restore() const;
};

} // namespace ZEL
