#pragma once

#include <zel/Export.h>

#include <kls/ParamColor.h>
#include <krocore/Forward.h>
#include <krocore/utility/ImmutableString.h>
#include <kroui/drawbot/DrawTypes.h>

#include <iosfwd>
#include <string>
#include <string_view>

namespace ZEL {

/// The framework's registry of named colours. A key carries a colour formula
/// that is evaluated against the platform theme when first asked for, and the
/// answer is kept until the theme changes:
///
///   "colors.kls.Formula.A = $COLOR(colors.kls.base, colors.kls.white, 80%)"
///
///   GetColor(key) --cached--> colour
///                 --else----> evaluate the formula; each key it names goes
///                             through GetColor too, so is cached on its own
///   theme change (any thread) --> cache emptied --> ThemeChangedMessage on
///                                 "zel.theme" (queued when off the main thread)
///
/// The formulas come from the tables "zelcolors" and then "appcolors" that the
/// library carries; a host adds or replaces single entries with SetColor.
/// Lookups belong on the main thread. A table with a cycle is reported once
/// and its colours answer red instead of recursing.
class ZEL_API ColorManager {
public:
  using Color = KLS::ParamColor<unsigned char>;
  using Key = krocore::utility::ImmutableString;

  /// What is registered for one key: the key itself and its normalised formula.
  struct ColorInfo {
    Key name;
    std::string expression;

    bool operator==(const ColorInfo&) const = default;
  };

  ColorManager() = delete;

  /// Registers "zelcolors", then "appcolors", and installs the theme-changed function.
  static void Initialize();
  /// Releases the theme-changed functions and empties the cache; the registrations stay.
  static void Terminate();

  /// Registers every line of the "table" resource of that name in the module
  /// (a module name as the build's resources use, "zel"), then notifies a theme change.
  static void RegisterColors(std::string_view module, std::string_view resourceName);
  /// Inserts or replaces a record. Neither flushes nor notifies: a caller that
  /// changes a key already asked for calls FlushCache.
  static void RegisterColor(const Key& key, const ColorInfo& info);
  /// Registers one table line, key "=" formula, then notifies a theme change.
  static void SetColor(std::string_view line);

  static Color GetColor(const Key& key);
  static kroui::drawbot::ColorRGBA GetColorRGBA(const Key& key);

  /// The theme brightness from 0 to 100.
  static unsigned GetBrightness();
  /// Whether the theme is dark, so that colours written for a light UI are inverted.
  static bool IsReversingColors();

  /// a blended towards b by t (0 gives a, 1 gives b).
  static Color MakeColor(const Color& a, const Color& b, double t);
  /// a scaled for the brightness, then blended towards b by t.
  static Color MakeColor(const Color& a, const Color& b, double t, unsigned brightness);
  /// c scaled for a brightness from 0 to 100 (factor 0.35 to 1.25). The
  /// percent is accepted for the formulas' sake and has no effect.
  static Color MakeColor(const Color& c, unsigned brightness, unsigned percent);
  static Color MakeColor(const Key& a, const Key& b, double t);
  static Color MakeColor(const Key& a, const Key& b, double t, unsigned brightness);
  /// MakeColor at the current brightness.
  static Color MakeAdjustedColor(const Color& a, const Color& b, double t);
  static Color MakeAdjustedColor(const Key& a, const Key& b, double t);

  static void FlushCache();

  /// Writes the registrations as a string-table block that a resource compiler accepts.
  static void DumpColors(std::ostream& out);
  /// Writes one line per registration: the key, then its formula.
  static void ListColors(krocore::UTF16OutputStream& out);
};

} // namespace ZEL
