#include <krocore/threads/MainThread.h>

#include <atomic>

namespace krocore::threads {
namespace {

std::atomic<std::thread::id>& MainThreadID() {
  static std::atomic<std::thread::id> id{std::this_thread::get_id()};
  return id;
}

// Touch the identity while the library loads, on the loading thread.
[[maybe_unused]] const bool kCapturedAtLoad = (MainThreadID(), true);

} // namespace

bool CurrentThreadIsMainThread() noexcept { return MainThreadID().load(std::memory_order_relaxed) == std::this_thread::get_id(); }

void DesignateCurrentThreadAsMainThread() noexcept { MainThreadID().store(std::this_thread::get_id()); }

std::thread::id GetMainThreadID() noexcept { return MainThreadID().load(); }

} // namespace krocore::threads
