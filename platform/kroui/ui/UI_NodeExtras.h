#pragma once

// Private: the rarely used state of a node, made on first use.

#include <kroui/Forward.h>
#include <kroui/ui/UI_Node.h>

#include <memory>
#include <string>

namespace kroui::ui {

struct UI_NodeExtras {
  std::string toolTipText;
  int toolTipDelay = kToolTipDelay_Default;
  std::shared_ptr<UI_Animator> animator;
  /// The double buffer; shared so that only the painter needs to know how to destroy it.
  std::shared_ptr<drawbot::RasterSurface> offscreen;
  std::shared_ptr<UI_NodeAnchor> anchor;
  Point downPoint;
  Point movePoint;
  Point upPoint;
  PointerEvent::SubType dispatchingSubType = PointerEvent::SubType::Mouse;
  /// Set on a window's root container only.
  UI_Window* window = nullptr;
};

} // namespace kroui::ui
