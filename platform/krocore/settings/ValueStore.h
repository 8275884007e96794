#pragma once

#include <krocore/Export.h>
#include <krocore/proplist/PropList.h>
#include <krocore/utility/Result.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace krocore::settings {

/// Named, typed values with change notification, kept in memory; a host that
/// wants them kept across runs saves and loads them with a file path of its
/// choosing. Safe to use from any thread; observers are called on the thread
/// that made the change, with no lock held.
class KROCORE_API ValueStore {
public:
  using Observer = std::function<void(std::string_view name)>;
  using ObserverID = std::uint64_t;

  ValueStore();
  virtual ~ValueStore();
  ValueStore(const ValueStore&) = delete;
  ValueStore& operator=(const ValueStore&) = delete;

  bool Has(std::string_view name) const;
  proplist::PropValue Get(std::string_view name) const;
  bool GetBool(std::string_view name, bool fallback) const;
  std::int64_t GetInteger(std::string_view name, std::int64_t fallback) const;
  double GetReal(std::string_view name, double fallback) const;
  std::string GetString(std::string_view name, std::string_view fallback) const;

  /// Stores a value; observers hear of it only when the value changed.
  void Set(std::string_view name, proplist::PropValue value);
  bool Remove(std::string_view name);
  /// Removes every value, telling observers of each.
  void Clear();

  ObserverID AddObserver(Observer observer);
  void RemoveObserver(ObserverID id);

  /// Writes all values to a file as JSON: the new text goes beside the old
  /// file and replaces it only when complete, so a failed save keeps the old
  /// file. An old file that does not load (an older format, damage) is first
  /// kept as "<name>.bak"; when that copy cannot be made, nothing is saved.
  utility::Result<void> SaveToFile(const std::filesystem::path& path) const;
  /// Reads values from a file and sets each (notifying observers). A missing
  /// or damaged file, or one in an older format, changes nothing and says why.
  utility::Result<void> LoadFromFile(const std::filesystem::path& path);

private:
  void Notify(const std::vector<std::string>& names);

  mutable std::mutex mMutex;
  proplist::PropList mValues;
  std::vector<std::pair<ObserverID, Observer>> mObservers;
  ObserverID mNextObserverID = 1;
};

} // namespace krocore::settings
