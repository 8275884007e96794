#pragma once

#include <krocore/settings/ValueStore.h>

namespace krocore::settings {

/// The platform's settings: tuning values that the host and the framework
/// read by name ("TimeBar.TickMarks.Max").
class KROCORE_API Settings : public ValueStore {
public:
  static Settings& Instance();
};

} // namespace krocore::settings
