#include <kroui/skins/SkinManager.h>

#include <kroui/theme/Theme.h>

#include <atomic>

namespace kroui::skins {
namespace {

std::atomic<int> sSkinVersion{core::SkinManager::kDefaultSkinVersion};

} // namespace

namespace core {

int SkinManager::GetSkinVersion() noexcept { return sSkinVersion.load(std::memory_order_relaxed); }

void SkinManager::SetSkinVersion(int version) {
  if (sSkinVersion.exchange(version) != version) ui::Theme::Get().NotifyThemeChanged();
}

} // namespace core

bool IsRunningV7OrBeyond() noexcept { return core::SkinManager::GetSkinVersion() >= 7; }

} // namespace kroui::skins
