#include <zel/views/Bitmap.h>

#include <zel/appearance/ThemeResources.h>

#include <krocore/debug/Assert.h>
#include <krocore/resources/ModuleResources.h>
#include <krocore/string/UTFConversion.h>
#include <kroui/drawbot/RasterSurface.h>

#include <map>
#include <string>
#include <utility>

namespace ZEL {
namespace {

constexpr std::u16string_view kImageType = u"png";

// Keys carry their kind, so a base name and a file of the same text differ.
using Cache = std::map<std::string, BitmapPtr, std::less<>>;

std::optional<Cache>& TheCache() {
  static std::optional<Cache> sCache;
  return sCache;
}

BitmapPtr Share(std::optional<kroui::drawbot::Image> image) {
  if (!image) return nullptr;
  return std::make_shared<const kroui::drawbot::Image>(std::move(*image));
}

std::optional<kroui::drawbot::Image> Keep(krocore::utility::Result<kroui::drawbot::Image> result) {
  if (!result) return std::nullopt;
  return std::move(result).Value();
}

/// The cached image under `key`, else what `make` gives, kept when there is one.
template <typename Make>
BitmapPtr Lookup(std::string key, Make&& make) {
  auto& cache = TheCache();
  if (!KROCORE_ASSERT(cache.has_value(), "The bitmap cache has not been initialized")) return nullptr;
  if (const auto found = cache->find(key); found != cache->end()) return found->second;
  BitmapPtr bitmap = Share(make());
  if (bitmap) cache->emplace(std::move(key), bitmap);
  return bitmap;
}

std::optional<kroui::drawbot::Image> DecodeResource(std::string_view baseName) {
  const auto bytes = krocore::utility::GetBinaryFromModule(ThemeResources::kModule, kImageType,
                                                           krocore::string::UTF8to16(baseName));
  if (bytes.IsEmpty()) return std::nullopt;
  return Keep(kroui::drawbot::DecodePNG({bytes.data, bytes.size}));
}

} // namespace

BitmapPtr Bitmap::GetBitmapFromBaseName(std::string_view baseName) {
  return Lookup("base:" + std::string(baseName), [&] { return DecodeResource(baseName); });
}

BitmapPtr Bitmap::GetBitmapFromFile(const std::filesystem::path& path) {
  return Lookup("file:" + path.string(), [&] { return Keep(kroui::drawbot::ReadPNG(path)); });
}

BitmapPtr Bitmap::GetBitmapUsingImageProvider(std::string_view key, const ImageProvider& provider) {
  return Lookup("provider:" + std::string(key), [&]() -> std::optional<kroui::drawbot::Image> {
    if (!provider) return std::nullopt;
    return provider();
  });
}

std::size_t Bitmap::GetCachedCount() { return TheCache() ? TheCache()->size() : 0; }

void InitBitmapCache() {
  if (!TheCache()) TheCache().emplace();
}

void CleanupBitmapCache() { TheCache().reset(); }

bool IsBitmapCacheInitialized() noexcept { return TheCache().has_value(); }

} // namespace ZEL
