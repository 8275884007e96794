#include <kroworkspace/workspace/TopLevelWindow.h>
#include <kroworkspace/workspace/TopLevelWindowImpl.h>

#include <kroui/base/OS_Event.h>

namespace kroworkspace::workspace {

namespace {

kroui::backend::WindowDescription DescriptionAt(const kroui::backend::Rect& screenBounds) {
  kroui::backend::WindowDescription description;
  description.bounds = screenBounds;
  return description;
}

} // namespace

TopLevelWindow::TopLevelWindow(const kroui::backend::WindowDescription& description)
    : mImpl(std::make_unique<TopLevelWindowImpl>(description)) {}

TopLevelWindow::TopLevelWindow(const kroui::backend::Rect& screenBounds)
    : TopLevelWindow(DescriptionAt(screenBounds)) {}

TopLevelWindow::~TopLevelWindow() = default;

kroui::ui::UI_Window& TopLevelWindow::GetWindow() const noexcept { return mImpl->window; }

kroui::ui::UI_Container& TopLevelWindow::GetRoot() const noexcept { return mImpl->window.GetRoot(); }

// The hook gets a copy: it watches, and what it writes cannot reach the window.
void TopLevelWindow::SetEventHook(EventHook hook) {
  mImpl->eventHook = hook;
  if (!hook) {
    mImpl->window.SetEventHook(nullptr);
    return;
  }
  mImpl->window.SetEventHook([hook](const kroui::ui::OS_Event& event) {
    kroui::ui::OS_Event seen = event;
    hook(&seen);
    return false;
  });
}

TopLevelWindow::EventHook TopLevelWindow::GetEventHook() const noexcept { return mImpl->eventHook; }

} // namespace kroworkspace::workspace
