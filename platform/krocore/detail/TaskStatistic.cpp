#include <krocore/detail/TaskStatistic.h>

#include <atomic>

namespace krocore::detail {
namespace {
std::atomic<std::uint64_t> sTotal{0};
std::atomic<std::uint64_t> sUserInitiated{0};
std::atomic<std::uint64_t> sModifying{0};
} // namespace

TaskStatistic::TaskStatistic(bool isUserInitiated, bool isModifying) noexcept {
  sTotal.fetch_add(1, std::memory_order_relaxed);
  if (isUserInitiated) sUserInitiated.fetch_add(1, std::memory_order_relaxed);
  if (isModifying) sModifying.fetch_add(1, std::memory_order_relaxed);
}

TaskStatistic::Counts TaskStatistic::GetCounts() noexcept {
  return {sTotal.load(), sUserInitiated.load(), sModifying.load()};
}

void TaskStatistic::ResetCounts() noexcept {
  sTotal = 0;
  sUserInitiated = 0;
  sModifying = 0;
}

} // namespace krocore::detail
