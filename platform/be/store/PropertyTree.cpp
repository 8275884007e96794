#include <be/store/PropertyTreeImpl.h>

#include <krocore/utility/Hash.h>

#include <random>

namespace BE::detail {
namespace {

constexpr std::size_t kInitialTableSize = 64;

// A seed that the author of a file cannot know keeps crafted keys from all
// landing in one run of the table.
std::uint64_t ProcessSeed() {
  static const std::uint64_t sSeed = [] {
    std::random_device device;
    return (std::uint64_t{device()} << 32) ^ device();
  }();
  return sSeed;
}

} // namespace

PropertyTree::PropertyTree() : mGroups(1), mTable(kInitialTableSize) {}

std::uint32_t PropertyTree::Hash(Index group, std::string_view key) const noexcept {
  // FNV-1a over the key, started from the seed mixed with the group.
  const std::uint64_t hash = krocore::utility::Fnv1a(key, ProcessSeed() ^ krocore::utility::GoldenMix(group));
  return static_cast<std::uint32_t>(hash ^ (hash >> 32));
}

std::size_t PropertyTree::FindSlot(Index group, std::string_view key, std::uint32_t hash) const noexcept {
  const std::size_t mask = mTable.size() - 1;
  for (std::size_t slot = hash & mask;; slot = (slot + 1) & mask) {
    const Slot& candidate = mTable[slot];
    if (candidate.index == kNone) return slot;
    if (candidate.hash != hash) continue;
    const Entry& entry = mEntries[candidate.index];
    if (entry.group == group && entry.key == key) return slot;
  }
}

const PropertyTree::Entry* PropertyTree::Find(Index group, std::string_view key) const {
  const Index index = mTable[FindSlot(group, key, Hash(group, key))].index;
  return index == kNone ? nullptr : &mEntries[index];
}

PropertyTree::Entry& PropertyTree::Insert(Index group, std::string_view key, bool& isNew) {
  const std::uint32_t hash = Hash(group, key);
  std::size_t slot = FindSlot(group, key, hash);
  isNew = mTable[slot].index == kNone;
  if (!isNew) return mEntries[mTable[slot].index];
  // Kept at most half full, so that a miss ends soon.
  if ((mEntries.size() + 1) * 2 > mTable.size()) {
    GrowTable();
    slot = FindSlot(group, key, hash);
  }
  const auto index = static_cast<Index>(mEntries.size());
  Entry& entry = mEntries.emplace_back();
  entry.key = mStrings.Copy(key);
  entry.group = group;
  entry.hash = hash;
  mTable[slot] = {hash, index};
  Group& owner = mGroups[group];
  (owner.last == kNone ? owner.first : mEntries[owner.last].next) = index;
  owner.last = index;
  return entry;
}

void PropertyTree::GrowTable() {
  mTable.assign(mTable.size() * 2, Slot{});
  const std::size_t mask = mTable.size() - 1;
  for (Index index = 0; index < mEntries.size(); ++index) {
    const std::uint32_t hash = mEntries[index].hash;
    std::size_t slot = hash & mask;
    while (mTable[slot].index != kNone) slot = (slot + 1) & mask;
    mTable[slot] = {hash, index};
  }
}

void PropertyTree::SetBits(Entry& entry, PropertyValueType type, std::uint64_t bits) {
  entry.type = type;
  entry.bits = bits;
  entry.text = {};
}

void PropertyTree::SetInteger(Entry& entry, std::int64_t value) {
  SetBits(entry, PropertyValueType::kInteger, static_cast<std::uint64_t>(value));
}

void PropertyTree::SetReal(Entry& entry, double value) {
  SetBits(entry, PropertyValueType::kReal, std::bit_cast<std::uint64_t>(value));
}

void PropertyTree::SetString(Entry& entry, std::string_view value) {
  SetBits(entry, PropertyValueType::kString, 0);
  entry.text = mStrings.Copy(value);
}

PropertyTree::Index PropertyTree::SetGroup(Entry& entry) {
  const auto group = static_cast<Index>(mGroups.size());
  mGroups.emplace_back();
  SetBits(entry, PropertyValueType::kGroup, group);
  return group;
}

} // namespace BE::detail
