#include <zel/timecontrols/ZoomSliderImpl.h>

#include <zel/timecontrols/ZoomBarTheme.h>
#include <zel/views/DC.h>

#include <algorithm>

namespace ZEL {
namespace {

using kroui::ui::PointerEvent;
constexpr int kTrackThickness = 4;
// Ticks closer than this would run together: none are drawn.
constexpr int kMinTickSpacing = 6;
constexpr int kWheelNotch = 120;

} // namespace

ZoomSliderImpl::ZoomSliderImpl(unsigned int cookie) : ZoomPositionNode(cookie) {}

ZoomSliderImpl::~ZoomSliderImpl() = default;

// Layout.

int ZoomSliderImpl::Travel() const { return std::max(0, GetLocalBounds().Width() - kKnobWidth); }

int ZoomSliderImpl::CenterOfLevel(unsigned int level) const {
  const ZoomPosition& position = GetPosition();
  const int offset = position.HasLevels() ? static_cast<int>(static_cast<long long>(Travel()) * level / position.maximum) : 0;
  return kKnobWidth / 2 + offset;
}

unsigned int ZoomSliderImpl::LevelAt(int x) const {
  const ZoomPosition& position = GetPosition();
  if (!position.HasLevels() || Travel() == 0) return 0;
  const long long along = std::clamp(x - kKnobWidth / 2, 0, Travel());
  return static_cast<unsigned int>((along * position.maximum + Travel() / 2) / Travel());
}

ZoomSliderImpl::Rect ZoomSliderImpl::KnobRect() const {
  const int center = CenterOfLevel(GetPosition().position);
  return {center - kKnobWidth / 2, 0, center + kKnobWidth / 2, GetLocalBounds().Height()};
}

// Pointer and wheel.

bool ZoomSliderImpl::MouseDownSelf(const PointerEvent& event) {
  if (event.button != PointerEvent::Button::Left) return false;
  const Rect knob = KnobRect();
  mIsDragging = true;
  mPositionAtPress = GetPosition().position;
  // Pressed on the track, the knob comes to the pointer and is held by its centre.
  mGrabOffset = knob.Contains(event.position) ? event.position.x - (knob.left + knob.right) / 2 : 0;
  CaptureMouse();
  DragTo(event.position.x);
  Invalidate();
  return true;
}

bool ZoomSliderImpl::MouseMoveSelf(const PointerEvent& event) {
  if (!mIsDragging) return false;
  DragTo(event.position.x);
  return true;
}

void ZoomSliderImpl::DragTo(int x) {
  if (MoveTo({LevelAt(x - mGrabOffset), GetPosition().maximum})) BroadcastChanging();
}

bool ZoomSliderImpl::MouseUpSelf(const PointerEvent& event) {
  if (event.button != PointerEvent::Button::Left || !mIsDragging) return false;
  mIsDragging = false;
  ReleaseMouse();
  Invalidate();
  if (GetPosition().position != mPositionAtPress) BroadcastChanged();
  return true;
}

bool ZoomSliderImpl::MouseWheelSelf(const PointerEvent& event) {
  if (!GetPosition().HasLevels()) return false; // let an enclosing view scroll instead
  mWheelRemainder += event.wheelDeltaX != 0 ? event.wheelDeltaX : event.wheelDeltaY;
  const int notches = mWheelRemainder / kWheelNotch;
  mWheelRemainder -= notches * kWheelNotch;
  // Turning the wheel away from the user zooms in.
  if (MoveTo(GetPosition().Stepped(notches))) BroadcastChanged();
  return true;
}

// Paint.

void ZoomSliderImpl::PaintSelf(kroui::drawbot::Drawbot& drawbot) {
  DC dc(drawbot);
  const Rect bounds = GetLocalBounds();
  dc.FillRect(bounds, kColor_ZoomBarTrack);
  const int top = (bounds.Height() - kTrackThickness) / 2;
  dc.FillRect({kKnobWidth / 2, top, bounds.Width() - kKnobWidth / 2, top + kTrackThickness}, kColor_ZoomBarThumb);
  const ZoomPosition& position = GetPosition();
  if (position.HasLevels() && Travel() / static_cast<long long>(position.maximum) >= kMinTickSpacing) {
    for (unsigned int level = 0; level <= position.maximum; ++level) {
      const int x = CenterOfLevel(level);
      dc.FillRect({x, top + kTrackThickness + 2, x + 1, bounds.Height() - 2}, kColor_ZoomBarThumb);
    }
  }
  dc.FillRect(KnobRect().Inset(0, 1), mIsDragging ? kColor_ZoomBarThumbActive : kColor_ZoomBarHandle);
}

} // namespace ZEL
