#pragma once

#include <be/Export.h>

#include <thread>

namespace BE {

/// The token every read of the model asks for. What it checks: that it is
/// used on the thread that made it, so a token is never handed on. What it
/// does not do: lock the model. Changes happen on the main thread only (see
/// UpgradeValidator); a worker thread that reads the model makes its own token
/// and must know that the main thread is not changing what it reads meanwhile.
/// A read with an invalid token reports the misuse and answers empty.
class BE_API ReadValidator {
public:
  ReadValidator() noexcept;
  ReadValidator(const ReadValidator&) = delete;
  ReadValidator& operator=(const ReadValidator&) = delete;

  /// True on the thread that made the token.
  bool IsValid() const noexcept;

private:
  std::thread::id mThread;
};

} // namespace BE
