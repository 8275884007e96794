#pragma once

#include <zel/Export.h>
#include <zel/commands/CommandInfo.h>
#include <zel/commands/KeyCommandMap.h>

#include <krocore/Forward.h>

#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace ZEL {

/// Which key map of a context a lookup reads.
enum class CommandKeyMapID : std::int32_t {
  Standard = 1, ///< every shortcut in force
  Minimal = 2,  ///< only the commands declared minimal, while a text field holds the keyboard
  Fixed = 3,    ///< only the immutable shortcuts, on explicit request
};

/// A named set of declared commands with their shortcuts: the application
/// context, or one per kind of panel. Its key maps are derived from the
/// declarations and rebuilt when stale. A panel context's maps take in the
/// application's shortcuts and the immutable ones:
///
///   immutable shortcut      -> always bound, in every context
///   panel's own shortcut    -> wins over an application shortcut of the same key
///   application shortcut    -> bound where the panel has nothing on that key
class ZEL_API CommandContext {
public:
  CommandContext(std::string name, UTF8String uiString);
  ~CommandContext();
  CommandContext(const CommandContext&) = delete;
  CommandContext& operator=(const CommandContext&) = delete;

  const std::string& GetName() const noexcept { return mName; }
  const UTF8String& GetUIString() const noexcept { return mUIString; }
  bool IsHidden() const noexcept { return mHidden; }
  void SetHidden(bool hidden) noexcept { mHidden = hidden; }

  // Declarations. A command found in the application's default shortcut
  // table under "command." + its name starts with those shortcuts.
  void DeclareCommand(const std::string& name, std::int32_t id, CommandKind kind,
                      const std::string& nonLocalizedUIString, const krocore::utility::ImmutableString& bitmap,
                      bool usesKeyUp);
  void DeclareCommandLocalized(const std::string& name, std::int32_t id, CommandKind kind,
                               const UTF8String& localizedUIString, const krocore::utility::ImmutableString& bitmap,
                               bool usesKeyUp);
  /// Declares here a command declared in another context; false when none has it.
  bool DeclareCommandCopy(std::int32_t id);
  bool UndeclareCommand(std::int32_t id);

  void DeclareKeyRepeatsDisabledCommand(std::int32_t id);
  void DeclarePreDispatchCommand(std::int32_t id);
  void DeclarePreDispatchCommandLocalized(std::int32_t id) { DeclarePreDispatchCommand(id); }
  void DeclareDragEnabledCommand(std::int32_t id);
  /// A minimal command keeps its shortcuts while only minimal shortcuts work.
  void DeclareMinimalCommand(std::int32_t id);
  bool IsPreDispatchCommand(std::int32_t id) const { return mPreDispatch.contains(id); }
  bool IsDragEnabledCommand(std::int32_t id) const { return mDragEnabled.contains(id); }

  // Shortcuts of declared commands.
  bool SetCommandShortcuts(const std::string& name, std::vector<KeySpec> keys);
  bool AddCommandShortcut(const std::string& name, const KeySpec& key);
  bool BlockCommandInContext(const std::string& name, const UTF8String& contextName);
  void ClearShortcuts();
  /// Gives every command the shortcuts listed under its name, and none to the others.
  void ReplaceShortcuts(const std::map<std::string, std::vector<KeySpec>>& shortcutsByCommand);

  const std::map<std::string, CommandInfo, std::less<>>& GetCommandNameMap() const noexcept { return mCommands; }
  const std::map<std::int32_t, std::string>& GetCommandIDMap() const noexcept { return mNamesByID; }
  /// Empty for an unknown ID.
  const std::string& GetCommandNameFromID(std::int32_t id) const;
  const CommandInfo* FindCommand(std::int32_t id) const;

  // The questions of keyboard dispatch.
  bool GetCommandIDFromKeySpec(const KeySpec& key, CommandKeyMapID map, std::int32_t& id);
  bool KeyRepeatAllowed(const KeySpec& key);
  bool KeyUsesUpAndDown(const KeySpec& key);
  bool AllowedForExempt(const KeySpec& key);
  bool IsCommandBlockedForContext(std::int32_t id, const UTF8String& contextName) const;
  /// Some command declared in this context has the key.
  bool ShortcutInUse(const KeySpec& key) const;
  UTF8String FindCommandUIStringAndShortcuts(std::int32_t id, std::vector<KeySpec>& shortcuts) const;
  /// The command's menu text with its shortcut appended after a tab.
  UTF8String GetMenuText(std::int32_t id);

  void BuildKeyCommandMapsIfNeeded();
  void ClearKeyCommandMaps() noexcept { mMapsStale = true; }
  const KeyCommandMap& GetKeyCommandMap(CommandKeyMapID map);

  /// Changes with every change of this context's declarations or shortcuts;
  /// unique across contexts, so maps built from another context can tell.
  std::uint64_t GetGeneration() const noexcept { return mGeneration; }

  void AddWindowMenuID(const std::string& menuID);
  void RemoveWindowMenuID(const std::string& menuID);
  const std::vector<std::string>& GetWindowMenuIDs() const noexcept { return mWindowMenuIDs; }

private:
  void Declare(CommandInfo info);
  void Insert(CommandInfo info);
  void Changed() noexcept;
  bool MapsAreStale() const;
  void BuildKeyCommandMaps();
  struct MapBuild;
  void AddBindingsOf(const CommandContext& source, MapBuild& build) const;
  void AppendAccelerator(const CommandInfo& info);
  const KeyCommandMap* MapFor(CommandKeyMapID map) const noexcept;
  bool ResolveCommandList(const std::vector<std::int32_t>& ids, std::int32_t& id) const;

  std::string mName;
  UTF8String mUIString;
  bool mHidden = false;
  std::map<std::string, CommandInfo, std::less<>> mCommands;
  std::map<std::int32_t, std::string> mNamesByID;
  std::vector<std::int32_t> mDeclarationOrder; // several commands on one key are asked in this order
  std::set<std::int32_t> mRepeatDisabled, mPreDispatch, mDragEnabled, mMinimal;
  std::vector<std::string> mWindowMenuIDs;

  // Derived from the declarations (and the application context's).
  KeyCommandMap mMaps[3];
  std::vector<KeySpec> mUpAndDownKeys;
  std::vector<KeySpec> mExemptKeys;
  std::set<std::int32_t> mRepeatDisabledInForce; // own and the application's
  std::map<std::int32_t, UTF8String> mMenuTexts;
  bool mMapsStale = true;
  std::uint64_t mGeneration = 1;
  std::uint64_t mBuiltFromGlobal = 0;
  std::uint64_t mBuiltFromImmutables = 0;
};

} // namespace ZEL
