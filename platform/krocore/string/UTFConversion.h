#pragma once

#include <krocore/Export.h>

#include <string>
#include <string_view>

namespace krocore::string {

/// The character put in place of every invalid sequence.
inline constexpr char32_t kReplacementCharacter = 0xFFFD;

/// Conversions between the encodings the platform meets. None of them fails:
/// an invalid sequence (a lone surrogate, an overlong or truncated UTF-8
/// sequence, a value past U+10FFFF) becomes one U+FFFD for each maximal
/// invalid part, so that text from outside can always be shown.
KROCORE_API std::string UTF16to8(std::u16string_view text);
KROCORE_API std::u16string UTF8to16(std::string_view text);
KROCORE_API std::u32string UTF8to32(std::string_view text);
KROCORE_API std::string UTF32to8(std::u32string_view text);

/// Decodes the code point at `position` and moves `position` past it
/// (past the maximal invalid part, answering U+FFFD, when it is invalid).
KROCORE_API char32_t DecodeUTF8(std::string_view text, std::size_t& position) noexcept;

/// Appends the UTF-8 form of a code point; an invalid one appends U+FFFD.
KROCORE_API void AppendUTF8(std::string& out, char32_t codePoint);

} // namespace krocore::string
