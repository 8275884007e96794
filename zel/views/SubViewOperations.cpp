// SubView: the operations that forward to the node once it exists.

#include <zel/views/SubView.h>

#include <zel/views/SubViewImpl.h>
#include <zel/views/ViewSupport.h>

#include <kroui/ui/UI_Animator.h>

namespace ZEL {

// Geometry.

ViewBase::Point SubView::Position() const {
  if (!detail::HasNode(mImpl)) return {};
  return mImpl->GetBounds().Origin();
}

ViewBase::Extent SubView::Size() const {
  if (!detail::HasNode(mImpl)) return {};
  return mImpl->GetBounds().Extent();
}

void SubView::ClientToScreen(Point& point) const {
  if (!detail::HasNode(mImpl)) return;
  point = mImpl->LocalToScreen(point);
}

void SubView::ScreenToClient(Point& point) const {
  if (!detail::HasNode(mImpl)) return;
  point = mImpl->ScreenToLocal(point);
}

void SubView::SetLayoutBinding(bool left, bool top, bool right, bool bottom, bool proportionalWidth,
                               bool proportionalHeight) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->SetLayoutBinding({left, top, right, bottom, proportionalWidth, proportionalHeight});
}

// State.

bool SubView::IsViewVisible() const {
  if (!detail::HasNode(mImpl)) return false;
  return mImpl->IsVisible();
}

bool SubView::AreAllParentsVisible() const {
  if (!detail::HasNode(mImpl)) return false;
  const kroui::ui::UI_Container* parent = mImpl->GetParent();
  return parent && parent->IsVisible();
}

bool SubView::IsEnabled() const {
  if (!detail::HasNode(mImpl)) return false;
  return mImpl->IsEnabled();
}

void SubView::SetClipToSelf(bool clip) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->SetClipToSelf(clip);
}

bool SubView::GetClipToSelf() const {
  if (!detail::HasNode(mImpl)) return false;
  return mImpl->GetClipToSelf();
}

void SubView::EnableDoubleBuffering(bool enable, bool redrawNow) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->EnableDoubleBuffering(enable);
  if (redrawNow) mImpl->Redraw();
}

// Painting.

void SubView::Invalidate() {
  if (!detail::HasNode(mImpl)) return;
  mImpl->Invalidate();
}

void SubView::InvalidateRect(const Rect& rect) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->InvalidateRect(rect);
}

void SubView::Redraw() {
  if (!detail::HasNode(mImpl)) return;
  mImpl->Redraw();
}

// Focus and mouse.

bool SubView::SetFocus() {
  if (!detail::HasNode(mImpl)) return false;
  return mImpl->SetFocus();
}

void SubView::KillFocus() {
  if (!detail::HasNode(mImpl)) return;
  mImpl->KillFocus();
}

bool SubView::HasFocus() const {
  if (!detail::HasNode(mImpl)) return false;
  return mImpl->HasFocus();
}

bool SubView::CaptureMouse() {
  if (!detail::HasNode(mImpl)) return false;
  return mImpl->CaptureMouse();
}

void SubView::ReleaseMouse() {
  if (!detail::HasNode(mImpl)) return;
  mImpl->ReleaseMouse();
}

bool SubView::IsMouseCaptured() const {
  if (!detail::HasNode(mImpl)) return false;
  return mImpl->HasMouseCapture();
}

bool SubView::IsLeftMouseDown() const {
  if (!detail::HasNode(mImpl)) return false;
  return mImpl->IsLeftMouseDown();
}

bool SubView::IsRightMouseDown() const {
  if (!detail::HasNode(mImpl)) return false;
  return mImpl->IsRightMouseDown();
}

ViewBase::Point SubView::MouseDownPoint() const {
  if (!detail::HasNode(mImpl)) return {};
  return mImpl->GetMouseDownPoint();
}

ViewBase::Point SubView::MouseMovePoint() const {
  if (!detail::HasNode(mImpl)) return {};
  return mImpl->GetMouseMovePoint();
}

ViewBase::Point SubView::MouseUpPoint() const {
  if (!detail::HasNode(mImpl)) return {};
  return mImpl->GetMouseUpPoint();
}

void SubView::SetDispatchNonPrimaryMouseEvents(bool dispatch) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->SetDispatchNonPrimaryPointerEvents(dispatch);
}

kroui::ui::PointerEvent::SubType SubView::GetPointerEventSubType() const {
  if (!detail::HasNode(mImpl)) return kroui::ui::PointerEvent::SubType::Mouse;
  return mImpl->GetPointerEventSubType();
}

// Timers, drag and drop, animation.

void SubView::SetTimer(unsigned timerID, unsigned intervalMs) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->SetTimer(timerID, intervalMs);
}

void SubView::RemoveTimer(unsigned timerID) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->RemoveTimer(timerID);
}

void SubView::WantsDragAndDropEvents(bool wants) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->SetWantsDragAndDropEvents(wants);
}

std::shared_ptr<kroui::ui::DataSource> SubView::GetDataSource() {
  if (!detail::HasNode(mImpl)) return nullptr;
  return mImpl->GetDataSource();
}

void SubView::FinishDragAndDrop() {
  if (!detail::HasNode(mImpl)) return;
  mImpl->FinishDragAndDrop();
}

std::shared_ptr<kroui::ui::UI_Animator> SubView::Animator() {
  if (!detail::HasNode(mImpl)) return nullptr;
  return mImpl->Animator();
}

} // namespace ZEL
