#pragma once

#include <krocore/Export.h>
#include <krocore/utility/Result.h>

#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace krocore::console {

/// The registry of the diagnostics console: named commands that take words
/// and answer text. A line is split at spaces; "double quotes" keep spaces.
///
///   ConsoleCommands::Instance().Register("zel.colors", "Lists the colours", handler);
///   ConsoleCommands::Instance().Execute("zel.colors dump \"my file.txt\"");
class KROCORE_API ConsoleCommands {
public:
  using Arguments = std::vector<std::string>;
  using Handler = std::function<std::string(const Arguments& arguments)>;

  static ConsoleCommands& Instance();

  /// Returns false (and asserts) when the name is taken or the handler empty.
  bool Register(std::string_view name, std::string_view help, Handler handler);
  bool Unregister(std::string_view name);
  bool IsRegistered(std::string_view name) const;
  /// Names and help texts, sorted by name.
  std::vector<std::pair<std::string, std::string>> List() const;

  /// Runs a line. An unknown command, a malformed line or a handler that
  /// throws gives a failure with a message; the registry stays usable.
  utility::Result<std::string> Execute(std::string_view line);

  /// Splits a line into words; a failure for an unclosed quote.
  static utility::Result<Arguments> SplitLine(std::string_view line);

private:
  ConsoleCommands() = default;

  struct Entry {
    std::string help;
    Handler handler;
  };
  mutable std::mutex mMutex;
  std::map<std::string, Entry, std::less<>> mCommands;
};

} // namespace krocore::console
