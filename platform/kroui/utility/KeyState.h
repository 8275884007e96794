#pragma once

#include <kroui/Export.h>
#include <kroui/base/KeyboardCode.h>
#include <kroui/base/ModifierKeys.h>

#include <cstdint>

namespace kroui::utility {

/// The modifier keys held now (kModKey_Shift, kModKey_Control, kModKey_Alt),
/// as the current backend reads them.
KROUI_API ui::ModifierKeys GetCurrentModKeys();

/// Whether the key with this virtual key is held now; what Windows' GetKeyState
/// answers with its high bit, and, elsewhere, the backend. A generic modifier
/// (0x10, 0x11, 0x12) is held when either side is.
KROUI_API bool IsKeyDown(std::uint32_t virtualKey);
KROUI_API bool IsKeyDown(ui::KeyboardCode key);

} // namespace kroui::utility
