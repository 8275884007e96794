#pragma once

#include <be/Export.h>

#include <thread>

namespace BE {

/// The token every read of the model asks for. A read validator lives on the
/// stack of the thread that made it and is valid only there: the model is not
/// locked, so a token handed to another thread would let that thread read
/// while the owner changes it. A read with an invalid token reports the misuse
/// and answers empty.
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
