#pragma once

// What a message box shows and what it answers: the request the backend
// receives, and the button tables both sides read.

#include <kroui/Export.h>
#include <kroui/os/NativeTypes.h>

#include <cstdint>
#include <span>
#include <string>

namespace kroui::ui {

// A message box type is Windows' value, bit for bit, on every OS:
//   bits 0..3   which buttons           (kMessageBox_OK ... kMessageBox_CancelTryContinue)
//   bits 4..7   which icon              (kMessageBox_Icon...)
//   bits 8..11  which button is default (kMessageBox_DefaultButton1..4, counted from the left)
//   bits 12..13 modality                (kMessageBox_SystemModal, kMessageBox_TaskModal)
inline constexpr std::uint32_t kMessageBox_OK = 0x0;
inline constexpr std::uint32_t kMessageBox_OKCancel = 0x1;
inline constexpr std::uint32_t kMessageBox_AbortRetryIgnore = 0x2;
inline constexpr std::uint32_t kMessageBox_YesNoCancel = 0x3;
inline constexpr std::uint32_t kMessageBox_YesNo = 0x4;
inline constexpr std::uint32_t kMessageBox_RetryCancel = 0x5;
inline constexpr std::uint32_t kMessageBox_CancelTryContinue = 0x6;
inline constexpr std::uint32_t kMessageBox_ButtonsMask = 0xF;

inline constexpr std::uint32_t kMessageBox_IconError = 0x10;
inline constexpr std::uint32_t kMessageBox_IconQuestion = 0x20;
inline constexpr std::uint32_t kMessageBox_IconWarning = 0x30;
inline constexpr std::uint32_t kMessageBox_IconInformation = 0x40;
inline constexpr std::uint32_t kMessageBox_IconMask = 0xF0;

inline constexpr std::uint32_t kMessageBox_DefaultButton1 = 0x000;
inline constexpr std::uint32_t kMessageBox_DefaultButton2 = 0x100;
inline constexpr std::uint32_t kMessageBox_DefaultButton3 = 0x200;
inline constexpr std::uint32_t kMessageBox_DefaultButton4 = 0x300;
inline constexpr std::uint32_t kMessageBox_DefaultButtonMask = 0xF00;

inline constexpr std::uint32_t kMessageBox_ApplicationModal = 0x0000;
inline constexpr std::uint32_t kMessageBox_SystemModal = 0x1000;
inline constexpr std::uint32_t kMessageBox_TaskModal = 0x2000;

// The button that closed the box, as Windows numbers it; 0 means no box was shown.
inline constexpr int kMessageBoxResult_None = 0;
inline constexpr int kMessageBoxResult_OK = 1;
inline constexpr int kMessageBoxResult_Cancel = 2;
inline constexpr int kMessageBoxResult_Abort = 3;
inline constexpr int kMessageBoxResult_Retry = 4;
inline constexpr int kMessageBoxResult_Ignore = 5;
inline constexpr int kMessageBoxResult_Yes = 6;
inline constexpr int kMessageBoxResult_No = 7;
inline constexpr int kMessageBoxResult_TryAgain = 10;
inline constexpr int kMessageBoxResult_Continue = 11;

/// One message box, as the caller asked for it.
struct MessageBoxRequest {
  HWND owner = nullptr;
  std::u16string text;
  std::u16string caption;
  std::uint32_t type = kMessageBox_OK;
};

/// The buttons a type shows, left to right; empty for a button set that does not exist.
KROUI_API std::span<const int> GetMessageBoxButtons(std::uint32_t type) noexcept;

/// The button that Enter presses: the one the type makes default, or the first
/// when the type names a button past the last. kMessageBoxResult_None for a
/// button set that does not exist.
KROUI_API int GetMessageBoxDefaultButton(std::uint32_t type) noexcept;

} // namespace kroui::ui
