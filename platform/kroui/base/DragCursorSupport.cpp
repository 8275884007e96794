#include <kroui/base/DragCursorSupport.h>

#include <atomic>

namespace kroui::ui {
namespace {
std::atomic<bool> sHasDefaultCursorSupport{true};
} // namespace

void SetDefaultCursorSupport(bool isSupported) noexcept { sHasDefaultCursorSupport = isSupported; }

bool HasDefaultCursorSupport() noexcept { return sHasDefaultCursorSupport; }

} // namespace kroui::ui
