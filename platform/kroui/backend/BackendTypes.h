#pragma once

#include <kroui/os/NativeTypes.h>

#include <krocore/geom/Geometry.h>
#include <krocore/utility/Flags.h>

#include <cstdint>
#include <string>

namespace kroui::backend {

using Rect = krocore::geom::RectT<int>;
using Point = krocore::geom::PointT<int>;

/// How a top-level window looks and behaves; bits combine.
using WindowStyle = krocore::utility::Flags<std::uint32_t>;
/// A framed window with a title bar, in the task bar.
inline constexpr std::uint32_t kWindowStyle_Normal = 0x00;
/// No frame and no title bar: menus, tooltips, tracking windows.
inline constexpr std::uint32_t kWindowStyle_Popup = 0x01;
/// A floating tool palette: not in the task bar.
inline constexpr std::uint32_t kWindowStyle_Tool = 0x02;
/// Above every window that is not topmost.
inline constexpr std::uint32_t kWindowStyle_Topmost = 0x04;
/// Composited with the window's alpha (WindowDescription::alpha).
inline constexpr std::uint32_t kWindowStyle_Layered = 0x08;
/// Takes no input until enabled.
inline constexpr std::uint32_t kWindowStyle_Disabled = 0x10;
/// Showing or clicking it does not take the keyboard focus from the active window.
inline constexpr std::uint32_t kWindowStyle_NoActivate = 0x20;

struct WindowDescription {
  std::string title; ///< UTF-8
  /// The client area, in screen coordinates.
  Rect bounds;
  WindowStyle style = kWindowStyle_Normal;
  /// The whole window's opacity, 0 to 1, for a layered window.
  float alpha = 1.f;
  /// The window this one stays above and is disabled with; null for none.
  HWND owner = nullptr;
};

/// One display, in screen coordinates (the primary display's top-left is 0,0).
struct MonitorInfo {
  Rect bounds;
  /// The bounds less task bars and docks.
  Rect workArea;
  /// Device pixels per layout pixel (1, 1.5, 2...).
  float scale = 1.f;
  bool isPrimary = false;

  bool operator==(const MonitorInfo&) const = default;
};

/// How a wait for the next event ended.
enum class WaitResult : std::uint8_t {
  Event,        ///< an event was taken
  Timeout,      ///< the time given passed
  Woken,        ///< WakeUp was called (work was posted to the main thread)
  NoMoreEvents, ///< nothing can ever arrive: the wait would last forever
};

} // namespace kroui::backend
