#pragma once

// Private to the property store: the one rule for the texts it keeps. Keys
// and strings are UTF-8 without NUL, because a file holds nothing else: XML
// cannot carry a NUL, and text that is not UTF-8 would not read back as text.

#include <string>
#include <string_view>

namespace BE::detail {

bool IsStoreText(std::string_view text) noexcept;

/// The text with U+FFFD in place of every NUL and every invalid sequence.
std::string RepairedStoreText(std::string_view text);

} // namespace BE::detail
