#pragma once

#include <kroui/Export.h>
#include <kroui/drawbot/DrawTypes.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace kroui::drawbot {

enum class FontWeight : std::uint16_t { Normal = 400, Bold = 700 };

// Every font the drawbot knows, once: ROW(identifier, key, family, size in
// pixels, weight). The key constants kFont_<identifier> and the font table are
// both expanded from this list. The first row is the default UI font, which any
// key not listed falls back to. The families are those of the private font
// set the raster surface shapes with (the DejaVu faces), so that text looks
// the same on every machine.
#define KROUI_ENUMERATE_FONTS(ROW)                                                                           \
  ROW(Default, "fonts.kls.Default", "DejaVu Sans", 12.f, Normal)                                             \
  ROW(CleanTimecodeSmall, "fonts.kls.CleanTimecodeSmall", "DejaVu Sans Mono", 11.f, Normal)                  \
  ROW(CleanTimecodeMedium, "fonts.kls.CleanTimecodeMedium", "DejaVu Sans Mono", 14.f, Normal)                \
  ROW(CleanTimecodeLarge, "fonts.kls.CleanTimecodeLarge", "DejaVu Sans Mono", 20.f, Bold)

#define KROUI_FONT_KEY_CONSTANT(identifier, key, family, pixelSize, weight)                                  \
  inline constexpr const char* kFont_##identifier = key;
KROUI_ENUMERATE_FONTS(KROUI_FONT_KEY_CONSTANT)
#undef KROUI_FONT_KEY_CONSTANT

struct FontSpec {
  std::string_view key;
  std::string_view family;
  float pixelSize = 0.f;
  FontWeight weight = FontWeight::Normal;
};

KROUI_API std::span<const FontSpec> GetFontTable() noexcept;
/// The row of the font table a key names; row 0, the default font, for an unknown key.
KROUI_API std::size_t FindFontRow(const FontKey& font) noexcept;
KROUI_API const FontSpec& FindFont(const FontKey& font) noexcept;

} // namespace kroui::drawbot
