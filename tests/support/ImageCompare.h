#pragma once

// Comparing drawn pixels with reference images that are committed beside the
// tests. A failed comparison writes what was drawn and a picture of the
// difference into the build tree and says where:
//
//   EXPECT_TRUE(testsupport::MatchesReferenceImage(surface.Snapshot(), ReferenceDir() / "scene.png"));
//
// With ZEL_UPDATE_REFERENCE_IMAGES=1 in the environment the comparison
// rewrites the reference from what was drawn instead (and passes); look at
// the new image before committing it.
//
// Header-only, so that any test executable that links kroui can use it.

#include <kroui/drawbot/Image.h>
#include <kroui/drawbot/RasterSurface.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace testsupport {

struct ImageTolerance {
  /// The largest difference of one channel (0-255) that still counts as equal.
  int channel = 2;
  /// How many pixels may differ by more than that, as a fraction of all.
  double pixelFraction = 0.0;
};

struct ImageDifference {
  bool isSameSize = false;
  int differingPixels = 0; ///< beyond the channel tolerance
  int largestDifference = 0;
  /// The expected image faded to grey, with differing pixels in red (brighter for larger differences).
  kroui::drawbot::Image picture;
};

namespace detail {

inline int ChannelDifference(std::uint32_t a, std::uint32_t b) {
  int largest = 0;
  for (int shift = 0; shift < 32; shift += 8) {
    const int d = static_cast<int>((a >> shift) & 0xFFu) - static_cast<int>((b >> shift) & 0xFFu);
    largest = std::max(largest, d < 0 ? -d : d);
  }
  return largest;
}

inline std::uint32_t Faded(std::uint32_t pixel) {
  const std::uint32_t grey = (((pixel >> 16) & 0xFFu) + ((pixel >> 8) & 0xFFu) + (pixel & 0xFFu)) / 3u;
  const std::uint32_t light = 160u + grey * 95u / 255u;
  return 0xFF000000u | light << 16 | light << 8 | light;
}

inline bool IsUpdateRequested() {
  const char* value = std::getenv("ZEL_UPDATE_REFERENCE_IMAGES");
  return value && std::string_view(value) == "1";
}

/// Where failed comparisons leave their images: ZEL_IMAGE_OUTPUT_DIR, else
/// "image-differences" beside the test executable (in the build tree).
inline std::filesystem::path OutputDirectory() {
  if (const char* chosen = std::getenv("ZEL_IMAGE_OUTPUT_DIR")) return chosen;
  std::error_code error;
  std::filesystem::path base = std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
  if (error || base.empty()) base = std::filesystem::current_path();
  return base / "image-differences";
}

} // namespace detail

inline ImageDifference DiffImages(const kroui::drawbot::Image& actual, const kroui::drawbot::Image& expected,
                                  int channelTolerance) {
  ImageDifference result;
  result.isSameSize = actual.GetWidth() == expected.GetWidth() && actual.GetHeight() == expected.GetHeight();
  if (!result.isSameSize || !actual.IsValid()) return result;
  const int width = actual.GetWidth(), height = actual.GetHeight();
  std::vector<std::uint32_t> picture(static_cast<std::size_t>(width) * height);
  for (std::size_t i = 0; i < picture.size(); ++i) {
    const int difference = detail::ChannelDifference(actual.Pixels()[i], expected.Pixels()[i]);
    result.largestDifference = std::max(result.largestDifference, difference);
    const bool isDifferent = difference > channelTolerance;
    result.differingPixels += isDifferent ? 1 : 0;
    const std::uint32_t red = 0x60u + static_cast<std::uint32_t>(difference) * 0x9Fu / 255u;
    picture[i] = isDifferent ? (0xFF000000u | red << 16) : detail::Faded(expected.Pixels()[i]);
  }
  result.picture = kroui::drawbot::Image(width, height, std::move(picture));
  return result;
}

/// Compares `actual` with the PNG at `reference` within `tolerance`.
inline ::testing::AssertionResult MatchesReferenceImage(const kroui::drawbot::Image& actual,
                                                        const std::filesystem::path& reference,
                                                        ImageTolerance tolerance = {}) {
  if (detail::IsUpdateRequested()) {
    const auto written = kroui::drawbot::WritePNG(actual, reference);
    if (!written) return ::testing::AssertionFailure() << written.Error();
    std::cout << "[ reference ] rewrote " << reference.string() << "\n";
    return ::testing::AssertionSuccess();
  }
  const auto expected = kroui::drawbot::ReadPNG(reference);
  const ImageDifference difference =
      expected ? DiffImages(actual, expected.Value(), tolerance.channel) : ImageDifference{};
  const double allowed = tolerance.pixelFraction * actual.GetWidth() * actual.GetHeight();
  if (expected && difference.isSameSize && difference.differingPixels <= allowed) {
    return ::testing::AssertionSuccess();
  }

  const std::filesystem::path directory = detail::OutputDirectory();
  std::error_code error;
  std::filesystem::create_directories(directory, error);
  const std::string stem = reference.stem().string();
  const std::filesystem::path actualPath = directory / (stem + ".actual.png");
  const std::filesystem::path differencePath = directory / (stem + ".difference.png");
  kroui::drawbot::WritePNG(actual, actualPath);
  if (difference.picture.IsValid()) kroui::drawbot::WritePNG(difference.picture, differencePath);

  ::testing::AssertionResult failure = ::testing::AssertionFailure();
  if (!expected) {
    failure << expected.Error() << " (run with ZEL_UPDATE_REFERENCE_IMAGES=1 to create it)";
  } else if (!difference.isSameSize) {
    failure << "drawn " << actual.GetWidth() << "x" << actual.GetHeight() << ", the reference is "
            << expected.Value().GetWidth() << "x" << expected.Value().GetHeight();
  } else {
    failure << difference.differingPixels << " pixels differ from " << reference.string() << " by more than "
            << tolerance.channel << " (largest difference " << difference.largestDifference
            << "); the difference is in " << differencePath.string();
  }
  return failure << "; what was drawn is in " << actualPath.string();
}

} // namespace testsupport
