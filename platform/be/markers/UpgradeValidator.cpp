#include <be/markers/UpgradeValidator.h>

#include <krocore/threads/MainThread.h>

namespace BE {

UpgradeValidator::UpgradeValidator(const ReadValidator& read) noexcept : mReadWasValid(read.IsValid()) {}

bool UpgradeValidator::IsValid() const noexcept {
  return mReadWasValid && ReadValidator::IsValid() && krocore::threads::CurrentThreadIsMainThread();
}

} // namespace BE
