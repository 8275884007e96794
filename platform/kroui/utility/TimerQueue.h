#pragma once

#include <kroui/Export.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace kroui::utility {

/// Timers on a clock of milliseconds that the caller reads (the event loop's):
/// each is named by an owner and an identifier, so that a node's timer 3 and
/// another node's timer 3 are two timers, and setting a timer again replaces it.
///
/// FireDue(now) runs what is due, earliest deadline first; timers due at the
/// same moment fire in the order they were set. A repeating timer fires at
/// most once per call and is set again one interval after its deadline, or
/// one interval from now when it fell behind, so a stalled loop does not
/// burst. Callbacks may set and cancel timers, their own included. UI thread only.
class KROUI_API TimerQueue {
public:
  using Callback = std::function<void()>;

  void Schedule(const void* owner, std::uint64_t id, std::int64_t now, std::int64_t intervalMs, bool repeating,
                Callback callback);
  bool Cancel(const void* owner, std::uint64_t id);
  /// Cancels every timer of `owner`; returns how many.
  std::size_t CancelOwner(const void* owner);
  bool Has(const void* owner, std::uint64_t id) const;
  bool HasOwner(const void* owner) const;
  std::optional<std::int64_t> GetDeadline(const void* owner, std::uint64_t id) const;

  /// The earliest deadline, if any timer is set.
  std::optional<std::int64_t> NextDeadline() const;
  std::size_t FireDue(std::int64_t now);
  std::size_t GetCount() const noexcept { return mEntries.size(); }
  void Clear() { mEntries.clear(); }

private:
  struct Entry {
    const void* owner;
    std::uint64_t id;
    std::uint64_t sequence;
    std::int64_t deadline;
    std::int64_t interval;
    bool repeating;
    Callback callback;
  };

  std::vector<Entry>::iterator Find(const void* owner, std::uint64_t id);
  std::vector<Entry>::const_iterator Find(const void* owner, std::uint64_t id) const;
  bool FireOne(std::uint64_t sequence, std::int64_t now);

  std::vector<Entry> mEntries;
  std::uint64_t mNextSequence = 1;
};

} // namespace kroui::utility
