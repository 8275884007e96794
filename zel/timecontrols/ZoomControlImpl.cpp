#include <zel/timecontrols/ZoomControlImpl.h>

#include <zel/timecontrols/ZoomBarTheme.h>
#include <zel/views/ControlView.h>
#include <zel/views/DC.h>

#include <algorithm>
#include <utility>

namespace ZEL {
namespace {

using kroui::ui::PointerEvent;
using Key = krocore::utility::ImmutableString;

const Key kColor_Glyph{"colors.kls.text"};
const Key kColor_GlyphDisabled{"colors.kls.text.disabled"};

constexpr int kTrackThickness = 4;

// A minus, or a plus, centred in `box`.
void PaintGlyph(DC& dc, const DC::Rect& box, bool isPlus, const Key& color) {
  const int arm = std::max(2, std::min(box.Width(), box.Height()) / 4);
  const int x = (box.left + box.right) / 2, y = (box.top + box.bottom) / 2;
  dc.FillRect({x - arm, y - 1, x + arm + 1, y + 1}, color);
  if (isPlus) dc.FillRect({x - 1, y - arm, x + 1, y + arm + 1}, color);
}

} // namespace

ZoomControlImpl::ZoomControlImpl(unsigned int cookie, bool showsPosition)
    : ZoomPositionNode(cookie), mShowsPosition(showsPosition) {}

ZoomControlImpl::~ZoomControlImpl() = default;

void ZoomControlImpl::SetCommandIDs(int zoomInCommandID, int zoomOutCommandID) {
  mZoomInCommandID = zoomInCommandID;
  mZoomOutCommandID = zoomOutCommandID;
}

// Layout.

int ZoomControlImpl::ButtonLength() const {
  const Rect bounds = GetLocalBounds();
  return mShowsPosition ? std::min(bounds.Height(), bounds.Width() / 3) : bounds.Width() / 2;
}

ZoomControlImpl::Rect ZoomControlImpl::ButtonRect(Button button) const {
  const Rect bounds = GetLocalBounds();
  const int length = ButtonLength();
  if (button == Button::ZoomOut) return {0, 0, length, bounds.Height()};
  if (button == Button::ZoomIn) return {bounds.Width() - length, 0, bounds.Width(), bounds.Height()};
  return {};
}

ZoomControlImpl::Rect ZoomControlImpl::PositionRect() const {
  if (!mShowsPosition) return {};
  const int length = ButtonLength();
  return {length, 0, GetLocalBounds().Width() - length, GetLocalBounds().Height()};
}

ZoomControlImpl::Button ZoomControlImpl::ButtonAt(Point point) const {
  for (const Button button : {Button::ZoomOut, Button::ZoomIn}) {
    if (ButtonRect(button).Contains(point)) return button;
  }
  return Button::None;
}

bool ZoomControlImpl::IsButtonEnabled(Button button) const {
  if (!GetPosition().HasLevels()) return button != Button::None;
  if (button == Button::ZoomIn) return GetPosition().CanZoomIn();
  return button == Button::ZoomOut && GetPosition().CanZoomOut();
}

// Pointer: a button acts when released on itself, as buttons do.

bool ZoomControlImpl::MouseDownSelf(const PointerEvent& event) {
  if (event.button != PointerEvent::Button::Left) return false;
  const Button button = ButtonAt(event.position);
  if (!IsButtonEnabled(button)) return true;
  mPressed = button;
  mIsPressedInside = true;
  CaptureMouse();
  Invalidate();
  return true;
}

bool ZoomControlImpl::MouseMoveSelf(const PointerEvent& event) {
  if (mPressed == Button::None) return false;
  const bool inside = ButtonAt(event.position) == mPressed;
  if (inside != mIsPressedInside) Invalidate();
  mIsPressedInside = inside;
  return true;
}

bool ZoomControlImpl::MouseUpSelf(const PointerEvent& event) {
  if (event.button != PointerEvent::Button::Left || mPressed == Button::None) return false;
  const Button button = std::exchange(mPressed, Button::None);
  ReleaseMouse();
  Invalidate();
  if (ButtonAt(event.position) == button) Click(button);
  return true;
}

void ZoomControlImpl::Click(Button button) {
  const bool isIn = button == Button::ZoomIn;
  // The step is shown and broadcast first; the command's handler may then set the position it decides on.
  if (MoveTo(GetPosition().Stepped(isIn ? 1 : -1))) BroadcastChanged();
  const int commandID = isIn ? mZoomInCommandID : mZoomOutCommandID;
  if (commandID == 0) return;
  if (const std::shared_ptr<ControlView> view = GetView()) view->PostCommand(commandID);
}

// Paint.

void ZoomControlImpl::PaintSelf(kroui::drawbot::Drawbot& drawbot) {
  DC dc(drawbot);
  dc.FillRect(GetLocalBounds(), kColor_ZoomBarTrack);
  for (const Button button : {Button::ZoomOut, Button::ZoomIn}) {
    const Rect box = ButtonRect(button);
    if (mPressed == button && mIsPressedInside) dc.FillRect(box, kColor_ZoomBarThumbActive);
    PaintGlyph(dc, box, button == Button::ZoomIn, IsButtonEnabled(button) ? kColor_Glyph : kColor_GlyphDisabled);
  }
  const Rect area = PositionRect();
  if (area.IsEmpty()) return;
  const int top = (area.top + area.bottom - kTrackThickness) / 2;
  const Rect track{area.left + 2, top, area.right - 2, top + kTrackThickness};
  dc.FillRect(track, kColor_ZoomBarThumb);
  if (!GetPosition().HasLevels()) return;
  const int filled = static_cast<int>(static_cast<long long>(track.Width()) * GetPosition().position / GetPosition().maximum);
  dc.FillRect({track.left, track.top, track.left + filled, track.bottom}, kColor_ZoomBarHandle);
}

} // namespace ZEL
