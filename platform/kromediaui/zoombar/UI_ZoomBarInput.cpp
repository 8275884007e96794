// UI_ZoomBar: what the pointer and the wheel do to the range.

#include <kromediaui/zoombar/UI_ZoomBar.h>

#include <kromediaui/zoombar/UI_ZoomBarImpl.h>

#include <cmath>

namespace kromediaui {
namespace {

using kroui::ui::PointerEvent;

constexpr unsigned kPageRepeatTimer = 2;
// A held track waits before repeating, then repeats quickly, as scroll bars do.
constexpr unsigned kPageRepeatDelayMs = 300;
constexpr unsigned kPageRepeatIntervalMs = 50;
constexpr double kWheelNotch = 120.0;
constexpr double kPanPerNotch = 0.125;
constexpr double kZoomPerNotch = 0.8;

bool IsEdge(ZoomBarPart part) { return part == ZoomBarPart::StartEdge || part == ZoomBarPart::EndEdge; }

} // namespace

bool UI_ZoomBar::IsDragging() const { return IsEdge(mImpl->pressed) || mImpl->pressed == ZoomBarPart::Center; }

void UI_ZoomBar::SetUserClickedInPageUpPageDownRegion(bool clicked) {
  mImpl->clickedInPageRegion = clicked;
  if (!clicked) RemoveTimer(kPageRepeatTimer);
}

bool UI_ZoomBar::GetUserClickedInPageUpPageDownRegion() const { return mImpl->clickedInPageRegion; }

// Press, drag, release.

bool UI_ZoomBar::MouseDownSelf(const PointerEvent& event) {
  if (event.button != PointerEvent::Button::Left) return false;
  const ZoomBarPart part = Layout().PartAt(event.position);
  if (part != ZoomBarPart::None) PressPart(part, event);
  return true;
}

void UI_ZoomBar::PressPart(ZoomBarPart part, const PointerEvent& event) {
  UI_ZoomBarImpl& state = *mImpl;
  state.pressed = part;
  state.pressPoint = state.pointer = event.position;
  state.rangeAtPress = state.range;
  state.thumbStartAtPress = Layout().ThumbStart();
  CaptureMouse();
  Invalidate(); // the held part shows that it is held
  if (part != ZoomBarPart::PageBefore && part != ZoomBarPart::PageAfter) return;
  SetUserClickedInPageUpPageDownRegion(true);
  PageTowardsPointer();
  SetTimer(kPageRepeatTimer, kPageRepeatDelayMs);
}

void UI_ZoomBar::PageTowardsPointer() {
  const ZoomBarLayout layout = Layout();
  const int along = layout.Along(mImpl->pointer);
  // Only while the pointer is still beyond the thumb: paging stops where the thumb reaches it.
  if (along < layout.ThumbStart()) DoPage(-1);
  else if (along >= layout.ThumbStart() + layout.ThumbLength()) DoPage(1);
}

bool UI_ZoomBar::TimerNotifySelf(unsigned timerID) {
  if (timerID != kPageRepeatTimer) return false;
  if (LostPress() || !mImpl->clickedInPageRegion) return true;
  PageTowardsPointer();
  SetTimer(kPageRepeatTimer, kPageRepeatIntervalMs);
  return true;
}

bool UI_ZoomBar::MouseMoveSelf(const PointerEvent& event) {
  if (mImpl->pressed == ZoomBarPart::None || LostPress()) return false;
  mImpl->pointer = event.position;
  if (IsDragging()) DragTo(event);
  return true;
}

void UI_ZoomBar::DragTo(const PointerEvent& event) {
  const UI_ZoomBarImpl& state = *mImpl;
  const ZoomBarLayout layout = Layout();
  const int moved = layout.Along(event.position) - layout.Along(state.pressPoint);
  if (state.pressed == ZoomBarPart::Center) {
    DoDragRange(layout.StartForThumbStart(state.thumbStartAtPress + moved));
    return;
  }
  const Edge edge = state.pressed == ZoomBarPart::StartEdge ? Edge::Start : Edge::End;
  const double atPress = edge == Edge::Start ? state.rangeAtPress.start : state.rangeAtPress.end;
  const double value = atPress + (layout.Length() > 0 ? static_cast<double>(moved) / layout.Length() : 0.0);
  // Alt is read at every step, so that the user can switch while dragging.
  if (event.modifiers.Has(kroui::ui::kModKey_Alt)) DoDragEdgeSymmetric(edge, value);
  else DoDragEdge(edge, value);
}

bool UI_ZoomBar::MouseUpSelf(const PointerEvent& event) {
  if (event.button != PointerEvent::Button::Left || mImpl->pressed == ZoomBarPart::None) return false;
  const bool wasDragging = IsDragging();
  EndPress();
  if (wasDragging && mImpl->range != mImpl->rangeAtPress && mImpl->rangeChanged) {
    const RangeChangedFunction function = mImpl->rangeChanged;
    function(*this, true);
  }
  return true;
}

bool UI_ZoomBar::MouseMultiClickSelf(const PointerEvent& event) {
  if (event.button != PointerEvent::Button::Left || event.clickCount != 2) return false;
  if (Layout().PartAt(event.position) == ZoomBarPart::None) return false;
  ToggleFitAll();
  return true;
}

bool UI_ZoomBar::LostPress() {
  // The capture goes when the bar is hidden, disabled or taken out while held:
  // the release will not come here, so the press ends now.
  if (HasMouseCapture()) return false;
  EndPress();
  return true;
}

void UI_ZoomBar::EndPress() {
  mImpl->pressed = ZoomBarPart::None;
  SetUserClickedInPageUpPageDownRegion(false);
  ReleaseMouse();
  Invalidate();
  AdjustAnimatedScroomBarHeight(); // a minimised bar released away from the pointer closes
}

// Hover and wheel.

void UI_ZoomBar::MouseEnterSelf(const PointerEvent&) {
  mImpl->isHovered = true;
  AdjustAnimatedScroomBarHeight();
}

void UI_ZoomBar::MouseLeaveSelf() {
  mImpl->isHovered = false;
  AdjustAnimatedScroomBarHeight();
}

bool UI_ZoomBar::MouseWheelSelf(const PointerEvent& event) { return HandleMouseWheelEvent(event); }

bool UI_ZoomBar::HandleMouseWheelEvent(const PointerEvent& event) {
  const bool isVertical = mImpl->IsVertical();
  const int delta = isVertical || event.wheelDeltaX == 0 ? event.wheelDeltaY : event.wheelDeltaX;
  if (delta == 0) return false;
  // Precise deltas are pixels: a notch of them moves as much as a notch of the wheel.
  const double notches = delta / kWheelNotch;
  const ZoomBarRange& range = mImpl->range;
  const double minimum = mImpl->MinimumSpan();
  if (event.modifiers.Has(kroui::ui::kModKey_Control)) {
    const ZoomBarLayout layout = Layout();
    const double anchor = layout.FractionAt(layout.Along(event.position));
    // Turning the wheel away from the user zooms in.
    Propose(range.ZoomedAround(anchor, std::pow(kZoomPerNotch, notches), minimum));
    return true;
  }
  if (range.IsWhole()) return false; // nothing to pan: let an enclosing view scroll instead
  // Turning the wheel away from the user moves towards the start.
  Propose(range.MovedTo(range.start - notches * kPanPerNotch * range.Span(), minimum));
  return true;
}

} // namespace kromediaui
