#include <krocore/settings/Preferences.h>

namespace krocore::settings {

Preferences& Preferences::Instance() {
  static Preferences preferences;
  return preferences;
}

} // namespace krocore::settings
