#include <kroscripting/events/EventPayload.h>

#include <algorithm>

namespace kroscripting::events {

EventPayload::EventPayload(std::initializer_list<Entry> entries) {
  for (const Entry& entry : entries) Set(entry.first, entry.second);
}

EventPayload& EventPayload::Set(const krocore::utility::ImmutableString& key, EventValue value) {
  auto it = std::find_if(mEntries.begin(), mEntries.end(), [&key](const Entry& e) { return e.first == key; });
  if (it != mEntries.end()) it->second = std::move(value);
  else mEntries.emplace_back(key, std::move(value));
  return *this;
}

const EventValue* EventPayload::Find(const krocore::utility::ImmutableString& key) const {
  auto it = std::find_if(mEntries.begin(), mEntries.end(), [&key](const Entry& e) { return e.first == key; });
  return it == mEntries.end() ? nullptr : &it->second;
}

} // namespace kroscripting::events
