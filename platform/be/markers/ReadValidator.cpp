#include <be/markers/ReadValidator.h>

namespace BE {

ReadValidator::ReadValidator() noexcept : mThread(std::this_thread::get_id()) {}

bool ReadValidator::IsValid() const noexcept { return mThread == std::this_thread::get_id(); }

} // namespace BE
