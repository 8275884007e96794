#include <kroui/theme/SkinVersionChange.h>

#include <mutex>
#include <utility>

namespace kroui::ui {
namespace {

std::mutex sLock;
SkinVersionChangedFunction sFunction;

} // namespace

SkinVersionChangedFunction SetSkinVersionChangedFunction(SkinVersionChangedFunction function) {
  std::lock_guard lock(sLock);
  return std::exchange(sFunction, std::move(function));
}

bool HasSkinVersionChangedFunction() {
  std::lock_guard lock(sLock);
  return static_cast<bool>(sFunction);
}

void CallSkinVersionChangedFunction(int newVersion) {
  SkinVersionChangedFunction function;
  {
    // Called outside the lock, so that the function may install another.
    std::lock_guard lock(sLock);
    function = sFunction;
  }
  if (function) function(newVersion);
}

} // namespace kroui::ui
