#pragma once

#include <zel/Export.h>

#include <initializer_list>
#include <string>
#include <string_view>

namespace ZEL {

/// The text of a localization key "$$$/Vantor/Libraries/ZEL/Name=Default
/// text": the English text after the first '='. Every user-visible text goes
/// through here, so that translations have one place to come in.
ZEL_API std::string Localize(std::string_view key);

/// Replaces @0, @1, ... in a template with the given texts, in one pass, so
/// that a text that itself holds "@1" is left alone.
ZEL_API std::string ReplacePlaceholders(std::string_view templateText, std::initializer_list<std::string_view> texts);

} // namespace ZEL
