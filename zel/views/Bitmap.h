#pragma once

#include <zel/Export.h>

#include <kroui/drawbot/Image.h>

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>

namespace ZEL {

/// A decoded image shared by everyone who asked for it.
using BitmapPtr = std::shared_ptr<const kroui::drawbot::Image>;
/// Makes an image the first time the cache is asked for it; nothing when it cannot.
using ImageProvider = std::function<std::optional<kroui::drawbot::Image>()>;

/// The process-wide cache of decoded framework images, filled on first use:
///
///   GetBitmapFromBaseName("Cur_Pencil_3_20")  the PNG resource of this library's module
///   GetBitmapFromFile(path)                   a PNG file
///   GetBitmapUsingImageProvider(key, make)    an image made in code, kept under `key`
///
/// It exists between InitBitmapCache and CleanupBitmapCache; outside that the
/// operations report the misuse and return null. An image that cannot be
/// found or decoded gives null and is not kept, so a later call tries again.
/// UI thread only.
class ZEL_API Bitmap {
public:
  static BitmapPtr GetBitmapFromBaseName(std::string_view baseName);
  static BitmapPtr GetBitmapFromFile(const std::filesystem::path& path);
  static BitmapPtr GetBitmapUsingImageProvider(std::string_view key, const ImageProvider& provider);
  /// How many images the cache holds.
  static std::size_t GetCachedCount();

  Bitmap() = delete;
};

/// Prepares the empty cache; again while it exists changes nothing.
ZEL_API void InitBitmapCache();
/// Empties the cache and closes it; images handed out stay valid while held.
ZEL_API void CleanupBitmapCache();
ZEL_API bool IsBitmapCacheInitialized() noexcept;

} // namespace ZEL
