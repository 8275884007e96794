#pragma once

#include <zel/Export.h>
#include <zel/views/DC.h>
#include <zel/views/ViewBase.h>

#include <kroui/Forward.h>
#include <kroui/drawbot/DrawTypes.h>
#include <kroworkspace/Forward.h>

#include <memory>

namespace ZEL {

class OverlayViewImpl;

/// A view drawn in a layer of its own: a transparent top-level window that
/// stands above a given window, over the area of a parent view, so that it
/// can draw over anything the window shows (guides over video, a drag
/// outline over several panels).
///
///   window (owner) ----------------------+
///     parent view --- bounds ---+        |   layer window: owned by the
///                               | <------+   window, never activated, passes
///                               |            the pointer through to it
///
/// The layer has an opacity, and may have a colour key: pixels painted in
/// that colour are left transparent. The window must outlive the overlay, or
/// the overlay be destroyed first. Until Create (and after Destroy) the
/// operations report "OverlayViewImpl has not been initialized".
class ZEL_API OverlayView : public ViewBase {
public:
  explicit OverlayView(const krocore::FlexWeakPtr<Commander>& superCommander);
  ~OverlayView() override;

  /// `bounds` in the parent view's coordinates; `window` is the workspace's
  /// top-level window the layer stands above.
  bool Create(const std::weak_ptr<ViewBase>& parent, const Rect& bounds,
              kroworkspace::workspace::TopLevelWindow* window);
  /// The same over a platform window that is not the workspace's.
  bool Create(const std::weak_ptr<ViewBase>& parent, const Rect& bounds, kroui::ui::UI_Window* window);
  /// Takes the layer away, after DestroySelf.
  void Destroy();
  bool IsCreated() const noexcept;

  /// Moves the layer to cover `bounds` of the parent view as it lies now.
  void SetBounds(const Rect& bounds) override;
  Rect GetBounds() const override;
  void Show(bool show) override;
  void Hide() override;
  bool IsShown() const override;
  std::shared_ptr<ViewBase> GetParent() override;
  krocore::IntrusivePtr<kroui::ui::UI_Node> GetKRONode() override;

protected:
  virtual void FinishCreateSelf(const Rect& bounds);
  virtual void DestroySelf();
  virtual void SetBoundsSelf(const Rect& bounds);
  virtual void PaintSelf(DC& dc);

public:
  /// From 0 (invisible) to 1.
  void SetOpacity(float opacity);
  void SetTransparentColorKey(const kroui::drawbot::ColorRGBA& colorKey);
  void SetOpacityAndTransparentColorKey(float opacity, const kroui::drawbot::ColorRGBA& colorKey);
  void Invalidate();
  /// The layer's window; null, without a report, when not created (it asks, as IsCreated does).
  kroui::ui::UI_Window* GetLayerWindow() const;

private:
  friend class OverlayNode;

  std::unique_ptr<OverlayViewImpl> mImpl;
};

} // namespace ZEL
