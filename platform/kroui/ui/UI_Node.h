#pragma once

#include <kroui/Export.h>
#include <kroui/Forward.h>
#include <kroui/base/DataObject.h>
#include <kroui/base/KeyboardEvent.h>
#include <kroui/base/PointerEvent.h>
#include <kroui/drawbot/DrawTypes.h>
#include <kroui/ui/RefCountedWeakPtr.h>

#include <krocore/pointers/IntrusivePtr.h>

#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace kroui::ui {

using UI_NodePtr = krocore::IntrusivePtr<UI_Node>;

/// Which edges of a node follow its parent when the parent is resized. A
/// bound edge keeps its distance to the same edge of the parent; with both
/// edges of an axis bound the node stretches. A proportional axis scales
/// position and size with the parent instead, whatever its edges say.
struct LayoutBinding {
  bool left = true;
  bool top = true;
  bool right = false;
  bool bottom = false;
  bool proportionalWidth = false;
  bool proportionalHeight = false;

  constexpr bool operator==(const LayoutBinding&) const noexcept = default;
};

/// Tooltip delay meaning "the tooltip manager's initial delay".
inline constexpr int kToolTipDelay_Default = -1;

/// A node of the UI tree: a rectangle in its parent that paints, takes
/// pointer, keyboard, drag-and-drop and timer events, and can hold the focus.
/// Nodes are intrusively counted; a container owns its children, a handle of
/// the framework owns its node, and nothing below refers upward strongly.
///
///   UI_Window --owns--> root UI_Container --owns--> UI_Node, UI_Container --owns--> ...
///
/// Behaviour is given by deriving and overriding the protected hooks ending
/// in Self; a bool hook returns true when it consumed the event, false lets
/// the event go on to the parent. The framework derives one node class per
/// kind of view whose hooks forward to the view through a weak reference.
///
/// Rarely used state (tooltip, timers, animator, offscreen buffer, recorded
/// mouse points, weak anchor) lives in a side structure made on first use,
/// so that a plain node stays a few dozen bytes. UI thread only.
class KROUI_API UI_Node : public krocore::IntrusiveRefCounted {
public:
  UI_Node();
  UI_Node(const UI_Node&) = delete;
  UI_Node& operator=(const UI_Node&) = delete;

  // Tree.
  UI_Container* GetParent() const noexcept { return mParent; }
  /// The window whose tree holds this node; null while detached.
  UI_Window* GetWindow() const;
  /// Takes the node out of its parent; the last strong reference may go with it.
  void RemoveFromParent();
  virtual std::span<const UI_NodePtr> GetChildNodes() const;

  // Geometry, in the parent's coordinates.
  const Rect& GetBounds() const noexcept { return mBounds; }
  /// 0,0 to width,height: the node's own coordinates.
  Rect GetLocalBounds() const noexcept { return {0, 0, mBounds.Width(), mBounds.Height()}; }
  void SetBounds(const Rect& bounds);
  void Move(Point origin);
  void Resize(Extent extent);
  void SetLayoutBinding(const LayoutBinding& binding);
  LayoutBinding GetLayoutBinding() const noexcept;

  // State.
  void Show(bool show = true);
  void Hide() { Show(false); }
  bool IsShown() const noexcept { return Has(kFlag_Shown); }
  /// Shown, and every ancestor shown, up to the root of a window.
  bool IsVisible() const;
  void Enable(bool enable = true);
  void Disable() { Enable(false); }
  bool IsEnabled() const noexcept { return Has(kFlag_Enabled); }
  /// Enabled, and every ancestor enabled.
  bool IsEnabledThroughAncestors() const;
  /// Whether painting of this node and its children is clipped to its bounds (on by default).
  void SetClipToSelf(bool clip);
  bool GetClipToSelf() const noexcept { return Has(kFlag_ClipToSelf); }
  /// Paints the node and its children into an offscreen image first, then copies it.
  void EnableDoubleBuffering(bool enable);
  bool IsDoubleBuffered() const noexcept { return Has(kFlag_DoubleBuffered); }
  void SetWantsDragAndDropEvents(bool wants) { SetFlag(kFlag_WantsDragAndDrop, wants); }
  bool WantsDragAndDropEvents() const noexcept { return Has(kFlag_WantsDragAndDrop); }
  /// Whether pointer events of secondary fingers or pens reach the hooks (off by default).
  void SetDispatchNonPrimaryPointerEvents(bool dispatch) { SetFlag(kFlag_NonPrimary, dispatch); }
  bool GetDispatchNonPrimaryPointerEvents() const noexcept { return Has(kFlag_NonPrimary); }
  /// Whether a pen's events arrive as pen events (on) or as plain mouse events (off, the default).
  void SetTabletPenEvents(bool wants) { SetFlag(kFlag_TabletPen, wants); }
  bool GetTabletPenEvents() const noexcept { return Has(kFlag_TabletPen); }
  /// Asks for PlacementChangedSelf whenever the node's place in its window
  /// may have changed (off by default: few nodes need it, and each costs every move a look).
  void SetTracksPlacement(bool track);
  bool TracksPlacement() const noexcept { return Has(kFlag_TracksPlacement); }

  // Painting.
  void Invalidate();
  /// Marks part of the node, in its own coordinates, for the next paint of its window.
  void InvalidateRect(const Rect& local);
  /// Invalidates the node and paints its window's dirty region now.
  void Redraw();
  /// Asks for LayoutSelf before the window paints next: however many
  /// requests come before a paint, the node lays out once.
  void RequestLayout();
  /// Paints this node and its subtree onto any drawbot, the node's top-left
  /// at the drawbot's origin (snapshots, drag images, tests).
  void PaintInto(drawbot::Drawbot& drawbot);

  // Focus.
  /// Gives this node the keyboard focus of its window. False when it cannot
  /// take it (detached, hidden or disabled).
  bool SetFocus();
  /// Drops the focus if this node has it.
  void KillFocus();
  bool HasFocus() const;
  /// Whether this node or one of its descendants has the focus.
  bool ContainsFocus() const;

  // Mouse.
  /// Sends every pointer event of the window to this node until released.
  bool CaptureMouse();
  void ReleaseMouse();
  bool HasMouseCapture() const;
  bool IsLeftMouseDown() const noexcept { return Has(kFlag_LeftDown); }
  bool IsRightMouseDown() const noexcept { return Has(kFlag_RightDown); }
  /// The last positions of a press, a move and a release handed to this node, in its coordinates.
  Point GetMouseDownPoint() const;
  Point GetMouseMovePoint() const;
  Point GetMouseUpPoint() const;
  /// The sub-type of the pointer event being handed to this node now; Mouse otherwise.
  PointerEvent::SubType GetPointerEventSubType() const;

  // Timers on the event loop clock; each tick calls TimerNotifySelf(timerID).
  /// Starts or restarts the timer; an interval of 0 is raised to 1 ms.
  void SetTimer(unsigned timerID, unsigned intervalMs);
  void RemoveTimer(unsigned timerID);
  bool HasTimer(unsigned timerID) const;

  // Tooltip.
  /// The text shown after the pointer rests on the node for `delayMs`
  /// milliseconds; empty text shows none.
  void SetToolTipText(std::string utf8, int delayMs = kToolTipDelay_Default);
  const std::string& GetToolTipText() const;
  int GetToolTipDelay() const;
  /// The text to show now: the dynamic text of GetToolTipTextSelf when there is one, else the static text.
  std::string GetEffectiveToolTipText() const;

  /// The node's animator, made on first use.
  std::shared_ptr<UI_Animator> Animator();

  // Coordinates.
  Point LocalToParent(Point p) const noexcept { return p + mBounds.Origin(); }
  Point LocalToWindow(Point p) const;
  Point WindowToLocal(Point p) const;
  /// Screen conversions need the node in a window; a detached node converts as if its window were at 0,0.
  Point LocalToScreen(Point p) const;
  Point ScreenToLocal(Point p) const;
  Rect LocalToWindow(const Rect& r) const;

  /// The shared part of weak references to this node (RefCountedWeakPtr).
  std::shared_ptr<UI_NodeAnchor> AcquireWeakAnchor() const;

protected:
  ~UI_Node() override;

  // Painting.
  virtual void PaintSelf(drawbot::Drawbot& drawbot);
  /// Painted after the children, over them.
  virtual void AddendumPaintSelf(drawbot::Drawbot& drawbot);
  /// Filled over the node's bounds before PaintSelf; empty fills nothing.
  virtual drawbot::ColorRGBAOptional GetBackgroundColorSelf() const;

  // Pointer. `event.position` is in this node's coordinates.
  /// Whether the point (in this node's coordinates) belongs to the node; the
  /// default: inside the bounds, right and bottom edges excluded, never for an empty node.
  virtual bool HitTestSelf(Point local) const;
  /// Whether this event may reach this node's hooks at all; false passes it to the parent.
  virtual bool IsPointerEventHandled(const PointerEvent& event) const;
  virtual bool MouseDownSelf(const PointerEvent& event);
  virtual bool MouseUpSelf(const PointerEvent& event);
  /// A multi-click nobody consumed is then offered as a plain MouseDownSelf.
  virtual bool MouseMultiClickSelf(const PointerEvent& event);
  virtual bool MouseMoveSelf(const PointerEvent& event);
  virtual void MouseEnterSelf(const PointerEvent& event);
  virtual void MouseLeaveSelf();
  /// Asked after each move; true when the node set the cursor itself.
  virtual bool SetCursorSelf(const PointerEvent& event);
  virtual bool MouseWheelSelf(const PointerEvent& event);
  virtual bool MouseMagnifySelf(const PointerEvent& event);
  virtual bool MouseRotateSelf(const PointerEvent& event);
  virtual bool MousePanSelf(const PointerEvent& event);
  virtual bool MouseGestureEndSelf(const PointerEvent& event);

  // Keyboard: only while this node has the focus.
  virtual bool KeyDownSelf(const KeyboardEvent& event);
  virtual bool KeyUpSelf(const KeyboardEvent& event);
  virtual bool CharacterInputSelf(const KeyboardEvent& event);

  // Focus.
  virtual void SetFocusSelf();
  virtual void KillFocusSelf();
  /// False keeps the node out of the Tab chain (it can still be focused by SetFocus).
  virtual bool WantsFocusSelf() const;
  /// False keeps Tab cycling among this node's descendants once the focus is inside them.
  virtual bool AllowFocusToAdvanceFromChildrenSelf() const;
  /// Before Tab gives this node the focus, so that it (or what encloses it)
  /// can bring itself into sight first.
  virtual void PrepareForFocusFromAdvanceSelf();

  // Drag and drop: positions in this node's coordinates; see kDropEffect_.
  virtual int DragEnterSelf(DataObject& data, ModifierKeys modifiers, Point local);
  virtual int DragOverSelf(DataObject& data, ModifierKeys modifiers, Point local);
  virtual void DragLeaveSelf();
  virtual bool DropSelf(DataObject& data, int effect, Point local);

  // Other notifications.
  virtual bool TimerNotifySelf(unsigned timerID);
  /// A dynamic tooltip text; empty uses the static one.
  virtual std::string GetToolTipTextSelf() const;
  /// True when this node shows its own tooltip while the pointer rests on `child`, a descendant.
  virtual bool DisplaysToolTipForChildSelf(const UI_Node* child) const;
  /// After the bounds changed, by a call or by the layout binding.
  virtual void SetBoundsSelf(const Rect& bounds);
  /// Places the children again, once per paint after RequestLayout; nothing by default.
  virtual void LayoutSelf();
  /// After this node or an ancestor was shown or hidden.
  virtual void VisibilityChangedSelf();
  /// For a node that tracks its placement: after it or an ancestor moved or
  /// was resized, or it entered or left a tree.
  virtual void PlacementChangedSelf();
  /// After this node or an ancestor was enabled or disabled.
  virtual void EnabledChangedSelf();

private:
  friend class UI_Container;
  friend class UI_Window;
  friend class WindowInputRouter;
  friend class WindowPainter;
  friend class WindowToolTip;
  friend class NodePainter;

  enum : std::uint32_t {
    kFlag_Shown = 1u << 0,
    kFlag_Enabled = 1u << 1,
    kFlag_ClipToSelf = 1u << 2,
    kFlag_DoubleBuffered = 1u << 3,
    kFlag_WantsDragAndDrop = 1u << 4,
    kFlag_NonPrimary = 1u << 5,
    kFlag_TabletPen = 1u << 6,
    kFlag_LeftDown = 1u << 7,
    kFlag_RightDown = 1u << 8,
    kFlag_MiddleDown = 1u << 9,
    kFlag_WindowRoot = 1u << 10,
    kFlag_BindLeft = 1u << 11,
    kFlag_BindTop = 1u << 12,
    kFlag_BindRight = 1u << 13,
    kFlag_BindBottom = 1u << 14,
    kFlag_BindWidth = 1u << 15,
    kFlag_BindHeight = 1u << 16,
    kFlag_HasTimers = 1u << 17,
    kFlag_IsContainer = 1u << 18,
    kFlag_TracksPlacement = 1u << 19,
  };

  bool Has(std::uint32_t flag) const noexcept { return (mFlags & flag) != 0; }
  void SetFlag(std::uint32_t flag, bool on) noexcept { mFlags = on ? (mFlags | flag) : (mFlags & ~flag); }
  UI_NodeExtras& Extras();
  const UI_NodeExtras* FindExtras() const noexcept { return mExtras.get(); }
  /// The bounds the layout binding gives this node when its parent goes from `before` to `after`.
  Rect BoundsForParentResize(Extent before, Extent after) const;
  /// Invalidates an area given in the parent's coordinates (the window's, for a root).
  void InvalidateInParent(const Rect& area);
  void NotifyVisibilityChanged();
  /// Tells the tracking nodes at or under this one that their placement changed.
  void NotifyPlacementChanged();
  void NotifyEnabledChanged();
  void FireTimer(unsigned timerID);

  // The flags come first so that they fill the padding after the reference count.
  std::uint32_t mFlags;
  /// Where this node sits in its parent's list of children (holes counted), so that leaving is O(1).
  std::uint32_t mSlot = 0;
  UI_Container* mParent = nullptr;
  Rect mBounds;
  std::unique_ptr<UI_NodeExtras> mExtras;
};

} // namespace kroui::ui
