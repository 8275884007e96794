#pragma once

// Private: the node of a ScrollBar.

#include <zel/views/ControlViewImpl.h>
#include <zel/views/ScrollBarLayout.h>

#include <krocore/messaging/Station.h>

#include <string_view>

namespace ZEL {

/// Keeps the range and position, lays out and paints the parts, and turns
/// presses, drags, the wheel and keys into position changes, which it
/// broadcasts on its own station.
class ScrollBarImpl final : public ControlViewImpl {
public:
  ScrollBarImpl(bool isVertical, unsigned int cookie);

  /// Named in the reports of a ScrollBar without its node.
  static constexpr std::string_view kReportedName = "ScrollBar";

  const ScrollRange& GetRange() const noexcept { return mRange; }
  /// Keeps the position inside the new range, without a broadcast.
  void SetRange(const ScrollRange& range);
  /// Moves to `position`, kept inside the range; true when it moved. With
  /// `notify`, a move is broadcast as a completed change.
  bool MoveTo(int position, bool notify);
  void SetCornerRadius(float radius);
  const krocore::utility::ImmutableString& GetStationID() const noexcept { return mStation.GetID(); }
  ScrollBarLayout Layout() const;

protected:
  ~ScrollBarImpl() override;

  // ScrollBarPaint.cpp.
  void PaintSelf(kroui::drawbot::Drawbot& drawbot) override;

  bool MouseDownSelf(const kroui::ui::PointerEvent& event) override;
  bool MouseMoveSelf(const kroui::ui::PointerEvent& event) override;
  bool MouseUpSelf(const kroui::ui::PointerEvent& event) override;
  bool MouseWheelSelf(const kroui::ui::PointerEvent& event) override;
  bool KeyDownSelf(const kroui::ui::KeyboardEvent& event) override;
  bool TimerNotifySelf(unsigned timerID) override;

private:
  void PressPart(ScrollBarPart part, kroui::ui::Point point);
  /// One step or one page in the direction of `part`.
  void StepFor(ScrollBarPart part);
  void DragThumbTo(kroui::ui::Point point);
  /// Ends a press whose release can no longer arrive; true when it did.
  bool LostPress();
  void EndPress();
  void BroadcastChanged();

  krocore::messaging::Station mStation;
  ScrollRange mRange;
  bool mIsVertical;
  unsigned int mCookie;
  float mCornerRadius = 0.f;
  /// The part held down, and where the pointer is while it is held.
  ScrollBarPart mPressed = ScrollBarPart::None;
  kroui::ui::Point mPointer;
  /// From the thumb's start to the point that grabbed it, along the axis.
  int mGrabOffset = 0;
  int mDragStartPosition = 0;
  /// Wheel deltas short of a notch, kept for the next turn.
  int mWheelRemainder = 0;
};

} // namespace ZEL
