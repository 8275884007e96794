#pragma once

#include <kroui/Export.h>
#include <kroui/backend/BackendTypes.h>
#include <kroui/os/NativeTypes.h>

#include <memory>
#include <span>

namespace kroui::utility {

struct TrackingWindowImpl;

/// An invisible window over every monitor that holds the mouse capture while
/// a control follows the pointer (a drag of a value, a marker, a splitter):
///
///   monitors  [-1280,0 .. 0,1024] [0,0 .. 1920,1080] [0,-900 .. 1600,0]
///   window    [-1280,-900 .. 1920,1080], alpha 1/255: never seen, still hit
///
/// It never takes the keyboard focus, so the active window keeps its keys.
/// The window lives as long as this object; the capture is let go with it.
/// UI thread only.
class KROUI_API TrackingWindow {
public:
  /// The opacity that keeps the window out of sight yet under the pointer.
  static constexpr float kAlpha = 1.f / 255.f;

  /// The smallest rectangle holding every monitor; empty without monitors.
  static backend::Rect GetMonitorsUnion(std::span<const backend::MonitorInfo> monitors);
  /// A borderless, topmost, layered, disabled tool window over `monitors` that shows without activation.
  static backend::WindowDescription Describe(std::span<const backend::MonitorInfo> monitors);

  /// Creates and shows the window over the current backend's monitors; IsCreated() says whether it worked.
  TrackingWindow();
  ~TrackingWindow();
  TrackingWindow(const TrackingWindow&) = delete;
  TrackingWindow& operator=(const TrackingWindow&) = delete;

  bool IsCreated() const noexcept;
  /// Null when the window could not be made.
  HWND GetNativeWindow() const noexcept;
  /// Sends every pointer event to the window; false when the backend did not give it the capture.
  bool CaptureMouse();
  /// Lets go of the capture if the window still holds it.
  void ReleaseMouse();

private:
  std::unique_ptr<TrackingWindowImpl> mImpl;
};

} // namespace kroui::utility
