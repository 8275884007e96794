#pragma once

#include <kroui/Export.h>
#include <kroui/drawbot/DrawTypes.h>
#include <kroui/drawbot/Image.h>

#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace kroui::drawbot {

// Every kind of drawing call, once: the enum and the names are expanded from this list.
#define KROUI_ENUMERATE_DRAW_KINDS(ROW)                                                                      \
  ROW(Line)                                                                                                  \
  ROW(Polyline)                                                                                              \
  ROW(StrokeRect)                                                                                            \
  ROW(FillRect)                                                                                              \
  ROW(StrokePolygon)                                                                                         \
  ROW(FillPolygon)                                                                                           \
  ROW(Image)                                                                                                 \
  ROW(Pixels)                                                                                                \
  ROW(Text)

enum class DrawKind : std::uint8_t {
#define KROUI_DRAW_KIND_ENUMERATOR(kind) kind,
  KROUI_ENUMERATE_DRAW_KINDS(KROUI_DRAW_KIND_ENUMERATOR)
#undef KROUI_DRAW_KIND_ENUMERATOR
};

KROUI_API std::string_view GetDrawKindName(DrawKind kind) noexcept;

/// One drawing call as the recording surface keeps it. Geometry is in device
/// pixels, with the transform in force applied, so that a test can say where
/// a thing landed without knowing how the painter got there.
struct KROUI_API DrawCommand {
  DrawKind kind = DrawKind::Line;
  /// Line: its two ends; Polyline, StrokePolygon, FillPolygon: the vertices.
  std::vector<PointF> points;
  /// StrokeRect, FillRect: the rectangle; Image: the destination; Pixels: the
  /// area they are copied to (on whole pixels); Text: the box.
  RectF rect;
  ColorRGBA color;        ///< of shapes and text
  float lineWidth = 0.f;  ///< of strokes, in user units: times `scale` for device pixels
  PointF scale{1.f, 1.f}; ///< the transform's scale in force
  float opacity = 1.f;    ///< of images
  Image image;            ///< of Image and Pixels: the caller's pixels, shared
  std::string text;
  FontKey font;
  HorizontalAlignment horizontal = HorizontalAlignment::Left;
  VerticalAlignment vertical = VerticalAlignment::Center;
  PointF textOrigin;       ///< where the baseline starts, exactly as the raster surface places it
  TextMetrics textMetrics; ///< in device pixels
  RectF clip;              ///< the bounds of the clip in force
  /// Polygons clipping as well, outermost first.
  std::vector<std::vector<PointF>> clipPolygons;
  int saveDepth = 0;

  /// The device area the call may touch.
  RectF Bounds() const;
  /// Whether some of that area lies inside the clip's bounds.
  bool IsVisible() const;
  /// One line: kind, geometry, paint and clip.
  std::string Describe() const;
};

KROUI_API std::ostream& operator<<(std::ostream& out, const DrawCommand& command);

} // namespace kroui::drawbot
