#pragma once

#include <zel/Export.h>
#include <zel/commands/CommandTypes.h>

#include <memory>
#include <optional>
#include <vector>

namespace ZEL {

class WindowContextHandler;

/// A tab view that switches between several contents, its contexts. Each
/// context is an item of the tab's context menu and, through the window
/// context functions, a window of its class:
///
///   tab view 7, context menu          class "Timelines"
///     [3] "Sequence 01"   <------->     window 3 of view 7
///     [5] "Sequence 02"   <------->     window 5 of view 7
///
/// Only what window contexts need is here: the menu items and the handler
/// that names the empty context. The tab itself, its panel and its drawing
/// come with the workspace.
class ZEL_API SwitchableTabView {
public:
  struct ContextMenuItem {
    unsigned int mContextID = 0;
    UTF8String mName;
  };

  /// `viewID` tells this view's contexts from another's in the window registry.
  explicit SwitchableTabView(unsigned int viewID);
  ~SwitchableTabView();
  SwitchableTabView(const SwitchableTabView&) = delete;
  SwitchableTabView& operator=(const SwitchableTabView&) = delete;

  unsigned int GetViewID() const noexcept;

  /// Appends an item; false when the context has one already.
  bool AddContextMenuItem(unsigned int contextID, const UTF8String& name);
  bool RemoveContextMenuItem(unsigned int contextID);
  bool RenameContextMenuItem(unsigned int contextID, const UTF8String& name);
  /// False for a context without an item; the selection is then kept.
  bool SelectContextMenuItem(unsigned int contextID);
  /// The items in menu order.
  const std::vector<ContextMenuItem>& GetContextMenuItems() const noexcept;
  std::optional<unsigned int> GetSelectedContextID() const noexcept;

  /// The host's handler; null leaves the empty context at kDefaultWindowContextID.
  void SetContextHandler(std::shared_ptr<WindowContextHandler> handler);
  unsigned int GetEmptyContextID() const;

private:
  struct Impl;
  std::unique_ptr<Impl> mImpl;
};

} // namespace ZEL
