// A theme change as the user makes it: the colour cache empties, the change
// is broadcast on "zel.theme", and 100 listening nodes of a window ask for
// their colour again and invalidate themselves; then, the repaint it causes.
#include <zel/appearance/ColorManager.h>
#include <zel/appearance/ThemeChangedMessage.h>
#include <zel/appearance/ThemeResources.h>

#include <krocore/messaging/Listener.h>
#include <kroui/drawbot/Drawbot.h>
#include <kroui/theme/Theme.h>
#include <kroui/ui/UI_Container.h>
#include <kroui/ui/UI_Window.h>

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <memory>
#include <vector>

namespace {

using ZEL::ColorManager;

// A node painted in a registry colour, repainted when the theme changes.
class ThemedNode : public kroui::ui::UI_Container, private krocore::messaging::Listener {
public:
  ThemedNode() {
    SubscribeTo(ZEL::kStation_ThemeChanged);
    Refresh();
  }

private:
  void ListenToMessage(const krocore::messaging::Message& message) override {
    if (message.Is<ZEL::ThemeChangedMessage>()) Refresh();
  }
  void Refresh() {
    mColor = ColorManager::GetColorRGBA("colors.kls.kro.ListBox.Background");
    Invalidate();
  }
  void PaintSelf(kroui::drawbot::Drawbot& drawbot) override {
    const auto bounds = GetLocalBounds();
    drawbot.FillRect({0, 0, static_cast<float>(bounds.Width()), static_cast<float>(bounds.Height())}, mColor);
  }

  kroui::drawbot::ColorRGBA mColor;
};

struct ThemedWindow {
  std::unique_ptr<kroui::ui::UI_Window> window;

  ThemedWindow() {
    if (!ZEL::ThemeResources::Install()) std::abort();
    ColorManager::Initialize();
    kroui::backend::WindowDescription description;
    description.title = "Themed";
    description.bounds = {0, 0, 1000, 400};
    window = std::make_unique<kroui::ui::UI_Window>(description);
    for (int i = 0; i < 100; ++i)
      window->GetRoot().InsertChild(krocore::MakeIntrusive<ThemedNode>(),
                                    {(i % 10) * 100, (i / 10) * 40, (i % 10) * 100 + 100, (i / 10) * 40 + 40});
    window->Show();
    window->PaintNow();
  }
  ~ThemedWindow() {
    window.reset();
    ColorManager::Terminate();
  }
};

void BM_ThemeChangeReaching100Nodes(benchmark::State& state) {
  ThemedWindow themed;
  for (auto _ : state) kroui::ui::Theme::Get().NotifyThemeChanged();
}
BENCHMARK(BM_ThemeChangeReaching100Nodes);

void BM_ThemeChangeAndRepaint(benchmark::State& state) {
  ThemedWindow themed;
  for (auto _ : state) {
    kroui::ui::Theme::Get().NotifyThemeChanged();
    themed.window->PaintNow();
  }
}
BENCHMARK(BM_ThemeChangeAndRepaint)->Unit(benchmark::kMicrosecond);

} // namespace
