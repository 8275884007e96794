#pragma once

#include <kroscripting/Export.h>
#include <krocore/utility/ImmutableString.h>

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace kroscripting::events {

/// What a script can read from an event: nothing, a truth value, a whole
/// number (command IDs), a number or a text.
using EventValue = std::variant<std::monostate, bool, std::int64_t, double, std::string>;

/// The named values an event carries, in the order they were first set:
///   EventPayload{{"commandID", std::int64_t{57634}}}
class KROSCRIPTING_API EventPayload {
public:
  using Entry = std::pair<krocore::utility::ImmutableString, EventValue>;

  EventPayload() = default;
  /// A key given twice keeps its place and the later value.
  EventPayload(std::initializer_list<Entry> entries);

  EventPayload& Set(const krocore::utility::ImmutableString& key, EventValue value);

  /// The value under the key, or null.
  const EventValue* Find(const krocore::utility::ImmutableString& key) const;

  /// The value under the key when it holds a T, or null.
  template <typename T>
  const T* GetIf(const krocore::utility::ImmutableString& key) const {
    const EventValue* value = Find(key);
    return value ? std::get_if<T>(value) : nullptr;
  }

  std::size_t Size() const noexcept { return mEntries.size(); }
  bool IsEmpty() const noexcept { return mEntries.empty(); }
  std::vector<Entry>::const_iterator begin() const noexcept { return mEntries.begin(); }
  std::vector<Entry>::const_iterator end() const noexcept { return mEntries.end(); }

  friend bool operator==(const EventPayload&, const EventPayload&) = default;

private:
  std::vector<Entry> mEntries;
};

} // namespace kroscripting::events
