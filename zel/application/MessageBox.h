#pragma once

#include <zel/Export.h>

#include <kroui/os/NativeTypes.h>

#include <cstdint>
#include <string_view>

namespace ZEL {

/// Shows a modal message box through the platform and returns the button
/// that closed it (the platform's kMessageBoxResult_ values). The type is the
/// platform's kMessageBox_ value: buttons, icon and default button.
ZEL_API int MessageBoxW(HWND owner, std::u16string_view text, std::u16string_view caption, std::uint32_t type);

/// The same for UTF-8 text, with the client application's name as caption.
ZEL_API int ShowMessage(std::string_view text, std::uint32_t type);

} // namespace ZEL
