#pragma once

#include <kls/Export.h>

namespace KLS {

/// Brings the platform foundation up and down around the life of a host:
/// the calling thread becomes the UI thread, and at the last Terminate the
/// work still queued for the UI thread is dropped, since the objects it
/// refers to are going away. Calls nest; only the outermost pair acts.
class KLS_API Foundation {
public:
  static void Initialize();
  static void Terminate();
  static bool IsInitialized() noexcept;
};

} // namespace KLS
