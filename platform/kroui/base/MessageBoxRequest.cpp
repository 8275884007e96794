#include <kroui/base/MessageBoxRequest.h>

#include <array>

namespace kroui::ui {
namespace {

struct ButtonSet {
  std::array<int, 3> buttons;
  std::size_t count;
};

// Indexed by the button bits of a type.
constexpr ButtonSet kButtonSets[] = {
    {{kMessageBoxResult_OK}, 1},
    {{kMessageBoxResult_OK, kMessageBoxResult_Cancel}, 2},
    {{kMessageBoxResult_Abort, kMessageBoxResult_Retry, kMessageBoxResult_Ignore}, 3},
    {{kMessageBoxResult_Yes, kMessageBoxResult_No, kMessageBoxResult_Cancel}, 3},
    {{kMessageBoxResult_Yes, kMessageBoxResult_No}, 2},
    {{kMessageBoxResult_Retry, kMessageBoxResult_Cancel}, 2},
    {{kMessageBoxResult_Cancel, kMessageBoxResult_TryAgain, kMessageBoxResult_Continue}, 3},
};
static_assert(std::size(kButtonSets) == kMessageBox_CancelTryContinue + 1);

#if defined(_WIN32)
static_assert(kMessageBox_YesNoCancel == MB_YESNOCANCEL && kMessageBox_CancelTryContinue == MB_CANCELTRYCONTINUE);
static_assert(kMessageBox_IconWarning == MB_ICONWARNING && kMessageBox_DefaultButton3 == MB_DEFBUTTON3);
static_assert(kMessageBox_TaskModal == MB_TASKMODAL && kMessageBoxResult_Continue == IDCONTINUE);
#endif

} // namespace

std::span<const int> GetMessageBoxButtons(std::uint32_t type) noexcept {
  const std::uint32_t set = type & kMessageBox_ButtonsMask;
  if (set >= std::size(kButtonSets)) return {};
  return std::span<const int>(kButtonSets[set].buttons.data(), kButtonSets[set].count);
}

int GetMessageBoxDefaultButton(std::uint32_t type) noexcept {
  const std::span<const int> buttons = GetMessageBoxButtons(type);
  if (buttons.empty()) return kMessageBoxResult_None;
  const std::size_t position = (type & kMessageBox_DefaultButtonMask) >> 8;
  return position < buttons.size() ? buttons[position] : buttons.front();
}

} // namespace kroui::ui
