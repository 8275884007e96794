#pragma once

// Private to the sources of TimeDisplay: what a user typed, reduced to the
// few ASCII symbols a time is written with.

#include <cstddef>
#include <string>
#include <string_view>

namespace kromediatypes::detail {

/// Reads typed UTF-8 text. Full-width digits, signs and separators and the
/// minus sign U+2212 become their ASCII forms; spaces (also U+3000) around the
/// entry are dropped. Anything else ends the reading with a message that
/// names the character.
class TypedSymbols {
public:
  /// More characters than any time needs; a longer entry is refused before
  /// it costs anything.
  static constexpr std::size_t kMaxLength = 64;

  TypedSymbols() = default;
  // The view points into the object, or into the typed text when that needed no mapping.
  TypedSymbols(const TypedSymbols&) = delete;
  TypedSymbols& operator=(const TypedSymbols&) = delete;

  /// False when the text cannot be a time; GetProblem() then says why.
  bool Read(std::string_view typed) noexcept;

  std::string_view View() const noexcept { return mView; }
  std::string GetProblem() const;

private:
  bool Fail(const char* problem) noexcept;

  char mSymbols[kMaxLength];
  std::string_view mView;
  const char* mProblem = nullptr;
  std::string_view mUnexpected; // a character that cannot be part of a time, as typed
};

} // namespace kromediatypes::detail
