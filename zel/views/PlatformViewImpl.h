#pragma once

// Private: the node and native surface behind a PlatformView.

#include <zel/views/PlatformView.h>
#include <zel/views/ViewNodeImpl.h>

#include <kroui/Forward.h>
#include <kroui/ui/UI_Node.h>

#include <cstdint>
#include <memory>
#include <string_view>

namespace ZEL {

/// The node of one PlatformView, and the child surface it keeps over its own
/// area of its window. The node asks kroui to hear of every change of its
/// place (its or an ancestor's move, a move to another tree) and of its
/// visibility, and makes the surface follow. Events reach the view's hooks
/// through the shared view node.
class PlatformViewImpl final : public detail::ViewNode<PlatformView, kroui::ui::UI_Node> {
public:
  PlatformViewImpl(std::weak_ptr<PlatformView> view, PlatformView::SurfaceKind kind);

  /// Named in the reports of a PlatformView without its node.
  static constexpr std::string_view kReportedName = "PlatformViewImpl";

  HWND GetSurface() const noexcept { return IsSurfaceCurrent() ? mSurface : nullptr; }
  float GetOpacity() const noexcept { return mOpacity; }
  void SetOpacity(float opacity);
  void SetClipping(bool clip);
  /// Brings the surface in line with the node's window, place and visibility.
  void Sync();
  /// Takes the node out of its parent and destroys the surface.
  void Retire();

protected:
  ~PlatformViewImpl() override;

  void PaintSelf(kroui::drawbot::Drawbot& drawbot) override;
  void PlacementChangedSelf() override { Sync(); }
  void VisibilityChangedSelf() override { Sync(); }

private:
  using Base = detail::ViewNode<PlatformView, kroui::ui::UI_Node>;

  /// A handle made by a backend since replaced names nothing.
  bool IsSurfaceCurrent() const noexcept;
  /// Makes the surface, or moves it, into `window`; false when none can be had.
  bool PlaceInWindow(kroui::ui::UI_Window& window);
  void MakeSurface(HWND parent);
  void MoveSurface(const kroui::ui::Rect& bounds);
  void ShowSurface(bool show);
  void DestroySurface();

  PlatformView::SurfaceKind mKind;
  HWND mSurface = nullptr;
  HWND mParentWindow = nullptr;
  std::uint64_t mGeneration = 0;
  kroui::ui::Rect mSurfaceBounds;
  bool mIsSurfaceShown = false;
  float mOpacity = 1.f;
  bool mIsClipped = false;
};

} // namespace ZEL
