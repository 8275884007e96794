#include <kroui/skins/SkinManager.h>

#include <kroui/theme/SkinVersionChange.h>
#include <kroui/theme/Theme.h>

#include <algorithm>
#include <atomic>
#include <mutex>

namespace kroui::skins {
namespace {

std::atomic<int> sSkinVersion{core::SkinManager::kDefaultSkinVersion};
std::atomic<bool> sIsLegacyTestingAllowed{false};
std::mutex sSkinSetLock;

std::vector<std::string>& SkinSets() {
  static std::vector<std::string> sSets{std::string(core::SkinManager::kDefaultSkinSet)};
  return sSets;
}

} // namespace

namespace core {

int SkinManager::GetSkinVersion() noexcept { return sSkinVersion.load(std::memory_order_relaxed); }

void SkinManager::SetSkinVersion(int version) {
  if (sSkinVersion.exchange(version) == version) return;
  ui::CallSkinVersionChangedFunction(version);
  ui::Theme::Get().NotifyThemeChanged();
}

bool SkinManager::RequiresLegacyTheme() noexcept { return GetSkinVersion() <= kLastLegacyThemeVersion; }

bool SkinManager::IsLegacyTestingAllowed() noexcept { return sIsLegacyTestingAllowed; }

void SkinManager::SetLegacyTestingAllowed(bool isAllowed) noexcept { sIsLegacyTestingAllowed = isAllowed; }

std::vector<std::string> SkinManager::GetRegisteredSkinSets() {
  std::lock_guard lock(sSkinSetLock);
  return SkinSets();
}

bool SkinManager::RegisterSkinSet(std::string_view name) {
  std::lock_guard lock(sSkinSetLock);
  auto& sets = SkinSets();
  if (name.empty() || std::find(sets.begin(), sets.end(), name) != sets.end()) return false;
  sets.emplace_back(name);
  return true;
}

bool SkinManager::UnregisterSkinSet(std::string_view name) {
  std::lock_guard lock(sSkinSetLock);
  auto& sets = SkinSets();
  // The default set stays: every skin version falls back on it.
  const auto found = std::find(sets.begin() + 1, sets.end(), name);
  if (found == sets.end()) return false;
  sets.erase(found);
  return true;
}

} // namespace core

bool IsRunningV7OrBeyond() noexcept { return core::SkinManager::GetSkinVersion() >= 7; }

} // namespace kroui::skins
