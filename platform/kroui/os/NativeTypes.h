#pragma once

// The native window, module and message types that public interfaces take.
// On Windows they are the OS's own. Elsewhere kroui defines types of the same
// names, so that code written against the Windows names compiles unchanged:
// a window handle points at the backend's window, a message carries the
// backend's event while it is dispatched.

#if defined(_WIN32)

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

#else

#include <cstdint>

namespace kroui::os {

/// Defined by the backend that made the window; opaque to everyone else.
struct NativeWindow;
/// A loaded module (the library or executable that owns resources and window classes).
struct NativeModule;

struct NativePoint {
  long x = 0;
  long y = 0;
};

} // namespace kroui::os

using HWND = kroui::os::NativeWindow*;
using HINSTANCE = kroui::os::NativeModule*;

/// The fields keep the Windows names; `message`, `wParam` and `lParam` hold the
/// backend's event kind and values, and `nativeEvent` the event itself.
struct MSG {
  HWND hwnd = nullptr;
  std::uint32_t message = 0;
  std::uintptr_t wParam = 0;
  std::intptr_t lParam = 0;
  std::uint32_t time = 0;
  kroui::os::NativePoint pt;
  const void* nativeEvent = nullptr;
};

#endif
