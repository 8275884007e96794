#pragma once

// Private: the state of a UI_ZoomBar.

#include <kromediaui/zoombar/UI_ZoomBar.h>

#include <optional>

namespace kromediaui {

struct UI_ZoomBarImpl {
  explicit UI_ZoomBarImpl(UI_ZoomBar::Orientation barOrientation) : orientation(barOrientation) {}

  bool IsVertical() const noexcept { return orientation == UI_ZoomBar::Orientation::Vertical; }
  double MinimumSpan() const noexcept { return static_cast<double>(smallestEdgeDifference); }

  UI_ZoomBar::Orientation orientation;
  ZoomBarRange range;
  /// What a double-click on the whole goes back to.
  std::optional<ZoomBarRange> rangeBeforeFit;
  float smallestEdgeDifference = UI_ZoomBar::kDefaultSmallestAllowableEdgeDifference;
  UI_ZoomBar::RangeWillChangeFunction rangeWillChange;
  UI_ZoomBar::PageFunction page;
  UI_ZoomBar::RangeChangedFunction rangeChanged;

  ZoomBarColors colors;
  bool drawsCenterThumb = true;
  bool isMinimized = false;
  int fullHeight = UI_ZoomBar::GetDefaultSize();
  float animatedHeight = static_cast<float>(UI_ZoomBar::GetDefaultSize());
  bool isHovered = false;

  /// The part held down, where the pointer pressed it, and the range then.
  ZoomBarPart pressed = ZoomBarPart::None;
  kroui::ui::Point pressPoint;
  kroui::ui::Point pointer;
  ZoomBarRange rangeAtPress;
  /// The thumb's start along the axis when the centre was pressed.
  int thumbStartAtPress = 0;
  bool clickedInPageRegion = false;
};

} // namespace kromediaui
