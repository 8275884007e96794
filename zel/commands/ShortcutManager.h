#pragma once

#include <zel/Export.h>
#include <zel/commands/CommandContext.h>
#include <zel/commands/KeySpec.h>

#include <kroui/Forward.h>

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace ZEL {

struct ShortcutManagerImpl;

/// Turns keyboard events into commands for the target commander. The
/// window's key handling calls it twice per key:
///
///   key event -> DispatchKeyboardEvent(event, true)    pre-dispatch: only pre-dispatch commands
///             -> focused view's KeyDownSelf            the control may take the key
///             -> DispatchKeyboardEvent(event, false)   the shortcut of the current context
///             -> Commander::PostCommand up the chain
///
/// It owns the command contexts (the first is the application's) and knows
/// which one is current. This class is the front; three private parts do the
/// work:
///
///   ShortcutManager
///     ContextRegistry      contexts, the current and recent ones, groups, immutables, pre-dispatch map
///     ShortcutDispatcher   key event -> command, reading the registry
///     ShortcutSetLibrary   set files, presets, the set in use, and what the user is told
///
/// UI thread only.
class ZEL_API ShortcutManager {
public:
  /// The singleton, or null before Initialize.
  static ShortcutManager* Instance() noexcept;
  static void Initialize();
  static void Finalize();

  ~ShortcutManager();
  ShortcutManager(const ShortcutManager&) = delete;
  ShortcutManager& operator=(const ShortcutManager&) = delete;

  static constexpr const char* kApplicationContextName = "Application";

  // Dispatch.
  bool DispatchKeyboardEvent(const kroui::ui::KeyboardEvent& event, bool preDispatch);
  static KeySpec MakeKeySpec(const kroui::ui::KeyboardEvent& event);
  bool CommandEnabled(const CommanderPtr& target, std::int32_t commandID);
  /// Tries an event as a minimal shortcut; leaves the override mode at kOverrideMode_Everything.
  static bool CheckMinimalShortcut(const kroui::ui::KeyboardEvent& event);
  void SuspendContextChanges() noexcept;
  void ResumeContextChanges() noexcept;
  bool IsSuspended() const noexcept;

  /// The override modes: which key map dispatch reads, and where Alt keys go.
  static constexpr std::int32_t kOverrideMode_MinimalMap = 0;            ///< only minimal shortcuts
  static constexpr std::int32_t kOverrideMode_Everything = 1;            ///< every shortcut (the default)
  static constexpr std::int32_t kOverrideMode_MinimalMapAltToSystem = 3; ///< minimal; Alt keys go to the system
  std::int32_t GetOverrideMode() const noexcept;
  /// Another value is kept as the mode and leaves the flags as they were.
  void SetOverrideMode(std::int32_t mode) noexcept;
  bool UsesMinimalMap() const noexcept;
  bool AltPassesThrough() const noexcept;

  // Contexts.
  CommandContext& GetGlobalContext() const;
  CommandContext& AddContext(const std::string& name, const UTF8String& uiName);
  CommandContext& GetContext(std::size_t index) const;
  /// An unknown name gives the application context, as index 0 does.
  CommandContext& GetContext(const std::string& name) const;
  std::size_t GetContextIndex(const std::string& name) const;
  std::size_t GetContextCount() const noexcept;
  const std::string& GetCurrentContextName() const noexcept;
  /// Makes a context current (the focused panel's) and records it as used.
  void ApplyContext(const std::string& name);
  /// The most recently used of the given context names; empty when none was used.
  std::string GetMostRecentMatchingContext(const std::set<std::string>& names) const;
  /// A command declared menu-kind in the current or the application context.
  bool IsMenuCommand(std::int32_t commandID) const;

  // The pre-dispatch map: commands that go before the focused control. It
  // starts with the standard file and application commands and the host's
  // pre-dispatch commands (CommandTypes.h).
  void SetPreDispatchMap();
  void AddCommandtoPreDispatchMap(std::int32_t commandID);
  bool IsInPreDispatchMap(std::int32_t commandID) const;

  // Immutable shortcuts: bound in every context, never changed by the user.
  void RegisterImmutable(std::int32_t commandID, const KeySpec& key);
  const std::map<std::int32_t, KeySpec>& GetImmutables() const noexcept;
  std::uint64_t GetImmutablesGeneration() const noexcept;
  void GetImmutableKeySet(std::set<KeySpec>& keys) const;
  void GetImmutableCommandSet(std::set<std::int32_t>& commandIDs) const;

  // The application's default shortcuts, by "command." + command name.
  void SetDefaultShortcuts(const std::string& key, std::vector<KeySpec> shortcuts);
  const std::vector<KeySpec>* FindDefaultShortcuts(const std::string& key) const;

  // Command groups.
  void AddCommandToGroup(std::int32_t commandID, std::int32_t group);
  bool CommandIDContextMatch(std::int32_t first, std::int32_t second) const;

  // Keys during a drag go to the drag context's drag-enabled commands.
  void SetDragCommandContext(const std::string& name);
  void SetDragInProgress(bool inProgress) noexcept;
  bool IsDragInProgress() const noexcept;

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
  const std::vector<std::pair<std::string, UTF8String>>& GetPresets() const noexcept;
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
  const std::string& GetCurrentSetName() const noexcept;

private:
  ShortcutManager();

  std::unique_ptr<ShortcutManagerImpl> mImpl;
};

} // namespace ZEL
