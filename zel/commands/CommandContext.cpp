#include <zel/commands/CommandContext.h>

#include <zel/commands/Commander.h>
#include <zel/commands/ShortcutManager.h>

#include <algorithm>
#include <atomic>

namespace ZEL {
namespace {

std::atomic<std::uint64_t> sNextGeneration{1};

const std::string kNoName;

bool SortedContains(const std::vector<KeySpec>& keys, const KeySpec& key) {
  return std::binary_search(keys.begin(), keys.end(), key);
}

} // namespace

CommandContext::CommandContext(std::string name, UTF8String uiString)
    : mName(std::move(name)), mUIString(std::move(uiString)), mGeneration(sNextGeneration++) {}

CommandContext::~CommandContext() = default;

void CommandContext::Changed() noexcept {
  mGeneration = sNextGeneration++;
  mMapsStale = true;
}

void CommandContext::DeclareCommand(const std::string& name, std::int32_t id, CommandKind kind,
                                    const std::string& nonLocalizedUIString,
                                    const krocore::utility::ImmutableString& bitmap, bool usesKeyUp) {
  Declare(CommandInfo(name, id, kind, nonLocalizedUIString, nonLocalizedUIString, bitmap, usesKeyUp));
}

void CommandContext::DeclareCommandLocalized(const std::string& name, std::int32_t id, CommandKind kind,
                                             const UTF8String& localizedUIString,
                                             const krocore::utility::ImmutableString& bitmap, bool usesKeyUp) {
  Declare(CommandInfo(name, id, kind, name, localizedUIString, bitmap, usesKeyUp));
}

void CommandContext::Declare(CommandInfo info) {
  if (auto* manager = ShortcutManager::Instance())
    if (const auto* defaults = manager->FindDefaultShortcuts("command." + info.GetCommandName()))
      info.SetShortcuts(*defaults);
  UndeclareCommand(info.GetCommandID());
  Insert(std::move(info));
}

void CommandContext::Insert(CommandInfo info) {
  if (auto named = mCommands.find(info.GetCommandName()); named != mCommands.end())
    UndeclareCommand(named->second.GetCommandID()); // a name stands for one command
  mNamesByID[info.GetCommandID()] = info.GetCommandName();
  mDeclarationOrder.push_back(info.GetCommandID());
  mCommands.insert_or_assign(info.GetCommandName(), std::move(info));
  Changed();
}

bool CommandContext::DeclareCommandCopy(std::int32_t id) {
  auto* manager = ShortcutManager::Instance();
  for (std::size_t i = 0; manager && i < manager->GetContextCount(); ++i) {
    const CommandContext& other = manager->GetContext(i);
    if (&other == this) continue;
    if (const CommandInfo* info = other.FindCommand(id)) {
      CommandInfo copy = *info;
      UndeclareCommand(id);
      Insert(std::move(copy));
      return true;
    }
  }
  return false;
}

bool CommandContext::UndeclareCommand(std::int32_t id) {
  auto it = mNamesByID.find(id);
  if (it == mNamesByID.end()) return false;
  mCommands.erase(it->second);
  mNamesByID.erase(it);
  std::erase(mDeclarationOrder, id);
  Changed();
  return true;
}

void CommandContext::DeclareKeyRepeatsDisabledCommand(std::int32_t id) {
  if (mRepeatDisabled.insert(id).second) Changed();
}

void CommandContext::DeclarePreDispatchCommand(std::int32_t id) { mPreDispatch.insert(id); }

void CommandContext::DeclareDragEnabledCommand(std::int32_t id) { mDragEnabled.insert(id); }

void CommandContext::DeclareMinimalCommand(std::int32_t id) {
  if (mMinimal.insert(id).second) Changed();
}

bool CommandContext::SetCommandShortcuts(const std::string& name, std::vector<KeySpec> keys) {
  auto it = mCommands.find(name);
  if (it == mCommands.end()) return false;
  it->second.SetShortcuts(std::move(keys));
  Changed();
  return true;
}

bool CommandContext::AddCommandShortcut(const std::string& name, const KeySpec& key) {
  auto it = mCommands.find(name);
  if (it == mCommands.end() || !it->second.AddShortcut(key)) return false;
  Changed();
  return true;
}

bool CommandContext::BlockCommandInContext(const std::string& name, const UTF8String& contextName) {
  auto it = mCommands.find(name);
  if (it == mCommands.end()) return false;
  it->second.AddBlockedContext(contextName);
  return true;
}

void CommandContext::ClearShortcuts() {
  for (auto& [name, info] : mCommands) info.ClearShortcuts();
  Changed();
}

void CommandContext::ReplaceShortcuts(const std::map<std::string, std::vector<KeySpec>>& shortcutsByCommand) {
  for (auto& [name, info] : mCommands) {
    auto it = shortcutsByCommand.find(name);
    if (it == shortcutsByCommand.end()) info.ClearShortcuts();
    else info.SetShortcuts(it->second);
  }
  Changed();
}

const std::string& CommandContext::GetCommandNameFromID(std::int32_t id) const {
  auto it = mNamesByID.find(id);
  return it == mNamesByID.end() ? kNoName : it->second;
}

const CommandInfo* CommandContext::FindCommand(std::int32_t id) const {
  auto it = mNamesByID.find(id);
  if (it == mNamesByID.end()) return nullptr;
  auto info = mCommands.find(it->second);
  return info == mCommands.end() ? nullptr : &info->second;
}

const KeyCommandMap* CommandContext::MapFor(CommandKeyMapID map) const noexcept {
  switch (map) {
  case CommandKeyMapID::Standard: return &mMaps[0];
  case CommandKeyMapID::Minimal: return &mMaps[1];
  case CommandKeyMapID::Fixed: return &mMaps[2];
  }
  return nullptr;
}

const KeyCommandMap& CommandContext::GetKeyCommandMap(CommandKeyMapID map) {
  BuildKeyCommandMapsIfNeeded();
  const KeyCommandMap* keyMap = MapFor(map);
  return keyMap ? *keyMap : mMaps[0];
}

bool CommandContext::GetCommandIDFromKeySpec(const KeySpec& key, CommandKeyMapID map, std::int32_t& id) {
  id = 0;
  BuildKeyCommandMapsIfNeeded();
  const KeyCommandMap* keyMap = MapFor(map);
  if (!keyMap) return false;
  const std::vector<std::int32_t>* ids = keyMap->Find(key);
  return ids && ResolveCommandList(*ids, id);
}

// Several commands on one key: the first one the focused chain can carry out.
bool CommandContext::ResolveCommandList(const std::vector<std::int32_t>& ids, std::int32_t& id) const {
  if (ids.empty()) return false;
  if (ids.size() == 1) {
    id = ids.front();
    return true;
  }
  CommanderPtr target = Commander::GetTarget();
  if (!target) return false;
  for (std::int32_t candidate : ids) {
    bool enabled = false, checked = false;
    MenuMark mark = MenuMark::None;
    UTF8String text;
    if (target->GetCommandStatus(target, candidate, enabled, checked, mark, text) && enabled) {
      id = candidate;
      return true;
    }
  }
  return false;
}

bool CommandContext::KeyRepeatAllowed(const KeySpec& key) {
  std::int32_t id = 0;
  if (!GetCommandIDFromKeySpec(key, CommandKeyMapID::Standard, id)) return true;
  return !mRepeatDisabledInForce.contains(id);
}

bool CommandContext::KeyUsesUpAndDown(const KeySpec& key) {
  BuildKeyCommandMapsIfNeeded();
  return SortedContains(mUpAndDownKeys, key);
}

bool CommandContext::AllowedForExempt(const KeySpec& key) {
  BuildKeyCommandMapsIfNeeded();
  return SortedContains(mExemptKeys, key);
}

bool CommandContext::IsCommandBlockedForContext(std::int32_t id, const UTF8String& contextName) const {
  const CommandInfo* info = FindCommand(id);
  if (!info) return false;
  const auto& blocked = info->GetBlockedContextVec();
  return std::find(blocked.begin(), blocked.end(), contextName) != blocked.end();
}

bool CommandContext::ShortcutInUse(const KeySpec& key) const {
  return std::any_of(mCommands.begin(), mCommands.end(),
                     [&](const auto& entry) { return entry.second.HasShortcut(key); });
}

UTF8String CommandContext::FindCommandUIStringAndShortcuts(std::int32_t id, std::vector<KeySpec>& shortcuts) const {
  const CommandInfo* info = FindCommand(id);
  shortcuts = info ? info->GetShortcuts() : std::vector<KeySpec>();
  return info ? info->GetUIString() : UTF8String();
}

UTF8String CommandContext::GetMenuText(std::int32_t id) {
  BuildKeyCommandMapsIfNeeded();
  auto it = mMenuTexts.find(id);
  return it == mMenuTexts.end() ? UTF8String() : it->second;
}

void CommandContext::AddWindowMenuID(const std::string& menuID) {
  if (std::find(mWindowMenuIDs.begin(), mWindowMenuIDs.end(), menuID) == mWindowMenuIDs.end())
    mWindowMenuIDs.push_back(menuID);
}

void CommandContext::RemoveWindowMenuID(const std::string& menuID) { std::erase(mWindowMenuIDs, menuID); }

} // namespace ZEL
