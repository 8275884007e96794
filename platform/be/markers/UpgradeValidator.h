#pragma once

#include <be/Export.h>
#include <be/markers/ReadValidator.h>

namespace BE {

/// The token every change of the model asks for: read access upgraded to
/// write access. Valid only on the main thread, where changes belong because
/// they are announced to listeners and recorded for undo, and only on the
/// thread that made it. It reads as well as a ReadValidator does. A change
/// with an invalid token reports the misuse and changes nothing.
class BE_API UpgradeValidator : public ReadValidator {
public:
  UpgradeValidator() noexcept = default;
  /// Upgrades the caller's read access; valid when `read` is.
  explicit UpgradeValidator(const ReadValidator& read) noexcept;

  bool IsValid() const noexcept;

private:
  bool mReadWasValid = true;
};

} // namespace BE
