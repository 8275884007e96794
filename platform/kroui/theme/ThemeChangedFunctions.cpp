#include <kroui/theme/ThemeChangedFunctions.h>

#include <algorithm>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace kroui::ui {
namespace {

// One installed function. Calling and releasing take its own lock, so that a
// release waits for a call under way on another thread; the lock is recursive
// so that a function may release itself.
struct Installed {
  std::uint64_t id = 0;
  std::function<void()> function;
  std::recursive_mutex callLock;
  bool released = false;
};

class Registry {
public:
  static Registry& Instance() {
    static Registry* sRegistry = new Registry; // never destroyed: handles may outlive static destruction
    return *sRegistry;
  }

  std::uint64_t Install(std::function<void()> function) {
    auto installed = std::make_shared<Installed>();
    installed->function = std::move(function);
    std::lock_guard lock(mLock);
    installed->id = ++mLastID;
    mFunctions.push_back(installed);
    return installed->id;
  }

  void Release(std::uint64_t id) {
    std::shared_ptr<Installed> installed;
    {
      std::lock_guard lock(mLock);
      const auto found =
          std::find_if(mFunctions.begin(), mFunctions.end(), [&](const auto& f) { return f->id == id; });
      if (found == mFunctions.end()) return;
      installed = *found;
      mFunctions.erase(found);
    }
    std::lock_guard callLock(installed->callLock);
    installed->released = true;
  }

  void CallAll() {
    std::vector<std::shared_ptr<Installed>> functions;
    {
      std::lock_guard lock(mLock);
      functions = mFunctions;
    }
    for (const auto& installed : functions) {
      std::lock_guard callLock(installed->callLock);
      if (!installed->released && installed->function) installed->function();
    }
  }

  std::size_t Count() const {
    std::lock_guard lock(mLock);
    return mFunctions.size();
  }

private:
  mutable std::mutex mLock;
  std::vector<std::shared_ptr<Installed>> mFunctions;
  std::uint64_t mLastID = 0;
};

} // namespace

ThemeChangedFunctionHandle::~ThemeChangedFunctionHandle() { Release(); }

ThemeChangedFunctionHandle::ThemeChangedFunctionHandle(ThemeChangedFunctionHandle&& other) noexcept
    : mID(std::exchange(other.mID, 0)) {}

ThemeChangedFunctionHandle&
ThemeChangedFunctionHandle::operator=(ThemeChangedFunctionHandle&& other) noexcept {
  if (this != &other) {
    Release();
    mID = std::exchange(other.mID, 0);
  }
  return *this;
}

void ThemeChangedFunctionHandle::Release() {
  if (mID != 0) Registry::Instance().Release(std::exchange(mID, 0));
}

ThemeChangedFunctionHandle InstallThemeChangedFunction(std::function<void()> function) {
  return ThemeChangedFunctionHandle(Registry::Instance().Install(std::move(function)));
}

void CallThemeChangedFunctions() { Registry::Instance().CallAll(); }

std::size_t GetThemeChangedFunctionCount() { return Registry::Instance().Count(); }

} // namespace kroui::ui
