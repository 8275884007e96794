#pragma once

#include <kroui/Export.h>
#include <kroui/base/MessageBoxRequest.h>
#include <kroui/os/NativeTypes.h>

#include <cstdint>
#include <string_view>

namespace kroui::ui {

/// Shows a modal message box through the backend and returns the button that
/// closed it. A type whose button set does not exist is the caller's mistake:
/// it is reported and nothing is shown (kMessageBoxResult_None). UI thread only.
KROUI_API int ShowMessageBox(HWND owner, std::u16string_view text, std::u16string_view caption,
                             std::uint32_t type);

} // namespace kroui::ui
