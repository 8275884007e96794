#include <zel/appearance/ColorExpression.h>

#include <limits>

namespace ZEL {
namespace {

bool IsSpace(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r'; }

int DigitValue(char c, unsigned base) {
  int value = -1;
  if (c >= '0' && c <= '9')
    value = c - '0';
  else if (c >= 'a' && c <= 'f')
    value = c - 'a' + 10;
  else if (c >= 'A' && c <= 'F')
    value = c - 'A' + 10;
  return value < static_cast<int>(base) ? value : -1;
}

// Digits up to the first other character; nothing when there is no digit or
// the number passes the limit.
bool ReadDigits(std::string_view text, unsigned base, std::uint64_t limit, std::uint64_t& value) {
  value = 0;
  std::size_t count = 0;
  for (; count < text.size(); ++count) {
    const int digit = DigitValue(text[count], base);
    if (digit < 0) break;
    value = value * base + static_cast<unsigned>(digit);
    if (value > limit) return false;
  }
  return count > 0;
}

bool IsHex(std::string_view text) {
  return text.size() >= 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
}

} // namespace

ColorExpression::ColorExpression(std::string_view text) {
  const std::size_t dollar = text.find('$');
  if (dollar == std::string_view::npos) return;
  mText.reserve(text.size() - dollar);
  for (const char c : text.substr(dollar + 1)) {
    if (c == ')') break;
    if (!IsSpace(c)) mText += c;
  }
  const std::string_view compact = mText;
  const std::size_t open = compact.find('(');
  mFunction = compact.substr(0, open);
  if (open == std::string_view::npos) return;
  std::string_view rest = compact.substr(open + 1);
  while (mCount < kMaxArguments) {
    const std::size_t comma = rest.find(',');
    mArguments[mCount++] = rest.substr(0, comma);
    if (comma == std::string_view::npos) break;
    rest.remove_prefix(comma + 1);
  }
}

std::int32_t ColorExpression::ReadInteger(std::string_view text) noexcept {
  std::uint64_t value = 0;
  if (IsHex(text))
    return ReadDigits(text.substr(2), 16, std::numeric_limits<std::uint32_t>::max(), value)
               ? static_cast<std::int32_t>(static_cast<std::uint32_t>(value))
               : 0;
  const bool negative = text.starts_with('-');
  if (negative) text.remove_prefix(1);
  const std::uint64_t limit = negative ? std::uint64_t{1} << 31 : (std::uint64_t{1} << 31) - 1;
  if (!ReadDigits(text, 10, limit, value)) return 0;
  return negative ? static_cast<std::int32_t>(-static_cast<std::int64_t>(value))
                  : static_cast<std::int32_t>(value);
}

std::uint32_t ColorExpression::ReadPercent(std::string_view text) noexcept {
  const bool hex = IsHex(text);
  std::uint64_t value = 0;
  return ReadDigits(hex ? text.substr(2) : text, hex ? 16 : 10, std::numeric_limits<std::uint32_t>::max(),
                    value)
             ? static_cast<std::uint32_t>(value)
             : 0;
}

unsigned char ColorExpression::ReadChannel(std::string_view text) noexcept {
  return static_cast<unsigned char>(static_cast<std::uint32_t>(ReadInteger(text)) & 0xFFu);
}

} // namespace ZEL
