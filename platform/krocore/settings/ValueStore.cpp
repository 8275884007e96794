#include <krocore/settings/ValueStore.h>

#include <krocore/utility/FileIO.h>

namespace krocore::settings {
namespace {

using utility::Result;

// A settings file is a handful of values; anything near this size is not one.
constexpr std::size_t kMaxFileBytes = 16 * 1024 * 1024;
// The first line of every file in the format used before JSON.
constexpr std::string_view kOldFormatHeader = "# ZEL values";
constexpr std::string_view kKeptOnSave = "; it is left as it is, and saving keeps it as a \".bak\" copy beside it";

Result<proplist::PropList> ReadValues(const std::filesystem::path& path) {
  auto bytes = utility::ReadFileBytes(path, kMaxFileBytes);
  if (!bytes) return Result<proplist::PropList>::Failure(bytes.Error());
  const std::string name = "\"" + path.string() + "\"";
  if (bytes.Value().starts_with(kOldFormatHeader))
    return Result<proplist::PropList>::Failure(name + " was saved in an older format that cannot be read" +
                                               std::string(kKeptOnSave));
  auto values = proplist::PropList::FromText(bytes.Value());
  if (!values)
    return Result<proplist::PropList>::Failure(name + " is damaged: " + values.Error() + std::string(kKeptOnSave));
  return values;
}

// A file that does not load may hold the user's values in a form that this
// version cannot read: saving over it keeps a copy first, or saves nothing.
Result<void> KeepUnreadableFile(const std::filesystem::path& path) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error) || ReadValues(path)) return Result<void>::Success();
  auto kept = utility::KeepBackupCopy(path);
  if (!kept) return Result<void>::Failure(kept.Error() + ", so it was not saved over");
  return Result<void>::Success();
}

} // namespace

ValueStore::ValueStore() = default;
ValueStore::~ValueStore() = default;

bool ValueStore::Has(std::string_view name) const {
  std::lock_guard lock(mMutex);
  return mValues.Has(name);
}

proplist::PropValue ValueStore::Get(std::string_view name) const {
  std::lock_guard lock(mMutex);
  const proplist::PropValue* value = mValues.Find(name);
  return value ? *value : proplist::PropValue();
}

bool ValueStore::GetBool(std::string_view name, bool fallback) const {
  std::lock_guard lock(mMutex);
  return mValues.GetBool(name, fallback);
}

std::int64_t ValueStore::GetInteger(std::string_view name, std::int64_t fallback) const {
  std::lock_guard lock(mMutex);
  return mValues.GetInteger(name, fallback);
}

double ValueStore::GetReal(std::string_view name, double fallback) const {
  std::lock_guard lock(mMutex);
  return mValues.GetReal(name, fallback);
}

std::string ValueStore::GetString(std::string_view name, std::string_view fallback) const {
  std::lock_guard lock(mMutex);
  return mValues.GetString(name, fallback);
}

void ValueStore::Set(std::string_view name, proplist::PropValue value) {
  {
    std::lock_guard lock(mMutex);
    const proplist::PropValue* old = mValues.Find(name);
    if (old && *old == value) return;
    mValues.Set(name, std::move(value));
  }
  Notify({std::string(name)});
}

bool ValueStore::Remove(std::string_view name) {
  {
    std::lock_guard lock(mMutex);
    if (!mValues.Remove(name)) return false;
  }
  Notify({std::string(name)});
  return true;
}

void ValueStore::Clear() {
  std::vector<std::string> names;
  {
    std::lock_guard lock(mMutex);
    names = mValues.Keys();
    mValues.Clear();
  }
  Notify(names);
}

ValueStore::ObserverID ValueStore::AddObserver(Observer observer) {
  std::lock_guard lock(mMutex);
  mObservers.emplace_back(mNextObserverID, std::move(observer));
  return mNextObserverID++;
}

void ValueStore::RemoveObserver(ObserverID id) {
  std::lock_guard lock(mMutex);
  std::erase_if(mObservers, [id](const auto& entry) { return entry.first == id; });
}

void ValueStore::Notify(const std::vector<std::string>& names) {
  if (names.empty()) return;
  decltype(mObservers) observers;
  {
    std::lock_guard lock(mMutex);
    observers = mObservers;
  }
  for (const auto& name : names)
    for (const auto& [id, observer] : observers) observer(name);
}

utility::Result<void> ValueStore::SaveToFile(const std::filesystem::path& path) const {
  std::string text;
  {
    std::lock_guard lock(mMutex);
    text = mValues.ToText();
  }
  if (auto kept = KeepUnreadableFile(path); !kept) return kept;
  return utility::WriteFileAtomically(path, text);
}

utility::Result<void> ValueStore::LoadFromFile(const std::filesystem::path& path) {
  auto values = ReadValues(path);
  if (!values) return utility::Result<void>::Failure(values.Error());
  for (const auto& [name, value] : values.Value().Entries()) Set(name, value);
  return utility::Result<void>::Success();
}

} // namespace krocore::settings
