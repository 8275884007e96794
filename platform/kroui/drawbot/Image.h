#pragma once

#include <kroui/Export.h>

#include <cstdint>
#include <memory>
#include <vector>

namespace kroui::drawbot {

/// Pixels in memory: 32 bits each, 0xAARRGGBB in native byte order,
/// premultiplied alpha (what the raster surface and PNG files exchange).
/// Copies share the pixels until one of them writes (MutablePixels).
class KROUI_API Image {
public:
  Image() = default;
  Image(int width, int height); ///< transparent black
  Image(int width, int height, std::vector<std::uint32_t> pixels);

  bool IsValid() const noexcept { return mWidth > 0 && mHeight > 0 && mPixels; }
  int GetWidth() const noexcept { return mWidth; }
  int GetHeight() const noexcept { return mHeight; }
  /// Row after row, GetWidth() pixels each, no padding.
  const std::uint32_t* Pixels() const noexcept { return mPixels ? mPixels->data() : nullptr; }
  std::uint32_t* MutablePixels();
  std::uint32_t PixelAt(int x, int y) const noexcept;

private:
  int mWidth = 0;
  int mHeight = 0;
  std::shared_ptr<std::vector<std::uint32_t>> mPixels;
};

} // namespace kroui::drawbot
