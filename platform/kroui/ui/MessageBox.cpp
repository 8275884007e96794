#include <kroui/ui/MessageBox.h>

#include <kroui/backend/Backend.h>

#include <krocore/debug/Assert.h>

#include <string>

namespace kroui::ui {

int ShowMessageBox(HWND owner, std::u16string_view text, std::u16string_view caption, std::uint32_t type) {
  if (!KROCORE_ASSERT(!GetMessageBoxButtons(type).empty(), "ShowMessageBox: the type names no button set")) {
    return kMessageBoxResult_None;
  }
  return backend::GetBackend().ShowMessageBox(
      MessageBoxRequest{owner, std::u16string(text), std::u16string(caption), type});
}

} // namespace kroui::ui
