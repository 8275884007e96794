#pragma once

#include <krocore/debug/Assert.h>

#include <cstdint>
#include <string>
#include <utility>

namespace BE {

/// The two ways reading a store can fail are told apart, because a user is
/// told different things: the file is damaged, or it is sound but written by
/// a version that this one cannot read.
enum class StoreReadStatus : std::uint8_t {
  kRead,
  kNotAStore,           ///< missing, too large, not XML, or not laid out as a store
  kIncompatibleVersion, ///< a store, but its format version is missing or not one this reader reads
};

/// What reading a store gives: success, or the kind of failure and a message
/// that says to a person what was wrong.
class StoreReadResult {
public:
  static StoreReadResult Success() { return StoreReadResult(StoreReadStatus::kRead, {}); }
  static StoreReadResult Failure(StoreReadStatus status, std::string message) {
    KROCORE_ASSERT(status != StoreReadStatus::kRead, "A failure needs a failing status");
    return StoreReadResult(status, std::move(message));
  }

  bool IsSuccess() const noexcept { return mStatus == StoreReadStatus::kRead; }
  explicit operator bool() const noexcept { return IsSuccess(); }
  StoreReadStatus Status() const noexcept { return mStatus; }
  /// The message of a failure; empty on success.
  const std::string& Error() const noexcept { return mMessage; }

private:
  StoreReadResult(StoreReadStatus status, std::string message)
      : mStatus(status), mMessage(std::move(message)) {}

  StoreReadStatus mStatus;
  std::string mMessage;
};

} // namespace BE
