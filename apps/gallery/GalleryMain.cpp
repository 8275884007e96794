// The gallery: a host that builds one window out of the framework's parts,
// a panel per family. Until a windowed backend exists it runs headless and
// writes the window it drew to a PNG file (the first argument, or gallery.png).
#include "GalleryPanels.h"

#include <zel/commands/ShortcutManager.h>
#include <zel/views/BackgroundView.h>
#include <zel/views/Initializer.h>
#include <zel/views/ScrollBar.h>

#include <backends/headless/HeadlessBackend.h>
#include <krocore/config/TopLevel.h>
#include <kroui/ui/UI_Window.h>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <vector>

namespace {

using Rect = ZEL::SubView::Rect;

void DeclareSampleCommands() {
  auto& app = ZEL::ShortcutManager::Instance()->GetGlobalContext();
  struct Sample {
    const char* name;
    int id;
    const char* text;
    ZEL::KeySpec key;
  };
  for (const Sample& s : {Sample{"edit.undo", ZEL::kCommand_Undo, "Undo", ZEL::KeySpec(0x5A, true, false, false)},
                          Sample{"edit.redo", ZEL::kCommand_Redo, "Redo", ZEL::KeySpec(0x5A, true, false, true)},
                          Sample{"clip.split", 500, "Split Clip", ZEL::KeySpec(0x4B, true, false, false)},
                          Sample{"marker.add", 501, "Add Marker", ZEL::KeySpec(0x4D, false, false, false)},
                          Sample{"play.toggle", 502, "Play/Stop", ZEL::KeySpec(0x20, false, false, false)},
                          Sample{"view.zoomfit", 503, "Zoom to Sequence", ZEL::KeySpec(0xDC, false, false, false)}}) {
    app.DeclareCommandLocalized(s.name, s.id, ZEL::CommandKind::Menu, s.text, {}, false);
    app.SetCommandShortcuts(s.name, {s.key});
  }
}

template <typename PanelType>
std::shared_ptr<PanelType> AddPanel(const std::shared_ptr<ZEL::BackgroundView>& parent, const char* caption,
                                    const Rect& bounds) {
  auto panel = std::make_shared<PanelType>(caption, parent);
  panel->Create(parent, bounds);
  return panel;
}

int RunGallery(const std::filesystem::path& output) {
  auto& headless = kroui::backend::HeadlessBackend::Install();
  // Outlives every view below: it stops the framework last.
  const ZEL::Initializer framework;
  ZEL::ShortcutManager::Initialize();
  DeclareSampleCommands();

  kroui::backend::WindowDescription description;
  description.title = "ZEL Gallery";
  description.bounds = {0, 0, 980, 680};
  auto window = std::make_unique<kroui::ui::UI_Window>(description);

  auto background = std::make_shared<ZEL::BackgroundView>(ZEL::CommanderWeakPtr());
  background->Create(kroui::ui::RefCountedWeakPtr<kroui::ui::UI_Container>(&window->GetRoot()), {0, 0, 980, 680});
  background->SetBackgroundColorID("colors.kls.TabDock.Well");
  std::vector<std::shared_ptr<ZEL::ViewBase>> views{
      AddPanel<Gallery::TimecodePanel>(background, "Timecode", {10, 10, 480, 230}),
      AddPanel<Gallery::ShortcutPanel>(background, "Shortcuts", {490, 10, 970, 230}),
      AddPanel<Gallery::SwatchPanel>(background, "Colours", {10, 240, 480, 520}),
      AddPanel<Gallery::CursorPanel>(background, "Cursors", {490, 240, 970, 400})};
  auto zoom = AddPanel<Gallery::ZoomPanel>(background, "Zoom", {10, 530, 970, 670});
  zoom->AddPieces();
  views.push_back(zoom);
  auto scrollBar = std::make_shared<ZEL::ScrollBar>(background);
  scrollBar->Create(background, {490, 410, 970, 410 + ZEL::ScrollBar::GetDefaultSize()},
                    ZEL::ScrollBar::Orientation::Horizontal, 1);
  scrollBar->SetScrollParameters(0, 1000, 250, 10);
  scrollBar->SetScrollBarPosition(300, false);

  window->Show();
  window->PaintNow();
  const auto written = headless.WriteWindowPNG(window->GetNativeWindow(), output);
  if (written) std::printf("The gallery was drawn into %s\n", output.string().c_str());
  else std::fprintf(stderr, "The gallery could not be written: %s\n", written.Error().c_str());

  scrollBar.reset();
  views.clear();
  background.reset();
  window.reset();
  ZEL::ShortcutManager::Finalize();
  return written ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
  krocore::config::SetClientName("ZEL Gallery");
  return RunGallery(argc > 1 ? argv[1] : "gallery.png");
}
