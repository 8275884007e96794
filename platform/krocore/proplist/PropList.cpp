#include <krocore/proplist/PropList.h>

namespace krocore::proplist {

PropList::PropList() = default;
PropList::PropList(const PropList&) = default;
PropList::PropList(PropList&&) noexcept = default;
PropList& PropList::operator=(const PropList&) = default;
PropList& PropList::operator=(PropList&&) noexcept = default;
PropList::~PropList() = default;

bool PropList::Has(std::string_view key) const { return mEntries.find(key) != mEntries.end(); }

const PropValue* PropList::Find(std::string_view key) const {
  auto it = mEntries.find(key);
  return it == mEntries.end() ? nullptr : &it->second;
}

void PropList::Set(std::string_view key, PropValue value) {
  auto it = mEntries.find(key);
  if (it != mEntries.end()) it->second = std::move(value);
  else mEntries.emplace(std::string(key), std::move(value));
}

bool PropList::Remove(std::string_view key) {
  auto it = mEntries.find(key);
  if (it == mEntries.end()) return false;
  mEntries.erase(it);
  return true;
}

bool PropList::GetBool(std::string_view key, bool fallback) const {
  const PropValue* value = Find(key);
  return value ? value->AsBool().value_or(fallback) : fallback;
}

std::int64_t PropList::GetInteger(std::string_view key, std::int64_t fallback) const {
  const PropValue* value = Find(key);
  return value ? value->AsInteger().value_or(fallback) : fallback;
}

double PropList::GetReal(std::string_view key, double fallback) const {
  const PropValue* value = Find(key);
  return value ? value->AsReal().value_or(fallback) : fallback;
}

std::string PropList::GetString(std::string_view key, std::string_view fallback) const {
  const PropValue* value = Find(key);
  const std::string* text = value ? value->AsString() : nullptr;
  return text ? *text : std::string(fallback);
}

const PropList* PropList::GetList(std::string_view key) const {
  const PropValue* value = Find(key);
  return value ? value->AsList() : nullptr;
}

std::vector<std::string> PropList::Keys() const {
  std::vector<std::string> keys;
  keys.reserve(mEntries.size());
  for (const auto& [key, value] : mEntries) keys.push_back(key);
  return keys;
}

} // namespace krocore::proplist
