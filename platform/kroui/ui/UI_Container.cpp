#include <kroui/ui/UI_Container.h>

#include <kroui/ui/UI_Window.h>

#include <krocore/debug/Assert.h>

#include <algorithm>

namespace kroui::ui {

UI_Container::UI_Container() { SetFlag(kFlag_IsContainer, true); }

UI_Container::~UI_Container() {
  // Children that outlive their parent (held by a handle) become detached.
  for (const UI_NodePtr& child : mChildren) child->mParent = nullptr;
}

bool UI_Container::InsertChild(const UI_NodePtr& child, const Rect& bounds, std::size_t index) {
  if (!KROCORE_ASSERT(child, "UI_Container: no child to insert")) return false;
  for (const UI_Node* node = this; node; node = node->GetParent()) {
    if (!KROCORE_ASSERT(node != child.Get(), "UI_Container: a node cannot be inserted into its own subtree"))
      return false;
  }
  const UI_NodePtr keep = child; // taking it out of its old parent may drop the last other reference
  child->RemoveFromParent();
  child->mBounds = bounds;
  child->mParent = this;
  mChildren.insert(mChildren.begin() + static_cast<std::ptrdiff_t>(std::min(index, mChildren.size())), keep);
  if (child->IsShown()) child->Invalidate();
  return true;
}

bool UI_Container::RemoveChild(UI_Node& child) {
  const std::size_t index = IndexOf(child);
  if (index == kTop) return false;
  Detach(index);
  return true;
}

void UI_Container::RemoveAllChildren() {
  while (!mChildren.empty()) Detach(mChildren.size() - 1);
}

void UI_Container::Detach(std::size_t index) {
  const UI_NodePtr child = mChildren[index];
  if (child->IsShown()) InvalidateRect(child->GetBounds());
  if (UI_Window* window = GetWindow()) window->ForgetSubtree(*child, UI_Window::Forget::Removed);
  // The window's forgetting may have run hooks that moved the child already.
  const std::size_t now = IndexOf(*child);
  if (now == kTop) return;
  mChildren.erase(mChildren.begin() + static_cast<std::ptrdiff_t>(now));
  child->mParent = nullptr;
}

std::span<const UI_NodePtr> UI_Container::GetChildNodes() const { return mChildren; }

UI_Node* UI_Container::GetChildAt(std::size_t index) const noexcept {
  return index < mChildren.size() ? mChildren[index].Get() : nullptr;
}

std::size_t UI_Container::IndexOf(const UI_Node& child) const noexcept {
  if (child.mParent != this) return kTop;
  const auto found = std::find_if(mChildren.begin(), mChildren.end(),
                                  [&child](const UI_NodePtr& node) { return node.Get() == &child; });
  return found == mChildren.end() ? kTop : static_cast<std::size_t>(found - mChildren.begin());
}

void UI_Container::BringToFront(UI_Node& child) {
  const std::size_t index = IndexOf(child);
  if (index == kTop) return;
  std::rotate(mChildren.begin() + static_cast<std::ptrdiff_t>(index),
              mChildren.begin() + static_cast<std::ptrdiff_t>(index) + 1, mChildren.end());
  child.Invalidate();
}

void UI_Container::SendToBack(UI_Node& child) {
  const std::size_t index = IndexOf(child);
  if (index == kTop) return;
  std::rotate(mChildren.begin(), mChildren.begin() + static_cast<std::ptrdiff_t>(index),
              mChildren.begin() + static_cast<std::ptrdiff_t>(index) + 1);
  child.Invalidate();
}

UI_Node* UI_Container::HitTest(Point local) const {
  for (auto it = mChildren.rbegin(); it != mChildren.rend(); ++it) {
    UI_Node& child = **it;
    if (!child.IsShown()) continue;
    const Rect& bounds = child.GetBounds();
    if (child.GetClipToSelf() && !bounds.Contains(local)) continue;
    const Point inChild{local.x - bounds.left, local.y - bounds.top};
    if (child.Has(kFlag_IsContainer)) {
      if (UI_Node* hit = static_cast<const UI_Container&>(child).HitTest(inChild)) return hit;
    } else if (child.HitTestSelf(inChild)) {
      return &child;
    }
  }
  return HitTestSelf(local) ? const_cast<UI_Container*>(this) : nullptr;
}

void UI_Container::LayoutChildren(Extent before) {
  const Extent after = GetBounds().Extent();
  // A child's SetBoundsSelf may add or remove children: walk a copy.
  const std::vector<UI_NodePtr> children = mChildren;
  for (const UI_NodePtr& child : children) {
    if (child->mParent == this) child->SetBounds(child->BoundsForParentResize(before, after));
  }
}

} // namespace kroui::ui
