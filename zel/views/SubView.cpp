// SubView: creation, the view interface, and the default hooks.

#include <zel/views/SubView.h>

#include <zel/views/SubViewImpl.h>
#include <zel/views/ViewSupport.h>

#include <kroui/base/DataObject.h>
#include <kroui/ui/UI_Container.h>

namespace ZEL {

SubView::SubView(const krocore::FlexWeakPtr<Commander>& superCommander) : ViewBase(superCommander) {}

SubView::~SubView() {
  // The node may outlive the handle (someone may hold it); it must not stay in the tree.
  if (mImpl) mImpl->RemoveFromParent();
}

// Creation.

bool SubView::Create(const std::weak_ptr<ViewBase>& parent, const Rect& bounds) {
  const std::shared_ptr<ViewBase> parentView = parent.lock();
  const auto parentNode = parentView ? parentView->GetKRONode() : nullptr;
  auto* container = dynamic_cast<kroui::ui::UI_Container*>(parentNode.Get());
  if (!KROCORE_ASSERT(container, "SubView: the parent view has no node that can hold views")) return false;
  return Insert(*container, bounds, parent);
}

bool SubView::Create(const kroui::ui::RefCountedWeakPtr<kroui::ui::UI_Container>& parent, const Rect& bounds) {
  const auto container = parent.Lock();
  if (!KROCORE_ASSERT(container, "SubView: the parent container is gone")) return false;
  return Insert(*container, bounds, {});
}

bool SubView::Insert(kroui::ui::UI_Container& container, const Rect& bounds, const std::weak_ptr<ViewBase>& parent) {
  std::weak_ptr<SubView> self = WeakAs<SubView>();
  if (!KROCORE_ASSERT(!self.expired(), "SubView: a view must be held by a std::shared_ptr to be created"))
    return false;
  // A view created again loses its old node first, so the parent never holds two.
  if (mImpl) mImpl->RemoveFromParent();
  const auto node = krocore::MakeIntrusive<SubViewImpl>(std::move(self));
  mImpl = node;
  mParent = parent;
  container.InsertChild(node, bounds);
  FinishCreateSelf(bounds);
  return true;
}

bool SubView::IsCreated() const noexcept { return static_cast<bool>(mImpl); }

// The view interface.

void SubView::SetBounds(const Rect& bounds) {
  ZEL_SUBVIEW_REQUIRE_IMPL();
  mImpl->SetBounds(bounds);
}

ViewBase::Rect SubView::GetBounds() const {
  ZEL_SUBVIEW_REQUIRE_IMPL({});
  return mImpl->GetBounds();
}

void SubView::RequestReflow() {
  ZEL_SUBVIEW_REQUIRE_IMPL();
  if (const auto parent = mParent.lock()) parent->RequestReflow();
}

ViewBase::Rect SubView::ClientRect() const {
  ZEL_SUBVIEW_REQUIRE_IMPL({});
  return mImpl->GetLocalBounds();
}

void SubView::Show(bool show) {
  ZEL_SUBVIEW_REQUIRE_IMPL();
  mImpl->Show(show);
}

void SubView::Hide() {
  ZEL_SUBVIEW_REQUIRE_IMPL();
  mImpl->Hide();
}

bool SubView::IsShown() const {
  ZEL_SUBVIEW_REQUIRE_IMPL(false);
  return mImpl->IsShown();
}

std::shared_ptr<ViewBase> SubView::GetParent() {
  ZEL_SUBVIEW_REQUIRE_IMPL(nullptr);
  return mParent.lock();
}

krocore::IntrusivePtr<kroui::ui::UI_Node> SubView::GetKRONode() {
  ZEL_SUBVIEW_REQUIRE_IMPL(nullptr);
  return mImpl;
}

// Public virtual operations.

void SubView::Enable(bool enable) {
  ZEL_SUBVIEW_REQUIRE_IMPL();
  mImpl->Enable(enable);
}

void SubView::Disable() {
  ZEL_SUBVIEW_REQUIRE_IMPL();
  mImpl->Disable();
}

std::string SubView::GetDragCommandContextName() const { return {}; }

void SubView::SetTabletPenEvent(bool wantsPenEvents) {
  ZEL_SUBVIEW_REQUIRE_IMPL();
  mImpl->SetTabletPenEvents(wantsPenEvents);
}

bool SubView::GetTabletPenEvent() const {
  ZEL_SUBVIEW_REQUIRE_IMPL(false);
  return mImpl->GetTabletPenEvents();
}

void SubView::SetToolTipText(const UTF8String& text) {
  ZEL_SUBVIEW_REQUIRE_IMPL();
  mImpl->SetToolTipText(text, detail::ToolTipDelay());
}

DC SubView::GetDC(kroui::drawbot::Drawbot* drawbot) {
  ZEL_SUBVIEW_REQUIRE_IMPL(DC());
  return drawbot ? DC(*drawbot) : DC();
}

DC SubView::GetDC() {
  ZEL_SUBVIEW_REQUIRE_IMPL(DC());
  return GetDC(mImpl->GetPaintingDrawbot());
}

DC& SubView::GetOffscreenSelf() {
  static DC sNoOffscreen; // empty: draws nothing, so sharing it is harmless
  ZEL_SUBVIEW_REQUIRE_IMPL(sNoOffscreen);
  return mImpl->GetOffscreen();
}

// Default hooks: nothing is consumed, so events go on to the parent.

void SubView::FinishCreateSelf(const Rect&) {}
void SubView::SetBoundsSelf(const Rect&) {}
void SubView::SetFocusSelf() {}
void SubView::KillFocusSelf() {}
void SubView::PaintSelf(DC&) {}
void SubView::AddendumPaintSelf(DC&) {}
void SubView::LeftButtonDownSelf(const Point&, KeyModifiers) {}
void SubView::LeftButtonUpSelf(const Point&, KeyModifiers) {}
void SubView::LeftButtonMultiClickSelf(const Point&, KeyModifiers, unsigned) {}
void SubView::RightButtonDownSelf(const Point&, KeyModifiers) {}
void SubView::RightButtonUpSelf(const Point&, KeyModifiers) {}
void SubView::RightButtonDoubleClickSelf(const Point&, KeyModifiers) {}
bool SubView::SetCursorSelf(const Point&, KeyModifiers) { return false; }
void SubView::MouseMoveSelf(const Point&, KeyModifiers) {}
void SubView::MouseLeaveSelf() {}
bool SubView::MouseWheelSelf(const Point&, KeyModifiers, int, int, bool) { return false; }
bool SubView::MouseMagnifySelf(const Point&, const float&, KeyModifiers) { return false; }
bool SubView::MouseRotateSelf(const Point&, const float&, KeyModifiers) { return false; }
bool SubView::MousePanSelf(const Point&, const Point&) { return false; }
void SubView::MouseGestureEndSelf(const kroui::ui::PointerEvent::Action&) {}
bool SubView::KeyDownSelf(wchar_t, short, bool) { return false; }
bool SubView::KeyUpSelf(wchar_t, short, bool) { return false; }
bool SubView::CharacterInputSelf(wchar_t, bool) { return false; }
UTF8String SubView::GetToolTipTextSelf() const { return {}; }
bool SubView::DisplaysToolTipForChildSelf(const kroui::ui::UI_Node*) const { return false; }
bool SubView::TimerNotifySelf(unsigned) { return false; }
int SubView::DragEnterSelf(kroui::ui::DataObject&, KeyModifiers, const Point&) { return kroui::ui::kDropEffect_None; }
int SubView::DragOverSelf(kroui::ui::DataObject&, KeyModifiers, const Point&) { return kroui::ui::kDropEffect_None; }
void SubView::DragLeaveSelf() {}
bool SubView::DropSelf(kroui::ui::DataObject&, int, const Point&) { return false; }
bool SubView::AllowFocusToAdvanceFromChildrenSelf() const { return true; }
bool SubView::WantsFocusSelf() const { return true; }
void SubView::VisibilityChangedSelf() {}
bool SubView::IsPointerEventHandled(const kroui::ui::PointerEvent&) const { return true; }
kroui::drawbot::ColorRGBAOptional SubView::GetBackgroundColor() const { return std::nullopt; }

bool SubView::HitTestSelf(const Point& point) const {
  const Rect client = ClientRect();
  // An empty view never hits, not even at its own origin.
  if (client.Width() < 1 || client.Height() < 1) return false;
  return point.x >= client.left && point.x < client.left + client.Width() && point.y >= client.top &&
         point.y < client.top + client.Height();
}

} // namespace ZEL
