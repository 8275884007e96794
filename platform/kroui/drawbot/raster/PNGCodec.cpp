#include <kroui/drawbot/raster/PNGCodecImpl.h>

#include <cstring>
#include <string>
#include <vector>

namespace kroui::drawbot::raster {
namespace {

using krocore::utility::Result;

/// Cairo opens files by a UTF-8 name everywhere.
std::string FileName(const std::filesystem::path& path) {
#if defined(_WIN32)
  const std::u8string name = path.u8string();
  return std::string(name.begin(), name.end());
#else
  return path.string();
#endif
}

std::string Describe(const char* action, const std::filesystem::path& path, cairo_status_t status) {
  return std::string("Could not ") + action + " the PNG file " + FileName(path) + ": " +
         cairo_status_to_string(status);
}

/// Feeds Cairo's PNG reader from memory.
struct ByteReader {
  std::span<const unsigned char> rest;

  static cairo_status_t Read(void* closure, unsigned char* data, unsigned int length) {
    auto& reader = *static_cast<ByteReader*>(closure);
    if (length > reader.rest.size()) return CAIRO_STATUS_READ_ERROR;
    std::memcpy(data, reader.rest.data(), length);
    reader.rest = reader.rest.subspan(length);
    return CAIRO_STATUS_SUCCESS;
  }
};

/// Greyscale, opaque and palette files all arrive as premultiplied ARGB; takes `loaded`.
Image TakeAsARGB(cairo_surface_t* loaded) {
  const int width = cairo_image_surface_get_width(loaded), height = cairo_image_surface_get_height(loaded);
  cairo_surface_t* argb = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height);
  cairo_t* cairo = cairo_create(argb);
  cairo_set_operator(cairo, CAIRO_OPERATOR_SOURCE);
  cairo_set_source_surface(cairo, loaded, 0, 0);
  cairo_paint(cairo);
  cairo_destroy(cairo);
  Image image = CopySurfacePixels(argb);
  cairo_surface_destroy(argb);
  cairo_surface_destroy(loaded);
  return image;
}

} // namespace

Image CopySurfacePixels(cairo_surface_t* surface) {
  cairo_surface_flush(surface);
  const int width = cairo_image_surface_get_width(surface), height = cairo_image_surface_get_height(surface);
  if (width <= 0 || height <= 0) return {};
  const int stride = cairo_image_surface_get_stride(surface);
  const unsigned char* data = cairo_image_surface_get_data(surface);
  std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width) * height);
  for (int y = 0; y < height; ++y) {
    std::memcpy(pixels.data() + static_cast<std::size_t>(y) * width,
                data + static_cast<std::ptrdiff_t>(y) * stride, static_cast<std::size_t>(width) * 4);
  }
  return Image(width, height, std::move(pixels));
}

Result<void> WriteSurfacePNG(cairo_surface_t* surface, const std::filesystem::path& path) {
  cairo_surface_flush(surface);
  const cairo_status_t status = cairo_surface_write_to_png(surface, FileName(path).c_str());
  if (status != CAIRO_STATUS_SUCCESS) return Result<void>::Failure(Describe("write", path, status));
  return Result<void>::Success();
}

Result<void> WriteImagePNG(const Image& image, const std::filesystem::path& path) {
  if (!image.IsValid())
    return Result<void>::Failure("An empty image cannot be written as PNG: " + FileName(path));
  auto* data = reinterpret_cast<unsigned char*>(const_cast<std::uint32_t*>(image.Pixels()));
  cairo_surface_t* surface = cairo_image_surface_create_for_data(data, CAIRO_FORMAT_ARGB32, image.GetWidth(),
                                                                 image.GetHeight(), image.GetWidth() * 4);
  Result<void> result = WriteSurfacePNG(surface, path);
  cairo_surface_destroy(surface);
  return result;
}

Result<Image> ReadImagePNG(const std::filesystem::path& path) {
  cairo_surface_t* loaded = cairo_image_surface_create_from_png(FileName(path).c_str());
  const cairo_status_t status = cairo_surface_status(loaded);
  if (status != CAIRO_STATUS_SUCCESS) {
    cairo_surface_destroy(loaded);
    return Result<Image>::Failure(Describe("read", path, status));
  }
  return Result<Image>::Success(TakeAsARGB(loaded));
}

Result<Image> DecodeImagePNG(std::span<const unsigned char> bytes) {
  ByteReader reader{bytes};
  cairo_surface_t* loaded = cairo_image_surface_create_from_png_stream(&ByteReader::Read, &reader);
  const cairo_status_t status = cairo_surface_status(loaded);
  if (status != CAIRO_STATUS_SUCCESS) {
    cairo_surface_destroy(loaded);
    return Result<Image>::Failure(std::string("Could not decode PNG data: ") + cairo_status_to_string(status));
  }
  return Result<Image>::Success(TakeAsARGB(loaded));
}

} // namespace kroui::drawbot::raster
