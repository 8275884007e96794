#include <kls/Foundation.h>

#include <krocore/debug/Assert.h>
#include <krocore/threads/MainThread.h>
#include <krocore/threads/MainThreadQueue.h>

#include <atomic>

namespace KLS {
namespace {
std::atomic<int> sInitializeCount{0};
} // namespace

void Foundation::Initialize() {
  if (sInitializeCount.fetch_add(1) == 0) krocore::threads::DesignateCurrentThreadAsMainThread();
}

void Foundation::Terminate() {
  int count = sInitializeCount.load();
  do {
    if (!KROCORE_ASSERT(count > 0, "Foundation has not been initialized")) return;
  } while (!sInitializeCount.compare_exchange_weak(count, count - 1));
  if (count == 1) krocore::threads::MainThreadQueue::Instance().Clear();
}

bool Foundation::IsInitialized() noexcept { return sInitializeCount.load() > 0; }

} // namespace KLS
