#include <krocore/threads/MainThreadQueue.h>

#include <krocore/config/TopLevel.h>
#include <krocore/debug/Assert.h>
#include <krocore/threads/MainThread.h>

namespace krocore::threads {

MainThreadQueue& MainThreadQueue::Instance() {
  static MainThreadQueue queue;
  return queue;
}

void MainThreadQueue::Post(Task task) {
  if (!KROCORE_ASSERT(task, "An empty task cannot be posted to the main thread")) return;
  std::function<void()> wakeUp;
  {
    std::lock_guard lock(mMutex);
    mTasks.push_back(std::move(task));
    wakeUp = mWakeUp;
  }
  if (wakeUp) wakeUp();
}

std::size_t MainThreadQueue::Drain() {
  if (!KROCORE_ASSERT(CurrentThreadIsMainThread(), "The main-thread queue must be drained on the main thread"))
    return 0;
  std::deque<Task> batch;
  {
    std::lock_guard lock(mMutex);
    batch.swap(mTasks);
  }
  for (Task& task : batch) config::ExecuteTopLevelFunction(task);
  return batch.size();
}

std::size_t MainThreadQueue::PendingCount() const {
  std::lock_guard lock(mMutex);
  return mTasks.size();
}

void MainThreadQueue::SetWakeUpFunction(std::function<void()> wakeUp) {
  std::lock_guard lock(mMutex);
  mWakeUp = std::move(wakeUp);
}

void MainThreadQueue::Clear() {
  std::deque<Task> dropped;
  std::lock_guard lock(mMutex);
  dropped.swap(mTasks);
}

void PostToMainThread(Task task) { MainThreadQueue::Instance().Post(std::move(task)); }

std::size_t DrainMainThreadQueue() { return MainThreadQueue::Instance().Drain(); }

} // namespace krocore::threads
