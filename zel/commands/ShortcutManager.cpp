#include <zel/commands/ShortcutManager.h>

#include <zel/Localization.h>

#include <algorithm>

namespace ZEL {
namespace {

std::unique_ptr<ShortcutManager> sInstance;

constexpr std::size_t kRecentContextLimit = 64;

// Commands that must run whatever holds the focus; the block of host
// commands from kCommand_HostPreDispatchRangeFirst is added as a range.
constexpr std::int32_t kBuiltInPreDispatchCommands[] = {
    kCommand_New, kCommand_Open, kCommand_RecentFile1, kCommand_Exit, kCommand_HostPreDispatchA,
    kCommand_HostPreDispatchB};

} // namespace

ShortcutManager* ShortcutManager::Instance() noexcept { return sInstance.get(); }

void ShortcutManager::Initialize() {
  sInstance.reset(new ShortcutManager());
  sInstance->AddContext(kApplicationContextName, kApplicationContextName);
  sInstance->SetPreDispatchMap();
  sInstance->RegisterBuiltInPresets();
}

void ShortcutManager::Finalize() { sInstance.reset(); }

ShortcutManager::ShortcutManager() = default;

void ShortcutManager::SetOverrideMode(std::int32_t mode) noexcept {
  if (mode == mOverrideMode) return;
  mOverrideMode = mode;
  switch (mode) {
  case kOverrideMode_MinimalMap: mMinimalMap = true, mAltPassesThrough = false; break;
  case kOverrideMode_Everything: mMinimalMap = false, mAltPassesThrough = false; break;
  case kOverrideMode_MinimalMapAltToSystem: mMinimalMap = true, mAltPassesThrough = true; break;
  default: break;
  }
}

CommandContext& ShortcutManager::AddContext(const std::string& name, const UTF8String& uiName) {
  mContexts.push_back(std::make_shared<CommandContext>(name, uiName));
  mCurrentContextIndex = GetContextIndex(mCurrentContextName);
  return *mContexts.back();
}

std::size_t ShortcutManager::GetContextIndex(const std::string& name) const {
  for (std::size_t i = 0; i < mContexts.size(); ++i)
    if (mContexts[i]->GetName() == name) return i;
  return 0;
}

void ShortcutManager::ApplyContext(const std::string& name) {
  mCurrentContextName = name;
  mCurrentContextIndex = GetContextIndex(name);
  std::erase(mRecentContexts, name);
  mRecentContexts.push_front(name);
  if (mRecentContexts.size() > kRecentContextLimit) mRecentContexts.pop_back();
}

std::string ShortcutManager::GetMostRecentMatchingContext(const std::set<std::string>& names) const {
  for (const std::string& name : mRecentContexts)
    if (names.contains(name)) return name;
  return {};
}

bool ShortcutManager::IsMenuCommand(std::int32_t commandID) const {
  const CommandInfo* info = CurrentContext().FindCommand(commandID);
  if (!info) info = GetGlobalContext().FindCommand(commandID);
  return info && info->GetCommandKind() == CommandKind::Menu;
}

void ShortcutManager::SetPreDispatchMap() {
  mPreDispatchMap.assign(std::begin(kBuiltInPreDispatchCommands), std::end(kBuiltInPreDispatchCommands));
  for (std::int32_t id = kCommand_HostPreDispatchRangeFirst; id <= kCommand_HostPreDispatchRangeLast; ++id)
    mPreDispatchMap.push_back(id);
  std::sort(mPreDispatchMap.begin(), mPreDispatchMap.end());
}

void ShortcutManager::AddCommandtoPreDispatchMap(std::int32_t commandID) {
  auto it = std::lower_bound(mPreDispatchMap.begin(), mPreDispatchMap.end(), commandID);
  if (it == mPreDispatchMap.end() || *it != commandID) mPreDispatchMap.insert(it, commandID);
}

bool ShortcutManager::IsInPreDispatchMap(std::int32_t commandID) const {
  return std::binary_search(mPreDispatchMap.begin(), mPreDispatchMap.end(), commandID);
}

void ShortcutManager::RegisterImmutable(std::int32_t commandID, const KeySpec& key) {
  mImmutables.insert_or_assign(commandID, key);
  ++mImmutablesGeneration;
}

void ShortcutManager::GetImmutableKeySet(std::set<KeySpec>& keys) const {
  keys.clear();
  for (const auto& [id, key] : mImmutables) keys.insert(key);
}

void ShortcutManager::GetImmutableCommandSet(std::set<std::int32_t>& commandIDs) const {
  commandIDs.clear();
  for (const auto& [id, key] : mImmutables) commandIDs.insert(id);
}

void ShortcutManager::SetDefaultShortcuts(const std::string& key, std::vector<KeySpec> shortcuts) {
  mDefaultShortcuts.insert_or_assign(key, std::move(shortcuts));
}

const std::vector<KeySpec>* ShortcutManager::FindDefaultShortcuts(const std::string& key) const {
  auto it = mDefaultShortcuts.find(key);
  return it == mDefaultShortcuts.end() ? nullptr : &it->second;
}

void ShortcutManager::AddCommandToGroup(std::int32_t commandID, std::int32_t group) {
  mCommandGroups.insert_or_assign(commandID, group);
}

bool ShortcutManager::CommandIDContextMatch(std::int32_t first, std::int32_t second) const {
  auto a = mCommandGroups.find(first);
  auto b = mCommandGroups.find(second);
  return a != mCommandGroups.end() && b != mCommandGroups.end() && a->second == b->second;
}

const CommandInfo* ShortcutManager::FindCommandForTooltip(std::int32_t commandID) const {
  const CommandInfo* info = CurrentContext().FindCommand(commandID);
  return info ? info : GetGlobalContext().FindCommand(commandID);
}

UTF8String ShortcutManager::GetTooltipText(std::int32_t commandID) const {
  const CommandInfo* info = FindCommandForTooltip(commandID);
  return info ? info->GetUIString() : UTF8String();
}

UTF8String ShortcutManager::GetTooltipShortcutText(std::int32_t commandID) const {
  const CommandInfo* info = FindCommandForTooltip(commandID);
  return info && info->HasShortcuts() ? info->GetMenuShortcut().GetString() : UTF8String();
}

UTF8String ShortcutManager::GetTooltipAndShortcutText(std::int32_t commandID) const {
  const UTF8String text = GetTooltipText(commandID);
  const UTF8String shortcut = GetTooltipShortcutText(commandID);
  if (shortcut.empty()) return text;
  return ReplacePlaceholders(Localize("$$$/Vantor/Libraries/ZEL/TooltipTemplate=@0 (@1)"), {text, shortcut});
}

} // namespace ZEL
