#pragma once

#include <zel/Export.h>

#include <krocore/utility/Result.h>

#include <string_view>

namespace ZEL {

/// The theme files and colour tables this library carries as resources of its
/// own module, and bringing the theme files into the platform theme.
class ZEL_API ThemeResources {
public:
  /// The module name under which the build files this library's resources.
  static constexpr std::string_view kModule = "zel";
  static constexpr std::u16string_view kThemeType = u"xml";
  static constexpr std::u16string_view kTableType = u"table";

  /// The older numbered palette (IDs 0 to 384), the current palette (5000000
  /// to 5000120), and its high-contrast variant that does not follow the brightness.
  static constexpr std::u16string_view kLegacyPalette = u"KROCOLORTHEMESV2";
  static constexpr std::u16string_view kCurrentPalette = u"KROCOLORTHEMESV5";
  static constexpr std::u16string_view kHighContrastPalette = u"HIGHCONTRASTCOLORTHEMEV5";

  enum class Variant { Standard, HighContrast };

  /// Loads the legacy and the current palette into the platform theme, and
  /// for HighContrast the high-contrast palette over them. Each file loaded
  /// notifies a theme change.
  static krocore::utility::Result<void> Install(Variant variant = Variant::Standard);

  ThemeResources() = delete;
};

} // namespace ZEL
