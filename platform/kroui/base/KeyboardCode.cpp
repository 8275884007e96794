#include <kroui/base/KeyboardCode.h>

#include <kroui/base/KeyTable.h>

namespace kroui::ui {

bool KeyboardCode::IsPrintable() const noexcept {
  const KeyInfo* key = FindKey(*this);
  return key != nullptr && key->IsPrintable();
}

} // namespace kroui::ui
