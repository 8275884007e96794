#pragma once

#include <zel/Export.h>

namespace ZEL {

/// The host's answer to which context a switchable tab view shows when it
/// has nothing else to show.
class ZEL_API WindowContextHandler {
public:
  virtual unsigned int GetEmptyContextID() = 0;
  virtual ~WindowContextHandler() = default;
};

} // namespace ZEL
