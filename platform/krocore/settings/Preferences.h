#pragma once

#include <krocore/settings/ValueStore.h>

namespace krocore::settings {

/// The user's preferences ("FE.Prefs.Shortcuts.Filename").
class KROCORE_API Preferences : public ValueStore {
public:
  static Preferences& Instance();
};

} // namespace krocore::settings
