#include <zel/appearance/ColorTableParser.h>

#include <cctype>

namespace ZEL {
namespace {

constexpr std::string_view kSpaces = " \t\n\v\f\r";
constexpr std::string_view kPrefix = "colors.";

std::string_view Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kSpaces);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kSpaces) - first + 1);
}

} // namespace

std::optional<ColorTableParser::Line> ColorTableParser::ParseLine(std::string_view line) {
  const std::size_t equals = line.find('=');
  const std::string_view key = Trim(line.substr(0, equals));
  std::string_view formula;
  if (equals != std::string_view::npos) {
    formula = line.substr(equals + 1);
    formula = formula.substr(0, formula.find('='));
  }
  Line parsed{std::string(key), NormalizeExpression(formula)};
  if (parsed.key.empty() || parsed.expression.empty() || !HasColorPrefix(parsed.key)) return std::nullopt;
  return parsed;
}

std::string ColorTableParser::NormalizeExpression(std::string_view text) {
  std::string normalized;
  normalized.reserve(text.size() + 4);
  for (const char c : text) {
    if (kSpaces.find(c) != std::string_view::npos) continue;
    normalized += c;
    if (c == ',') normalized += ' ';
  }
  return normalized;
}

bool ColorTableParser::HasColorPrefix(std::string_view key) {
  if (key.size() < kPrefix.size()) return false;
  for (std::size_t i = 0; i < kPrefix.size(); ++i) {
    if (std::tolower(static_cast<unsigned char>(key[i])) != kPrefix[i]) return false;
  }
  return true;
}

bool ColorTableParser::ForEachLine(std::string_view text,
                                   const std::function<void(std::string_view)>& perLine) {
  bool seen = false;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    if (line.size() > 1) {
      seen = true;
      perLine(line);
    }
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
  }
  return seen;
}

} // namespace ZEL
