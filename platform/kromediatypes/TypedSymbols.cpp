#include <kromediatypes/TypedSymbolsImpl.h>

#include <cstdint>

namespace kromediatypes::detail {

namespace {

constexpr char32_t kNotUtf8 = 0xFFFFFFFF;

bool IsContinuation(unsigned char byte) noexcept {
  return (byte & 0xC0) == 0x80;
}

struct CodePoint {
  char32_t value;
  std::size_t length;
};

/// The code point that starts `text` and its length in bytes; kNotUtf8 for
/// bytes that are not well-formed UTF-8 (overlong forms and surrogates included).
CodePoint DecodeOne(std::string_view text) noexcept {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(0);
  std::size_t length = 1;
  unsigned char low = 0x80;
  unsigned char high = 0xBF;
  if (lead < 0x80) {
    return {lead, 1};
  } else if (lead >= 0xC2 && lead <= 0xDF) {
    length = 2;
  } else if (lead >= 0xE0 && lead <= 0xEF) {
    length = 3;
    if (lead == 0xE0) low = 0xA0;
    if (lead == 0xED) high = 0x9F;
  } else if (lead >= 0xF0 && lead <= 0xF4) {
    length = 4;
    if (lead == 0xF0) low = 0x90;
    if (lead == 0xF4) high = 0x8F;
  } else {
    return {kNotUtf8, 1};
  }
  if (text.size() < length || byte(1) < low || byte(1) > high) return {kNotUtf8, 1};
  char32_t point = lead & (0xFF >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    if (!IsContinuation(byte(i))) return {kNotUtf8, 1};
    point = (point << 6) | (byte(i) & 0x3F);
  }
  return {point, length};
}

/// The ASCII symbol a code point stands for in a time, ' ' for a space, or 0.
constexpr char SymbolOf(char32_t point) noexcept {
  constexpr char32_t kFullWidthOffset = 0xFF00 - 0x20;
  if (point >= 0xFF0B && point <= 0xFF1B) point -= kFullWidthOffset;
  if (point >= '0' && point <= '9') return static_cast<char>(point);
  switch (point) {
  case '+':
  case '-':
  case '.':
  case ':':
  case ';': return static_cast<char>(point);
  case 0x2212: return '-';
  case ' ':
  case '\t':
  case 0x00A0:
  case 0x3000: return ' ';
  default: return 0;
  }
}

struct AsciiSymbols {
  char symbols[128];
};

constexpr AsciiSymbols kAscii = [] {
  AsciiSymbols table{};
  for (char32_t point = 0; point < 128; ++point) table.symbols[point] = SymbolOf(point);
  return table;
}();

/// Digits, signs and separators only: nothing to map, nothing to trim.
bool IsPlain(std::string_view typed) noexcept {
  const char* const end = typed.data() + typed.size();
  for (const char* at = typed.data(); at != end; ++at) {
    const auto code = static_cast<unsigned char>(*at);
    if (code >= 0x80 || kAscii.symbols[code] == 0 || code == ' ') return false;
  }
  return true;
}

bool IsControl(char32_t point) noexcept {
  return point < 0x20 || (point >= 0x7F && point < 0xA0);
}

} // namespace

bool TypedSymbols::Fail(const char* problem) noexcept {
  mProblem = problem;
  return false;
}

bool TypedSymbols::Read(std::string_view typed) noexcept {
  // Most entries are plain ASCII symbols already: read those in place.
  if (typed.size() <= kMaxLength && IsPlain(typed)) {
    mView = typed;
    return true;
  }
  // Local cursors rather than members: this loop runs for every keystroke.
  char* const symbols = mSymbols;
  std::size_t size = 0;
  const char* const end = typed.data() + typed.size();
  for (const char* at = typed.data(); at != end;) {
    // Typed times are nearly always ASCII: look the byte up, decode only the rest.
    const auto byte = static_cast<unsigned char>(*at);
    const CodePoint point = byte < 0x80 ? CodePoint{byte, 1} : DecodeOne({at, static_cast<std::size_t>(end - at)});
    if (point.value == kNotUtf8) return Fail("The text is not valid UTF-8.");
    const char symbol = byte < 0x80 ? kAscii.symbols[byte] : SymbolOf(point.value);
    if (symbol == 0 && IsControl(point.value))
      return Fail("The text holds a control character, which cannot be part of a time.");
    if (symbol == 0) {
      mUnexpected = std::string_view(at, point.length);
      return Fail(nullptr);
    }
    if (size == kMaxLength) return Fail("The text is too long to be a time.");
    symbols[size++] = symbol;
    at += point.length;
  }
  std::size_t first = 0;
  while (first < size && symbols[first] == ' ') ++first;
  while (size > first && symbols[size - 1] == ' ') --size;
  mView = std::string_view(symbols + first, size - first);
  if (mView.find(' ') != std::string_view::npos) return Fail("A time cannot have spaces inside it.");
  return true;
}

std::string TypedSymbols::GetProblem() const {
  if (mProblem) return mProblem;
  // The character as typed: full-width forms are mapped, a full-width comma is still refused.
  return "\"" + std::string(mUnexpected) + "\" cannot be part of a time.";
}

} // namespace kromediatypes::detail
