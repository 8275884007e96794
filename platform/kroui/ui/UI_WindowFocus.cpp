// UI_Window: the keyboard focus, the Tab chain and tooltips.

#include <kroui/ui/UI_Window.h>

#include <kroui/ui/EventLoop.h>
#include <kroui/ui/ToolTipManager.h>

#include <algorithm>

namespace kroui::ui {
namespace {

// The timer of a window's pending tooltip, among the window's timers.
constexpr std::uint64_t kToolTipTimer = 1;
// Where a tooltip appears, from the pointer's hot spot: below the cursor image.
constexpr Point kToolTipOffset{0, 20};

} // namespace

bool UI_Window::SetFocusedNode(UI_Node* node) {
  if (node == mFocus) return true;
  if (node && (node->GetWindow() != this || !node->IsVisible() || !node->IsEnabledThroughAncestors())) return false;
  const UI_NodePtr previous(mFocus);
  const UI_NodePtr next(node);
  mFocus = node;
  if (previous) previous->KillFocusSelf();
  // The losing node's hook may have moved the focus on already.
  if (next && mFocus == next.Get()) next->SetFocusSelf();
  return true;
}

UI_Node* UI_Window::FocusScopeOf(UI_Node* node) const {
  UI_Node* scope = mRoot.Get();
  if (!node) return scope;
  for (UI_Node* ancestor = node->GetParent(); ancestor; ancestor = ancestor->GetParent()) {
    if (!ancestor->AllowFocusToAdvanceFromChildrenSelf()) return ancestor;
  }
  return scope;
}

void UI_Window::CollectFocusChain(UI_Node& scope, std::vector<UI_Node*>& chain) const {
  for (const UI_NodePtr& child : scope.GetChildNodes()) {
    // A hidden or disabled node keeps its whole subtree out of the chain.
    if (!child->IsShown() || !child->IsEnabled()) continue;
    if (child->WantsFocusSelf()) chain.push_back(child.Get());
    CollectFocusChain(*child, chain);
  }
}

bool UI_Window::AdvanceFocus(bool forward) {
  UI_Node* scope = FocusScopeOf(mFocus);
  if (!scope->IsVisible() || !scope->IsEnabledThroughAncestors()) scope = mRoot.Get();
  std::vector<UI_Node*> chain;
  CollectFocusChain(*scope, chain);
  if (chain.empty()) return false;
  const auto at = std::find(chain.begin(), chain.end(), mFocus);
  const auto count = static_cast<std::ptrdiff_t>(chain.size());
  std::ptrdiff_t next = forward ? 0 : count - 1;
  if (at != chain.end()) next = ((at - chain.begin()) + (forward ? 1 : count - 1)) % count;
  return SetFocusedNode(chain[static_cast<std::size_t>(next)]);
}

// Tooltips.

void UI_Window::StartToolTip(const PointerEvent& event) {
  UI_Node* hovered = GetHoverNode();
  UI_Node* owner = nullptr;
  // An ancestor that shows its own tooltip for this child wins over the child's text.
  for (UI_Node* node : mHover) {
    if (node != hovered && node->DisplaysToolTipForChildSelf(hovered)) {
      owner = node;
      break;
    }
  }
  for (UI_Node* node = hovered; node && !owner; node = node->GetParent()) {
    if (!node->GetEffectiveToolTipText().empty()) owner = node;
  }
  if (owner == mToolTipNode) return; // the same tooltip: keep it showing, or keep waiting
  CancelToolTip();
  if (!owner) return;
  mToolTipNode = owner;
  mLastPointer = event.windowPosition;
  int delay = owner->GetToolTipDelay();
  if (delay < 0) delay = ToolTipManager::Instance().GetInitialDelay();
  EventLoop& loop = EventLoop::Instance();
  loop.GetTimers().Schedule(this, kToolTipTimer, loop.Now(), delay, false, [this] { ShowToolTipNow(); });
}

void UI_Window::ShowToolTipNow() {
  if (!mToolTipNode) return;
  const std::string text = mToolTipNode->GetEffectiveToolTipText();
  if (text.empty()) return;
  ToolTipManager::Instance().Show(text, WindowToScreen(mLastPointer) + kToolTipOffset, this);
}

void UI_Window::CancelToolTip() {
  EventLoop::Instance().GetTimers().Cancel(this, kToolTipTimer);
  mToolTipNode = nullptr;
  ToolTipManager& manager = ToolTipManager::Instance();
  if (manager.GetOwner() == this) manager.Hide();
}

} // namespace kroui::ui
