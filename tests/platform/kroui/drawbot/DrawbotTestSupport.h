#pragma once

#include <kroui/drawbot/DrawTypes.h>
#include <kroui/drawbot/Image.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <iomanip>
#include <sstream>

namespace kroui::drawbot::testing {

inline constexpr ColorRGBA kRed{1.f, 0.f, 0.f, 1.f};
inline constexpr ColorRGBA kBlue{0.f, 0.f, 1.f, 1.f};
inline constexpr ColorRGBA kWhite{1.f, 1.f, 1.f, 1.f};
inline constexpr ColorRGBA kBlack{0.f, 0.f, 0.f, 1.f};
/// Channels that are not whole bytes, so that rounding shows.
inline constexpr ColorRGBA kOddOrange{0.9f, 0.3f, 0.07f, 1.f};

inline constexpr std::uint32_t kOpaqueRed = 0xFFFF0000u;
inline constexpr std::uint32_t kOpaqueBlue = 0xFF0000FFu;
inline constexpr std::uint32_t kOpaqueWhite = 0xFFFFFFFFu;
inline constexpr std::uint32_t kTransparent = 0u;

/// Pixels as left <= x < right, top <= y < bottom.
struct PixelBox {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  bool IsEmpty() const { return right <= left || bottom <= top; }
  bool Contains(int x, int y) const { return x >= left && x < right && y >= top && y < bottom; }
  bool operator==(const PixelBox&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const PixelBox& box) {
  return out << "pixels x " << box.left << ".." << box.right << " y " << box.top << ".." << box.bottom;
}

inline std::string Hex(std::uint32_t pixel) {
  std::ostringstream out;
  out << "0x" << std::hex << std::setw(8) << std::setfill('0') << pixel;
  return out.str();
}

/// The bounds of the pixels that are not `background`; empty when there are none.
inline PixelBox InkBounds(const Image& image, std::uint32_t background) {
  PixelBox box{image.GetWidth(), image.GetHeight(), 0, 0};
  for (int y = 0; y < image.GetHeight(); ++y) {
    for (int x = 0; x < image.GetWidth(); ++x) {
      if (image.PixelAt(x, y) == background) continue;
      box = {std::min(box.left, x), std::min(box.top, y), std::max(box.right, x + 1),
             std::max(box.bottom, y + 1)};
    }
  }
  return box.IsEmpty() ? PixelBox{} : box;
}

/// Every pixel inside `box` is `inside`, every other one `outside`.
inline ::testing::AssertionResult IsExactlyBox(const Image& image, const PixelBox& box, std::uint32_t inside,
                                               std::uint32_t outside) {
  for (int y = 0; y < image.GetHeight(); ++y) {
    for (int x = 0; x < image.GetWidth(); ++x) {
      const std::uint32_t expected = box.Contains(x, y) ? inside : outside;
      if (image.PixelAt(x, y) != expected) {
        return ::testing::AssertionFailure()
               << "pixel (" << x << ", " << y << ") is " << Hex(image.PixelAt(x, y)) << ", expected "
               << Hex(expected) << " (" << box << ")";
      }
    }
  }
  return ::testing::AssertionSuccess();
}

/// The first pixel where two images differ, or success.
inline ::testing::AssertionResult AreIdentical(const Image& a, const Image& b) {
  if (a.GetWidth() != b.GetWidth() || a.GetHeight() != b.GetHeight()) {
    return ::testing::AssertionFailure() << "sizes differ";
  }
  for (int y = 0; y < a.GetHeight(); ++y) {
    for (int x = 0; x < a.GetWidth(); ++x) {
      if (a.PixelAt(x, y) != b.PixelAt(x, y)) {
        return ::testing::AssertionFailure() << "pixel (" << x << ", " << y << "): " << Hex(a.PixelAt(x, y))
                                             << " against " << Hex(b.PixelAt(x, y));
      }
    }
  }
  return ::testing::AssertionSuccess();
}

inline int Channel(std::uint32_t pixel, int shift) { return static_cast<int>((pixel >> shift) & 0xFFu); }

} // namespace kroui::drawbot::testing
