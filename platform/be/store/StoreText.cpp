#include <be/store/StoreTextImpl.h>
#include <krocore/string/UTFConversion.h>

namespace BE::detail {
namespace {

constexpr std::string_view kEncodedReplacement = "\xEF\xBF\xBD";

// The code point at `position`, moving past it; U+FFFD for a NUL or for an
// invalid sequence, but not for a U+FFFD that the text really holds.
bool NextIsValid(std::string_view text, std::size_t& position) {
  const auto byte = static_cast<unsigned char>(text[position]);
  if (byte != 0 && byte < 0x80) {
    ++position;
    return true;
  }
  const std::size_t start = position;
  const char32_t codePoint = krocore::string::DecodeUTF8(text, position);
  if (codePoint == 0) return false;
  return codePoint != krocore::string::kReplacementCharacter ||
         text.substr(start, position - start) == kEncodedReplacement;
}

} // namespace

bool IsStoreText(std::string_view text) noexcept {
  for (std::size_t position = 0; position < text.size();)
    if (!NextIsValid(text, position)) return false;
  return true;
}

std::string RepairedStoreText(std::string_view text) {
  std::string repaired;
  repaired.reserve(text.size());
  for (std::size_t position = 0; position < text.size();) {
    const std::size_t start = position;
    if (NextIsValid(text, position))
      repaired.append(text.substr(start, position - start));
    else
      repaired.append(kEncodedReplacement);
  }
  return repaired;
}

} // namespace BE::detail
