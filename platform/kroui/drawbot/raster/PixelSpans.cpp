#include <kroui/drawbot/raster/PixelSpansImpl.h>

#include <algorithm>

namespace kroui::drawbot::raster {
namespace {

double Restrict(float value) { return std::clamp(static_cast<double>(value), 0.0, 1.0); }

/// Cairo's rounding: to 16 bits nearest, then the top 8 bits.
std::uint32_t Channel(double value) {
  return static_cast<std::uint32_t>(static_cast<std::uint16_t>(value * 65535.0 + 0.5)) >> 8;
}

/// Source over destination, premultiplied: each channel d * (255 - source alpha)
/// divided by 255 with pixman's rounding, plus the source, saturated.
std::uint32_t Over(std::uint32_t source, std::uint32_t destination) noexcept {
  const std::uint32_t inverseAlpha = 255u - (source >> 24);
  if (inverseAlpha == 0) return source;
  std::uint32_t result = 0;
  for (int shift = 0; shift < 32; shift += 8) {
    std::uint32_t t = ((destination >> shift) & 0xFFu) * inverseAlpha + 0x80u;
    t = ((t >> 8) + t) >> 8;
    result |= std::min(t + ((source >> shift) & 0xFFu), 255u) << shift;
  }
  return result;
}

} // namespace

std::uint32_t ToDevicePixel(const ColorRGBA& color) noexcept {
  const double alpha = Restrict(color.alpha);
  return Channel(alpha) << 24 | Channel(Restrict(color.red) * alpha) << 16 |
         Channel(Restrict(color.green) * alpha) << 8 | Channel(Restrict(color.blue) * alpha);
}

PixelRect BlendPixels(const PixelBuffer& buffer, const Image& image, int x, int y,
                      const PixelRect& clip) noexcept {
  const PixelRect target =
      Intersect({x, y, x + image.GetWidth(), y + image.GetHeight()}, Intersect(clip, buffer.Bounds()));
  if (target.IsEmpty() || !image.IsValid()) return {};
  for (int row = target.top; row < target.bottom; ++row) {
    const std::uint32_t* source =
        image.Pixels() + static_cast<std::size_t>(row - y) * image.GetWidth() + (target.left - x);
    std::uint32_t* destination = buffer.Row(row) + target.left;
    for (int i = 0; i < target.right - target.left; ++i) destination[i] = Over(source[i], destination[i]);
  }
  return target;
}

} // namespace kroui::drawbot::raster
