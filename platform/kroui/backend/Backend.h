#pragma once

#include <kroui/Export.h>
#include <kroui/ui/MessageBox.h>
#include <kroui/ui/ModifierKeys.h>

#include <cstdint>
#include <memory>
#include <string_view>

namespace kroui::backend {

/// The one place where kroui reaches an operating system. Everything above it
/// asks the current backend, so the same code runs on a screen or headless:
///
///   kroui::utility::GetCurrentModKeys()  --+
///   kroui::ui::ShowMessageBox(...)       --+-->  GetBackend()  -->  HeadlessBackend (tests, offscreen)
///                                                                   or a backend with real windows
///
/// Used on the UI thread only.
class KROUI_API Backend {
public:
  virtual ~Backend();
  Backend(const Backend&) = delete;
  Backend& operator=(const Backend&) = delete;

  /// The name KRO_BACKEND selects it by ("headless").
  virtual std::string_view GetName() const = 0;

  /// The modifier keys held now: kModKey_Shift, kModKey_Control, kModKey_Alt.
  virtual ui::ModifierKeys GetModifierState() const = 0;

  /// Whether the key with this virtual key (see KeyboardCode) is held now. A
  /// generic modifier (Shift 0x10, Ctrl 0x11, Alt 0x12) is held when either of its sides is.
  virtual bool IsKeyDown(std::uint32_t virtualKey) const = 0;

  /// Shows a modal message box and returns the button that closed it. The
  /// request's type always names an existing button set.
  virtual int ShowMessageBox(const ui::MessageBoxRequest& request) = 0;

protected:
  Backend() = default;
};

/// The current backend; the headless one is made on first use when none was set.
KROUI_API Backend& GetBackend();

/// Replaces the current backend, destroying the previous one. Null drops it,
/// so that the next GetBackend() makes a fresh default.
KROUI_API void SetBackend(std::unique_ptr<Backend> backend);

} // namespace kroui::backend
