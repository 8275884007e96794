#pragma once

#include <zel/Export.h>
#include <zel/Forward.h>

#include <krocore/geom/Geometry.h>
#include <kroui/Forward.h>
#include <kroworkspace/Forward.h>

#include <memory>

namespace ZEL {

class TopLevelWindowImpl;

/// A handle to a platform top-level window. Every one carries the road of a
/// keystroke on its window's keyboard hooks:
///
///   key --> ShortcutManager::DispatchKeyboardEvent(event, true)    pre-dispatch commands   true: done
///       --> focused view's KeyDownSelf, then its super-views'      a view takes it         true: done
///       --> ShortcutManager::DispatchKeyboardEvent(event, false)   the context's shortcut
///
/// Without a shortcut manager the hooks take nothing and keys go on as usual.
/// Copies share one window, which lives until the last copy goes.
///
/// The workspace argument names the workspace the window will belong to; until
/// the workspace exists it is kept and may be null. UI thread only.
class ZEL_API TopLevelWindow {
public:
  /// A window at `bounds` on the screen (null: the default placement), shown
  /// at once when `visible`.
  TopLevelWindow(Workspace* workspace, bool visible, const krocore::geom::RectT<int>* bounds);
  /// A hidden window at the default placement whose `eventHook` sees each of
  /// its platform events first (a copy; it cannot consume them).
  TopLevelWindow(Workspace* workspace, void (*eventHook)(kroui::ui::OS_Event*));
  virtual ~TopLevelWindow();
  TopLevelWindow(const TopLevelWindow&) = default;
  TopLevelWindow& operator=(const TopLevelWindow&) = default;

  kroworkspace::workspace::TopLevelWindow* GetPtr() const noexcept;

private:
  std::shared_ptr<TopLevelWindowImpl> mImpl;
};

} // namespace ZEL
