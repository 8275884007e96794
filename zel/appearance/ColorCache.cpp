#include <zel/appearance/ColorCache.h>

namespace ZEL {

void ColorCache::Store(const Key& key, const Color& color) {
  if ((mCount + 1) * 2 > mEntries.size()) Grow(); // at most half full, so probes stay short
  for (std::size_t slot = SlotOf(key.c_str());; slot = (slot + 1) & mMask) {
    Entry& entry = mEntries[slot];
    if (entry.key == nullptr) {
      entry = {key.c_str(), color};
      ++mCount;
      return;
    }
    if (entry.key == key.c_str()) {
      entry.color = color;
      return;
    }
  }
}

void ColorCache::Clear() noexcept {
  for (Entry& entry : mEntries) entry.key = nullptr;
  mCount = 0;
}

void ColorCache::Grow() {
  std::vector<Entry> old = std::move(mEntries);
  const std::size_t size = old.empty() ? 64 : old.size() * 2;
  mEntries.assign(size, Entry{});
  mMask = size - 1;
  mShift = 64;
  for (std::size_t bits = size; bits > 1; bits >>= 1) --mShift;
  mCount = 0;
  for (const Entry& entry : old) {
    if (entry.key == nullptr) continue;
    for (std::size_t slot = SlotOf(entry.key);; slot = (slot + 1) & mMask) {
      if (mEntries[slot].key == nullptr) {
        mEntries[slot] = entry;
        ++mCount;
        break;
      }
    }
  }
}

} // namespace ZEL
