#pragma once

#include <kroui/Forward.h>

#include <krocore/pointers/IntrusivePtr.h>

#include <memory>
#include <type_traits>

namespace kroui::ui {

/// What weak references to one node share; the node clears it when it dies.
struct UI_NodeAnchor {
  UI_Node* node = nullptr;
};

/// A weak reference to an intrusively counted node: it never keeps the node
/// alive and locks to null once the node is gone. UI thread only.
///
///   handle --IntrusivePtr--> node --(children)--> ...
///   node   --RefCountedWeakPtr--> parent or handle-side object   (never owning)
template <typename T>
class RefCountedWeakPtr {
public:
  RefCountedWeakPtr() noexcept = default;
  RefCountedWeakPtr(std::nullptr_t) noexcept {} // NOLINT: null converts as for any pointer
  explicit RefCountedWeakPtr(const T* node) : mAnchor(node ? node->AcquireWeakAnchor() : nullptr) {}
  RefCountedWeakPtr(const krocore::IntrusivePtr<T>& node) : RefCountedWeakPtr(node.Get()) {} // NOLINT
  template <typename U>
    requires std::is_convertible_v<U*, T*>
  RefCountedWeakPtr(const RefCountedWeakPtr<U>& other) noexcept : mAnchor(other.GetAnchor()) {} // NOLINT
  template <typename U>
    requires std::is_convertible_v<U*, T*>
  RefCountedWeakPtr(const krocore::IntrusivePtr<U>& node) // NOLINT: as strong pointers convert
      : RefCountedWeakPtr(static_cast<const T*>(node.Get())) {}

  /// A strong reference, or null when the node is gone or being destroyed.
  krocore::IntrusivePtr<T> Lock() const {
    if (!mAnchor || mAnchor->node == nullptr) return {};
    T* node = static_cast<T*>(mAnchor->node);
    // A count of zero means the node is in its destructor: do not revive it.
    if (node->GetRefCount() == 0) return {};
    return krocore::IntrusivePtr<T>(node);
  }
  bool IsExpired() const noexcept { return !mAnchor || mAnchor->node == nullptr; }
  void Reset() noexcept { mAnchor.reset(); }

  const std::shared_ptr<UI_NodeAnchor>& GetAnchor() const noexcept { return mAnchor; }

private:
  std::shared_ptr<UI_NodeAnchor> mAnchor;
};

} // namespace kroui::ui
