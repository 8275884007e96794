#pragma once

#include <krocore/Export.h>

#include <compare>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace krocore::utility {

/// An interned UTF-8 string. Every distinct text exists once per process, so
/// copying is a pointer copy and equality and ordering compare identity.
/// Ordering by identity is stable within a run but not lexical: use
/// LexicalLess where text order matters.
class KROCORE_API ImmutableString {
public:
  ImmutableString() noexcept;
  ImmutableString(const char* text); // NOLINT: literals read naturally as keys
  explicit ImmutableString(std::string_view text);
  explicit ImmutableString(const std::string& text) : ImmutableString(std::string_view(text)) {}

  const char* c_str() const noexcept { return mEntry->text; }
  std::string_view View() const noexcept { return {mEntry->text, mEntry->length}; }
  std::string ToString() const { return std::string(View()); }
  std::size_t Size() const noexcept { return mEntry->length; }
  bool IsEmpty() const noexcept { return mEntry->length == 0; }
  std::size_t Hash() const noexcept { return mEntry->hash; }

  friend bool operator==(const ImmutableString& a, const ImmutableString& b) noexcept {
    return a.mEntry == b.mEntry;
  }
  friend std::strong_ordering operator<=>(const ImmutableString& a, const ImmutableString& b) noexcept {
    return std::compare_three_way{}(a.mEntry, b.mEntry);
  }

  /// Whether a text has been interned already; asking interns nothing.
  static bool IsInterned(std::string_view text);

  /// The interned record: header and text in one block, never freed.
  struct Entry {
    std::size_t hash;
    std::size_t length;
    char text[1]; // the text runs on past the struct, zero-terminated
  };

private:
  const Entry* mEntry;
};

struct LexicalLess {
  bool operator()(const ImmutableString& a, const ImmutableString& b) const noexcept {
    return a.View() < b.View();
  }
};

} // namespace krocore::utility

template <>
struct std::hash<krocore::utility::ImmutableString> {
  std::size_t operator()(const krocore::utility::ImmutableString& s) const noexcept { return s.Hash(); }
};
