#include <kroui/utility/TrackingWindow.h>
#include <kroui/utility/TrackingWindowImpl.h>

#include <kroui/backend/Backend.h>


namespace kroui::utility {
namespace {

constexpr std::uint32_t kTrackingStyle = backend::kWindowStyle_Popup | backend::kWindowStyle_Tool |
                                         backend::kWindowStyle_Topmost | backend::kWindowStyle_Layered |
                                         backend::kWindowStyle_Disabled | backend::kWindowStyle_NoActivate;

} // namespace

backend::Rect TrackingWindow::GetMonitorsUnion(std::span<const backend::MonitorInfo> monitors) {
  backend::Rect all;
  for (const backend::MonitorInfo& monitor : monitors) all = all.Union(monitor.bounds);
  return all;
}

backend::WindowDescription TrackingWindow::Describe(std::span<const backend::MonitorInfo> monitors) {
  backend::WindowDescription description;
  description.title = "tracking";
  description.bounds = GetMonitorsUnion(monitors);
  description.style = backend::WindowStyle::FromValue(kTrackingStyle);
  description.alpha = kAlpha;
  return description;
}

TrackingWindow::TrackingWindow() : mImpl(std::make_unique<TrackingWindowImpl>()) {
  backend::Backend& os = backend::GetBackend();
  const backend::WindowDescription description = Describe(os.GetMonitors());
  if (description.bounds.IsEmpty()) return; // no monitor to track the pointer over
  mImpl->window = os.CreateNativeWindow(description);
  mImpl->backendGeneration = backend::GetBackendGeneration();
  if (!mImpl->window) return;
  os.SetNativeWindowAlpha(mImpl->window, kAlpha);
  os.ShowNativeWindow(mImpl->window, true, false);
}

TrackingWindow::~TrackingWindow() {
  if (!mImpl->window || mImpl->backendGeneration != backend::GetBackendGeneration()) return;
  ReleaseMouse();
  backend::GetBackend().DestroyNativeWindow(mImpl->window);
}

bool TrackingWindow::IsCreated() const noexcept { return mImpl->window != nullptr; }

HWND TrackingWindow::GetNativeWindow() const noexcept { return mImpl->window; }

bool TrackingWindow::CaptureMouse() {
  if (!mImpl->window) return false;
  backend::Backend& os = backend::GetBackend();
  os.SetCapture(mImpl->window);
  return os.GetCapture() == mImpl->window;
}

void TrackingWindow::ReleaseMouse() {
  backend::Backend& os = backend::GetBackend();
  if (mImpl->window && os.GetCapture() == mImpl->window) os.ReleaseCapture();
}

} // namespace kroui::utility
