#include <zel/views/TopLevelWindow.h>
#include <zel/views/TopLevelWindowImpl.h>

#include <zel/commands/ShortcutManager.h>

#include <kroui/ui/UI_Window.h>

namespace ZEL {

namespace {

// Where a window goes when its creator names no place: 800x600 near the primary display's corner.
constexpr krocore::geom::RectT<int> kDefaultBounds{100, 100, 900, 700};

bool DispatchShortcut(const kroui::ui::KeyboardEvent& event, bool preDispatch) {
  ShortcutManager* manager = ShortcutManager::Instance();
  return manager && manager->DispatchKeyboardEvent(event, preDispatch);
}

} // namespace

TopLevelWindowImpl::TopLevelWindowImpl(Workspace* owner, const krocore::geom::RectT<int>& bounds)
    : workspace(owner), window(bounds) {
  InstallShortcutDispatch();
}

void TopLevelWindowImpl::InstallShortcutDispatch() {
  kroui::ui::UI_Window& platform = window.GetWindow();
  platform.SetKeyboardPreDispatchHook([](const kroui::ui::KeyboardEvent& e) { return DispatchShortcut(e, true); });
  platform.SetKeyboardPostDispatchHook([](const kroui::ui::KeyboardEvent& e) { return DispatchShortcut(e, false); });
}

TopLevelWindow::TopLevelWindow(Workspace* workspace, bool visible, const krocore::geom::RectT<int>* bounds)
    : mImpl(std::make_shared<TopLevelWindowImpl>(workspace, bounds ? *bounds : kDefaultBounds)) {
  if (visible) mImpl->window.GetWindow().Show();
}

TopLevelWindow::TopLevelWindow(Workspace* workspace, void (*eventHook)(kroui::ui::OS_Event*))
    : mImpl(std::make_shared<TopLevelWindowImpl>(workspace, kDefaultBounds)) {
  mImpl->window.SetEventHook(eventHook);
}

TopLevelWindow::~TopLevelWindow() = default;

kroworkspace::workspace::TopLevelWindow* TopLevelWindow::GetPtr() const noexcept { return &mImpl->window; }

} // namespace ZEL
