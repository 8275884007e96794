#include <krocore/settings/Settings.h>

namespace krocore::settings {

Settings& Settings::Instance() {
  static Settings settings;
  return settings;
}

} // namespace krocore::settings
