#pragma once

#include <kroui/drawbot/raster/TextEngineImpl.h>

#include <cairo.h>
#include <pango/pango.h>

#include <vector>

namespace kroui::drawbot::raster {

/// Glyphs of one font, placed relative to the baseline origin.
struct GlyphSegment {
  cairo_scaled_font_t* font = nullptr; ///< referenced
  std::vector<cairo_glyph_t> glyphs;
};

/// A line of text shaped once, to be drawn any number of times with no
/// further shaping: Cairo glyphs per font, ready for cairo_show_glyphs.
struct GlyphRun {
  TextExtents extents;
  std::vector<GlyphSegment> segments;
  /// Kept only when a character has a glyph in no font: Pango's own renderer
  /// draws its replacement box, and then the whole line.
  PangoLayout* layout = nullptr;
  /// Where the layout's line starts, from the origin the glyphs are placed against.
  float layoutOffsetX = 0.f;

  GlyphRun() = default;
  ~GlyphRun();
  GlyphRun(const GlyphRun&) = delete;
  GlyphRun& operator=(const GlyphRun&) = delete;

  /// Draws in the current source colour with the baseline starting at the
  /// device point `origin`; `scratch` spares an allocation per call.
  void Draw(cairo_t* cairo, PointF origin, std::vector<cairo_glyph_t>& scratch) const;
};

} // namespace kroui::drawbot::raster
