#pragma once

#include <krocore/messaging/Message.h>
#include <krocore/utility/ImmutableString.h>

namespace ZEL {

/// Broadcast on kStation_ThemeChanged after the theme changed and the colour
/// cache was emptied: colours asked for from now on are the new ones.
class ThemeChangedMessage : public krocore::messaging::Message {
  KROCORE_MESSAGE_CLASS(ThemeChangedMessage, "zel.ThemeChangedMessage")
};

/// "zel.theme", where the colour registry announces theme changes.
inline const krocore::utility::ImmutableString kStation_ThemeChanged{"zel.theme"};

} // namespace ZEL
