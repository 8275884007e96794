#pragma once

#include <zel/Export.h>

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace ZEL {

/// The text of the colour tables: one "key = formula" per line, lines ending
/// at "\n", blank lines between groups.
///
///   colors.kls.BevelDark   = $COLOR(colors.kls.base,colors.kls.black, 50%)
///   --> key "colors.kls.BevelDark", formula "$COLOR(colors.kls.base, colors.kls.black, 50%)"
class ZEL_API ColorTableParser {
public:
  struct Line {
    std::string key;
    std::string expression;

    bool operator==(const Line&) const = default;
  };

  /// The key and normalised formula of a line; nothing for a line that a table
  /// ignores: no key, no formula, or a key that does not begin with "colors."
  /// in any letter case. Only the text up to a second "=" counts.
  static std::optional<Line> ParseLine(std::string_view line);

  /// A formula without white space and with one space after each ",".
  static std::string NormalizeExpression(std::string_view text);

  static bool HasColorPrefix(std::string_view key);

  /// Calls back for each line of a table longer than one character (so that
  /// an empty line, or one of just "\r", is passed over); returns whether
  /// there was any.
  static bool ForEachLine(std::string_view text, const std::function<void(std::string_view)>& perLine);
};

} // namespace ZEL
