#pragma once

#include <kroworkspace/workspace/TopLevelWindow.h>

#include <kroui/ui/UI_Window.h>

namespace kroworkspace::workspace {

class TopLevelWindowImpl {
public:
  explicit TopLevelWindowImpl(const kroui::backend::WindowDescription& description) : window(description) {}

  kroui::ui::UI_Window window;
  TopLevelWindow::EventHook eventHook = nullptr;
};

} // namespace kroworkspace::workspace
