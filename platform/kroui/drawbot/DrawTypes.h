#pragma once

#include <kroui/Export.h>

#include <krocore/utility/ImmutableString.h>

#include <cstdint>
#include <iosfwd>
#include <optional>

namespace kroui::drawbot {

/// A colour with float channels from 0 to 1, not premultiplied.
struct ColorRGBA {
  float red = 0.f;
  float green = 0.f;
  float blue = 0.f;
  float alpha = 1.f;

  constexpr bool operator==(const ColorRGBA&) const noexcept = default;
};

/// A colour that may be absent ("no background is filled").
using ColorRGBAOptional = std::optional<ColorRGBA>;

struct PointF {
  float x = 0.f;
  float y = 0.f;
  constexpr bool operator==(const PointF&) const noexcept = default;
};

/// A rectangle as origin and size, in the units of the current transform.
struct RectF {
  float x = 0.f;
  float y = 0.f;
  float width = 0.f;
  float height = 0.f;
  constexpr bool operator==(const RectF&) const noexcept = default;
};

enum class HorizontalAlignment : std::uint8_t { Left, Center, Right };

/// Where a line of text sits in its box. Baseline puts the baseline on the
/// box's bottom edge, so that labels of different fonts share one baseline;
/// their descenders hang below the box and are not clipped.
enum class VerticalAlignment : std::uint8_t { Top, Center, Baseline, Bottom };

/// A font named by key ("fonts.kls.CleanTimecodeSmall"); the font table gives
/// its family, size in pixels and weight. An unknown key is the default UI font.
struct FontKey {
  krocore::utility::ImmutableString key;
  bool operator==(const FontKey&) const noexcept = default;
};

struct TextMetrics {
  float width = 0.f;   ///< advance of the whole text
  float ascent = 0.f;  ///< above the baseline
  float descent = 0.f; ///< below the baseline
  constexpr float Height() const noexcept { return ascent + descent; }
};

// Readable values in test failures and display-list descriptions.
KROUI_API std::ostream& operator<<(std::ostream& out, const ColorRGBA& color);
KROUI_API std::ostream& operator<<(std::ostream& out, const PointF& point);
KROUI_API std::ostream& operator<<(std::ostream& out, const RectF& rect);
KROUI_API std::ostream& operator<<(std::ostream& out, const FontKey& font);
KROUI_API std::ostream& operator<<(std::ostream& out, const TextMetrics& metrics);
KROUI_API std::ostream& operator<<(std::ostream& out, HorizontalAlignment alignment);
KROUI_API std::ostream& operator<<(std::ostream& out, VerticalAlignment alignment);

} // namespace kroui::drawbot
