#pragma once

#include <zel/Export.h>
#include <zel/commands/KeySpec.h>

#include <krocore/utility/ImmutableString.h>

#include <string>
#include <vector>

namespace ZEL {

/// What kind of command a declaration is. A menu command's enabled state
/// comes from the chain of commanders; an action (no menu item) is disabled
/// only by the application-wide filter.
enum class CommandKind : std::int32_t {
  Menu = 0,   ///< has a menu item
  Action = 1, ///< reached by shortcut or button only
  Hidden = 2, ///< an action not offered in the shortcut editor
};

/// One declared command: its stable name and ID, how it is shown, and its
/// shortcuts (the first one is the one menus display).
class ZEL_API CommandInfo {
public:
  CommandInfo() = default;
  CommandInfo(std::string name, std::int32_t id, CommandKind kind, std::string nonLocalizedUIString,
              UTF8String uiString, krocore::utility::ImmutableString bitmap, bool usesKeyUp);

  const std::string& GetCommandName() const noexcept { return mName; }
  std::int32_t GetCommandID() const noexcept { return mID; }
  CommandKind GetCommandKind() const noexcept { return mKind; }
  const UTF8String& GetUIString() const noexcept { return mUIString; }
  const std::string& GetNonLocalizedUIString() const noexcept { return mNonLocalizedUIString; }
  const krocore::utility::ImmutableString& GetCommandBitmap() const noexcept { return mBitmap; }
  bool GetUsesKeyUp() const noexcept { return mUsesKeyUp; }
  void SetUsesKeyUp(bool usesKeyUp) noexcept { mUsesKeyUp = usesKeyUp; }

  const std::vector<KeySpec>& GetShortcuts() const noexcept { return mShortcuts; }
  bool HasShortcuts() const noexcept { return !mShortcuts.empty(); }
  bool HasShortcut(const KeySpec& key) const;
  /// Adds a shortcut unless the command has it already; false then.
  bool AddShortcut(const KeySpec& key);
  /// Makes `key` the command's only shortcut.
  void SetShortcut(const KeySpec& key);
  void SetShortcuts(std::vector<KeySpec> keys);
  bool ClearShortcut(const KeySpec& key);
  void ClearShortcuts() noexcept { mShortcuts.clear(); }
  /// The shortcut menus show: the first one; an empty KeySpec when none.
  KeySpec GetMenuShortcut() const;

  const std::vector<UTF8String>& GetBlockedContextVec() const noexcept { return mBlockedContexts; }
  void AddBlockedContext(UTF8String contextName);

private:
  std::string mName;
  std::int32_t mID = 0;
  CommandKind mKind = CommandKind::Menu;
  std::string mNonLocalizedUIString;
  UTF8String mUIString;
  krocore::utility::ImmutableString mBitmap;
  bool mUsesKeyUp = false;
  std::vector<KeySpec> mShortcuts;
  std::vector<UTF8String> mBlockedContexts;
};

} // namespace ZEL
