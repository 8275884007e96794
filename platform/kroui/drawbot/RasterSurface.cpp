#include <kroui/drawbot/RasterSurface.h>

#include <kroui/drawbot/raster/PNGCodecImpl.h>
#include <kroui/drawbot/raster/PixelSpansImpl.h>
#include <kroui/drawbot/raster/RasterDrawbotImpl.h>

#include <krocore/debug/Assert.h>

#include <algorithm>

namespace kroui::drawbot {
namespace {

// Cairo's image surfaces go no further.
constexpr int kMaxSide = 32767;

int CheckedSide(int side) {
  KROCORE_ASSERT(side >= 0 && side <= kMaxSide, "A raster surface's sides must be from 0 to 32767 pixels");
  return std::clamp(side, 0, kMaxSide);
}

} // namespace

struct RasterSurface::State {
  cairo_surface_t* surface;
  raster::RasterDrawbot drawbot;

  State(int width, int height)
      : surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, CheckedSide(width), CheckedSide(height))),
        drawbot(surface) {}
  ~State() {
    drawbot.End();
    cairo_surface_destroy(surface);
  }
};

RasterSurface::RasterSurface(int width, int height) : mState(std::make_unique<State>(width, height)) {}

RasterSurface::~RasterSurface() = default;

int RasterSurface::GetWidth() const noexcept { return cairo_image_surface_get_width(mState->surface); }

int RasterSurface::GetHeight() const noexcept { return cairo_image_surface_get_height(mState->surface); }

Drawbot& RasterSurface::BeginDrawing() {
  KROCORE_ASSERT(!mState->drawbot.IsDrawing(),
                 "BeginDrawing while a drawing pass is open; it is ended first");
  mState->drawbot.Begin();
  return mState->drawbot;
}

void RasterSurface::EndDrawing() {
  if (!KROCORE_ASSERT(mState->drawbot.IsDrawing(), "EndDrawing without BeginDrawing")) return;
  mState->drawbot.End();
}

bool RasterSurface::IsDrawing() const noexcept { return mState->drawbot.IsDrawing(); }

void RasterSurface::SetPixelSpansEnabled(bool isEnabled) noexcept {
  mState->drawbot.SetPixelSpansEnabled(isEnabled);
}

bool RasterSurface::IsPixelSpansEnabled() const noexcept { return mState->drawbot.IsPixelSpansEnabled(); }

Image RasterSurface::Snapshot() const { return raster::CopySurfacePixels(mState->surface); }

void RasterSurface::Clear(const ColorRGBA& color) {
  if (!KROCORE_ASSERT(!mState->drawbot.IsDrawing(), "Clear during a drawing pass")) return;
  cairo_surface_t* surface = mState->surface;
  const raster::PixelBuffer buffer{cairo_image_surface_get_data(surface),
                                   cairo_image_surface_get_stride(surface), GetWidth(), GetHeight()};
  if (buffer.Bounds().IsEmpty()) return;
  cairo_surface_flush(surface);
  raster::FillPixels(buffer, buffer.Bounds(), raster::ToDevicePixel(color));
  cairo_surface_mark_dirty(surface);
}

krocore::utility::Result<void> RasterSurface::WritePNG(const std::filesystem::path& path) const {
  return raster::WriteSurfacePNG(mState->surface, path);
}

krocore::utility::Result<void> WritePNG(const Image& image, const std::filesystem::path& path) {
  return raster::WriteImagePNG(image, path);
}

krocore::utility::Result<Image> ReadPNG(const std::filesystem::path& path) {
  return raster::ReadImagePNG(path);
}

krocore::utility::Result<Image> DecodePNG(std::span<const unsigned char> bytes) {
  return raster::DecodeImagePNG(bytes);
}

} // namespace kroui::drawbot
