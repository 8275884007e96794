#pragma once

// Writing pixels straight into the surface's memory: what axis-aligned, opaque
// lines and rectangles on whole pixels come down to, without a rasterizer.

#include <kroui/drawbot/DrawTypes.h>
#include <kroui/drawbot/Image.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace kroui::drawbot::raster {

/// Pixels as left <= x < right, top <= y < bottom.
struct PixelRect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  bool IsEmpty() const noexcept { return right <= left || bottom <= top; }
  bool operator==(const PixelRect&) const noexcept = default;
};

// Inline: a ruler's ticks are hundreds of spans of a few pixels each.

inline PixelRect Intersect(const PixelRect& a, const PixelRect& b) noexcept {
  const PixelRect r{std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
                    std::min(a.bottom, b.bottom)};
  return r.IsEmpty() ? PixelRect{} : r;
}

/// The smallest rectangle holding both; an empty one does not count.
inline PixelRect Union(const PixelRect& a, const PixelRect& b) noexcept {
  if (a.IsEmpty()) return b;
  if (b.IsEmpty()) return a;
  return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
          std::max(a.bottom, b.bottom)};
}

/// A rectangle whose edges lie on whole pixels, as pixels.
inline PixelRect ToPixelRect(const RectF& r) noexcept {
  return {static_cast<int>(r.x), static_cast<int>(r.y), static_cast<int>(r.x + r.width),
          static_cast<int>(r.y + r.height)};
}

/// 32-bit premultiplied 0xAARRGGBB pixels, rows `stride` bytes apart.
struct PixelBuffer {
  std::uint8_t* data = nullptr;
  int stride = 0;
  int width = 0;
  int height = 0;

  PixelRect Bounds() const noexcept { return {0, 0, width, height}; }
  std::uint32_t* Row(int y) const noexcept {
    return reinterpret_cast<std::uint32_t*>(data + static_cast<std::ptrdiff_t>(y) * stride);
  }
};

/// A colour as the surface stores it, rounded exactly as Cairo rounds a solid
/// source (through 16 bits per channel), so that a pixel written here equals
/// the pixel Cairo would have drawn.
std::uint32_t ToDevicePixel(const ColorRGBA& color) noexcept;

/// Sets every pixel of `rect`, which the caller has clipped to the buffer.
inline void FillPixels(const PixelBuffer& buffer, const PixelRect& rect, std::uint32_t pixel) noexcept {
  const auto width = static_cast<std::size_t>(rect.right - rect.left);
  if (width == 1) {
    for (int y = rect.top; y < rect.bottom; ++y) buffer.Row(y)[rect.left] = pixel;
    return;
  }
  for (int y = rect.top; y < rect.bottom; ++y) std::fill_n(buffer.Row(y) + rect.left, width, pixel);
}

/// Composites `image` over the buffer with its top-left pixel at (x, y), only
/// where `clip` allows, with the arithmetic of Cairo's OVER (pixman's rounded
/// division by 255). Returns the pixels written.
PixelRect BlendPixels(const PixelBuffer& buffer, const Image& image, int x, int y,
                      const PixelRect& clip) noexcept;

} // namespace kroui::drawbot::raster
