#pragma once

#include <kroworkspace/Export.h>
#include <kroworkspace/Forward.h>

#include <kroui/Forward.h>
#include <kroui/backend/BackendTypes.h>

#include <memory>

namespace kroworkspace::workspace {

/// A top-level window of the workspace. For now it owns one kroui window and
/// lets its owner watch that window's events:
///
///   backend --OS_Event--> event hook (a copy, seen first; never consumes)
///                     --> the kroui window (keyboard hooks, nodes, painting)
///
/// The workspace's frames and tab panels will live in the window's root. UI thread only.
class KROWORKSPACE_API TopLevelWindow {
public:
  using EventHook = void (*)(kroui::ui::OS_Event*);

  explicit TopLevelWindow(const kroui::backend::WindowDescription& description);
  explicit TopLevelWindow(const kroui::backend::Rect& screenBounds);
  ~TopLevelWindow();
  TopLevelWindow(const TopLevelWindow&) = delete;
  TopLevelWindow& operator=(const TopLevelWindow&) = delete;

  kroui::ui::UI_Window& GetWindow() const noexcept;
  kroui::ui::UI_Container& GetRoot() const noexcept;

  /// Shows `hook` each event of the window before the window handles it; null for none.
  void SetEventHook(EventHook hook);
  EventHook GetEventHook() const noexcept;

private:
  std::unique_ptr<TopLevelWindowImpl> mImpl;
};

} // namespace kroworkspace::workspace
