#include <kroui/utility/TimerQueue.h>

#include <krocore/debug/Assert.h>

#include <algorithm>
#include <utility>

namespace kroui::utility {

void TimerQueue::Schedule(const void* owner, std::uint64_t id, std::int64_t now, std::int64_t intervalMs,
                          bool repeating, Callback callback) {
  if (!KROCORE_ASSERT(callback, "TimerQueue: a timer needs a callback")) return;
  const std::int64_t interval = std::max<std::int64_t>(intervalMs, 1);
  Entry entry{owner, id, mNextSequence++, now + interval, interval, repeating, std::move(callback)};
  auto existing = Find(owner, id);
  if (existing != mEntries.end()) {
    *existing = std::move(entry);
  } else {
    mEntries.push_back(std::move(entry));
  }
}

bool TimerQueue::Cancel(const void* owner, std::uint64_t id) {
  auto found = Find(owner, id);
  if (found == mEntries.end()) return false;
  mEntries.erase(found);
  return true;
}

std::size_t TimerQueue::CancelOwner(const void* owner) {
  return std::erase_if(mEntries, [owner](const Entry& entry) { return entry.owner == owner; });
}

bool TimerQueue::Has(const void* owner, std::uint64_t id) const { return Find(owner, id) != mEntries.end(); }

bool TimerQueue::HasOwner(const void* owner) const {
  return std::any_of(mEntries.begin(), mEntries.end(), [owner](const Entry& entry) { return entry.owner == owner; });
}

std::optional<std::int64_t> TimerQueue::GetDeadline(const void* owner, std::uint64_t id) const {
  auto found = Find(owner, id);
  if (found == mEntries.end()) return std::nullopt;
  return found->deadline;
}

std::optional<std::int64_t> TimerQueue::NextDeadline() const {
  if (mEntries.empty()) return std::nullopt;
  const auto earliest = std::min_element(mEntries.begin(), mEntries.end(),
                                         [](const Entry& a, const Entry& b) { return a.deadline < b.deadline; });
  return earliest->deadline;
}

std::size_t TimerQueue::FireDue(std::int64_t now) {
  // Decide what is due before running anything: timers set by callbacks wait for the next call.
  std::vector<std::pair<std::int64_t, std::uint64_t>> due;
  for (const Entry& entry : mEntries) {
    if (entry.deadline <= now) due.emplace_back(entry.deadline, entry.sequence);
  }
  std::sort(due.begin(), due.end());
  std::size_t fired = 0;
  for (const auto& [deadline, sequence] : due) {
    if (FireOne(sequence, now)) ++fired;
  }
  return fired;
}

bool TimerQueue::FireOne(std::uint64_t sequence, std::int64_t now) {
  // A timer cancelled or set anew by an earlier callback has lost its sequence.
  auto found = std::find_if(mEntries.begin(), mEntries.end(),
                            [sequence](const Entry& entry) { return entry.sequence == sequence; });
  if (found == mEntries.end()) return false;
  Callback callback = found->callback;
  if (found->repeating) {
    found->deadline += found->interval;
    if (found->deadline <= now) found->deadline = now + found->interval;
  } else {
    mEntries.erase(found);
  }
  callback();
  return true;
}

std::vector<TimerQueue::Entry>::iterator TimerQueue::Find(const void* owner, std::uint64_t id) {
  return std::find_if(mEntries.begin(), mEntries.end(),
                      [owner, id](const Entry& entry) { return entry.owner == owner && entry.id == id; });
}

std::vector<TimerQueue::Entry>::const_iterator TimerQueue::Find(const void* owner, std::uint64_t id) const {
  return std::find_if(mEntries.begin(), mEntries.end(),
                      [owner, id](const Entry& entry) { return entry.owner == owner && entry.id == id; });
}

} // namespace kroui::utility
