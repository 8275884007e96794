#include <kroui/utility/KeyState.h>

#include <kroui/backend/Backend.h>

#if defined(_WIN32)
#include <kroui/os/NativeTypes.h>
#endif

namespace kroui::utility {

ui::ModifierKeys GetCurrentModKeys() { return backend::GetBackend().GetModifierState(); }

bool IsKeyDown(std::uint32_t virtualKey) {
#if defined(_WIN32)
  // The high bit of the state is set while the key is down.
  return (::GetKeyState(static_cast<int>(virtualKey)) & 0x8000) != 0;
#else
  return backend::GetBackend().IsKeyDown(virtualKey);
#endif
}

bool IsKeyDown(ui::KeyboardCode key) { return IsKeyDown(key.GetControlCode(false)); }

} // namespace kroui::utility
