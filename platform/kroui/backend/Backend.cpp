#include <kroui/backend/Backend.h>

#include <kroui/base/OS_Event.h>

#include <krocore/debug/Assert.h>

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace kroui::backend {
namespace {

std::unique_ptr<Backend>& CurrentBackend() {
  static std::unique_ptr<Backend> sBackend;
  return sBackend;
}

std::uint64_t sGeneration = 0;
BackendReplacingHook sReplacingHook = nullptr;
DefaultBackendMaker sDefaultMaker = nullptr;

} // namespace

// What a backend without its own event source waits on: a wake-up flag.
struct Backend::WaitState {
  std::mutex mutex;
  std::condition_variable woken;
  bool isWoken = false;
};

Backend::Backend() : mWaitState(std::make_unique<WaitState>()) {}

Backend::~Backend() = default;

HWND Backend::CreateNativeWindow(const WindowDescription&) { return nullptr; }
void Backend::DestroyNativeWindow(HWND) {}
void Backend::ShowNativeWindow(HWND, bool, bool) {}
void Backend::SetNativeWindowBounds(HWND, const Rect&) {}
Rect Backend::GetNativeWindowBounds(HWND) const { return {}; }
void Backend::SetNativeWindowTitle(HWND, std::string_view) {}
void Backend::MinimizeNativeWindow(HWND) {}
void Backend::SetNativeWindowEnabled(HWND, bool) {}
void Backend::SetNativeWindowAlpha(HWND, float) {}
void Backend::FocusNativeWindow(HWND) {}
HWND Backend::GetFocusedNativeWindow() const { return nullptr; }
void Backend::PresentPixels(HWND, const drawbot::Image&, const Rect&) {}
HWND Backend::CreateChildSurface(HWND, const Rect&, bool) { return nullptr; }
void Backend::DestroyChildSurface(HWND) {}
bool Backend::SetChildSurfaceParent(HWND, HWND) { return false; }
void Backend::SetChildSurfaceBounds(HWND, const Rect&) {}
void Backend::ShowChildSurface(HWND, bool) {}
void Backend::SetChildSurfaceOpacity(HWND, float) {}
void Backend::SetChildSurfaceClipping(HWND, bool) {}
void Backend::SetCursor(ui::CursorPtr) {}
void Backend::SetCursorVisible(bool) {}
void Backend::SetCapture(HWND) {}
void Backend::ReleaseCapture() {}
HWND Backend::GetCapture() const { return nullptr; }
Point Backend::GetCursorPosition() const { return {}; }
std::vector<MonitorInfo> Backend::GetMonitors() const { return {}; }
std::string Backend::GetClipboardText() const { return {}; }
void Backend::SetClipboardText(std::string_view) {}

std::int64_t Backend::GetTimeMs() const {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

WaitResult Backend::WaitForEvent(ui::OS_Event&, std::optional<std::int64_t> timeoutMs) {
  std::unique_lock lock(mWaitState->mutex);
  const auto isWoken = [this] { return mWaitState->isWoken; };
  bool woken = true;
  if (timeoutMs) {
    woken = mWaitState->woken.wait_for(lock, std::chrono::milliseconds(*timeoutMs), isWoken);
  } else {
    mWaitState->woken.wait(lock, isWoken);
  }
  mWaitState->isWoken = false;
  return woken ? WaitResult::Woken : WaitResult::Timeout;
}

void Backend::WakeUp() {
  {
    std::lock_guard lock(mWaitState->mutex);
    mWaitState->isWoken = true;
  }
  mWaitState->woken.notify_one();
}

Backend& GetBackend() {
  std::unique_ptr<Backend>& current = CurrentBackend();
  if (!current && KROCORE_ASSERT(sDefaultMaker, "GetBackend: no backend is set and none is the default")) {
    current = sDefaultMaker();
  }
  return *current;
}

void SetBackend(std::unique_ptr<Backend> backend) {
  ++sGeneration;
  if (sReplacingHook) sReplacingHook();
  CurrentBackend() = std::move(backend);
}

void SetDefaultBackendMaker(DefaultBackendMaker maker) noexcept { sDefaultMaker = maker; }

void SetBackendReplacingHook(BackendReplacingHook hook) noexcept { sReplacingHook = hook; }

std::uint64_t GetBackendGeneration() noexcept { return sGeneration; }

} // namespace kroui::backend
