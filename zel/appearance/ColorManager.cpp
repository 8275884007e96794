#include <zel/appearance/ColorManager.h>

#include <zel/appearance/ColorRegistry.h>
#include <zel/appearance/ThemeChangedMessage.h>
#include <zel/appearance/ThemeResources.h>

#include <krocore/messaging/Listener.h>
#include <krocore/messaging/Message.h>
#include <krocore/messaging/Station.h>
#include <krocore/resources/ModuleResources.h>
#include <krocore/string/UTFConversion.h>
#include <krocore/threads/MainThread.h>
#include <kroui/theme/Theme.h>
#include <kroui/ui/UI_Window.h>

#include <cmath>
#include <memory>
#include <vector>

namespace ZEL {
namespace {

// Built on first use and never freed: the theme-changed function may run on
// another thread while the process ends.
ColorRegistry& Registry() {
  static ColorRegistry* sRegistry = new ColorRegistry;
  return *sRegistry;
}

std::vector<kroui::ui::ThemeChangedFunctionHandle>& ThemeChangedFunctions() {
  static std::vector<kroui::ui::ThemeChangedFunctionHandle> sFunctions;
  return sFunctions;
}

// May run on any thread: the cache is emptied at once; the message waits for
// the main thread when it is not this one.
void OnThemeChanged() {
  Registry().InvalidateCache();
  if (krocore::threads::CurrentThreadIsMainThread())
    krocore::messaging::BroadcastMessageOnMainThread(kStation_ThemeChanged, ThemeChangedMessage());
  else
    krocore::messaging::AsyncBroadcastMessagePtr(kStation_ThemeChanged,
                                                 std::make_shared<ThemeChangedMessage>());
}

// Every window repaints after a theme change, so that no view keeps the
// colours of the old theme, whether or not it listens to the change itself.
// The message arrives on the main thread, where windows may be touched.
class ThemeRepainter final : public krocore::messaging::Listener {
public:
  ThemeRepainter() { SubscribeTo(kStation_ThemeChanged); }

  void ListenToMessage(const krocore::messaging::Message& message) override {
    if (!message.Is<ThemeChangedMessage>()) return;
    for (kroui::ui::UI_Window* window : kroui::ui::UI_Window::GetAllWindows()) window->GetRoot().Invalidate();
  }
};

std::unique_ptr<ThemeRepainter>& Repainter() {
  static std::unique_ptr<ThemeRepainter> sRepainter;
  return sRepainter;
}

} // namespace

void ColorManager::Initialize() {
  Repainter() = std::make_unique<ThemeRepainter>();
  RegisterColors(ThemeResources::kModule, "zelcolors");
  RegisterColors(ThemeResources::kModule, "appcolors");
  ThemeChangedFunctions().push_back(kroui::ui::InstallThemeChangedFunction(&OnThemeChanged));
}

void ColorManager::Terminate() {
  ThemeChangedFunctions().clear(); // each handle releases its function
  Repainter().reset();
  FlushCache();
}

void ColorManager::RegisterColors(std::string_view module, std::string_view resourceName) {
  const auto bytes = krocore::utility::GetBinaryFromModule(module, ThemeResources::kTableType,
                                                           krocore::string::UTF8to16(resourceName));
  if (bytes.IsEmpty()) return;
  if (Registry().RegisterTable(bytes.AsText())) kroui::ui::Theme::Get().NotifyThemeChanged();
}

void ColorManager::RegisterColor(const Key& key, const ColorInfo& info) { Registry().Register(key, info); }

void ColorManager::SetColor(std::string_view line) {
  Registry().RegisterLine(line);
  kroui::ui::Theme::Get().NotifyThemeChanged();
}

ColorManager::Color ColorManager::GetColor(const Key& key) { return Registry().Get(key); }

kroui::drawbot::ColorRGBA ColorManager::GetColorRGBA(const Key& key) {
  const Color c = GetColor(key);
  return {c.red / 255.0f, c.green / 255.0f, c.blue / 255.0f, 1.0f};
}

unsigned ColorManager::GetBrightness() {
  return static_cast<unsigned>(std::lround(kroui::ui::Theme::Get().GetBrightness() * 100.0));
}

bool ColorManager::IsReversingColors() { return Registry().IsReversing(); }

void ColorManager::FlushCache() { Registry().InvalidateCache(); }

void ColorManager::DumpColors(std::ostream& out) { Registry().Dump(out); }

void ColorManager::ListColors(krocore::UTF16OutputStream& out) { Registry().List(out); }

} // namespace ZEL
