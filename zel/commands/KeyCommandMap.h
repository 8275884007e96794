#pragma once

#include <zel/commands/KeySpec.h>

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

namespace ZEL {

/// Key specifications to the command IDs bound to them, in KeySpec order.
/// A sorted vector: built rarely, looked up on every key press without
/// allocating.
class KeyCommandMap {
public:
  struct Entry {
    KeySpec key;
    std::vector<std::int32_t> commandIDs;
  };

  /// The IDs bound to a key, or null.
  const std::vector<std::int32_t>* Find(const KeySpec& key) const noexcept {
    auto it = LowerBound(key);
    return it != mEntries.end() && it->key == key ? &it->commandIDs : nullptr;
  }
  bool Contains(const KeySpec& key) const noexcept { return Find(key) != nullptr; }

  using Binding = std::pair<KeySpec, std::int32_t>;

  /// Replaces the map with the given bindings. A key keeps its IDs in the
  /// order they were given (first declared, first asked), each ID once.
  void Assign(std::vector<Binding> bindings) {
    std::stable_sort(bindings.begin(), bindings.end(),
                     [](const Binding& a, const Binding& b) { return a.first < b.first; });
    mEntries.clear();
    for (const auto& [key, id] : bindings) {
      if (mEntries.empty() || mEntries.back().key != key) mEntries.push_back(Entry{key, {}});
      auto& ids = mEntries.back().commandIDs;
      if (std::find(ids.begin(), ids.end(), id) == ids.end()) ids.push_back(id);
    }
  }

  void Clear() noexcept { mEntries.clear(); }
  std::size_t Size() const noexcept { return mEntries.size(); }
  const std::vector<Entry>& Entries() const noexcept { return mEntries; }

private:
  std::vector<Entry>::const_iterator LowerBound(const KeySpec& key) const noexcept {
    return std::lower_bound(mEntries.begin(), mEntries.end(), key,
                            [](const Entry& e, const KeySpec& k) { return e.key < k; });
  }

  std::vector<Entry> mEntries;
};

} // namespace ZEL
