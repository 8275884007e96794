#pragma once

#include <kroui/Export.h>

#include <cstddef>
#include <cstdint>
#include <functional>

namespace kroui::ui {

/// Ownership of one function installed with InstallThemeChangedFunction: the
/// function stays installed while the handle lives or until Release. Once
/// Release returns, the function is not running on any thread and is not
/// called again.
class KROUI_API ThemeChangedFunctionHandle {
public:
  ThemeChangedFunctionHandle() = default;
  ~ThemeChangedFunctionHandle();
  ThemeChangedFunctionHandle(ThemeChangedFunctionHandle&& other) noexcept;
  ThemeChangedFunctionHandle& operator=(ThemeChangedFunctionHandle&& other) noexcept;
  ThemeChangedFunctionHandle(const ThemeChangedFunctionHandle&) = delete;
  ThemeChangedFunctionHandle& operator=(const ThemeChangedFunctionHandle&) = delete;

  bool IsInstalled() const noexcept { return mID != 0; }
  void Release();

private:
  friend KROUI_API ThemeChangedFunctionHandle InstallThemeChangedFunction(std::function<void()> function);
  explicit ThemeChangedFunctionHandle(std::uint64_t id) noexcept : mID(id) {}

  std::uint64_t mID = 0;
};

/// Installs a function that Theme::NotifyThemeChanged calls, on the thread
/// that notifies, which may be any thread.
[[nodiscard]] KROUI_API ThemeChangedFunctionHandle
InstallThemeChangedFunction(std::function<void()> function);

/// Calls every installed function, in installation order. Theme::NotifyThemeChanged comes here.
KROUI_API void CallThemeChangedFunctions();

/// How many functions are installed.
KROUI_API std::size_t GetThemeChangedFunctionCount();

} // namespace kroui::ui
