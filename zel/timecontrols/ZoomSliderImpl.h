#pragma once

// Private: the node of a ZoomSlider.

#include <zel/timecontrols/ZoomPositionNode.h>

#include <string_view>

namespace ZEL {

/// Lays out the track and the knob, paints them, and turns presses, drags
/// and the wheel into positions. Along the width:
///
///   0   knob/2                                width-knob/2   width
///   |    |<------------- travel ------------------>|            |
///        level 0                                 maximum
class ZoomSliderImpl final : public ZoomPositionNode {
public:
  using Point = kroui::ui::Point;
  using Rect = kroui::ui::Rect;

  static constexpr int kKnobWidth = 8;

  explicit ZoomSliderImpl(unsigned int cookie);

  /// Named in the reports of a ZoomSlider without its node.
  static constexpr std::string_view kReportedName = "ZoomSlider";

  Rect KnobRect() const;
  /// The level nearest to `x`.
  unsigned int LevelAt(int x) const;
  /// Where along the width `level` puts the knob's centre.
  int CenterOfLevel(unsigned int level) const;

protected:
  ~ZoomSliderImpl() override;

  void PaintSelf(kroui::drawbot::Drawbot& drawbot) override;
  bool MouseDownSelf(const kroui::ui::PointerEvent& event) override;
  bool MouseMoveSelf(const kroui::ui::PointerEvent& event) override;
  bool MouseUpSelf(const kroui::ui::PointerEvent& event) override;
  bool MouseWheelSelf(const kroui::ui::PointerEvent& event) override;

private:
  int Travel() const;
  void DragTo(int x);

  bool mIsDragging = false;
  /// From the knob's centre to the point that grabbed it.
  int mGrabOffset = 0;
  unsigned int mPositionAtPress = 0;
  /// Wheel deltas short of a notch, kept for the next turn.
  int mWheelRemainder = 0;
};

} // namespace ZEL
