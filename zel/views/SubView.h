#pragma once

#include <zel/Export.h>
#include <zel/commands/CommandTypes.h>
#include <zel/commands/KeySpec.h>
#include <zel/views/DC.h>
#include <zel/views/ViewBase.h>

#include <kroui/Forward.h>
#include <kroui/base/PointerEvent.h>
#include <kroui/drawbot/DrawTypes.h>
#include <kroui/ui/RefCountedWeakPtr.h>

#include <memory>
#include <string>

namespace ZEL {

namespace detail {
template <typename View, typename NodeBase>
class ViewNode;
} // namespace detail

class SubViewImpl;

/// The general, owner-drawn view: a handle over one platform container node
/// (SubViewImpl) that receives the events and paints by calling the hooks
/// below. Derive from it and override the hooks ending in Self.
///
///   auto view = std::make_shared<MyView>(panel);   // panel: the super-commander
///   view->Create(panel, {10, 10, 210, 110});       // the node is made and placed here
///
/// Until Create, the view has no node: every operation reports "SubViewImpl
/// has not been initialized" and answers false, zero or empty. Create may be
/// called again; the old node leaves its parent first.
///
/// Events reach the hooks in the view's own coordinates. Hooks that return
/// bool return true when they consumed the event; false lets the parent view
/// have it. The button, move and gesture hooks consume what they are given:
/// a view that wants pointer events to pass through to its parent answers
/// false from IsPointerEventHandled. Focus makes the view the command target,
/// so the commands it does not obey go to its super-commander.
class ZEL_API SubView : public ViewBase {
public:
  explicit SubView(const krocore::FlexWeakPtr<Commander>& superCommander);
  ~SubView() override;

  /// Places the view in a parent view; false (nothing changed) when the
  /// parent cannot hold views or this view is not held by a std::shared_ptr.
  bool Create(const std::weak_ptr<ViewBase>& parent, const Rect& bounds);
  /// Places the view directly in a platform container.
  bool Create(const kroui::ui::RefCountedWeakPtr<kroui::ui::UI_Container>& parent, const Rect& bounds);
  bool IsCreated() const noexcept;

  void SetBounds(const Rect& bounds) override;
  Rect GetBounds() const override;
  /// The parent lays out again before its window paints next (its
  /// SetBoundsSelf hears its bounds again): once, however many children ask.
  void RequestReflow() override;
  Rect ClientRect() const override;
  void Show(bool show) override;
  void Hide() override;
  bool IsShown() const override;
  /// Null when the view was placed in a platform container rather than a view.
  std::shared_ptr<ViewBase> GetParent() override;
  krocore::IntrusivePtr<kroui::ui::UI_Node> GetKRONode() override;

  virtual void Enable(bool enable);
  virtual void Disable();
  /// The command context whose drag commands the keyboard reaches while a
  /// drag is over this view; empty leaves the context as it is.
  virtual std::string GetDragCommandContextName() const;
  /// Whether pen events arrive as pen events rather than as mouse events.
  virtual void SetTabletPenEvent(bool wantsPenEvents);
  virtual bool GetTabletPenEvent() const;
  /// Shown after the pointer rests on the view (200 ms with a skin of
  /// generation 7 or later, 400 ms before), unless GetToolTipTextSelf has a text.
  virtual void SetToolTipText(const UTF8String& text);

protected:
  virtual void FinishCreateSelf(const Rect& bounds);
  virtual void SetBoundsSelf(const Rect& bounds);
  virtual void SetFocusSelf();
  virtual void KillFocusSelf();
  virtual void PaintSelf(DC& dc);
  /// Painted after the children, over them.
  virtual void AddendumPaintSelf(DC& dc);
  virtual void LeftButtonDownSelf(const Point& point, KeyModifiers modifiers);
  virtual void LeftButtonUpSelf(const Point& point, KeyModifiers modifiers);
  /// The second (third...) press of a quick series, in place of a down.
  virtual void LeftButtonMultiClickSelf(const Point& point, KeyModifiers modifiers, unsigned clickCount);
  virtual void RightButtonDownSelf(const Point& point, KeyModifiers modifiers);
  virtual void RightButtonUpSelf(const Point& point, KeyModifiers modifiers);
  virtual void RightButtonDoubleClickSelf(const Point& point, KeyModifiers modifiers);
  /// True when the view set the cursor itself.
  virtual bool SetCursorSelf(const Point& point, KeyModifiers modifiers);
  virtual void MouseMoveSelf(const Point& point, KeyModifiers modifiers);
  virtual void MouseLeaveSelf();
  virtual bool MouseWheelSelf(const Point& point, KeyModifiers modifiers, int deltaX, int deltaY,
                              bool isPrecise);
  virtual bool MouseMagnifySelf(const Point& point, const float& magnification, KeyModifiers modifiers);
  virtual bool MouseRotateSelf(const Point& point, const float& rotation, KeyModifiers modifiers);
  virtual bool MousePanSelf(const Point& point, const Point& delta);
  /// The gesture (Magnify, Rotate or Pan) that this view took and that ended.
  virtual void MouseGestureEndSelf(const kroui::ui::PointerEvent::Action& gesture);
  /// `virtualKey` as the platform numbers keys; `character` is 0 for keys that type nothing.
  virtual bool KeyDownSelf(wchar_t character, short virtualKey, bool isAutoRepeat);
  virtual bool KeyUpSelf(wchar_t character, short virtualKey, bool isAutoRepeat);
  virtual bool CharacterInputSelf(wchar_t character, bool isAutoRepeat);
  /// A tooltip text made when it is shown; empty uses the text of SetToolTipText.
  virtual UTF8String GetToolTipTextSelf() const;
  virtual bool DisplaysToolTipForChildSelf(const kroui::ui::UI_Node* child) const;

public:
  /// A context on any drawbot, in this view's coordinates as the drawbot has them.
  virtual DC GetDC(kroui::drawbot::Drawbot* drawbot);
  /// During a paint of this view, a context on the surface being painted;
  /// at other times nothing can be drawn and the context is empty.
  virtual DC GetDC();

protected:
  /// Pixels of the view's size kept between paints: draw into them when the
  /// contents change, copy them with DrawPixels when painting.
  virtual DC& GetOffscreenSelf();
  virtual bool TimerNotifySelf(unsigned timerID);
  /// Inside ClientRect, right and bottom edges excluded; never for an empty view.
  virtual bool HitTestSelf(const Point& point) const;
  /// The kroui::ui::kDropEffect_ the drop would have.
  virtual int DragEnterSelf(kroui::ui::DataObject& data, KeyModifiers modifiers, const Point& point);
  virtual int DragOverSelf(kroui::ui::DataObject& data, KeyModifiers modifiers, const Point& point);
  virtual void DragLeaveSelf();
  virtual bool DropSelf(kroui::ui::DataObject& data, int effect, const Point& point);
  /// False keeps Tab among this view's children once the focus is inside.
  virtual bool AllowFocusToAdvanceFromChildrenSelf() const;
  /// False keeps the view out of the Tab chain.
  virtual bool WantsFocusSelf() const;
  /// After this view or an ancestor was shown or hidden.
  virtual void VisibilityChangedSelf();
  /// False passes the event to the parent without calling this view's hooks.
  virtual bool IsPointerEventHandled(const kroui::ui::PointerEvent& event) const;
  /// Filled over the view before PaintSelf; empty fills nothing.
  virtual kroui::drawbot::ColorRGBAOptional GetBackgroundColor() const;

public:
  // Geometry.
  Point Position() const;
  Extent Size() const;
  void ClientToScreen(Point& point) const;
  void ScreenToClient(Point& point) const;
  /// Which edges and dimensions follow the parent when it is resized.
  void SetLayoutBinding(bool left, bool top, bool right, bool bottom, bool proportionalWidth,
                        bool proportionalHeight);

  // State.
  /// Shown, and every ancestor shown.
  bool IsViewVisible() const;
  bool AreAllParentsVisible() const;
  bool IsEnabled() const;
  void SetClipToSelf(bool clip);
  bool GetClipToSelf() const;
  /// Paints through an offscreen buffer; with `redrawNow`, repaints at once.
  void EnableDoubleBuffering(bool enable, bool redrawNow);

  // Painting.
  void Invalidate();
  /// Marks part of the view, in its coordinates, for the next paint.
  void InvalidateRect(const Rect& rect);
  /// Paints now.
  void Redraw();

  // Focus and mouse.
  bool SetFocus();
  void KillFocus();
  bool HasFocus() const;
  bool CaptureMouse();
  void ReleaseMouse();
  bool IsMouseCaptured() const;
  bool IsLeftMouseDown() const;
  bool IsRightMouseDown() const;
  /// The last positions of a press, a move and a release, in view coordinates.
  Point MouseDownPoint() const;
  Point MouseMovePoint() const;
  Point MouseUpPoint() const;

  // Timers: each tick calls TimerNotifySelf(timerID).
  void SetTimer(unsigned timerID, unsigned intervalMs);
  void RemoveTimer(unsigned timerID);

  // Drag and drop: the drag hooks are called only when this is on.
  void WantsDragAndDropEvents(bool wants);
  /// What the view offers when the user drags from it: give it the data,
  /// then run DoDragDrop from a button or move hook. Made on first use;
  /// null when the view is not created.
  std::shared_ptr<kroui::ui::DataSource> GetDataSource();
  /// Ends the view's drag: a drag in progress is cancelled, the data forgotten.
  void FinishDragAndDrop();

  /// Null when the view is not created.
  std::shared_ptr<kroui::ui::UI_Animator> Animator();

protected:
  /// Whether pointer events of second fingers or pens reach the hooks.
  void SetDispatchNonPrimaryMouseEvents(bool dispatch);
  /// What made the pointer event being handled (mouse, pen, touch).
  kroui::ui::PointerEvent::SubType GetPointerEventSubType() const;

private:
  friend class SubViewImpl;
  template <typename, typename>
  friend class detail::ViewNode;

  bool Insert(kroui::ui::UI_Container& container, const Rect& bounds, const std::weak_ptr<ViewBase>& parent);

  krocore::IntrusivePtr<SubViewImpl> mImpl;
  /// Empty when the parent is a platform container, or the view is not created.
  std::weak_ptr<ViewBase> mParent;
};

} // namespace ZEL
