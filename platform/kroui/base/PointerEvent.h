#pragma once

#include <kroui/base/ModifierKeys.h>

#include <krocore/geom/Geometry.h>

#include <cstdint>

namespace kroui::ui {

using Point = krocore::geom::PointT<int>;
using Rect = krocore::geom::RectT<int>;
using Extent = krocore::geom::ExtentT<int>;

/// One pointer event as a node receives it. `position` is in the coordinates
/// of the node the event is handed to, and is rewritten as the event bubbles
/// to a parent; `windowPosition` and `screenPosition` stay as they came.
struct PointerEvent {
  enum class Action : std::uint8_t {
    None,
    Down,
    Up,
    MultiClick, ///< a second (third...) press of the same button, close in time and place
    Move,
    Enter,
    Leave,
    Wheel,
    Magnify,
    Rotate,
    Pan,
    GestureEnd,
  };
  enum class Button : std::uint8_t { None, Left, Right, Middle };
  /// What made the event: a mouse, a pen, a finger.
  enum class SubType : std::uint8_t { Mouse, Pen, Touch };

  Action action = Action::None;
  Button button = Button::None;
  SubType subType = SubType::Mouse;
  /// False for the second and later fingers or pens of a multi-pointer device.
  bool isPrimary = true;
  /// Presses of the same button in a row: 1 for a single press, 2 for a double...
  std::uint8_t clickCount = 0;
  /// Wheel deltas are "precise" (pixels, from a touch pad) rather than notches of 120.
  bool isPreciseWheel = false;
  ModifierKeys modifiers;
  Point position;
  Point windowPosition;
  Point screenPosition;
  int wheelDeltaX = 0;
  int wheelDeltaY = 0;
  /// Magnify: the change of scale (0.1 = 10 % larger); rotate: degrees, clockwise.
  float gestureValue = 0.f;
  Point panDelta;
  /// The event loop clock, in milliseconds.
  std::int64_t time = 0;
};

} // namespace kroui::ui
