#include <kroui/drawbot/raster/GlyphRunCacheImpl.h>

#include <krocore/utility/Hash.h>

#include <functional>

namespace kroui::drawbot::raster {

std::size_t GlyphRunCache::KeyHash::operator()(const KeyView& key) const noexcept {
  const std::size_t text = std::hash<std::string_view>{}(key.text);
  const std::size_t font =
      (static_cast<std::size_t>(key.fontRow) << 32) ^ static_cast<std::uint32_t>(key.size64);
  return krocore::utility::HashCombine(text, font);
}

GlyphRunCache::GlyphRunCache(std::size_t capacity) : mCapacity(capacity == 0 ? 1 : capacity) {
  mIndex.reserve(mCapacity);
}

std::shared_ptr<const GlyphRun> GlyphRunCache::Find(std::string_view text, std::uint32_t fontRow,
                                                    std::int32_t size64) {
  const auto found = mIndex.find(KeyView{text, fontRow, size64});
  if (found == mIndex.end()) return nullptr;
  mEntries.splice(mEntries.begin(), mEntries, found->second);
  return found->second->run;
}

void GlyphRunCache::Insert(std::string_view text, std::uint32_t fontRow, std::int32_t size64,
                           std::shared_ptr<const GlyphRun> run) {
  const auto found = mIndex.find(KeyView{text, fontRow, size64});
  if (found != mIndex.end()) {
    found->second->run = std::move(run);
    mEntries.splice(mEntries.begin(), mEntries, found->second);
    return;
  }
  if (mIndex.size() >= mCapacity) {
    const Entry& oldest = mEntries.back();
    mIndex.erase(KeyView{oldest.text, oldest.fontRow, oldest.size64});
    mEntries.pop_back();
  }
  mEntries.push_front(Entry{std::string(text), fontRow, size64, std::move(run)});
  const Entry& entry = mEntries.front();
  mIndex.emplace(KeyView{entry.text, entry.fontRow, entry.size64}, mEntries.begin());
}

void GlyphRunCache::Clear() {
  mIndex.clear();
  mEntries.clear();
}

} // namespace kroui::drawbot::raster
