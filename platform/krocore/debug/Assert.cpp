#include <krocore/debug/Assert.h>

#include <csignal>
#include <cstdio>
#include <fstream>
#include <string>

#if defined(_WIN32)
#include <windows.h>
#endif

namespace krocore::debug {
namespace {

std::mutex& HandlerMutex() {
  static std::mutex mutex;
  return mutex;
}

AssertionHandler& Handler() {
  static AssertionHandler handler;
  return handler;
}

void PrintReport(const AssertionReport& report) {
  std::fprintf(stderr, "Assertion failed: %s\n  in %s\n  at %s:%d\n", report.message.c_str(),
               report.operation.c_str(), report.file.c_str(), report.line);
}

void BreakIntoDebugger() {
#if defined(_WIN32)
  __debugbreak();
#else
  std::raise(SIGTRAP);
#endif
}

} // namespace

bool IsDebuggerAttached() {
#if defined(_WIN32)
  return ::IsDebuggerPresent() != 0;
#else
  std::ifstream status("/proc/self/status");
  std::string line;
  while (std::getline(status, line))
    if (line.rfind("TracerPid:", 0) == 0) return std::stol(line.substr(10)) != 0;
  return false;
#endif
}

std::string QualifiedOperationName(std::string_view pretty) {
  // Cut the parameter list: the first '(' outside template brackets, except
  // the one of "operator()".
  int depth = 0;
  std::size_t end = pretty.size();
  for (std::size_t i = 0; i < pretty.size(); ++i) {
    const char c = pretty[i];
    if (c == '<') ++depth;
    else if (c == '>' && depth > 0) --depth;
    else if (c == '(' && depth == 0) {
      if (i >= 8 && pretty.substr(i - 8, 8) == "operator" && pretty.substr(i, 2) == "()") { ++i; continue; }
      end = i;
      break;
    }
  }
  // Cut the return type: the last space outside template brackets.
  std::size_t begin = 0;
  depth = 0;
  for (std::size_t i = end; i-- > 0;) {
    const char c = pretty[i];
    if (c == '>') ++depth;
    else if (c == '<' && depth > 0) --depth;
    else if (c == ' ' && depth == 0) { begin = i + 1; break; }
  }
  return std::string(pretty.substr(begin, end - begin));
}

void ReportAssertion(std::string_view message, const char* file, int line, const char* prettyFunction) {
  AssertionReport report{std::string(message), file ? file : "", line,
                         QualifiedOperationName(prettyFunction ? prettyFunction : "")};
  AssertionHandler handler;
  {
    std::lock_guard lock(HandlerMutex());
    handler = Handler();
  }
  if (handler) handler(report);
  else PrintReport(report);
  if (IsDebuggerAttached()) BreakIntoDebugger();
}

AssertionHandler SetAssertionHandler(AssertionHandler handler) {
  std::lock_guard lock(HandlerMutex());
  AssertionHandler previous = std::move(Handler());
  Handler() = std::move(handler);
  return previous;
}

ScopedAssertionRecorder::ScopedAssertionRecorder() {
  mPrevious = SetAssertionHandler([this](const AssertionReport& report) {
    std::lock_guard lock(mMutex);
    mReports.push_back(report);
  });
}

ScopedAssertionRecorder::~ScopedAssertionRecorder() { SetAssertionHandler(std::move(mPrevious)); }

std::vector<AssertionReport> ScopedAssertionRecorder::Reports() const {
  std::lock_guard lock(mMutex);
  return mReports;
}

std::size_t ScopedAssertionRecorder::Count() const {
  std::lock_guard lock(mMutex);
  return mReports.size();
}

bool ScopedAssertionRecorder::Contains(std::string_view message) const {
  std::lock_guard lock(mMutex);
  for (const auto& report : mReports)
    if (report.message == message) return true;
  return false;
}

void ScopedAssertionRecorder::Clear() {
  std::lock_guard lock(mMutex);
  mReports.clear();
}

} // namespace krocore::debug
