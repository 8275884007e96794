#pragma once

// The zel_bench executable replaces the global operator new and delete once,
// in ShortcutDispatchBench.cpp; every benchmark of the executable reads the
// same counters through this header.

#include <atomic>

namespace ZELBench {

/// Allocations made since the program started.
extern std::atomic<long long> sAllocations;
/// Bytes the heap holds for the program now, as the allocator sized each block.
extern std::atomic<long long> sLiveBytes;

} // namespace ZELBench
