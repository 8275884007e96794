#include <kroui/utility/OS_ResourceManager.h>

#include <kroui/utility/PlatformCursorArtImpl.h>

namespace kroui::utility {

OS_ResourceManager::OS_ResourceManager(std::string module) : ResourceManager(std::move(module)) {
  RegisterCursor(kOSArrow, nullptr);
  for (const PlatformCursorArt& art : GetPlatformCursorArt()) {
    RegisterLazyCursor(art.id, [&art] {
      CursorCanvas canvas;
      art.draw(canvas, {static_cast<float>(art.hotSpot.x), static_cast<float>(art.hotSpot.y)});
      return ui::Cursor::CreateSystem(art.shape, canvas.Finish(), art.hotSpot);
    });
  }
}

OS_ResourceManager::~OS_ResourceManager() = default;

void OS_ResourceManager::ShowPlatformCursor(bool show, bool counted, bool untilPointerMoves) {
  ui::ShowPointer(show, counted, untilPointerMoves);
}

bool OS_ResourceManager::IsPlatformCursorShown() { return ui::IsPointerShown(); }

} // namespace kroui::utility
