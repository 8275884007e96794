// Starts the installed framework, puts one view into a headless window and
// says so: proof that the installed headers compile and the installed
// libraries load and run.
#include <zel/ZEL.h>

#include <backends/headless/HeadlessBackend.h>
#include <kroui/ui/UI_Window.h>

#include <cstdio>
#include <memory>

int main() {
  kroui::backend::HeadlessBackend::Install();
  const ZEL::Initializer framework;
  kroui::backend::WindowDescription description;
  description.title = "ZEL consumer";
  description.bounds = {0, 0, 64, 48};
  auto window = std::make_unique<kroui::ui::UI_Window>(description);
  auto background = std::make_shared<ZEL::BackgroundView>(ZEL::CommanderWeakPtr());
  background->Create(kroui::ui::RefCountedWeakPtr<kroui::ui::UI_Container>(&window->GetRoot()), {0, 0, 64, 48});
  background->SetBackgroundColor(ZEL::BackgroundView::Color(10, 20, 30));
  window->Show();
  window->PaintNow();
  std::printf("zel consumer: view %s\n", background->IsCreated() ? "created" : "missing");
  background.reset();
  window.reset();
  return 0;
}
