#pragma once

// Private: the node and native surface behind a PlatformView.

#include <zel/views/PlatformView.h>

#include <kroui/ui/UI_Node.h>

#include <cstdint>
#include <memory>

namespace kroui::ui {
class UI_Window;
}

namespace ZEL {

/// The node of one PlatformView, and the child surface it keeps over its own
/// area of its window. The node asks kroui to hear of every change of its
/// place (its or an ancestor's move, a move to another tree) and of its
/// visibility, and makes the surface follow. It knows its view only weakly.
class PlatformViewImpl final : public kroui::ui::UI_Node {
public:
  PlatformViewImpl(std::weak_ptr<PlatformView> view, PlatformView::SurfaceKind kind);

  std::shared_ptr<PlatformView> GetView() const { return mView.lock(); }
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
  void SetBoundsSelf(const kroui::ui::Rect& bounds) override;
  void SetFocusSelf() override;
  void KillFocusSelf() override;

  // Pointer and drag and drop (PlatformViewImplInput.cpp).
  bool MouseDownSelf(const kroui::ui::PointerEvent& event) override;
  bool MouseUpSelf(const kroui::ui::PointerEvent& event) override;
  bool MouseMultiClickSelf(const kroui::ui::PointerEvent& event) override;
  bool MouseMoveSelf(const kroui::ui::PointerEvent& event) override;
  void MouseLeaveSelf() override;
  bool SetCursorSelf(const kroui::ui::PointerEvent& event) override;
  bool MouseWheelSelf(const kroui::ui::PointerEvent& event) override;
  bool MouseMagnifySelf(const kroui::ui::PointerEvent& event) override;
  bool MouseRotateSelf(const kroui::ui::PointerEvent& event) override;
  bool MousePanSelf(const kroui::ui::PointerEvent& event) override;
  bool MouseGestureEndSelf(const kroui::ui::PointerEvent& event) override;
  std::string GetToolTipTextSelf() const override;
  int DragEnterSelf(kroui::ui::DataObject& data, kroui::ui::ModifierKeys modifiers, kroui::ui::Point local) override;
  int DragOverSelf(kroui::ui::DataObject& data, kroui::ui::ModifierKeys modifiers, kroui::ui::Point local) override;
  void DragLeaveSelf() override;
  bool DropSelf(kroui::ui::DataObject& data, int effect, kroui::ui::Point local) override;

private:
  using Action = kroui::ui::PointerEvent::Action;

  /// A handle made by a backend since replaced names nothing.
  bool IsSurfaceCurrent() const noexcept;
  /// Makes the surface, or moves it, into `window`; false when none can be had.
  bool PlaceInWindow(kroui::ui::UI_Window& window);
  void MakeSurface(HWND parent);
  void MoveSurface(const kroui::ui::Rect& bounds);
  void ShowSurface(bool show);
  void DestroySurface();

  std::weak_ptr<PlatformView> mView;
  PlatformView::SurfaceKind mKind;
  HWND mSurface = nullptr;
  HWND mParentWindow = nullptr;
  std::uint64_t mGeneration = 0;
  kroui::ui::Rect mSurfaceBounds;
  bool mIsSurfaceShown = false;
  float mOpacity = 1.f;
  bool mIsClipped = false;
  Action mGesture = Action::None;
};

} // namespace ZEL
