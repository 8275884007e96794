#pragma once

#include <zel/Export.h>
#include <zel/commands/CommandContext.h>
#include <zel/commands/KeySpec.h>

#include <kroui/base/KeyboardEvent.h>

#include <cstdint>
#include <deque>
#include <filesystem>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace ZEL {

/// Turns keyboard events into commands for the target commander. The
/// window's key handling calls it twice per key:
///
///   key event -> DispatchKeyboardEvent(event, true)    pre-dispatch: only pre-dispatch commands
///             -> focused view's KeyDownSelf            the control may take the key
///             -> DispatchKeyboardEvent(event, false)   the shortcut of the current context
///             -> Commander::PostCommand up the chain
///
/// It owns the command contexts (the first is the application's) and knows
/// which one is current. UI thread only.
class ZEL_API ShortcutManager {
public:
  /// The singleton, or null before Initialize.
  static ShortcutManager* Instance() noexcept;
  static void Initialize();
  static void Finalize();

  static constexpr const char* kApplicationContextName = "Application";

  // Dispatch.
  bool DispatchKeyboardEvent(const kroui::ui::KeyboardEvent& event, bool preDispatch);
  static KeySpec MakeKeySpec(const kroui::ui::KeyboardEvent& event);
  bool CommandEnabled(const CommanderPtr& target, std::int32_t commandID);
  /// Tries an event as a minimal shortcut; leaves the override mode at 1.
  static bool CheckMinimalShortcut(const kroui::ui::KeyboardEvent& event);
  void SuspendContextChanges() noexcept { mSuspended = true; }
  void ResumeContextChanges() noexcept { mSuspended = false; }
  bool IsSuspended() const noexcept { return mSuspended; }

  /// 0: minimal map; 1: everything; 3: minimal map, and Alt keys go to the system.
  std::int32_t GetOverrideMode() const noexcept { return mOverrideMode; }
  void SetOverrideMode(std::int32_t mode) noexcept;
  bool UsesMinimalMap() const noexcept { return mMinimalMap; }
  bool AltPassesThrough() const noexcept { return mAltPassesThrough; }

  // Contexts.
  CommandContext& GetGlobalContext() const { return *mContexts.front(); }
  CommandContext& AddContext(const std::string& name, const UTF8String& uiName);
  CommandContext& GetContext(std::size_t index) const { return *mContexts.at(index); }
  /// An unknown name gives the application context, as index 0 does.
  CommandContext& GetContext(const std::string& name) const { return *mContexts[GetContextIndex(name)]; }
  std::size_t GetContextIndex(const std::string& name) const;
  std::size_t GetContextCount() const noexcept { return mContexts.size(); }
  const std::string& GetCurrentContextName() const noexcept { return mCurrentContextName; }
  /// Makes a context current (the focused panel's) and records it as used.
  void ApplyContext(const std::string& name);
  /// The most recently used of the given context names; empty when none was used.
  std::string GetMostRecentMatchingContext(const std::set<std::string>& names) const;
  /// A command declared menu-kind in the current or the application context.
  bool IsMenuCommand(std::int32_t commandID) const;

  // The pre-dispatch map: commands that go before the focused control.
  void SetPreDispatchMap();
  void AddCommandtoPreDispatchMap(std::int32_t commandID);
  bool IsInPreDispatchMap(std::int32_t commandID) const;

  // Immutable shortcuts: bound in every context, never changed by the user.
  void RegisterImmutable(std::int32_t commandID, const KeySpec& key);
  const std::map<std::int32_t, KeySpec>& GetImmutables() const noexcept { return mImmutables; }
  std::uint64_t GetImmutablesGeneration() const noexcept { return mImmutablesGeneration; }
  void GetImmutableKeySet(std::set<KeySpec>& keys) const;
  void GetImmutableCommandSet(std::set<std::int32_t>& commandIDs) const;

  // The application's default shortcuts, by "command." + command name.
  void SetDefaultShortcuts(const std::string& key, std::vector<KeySpec> shortcuts);
  const std::vector<KeySpec>* FindDefaultShortcuts(const std::string& key) const;

  // Command groups.
  void AddCommandToGroup(std::int32_t commandID, std::int32_t group);
  bool CommandIDContextMatch(std::int32_t first, std::int32_t second) const;

  // Keys during a drag go to the drag context's drag-enabled commands.
  void SetDragCommandContext(const std::string& name) { mDragContextName = name; }
  void SetDragInProgress(bool inProgress) noexcept { mDragInProgress = inProgress; }
  bool IsDragInProgress() const noexcept { return mDragInProgress; }

  // Tooltips of controls that fire commands.
  UTF8String GetTooltipText(std::int32_t commandID) const;
  UTF8String GetTooltipShortcutText(std::int32_t commandID) const;
  UTF8String GetTooltipAndShortcutText(std::int32_t commandID) const;

  // Shortcut sets: files of the user's shortcuts, one set per file. Presets
  // ship with the host and are never overwritten.
  static constexpr const char* kPreferenceShortcutsFilename = "FE.Prefs.Shortcuts.Filename";
  static constexpr const char* kDefaultPresetName = "Default";
  void SetShortcutSetFolders(std::filesystem::path userFolder, std::filesystem::path presetFolder);
  void RegisterPreset(const std::string& name, const UTF8String& displayName);
  /// Preset names with their display names, in registration order.
  const std::vector<std::pair<std::string, UTF8String>>& GetPresets() const noexcept { return mPresets; }
  bool IsPreset(const std::filesystem::path& path) const;
  /// Writes every context's shortcuts to a set file; a preset's path is refused.
  bool SaveSet(const std::filesystem::path& path);
  /// Reads a set file and puts its shortcuts in force. A file that cannot be
  /// used is named in a message box and changes nothing.
  bool ReadSet(const std::filesystem::path& path);
  /// The file of a set by name: the user's folder first, then the presets; empty when none.
  std::filesystem::path ResolveSet(const std::string& name) const;
  /// Reads a set by name and remembers it as the set in use.
  bool LoadSet(const std::string& name);
  /// Loads the set the preferences name, if any.
  bool LoadInitialKeyset();
  /// Reads the set in use again.
  bool RefreshSet();
  const std::string& GetCurrentSetName() const noexcept { return mCurrentSetName; }

private:
  ShortcutManager();
  void RegisterBuiltInPresets();

  bool TranslateKeyboardEvent(const kroui::ui::KeyboardEvent& event, bool preDispatch);
  bool TranslateKeyboardEvent(const KeySpec& key, bool keyDown, bool preDispatch);
  bool KeyRepeatsTranslateKeyboardEvent(const kroui::ui::KeyboardEvent& event);
  bool KeyUsesUpAndDownState(const kroui::ui::KeyboardEvent& event);
  bool DragTranslateKeyboardEvent(const kroui::ui::KeyboardEvent& event);
  CommandContext& CurrentContext() const { return *mContexts[mCurrentContextIndex]; }
  const CommandInfo* FindCommandForTooltip(std::int32_t commandID) const;

  std::int32_t mOverrideMode = 1;
  bool mMinimalMap = false;
  bool mAltPassesThrough = false;
  bool mSuspended = false;
  std::vector<std::shared_ptr<CommandContext>> mContexts;
  std::string mCurrentContextName;
  std::size_t mCurrentContextIndex = 0; // GetContextIndex(mCurrentContextName), kept in step
  std::deque<std::string> mRecentContexts;
  std::vector<std::int32_t> mPreDispatchMap; // sorted
  std::map<std::int32_t, KeySpec> mImmutables;
  std::uint64_t mImmutablesGeneration = 1;
  std::map<std::string, std::vector<KeySpec>, std::less<>> mDefaultShortcuts;
  std::map<std::int32_t, std::int32_t> mCommandGroups;
  std::string mDragContextName;
  bool mDragInProgress = false;
  std::filesystem::path mUserSetFolder, mPresetSetFolder;
  std::vector<std::pair<std::string, UTF8String>> mPresets;
  std::string mCurrentSetName;
};

} // namespace ZEL
