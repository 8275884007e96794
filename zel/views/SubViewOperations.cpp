// SubView: the operations that forward to the node once it exists.

#include <zel/views/SubView.h>

#include <zel/views/SubViewImpl.h>
#include <zel/views/ViewSupport.h>

#include <kroui/ui/UI_Animator.h>

namespace ZEL {

// Geometry.

ViewBase::Point SubView::Position() const {
  ZEL_SUBVIEW_REQUIRE_IMPL({});
  return mImpl->GetBounds().Origin();
}

ViewBase::Extent SubView::Size() const {
  ZEL_SUBVIEW_REQUIRE_IMPL({});
  return mImpl->GetBounds().Extent();
}

void SubView::ClientToScreen(Point& point) const {
  ZEL_SUBVIEW_REQUIRE_IMPL();
  point = mImpl->LocalToScreen(point);
}

void SubView::ScreenToClient(Point& point) const {
  ZEL_SUBVIEW_REQUIRE_IMPL();
  point = mImpl->ScreenToLocal(point);
}

void SubView::SetLayoutBinding(bool left, bool top, bool right, bool bottom, bool proportionalWidth,
                               bool proportionalHeight) {
  ZEL_SUBVIEW_REQUIRE_IMPL();
  mImpl->SetLayoutBinding({left, top, right, bottom, proportionalWidth, proportionalHeight});
}

// State.

bool SubView::IsViewVisible() const {
  ZEL_SUBVIEW_REQUIRE_IMPL(false);
  return mImpl->IsVisible();
}

bool SubView::AreAllParentsVisible() const {
  ZEL_SUBVIEW_REQUIRE_IMPL(false);
  const kroui::ui::UI_Container* parent = mImpl->GetParent();
  return parent && parent->IsVisible();
}

bool SubView::IsEnabled() const {
  ZEL_SUBVIEW_REQUIRE_IMPL(false);
  return mImpl->IsEnabled();
}

void SubView::SetClipToSelf(bool clip) {
  ZEL_SUBVIEW_REQUIRE_IMPL();
  mImpl->SetClipToSelf(clip);
}

bool SubView::GetClipToSelf() const {
  ZEL_SUBVIEW_REQUIRE_IMPL(false);
  return mImpl->GetClipToSelf();
}

void SubView::EnableDoubleBuffering(bool enable, bool redrawNow) {
  ZEL_SUBVIEW_REQUIRE_IMPL();
  mImpl->EnableDoubleBuffering(enable);
  if (redrawNow) mImpl->Redraw();
}

// Painting.

void SubView::Invalidate() {
  ZEL_SUBVIEW_REQUIRE_IMPL();
  mImpl->Invalidate();
}

void SubView::InvalidateRect(const Rect& rect) {
  ZEL_SUBVIEW_REQUIRE_IMPL();
  mImpl->InvalidateRect(rect);
}

void SubView::Redraw() {
  ZEL_SUBVIEW_REQUIRE_IMPL();
  mImpl->Redraw();
}

// Focus and mouse.

bool SubView::SetFocus() {
  ZEL_SUBVIEW_REQUIRE_IMPL(false);
  return mImpl->SetFocus();
}

void SubView::KillFocus() {
  ZEL_SUBVIEW_REQUIRE_IMPL();
  mImpl->KillFocus();
}

bool SubView::HasFocus() const {
  ZEL_SUBVIEW_REQUIRE_IMPL(false);
  return mImpl->HasFocus();
}

bool SubView::CaptureMouse() {
  ZEL_SUBVIEW_REQUIRE_IMPL(false);
  return mImpl->CaptureMouse();
}

void SubView::ReleaseMouse() {
  ZEL_SUBVIEW_REQUIRE_IMPL();
  mImpl->ReleaseMouse();
}

bool SubView::IsMouseCaptured() const {
  ZEL_SUBVIEW_REQUIRE_IMPL(false);
  return mImpl->HasMouseCapture();
}

bool SubView::IsLeftMouseDown() const {
  ZEL_SUBVIEW_REQUIRE_IMPL(false);
  return mImpl->IsLeftMouseDown();
}

bool SubView::IsRightMouseDown() const {
  ZEL_SUBVIEW_REQUIRE_IMPL(false);
  return mImpl->IsRightMouseDown();
}

ViewBase::Point SubView::MouseDownPoint() const {
  ZEL_SUBVIEW_REQUIRE_IMPL({});
  return mImpl->GetMouseDownPoint();
}

ViewBase::Point SubView::MouseMovePoint() const {
  ZEL_SUBVIEW_REQUIRE_IMPL({});
  return mImpl->GetMouseMovePoint();
}

ViewBase::Point SubView::MouseUpPoint() const {
  ZEL_SUBVIEW_REQUIRE_IMPL({});
  return mImpl->GetMouseUpPoint();
}

void SubView::SetDispatchNonPrimaryMouseEvents(bool dispatch) {
  ZEL_SUBVIEW_REQUIRE_IMPL();
  mImpl->SetDispatchNonPrimaryPointerEvents(dispatch);
}

kroui::ui::PointerEvent::SubType SubView::GetPointerEventSubType() const {
  ZEL_SUBVIEW_REQUIRE_IMPL(kroui::ui::PointerEvent::SubType::Mouse);
  return mImpl->GetPointerEventSubType();
}

// Timers, drag and drop, animation.

void SubView::SetTimer(unsigned timerID, unsigned intervalMs) {
  ZEL_SUBVIEW_REQUIRE_IMPL();
  mImpl->SetTimer(timerID, intervalMs);
}

void SubView::RemoveTimer(unsigned timerID) {
  ZEL_SUBVIEW_REQUIRE_IMPL();
  mImpl->RemoveTimer(timerID);
}

void SubView::WantsDragAndDropEvents(bool wants) {
  ZEL_SUBVIEW_REQUIRE_IMPL();
  mImpl->SetWantsDragAndDropEvents(wants);
}

std::shared_ptr<kroui::ui::UI_Animator> SubView::Animator() {
  ZEL_SUBVIEW_REQUIRE_IMPL(nullptr);
  return mImpl->Animator();
}

} // namespace ZEL
