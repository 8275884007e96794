#include <zel/commands/ContextRegistry.h>

#include <zel/commands/CommandTypes.h>

#include <krocore/debug/Assert.h>

#include <algorithm>

namespace ZEL {
namespace {

constexpr std::size_t kRecentContextLimit = 64;

// Commands that must run whatever holds the focus; the block of host
// commands from kCommand_HostPreDispatchRangeFirst is added as a range.
constexpr std::int32_t kBuiltInPreDispatchCommands[] = {
    kCommand_New, kCommand_Open, kCommand_RecentFile1, kCommand_Exit, kCommand_HostPreDispatchA,
    kCommand_HostPreDispatchB};

} // namespace

ContextRegistry::ContextRegistry(const std::string& applicationContextName) {
  AddContext(applicationContextName, applicationContextName);
}

CommandContext& ContextRegistry::GetContext(std::size_t index) const {
  if (!KROCORE_ASSERT(index < mContexts.size(), "Command context index out of range")) return GetGlobalContext();
  return *mContexts[index];
}

CommandContext& ContextRegistry::AddContext(const std::string& name, const UTF8String& uiName) {
  mContexts.push_back(std::make_unique<CommandContext>(name, uiName));
  mCurrentContextIndex = GetContextIndex(mCurrentContextName);
  return *mContexts.back();
}

std::size_t ContextRegistry::GetContextIndex(const std::string& name) const {
  for (std::size_t i = 0; i < mContexts.size(); ++i)
    if (mContexts[i]->GetName() == name) return i;
  return 0;
}

void ContextRegistry::ApplyContext(const std::string& name) {
  mCurrentContextName = name;
  mCurrentContextIndex = GetContextIndex(name);
  std::erase(mRecentContexts, name);
  mRecentContexts.push_front(name);
  if (mRecentContexts.size() > kRecentContextLimit) mRecentContexts.pop_back();
}

std::string ContextRegistry::GetMostRecentMatchingContext(const std::set<std::string>& names) const {
  for (const std::string& name : mRecentContexts)
    if (names.contains(name)) return name;
  return {};
}

const CommandInfo* ContextRegistry::FindCommandInForce(std::int32_t commandID) const {
  const CommandInfo* info = GetCurrentContext().FindCommand(commandID);
  return info ? info : GetGlobalContext().FindCommand(commandID);
}

bool ContextRegistry::IsMenuCommand(std::int32_t commandID) const {
  const CommandInfo* info = FindCommandInForce(commandID);
  return info && info->GetCommandKind() == CommandKind::Menu;
}

void ContextRegistry::SetPreDispatchMap() {
  mPreDispatchMap.assign(std::begin(kBuiltInPreDispatchCommands), std::end(kBuiltInPreDispatchCommands));
  for (std::int32_t id = kCommand_HostPreDispatchRangeFirst; id <= kCommand_HostPreDispatchRangeLast; ++id)
    mPreDispatchMap.push_back(id);
  std::sort(mPreDispatchMap.begin(), mPreDispatchMap.end());
}

void ContextRegistry::AddCommandToPreDispatchMap(std::int32_t commandID) {
  auto it = std::lower_bound(mPreDispatchMap.begin(), mPreDispatchMap.end(), commandID);
  if (it == mPreDispatchMap.end() || *it != commandID) mPreDispatchMap.insert(it, commandID);
}

bool ContextRegistry::IsInPreDispatchMap(std::int32_t commandID) const {
  return std::binary_search(mPreDispatchMap.begin(), mPreDispatchMap.end(), commandID);
}

void ContextRegistry::RegisterImmutable(std::int32_t commandID, const KeySpec& key) {
  mImmutables.insert_or_assign(commandID, key);
  ++mImmutablesGeneration;
}

void ContextRegistry::GetImmutableKeySet(std::set<KeySpec>& keys) const {
  keys.clear();
  for (const auto& [id, key] : mImmutables) keys.insert(key);
}

void ContextRegistry::GetImmutableCommandSet(std::set<std::int32_t>& commandIDs) const {
  commandIDs.clear();
  for (const auto& [id, key] : mImmutables) commandIDs.insert(id);
}

void ContextRegistry::SetDefaultShortcuts(const std::string& key, std::vector<KeySpec> shortcuts) {
  mDefaultShortcuts.insert_or_assign(key, std::move(shortcuts));
}

const std::vector<KeySpec>* ContextRegistry::FindDefaultShortcuts(const std::string& key) const {
  auto it = mDefaultShortcuts.find(key);
  return it == mDefaultShortcuts.end() ? nullptr : &it->second;
}

void ContextRegistry::AddCommandToGroup(std::int32_t commandID, std::int32_t group) {
  mCommandGroups.insert_or_assign(commandID, group);
}

bool ContextRegistry::CommandIDContextMatch(std::int32_t first, std::int32_t second) const {
  auto a = mCommandGroups.find(first);
  auto b = mCommandGroups.find(second);
  return a != mCommandGroups.end() && b != mCommandGroups.end() && a->second == b->second;
}

} // namespace ZEL
