#pragma once

#include <zel/Export.h>
#include <zel/appearance/ColorCache.h>
#include <zel/appearance/ColorManager.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <map>
#include <set>
#include <string_view>
#include <vector>

namespace ZEL {

/// The state behind ColorManager: the records by key, the cache, and the
/// evaluation of formulas. ColorManager keeps one for the process; a fuzz
/// target or a benchmark may keep its own.
///
/// A formula that reaches its own key again, directly or through others
/// (colors.a = $MAP(colors.b), colors.b = $MAP(colors.a)), or that nests past
/// kMaxNesting, is reported once through the debug assertion, and every key
/// on that loop answers red; a key that only depends on the loop takes red
/// as that colour.
class ZEL_API ColorRegistry {
public:
  using Color = ColorManager::Color;
  using Key = ColorManager::Key;
  using ColorInfo = ColorManager::ColorInfo;

  static constexpr std::size_t kMaxNesting = 64;

  ColorRegistry() = default;
  ColorRegistry(const ColorRegistry&) = delete;
  ColorRegistry& operator=(const ColorRegistry&) = delete;

  /// Registers each accepted line of a table; returns whether there was any
  /// line at all (even one ignored), which is when the caller notifies.
  bool RegisterTable(std::string_view text);
  /// Registers one line; false when the line is not accepted.
  bool RegisterLine(std::string_view line);
  void Register(const Key& key, const ColorInfo& info);

  Color Get(const Key& key);
  bool IsReversing();

  /// Empties the cache. Safe on any thread: the cache is emptied by the next
  /// look-up on the main thread, before it reads anything.
  void InvalidateCache() noexcept { mGeneration.fetch_add(1, std::memory_order_release); }

  const std::map<Key, ColorInfo>& GetRecords() const noexcept { return mRecords; }

  void Dump(std::ostream& out) const;
  void List(krocore::UTF16OutputStream& out) const;

private:
  Color Resolve(const Key& key);
  Color EvaluateRecord(const Key& key, const std::string& expression);
  Color ReportOnce(const Key& key, std::string_view problem);
  void SyncCache() noexcept;

  std::map<Key, ColorInfo> mRecords;
  ColorCache mCache;
  std::atomic<std::uint64_t> mGeneration{0};
  std::uint64_t mCacheGeneration = 0;

  std::vector<Key> mEvaluating; // the keys under evaluation, outermost first
  std::set<Key> mOnLoop;        // keys under evaluation that a loop found runs through
  std::set<Key> mReportedLoops;
};

} // namespace ZEL
