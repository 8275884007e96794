#include <zel/application/MessageBox.h>

#include <krocore/config/TopLevel.h>
#include <krocore/string/UTFConversion.h>
#include <kroui/ui/MessageBox.h>

namespace ZEL {

int MessageBoxW(HWND owner, std::u16string_view text, std::u16string_view caption, std::uint32_t type) {
  return kroui::ui::ShowMessageBox(owner, text, caption, type);
}

int ShowMessage(std::string_view text, std::uint32_t type) {
  return MessageBoxW(nullptr, krocore::string::UTF8to16(text),
                     krocore::string::UTF8to16(krocore::config::GetClientName()), type);
}

} // namespace ZEL
