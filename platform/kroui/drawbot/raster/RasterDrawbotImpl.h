#pragma once

#include <kroui/drawbot/DrawStateStackImpl.h>
#include <kroui/drawbot/Drawbot.h>
#include <kroui/drawbot/raster/PixelSpansImpl.h>

#include <cairo.h>

#include <vector>

namespace kroui::drawbot::raster {

/// The Drawbot over a Cairo ARGB32 image surface. Cairo always works in device
/// pixels under an identity matrix; the transform is applied here, so that
/// lines can be put on pixel centres and the fast path can tell exactly which
/// pixels a shape covers:
///
///   opaque, axis-aligned, on whole pixels, under a    -->  pixel spans written
///   clip that is a rectangle of whole pixels               into the surface's memory
///   anything else                                     -->  Cairo; text as cached glyph runs
///
/// Both give the same pixels. Going from Cairo to memory flushes the surface;
/// going back marks what memory took as dirty.
///
/// Where lines land: a point names the pixel whose centre it is. A line of odd
/// width in pixels is moved half a pixel to run through pixel centres and has
/// square caps, so a 1-pixel line from (x, 2) to (x, 5) covers column x, rows
/// 2 to 5. A stroked rectangle's border lies inside the rectangle. A negative
/// scale moves images and text but does not mirror them.
class RasterDrawbot final : public Drawbot {
public:
  explicit RasterDrawbot(cairo_surface_t* surface);
  ~RasterDrawbot() override;
  RasterDrawbot(const RasterDrawbot&) = delete;
  RasterDrawbot& operator=(const RasterDrawbot&) = delete;

  void Begin();
  void End();
  bool IsDrawing() const noexcept { return mCairo != nullptr; }
  void SetPixelSpansEnabled(bool isEnabled) noexcept { mIsSpansEnabled = isEnabled; }
  bool IsPixelSpansEnabled() const noexcept { return mIsSpansEnabled; }

  void Save() override;
  void Restore() override;
  void Translate(float dx, float dy) override;
  void Scale(float sx, float sy) override;
  void ClipRect(const RectF& rect) override;
  void ClipPolygon(std::span<const PointF> polygon) override;
  RectF GetClipBounds() const override;

  void DrawLine(PointF from, PointF to, const ColorRGBA& color, float width = 1.f) override;
  void DrawPolyline(std::span<const PointF> points, const ColorRGBA& color, float width = 1.f) override;
  void StrokeRect(const RectF& rect, const ColorRGBA& color, float width = 1.f) override;
  void FillRect(const RectF& rect, const ColorRGBA& color) override;
  void StrokePolygon(std::span<const PointF> polygon, const ColorRGBA& color, float width = 1.f) override;
  void FillPolygon(std::span<const PointF> polygon, const ColorRGBA& color) override;

  void DrawImage(const Image& image, const RectF& destination, float opacity = 1.f) override;
  void DrawPixels(const Image& pixels, PointF origin) override;

  void DrawText(std::string_view text, const FontKey& font, const ColorRGBA& color, const RectF& box,
                HorizontalAlignment horizontal = HorizontalAlignment::Left,
                VerticalAlignment vertical = VerticalAlignment::Center) override;
  TextMetrics MeasureText(std::string_view text, const FontKey& font) override;

private:
  const DrawState& Current() const noexcept { return mStack.Current(); }
  bool CanWriteSpans(const ColorRGBA& color) const noexcept;
  /// Before Cairo draws: what memory took is marked dirty.
  void UseCairo();
  /// Before memory is written: Cairo's pending drawing is flushed.
  void UseMemory();
  /// The colour as a pixel; the last one is remembered, as ticks come in runs of one colour.
  std::uint32_t SpanPixel(const ColorRGBA& color) noexcept;
  void WriteSpan(const RectF& deviceRect, std::uint32_t pixel);
  void FillDeviceRect(const RectF& deviceRect, const ColorRGBA& color);
  /// Half a pixel on each axis where the pen is an odd number of pixels across.
  PointF PixelCentreOffset(float width) const noexcept;
  bool TryLineAsSpan(PointF from, PointF to, const ColorRGBA& color, float width);
  void StrokePoints(std::span<const PointF> points, const ColorRGBA& color, float width, bool isClosed);
  void AppendDevicePath(std::span<const PointF> points, PointF offset, bool isClosed);
  void StrokeCurrentPath(const ColorRGBA& color, float width, cairo_line_cap_t cap);
  void SetSource(const ColorRGBA& color);
  void PaintPattern(cairo_pattern_t* pattern, const RectF& area, float opacity);

  cairo_surface_t* mSurface;
  cairo_t* mCairo = nullptr;
  PixelBuffer mPixels;
  DrawStateStack mStack;
  bool mIsSpansEnabled = true;
  bool mIsWritingMemory = false;
  PixelRect mDirty;
  ColorRGBA mSpanColor{0.f, 0.f, 0.f, 0.f};
  std::uint32_t mSpanPixel = 0;
  std::vector<cairo_glyph_t> mGlyphScratch;
};

} // namespace kroui::drawbot::raster
