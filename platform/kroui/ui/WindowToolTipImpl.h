#pragma once

// Private: the tooltip of the node under a window's pointer.

#include <kroui/Forward.h>
#include <kroui/base/PointerEvent.h>

#include <span>

namespace kroui::ui {

/// Chooses the tooltip when the nodes under the pointer change, waits for the
/// node's delay on the window's timers, then shows it through the
/// ToolTipManager just below the pointer:
///
///   hover changes --> Start: owner = an ancestor showing it for the child, else
///                     the deepest node with text --> timer --> ToolTipManager::Show
///   press, key, wheel, leave, hide --> Cancel
class WindowToolTip {
public:
  /// `pointer` is where the pointer was last seen, in window coordinates: read when the tooltip shows.
  WindowToolTip(UI_Window& window, const Point& pointer) : mWindow(window), mPointer(pointer) {}
  WindowToolTip(const WindowToolTip&) = delete;
  WindowToolTip& operator=(const WindowToolTip&) = delete;

  /// Chooses the tooltip for `hover`, the nodes under the pointer from the root down.
  /// The same owner as before keeps its tooltip showing, or keeps waiting.
  void Start(std::span<UI_Node* const> hover);
  /// Hides the tooltip, or stops waiting for it.
  void Cancel();
  /// The node whose tooltip is showing or waiting; null for none.
  UI_Node* GetNode() const noexcept { return mNode; }

private:
  static UI_Node* FindOwner(std::span<UI_Node* const> hover);
  void ShowNow();

  UI_Window& mWindow;
  const Point& mPointer;
  UI_Node* mNode = nullptr;
};

} // namespace kroui::ui
