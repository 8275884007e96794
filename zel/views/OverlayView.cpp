#include <zel/views/OverlayView.h>

#include <zel/views/OverlayViewImpl.h>

#include <krocore/debug/Assert.h>
#include <kroui/ui/UI_Window.h>

#include <algorithm>

/// Opens every OverlayView operation: without a layer, report and return the neutral value.
#define ZEL_OVERLAY_REQUIRE_IMPL(...)                                                                       \
  if (!KROCORE_ASSERT(mImpl, "OverlayViewImpl has not been initialized")) return __VA_ARGS__

namespace ZEL {

OverlayView::OverlayView(const krocore::FlexWeakPtr<Commander>& superCommander) : ViewBase(superCommander) {}

OverlayView::~OverlayView() = default;

bool OverlayView::Create(const std::weak_ptr<ViewBase>& parent, const Rect& bounds, kroui::ui::UI_Window* window) {
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
  ZEL_OVERLAY_REQUIRE_IMPL();
  DestroySelf();
  mImpl.reset();
}

bool OverlayView::IsCreated() const noexcept { return mImpl != nullptr; }

// The view interface.

void OverlayView::SetBounds(const Rect& bounds) {
  ZEL_OVERLAY_REQUIRE_IMPL();
  mImpl->SetBounds(bounds);
  SetBoundsSelf(bounds);
}

ViewBase::Rect OverlayView::GetBounds() const {
  ZEL_OVERLAY_REQUIRE_IMPL({});
  return mImpl->GetBounds();
}

void OverlayView::Show(bool show) {
  ZEL_OVERLAY_REQUIRE_IMPL();
  if (show) {
    mImpl->GetLayer().Show(false); // a layer never takes the focus
  } else {
    mImpl->GetLayer().Hide();
  }
}

void OverlayView::Hide() {
  ZEL_OVERLAY_REQUIRE_IMPL();
  mImpl->GetLayer().Hide();
}

bool OverlayView::IsShown() const {
  ZEL_OVERLAY_REQUIRE_IMPL(false);
  return mImpl->GetLayer().IsShown();
}

std::shared_ptr<ViewBase> OverlayView::GetParent() {
  ZEL_OVERLAY_REQUIRE_IMPL(nullptr);
  return mImpl->GetParent();
}

krocore::IntrusivePtr<kroui::ui::UI_Node> OverlayView::GetKRONode() {
  ZEL_OVERLAY_REQUIRE_IMPL(nullptr);
  return krocore::IntrusivePtr<kroui::ui::UI_Node>(&mImpl->GetNode());
}

// Hooks.

void OverlayView::FinishCreateSelf(const Rect&) {}
void OverlayView::DestroySelf() {}
void OverlayView::SetBoundsSelf(const Rect&) {}
void OverlayView::PaintSelf(DC&) {}

// The layer.

void OverlayView::SetOpacity(float opacity) {
  ZEL_OVERLAY_REQUIRE_IMPL();
  mImpl->GetLayer().SetAlpha(std::clamp(opacity, 0.f, 1.f));
}

void OverlayView::SetTransparentColorKey(const kroui::drawbot::ColorRGBA& colorKey) {
  ZEL_OVERLAY_REQUIRE_IMPL();
  mImpl->GetNode().SetColorKey(colorKey);
}

void OverlayView::SetOpacityAndTransparentColorKey(float opacity, const kroui::drawbot::ColorRGBA& colorKey) {
  ZEL_OVERLAY_REQUIRE_IMPL();
  mImpl->GetLayer().SetAlpha(std::clamp(opacity, 0.f, 1.f));
  mImpl->GetNode().SetColorKey(colorKey);
}

void OverlayView::Invalidate() {
  ZEL_OVERLAY_REQUIRE_IMPL();
  mImpl->GetNode().Invalidate();
}

kroui::ui::UI_Window* OverlayView::GetLayerWindow() const { return mImpl ? &mImpl->GetLayer() : nullptr; }

} // namespace ZEL
