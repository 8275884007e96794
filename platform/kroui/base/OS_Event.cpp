#include <kroui/base/OS_Event.h>

namespace kroui::ui {
namespace {

// Windows packs a client position into lParam as two signed 16-bit halves.
std::intptr_t PackPosition(Point p) {
  const auto low = static_cast<std::uint16_t>(static_cast<std::int16_t>(p.x));
  const auto high = static_cast<std::uint16_t>(static_cast<std::int16_t>(p.y));
  return static_cast<std::intptr_t>((static_cast<std::uint32_t>(high) << 16) | low);
}

std::uintptr_t MainValue(const OS_Event& event) {
  if (event.IsKeyboard()) {
    return event.type == OS_Event::Type::CharacterInput ? event.key.GetCharacter()
                                                        : event.key.GetCode().GetValue(false);
  }
  return static_cast<std::uintptr_t>(event.button);
}

} // namespace

MSG ToMSG(const OS_Event& event) {
  MSG message;
#if defined(_WIN32)
  message.hwnd = event.window;
  message.message = static_cast<UINT>(event.type);
  message.wParam = static_cast<WPARAM>(MainValue(event));
  message.lParam = static_cast<LPARAM>(PackPosition(event.position));
  message.time = static_cast<DWORD>(event.time);
  message.pt = {event.screenPosition.x, event.screenPosition.y};
#else
  message.hwnd = event.window;
  message.message = static_cast<std::uint32_t>(event.type);
  message.wParam = MainValue(event);
  message.lParam = PackPosition(event.position);
  message.time = static_cast<std::uint32_t>(event.time);
  message.pt = {event.screenPosition.x, event.screenPosition.y};
  message.nativeEvent = &event;
#endif
  return message;
}

} // namespace kroui::ui
