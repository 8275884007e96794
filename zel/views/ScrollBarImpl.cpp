// ScrollBarImpl: the range, and what the pointer, the wheel and the keys do to it.

#include <zel/views/ScrollBarImpl.h>

#include <zel/views/ScrollBarMessages.h>

#include <kroui/base/KeyTable.h>
#include <kroui/base/KeyboardEvent.h>

#include <limits>
#include <optional>

namespace ZEL {
namespace {

using kroui::ui::PointerEvent;

constexpr unsigned kRepeatTimer = 1;
// A held arrow or track waits before repeating, then repeats quickly, as system scroll bars do.
constexpr unsigned kRepeatDelayMs = 300;
constexpr unsigned kRepeatIntervalMs = 50;
constexpr int kWheelNotch = 120;
constexpr int kStepsPerNotch = 3;

int Saturate(long long value) {
  return static_cast<int>(std::clamp<long long>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

} // namespace

ScrollBarImpl::ScrollBarImpl(bool isVertical, unsigned int cookie) : mIsVertical(isVertical), mCookie(cookie) {}

ScrollBarImpl::~ScrollBarImpl() = default;

ScrollBarLayout ScrollBarImpl::Layout() const { return ScrollBarLayout(GetBounds().Extent(), mIsVertical, mRange); }

void ScrollBarImpl::SetRange(const ScrollRange& range) {
  mRange = range;
  mRange.position = mRange.Clamp(range.position);
  Invalidate();
}

bool ScrollBarImpl::MoveTo(int position, bool notify) {
  const int clamped = mRange.Clamp(position);
  if (clamped == mRange.position) return false;
  mRange.position = clamped;
  Invalidate();
  if (notify) BroadcastChanged();
  return true;
}

void ScrollBarImpl::SetCornerRadius(float radius) {
  mCornerRadius = radius;
  Invalidate();
}

void ScrollBarImpl::BroadcastChanged() {
  mStation.Broadcast(ScrollBarPositionChangedMessage(mCookie, mRange.position));
}

// Pointer.

bool ScrollBarImpl::MouseDownSelf(const PointerEvent& event) {
  if (event.button != PointerEvent::Button::Left) return false;
  const ScrollBarPart part = Layout().PartAt(event.position);
  if (part != ScrollBarPart::None) PressPart(part, event.position);
  return true;
}

void ScrollBarImpl::PressPart(ScrollBarPart part, kroui::ui::Point point) {
  mPressed = part;
  mPointer = point;
  CaptureMouse();
  if (part == ScrollBarPart::Thumb) {
    const ScrollBarLayout layout = Layout();
    mGrabOffset = layout.Along(point) - layout.ThumbStart();
    mDragStartPosition = mRange.position;
    Invalidate(); // the thumb shows that it is held
    return;
  }
  StepFor(part);
  SetTimer(kRepeatTimer, kRepeatDelayMs);
}

void ScrollBarImpl::StepFor(ScrollBarPart part) {
  const long long step = mRange.step, page = mRange.page, at = mRange.position;
  switch (part) {
  case ScrollBarPart::DecrementArrow: MoveTo(Saturate(at - step), true); break;
  case ScrollBarPart::IncrementArrow: MoveTo(Saturate(at + step), true); break;
  case ScrollBarPart::PageDecrement: MoveTo(Saturate(at - page), true); break;
  case ScrollBarPart::PageIncrement: MoveTo(Saturate(at + page), true); break;
  default: break;
  }
}

bool ScrollBarImpl::TimerNotifySelf(unsigned timerID) {
  if (timerID != kRepeatTimer) return false;
  if (LostPress()) return true;
  // Repeats only while the pointer stays on the held part; for the track,
  // that stops the thumb where it reaches the pointer.
  if (Layout().PartAt(mPointer) == mPressed) StepFor(mPressed);
  SetTimer(kRepeatTimer, kRepeatIntervalMs);
  return true;
}

bool ScrollBarImpl::MouseMoveSelf(const PointerEvent& event) {
  if (mPressed == ScrollBarPart::None || LostPress()) return false;
  mPointer = event.position;
  if (mPressed == ScrollBarPart::Thumb) DragThumbTo(event.position);
  return true;
}

void ScrollBarImpl::DragThumbTo(kroui::ui::Point point) {
  const ScrollBarLayout layout = Layout();
  if (MoveTo(layout.PositionForThumbStart(layout.Along(point) - mGrabOffset), false)) {
    mStation.Broadcast(ScrollBarPositionChangingMessage(mCookie, mRange.position));
  }
}

bool ScrollBarImpl::MouseUpSelf(const PointerEvent& event) {
  if (event.button != PointerEvent::Button::Left || mPressed == ScrollBarPart::None) return false;
  const bool wasDragging = mPressed == ScrollBarPart::Thumb;
  EndPress();
  if (wasDragging && mRange.position != mDragStartPosition) BroadcastChanged();
  return true;
}

bool ScrollBarImpl::LostPress() {
  // The capture goes when the bar is hidden, disabled or taken out while held:
  // the release will not come here, so the press ends now.
  if (HasMouseCapture()) return false;
  EndPress();
  return true;
}

void ScrollBarImpl::EndPress() {
  mPressed = ScrollBarPart::None;
  RemoveTimer(kRepeatTimer);
  ReleaseMouse();
  Invalidate();
}

// Wheel and keys.

bool ScrollBarImpl::MouseWheelSelf(const PointerEvent& event) {
  if (!mRange.IsScrollable()) return false; // let an enclosing view scroll instead
  const int delta = mIsVertical || event.wheelDeltaX == 0 ? event.wheelDeltaY : event.wheelDeltaX;
  // Turning the wheel away from the user moves towards the start.
  if (event.isPreciseWheel) {
    MoveTo(Saturate(static_cast<long long>(mRange.position) - delta), true);
    return true;
  }
  mWheelRemainder += delta;
  const int notches = mWheelRemainder / kWheelNotch;
  mWheelRemainder -= notches * kWheelNotch;
  MoveTo(Saturate(mRange.position - static_cast<long long>(notches) * kStepsPerNotch * mRange.step), true);
  return true;
}

bool ScrollBarImpl::KeyDownSelf(const kroui::ui::KeyboardEvent& event) {
  const std::uint32_t key = event.GetCode().GetControlCode(false);
  const auto is = [key](kroui::ui::KeyboardCode code) { return key == code.GetControlCode(false); };
  const long long at = mRange.position;
  std::optional<long long> target;
  if (is(kroui::ui::kKey_Up) || is(kroui::ui::kKey_Left)) target = at - mRange.step;
  if (is(kroui::ui::kKey_Down) || is(kroui::ui::kKey_Right)) target = at + mRange.step;
  if (is(kroui::ui::kKey_PageUp)) target = at - mRange.page;
  if (is(kroui::ui::kKey_PageDown)) target = at + mRange.page;
  if (is(kroui::ui::kKey_Home)) target = mRange.minimum;
  if (is(kroui::ui::kKey_End)) target = mRange.MaxPosition();
  if (!target) return false;
  MoveTo(Saturate(*target), true);
  return true;
}

} // namespace ZEL
