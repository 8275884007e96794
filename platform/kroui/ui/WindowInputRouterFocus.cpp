// WindowInputRouter: the keyboard focus, the Tab chain and the road of a keystroke.

#include <kroui/ui/WindowInputRouterImpl.h>

#include <kroui/base/KeyTable.h>
#include <kroui/ui/UI_WindowImpl.h>

#include <algorithm>

namespace kroui::ui {
namespace {

bool IsTab(const KeyboardEvent& key) {
  return key.GetAction() == KeyboardEvent::kAction_KeyDown &&
         key.GetCode().GetControlCode(false) == kKey_Tab.GetControlCode(false);
}

} // namespace

// Focus.

void WindowInputRouter::CollectFocusChain(UI_Node& scope, std::vector<UI_Node*>& chain) {
  for (const UI_NodePtr& child : scope.GetChildNodes()) {
    // A hidden or disabled node keeps its whole subtree out of the chain.
    if (!child->IsShown() || !child->IsEnabled()) continue;
    if (child->WantsFocusSelf()) chain.push_back(child.Get());
    CollectFocusChain(*child, chain);
  }
}

bool WindowInputRouter::SetFocusedNode(UI_Node* node) {
  if (node == mFocus) return true;
  if (node && (!IsOwnWindow(*node) || !node->IsVisible() || !node->IsEnabledThroughAncestors())) return false;
  const UI_NodePtr previous(mFocus);
  const UI_NodePtr next(node);
  mFocus = node;
  if (previous) previous->KillFocusSelf();
  // The losing node's hook may have moved the focus on already.
  if (next && mFocus == next.Get()) next->SetFocusSelf();
  return true;
}

UI_Node* WindowInputRouter::FocusScopeOf(UI_Node* node) const {
  UI_Node* scope = mState.root.Get();
  if (!node) return scope;
  for (UI_Node* ancestor = node->GetParent(); ancestor; ancestor = ancestor->GetParent()) {
    if (!ancestor->AllowFocusToAdvanceFromChildrenSelf()) return ancestor;
  }
  return scope;
}

bool WindowInputRouter::AdvanceFocus(bool forward) {
  UI_Node* scope = FocusScopeOf(mFocus);
  if (!scope->IsVisible() || !scope->IsEnabledThroughAncestors()) scope = mState.root.Get();
  std::vector<UI_Node*> chain;
  CollectFocusChain(*scope, chain);
  if (chain.empty()) return false;
  const auto at = std::find(chain.begin(), chain.end(), mFocus);
  const auto count = static_cast<std::ptrdiff_t>(chain.size());
  std::ptrdiff_t next = forward ? 0 : count - 1;
  if (at != chain.end()) next = ((at - chain.begin()) + (forward ? 1 : count - 1)) % count;
  // The hook may scroll, or even remove, the node: hold it over the call.
  const UI_NodePtr target(chain[static_cast<std::size_t>(next)]);
  target->PrepareForFocusFromAdvanceSelf();
  return SetFocusedNode(target.Get());
}

// Keyboard.

void WindowInputRouter::DispatchKeyboard(const OS_Event& event) {
  const KeyboardEvent& key = event.key;
  mToolTip.Cancel();
  if (mPreDispatch && mPreDispatch(key)) return;
  if (DeliverKey(key)) return;
  if (mPostDispatch && mPostDispatch(key)) return;
  if (IsTab(key) && !key.GetModKey().HasAny(kModKey_Control | kModKey_Alt)) {
    AdvanceFocus(!key.GetModKey().Has(kModKey_Shift));
  }
}

// The focused node first, then each parent up to the root, while they decline.
bool WindowInputRouter::DeliverKey(const KeyboardEvent& event) {
  if (!mFocus || !mFocus->IsVisible() || !mFocus->IsEnabledThroughAncestors()) return false;
  for (UI_NodePtr node(mFocus); node; node = UI_NodePtr(node->GetParent())) {
    if (OfferKey(*node, event)) return true;
  }
  return false;
}

bool WindowInputRouter::OfferKey(UI_Node& node, const KeyboardEvent& event) {
  switch (event.GetAction()) {
  case KeyboardEvent::kAction_KeyDown: return node.KeyDownSelf(event);
  case KeyboardEvent::kAction_KeyUp: return node.KeyUpSelf(event);
  case KeyboardEvent::kAction_CharacterInput: return node.CharacterInputSelf(event);
  default: return false;
  }
}

} // namespace kroui::ui
