#include <krocore/console/ConsoleCommands.h>

#include <krocore/debug/Assert.h>

#include <exception>

namespace krocore::console {

using utility::Result;

ConsoleCommands& ConsoleCommands::Instance() {
  static ConsoleCommands commands;
  return commands;
}

bool ConsoleCommands::Register(std::string_view name, std::string_view help, Handler handler) {
  if (!KROCORE_ASSERT(!name.empty() && handler, "A console command needs a name and a handler")) return false;
  std::lock_guard lock(mMutex);
  if (!KROCORE_ASSERT(mCommands.find(name) == mCommands.end(),
                      "Console command \"" + std::string(name) + "\" is already registered"))
    return false;
  mCommands.emplace(std::string(name), Entry{std::string(help), std::move(handler)});
  return true;
}

bool ConsoleCommands::Unregister(std::string_view name) {
  std::lock_guard lock(mMutex);
  auto it = mCommands.find(name);
  if (it == mCommands.end()) return false;
  mCommands.erase(it);
  return true;
}

bool ConsoleCommands::IsRegistered(std::string_view name) const {
  std::lock_guard lock(mMutex);
  return mCommands.find(name) != mCommands.end();
}

std::vector<std::pair<std::string, std::string>> ConsoleCommands::List() const {
  std::lock_guard lock(mMutex);
  std::vector<std::pair<std::string, std::string>> list;
  for (const auto& [name, entry] : mCommands) list.emplace_back(name, entry.help);
  return list;
}

Result<ConsoleCommands::Arguments> ConsoleCommands::SplitLine(std::string_view line) {
  Arguments words;
  std::string word;
  bool inWord = false, quoted = false;
  for (char c : line) {
    if (c == '"') {
      quoted = !quoted;
      inWord = true;
    } else if ((c == ' ' || c == '\t') && !quoted) {
      if (inWord) words.push_back(std::move(word));
      word.clear();
      inWord = false;
    } else {
      word += c;
      inWord = true;
    }
  }
  if (quoted) return Result<Arguments>::Failure("A quote is not closed");
  if (inWord) words.push_back(std::move(word));
  return Result<Arguments>::Success(std::move(words));
}

Result<std::string> ConsoleCommands::Execute(std::string_view line) {
  auto words = SplitLine(line);
  if (!words) return Result<std::string>::Failure(words.Error());
  if (words.Value().empty()) return Result<std::string>::Failure("No command was given");
  Handler handler;
  {
    std::lock_guard lock(mMutex);
    auto it = mCommands.find(words.Value().front());
    if (it == mCommands.end())
      return Result<std::string>::Failure("Unknown command \"" + words.Value().front() + "\"");
    handler = it->second.handler; // a copy: the handler may unregister itself
  }
  const Arguments arguments(words.Value().begin() + 1, words.Value().end());
  try {
    return Result<std::string>::Success(handler(arguments));
  } catch (const std::exception& e) {
    return Result<std::string>::Failure("The command failed: " + std::string(e.what()));
  } catch (...) {
    return Result<std::string>::Failure("The command failed");
  }
}

} // namespace krocore::console
