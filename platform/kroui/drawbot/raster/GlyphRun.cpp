#include <kroui/drawbot/raster/GlyphRunImpl.h>

#include <pango/pangocairo.h>

namespace kroui::drawbot::raster {

GlyphRun::~GlyphRun() {
  for (GlyphSegment& segment : segments) cairo_scaled_font_destroy(segment.font);
  if (layout) g_object_unref(layout);
}

void GlyphRun::Draw(cairo_t* cairo, PointF origin, std::vector<cairo_glyph_t>& scratch) const {
  if (layout) {
    cairo_move_to(cairo, origin.x + layoutOffsetX, origin.y);
    pango_cairo_show_layout_line(cairo, pango_layout_get_line_readonly(layout, 0));
    return;
  }
  for (const GlyphSegment& segment : segments) {
    scratch.assign(segment.glyphs.begin(), segment.glyphs.end());
    for (cairo_glyph_t& glyph : scratch) {
      glyph.x += origin.x;
      glyph.y += origin.y;
    }
    cairo_set_scaled_font(cairo, segment.font);
    cairo_show_glyphs(cairo, scratch.data(), static_cast<int>(scratch.size()));
  }
}

} // namespace kroui::drawbot::raster
