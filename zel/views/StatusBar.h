#pragma once

#include <zel/Export.h>
#include <zel/commands/CommandTypes.h>
#include <zel/views/StatusBarMessages.h>

namespace ZEL::StatusBar {

// Text and progress for the host's status line. None of these touches a
// view: each broadcasts its message (StatusBarMessages.h) on
// kStation_StatusBar, where the status line listens. They may be called
// from any thread:
//
//   UI thread:    StatusBar::SetText("Saved") --> listeners, before it returns
//   other thread: StatusBar::SetText("Rendering 40 %") --> main-thread queue
//                 --> listeners, later, on the UI thread (returns at once)

ZEL_API void SetText(const UTF8String& text);
/// Clears `text` if it is still the one shown.
ZEL_API void ClearText(const UTF8String& text);
/// `percent` from 0 to 100.
ZEL_API void SetProgress(const UTF8String& label, unsigned int percent);
ZEL_API void ClearProgress();
ZEL_API void DocumentClosed();

} // namespace ZEL::StatusBar
