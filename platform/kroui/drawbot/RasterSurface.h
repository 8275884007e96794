#pragma once

#include <kroui/Export.h>
#include <kroui/drawbot/Drawbot.h>
#include <kroui/drawbot/Image.h>

#include <krocore/utility/Result.h>

#include <filesystem>
#include <memory>
#include <span>

namespace kroui::drawbot {

/// A surface of pixels in memory to draw on: what a window's contents are
/// painted into before the backend presents them, and what PNG files are
/// written from. Starts transparent.
class KROUI_API RasterSurface {
public:
  RasterSurface(int width, int height);
  ~RasterSurface();
  RasterSurface(const RasterSurface&) = delete;
  RasterSurface& operator=(const RasterSurface&) = delete;

  int GetWidth() const noexcept;
  int GetHeight() const noexcept;
  /// The drawing interface over these pixels; its state starts afresh with each call.
  Drawbot& BeginDrawing();
  /// Ends a drawing pass begun with BeginDrawing, flushing to the pixels.
  void EndDrawing();
  bool IsDrawing() const noexcept;
  /// Opaque axis-aligned lines and rectangles on whole pixels, under a clip
  /// that is a rectangle of whole pixels, are written straight into memory
  /// (the default) or, when disabled, drawn by the general rasterizer. The
  /// pixels are the same either way; the switch exists to show that they are.
  void SetPixelSpansEnabled(bool isEnabled) noexcept;
  bool IsPixelSpansEnabled() const noexcept;
  /// The pixels as they are now (shares nothing with the surface).
  Image Snapshot() const;
  /// Sets every pixel to one colour (replacing, not blending), outside any drawing pass.
  void Clear(const ColorRGBA& color);

  krocore::utility::Result<void> WritePNG(const std::filesystem::path& path) const;

private:
  struct State;
  std::unique_ptr<State> mState;
};

/// PNG files to and from images, through the same library the raster surface uses.
KROUI_API krocore::utility::Result<void> WritePNG(const Image& image, const std::filesystem::path& path);
KROUI_API krocore::utility::Result<Image> ReadPNG(const std::filesystem::path& path);
/// The same for PNG bytes in memory (a resource compiled into a module).
KROUI_API krocore::utility::Result<Image> DecodePNG(std::span<const unsigned char> bytes);

} // namespace kroui::drawbot
