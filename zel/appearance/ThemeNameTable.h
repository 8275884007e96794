#pragma once

#include <zel/Export.h>
#include <zel/appearance/ColorManager.h>

#include <kroui/theme/ThemeDocument.h>

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace ZEL {

/// The theme colour names that formulas use ("$KRO(kColor_Focus)") and the
/// platform colour IDs they stand for. Built once, on first use, from one
/// list: fixed IDs of the current palette, the roles of the default skin set
/// (asked of the platform when the table is built), and the small IDs of the
/// older numbered palette. A name listed twice takes its later ID.
class ZEL_API ThemeNameTable {
public:
  static const ThemeNameTable& Instance();

  std::optional<kroui::ui::ColorID> Find(std::string_view name) const;
  const std::map<std::string, kroui::ui::ColorID, std::less<>>& GetEntries() const noexcept {
    return mEntries;
  }

  /// A theme colour name's colour: through the skin's own names from skin
  /// version 7 on, else through this table and the platform theme. Red for a
  /// name that neither knows.
  static ColorManager::Color Resolve(std::string_view name);

private:
  ThemeNameTable();

  std::map<std::string, kroui::ui::ColorID, std::less<>> mEntries;
};

} // namespace ZEL
