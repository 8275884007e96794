#pragma once

#include <kroui/Export.h>
#include <kroui/drawbot/DrawTypes.h>
#include <kroui/drawbot/Image.h>

#include <span>
#include <string_view>

namespace kroui::drawbot {

/// The drawing interface every paint goes through. Two surfaces implement
/// it: raster (pixels, through Cairo and Pango) and recording (a display list
/// that tests read). Coordinates are in pixels of the current transform;
/// lines of odd width are placed on pixel centres so that a 1-pixel line at
/// an integer coordinate covers exactly one row or column of pixels.
///
///   Save();                 // push transform and clip
///   Translate(node.x, node.y);
///   ClipRect(node bounds);  // clips only ever shrink
///   ...draw...
///   Restore();              // pop
class KROUI_API Drawbot {
public:
  virtual ~Drawbot();

  // The state stack: transform and clip.
  virtual void Save() = 0;
  /// Restores the last saved state; an unmatched Restore is reported and ignored.
  virtual void Restore() = 0;
  virtual void Translate(float dx, float dy) = 0;
  virtual void Scale(float sx, float sy) = 0;
  virtual void ClipRect(const RectF& rect) = 0;
  virtual void ClipPolygon(std::span<const PointF> polygon) = 0;
  /// The current clip in current coordinates; empty when nothing can be drawn.
  virtual RectF GetClipBounds() const = 0;

  // Shapes.
  virtual void DrawLine(PointF from, PointF to, const ColorRGBA& color, float width = 1.f) = 0;
  virtual void DrawPolyline(std::span<const PointF> points, const ColorRGBA& color, float width = 1.f) = 0;
  virtual void StrokeRect(const RectF& rect, const ColorRGBA& color, float width = 1.f) = 0;
  virtual void FillRect(const RectF& rect, const ColorRGBA& color) = 0;
  virtual void StrokePolygon(std::span<const PointF> polygon, const ColorRGBA& color, float width = 1.f) = 0;
  virtual void FillPolygon(std::span<const PointF> polygon, const ColorRGBA& color) = 0;

  // Pixels.
  /// Draws an image scaled into `destination`, with an overall opacity.
  virtual void DrawImage(const Image& image, const RectF& destination, float opacity = 1.f) = 0;
  /// Puts pixels unscaled, one to one on device pixels, with their top-left
  /// corner at `origin` (rounded to a whole device pixel), composited over what
  /// is there: opaque pixels replace, translucent ones blend.
  virtual void DrawPixels(const Image& pixels, PointF origin) = 0;

  // Text, UTF-8.
  /// Draws text in `box`, aligned within it; text that does not fit is clipped, not wrapped.
  virtual void DrawText(std::string_view text, const FontKey& font, const ColorRGBA& color, const RectF& box,
                        HorizontalAlignment horizontal = HorizontalAlignment::Left,
                        VerticalAlignment vertical = VerticalAlignment::Center) = 0;
  virtual TextMetrics MeasureText(std::string_view text, const FontKey& font) = 0;

protected:
  Drawbot() = default;
};

} // namespace kroui::drawbot
