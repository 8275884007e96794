// PlatformViewImpl: the child surface, kept over the node's area of its window.

#include <zel/views/PlatformViewImpl.h>

#include <kroui/backend/Backend.h>
#include <kroui/ui/UI_Window.h>

#include <utility>

namespace ZEL {

PlatformViewImpl::PlatformViewImpl(std::weak_ptr<PlatformView> view, PlatformView::SurfaceKind kind)
    : Base(std::move(view)), mKind(kind) {
  SetTracksPlacement(true);
  SetWantsDragAndDropEvents(true); // a native surface takes drops itself
}

PlatformViewImpl::~PlatformViewImpl() { DestroySurface(); }

void PlatformViewImpl::Retire() {
  RemoveFromParent();
  DestroySurface();
}

bool PlatformViewImpl::IsSurfaceCurrent() const noexcept {
  return mSurface && mGeneration == kroui::backend::GetBackendGeneration();
}

// Following the node.

void PlatformViewImpl::Sync() {
  kroui::ui::UI_Window* window = GetWindow();
  if (!window || !window->IsCreated() || !PlaceInWindow(*window)) {
    ShowSurface(false);
    return;
  }
  MoveSurface(LocalToWindow(GetLocalBounds()));
  ShowSurface(IsVisible());
}

bool PlatformViewImpl::PlaceInWindow(kroui::ui::UI_Window& window) {
  const HWND native = window.GetNativeWindow();
  if (IsSurfaceCurrent() && mParentWindow == native) return true;
  // Moved rather than remade, so that what the surface shows survives.
  const bool moved = IsSurfaceCurrent() && kroui::backend::GetBackend().SetChildSurfaceParent(mSurface, native);
  if (!moved) {
    DestroySurface(); // a backend that cannot move surfaces must not keep the old one
    MakeSurface(native);
  }
  if (!mSurface) return false;
  mParentWindow = native;
  if (const std::shared_ptr<PlatformView> view = GetView()) view->DidMoveToNewParentWindow();
  return IsSurfaceCurrent();
}

void PlatformViewImpl::MakeSurface(HWND parent) {
  kroui::backend::Backend& backend = kroui::backend::GetBackend();
  mSurfaceBounds = LocalToWindow(GetLocalBounds());
  mSurface = backend.CreateChildSurface(parent, mSurfaceBounds, mKind == PlatformView::GPUAccelerated);
  mGeneration = kroui::backend::GetBackendGeneration();
  mIsSurfaceShown = false;
  if (!mSurface) return;
  backend.SetChildSurfaceOpacity(mSurface, mOpacity);
  backend.SetChildSurfaceClipping(mSurface, mIsClipped);
}

void PlatformViewImpl::MoveSurface(const kroui::ui::Rect& bounds) {
  if (bounds == mSurfaceBounds) return;
  mSurfaceBounds = bounds;
  kroui::backend::GetBackend().SetChildSurfaceBounds(mSurface, bounds);
  if (const std::shared_ptr<PlatformView> view = GetView()) view->DidMoveWindow();
}

void PlatformViewImpl::ShowSurface(bool show) {
  if (!IsSurfaceCurrent() || show == mIsSurfaceShown) return;
  mIsSurfaceShown = show;
  kroui::backend::GetBackend().ShowChildSurface(mSurface, show);
  const std::shared_ptr<PlatformView> view = GetView();
  if (!view) return;
  if (show) {
    view->DidShow();
  } else {
    view->DidHide();
  }
}

void PlatformViewImpl::DestroySurface() {
  if (IsSurfaceCurrent()) kroui::backend::GetBackend().DestroyChildSurface(mSurface);
  mSurface = nullptr;
  mParentWindow = nullptr;
  mIsSurfaceShown = false;
}

// Opacity and clipping: kept here too, for a surface made later.

void PlatformViewImpl::SetOpacity(float opacity) {
  const std::shared_ptr<PlatformView> view = GetView();
  const float before = std::exchange(mOpacity, opacity);
  if (view && before >= 1.f && opacity < 1.f) view->BecomingTranslucentSelf();
  if (IsSurfaceCurrent()) kroui::backend::GetBackend().SetChildSurfaceOpacity(mSurface, opacity);
  Invalidate(); // the node's own paint shows through now, or no longer
  if (view && before < 1.f && opacity >= 1.f) view->BecameOpaqueSelf();
}

void PlatformViewImpl::SetClipping(bool clip) {
  mIsClipped = clip;
  if (IsSurfaceCurrent()) kroui::backend::GetBackend().SetChildSurfaceClipping(mSurface, clip);
}

// Notifications.

void PlatformViewImpl::PaintSelf(kroui::drawbot::Drawbot& drawbot) {
  const std::shared_ptr<PlatformView> view = GetView();
  if (!view) return;
  DC dc(drawbot);
  view->PaintSelf(dc);
}

} // namespace ZEL
