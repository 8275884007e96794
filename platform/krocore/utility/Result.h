#pragma once

#include <cassert>
#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace krocore::utility {

/// What a parser of outside input returns: a value, or a message that says
/// to a person what was wrong. Never a sentinel value.
template <typename T>
class Result {
public:
  static Result Success(T value) { return Result(std::in_place_index<0>, std::move(value)); }
  static Result Failure(std::string message) { return Result(std::in_place_index<1>, std::move(message)); }

  bool IsSuccess() const noexcept { return mState.index() == 0; }
  explicit operator bool() const noexcept { return IsSuccess(); }

  const T& Value() const& { assert(IsSuccess()); return std::get<0>(mState); }
  T& Value() & { assert(IsSuccess()); return std::get<0>(mState); }
  T&& Value() && { assert(IsSuccess()); return std::get<0>(std::move(mState)); }
  T ValueOr(T fallback) const { return IsSuccess() ? std::get<0>(mState) : std::move(fallback); }

  /// The message of a failure; empty on success.
  const std::string& Error() const {
    static const std::string kNone;
    return IsSuccess() ? kNone : std::get<1>(mState);
  }

private:
  template <std::size_t I, typename V>
  Result(std::in_place_index_t<I> index, V&& value) : mState(index, std::forward<V>(value)) {}

  std::variant<T, std::string> mState;
};

/// What an operation that only succeeds or fails returns (a save, a load into
/// existing state): success carries nothing, a failure its message.
template <>
class Result<void> {
public:
  static Result Success() { return Result(std::nullopt); }
  static Result Failure(std::string message) { return Result(std::move(message)); }

  bool IsSuccess() const noexcept { return !mError.has_value(); }
  explicit operator bool() const noexcept { return IsSuccess(); }

  /// The message of a failure; empty on success.
  const std::string& Error() const {
    static const std::string kNone;
    return mError ? *mError : kNone;
  }

private:
  explicit Result(std::optional<std::string> error) : mError(std::move(error)) {}

  std::optional<std::string> mError;
};

} // namespace krocore::utility
