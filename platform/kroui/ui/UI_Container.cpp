#include <kroui/ui/UI_Container.h>

#include <kroui/ui/UI_Window.h>

#include <krocore/debug/Assert.h>

#include <algorithm>

namespace kroui::ui {

UI_Container::UI_Container() { SetFlag(kFlag_IsContainer, true); }

UI_Container::~UI_Container() {
  // Children that outlive their parent (held by a handle) become detached.
  for (const UI_NodePtr& child : mChildren) {
    if (child) child->mParent = nullptr;
  }
}

bool UI_Container::InsertChild(const UI_NodePtr& child, const Rect& bounds, std::size_t index) {
  if (!KROCORE_ASSERT(child, "UI_Container: no child to insert")) return false;
  for (const UI_Node* node = this; node; node = node->GetParent()) {
    if (!KROCORE_ASSERT(node != child.Get(), "UI_Container: a node cannot be inserted into its own subtree"))
      return false;
  }
  const UI_NodePtr keep = child; // taking it out of its old parent may drop the last other reference
  child->RemoveFromParent();
  Compact();
  child->mBounds = bounds;
  child->mParent = this;
  const std::size_t slot = std::min(index, mChildren.size());
  mChildren.insert(mChildren.begin() + static_cast<std::ptrdiff_t>(slot), keep);
  Renumber(slot);
  if (child->IsShown()) child->Invalidate();
  child->NotifyPlacementChanged();
  return true;
}

bool UI_Container::RemoveChild(UI_Node& child) {
  const std::size_t index = SlotOf(child);
  if (index == kTop) return false;
  Detach(index);
  return true;
}

void UI_Container::RemoveAllChildren() {
  Compact();
  while (!mChildren.empty()) Detach(mChildren.size() - 1);
}

void UI_Container::Detach(std::size_t index) {
  const UI_NodePtr child = mChildren[index];
  if (child->IsShown()) InvalidateRect(child->GetBounds());
  if (UI_Window* window = GetWindow()) window->ForgetSubtree(*child, UI_Window::Forget::Removed);
  // The window's forgetting may have run hooks that moved the child already.
  const std::size_t now = SlotOf(*child);
  if (now == kTop) return;
  Vacate(now);
  child->mParent = nullptr;
  child->NotifyPlacementChanged();
}

std::size_t UI_Container::SlotOf(const UI_Node& child) const noexcept {
  if (child.mParent != this) return kTop;
  const std::size_t slot = child.mSlot;
  return slot < mChildren.size() && mChildren[slot].Get() == &child ? slot : kTop;
}

void UI_Container::Vacate(std::size_t slot) {
  if (slot + 1 < mChildren.size()) {
    mChildren[slot] = nullptr;
    ++mHoles;
    return;
  }
  mChildren.pop_back();
  // Holes left at the end go with it, so that removing from the top never compacts.
  while (!mChildren.empty() && !mChildren.back()) {
    mChildren.pop_back();
    --mHoles;
  }
}

void UI_Container::Compact() const {
  if (mHoles == 0) return;
  std::erase_if(mChildren, [](const UI_NodePtr& node) { return !node; });
  mHoles = 0;
  Renumber(0);
}

void UI_Container::Renumber(std::size_t from) const {
  for (std::size_t i = from; i < mChildren.size(); ++i) mChildren[i]->mSlot = static_cast<std::uint32_t>(i);
}

std::span<const UI_NodePtr> UI_Container::GetChildNodes() const {
  Compact();
  return mChildren;
}

UI_Node* UI_Container::GetChildAt(std::size_t index) const noexcept {
  Compact();
  return index < mChildren.size() ? mChildren[index].Get() : nullptr;
}

std::size_t UI_Container::IndexOf(const UI_Node& child) const noexcept {
  Compact();
  return SlotOf(child);
}

void UI_Container::BringToFront(UI_Node& child) {
  const std::size_t index = IndexOf(child);
  if (index == kTop) return;
  std::rotate(mChildren.begin() + static_cast<std::ptrdiff_t>(index),
              mChildren.begin() + static_cast<std::ptrdiff_t>(index) + 1, mChildren.end());
  Renumber(index);
  child.Invalidate();
}

void UI_Container::SendToBack(UI_Node& child) {
  const std::size_t index = IndexOf(child);
  if (index == kTop) return;
  std::rotate(mChildren.begin(), mChildren.begin() + static_cast<std::ptrdiff_t>(index),
              mChildren.begin() + static_cast<std::ptrdiff_t>(index) + 1);
  Renumber(0);
  child.Invalidate();
}

UI_Node* UI_Container::HitTest(Point local) const {
  Compact();
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
  Compact();
  const std::vector<UI_NodePtr> children = mChildren;
  for (const UI_NodePtr& child : children) {
    if (child->mParent == this) child->SetBounds(child->BoundsForParentResize(before, after));
  }
}

} // namespace kroui::ui
