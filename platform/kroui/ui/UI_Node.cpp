#include <kroui/ui/UI_Node.h>

#include <kroui/ui/EventLoop.h>
#include <kroui/ui/NodePainterImpl.h>
#include <kroui/ui/UI_Animator.h>
#include <kroui/ui/UI_Container.h>
#include <kroui/ui/UI_NodeExtras.h>
#include <kroui/ui/UI_Window.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace kroui::ui {
namespace {

/// The nodes that track their placement. Usually empty, so a move costs one test.
std::vector<UI_Node*>& PlacementTrackers() {
  static std::vector<UI_Node*> sTrackers;
  return sTrackers;
}

} // namespace

UI_Node::UI_Node()
    : mFlags(kFlag_Shown | kFlag_Enabled | kFlag_ClipToSelf | kFlag_BindLeft | kFlag_BindTop) {}

UI_Node::~UI_Node() {
  if (Has(kFlag_TracksPlacement)) std::erase(PlacementTrackers(), this);
  if (Has(kFlag_HasTimers)) EventLoop::Instance().GetTimers().CancelOwner(this);
  if (mExtras && mExtras->anchor) mExtras->anchor->node = nullptr;
}

UI_NodeExtras& UI_Node::Extras() {
  if (!mExtras) mExtras = std::make_unique<UI_NodeExtras>();
  return *mExtras;
}

// Tree.

UI_Window* UI_Node::GetWindow() const {
  const UI_Node* top = this;
  while (top->mParent) top = top->mParent;
  return top->Has(kFlag_WindowRoot) ? top->mExtras->window : nullptr;
}

void UI_Node::RemoveFromParent() {
  if (mParent) mParent->RemoveChild(*this);
}

std::span<const UI_NodePtr> UI_Node::GetChildNodes() const { return {}; }

// Geometry.

void UI_Node::SetBounds(const Rect& bounds) {
  if (bounds == mBounds) return;
  const Rect before = mBounds;
  if (IsShown()) InvalidateInParent(before);
  mBounds = bounds;
  if (Has(kFlag_IsContainer) && before.Extent() != bounds.Extent()) {
    static_cast<UI_Container*>(this)->LayoutChildren(before.Extent());
  }
  if (IsShown()) InvalidateInParent(bounds);
  SetBoundsSelf(bounds);
  NotifyPlacementChanged();
}

void UI_Node::SetTracksPlacement(bool track) {
  if (track == TracksPlacement()) return;
  SetFlag(kFlag_TracksPlacement, track);
  if (track) {
    PlacementTrackers().push_back(this);
  } else {
    std::erase(PlacementTrackers(), this);
  }
}

void UI_Node::NotifyPlacementChanged() {
  if (PlacementTrackers().empty()) return;
  // A hook may add or drop trackers: collect first, and keep them alive.
  std::vector<UI_NodePtr> moved;
  for (UI_Node* tracker : PlacementTrackers()) {
    for (const UI_Node* node = tracker; node; node = node->mParent) {
      if (node != this) continue;
      moved.emplace_back(tracker);
      break;
    }
  }
  for (const UI_NodePtr& tracker : moved) {
    if (tracker->TracksPlacement()) tracker->PlacementChangedSelf();
  }
}

void UI_Node::Move(Point origin) { SetBounds(Rect::FromOriginAndExtent(origin, mBounds.Extent())); }

void UI_Node::Resize(Extent extent) { SetBounds(Rect::FromOriginAndExtent(mBounds.Origin(), extent)); }

void UI_Node::SetLayoutBinding(const LayoutBinding& binding) {
  SetFlag(kFlag_BindLeft, binding.left);
  SetFlag(kFlag_BindTop, binding.top);
  SetFlag(kFlag_BindRight, binding.right);
  SetFlag(kFlag_BindBottom, binding.bottom);
  SetFlag(kFlag_BindWidth, binding.proportionalWidth);
  SetFlag(kFlag_BindHeight, binding.proportionalHeight);
}

LayoutBinding UI_Node::GetLayoutBinding() const noexcept {
  return {Has(kFlag_BindLeft),  Has(kFlag_BindTop),   Has(kFlag_BindRight),
          Has(kFlag_BindBottom), Has(kFlag_BindWidth), Has(kFlag_BindHeight)};
}

namespace {

// One axis of a layout binding: where the near and far edges go when the parent's size changes.
void FollowAxis(int& nearEdge, int& farEdge, int before, int after, bool bindNear, bool bindFar, bool proportional) {
  if (proportional) {
    if (before <= 0) return;
    const double scale = static_cast<double>(after) / before;
    nearEdge = static_cast<int>(std::lround(nearEdge * scale));
    farEdge = static_cast<int>(std::lround(farEdge * scale));
    return;
  }
  const int delta = after - before;
  if (bindFar && !bindNear) nearEdge += delta; // pinned to the far edge: moves along
  if (bindFar) farEdge += delta;
}

} // namespace

Rect UI_Node::BoundsForParentResize(Extent before, Extent after) const {
  Rect bounds = mBounds;
  FollowAxis(bounds.left, bounds.right, before.width, after.width, Has(kFlag_BindLeft), Has(kFlag_BindRight),
             Has(kFlag_BindWidth));
  FollowAxis(bounds.top, bounds.bottom, before.height, after.height, Has(kFlag_BindTop), Has(kFlag_BindBottom),
             Has(kFlag_BindHeight));
  if (bounds.right < bounds.left) bounds.right = bounds.left;
  if (bounds.bottom < bounds.top) bounds.bottom = bounds.top;
  return bounds;
}

// State.

void UI_Node::Show(bool show) {
  if (show == IsShown()) return;
  if (!show) {
    InvalidateInParent(mBounds);
    SetFlag(kFlag_Shown, false);
    if (UI_Window* window = GetWindow()) window->ForgetSubtree(*this, UI_Window::Forget::Hidden);
  } else {
    SetFlag(kFlag_Shown, true);
    InvalidateInParent(mBounds);
  }
  NotifyVisibilityChanged();
}

bool UI_Node::IsVisible() const {
  for (const UI_Node* node = this; node; node = node->mParent) {
    if (!node->IsShown()) return false;
  }
  return true;
}

void UI_Node::Enable(bool enable) {
  if (enable == IsEnabled()) return;
  SetFlag(kFlag_Enabled, enable);
  if (!enable) {
    if (UI_Window* window = GetWindow()) window->ForgetSubtree(*this, UI_Window::Forget::Disabled);
  }
  Invalidate();
  NotifyEnabledChanged();
}

bool UI_Node::IsEnabledThroughAncestors() const {
  for (const UI_Node* node = this; node; node = node->mParent) {
    if (!node->IsEnabled()) return false;
  }
  return true;
}

void UI_Node::SetClipToSelf(bool clip) {
  if (clip == GetClipToSelf()) return;
  SetFlag(kFlag_ClipToSelf, clip);
  Invalidate();
}

void UI_Node::EnableDoubleBuffering(bool enable) {
  if (enable == IsDoubleBuffered()) return;
  SetFlag(kFlag_DoubleBuffered, enable);
  if (!enable && mExtras) mExtras->offscreen.reset();
  Invalidate();
}

void UI_Node::NotifyVisibilityChanged() {
  const UI_NodePtr keep(this);
  VisibilityChangedSelf();
  for (const UI_NodePtr& child : GetChildNodes()) {
    if (child) child->NotifyVisibilityChanged(); // a hook may have taken a sibling out
  }
}

void UI_Node::NotifyEnabledChanged() {
  const UI_NodePtr keep(this);
  EnabledChangedSelf();
  for (const UI_NodePtr& child : GetChildNodes()) {
    if (child) child->NotifyEnabledChanged();
  }
}

// Painting.

void UI_Node::Invalidate() { InvalidateRect(GetLocalBounds()); }

void UI_Node::InvalidateRect(const Rect& local) {
  Rect area = local;
  for (const UI_Node* node = this; node; node = node->mParent) {
    if (!node->IsShown()) return;
    if (node->GetClipToSelf()) area = area.Intersection(node->GetLocalBounds());
    if (area.IsEmpty()) return;
    if (!node->mParent) {
      if (node->Has(kFlag_WindowRoot)) node->mExtras->window->InvalidateWindowRect(area);
      return;
    }
    area = area.Offset(node->mBounds.left, node->mBounds.top);
  }
}

void UI_Node::InvalidateInParent(const Rect& area) {
  if (mParent) {
    mParent->InvalidateRect(area);
  } else if (Has(kFlag_WindowRoot)) {
    mExtras->window->InvalidateWindowRect(area); // a root's parent coordinates are its window's
  }
}

void UI_Node::PaintInto(drawbot::Drawbot& drawbot) { NodePainter::PaintNode(*this, drawbot, mBounds, true); }

void UI_Node::Redraw() {
  Invalidate();
  if (UI_Window* window = GetWindow()) window->PaintNow();
}

void UI_Node::RequestLayout() {
  UI_Window* window = GetWindow();
  if (!window) return; // a detached node is laid out when it is placed
  window->ScheduleLayout(*this);
}

// Focus and mouse.

bool UI_Node::SetFocus() {
  UI_Window* window = GetWindow();
  return window && window->SetFocusedNode(this);
}

void UI_Node::KillFocus() {
  if (HasFocus()) GetWindow()->SetFocusedNode(nullptr);
}

bool UI_Node::HasFocus() const {
  const UI_Window* window = GetWindow();
  return window && window->GetFocusedNode() == this;
}

bool UI_Node::ContainsFocus() const {
  const UI_Window* window = GetWindow();
  if (!window) return false;
  for (const UI_Node* node = window->GetFocusedNode(); node; node = node->mParent) {
    if (node == this) return true;
  }
  return false;
}

bool UI_Node::CaptureMouse() {
  UI_Window* window = GetWindow();
  return window && window->SetCaptureNode(this);
}

void UI_Node::ReleaseMouse() {
  if (HasMouseCapture()) GetWindow()->SetCaptureNode(nullptr);
}

bool UI_Node::HasMouseCapture() const {
  const UI_Window* window = GetWindow();
  return window && window->GetCaptureNode() == this;
}

Point UI_Node::GetMouseDownPoint() const { return mExtras ? mExtras->downPoint : Point{}; }
Point UI_Node::GetMouseMovePoint() const { return mExtras ? mExtras->movePoint : Point{}; }
Point UI_Node::GetMouseUpPoint() const { return mExtras ? mExtras->upPoint : Point{}; }

PointerEvent::SubType UI_Node::GetPointerEventSubType() const {
  return mExtras ? mExtras->dispatchingSubType : PointerEvent::SubType::Mouse;
}

// Timers.

void UI_Node::SetTimer(unsigned timerID, unsigned intervalMs) {
  EventLoop& loop = EventLoop::Instance();
  loop.GetTimers().Schedule(this, timerID, loop.Now(), intervalMs, true, [this, timerID] { FireTimer(timerID); });
  SetFlag(kFlag_HasTimers, true);
}

void UI_Node::RemoveTimer(unsigned timerID) {
  utility::TimerQueue& timers = EventLoop::Instance().GetTimers();
  timers.Cancel(this, timerID);
  if (!timers.HasOwner(this)) SetFlag(kFlag_HasTimers, false);
}

bool UI_Node::HasTimer(unsigned timerID) const {
  return Has(kFlag_HasTimers) && EventLoop::Instance().GetTimers().Has(this, timerID);
}

void UI_Node::FireTimer(unsigned timerID) {
  const UI_NodePtr keep(this); // the hook may drop the last other reference
  TimerNotifySelf(timerID);
}

// Tooltip and animator.

void UI_Node::SetToolTipText(std::string utf8, int delayMs) {
  if (utf8.empty() && !mExtras) return;
  UI_NodeExtras& extras = Extras();
  extras.toolTipText = std::move(utf8);
  extras.toolTipDelay = delayMs;
}

const std::string& UI_Node::GetToolTipText() const {
  static const std::string kNone;
  return mExtras ? mExtras->toolTipText : kNone;
}

int UI_Node::GetToolTipDelay() const { return mExtras ? mExtras->toolTipDelay : kToolTipDelay_Default; }

std::string UI_Node::GetEffectiveToolTipText() const {
  std::string dynamic = GetToolTipTextSelf();
  return dynamic.empty() ? GetToolTipText() : dynamic;
}

std::shared_ptr<UI_Animator> UI_Node::Animator() {
  UI_NodeExtras& extras = Extras();
  if (!extras.animator) extras.animator = std::make_shared<UI_Animator>();
  return extras.animator;
}

// Coordinates.

Point UI_Node::LocalToWindow(Point p) const {
  for (const UI_Node* node = this; node->mParent; node = node->mParent) p = p + node->mBounds.Origin();
  return p;
}

Point UI_Node::WindowToLocal(Point p) const { return p - LocalToWindow(Point{}); }

Rect UI_Node::LocalToWindow(const Rect& r) const {
  const Point origin = LocalToWindow(Point{});
  return r.Offset(origin.x, origin.y);
}

Point UI_Node::LocalToScreen(Point p) const {
  const UI_Window* window = GetWindow();
  const Point inWindow = LocalToWindow(p);
  return window ? window->WindowToScreen(inWindow) : inWindow;
}

Point UI_Node::ScreenToLocal(Point p) const {
  const UI_Window* window = GetWindow();
  return WindowToLocal(window ? window->ScreenToWindow(p) : p);
}

std::shared_ptr<UI_NodeAnchor> UI_Node::AcquireWeakAnchor() const {
  // Weak references are taken on the UI thread from live nodes; the side
  // structure is part of the node's bookkeeping, not of its observable state.
  UI_NodeExtras& extras = const_cast<UI_Node*>(this)->Extras();
  if (!extras.anchor) extras.anchor = std::make_shared<UI_NodeAnchor>(UI_NodeAnchor{const_cast<UI_Node*>(this)});
  return extras.anchor;
}

// Hooks: by default nothing is consumed, so events go on to the parent.

void UI_Node::PaintSelf(drawbot::Drawbot&) {}
void UI_Node::AddendumPaintSelf(drawbot::Drawbot&) {}
drawbot::ColorRGBAOptional UI_Node::GetBackgroundColorSelf() const { return std::nullopt; }

bool UI_Node::HitTestSelf(Point local) const {
  // An empty node never hits, not even at its own origin.
  return mBounds.Width() >= 1 && mBounds.Height() >= 1 && GetLocalBounds().Contains(local);
}

bool UI_Node::IsPointerEventHandled(const PointerEvent&) const { return true; }
bool UI_Node::MouseDownSelf(const PointerEvent&) { return false; }
bool UI_Node::MouseUpSelf(const PointerEvent&) { return false; }
bool UI_Node::MouseMultiClickSelf(const PointerEvent&) { return false; }
bool UI_Node::MouseMoveSelf(const PointerEvent&) { return false; }
void UI_Node::MouseEnterSelf(const PointerEvent&) {}
void UI_Node::MouseLeaveSelf() {}
bool UI_Node::SetCursorSelf(const PointerEvent&) { return false; }
bool UI_Node::MouseWheelSelf(const PointerEvent&) { return false; }
bool UI_Node::MouseMagnifySelf(const PointerEvent&) { return false; }
bool UI_Node::MouseRotateSelf(const PointerEvent&) { return false; }
bool UI_Node::MousePanSelf(const PointerEvent&) { return false; }
bool UI_Node::MouseGestureEndSelf(const PointerEvent&) { return false; }
bool UI_Node::KeyDownSelf(const KeyboardEvent&) { return false; }
bool UI_Node::KeyUpSelf(const KeyboardEvent&) { return false; }
bool UI_Node::CharacterInputSelf(const KeyboardEvent&) { return false; }
void UI_Node::SetFocusSelf() {}
void UI_Node::KillFocusSelf() {}
bool UI_Node::WantsFocusSelf() const { return true; }
bool UI_Node::AllowFocusToAdvanceFromChildrenSelf() const { return true; }
void UI_Node::PrepareForFocusFromAdvanceSelf() {}
int UI_Node::DragEnterSelf(DataObject&, ModifierKeys, Point) { return kDropEffect_None; }
int UI_Node::DragOverSelf(DataObject&, ModifierKeys, Point) { return kDropEffect_None; }
void UI_Node::DragLeaveSelf() {}
bool UI_Node::DropSelf(DataObject&, int, Point) { return false; }
bool UI_Node::TimerNotifySelf(unsigned) { return false; }
std::string UI_Node::GetToolTipTextSelf() const { return {}; }
bool UI_Node::DisplaysToolTipForChildSelf(const UI_Node*) const { return false; }
void UI_Node::SetBoundsSelf(const Rect&) {}
void UI_Node::LayoutSelf() {}
void UI_Node::VisibilityChangedSelf() {}
void UI_Node::PlacementChangedSelf() {}
void UI_Node::EnabledChangedSelf() {}

} // namespace kroui::ui
