// PlatformView: creation, the view interface, the surface, and the default hooks.

#include <zel/views/PlatformView.h>

#include <zel/views/PlatformViewImpl.h>
#include <zel/views/ViewHookDefaultsImpl.h>
#include <zel/views/ViewSupport.h>

#include <krocore/debug/Assert.h>
#include <kroui/ui/UI_Container.h>

#include <algorithm>

namespace ZEL {

PlatformView::PlatformView(const krocore::FlexWeakPtr<Commander>& superCommander) : ViewBase(superCommander) {}

PlatformView::~PlatformView() {
  // The node may outlive the handle; neither it nor its surface may stay behind.
  if (mImpl) mImpl->Retire();
}

// Creation.

bool PlatformView::Create(const std::weak_ptr<ViewBase>& parent, const Rect& bounds, SurfaceKind kind) {
  const auto container = detail::ContainerOfParent(parent, "PlatformView");
  return container && Insert(*container, bounds, parent, kind);
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
  if (!detail::HasNode(mImpl)) return;
  mImpl->SetBounds(bounds);
}

ViewBase::Rect PlatformView::GetBounds() const {
  if (!detail::HasNode(mImpl)) return {};
  return mImpl->GetBounds();
}

void PlatformView::Show(bool show) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->Show(show);
}

void PlatformView::Hide() {
  if (!detail::HasNode(mImpl)) return;
  mImpl->Hide();
}

bool PlatformView::IsShown() const {
  if (!detail::HasNode(mImpl)) return false;
  return mImpl->IsShown();
}

std::shared_ptr<ViewBase> PlatformView::GetParent() {
  if (!detail::HasNode(mImpl)) return nullptr;
  return mParent.lock();
}

krocore::IntrusivePtr<kroui::ui::UI_Node> PlatformView::GetKRONode() {
  if (!detail::HasNode(mImpl)) return nullptr;
  return mImpl;
}

// The surface.

void PlatformView::SetOpacity(float opacity) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->SetOpacity(std::clamp(opacity, 0.f, 1.f));
}

float PlatformView::GetOpacity() const {
  if (!detail::HasNode(mImpl)) return 1.f;
  return mImpl->GetOpacity();
}

void PlatformView::SetOSControlClipping(bool clip) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->SetClipping(clip);
}

HWND PlatformView::GetPlatformViewPtr() const {
  if (!detail::HasNode(mImpl)) return nullptr;
  return mImpl->GetSurface();
}

void PlatformView::Invalidate() {
  if (!detail::HasNode(mImpl)) return;
  mImpl->Invalidate();
}

// Duty: the surface takes commands as any view does.

void PlatformView::NowOnDuty() { ViewBase::NowOnDuty(); }
void PlatformView::NowOffDuty() { ViewBase::NowOffDuty(); }

// Default hooks: nothing is consumed, so events go on to the parent.

ZEL_DEFINE_SHARED_VIEW_HOOK_DEFAULTS(PlatformView)
void PlatformView::BecomingTranslucentSelf() {}
void PlatformView::BecameOpaqueSelf() {}
void PlatformView::MiddleButtonDownSelf(const Point&, KeyModifiers) {}
void PlatformView::MiddleButtonUpSelf(const Point&, KeyModifiers) {}
bool PlatformView::MouseWheelSelf(const Point&, KeyModifiers, int) { return false; }
void PlatformView::DidShow() {}
void PlatformView::DidHide() {}
void PlatformView::DidMoveToNewParentWindow() {}
void PlatformView::DidMoveWindow() {}

bool PlatformView::MouseWheelSelf(const Point& point, KeyModifiers modifiers, int deltaX, int deltaY, bool) {
  // Only a plain vertical turn has a meaning for the short form.
  return deltaX == 0 && MouseWheelSelf(point, modifiers, deltaY);
}

} // namespace ZEL
