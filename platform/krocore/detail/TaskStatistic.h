#pragma once

#include <krocore/Export.h>

#include <cstdint>

namespace krocore::detail {

/// Counts tasks as the host runs them, for the diagnostics console. Making
/// one records a task: whether the user started it, and whether it may
/// change the document.
class KROCORE_API TaskStatistic {
public:
  TaskStatistic(bool isUserInitiated, bool isModifying) noexcept;

  struct Counts {
    std::uint64_t total = 0;
    std::uint64_t userInitiated = 0;
    std::uint64_t modifying = 0;
  };
  static Counts GetCounts() noexcept;
  static void ResetCounts() noexcept;
};

} // namespace krocore::detail
