#pragma once
// Private to the shortcut manager (ShortcutManagerImpl.h).

#include <zel/commands/CommandContext.h>
#include <zel/commands/KeySpec.h>

#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace ZEL {

/// The records the shortcut manager keeps about commands: the contexts
/// (the first is the application's), which one is current and which were
/// used lately, the pre-dispatch map, the immutable shortcuts, the
/// application's default shortcuts and the command groups. It decides
/// nothing about keys; the dispatcher reads it on every key press, so the
/// questions it asks are answered inline.
class ContextRegistry {
public:
  /// Makes the application context first: the dispatcher falls back to it
  /// on every key, so the list is never empty.
  explicit ContextRegistry(const std::string& applicationContextName);

  CommandContext& AddContext(const std::string& name, const UTF8String& uiName);
  CommandContext& GetGlobalContext() const { return *mContexts.front(); }
  /// An index past the end is reported and gives the application context.
  CommandContext& GetContext(std::size_t index) const;
  /// An unknown name gives the application context.
  CommandContext& GetContext(const std::string& name) const { return *mContexts[GetContextIndex(name)]; }
  std::size_t GetContextIndex(const std::string& name) const;
  std::size_t GetContextCount() const noexcept { return mContexts.size(); }

  CommandContext& GetCurrentContext() const { return *mContexts[mCurrentContextIndex]; }
  const std::string& GetCurrentContextName() const noexcept { return mCurrentContextName; }
  void ApplyContext(const std::string& name);
  std::string GetMostRecentMatchingContext(const std::set<std::string>& names) const;
  /// The command as the current context declares it, else as the application's does; null when neither.
  const CommandInfo* FindCommandInForce(std::int32_t commandID) const;
  bool IsMenuCommand(std::int32_t commandID) const;

  /// Back to the built-in pre-dispatch commands.
  void SetPreDispatchMap();
  void AddCommandToPreDispatchMap(std::int32_t commandID);
  bool IsInPreDispatchMap(std::int32_t commandID) const;

  void RegisterImmutable(std::int32_t commandID, const KeySpec& key);
  const std::map<std::int32_t, KeySpec>& GetImmutables() const noexcept { return mImmutables; }
  std::uint64_t GetImmutablesGeneration() const noexcept { return mImmutablesGeneration; }
  void GetImmutableKeySet(std::set<KeySpec>& keys) const;
  void GetImmutableCommandSet(std::set<std::int32_t>& commandIDs) const;

  void SetDefaultShortcuts(const std::string& key, std::vector<KeySpec> shortcuts);
  const std::vector<KeySpec>* FindDefaultShortcuts(const std::string& key) const;

  void AddCommandToGroup(std::int32_t commandID, std::int32_t group);
  bool CommandIDContextMatch(std::int32_t first, std::int32_t second) const;

private:
  std::vector<std::unique_ptr<CommandContext>> mContexts;
  std::string mCurrentContextName;
  std::size_t mCurrentContextIndex = 0; // GetContextIndex(mCurrentContextName), kept in step
  std::deque<std::string> mRecentContexts;
  std::vector<std::int32_t> mPreDispatchMap; // sorted
  std::map<std::int32_t, KeySpec> mImmutables;
  std::uint64_t mImmutablesGeneration = 1;
  std::map<std::string, std::vector<KeySpec>, std::less<>> mDefaultShortcuts;
  std::map<std::int32_t, std::int32_t> mCommandGroups;
};

} // namespace ZEL
