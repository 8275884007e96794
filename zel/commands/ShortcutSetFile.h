#pragma once

#include <zel/Export.h>
#include <zel/commands/KeySpec.h>

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace ZEL {

class CommandContext;
class ShortcutManager;

/// One shortcut set file (".kys"): the shortcuts of every command context,
/// in the host's XML property store:
///
///   "platform"                 the OS the set was made on ("windows", "linux", "mac")
///   "context.<context name>"   a group per context
///     "itemcount"              how many items follow
///     "item.<0..n-1>"          one group per shortcut
///       "commandname", "virtualkey", "modifier.alt", "modifier.shift", "modifier.ctrl"
///
/// Reading never touches the shortcuts in force: it gives the set as read,
/// and the manager applies it only when the whole file was good.
class ZEL_API ShortcutSetFile {
public:
  /// The value of "platform" this build writes. Sets from any system with
  /// the same modifier convention (Control, or Command in its place) are read.
  static const char* GetPlatformName() noexcept;

  enum class Failure { None, Invalid, IncompatibleVersion, OtherPlatform };

  /// A set as read: the new shortcuts of each context that the file holds,
  /// by command name, and how many items could not be used.
  struct ReadSet {
    Failure failure = Failure::None;
    std::vector<std::pair<CommandContext*, std::map<std::string, std::vector<KeySpec>>>> contexts;
    std::size_t skippedItems = 0;
  };

  static ReadSet Read(const ShortcutManager& manager, const std::filesystem::path& path);
  /// The same for the bytes of a file already in memory.
  static ReadSet ReadBytes(const ShortcutManager& manager, std::string_view bytes);
  static bool Write(const ShortcutManager& manager, const std::filesystem::path& path);

private:
  template <typename Load>
  static ReadSet ReadWith(const ShortcutManager& manager, const Load& load);
};

} // namespace ZEL
