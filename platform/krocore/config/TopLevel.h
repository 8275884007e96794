#pragma once

#include <krocore/Export.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace krocore::config {

/// The platform's null-pointer failure: thrown where a pointer that cannot be
/// tolerated is missing, and contained by ExecuteTopLevelFunction.
class KROCORE_API NullPtrException : public std::logic_error {
public:
  explicit NullPtrException(const std::string& typeName);
  const std::string& GetTypeName() const noexcept { return mTypeName; }

private:
  std::string mTypeName;
};

[[noreturn]] KROCORE_API void DoThrowNullPtrException(std::string_view typeName);

/// Runs a top-level task (a command, a queued message, an event handler).
/// An exception that escapes it is caught and reported as an assertion, so
/// that one failing task never takes the application down. Returns whether
/// the task finished without an exception.
KROCORE_API bool ExecuteTopLevelFunction(const std::function<void()>& task);

/// The client application's name, as shown to the user ("ZEL Gallery").
KROCORE_API std::string GetClientName();
KROCORE_API void SetClientName(std::string name);

} // namespace krocore::config
