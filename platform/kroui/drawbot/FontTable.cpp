#include <kroui/drawbot/FontTable.h>

#include <array>

namespace kroui::drawbot {
namespace {

using krocore::utility::ImmutableString;

#define KROUI_FONT_ROW(identifier, key, family, pixelSize, weight)                                           \
  FontSpec{key, family, pixelSize, FontWeight::weight},
constexpr FontSpec kFonts[] = {KROUI_ENUMERATE_FONTS(KROUI_FONT_ROW)};
#undef KROUI_FONT_ROW

constexpr std::size_t kFontCount = std::size(kFonts);

// The keys interned once, so that finding a row compares identities, not text:
// every label drawn asks.
const std::array<ImmutableString, kFontCount>& InternedKeys() {
  static const std::array<ImmutableString, kFontCount> sKeys = [] {
    std::array<ImmutableString, kFontCount> keys;
    for (std::size_t row = 0; row < kFontCount; ++row) keys[row] = ImmutableString(kFonts[row].key);
    return keys;
  }();
  return sKeys;
}

} // namespace

std::span<const FontSpec> GetFontTable() noexcept { return kFonts; }

std::size_t FindFontRow(const FontKey& font) noexcept {
  const auto& keys = InternedKeys();
  for (std::size_t row = 0; row < kFontCount; ++row) {
    if (keys[row] == font.key) return row;
  }
  return 0;
}

const FontSpec& FindFont(const FontKey& font) noexcept { return kFonts[FindFontRow(font)]; }

} // namespace kroui::drawbot
