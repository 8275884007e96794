#pragma once

// Private: the state behind a UI_Window, and its two working parts.

#include <kroui/backend/BackendTypes.h>
#include <kroui/ui/UI_Window.h>
#include <kroui/ui/WindowInputRouterImpl.h>
#include <kroui/ui/WindowPainterImpl.h>

#include <krocore/pointers/IntrusivePtr.h>

#include <cstdint>

namespace kroui::ui {

struct UI_WindowImpl {
  UI_WindowImpl(UI_Window& front, const backend::WindowDescription& made);
  UI_WindowImpl(const UI_WindowImpl&) = delete;
  UI_WindowImpl& operator=(const UI_WindowImpl&) = delete;

  /// Whether the backend that made the native window is still the current one.
  bool IsBackendCurrent() const noexcept;
  /// The native window when the current backend made it; null otherwise, when
  /// the backend must not be asked about it.
  HWND GetLiveNative() const noexcept;

  UI_Window& window;
  backend::WindowDescription description;
  HWND native = nullptr;
  std::uint64_t backendGeneration = 0;
  krocore::IntrusivePtr<UI_Container> root;
  backend::Rect screenBounds;
  bool isShown = false;
  bool isActive = false;
  UI_Window::EventHook eventHook;
  UI_Window::CloseHook closeHook;

  WindowPainter painter;
  WindowInputRouter input;
};

} // namespace kroui::ui
