#include <kroui/ui/PopupMenuSettings.h>

#include <atomic>

namespace kroui::ui {
namespace {
std::atomic<bool> sIsDefaultCheckStyleOn{false};
} // namespace

void SetPopupMenuDefaultCheckStyle(bool isOn) noexcept { sIsDefaultCheckStyleOn = isOn; }

bool IsPopupMenuDefaultCheckStyleOn() noexcept { return sIsDefaultCheckStyleOn; }

} // namespace kroui::ui
