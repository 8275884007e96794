#pragma once

#include <krocore/Export.h>
#include <krocore/proplist/PropValue.h>
#include <krocore/utility/Result.h>

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace krocore::proplist {

/// A nested, typed property list: the saved state of a panel, a settings file.
/// Its text form is JSON with the keys sorted, so equal lists give the same
/// text. Integers and reals stay apart (a whole real is written "2.0"):
///
///   {
///     "name": "Timeline",
///     "size": { "height": 480, "width": 640 },
///     "tabs": [ 1, 2, 3 ],
///     "zoom": 1.5
///   }
///
/// JSON has no infinities or NaN: such a real is written as null.
class KROCORE_API PropList {
public:
  PropList();
  PropList(const PropList&);
  PropList(PropList&&) noexcept;
  PropList& operator=(const PropList&);
  PropList& operator=(PropList&&) noexcept;
  ~PropList();

  bool Has(std::string_view key) const;
  const PropValue* Find(std::string_view key) const;
  void Set(std::string_view key, PropValue value);
  bool Remove(std::string_view key);
  void Clear() { mEntries.clear(); }

  bool GetBool(std::string_view key, bool fallback) const;
  std::int64_t GetInteger(std::string_view key, std::int64_t fallback) const;
  double GetReal(std::string_view key, double fallback) const;
  std::string GetString(std::string_view key, std::string_view fallback) const;
  /// The nested list under a key, or null.
  const PropList* GetList(std::string_view key) const;

  std::size_t Size() const noexcept { return mEntries.size(); }
  bool IsEmpty() const noexcept { return mEntries.empty(); }
  std::vector<std::string> Keys() const;
  const std::map<std::string, PropValue, std::less<>>& Entries() const noexcept { return mEntries; }

  bool operator==(const PropList& other) const { return mEntries == other.mEntries; }

  /// The stable text form; FromText(ToText()) gives back an equal list.
  std::string ToText() const;
  /// Reads the text form: an object at the top. Nesting deeper than kMaxDepth,
  /// a key given twice, an integer beyond 64 bits and other damage give a
  /// failure that names the line and column, never a partial list.
  static utility::Result<PropList> FromText(std::string_view text);

  static constexpr int kMaxDepth = 64;

private:
  std::map<std::string, PropValue, std::less<>> mEntries;
};

} // namespace krocore::proplist
