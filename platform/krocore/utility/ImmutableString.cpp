#include <krocore/utility/ImmutableString.h>

#include <krocore/utility/Hash.h>
#include <krocore/utility/StringArena.h>

#include <array>
#include <cstring>
#include <mutex>
#include <shared_mutex>
#include <unordered_set>

namespace krocore::utility {
namespace {

using Entry = ImmutableString::Entry;

std::size_t HashText(std::string_view text) noexcept { return static_cast<std::size_t>(Fnv1a(text)); }

struct EntryHash {
  using is_transparent = void;
  std::size_t operator()(const Entry* e) const noexcept { return e->hash; }
  std::size_t operator()(std::string_view s) const noexcept { return HashText(s); }
};

struct EntryEqual {
  using is_transparent = void;
  static std::string_view View(const Entry* e) noexcept { return {e->text, e->length}; }
  bool operator()(const Entry* a, const Entry* b) const noexcept { return a == b; }
  bool operator()(std::string_view a, const Entry* b) const noexcept { return a == View(b); }
  bool operator()(const Entry* a, std::string_view b) const noexcept { return View(a) == b; }
};

// Interned texts live for the whole process, so they are carved from large
// blocks instead of being allocated one by one: header and text in one piece.
Entry* MakeEntry(StringArena& arena, std::string_view text, std::size_t hash) {
  void* memory = arena.Allocate(offsetof(Entry, text) + text.size() + 1, alignof(Entry));
  auto* entry = static_cast<Entry*>(memory);
  entry->hash = hash;
  entry->length = text.size();
  char* chars = static_cast<char*>(memory) + offsetof(Entry, text);
  if (!text.empty()) std::memcpy(chars, text.data(), text.size());
  chars[text.size()] = '\0';
  return entry;
}

// Sharded by hash so that threads interning different texts rarely meet.
struct Shard {
  std::shared_mutex mutex;
  std::unordered_set<const Entry*, EntryHash, EntryEqual> entries;
  StringArena arena{64 * 1024}; // guarded by the shard's mutex
};

constexpr std::size_t kShardCount = 16;

std::array<Shard, kShardCount>& Shards() {
  // Never destroyed: strings interned by static objects must outlive them.
  static auto* shards = new std::array<Shard, kShardCount>();
  return *shards;
}

const Entry* Intern(std::string_view text) {
  const std::size_t hash = HashText(text);
  Shard& shard = Shards()[hash % kShardCount];
  {
    std::shared_lock lock(shard.mutex);
    if (auto it = shard.entries.find(text); it != shard.entries.end()) return *it;
  }
  std::unique_lock lock(shard.mutex);
  if (auto it = shard.entries.find(text); it != shard.entries.end()) return *it;
  const Entry* entry = MakeEntry(shard.arena, text, hash);
  shard.entries.insert(entry);
  return entry;
}

const Entry* EmptyEntry() {
  static const Entry* empty = Intern(std::string_view());
  return empty;
}

} // namespace

ImmutableString::ImmutableString() noexcept : mEntry(EmptyEntry()) {}

ImmutableString::ImmutableString(const char* text)
    : mEntry(text ? Intern(std::string_view(text)) : EmptyEntry()) {}

ImmutableString::ImmutableString(std::string_view text) : mEntry(Intern(text)) {}

bool ImmutableString::IsInterned(std::string_view text) {
  Shard& shard = Shards()[HashText(text) % kShardCount];
  std::shared_lock lock(shard.mutex);
  return shard.entries.contains(text);
}

} // namespace krocore::utility
