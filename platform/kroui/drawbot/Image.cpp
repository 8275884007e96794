#include <kroui/drawbot/Image.h>

#include <krocore/debug/Assert.h>

#include <cstddef>
#include <limits>
#include <utility>

namespace kroui::drawbot {
namespace {

// Past this many pixels the byte size no longer fits an int (what Cairo counts strides in).
constexpr std::size_t kMaxPixels = static_cast<std::size_t>(std::numeric_limits<int>::max()) / 4;

bool IsSizeAllowed(int width, int height) {
  return width > 0 && height > 0 &&
         static_cast<std::size_t>(width) * static_cast<std::size_t>(height) <= kMaxPixels;
}

} // namespace

Image::Image(int width, int height) {
  // An empty image is a neutral value (a node of no size has nothing to show).
  if (width >= 0 && height >= 0 && (width == 0 || height == 0)) return;
  if (!KROCORE_ASSERT(IsSizeAllowed(width, height),
                      "An image's size must be positive and at most 2^29 pixels"))
    return;
  mWidth = width;
  mHeight = height;
  mPixels = std::make_shared<std::vector<std::uint32_t>>(static_cast<std::size_t>(width) * height, 0u);
}

Image::Image(int width, int height, std::vector<std::uint32_t> pixels) {
  if (!KROCORE_ASSERT(IsSizeAllowed(width, height) &&
                          pixels.size() == static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
                      "The pixels given do not fill an image of this size"))
    return;
  mWidth = width;
  mHeight = height;
  mPixels = std::make_shared<std::vector<std::uint32_t>>(std::move(pixels));
}

std::uint32_t* Image::MutablePixels() {
  if (!mPixels) return nullptr;
  // Another copy still reads these pixels: write into our own.
  if (mPixels.use_count() > 1) mPixels = std::make_shared<std::vector<std::uint32_t>>(*mPixels);
  return mPixels->data();
}

std::uint32_t Image::PixelAt(int x, int y) const noexcept {
  if (!KROCORE_ASSERT(x >= 0 && y >= 0 && x < mWidth && y < mHeight, "PixelAt outside the image")) return 0;
  return (
      *mPixels)[static_cast<std::size_t>(y) * static_cast<std::size_t>(mWidth) + static_cast<std::size_t>(x)];
}

} // namespace kroui::drawbot
