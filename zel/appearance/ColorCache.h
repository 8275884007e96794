#pragma once

#include <zel/appearance/ColorManager.h>

#include <krocore/utility/Hash.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ZEL {

/// The evaluated colours by key. Keys are interned, so a key is its text's
/// address: a look-up hashes that address and probes a flat table, with no
/// string compared, which keeps every paint's colour request a few
/// nanoseconds. Main thread only.
class ColorCache {
public:
  using Color = ColorManager::Color;
  using Key = ColorManager::Key;

  const Color* Find(const Key& key) const noexcept {
    if (mCount == 0) return nullptr;
    for (std::size_t slot = SlotOf(key.c_str());; slot = (slot + 1) & mMask) {
      const Entry& entry = mEntries[slot];
      if (entry.key == key.c_str()) return &entry.color;
      if (entry.key == nullptr) return nullptr;
    }
  }

  void Store(const Key& key, const Color& color);
  void Clear() noexcept;
  std::size_t Size() const noexcept { return mCount; }

private:
  struct Entry {
    const char* key = nullptr;
    Color color;
  };

  std::size_t SlotOf(const char* key) const noexcept {
    return static_cast<std::size_t>(krocore::utility::GoldenMix(reinterpret_cast<std::uintptr_t>(key)) >> mShift) &
           mMask;
  }
  void Grow();

  std::vector<Entry> mEntries;
  std::size_t mMask = 0;
  unsigned mShift = 64;
  std::size_t mCount = 0;
};

} // namespace ZEL
