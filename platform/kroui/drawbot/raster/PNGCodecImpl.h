#pragma once

#include <kroui/drawbot/Image.h>

#include <krocore/utility/Result.h>

#include <cairo.h>

#include <filesystem>
#include <span>

namespace kroui::drawbot::raster {

krocore::utility::Result<void> WriteSurfacePNG(cairo_surface_t* surface, const std::filesystem::path& path);
krocore::utility::Result<void> WriteImagePNG(const Image& image, const std::filesystem::path& path);
/// Any PNG Cairo reads, as premultiplied ARGB whatever its own format.
krocore::utility::Result<Image> ReadImagePNG(const std::filesystem::path& path);
krocore::utility::Result<Image> DecodeImagePNG(std::span<const unsigned char> bytes);

/// The pixels of an ARGB32 surface, copied out of its padded rows.
Image CopySurfacePixels(cairo_surface_t* surface);

} // namespace kroui::drawbot::raster
