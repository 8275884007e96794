#pragma once

#include <memory>

namespace krocore {

/// The platform's strong and weak pointers. They are the standard shared and
/// weak pointers (atomic counts), so views held by std::shared_ptr and
/// objects held by FlexPtr are one and the same.
template <typename T>
using FlexPtr = std::shared_ptr<T>;

template <typename T>
using FlexWeakPtr = std::weak_ptr<T>;

} // namespace krocore
