// SubView: creation, the view interface, and the default hooks.

#include <zel/views/SubView.h>

#include <zel/views/SubViewImpl.h>
#include <zel/views/ViewHookDefaultsImpl.h>
#include <zel/views/ViewSupport.h>

#include <krocore/debug/Assert.h>
#include <kroui/ui/UI_Container.h>

namespace ZEL {

SubView::SubView(const krocore::FlexWeakPtr<Commander>& superCommander) : ViewBase(superCommander) {}

SubView::~SubView() {
  // The node may outlive the handle (someone may hold it); it must not stay in the tree.
  if (mImpl) mImpl->RemoveFromParent();
}

// Creation.

bool SubView::Create(const std::weak_ptr<ViewBase>& parent, const Rect& bounds) {
  const auto container = detail::ContainerOfParent(parent, "SubView");
  return container && Insert(*container, bounds, parent);
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
  if (!detail::HasNode(mImpl)) return;
  mImpl->SetBounds(bounds);
}

ViewBase::Rect SubView::GetBounds() const {
  if (!detail::HasNode(mImpl)) return {};
  return mImpl->GetBounds();
}

void SubView::RequestReflow() {
  if (!detail::HasNode(mImpl)) return;
  if (kroui::ui::UI_Container* parent = mImpl->GetParent()) parent->RequestLayout();
}

ViewBase::Rect SubView::ClientRect() const {
  if (!detail::HasNode(mImpl)) return {};
  return mImpl->GetLocalBounds();
}

void SubView::Show(bool show) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->Show(show);
}

void SubView::Hide() {
  if (!detail::HasNode(mImpl)) return;
  mImpl->Hide();
}

bool SubView::IsShown() const {
  if (!detail::HasNode(mImpl)) return false;
  return mImpl->IsShown();
}

std::shared_ptr<ViewBase> SubView::GetParent() {
  if (!detail::HasNode(mImpl)) return nullptr;
  return mParent.lock();
}

krocore::IntrusivePtr<kroui::ui::UI_Node> SubView::GetKRONode() {
  if (!detail::HasNode(mImpl)) return nullptr;
  return mImpl;
}

// Public virtual operations.

void SubView::Enable(bool enable) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->Enable(enable);
}

void SubView::Disable() {
  if (!detail::HasNode(mImpl)) return;
  mImpl->Disable();
}

std::string SubView::GetDragCommandContextName() const { return {}; }

void SubView::SetTabletPenEvent(bool wantsPenEvents) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->SetTabletPenEvents(wantsPenEvents);
}

bool SubView::GetTabletPenEvent() const {
  if (!detail::HasNode(mImpl)) return false;
  return mImpl->GetTabletPenEvents();
}

void SubView::SetToolTipText(const UTF8String& text) {
  if (!detail::HasNode(mImpl)) return;
  mImpl->SetToolTipText(text, detail::ToolTipDelay());
}

DC SubView::GetDC(kroui::drawbot::Drawbot* drawbot) {
  if (!detail::HasNode(mImpl)) return DC();
  return drawbot ? DC(*drawbot) : DC();
}

DC SubView::GetDC() {
  if (!detail::HasNode(mImpl)) return DC();
  return GetDC(mImpl->GetPaintingDrawbot());
}

DC& SubView::GetOffscreenSelf() {
  static DC sNoOffscreen; // empty: draws nothing, so sharing it is harmless
  if (!detail::HasNode(mImpl)) return sNoOffscreen;
  return mImpl->GetOffscreen();
}

// Default hooks: nothing is consumed, so events go on to the parent.

ZEL_DEFINE_SHARED_VIEW_HOOK_DEFAULTS(SubView)
void SubView::AddendumPaintSelf(DC&) {}
bool SubView::MouseWheelSelf(const Point&, KeyModifiers, int, int, bool) { return false; }
bool SubView::KeyDownSelf(wchar_t, short, bool) { return false; }
bool SubView::KeyUpSelf(wchar_t, short, bool) { return false; }
bool SubView::CharacterInputSelf(wchar_t, bool) { return false; }
bool SubView::DisplaysToolTipForChildSelf(const kroui::ui::UI_Node*) const { return false; }
bool SubView::TimerNotifySelf(unsigned) { return false; }
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
