#pragma once

#include <krocore/Export.h>
#include <krocore/pointers/FlexPtr.h>

namespace krocore::utility {

/// Gives an object shared and weak pointers to itself as any of its types.
/// A class that is both a view and a commander derives from this once, and
/// hands out FlexPtr<Commander> and FlexPtr<ViewBase> that share one count.
/// Before the object is owned by a shared pointer the answers are null.
class KROCORE_API EnableSharedAs : public std::enable_shared_from_this<EnableSharedAs> {
public:
  virtual ~EnableSharedAs();

  template <typename T>
  FlexPtr<T> SharedAs() {
    return std::dynamic_pointer_cast<T>(weak_from_this().lock());
  }

  template <typename T>
  FlexPtr<const T> SharedAs() const {
    return std::dynamic_pointer_cast<const T>(weak_from_this().lock());
  }

  template <typename T>
  FlexWeakPtr<T> WeakAs() {
    return SharedAs<T>();
  }

protected:
  EnableSharedAs() = default;
  EnableSharedAs(const EnableSharedAs&) = default;
  EnableSharedAs& operator=(const EnableSharedAs&) = default;
};

} // namespace krocore::utility
