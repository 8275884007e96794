// The front of the shortcut manager: every call goes to the part that does
// the work (ShortcutManagerImpl.h); only the tooltips are put together here.
#include <zel/commands/ShortcutManager.h>

#include <zel/Localization.h>
#include <zel/commands/ShortcutManagerImpl.h>

namespace ZEL {
namespace {

std::unique_ptr<ShortcutManager> sInstance;

} // namespace

ShortcutManager* ShortcutManager::Instance() noexcept { return sInstance.get(); }

void ShortcutManager::Initialize() {
  sInstance.reset(new ShortcutManager());
  sInstance->SetPreDispatchMap();
  sInstance->mImpl->library.RegisterBuiltInPresets();
}

void ShortcutManager::Finalize() { sInstance.reset(); }

ShortcutManager::ShortcutManager() : mImpl(std::make_unique<ShortcutManagerImpl>(*this)) {}

ShortcutManager::~ShortcutManager() = default;

// Dispatch.

bool ShortcutManager::DispatchKeyboardEvent(const kroui::ui::KeyboardEvent& event, bool preDispatch) {
  return mImpl->dispatcher.DispatchKeyboardEvent(event, preDispatch);
}

KeySpec ShortcutManager::MakeKeySpec(const kroui::ui::KeyboardEvent& event) {
  return ShortcutDispatcher::MakeKeySpec(event);
}

bool ShortcutManager::CommandEnabled(const CommanderPtr& target, std::int32_t commandID) {
  return mImpl->dispatcher.CommandEnabled(target, commandID);
}

bool ShortcutManager::CheckMinimalShortcut(const kroui::ui::KeyboardEvent& event) {
  if (!Instance()) Initialize();
  return sInstance->mImpl->dispatcher.CheckMinimalShortcut(event);
}

void ShortcutManager::SuspendContextChanges() noexcept { mImpl->dispatcher.SetSuspended(true); }
void ShortcutManager::ResumeContextChanges() noexcept { mImpl->dispatcher.SetSuspended(false); }
bool ShortcutManager::IsSuspended() const noexcept { return mImpl->dispatcher.IsSuspended(); }

std::int32_t ShortcutManager::GetOverrideMode() const noexcept { return mImpl->dispatcher.GetOverrideMode(); }
void ShortcutManager::SetOverrideMode(std::int32_t mode) noexcept { mImpl->dispatcher.SetOverrideMode(mode); }
bool ShortcutManager::UsesMinimalMap() const noexcept { return mImpl->dispatcher.UsesMinimalMap(); }
bool ShortcutManager::AltPassesThrough() const noexcept { return mImpl->dispatcher.AltPassesThrough(); }

void ShortcutManager::SetDragCommandContext(const std::string& name) { mImpl->dispatcher.SetDragCommandContext(name); }
void ShortcutManager::SetDragInProgress(bool inProgress) noexcept { mImpl->dispatcher.SetDragInProgress(inProgress); }
bool ShortcutManager::IsDragInProgress() const noexcept { return mImpl->dispatcher.IsDragInProgress(); }

// Contexts.

CommandContext& ShortcutManager::GetGlobalContext() const { return mImpl->registry.GetGlobalContext(); }

CommandContext& ShortcutManager::AddContext(const std::string& name, const UTF8String& uiName) {
  return mImpl->registry.AddContext(name, uiName);
}

CommandContext& ShortcutManager::GetContext(std::size_t index) const { return mImpl->registry.GetContext(index); }

CommandContext& ShortcutManager::GetContext(const std::string& name) const { return mImpl->registry.GetContext(name); }

std::size_t ShortcutManager::GetContextIndex(const std::string& name) const {
  return mImpl->registry.GetContextIndex(name);
}

std::size_t ShortcutManager::GetContextCount() const noexcept { return mImpl->registry.GetContextCount(); }

const std::string& ShortcutManager::GetCurrentContextName() const noexcept {
  return mImpl->registry.GetCurrentContextName();
}

void ShortcutManager::ApplyContext(const std::string& name) { mImpl->registry.ApplyContext(name); }

std::string ShortcutManager::GetMostRecentMatchingContext(const std::set<std::string>& names) const {
  return mImpl->registry.GetMostRecentMatchingContext(names);
}

bool ShortcutManager::IsMenuCommand(std::int32_t commandID) const { return mImpl->registry.IsMenuCommand(commandID); }

void ShortcutManager::SetPreDispatchMap() { mImpl->registry.SetPreDispatchMap(); }

void ShortcutManager::AddCommandtoPreDispatchMap(std::int32_t commandID) {
  mImpl->registry.AddCommandToPreDispatchMap(commandID);
}

bool ShortcutManager::IsInPreDispatchMap(std::int32_t commandID) const {
  return mImpl->registry.IsInPreDispatchMap(commandID);
}

void ShortcutManager::RegisterImmutable(std::int32_t commandID, const KeySpec& key) {
  mImpl->registry.RegisterImmutable(commandID, key);
}

const std::map<std::int32_t, KeySpec>& ShortcutManager::GetImmutables() const noexcept {
  return mImpl->registry.GetImmutables();
}

std::uint64_t ShortcutManager::GetImmutablesGeneration() const noexcept {
  return mImpl->registry.GetImmutablesGeneration();
}

void ShortcutManager::GetImmutableKeySet(std::set<KeySpec>& keys) const { mImpl->registry.GetImmutableKeySet(keys); }

void ShortcutManager::GetImmutableCommandSet(std::set<std::int32_t>& commandIDs) const {
  mImpl->registry.GetImmutableCommandSet(commandIDs);
}

void ShortcutManager::SetDefaultShortcuts(const std::string& key, std::vector<KeySpec> shortcuts) {
  mImpl->registry.SetDefaultShortcuts(key, std::move(shortcuts));
}

const std::vector<KeySpec>* ShortcutManager::FindDefaultShortcuts(const std::string& key) const {
  return mImpl->registry.FindDefaultShortcuts(key);
}

void ShortcutManager::AddCommandToGroup(std::int32_t commandID, std::int32_t group) {
  mImpl->registry.AddCommandToGroup(commandID, group);
}

bool ShortcutManager::CommandIDContextMatch(std::int32_t first, std::int32_t second) const {
  return mImpl->registry.CommandIDContextMatch(first, second);
}

// Tooltips.

UTF8String ShortcutManager::GetTooltipText(std::int32_t commandID) const {
  const CommandInfo* info = mImpl->registry.FindCommandInForce(commandID);
  return info ? info->GetUIString() : UTF8String();
}

UTF8String ShortcutManager::GetTooltipShortcutText(std::int32_t commandID) const {
  const CommandInfo* info = mImpl->registry.FindCommandInForce(commandID);
  return info && info->HasShortcuts() ? info->GetMenuShortcut().GetString() : UTF8String();
}

UTF8String ShortcutManager::GetTooltipAndShortcutText(std::int32_t commandID) const {
  const UTF8String text = GetTooltipText(commandID);
  const UTF8String shortcut = GetTooltipShortcutText(commandID);
  if (shortcut.empty()) return text;
  return ReplacePlaceholders(Localize("$$$/Vantor/Libraries/ZEL/TooltipTemplate=@0 (@1)"), {text, shortcut});
}

// Shortcut sets.

void ShortcutManager::SetShortcutSetFolders(std::filesystem::path userFolder, std::filesystem::path presetFolder) {
  mImpl->library.SetShortcutSetFolders(std::move(userFolder), std::move(presetFolder));
}

void ShortcutManager::RegisterPreset(const std::string& name, const UTF8String& displayName) {
  mImpl->library.RegisterPreset(name, displayName);
}

const std::vector<std::pair<std::string, UTF8String>>& ShortcutManager::GetPresets() const noexcept {
  return mImpl->library.GetPresets();
}

bool ShortcutManager::IsPreset(const std::filesystem::path& path) const { return mImpl->library.IsPreset(path); }
bool ShortcutManager::SaveSet(const std::filesystem::path& path) { return mImpl->library.SaveSet(path); }
bool ShortcutManager::ReadSet(const std::filesystem::path& path) { return mImpl->library.ReadSet(path); }

std::filesystem::path ShortcutManager::ResolveSet(const std::string& name) const {
  return mImpl->library.ResolveSet(name);
}

bool ShortcutManager::LoadSet(const std::string& name) { return mImpl->library.LoadSet(name); }
bool ShortcutManager::LoadInitialKeyset() { return mImpl->library.LoadInitialKeyset(); }
bool ShortcutManager::RefreshSet() { return mImpl->library.RefreshSet(); }
const std::string& ShortcutManager::GetCurrentSetName() const noexcept { return mImpl->library.GetCurrentSetName(); }

} // namespace ZEL
