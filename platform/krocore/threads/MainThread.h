#pragma once

#include <krocore/Export.h>

#include <thread>

namespace krocore::threads {

/// The UI thread is the one that loaded this library, unless the host names
/// another before it starts its event loop.
KROCORE_API bool CurrentThreadIsMainThread() noexcept;
KROCORE_API void DesignateCurrentThreadAsMainThread() noexcept;
KROCORE_API std::thread::id GetMainThreadID() noexcept;

} // namespace krocore::threads
