#include <kroui/drawbot/raster/RasterDrawbotImpl.h>

#include <kroui/drawbot/FontTable.h>
#include <kroui/drawbot/raster/GlyphRunImpl.h>
#include <kroui/drawbot/raster/TextEngineImpl.h>

#include <krocore/debug/Assert.h>

#include <algorithm>
#include <cmath>

namespace kroui::drawbot::raster {
namespace {

bool IsOddWhole(float value) noexcept { return IsWhole(value) && (static_cast<long>(value) & 1) != 0; }

PointF Offset(PointF p, PointF by) noexcept { return {p.x + by.x, p.y + by.y}; }

/// Device pixels, kept in a range where ints and Cairo's fixed point are exact.
int ToPixel(float device) noexcept {
  return static_cast<int>(std::clamp(std::floor(device + 0.5f), -1e8f, 1e8f));
}

/// A Cairo surface reading an image's pixels in place; Cairo never writes a source.
cairo_surface_t* WrapImage(const Image& image) {
  auto* data = reinterpret_cast<unsigned char*>(const_cast<std::uint32_t*>(image.Pixels()));
  return cairo_image_surface_create_for_data(data, CAIRO_FORMAT_ARGB32, image.GetWidth(), image.GetHeight(),
                                             image.GetWidth() * 4);
}

} // namespace

RasterDrawbot::RasterDrawbot(cairo_surface_t* surface)
    : mSurface(surface), mStack({0.f, 0.f, static_cast<float>(cairo_image_surface_get_width(surface)),
                                 static_cast<float>(cairo_image_surface_get_height(surface))}) {
  mPixels = {cairo_image_surface_get_data(surface), cairo_image_surface_get_stride(surface),
             cairo_image_surface_get_width(surface), cairo_image_surface_get_height(surface)};
}

RasterDrawbot::~RasterDrawbot() {
  if (IsDrawing()) End();
}

void RasterDrawbot::Begin() {
  if (IsDrawing()) End();
  mCairo = cairo_create(mSurface);
  mStack.Reset({0.f, 0.f, static_cast<float>(mPixels.width), static_cast<float>(mPixels.height)});
  mIsWritingMemory = false;
}

void RasterDrawbot::End() {
  if (!IsDrawing()) return;
  KROCORE_ASSERT(mStack.GetDepth() == 0, "A drawing pass ended with a Save not restored");
  UseCairo();
  cairo_destroy(mCairo);
  mCairo = nullptr;
  cairo_surface_flush(mSurface);
}

// --- Switching between Cairo and memory ---------------------------------------

void RasterDrawbot::UseCairo() {
  if (!mIsWritingMemory) return;
  if (!mDirty.IsEmpty()) {
    cairo_surface_mark_dirty_rectangle(mSurface, mDirty.left, mDirty.top, mDirty.right - mDirty.left,
                                       mDirty.bottom - mDirty.top);
  }
  mIsWritingMemory = false;
}

void RasterDrawbot::UseMemory() {
  if (mIsWritingMemory) return;
  cairo_surface_flush(mSurface);
  mIsWritingMemory = true;
  mDirty = {};
}

bool RasterDrawbot::CanWriteSpans(const ColorRGBA& color) const noexcept {
  return mIsSpansEnabled && color.alpha >= 1.f && Current().isClipPixelRect;
}

std::uint32_t RasterDrawbot::SpanPixel(const ColorRGBA& color) noexcept {
  if (!(color == mSpanColor)) {
    mSpanColor = color;
    mSpanPixel = ToDevicePixel(color);
  }
  return mSpanPixel;
}

void RasterDrawbot::WriteSpan(const RectF& deviceRect, std::uint32_t pixel) {
  const PixelRect rect = Intersect(ToPixelRect(deviceRect), ToPixelRect(Current().clip));
  if (rect.IsEmpty()) return;
  UseMemory();
  FillPixels(mPixels, rect, pixel);
  mDirty = Union(mDirty, rect);
}

void RasterDrawbot::SetSource(const ColorRGBA& color) {
  cairo_set_source_rgba(mCairo, color.red, color.green, color.blue, color.alpha);
}

// --- State ---------------------------------------------------------------------

void RasterDrawbot::Save() {
  if (!KROCORE_ASSERT(IsDrawing(), "Drawing outside a drawing pass")) return;
  mStack.Save();
  cairo_save(mCairo);
}

void RasterDrawbot::Restore() {
  if (!KROCORE_ASSERT(IsDrawing(), "Drawing outside a drawing pass")) return;
  if (!KROCORE_ASSERT(mStack.Restore(), "Restore without a matching Save")) return;
  cairo_restore(mCairo);
}

void RasterDrawbot::Translate(float dx, float dy) { mStack.Translate(dx, dy); }

void RasterDrawbot::Scale(float sx, float sy) { mStack.Scale(sx, sy); }

void RasterDrawbot::ClipRect(const RectF& rect) {
  if (!IsDrawing() || !IsFinite(rect)) return;
  const RectF device = mStack.ClipRect(rect);
  cairo_new_path(mCairo);
  cairo_rectangle(mCairo, device.x, device.y, device.width, device.height);
  cairo_clip(mCairo);
}

void RasterDrawbot::ClipPolygon(std::span<const PointF> polygon) {
  if (!IsDrawing() || !AreFinite(polygon)) return;
  mStack.ClipPolygon(polygon);
  AppendDevicePath(polygon, {}, true);
  cairo_clip(mCairo);
}

RectF RasterDrawbot::GetClipBounds() const { return mStack.GetClipBounds(); }

// --- Shapes --------------------------------------------------------------------

PointF RasterDrawbot::PixelCentreOffset(float width) const noexcept {
  const Transform& t = Current().transform;
  return {IsOddWhole(width * std::abs(t.scaleX)) ? 0.5f : 0.f,
          IsOddWhole(width * std::abs(t.scaleY)) ? 0.5f : 0.f};
}

void RasterDrawbot::AppendDevicePath(std::span<const PointF> points, PointF offset, bool isClosed) {
  cairo_new_path(mCairo);
  const Transform& t = Current().transform;
  for (const PointF& point : points) {
    const PointF p = Offset(t.Apply(point), offset);
    cairo_line_to(mCairo, p.x, p.y);
  }
  if (isClosed) cairo_close_path(mCairo);
}

void RasterDrawbot::StrokeCurrentPath(const ColorRGBA& color, float width, cairo_line_cap_t cap) {
  SetSource(color);
  cairo_set_line_cap(mCairo, cap);
  cairo_set_line_join(mCairo, CAIRO_LINE_JOIN_MITER);
  const Transform& t = Current().transform;
  const double sx = std::abs(t.scaleX), sy = std::abs(t.scaleY);
  if (sx == sy) {
    cairo_set_line_width(mCairo, width * sx);
    cairo_stroke(mCairo);
    return;
  }
  // The path is in device pixels already; only the pen is stretched.
  cairo_scale(mCairo, sx, sy);
  cairo_set_line_width(mCairo, width);
  cairo_stroke(mCairo);
  cairo_identity_matrix(mCairo);
}

bool RasterDrawbot::TryLineAsSpan(PointF from, PointF to, const ColorRGBA& color, float width) {
  const Transform& t = Current().transform;
  const PointF a = t.Apply(from), b = t.Apply(to);
  if ((a.x != b.x && a.y != b.y) || !CanWriteSpans(color)) return false;
  // The square-capped pen covers half its size around the segment, on both axes.
  const PointF offset = PixelCentreOffset(width);
  const float halfX = width * std::abs(t.scaleX) / 2.f, halfY = width * std::abs(t.scaleY) / 2.f;
  const float left = std::min(a.x, b.x) + offset.x - halfX, right = std::max(a.x, b.x) + offset.x + halfX;
  const float top = std::min(a.y, b.y) + offset.y - halfY, bottom = std::max(a.y, b.y) + offset.y + halfY;
  const RectF covered{left, top, right - left, bottom - top};
  if (!IsWholePixels(covered)) return false;
  WriteSpan(covered, SpanPixel(color));
  return true;
}

void RasterDrawbot::StrokePoints(std::span<const PointF> points, const ColorRGBA& color, float width,
                                 bool isClosed) {
  if (!IsDrawing() || points.size() < 2 || !(width > 0.f) || mStack.IsClipEmpty() || !AreFinite(points))
    return;
  const Transform& t = Current().transform;
  const RectF extent = t.Apply(BoundsOf(points));
  const float penX = width * std::abs(t.scaleX), penY = width * std::abs(t.scaleY);
  if (!Intersects(Inflate(extent, penX + 1.f, penY + 1.f), Current().clip)) return;
  if (extent.width == 0.f && extent.height == 0.f) {
    // Cairo draws nothing for a square-capped dot; its pixel is covered like a line's end pixel.
    const PointF centre = Offset({extent.x, extent.y}, PixelCentreOffset(width));
    return FillDeviceRect({centre.x - penX / 2.f, centre.y - penY / 2.f, penX, penY}, color);
  }
  UseCairo();
  AppendDevicePath(points, PixelCentreOffset(width), isClosed);
  StrokeCurrentPath(color, width, CAIRO_LINE_CAP_SQUARE);
}

void RasterDrawbot::DrawLine(PointF from, PointF to, const ColorRGBA& color, float width) {
  if (!IsDrawing() || !(width > 0.f) || mStack.IsClipEmpty() || !IsFinite(from) || !IsFinite(to)) return;
  if (TryLineAsSpan(from, to, color, width)) return;
  const PointF points[] = {from, to};
  StrokePoints(points, color, width, false);
}

void RasterDrawbot::DrawPolyline(std::span<const PointF> points, const ColorRGBA& color, float width) {
  StrokePoints(points, color, width, false);
}

void RasterDrawbot::StrokePolygon(std::span<const PointF> polygon, const ColorRGBA& color, float width) {
  StrokePoints(polygon, color, width, true);
}

void RasterDrawbot::FillDeviceRect(const RectF& device, const ColorRGBA& color) {
  if (CanWriteSpans(color) && IsWholePixels(device)) return WriteSpan(device, SpanPixel(color));
  UseCairo();
  cairo_new_path(mCairo);
  cairo_rectangle(mCairo, device.x, device.y, device.width, device.height);
  SetSource(color);
  cairo_fill(mCairo);
}

void RasterDrawbot::FillRect(const RectF& rect, const ColorRGBA& color) {
  if (!IsDrawing() || mStack.IsClipEmpty() || !IsFinite(rect)) return;
  const RectF device = Current().transform.Apply(rect);
  if (Intersects(device, Current().clip)) FillDeviceRect(device, color);
}

void RasterDrawbot::StrokeRect(const RectF& rect, const ColorRGBA& color, float width) {
  if (!IsDrawing() || !(width > 0.f) || mStack.IsClipEmpty() || !IsFinite(rect)) return;
  const Transform& t = Current().transform;
  const RectF d = t.Apply(rect);
  if (!Intersects(d, Current().clip)) return;
  const float bx = width * std::abs(t.scaleX), by = width * std::abs(t.scaleY);
  // A border as wide as the rectangle leaves no hole: it is the rectangle.
  if (d.width <= bx || d.height <= by) return FillDeviceRect(d, color);
  const RectF sides[] = {{d.x, d.y, d.width, by},
                         {d.x, d.y + d.height - by, d.width, by},
                         {d.x, d.y, bx, d.height},
                         {d.x + d.width - bx, d.y, bx, d.height}};
  if (CanWriteSpans(color) && std::all_of(std::begin(sides), std::end(sides), IsWholePixels)) {
    for (const RectF& side : sides) WriteSpan(side, SpanPixel(color));
    return;
  }
  UseCairo();
  cairo_new_path(mCairo);
  cairo_rectangle(mCairo, d.x + bx / 2.f, d.y + by / 2.f, d.width - bx, d.height - by);
  StrokeCurrentPath(color, width, CAIRO_LINE_CAP_SQUARE);
}

void RasterDrawbot::FillPolygon(std::span<const PointF> polygon, const ColorRGBA& color) {
  if (!IsDrawing() || polygon.size() < 3 || mStack.IsClipEmpty() || !AreFinite(polygon)) return;
  UseCairo();
  AppendDevicePath(polygon, {}, true);
  SetSource(color);
  cairo_fill(mCairo);
}

// --- Pixels --------------------------------------------------------------------

void RasterDrawbot::PaintPattern(cairo_pattern_t* pattern, const RectF& area, float opacity) {
  cairo_save(mCairo);
  cairo_new_path(mCairo);
  cairo_rectangle(mCairo, area.x, area.y, area.width, area.height);
  cairo_clip(mCairo);
  cairo_set_source(mCairo, pattern);
  cairo_paint_with_alpha(mCairo, std::min(opacity, 1.f));
  cairo_restore(mCairo);
}

void RasterDrawbot::DrawImage(const Image& image, const RectF& destination, float opacity) {
  if (!IsDrawing() || !image.IsValid() || !(opacity > 0.f) || mStack.IsClipEmpty() || !IsFinite(destination))
    return;
  const RectF d = Current().transform.Apply(destination);
  if (!Intersects(d, Current().clip)) return;
  UseCairo();
  cairo_surface_t* source = WrapImage(image);
  cairo_pattern_t* pattern = cairo_pattern_create_for_surface(source);
  cairo_matrix_t toImage;
  cairo_matrix_init_scale(&toImage, image.GetWidth() / d.width, image.GetHeight() / d.height);
  cairo_matrix_translate(&toImage, -d.x, -d.y);
  cairo_pattern_set_matrix(pattern, &toImage);
  // Edge pixels stretch to the edge instead of fading into transparency.
  cairo_pattern_set_extend(pattern, CAIRO_EXTEND_PAD);
  const bool isOneToOne = d.width == image.GetWidth() && d.height == image.GetHeight() && IsWholePixels(d);
  cairo_pattern_set_filter(pattern, isOneToOne ? CAIRO_FILTER_NEAREST : CAIRO_FILTER_GOOD);
  PaintPattern(pattern, d, opacity);
  cairo_pattern_destroy(pattern);
  cairo_surface_destroy(source);
}

void RasterDrawbot::DrawPixels(const Image& pixels, PointF origin) {
  if (!IsDrawing() || !pixels.IsValid() || mStack.IsClipEmpty() || !IsFinite(origin)) return;
  const PointF device = Current().transform.Apply(origin);
  const int x = ToPixel(device.x), y = ToPixel(device.y);
  if (mIsSpansEnabled && Current().isClipPixelRect) {
    UseMemory();
    mDirty = Union(mDirty, BlendPixels(mPixels, pixels, x, y, ToPixelRect(Current().clip)));
    return;
  }
  UseCairo();
  cairo_surface_t* source = WrapImage(pixels);
  cairo_set_source_surface(mCairo, source, x, y);
  cairo_new_path(mCairo);
  cairo_rectangle(mCairo, x, y, pixels.GetWidth(), pixels.GetHeight());
  cairo_fill(mCairo);
  cairo_surface_destroy(source);
}

// --- Text ----------------------------------------------------------------------

void RasterDrawbot::DrawText(std::string_view text, const FontKey& font, const ColorRGBA& color,
                             const RectF& box, HorizontalAlignment horizontal, VerticalAlignment vertical) {
  if (!IsDrawing() || text.empty() || mStack.IsClipEmpty() || !IsFinite(box)) return;
  const Transform& t = Current().transform;
  const auto run = TextEngine::Instance().Shape(text, FindFontRow(font), std::abs(t.scaleY));
  const RectF deviceBox = t.Apply(box);
  const PointF origin = PlaceText(run->extents.metrics, deviceBox, horizontal, vertical);
  const RectF area = TextClipArea(run->extents.metrics, deviceBox, vertical);
  const RectF covered = TextCoverage(run->extents, origin);
  if (!Intersects(Intersect(area, covered), Current().clip)) return;
  UseCairo();
  SetSource(color);
  // Most labels fit their box; only those that do not pay for a clip.
  const bool isClipped = !Contains(area, covered);
  if (isClipped) {
    cairo_save(mCairo);
    cairo_new_path(mCairo);
    cairo_rectangle(mCairo, area.x, area.y, area.width, area.height);
    cairo_clip(mCairo);
  }
  run->Draw(mCairo, origin, mGlyphScratch);
  if (isClipped) cairo_restore(mCairo);
}

TextMetrics RasterDrawbot::MeasureText(std::string_view text, const FontKey& font) {
  const Transform& t = Current().transform;
  const float sx = t.IsInvertible() ? std::abs(t.scaleX) : 1.f,
              sy = t.IsInvertible() ? std::abs(t.scaleY) : 1.f;
  const TextMetrics device = TextEngine::Instance().Measure(text, FindFontRow(font), sy).metrics;
  return {device.width / sx, device.ascent / sy, device.descent / sy};
}

} // namespace kroui::drawbot::raster
