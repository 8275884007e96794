#pragma once

#include <krocore/Export.h>

#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>

namespace krocore::threads {

using Task = std::function<void()>;

/// The queue of work for the UI thread. Any thread posts; the event loop
/// (or a test, explicitly) drains it on the main thread, in posting order.
///
///   worker thread --Post--> [ task | task | task ] --Drain (main thread)--> run
///
/// A task that throws is contained and reported; the tasks after it still run.
class KROCORE_API MainThreadQueue {
public:
  static MainThreadQueue& Instance();

  void Post(Task task);

  /// Runs the tasks that were queued when the call began; tasks they post
  /// wait for the next drain, so a task that re-posts itself cannot starve
  /// the event loop. Returns how many ran. Main thread only.
  std::size_t Drain();

  std::size_t PendingCount() const;

  /// Called after every post, from the posting thread, so that an event loop
  /// waiting for input can wake up. Empty to remove.
  void SetWakeUpFunction(std::function<void()> wakeUp);

  /// Drops queued tasks without running them (shut-down, test tear-down).
  void Clear();

private:
  MainThreadQueue() = default;

  mutable std::mutex mMutex;
  std::deque<Task> mTasks;
  std::function<void()> mWakeUp;
};

/// Shorthands for MainThreadQueue::Instance().
KROCORE_API void PostToMainThread(Task task);
KROCORE_API std::size_t DrainMainThreadQueue();

} // namespace krocore::threads
