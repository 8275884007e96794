#include <krocore/config/TopLevel.h>

#include <krocore/debug/Assert.h>

#include <mutex>

namespace krocore::config {

NullPtrException::NullPtrException(const std::string& typeName)
    : std::logic_error("Null pointer of type " + typeName), mTypeName(typeName) {}

void DoThrowNullPtrException(std::string_view typeName) { throw NullPtrException(std::string(typeName)); }

bool ExecuteTopLevelFunction(const std::function<void()>& task) {
  try {
    if (task) task();
    return true;
  } catch (const std::exception& e) {
    KROCORE_FAIL(std::string("Exception escaped a top-level task: ") + e.what());
  } catch (...) {
    KROCORE_FAIL("Unknown exception escaped a top-level task");
  }
  return false;
}

namespace {
std::mutex sClientNameMutex;
std::string sClientName = "ZEL";
} // namespace

std::string GetClientName() {
  std::lock_guard lock(sClientNameMutex);
  return sClientName;
}

void SetClientName(std::string name) {
  std::lock_guard lock(sClientNameMutex);
  sClientName = std::move(name);
}

} // namespace krocore::config
