#include <zel/views/ControlView.h>

#include <zel/Localization.h>
#include <zel/commands/ShortcutManager.h>
#include <zel/views/ControlViewImpl.h>
#include <zel/views/ViewSupport.h>

#include <krocore/debug/Assert.h>

namespace ZEL {
namespace {

// The shortcut manager's presentation of a tooltip with its shortcut, under the same key.
constexpr const char* kToolTipWithShortcut = "$$$/Vantor/Libraries/ZEL/TooltipTemplate=@0 (@1)";

} // namespace

ControlView::ControlView(const krocore::FlexWeakPtr<Commander>& superCommander) : ViewBase(superCommander) {}

ControlView::~ControlView() = default;

bool ControlView::AttachImpl(ControlViewImpl& impl, const std::weak_ptr<ViewBase>& parent, const Rect& bounds) {
  const auto container = detail::ContainerOfParent(parent, "ControlView");
  if (!container) return false;
  std::weak_ptr<ControlView> self = WeakAs<ControlView>();
  if (!KROCORE_ASSERT(!self.expired(), "ControlView: a control must be held by a std::shared_ptr to be created"))
    return false;
  if (ControlViewImpl* old = GetControlViewImpl(); old && old != &impl) old->RemoveFromParent();
  impl.mView = std::move(self);
  impl.mParentView = parent;
  return container->InsertChild(kroui::ui::UI_NodePtr(&impl), bounds);
}

// The view interface.

void ControlView::SetBounds(const Rect& bounds) {
  if (ControlViewImpl* impl = GetControlViewImpl()) impl->SetBounds(bounds);
}

ViewBase::Rect ControlView::GetBounds() const {
  const ControlViewImpl* impl = GetControlViewImpl();
  return impl ? impl->GetBounds() : Rect{};
}

std::shared_ptr<ViewBase> ControlView::GetParent() {
  const ControlViewImpl* impl = GetControlViewImpl();
  return impl ? impl->GetParentView() : nullptr;
}

krocore::IntrusivePtr<kroui::ui::UI_Node> ControlView::GetKRONode() {
  return krocore::IntrusivePtr<kroui::ui::UI_Node>(GetControlViewImpl());
}

// State and geometry.

bool ControlView::IsCreated() const { return GetControlViewImpl() != nullptr; }

void ControlView::Enable(bool enable) {
  if (ControlViewImpl* impl = GetControlViewImpl()) impl->Enable(enable);
}

void ControlView::Disable() { Enable(false); }

bool ControlView::IsEnabled() const {
  const ControlViewImpl* impl = GetControlViewImpl();
  return impl && impl->IsEnabled();
}

ViewBase::Point ControlView::Position() const { return GetBounds().Origin(); }

ViewBase::Extent ControlView::Size() const { return GetBounds().Extent(); }

// Painting and focus.

void ControlView::Invalidate() {
  if (ControlViewImpl* impl = GetControlViewImpl()) impl->Invalidate();
}

void ControlView::InvalidateRect(const Rect& rect) {
  if (ControlViewImpl* impl = GetControlViewImpl()) impl->InvalidateRect(rect);
}

void ControlView::Redraw() {
  if (ControlViewImpl* impl = GetControlViewImpl()) impl->Redraw();
}

void ControlView::EnableDoubleBuffering(bool enable, bool redrawNow) {
  ControlViewImpl* impl = GetControlViewImpl();
  if (!impl) return;
  impl->EnableDoubleBuffering(enable);
  if (redrawNow) impl->Redraw();
}

bool ControlView::SetFocus() {
  ControlViewImpl* impl = GetControlViewImpl();
  return impl && impl->SetFocus();
}

void ControlView::KillFocus() {
  if (ControlViewImpl* impl = GetControlViewImpl()) impl->KillFocus();
}

// Tooltips and the command.

void ControlView::SetToolTipText(const UTF8String& text) {
  if (ControlViewImpl* impl = GetControlViewImpl()) impl->SetToolTipText(text, detail::ToolTipDelay());
}

void ControlView::SetToolTipTextUsingCommandID() {
  const ShortcutManager* manager = ShortcutManager::Instance();
  if (manager && IsCreated()) SetToolTipText(manager->GetTooltipText(GetCommandID()));
}

void ControlView::SetToolTipTextWithShortcut(const UTF8String& text) {
  if (!IsCreated()) return;
  const ShortcutManager* manager = ShortcutManager::Instance();
  const UTF8String shortcut = manager ? manager->GetTooltipShortcutText(GetCommandID()) : UTF8String();
  SetToolTipText(shortcut.empty() ? text : ReplacePlaceholders(Localize(kToolTipWithShortcut), {text, shortcut}));
}

void ControlView::SetCommandID(const int& commandID) {
  if (ControlViewImpl* impl = GetControlViewImpl()) impl->SetCommandID(commandID);
}

int ControlView::GetCommandID() const {
  const ControlViewImpl* impl = GetControlViewImpl();
  return impl ? impl->GetCommandID() : 0;
}

} // namespace ZEL
