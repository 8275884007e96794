#pragma once

#include <cstddef>
#include <cstdint>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

namespace kroui::drawbot::raster {

struct GlyphRun;

/// Shaped runs by (text, font row, device size in 1/64 pixel), most recently
/// used first; the least recently used goes when the cache is full. Finding
/// a run allocates nothing. Not thread-safe: the text engine locks around it.
class GlyphRunCache {
public:
  explicit GlyphRunCache(std::size_t capacity);

  std::shared_ptr<const GlyphRun> Find(std::string_view text, std::uint32_t fontRow, std::int32_t size64);
  void Insert(std::string_view text, std::uint32_t fontRow, std::int32_t size64,
              std::shared_ptr<const GlyphRun> run);
  void Clear();

  std::size_t GetSize() const noexcept { return mIndex.size(); }
  std::size_t GetCapacity() const noexcept { return mCapacity; }

private:
  // The index's keys view the texts held by the entries, whose list nodes never move.
  struct KeyView {
    std::string_view text;
    std::uint32_t fontRow;
    std::int32_t size64;
    bool operator==(const KeyView&) const noexcept = default;
  };
  struct KeyHash {
    std::size_t operator()(const KeyView& key) const noexcept;
  };
  struct Entry {
    std::string text;
    std::uint32_t fontRow;
    std::int32_t size64;
    std::shared_ptr<const GlyphRun> run;
  };
  using EntryList = std::list<Entry>;

  std::size_t mCapacity;
  EntryList mEntries;
  std::unordered_map<KeyView, EntryList::iterator, KeyHash> mIndex;
};

} // namespace kroui::drawbot::raster
