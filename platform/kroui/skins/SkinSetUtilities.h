#pragma once

#include <kroui/Export.h>
#include <kroui/drawbot/DrawTypes.h>
#include <kroui/theme/ThemeDocument.h>

#include <optional>
#include <string_view>

namespace kroui::skins::utilities {

// The theme colour IDs of the default skin set's roles, so that a caller asks
// for "the focus colour" without knowing the palette's numbering.
KROUI_API ui::ColorID GetApplicationBackgroundColorID() noexcept;
KROUI_API ui::ColorID GetContentBackgroundColorID() noexcept;
KROUI_API ui::ColorID GetFocusColorID() noexcept;
KROUI_API ui::ColorID GetDividerColorID() noexcept;
KROUI_API ui::ColorID GetDefaultTextColorID() noexcept;

/// A skin's own name-to-colour table, used from skin version 7 on: a name that
/// the loaded theme files give a colour ID ("kColor_Focus"), at the current
/// brightness. Nothing for a name the files do not know.
KROUI_API std::optional<drawbot::ColorRGBA> GetColorByName(std::string_view name);

} // namespace kroui::skins::utilities
