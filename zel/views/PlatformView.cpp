// PlatformView: creation, the view interface, the surface, and the default hooks.

#include <zel/views/PlatformView.h>

#include <zel/views/PlatformViewImpl.h>

#include <krocore/debug/Assert.h>
#include <kroui/base/DataObject.h>
#include <kroui/ui/UI_Container.h>

#include <algorithm>

/// Opens every PlatformView operation: without a node, report and return the neutral value.
#define ZEL_PLATFORMVIEW_REQUIRE_IMPL(...)                                                                  \
  if (!KROCORE_ASSERT(mImpl, "PlatformViewImpl has not been initialized")) return __VA_ARGS__

namespace ZEL {

PlatformView::PlatformView(const krocore::FlexWeakPtr<Commander>& superCommander) : ViewBase(superCommander) {}

PlatformView::~PlatformView() {
  // The node may outlive the handle; neither it nor its surface may stay behind.
  if (mImpl) mImpl->Retire();
}

// Creation.

bool PlatformView::Create(const std::weak_ptr<ViewBase>& parent, const Rect& bounds, SurfaceKind kind) {
  const std::shared_ptr<ViewBase> parentView = parent.lock();
  const auto parentNode = parentView ? parentView->GetKRONode() : nullptr;
  auto* container = dynamic_cast<kroui::ui::UI_Container*>(parentNode.Get());
  if (!KROCORE_ASSERT(container, "PlatformView: the parent view has no node that can hold views")) return false;
  return Insert(*container, bounds, parent, kind);
}

bool PlatformView::Create(const kroui::ui::RefCountedWeakPtr<kroui::ui::UI_Container>& parent, const Rect& bounds,
                          SurfaceKind kind) {
  const auto container = parent.Lock();
  if (!KROCORE_ASSERT(container, "PlatformView: the parent container is gone")) return false;
  return Insert(*container, bounds, {}, kind);
}

bool PlatformView::Insert(kroui::ui::UI_Container& container, const Rect& bounds,
                          const std::weak_ptr<ViewBase>& parent, SurfaceKind kind) {
  std::weak_ptr<PlatformView> self = WeakAs<PlatformView>();
  if (!KROCORE_ASSERT(!self.expired(), "PlatformView: a view must be held by a std::shared_ptr to be created"))
    return false;
  // Created again, the view gets a new node and surface; the old ones go first.
  if (mImpl) mImpl->Retire();
  mImpl = krocore::MakeIntrusive<PlatformViewImpl>(std::move(self), kind);
  mParent = parent;
  container.InsertChild(mImpl, bounds); // in a window, this makes the surface
  FinishCreateSelf(bounds);
  return true;
}

bool PlatformView::IsCreated() const noexcept { return static_cast<bool>(mImpl); }

// The view interface.

void PlatformView::SetBounds(const Rect& bounds) {
  ZEL_PLATFORMVIEW_REQUIRE_IMPL();
  mImpl->SetBounds(bounds);
}

ViewBase::Rect PlatformView::GetBounds() const {
  ZEL_PLATFORMVIEW_REQUIRE_IMPL({});
  return mImpl->GetBounds();
}

void PlatformView::Show(bool show) {
  ZEL_PLATFORMVIEW_REQUIRE_IMPL();
  mImpl->Show(show);
}

void PlatformView::Hide() {
  ZEL_PLATFORMVIEW_REQUIRE_IMPL();
  mImpl->Hide();
}

bool PlatformView::IsShown() const {
  ZEL_PLATFORMVIEW_REQUIRE_IMPL(false);
  return mImpl->IsShown();
}

std::shared_ptr<ViewBase> PlatformView::GetParent() {
  ZEL_PLATFORMVIEW_REQUIRE_IMPL(nullptr);
  return mParent.lock();
}

krocore::IntrusivePtr<kroui::ui::UI_Node> PlatformView::GetKRONode() {
  ZEL_PLATFORMVIEW_REQUIRE_IMPL(nullptr);
  return mImpl;
}

// The surface.

void PlatformView::SetOpacity(float opacity) {
  ZEL_PLATFORMVIEW_REQUIRE_IMPL();
  mImpl->SetOpacity(std::clamp(opacity, 0.f, 1.f));
}

float PlatformView::GetOpacity() const {
  ZEL_PLATFORMVIEW_REQUIRE_IMPL(1.f);
  return mImpl->GetOpacity();
}

void PlatformView::SetOSControlClipping(bool clip) {
  ZEL_PLATFORMVIEW_REQUIRE_IMPL();
  mImpl->SetClipping(clip);
}

HWND PlatformView::GetPlatformViewPtr() const {
  ZEL_PLATFORMVIEW_REQUIRE_IMPL(nullptr);
  return mImpl->GetSurface();
}

void PlatformView::Invalidate() {
  ZEL_PLATFORMVIEW_REQUIRE_IMPL();
  mImpl->Invalidate();
}

// Duty: the surface takes commands as any view does.

void PlatformView::NowOnDuty() { ViewBase::NowOnDuty(); }
void PlatformView::NowOffDuty() { ViewBase::NowOffDuty(); }

// Default hooks: nothing is consumed, so events go on to the parent.

void PlatformView::FinishCreateSelf(const Rect&) {}
void PlatformView::SetBoundsSelf(const Rect&) {}
void PlatformView::SetFocusSelf() {}
void PlatformView::KillFocusSelf() {}
void PlatformView::BecomingTranslucentSelf() {}
void PlatformView::BecameOpaqueSelf() {}
void PlatformView::PaintSelf(DC&) {}
void PlatformView::LeftButtonDownSelf(const Point&, KeyModifiers) {}
void PlatformView::LeftButtonUpSelf(const Point&, KeyModifiers) {}
void PlatformView::LeftButtonMultiClickSelf(const Point&, KeyModifiers, unsigned) {}
void PlatformView::MiddleButtonDownSelf(const Point&, KeyModifiers) {}
void PlatformView::MiddleButtonUpSelf(const Point&, KeyModifiers) {}
void PlatformView::RightButtonDownSelf(const Point&, KeyModifiers) {}
void PlatformView::RightButtonUpSelf(const Point&, KeyModifiers) {}
void PlatformView::RightButtonDoubleClickSelf(const Point&, KeyModifiers) {}
bool PlatformView::SetCursorSelf(const Point&, KeyModifiers) { return false; }
void PlatformView::MouseMoveSelf(const Point&, KeyModifiers) {}
void PlatformView::MouseLeaveSelf() {}
bool PlatformView::MouseWheelSelf(const Point&, KeyModifiers, int) { return false; }
bool PlatformView::MouseMagnifySelf(const Point&, const float&, KeyModifiers) { return false; }
bool PlatformView::MouseRotateSelf(const Point&, const float&, KeyModifiers) { return false; }
bool PlatformView::MousePanSelf(const Point&, const Point&) { return false; }
void PlatformView::MouseGestureEndSelf(const kroui::ui::PointerEvent::Action&) {}
UTF8String PlatformView::GetToolTipTextSelf() const { return {}; }
int PlatformView::DragEnterSelf(kroui::ui::DataObject&, KeyModifiers, const Point&) {
  return kroui::ui::kDropEffect_None;
}
int PlatformView::DragOverSelf(kroui::ui::DataObject&, KeyModifiers, const Point&) {
  return kroui::ui::kDropEffect_None;
}
void PlatformView::DragLeaveSelf() {}
bool PlatformView::DropSelf(kroui::ui::DataObject&, int, const Point&) { return false; }
void PlatformView::DidShow() {}
void PlatformView::DidHide() {}
void PlatformView::DidMoveToNewParentWindow() {}
void PlatformView::DidMoveWindow() {}

bool PlatformView::MouseWheelSelf(const Point& point, KeyModifiers modifiers, int deltaX, int deltaY, bool) {
  // Only a plain vertical turn has a meaning for the short form.
  return deltaX == 0 && MouseWheelSelf(point, modifiers, deltaY);
}

} // namespace ZEL
