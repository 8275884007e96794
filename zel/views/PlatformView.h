#pragma once

#include <zel/Export.h>
#include <zel/commands/CommandTypes.h>
#include <zel/commands/KeySpec.h>
#include <zel/views/DC.h>
#include <zel/views/ViewBase.h>

#include <kroui/Forward.h>
#include <kroui/base/PointerEvent.h>
#include <kroui/os/NativeTypes.h>
#include <kroui/ui/RefCountedWeakPtr.h>

#include <cstdint>

namespace ZEL {

namespace detail {
template <typename View, typename NodeBase>
class ViewNode;
} // namespace detail

class PlatformViewImpl;

/// A view that hosts a native child surface, for content drawn by someone
/// else (a video decoder, a web engine). Its node stands in the tree like any
/// view; the surface is a native window inside the node's top-level window,
/// kept over the node's area:
///
///   top-level window
///     root node
///       panel view (moves) ............ the surface follows any ancestor's move,
///         PlatformView node  <------+    show or hide, and a move to another window
///   child surface (native) ---------+    (bounds in window coordinates)
///
/// The surface exists while the node is in a window. The hooks are called as
/// the surface moves (DidMoveWindow), shows (DidShow), hides (DidHide) and
/// changes window (DidMoveToNewParentWindow). Until Create every operation
/// reports "PlatformViewImpl has not been initialized" and answers neutrally.
class ZEL_API PlatformView : public ViewBase {
public:
  /// What kind of native surface to make.
  enum SurfaceKind : std::uint8_t { Standard, GPUAccelerated };

  explicit PlatformView(const krocore::FlexWeakPtr<Commander>& superCommander);
  ~PlatformView() override;

  /// Places the view in a parent view; false when the parent cannot hold
  /// views or this view is not held by a std::shared_ptr.
  bool Create(const std::weak_ptr<ViewBase>& parent, const Rect& bounds, SurfaceKind kind = Standard);
  /// Places the view directly in a platform container.
  bool Create(const kroui::ui::RefCountedWeakPtr<kroui::ui::UI_Container>& parent, const Rect& bounds,
              SurfaceKind kind = Standard);
  bool IsCreated() const noexcept;

  void SetBounds(const Rect& bounds) override;
  Rect GetBounds() const override;
  void Show(bool show) override;
  void Hide() override;
  bool IsShown() const override;
  /// Null when the view was placed in a platform container rather than a view.
  std::shared_ptr<ViewBase> GetParent() override;
  krocore::IntrusivePtr<kroui::ui::UI_Node> GetKRONode() override;

  /// From 0 (invisible) to 1; crossing 1 calls the translucency hooks.
  void SetOpacity(float opacity);
  float GetOpacity() const;
  /// Whether the surface is clipped by the window's other content over it.
  void SetOSControlClipping(bool clip);
  /// The native surface; null while the view is not in a window.
  HWND GetPlatformViewPtr() const;
  void Invalidate();

protected:
  void NowOnDuty() override;
  void NowOffDuty() override;

  virtual void FinishCreateSelf(const Rect& bounds);
  virtual void SetBoundsSelf(const Rect& bounds);
  virtual void SetFocusSelf();
  virtual void KillFocusSelf();
  /// Before the opacity drops below 1.
  virtual void BecomingTranslucentSelf();
  /// After the opacity came back to 1.
  virtual void BecameOpaqueSelf();
  /// What the window paints under the surface (seen while it is translucent).
  virtual void PaintSelf(DC& dc);
  virtual void LeftButtonDownSelf(const Point& point, KeyModifiers modifiers);
  virtual void LeftButtonUpSelf(const Point& point, KeyModifiers modifiers);
  virtual void LeftButtonMultiClickSelf(const Point& point, KeyModifiers modifiers, unsigned clickCount);
  virtual void MiddleButtonDownSelf(const Point& point, KeyModifiers modifiers);
  virtual void MiddleButtonUpSelf(const Point& point, KeyModifiers modifiers);
  virtual void RightButtonDownSelf(const Point& point, KeyModifiers modifiers);
  virtual void RightButtonUpSelf(const Point& point, KeyModifiers modifiers);
  virtual void RightButtonDoubleClickSelf(const Point& point, KeyModifiers modifiers);
  /// True when the view set the cursor itself.
  virtual bool SetCursorSelf(const Point& point, KeyModifiers modifiers);
  virtual void MouseMoveSelf(const Point& point, KeyModifiers modifiers);
  virtual void MouseLeaveSelf();
  /// By default a vertical turn is handed to the short overload below.
  virtual bool MouseWheelSelf(const Point& point, KeyModifiers modifiers, int deltaX, int deltaY,
                              bool isPrecise);
  virtual bool MouseWheelSelf(const Point& point, KeyModifiers modifiers, int delta);
  virtual bool MouseMagnifySelf(const Point& point, const float& magnification, KeyModifiers modifiers);
  virtual bool MouseRotateSelf(const Point& point, const float& rotation, KeyModifiers modifiers);
  virtual bool MousePanSelf(const Point& point, const Point& delta);
  virtual void MouseGestureEndSelf(const kroui::ui::PointerEvent::Action& gesture);
  virtual UTF8String GetToolTipTextSelf() const;
  virtual int DragEnterSelf(kroui::ui::DataObject& data, KeyModifiers modifiers, const Point& point);
  virtual int DragOverSelf(kroui::ui::DataObject& data, KeyModifiers modifiers, const Point& point);
  virtual void DragLeaveSelf();
  virtual bool DropSelf(kroui::ui::DataObject& data, int effect, const Point& point);
  virtual void DidShow();
  virtual void DidHide();
  virtual void DidMoveToNewParentWindow();
  /// After the surface moved or was resized in its window.
  virtual void DidMoveWindow();

private:
  friend class PlatformViewImpl;
  template <typename, typename>
  friend class detail::ViewNode;

  bool Insert(kroui::ui::UI_Container& container, const Rect& bounds, const std::weak_ptr<ViewBase>& parent,
              SurfaceKind kind);

  krocore::IntrusivePtr<PlatformViewImpl> mImpl;
  std::weak_ptr<ViewBase> mParent;
};

} // namespace ZEL
