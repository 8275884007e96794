#pragma once

// Private to the property store: the tree that the writer builds and the
// reader fills, without an allocation per key or value.

#include <be/store/PropertyValueType.h>
#include <krocore/utility/StringArena.h>

#include <bit>
#include <cstdint>
#include <limits>
#include <string_view>
#include <vector>

namespace BE::detail {

/// Every entry of every group in one vector, linked in order within its
/// group, and found by (group, key) through one open-addressing table of
/// entry indices. Group 0 is the top; a group entry holds the ID of the
/// group it opens:
///
///   entries: 0 platform(group 0)  1 context.Timeline(group 0, opens 1)
///            2 item.0(group 1, opens 2)  3 commandname(group 2) ...
///   groups:  0 -> {0, 1}   1 -> {2, ..., itemcount}   2 -> {3, ...}
///
/// Replacing a group by a value gives up the group's ID: its entries stay in
/// the vector but can be reached no more. A value made a group gets a new ID.
class PropertyTree {
public:
  using Index = std::uint32_t;
  static constexpr Index kNone = std::numeric_limits<Index>::max();
  static constexpr Index kTopGroup = 0;

  struct Entry {
    std::string_view key;
    std::string_view text;  ///< the value of a string
    std::uint64_t bits = 0; ///< the value of any other type, or the ID of the group it opens
    Index group = kTopGroup;
    Index next = kNone;
    std::uint32_t hash = 0;
    PropertyValueType type = PropertyValueType::kAbsent;

    bool AsBool() const noexcept { return bits != 0; }
    std::int64_t AsInteger() const noexcept { return static_cast<std::int64_t>(bits); }
    std::uint32_t AsUnsigned() const noexcept { return static_cast<std::uint32_t>(bits); }
    double AsReal() const noexcept { return std::bit_cast<double>(bits); }
    Index AsGroup() const noexcept { return static_cast<Index>(bits); }
  };

  PropertyTree();

  const Entry* Find(Index group, std::string_view key) const;
  /// The entry under `key` in `group`, appended as absent when new. The
  /// reference lasts until the next Insert.
  Entry& Insert(Index group, std::string_view key, bool& isNew);

  void SetBool(Entry& entry, bool value) { SetBits(entry, PropertyValueType::kBool, value ? 1 : 0); }
  void SetInteger(Entry& entry, std::int64_t value);
  void SetUnsigned(Entry& entry, std::uint32_t value) { SetBits(entry, PropertyValueType::kUnsigned, value); }
  void SetReal(Entry& entry, double value);
  void SetString(Entry& entry, std::string_view value);
  /// Makes the entry open a new, empty group and returns the group's ID.
  Index SetGroup(Entry& entry);

  Index FirstInGroup(Index group) const { return mGroups[group].first; }
  const Entry& At(Index index) const { return mEntries[index]; }
  std::size_t EntryCount() const noexcept { return mEntries.size(); }
  std::size_t GroupCount() const noexcept { return mGroups.size(); }

private:
  struct Group {
    Index first = kNone;
    Index last = kNone;
  };

  /// A table slot keeps the hash beside the index, so that a probe past
  /// other keys does not touch their entries.
  struct Slot {
    std::uint32_t hash = 0;
    Index index = kNone;
  };

  void SetBits(Entry& entry, PropertyValueType type, std::uint64_t bits);
  std::uint32_t Hash(Index group, std::string_view key) const noexcept;
  std::size_t FindSlot(Index group, std::string_view key, std::uint32_t hash) const noexcept;
  void GrowTable();

  std::vector<Entry> mEntries;
  std::vector<Group> mGroups;
  std::vector<Slot> mTable;
  krocore::utility::StringArena mStrings;
};

} // namespace BE::detail
