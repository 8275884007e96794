#include <krocore/string/UTFConversion.h>

namespace krocore::string {
namespace {

bool IsSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }
bool IsValidScalar(char32_t c) { return c <= 0x10FFFF && !IsSurrogate(c); }
bool IsContinuation(unsigned char c) { return (c & 0xC0) == 0x80; }

// The allowed range of the second byte for each lead byte, which rejects
// overlong forms, surrogates and values past U+10FFFF at the earliest byte.
struct LeadInfo {
  int length;
  unsigned char secondLow;
  unsigned char secondHigh;
};

LeadInfo InfoOfLead(unsigned char lead) {
  if (lead >= 0xC2 && lead <= 0xDF) return {2, 0x80, 0xBF};
  if (lead == 0xE0) return {3, 0xA0, 0xBF};
  if (lead == 0xED) return {3, 0x80, 0x9F};
  if (lead >= 0xE1 && lead <= 0xEF) return {3, 0x80, 0xBF};
  if (lead == 0xF0) return {4, 0x90, 0xBF};
  if (lead >= 0xF1 && lead <= 0xF3) return {4, 0x80, 0xBF};
  if (lead == 0xF4) return {4, 0x80, 0x8F};
  return {0, 0, 0};
}

void AppendUTF16(std::u16string& out, char32_t c) {
  if (c >= 0x10000) {
    c -= 0x10000;
    out.push_back(static_cast<char16_t>(0xD800 + (c >> 10)));
    out.push_back(static_cast<char16_t>(0xDC00 + (c & 0x3FF)));
  } else {
    out.push_back(static_cast<char16_t>(c));
  }
}

} // namespace

char32_t DecodeUTF8(std::string_view text, std::size_t& position) noexcept {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(position);
  if (lead < 0x80) {
    ++position;
    return lead;
  }
  const LeadInfo info = InfoOfLead(lead);
  if (info.length == 0) {
    ++position;
    return kReplacementCharacter;
  }
  char32_t value = lead & (0xFF >> (info.length + 1));
  std::size_t i = position + 1;
  for (int k = 1; k < info.length; ++k, ++i) {
    const bool inRange = i < text.size() && (k == 1 ? byte(i) >= info.secondLow && byte(i) <= info.secondHigh
                                                      : IsContinuation(byte(i)));
    if (!inRange) {
      position = i; // the maximal invalid part ends before this byte
      return kReplacementCharacter;
    }
    value = (value << 6) | (byte(i) & 0x3F);
  }
  position = i;
  return value;
}

void AppendUTF8(std::string& out, char32_t c) {
  if (!IsValidScalar(c)) c = kReplacementCharacter;
  if (c < 0x80) {
    out.push_back(static_cast<char>(c));
  } else if (c < 0x800) {
    out.push_back(static_cast<char>(0xC0 | (c >> 6)));
    out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
  } else if (c < 0x10000) {
    out.push_back(static_cast<char>(0xE0 | (c >> 12)));
    out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
  } else {
    out.push_back(static_cast<char>(0xF0 | (c >> 18)));
    out.push_back(static_cast<char>(0x80 | ((c >> 12) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
  }
}

std::string UTF16to8(std::u16string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t c = text[i];
    if (c >= 0xD800 && c <= 0xDBFF && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] <= 0xDFFF) {
      c = 0x10000 + ((c - 0xD800) << 10) + (text[i + 1] - 0xDC00);
      ++i;
    }
    AppendUTF8(out, c); // a lone surrogate is not a scalar value: U+FFFD
  }
  return out;
}

std::u16string UTF8to16(std::string_view text) {
  std::u16string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) AppendUTF16(out, DecodeUTF8(text, i));
  return out;
}

std::u32string UTF8to32(std::string_view text) {
  std::u32string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) out.push_back(DecodeUTF8(text, i));
  return out;
}

std::string UTF32to8(std::u32string_view text) {
  std::string out;
  out.reserve(text.size());
  for (char32_t c : text) AppendUTF8(out, c);
  return out;
}

} // namespace krocore::string
