#pragma once

#include <krocore/Export.h>

#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace krocore::debug {

/// One failed assertion: what went wrong, where, and in which operation
/// ("ZEL::SubView::GetBounds", trimmed of return type and parameters).
struct AssertionReport {
  std::string message;
  std::string file;
  int line = 0;
  std::string operation;
};

using AssertionHandler = std::function<void(const AssertionReport&)>;

/// Reports a failed assertion to the installed handler (by default: print to
/// stderr), breaks into a debugger when one is attached, and returns so that
/// the caller can go on with a neutral result.
KROCORE_API void ReportAssertion(std::string_view message, const char* file, int line, const char* prettyFunction);

/// Installs a handler and returns the previous one; an empty handler restores the default.
KROCORE_API AssertionHandler SetAssertionHandler(AssertionHandler handler);

KROCORE_API bool IsDebuggerAttached();

/// "bool ZEL::SubView::GetBounds(Rect&) const" -> "ZEL::SubView::GetBounds".
KROCORE_API std::string QualifiedOperationName(std::string_view prettyFunction);

/// Records every report made while it lives, instead of printing, so that a
/// test can check the exact message. Restores the previous handler when it goes.
class KROCORE_API ScopedAssertionRecorder {
public:
  ScopedAssertionRecorder();
  ~ScopedAssertionRecorder();
  ScopedAssertionRecorder(const ScopedAssertionRecorder&) = delete;
  ScopedAssertionRecorder& operator=(const ScopedAssertionRecorder&) = delete;

  std::vector<AssertionReport> Reports() const;
  std::size_t Count() const;
  bool Contains(std::string_view message) const;
  void Clear();

private:
  mutable std::mutex mMutex;
  std::vector<AssertionReport> mReports;
  AssertionHandler mPrevious;
};

} // namespace krocore::debug

#define KROCORE_FUNCTION __PRETTY_FUNCTION__

/// Reports `message` when `condition` is false; evaluates to the condition so
/// that callers can return their neutral result: `if (!KROCORE_ASSERT(p, "...")) return {};`
#define KROCORE_ASSERT(condition, message)                                                                 \
  (static_cast<bool>(condition)                                                                            \
       ? true                                                                                              \
       : (::krocore::debug::ReportAssertion((message), __FILE__, __LINE__, KROCORE_FUNCTION), false))

/// Reports `message` unconditionally.
#define KROCORE_FAIL(message) ::krocore::debug::ReportAssertion((message), __FILE__, __LINE__, KROCORE_FUNCTION)
