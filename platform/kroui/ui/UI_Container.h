#pragma once

#include <kroui/Export.h>
#include <kroui/ui/UI_Node.h>

#include <cstddef>
#include <limits>
#include <vector>

namespace kroui::ui {

/// A node that holds children, in z-order: the first child is painted first
/// and hit last. The container owns its children; a child knows its parent
/// only by a plain pointer, cleared when it is taken out, and its slot in the
/// list. Taking a child out empties its slot in O(1) (the last slot is
/// dropped); the list is closed up before it is next read, so that removing
/// n children costs O(n), not O(n^2), and readers always see it dense.
///
///   container
///     child 0   (bottom: painted first)
///     child 1
///     child 2   (top: hit first)
class KROUI_API UI_Container : public UI_Node {
public:
  static constexpr std::size_t kTop = std::numeric_limits<std::size_t>::max();

  UI_Container();

  /// Inserts `child` with `bounds` (in this container's coordinates) at
  /// z-position `index` (kTop: above all). A child that has a parent is taken
  /// out of it first; inserting an ancestor of this container is refused.
  bool InsertChild(const UI_NodePtr& child, const Rect& bounds, std::size_t index = kTop);
  /// Takes `child` out; false when it is not a child of this container.
  bool RemoveChild(UI_Node& child);
  void RemoveAllChildren();

  std::span<const UI_NodePtr> GetChildNodes() const override;
  std::size_t GetChildCount() const noexcept { return mChildren.size() - mHoles; }
  UI_Node* GetChildAt(std::size_t index) const noexcept;
  /// The z-position of `child`, or kTop when it is not a child.
  std::size_t IndexOf(const UI_Node& child) const noexcept;
  void BringToFront(UI_Node& child);
  void SendToBack(UI_Node& child);

  /// The deepest visible node at `local` (in this container's coordinates)
  /// whose HitTestSelf accepts it: this container itself, or null.
  UI_Node* HitTest(Point local) const;

protected:
  ~UI_Container() override;

private:
  friend class UI_Node;
  /// Applies the children's layout bindings after this container went from `before` to its size now.
  void LayoutChildren(Extent before);
  void Detach(std::size_t index);
  /// The slot `child` holds, holes counted, or kTop.
  std::size_t SlotOf(const UI_Node& child) const noexcept;
  /// Empties a slot; dropped at once when it is the last.
  void Vacate(std::size_t slot);
  /// Closes the holes, so that slots are z-positions again.
  void Compact() const;
  void Renumber(std::size_t from) const;

  mutable std::vector<UI_NodePtr> mChildren;
  mutable std::size_t mHoles = 0;
};

} // namespace kroui::ui
