#include <zel/views/OverlayView.h>
#include <zel/views/OverlayViewImpl.h>
#include <zel/views/ViewSupport.h>

#include <krocore/debug/Assert.h>
#include <kroui/ui/UI_Window.h>
#include <kroworkspace/workspace/TopLevelWindow.h>

#include <algorithm>

namespace ZEL {

OverlayView::OverlayView(const krocore::FlexWeakPtr<Commander>& superCommander) : ViewBase(superCommander) {}

OverlayView::~OverlayView() = default;

bool OverlayView::Create(const std::weak_ptr<ViewBase>& parent, const Rect& bounds,
                         kroworkspace::workspace::TopLevelWindow* window) {
  return Create(parent, bounds, window ? &window->GetWindow() : nullptr);
}

bool OverlayView::Create(const std::weak_ptr<ViewBase>& parent, const Rect& bounds,
                         kroui::ui::UI_Window* window) {
  if (!KROCORE_ASSERT(window && window->IsCreated(), "OverlayView: no window to stand above")) return false;
  std::weak_ptr<OverlayView> self = WeakAs<OverlayView>();
  if (!KROCORE_ASSERT(!self.expired(), "OverlayView: a view must be held by a std::shared_ptr to be created"))
    return false;
  // Created again, the overlay gets a new layer; the old one goes first.
  mImpl.reset();
  mImpl = std::make_unique<OverlayViewImpl>(std::move(self), parent, bounds, *window);
  FinishCreateSelf(bounds);
  return true;
}

void OverlayView::Destroy() {
  if (!detail::HasNode(mImpl)) return;
  DestroySelf();
  mImpl.reset();
}

bool OverlayView::IsCreated() const noexcept { return mImpl != nullptr; }

// The view interface.

void OverlayView::SetBounds(const Rect& bounds) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->SetBounds(bounds);
  SetBoundsSelf(bounds);
}

ViewBase::Rect OverlayView::GetBounds() const {
  if (!detail::HasNode(mImpl)) return {};
  return mImpl->GetBounds();
}

void OverlayView::Show(bool show) {
  if (!detail::HasNode(mImpl)) return;
  if (show) {
    mImpl->GetLayer().Show(false); // a layer never takes the focus
  } else {
    mImpl->GetLayer().Hide();
  }
}

void OverlayView::Hide() {
  if (!detail::HasNode(mImpl)) return;
  mImpl->GetLayer().Hide();
}

bool OverlayView::IsShown() const {
  if (!detail::HasNode(mImpl)) return false;
  return mImpl->GetLayer().IsShown();
}

std::shared_ptr<ViewBase> OverlayView::GetParent() {
  if (!detail::HasNode(mImpl)) return nullptr;
  return mImpl->GetParent();
}

krocore::IntrusivePtr<kroui::ui::UI_Node> OverlayView::GetKRONode() {
  if (!detail::HasNode(mImpl)) return nullptr;
  return krocore::IntrusivePtr<kroui::ui::UI_Node>(&mImpl->GetNode());
}

// Hooks.

void OverlayView::FinishCreateSelf(const Rect&) {}
void OverlayView::DestroySelf() {}
void OverlayView::SetBoundsSelf(const Rect&) {}
void OverlayView::PaintSelf(DC&) {}

// The layer.

void OverlayView::SetOpacity(float opacity) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->GetLayer().SetAlpha(std::clamp(opacity, 0.f, 1.f));
}

void OverlayView::SetTransparentColorKey(const kroui::drawbot::ColorRGBA& colorKey) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->GetNode().SetColorKey(colorKey);
}

void OverlayView::SetOpacityAndTransparentColorKey(float opacity, const kroui::drawbot::ColorRGBA& colorKey) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->GetLayer().SetAlpha(std::clamp(opacity, 0.f, 1.f));
  mImpl->GetNode().SetColorKey(colorKey);
}

void OverlayView::Invalidate() {
  if (!detail::HasNode(mImpl)) return;
  mImpl->GetNode().Invalidate();
}

kroui::ui::UI_Window* OverlayView::GetLayerWindow() const { return mImpl ? &mImpl->GetLayer() : nullptr; }

} // namespace ZEL
