#include <zel/timecontrols/ZoomBarTheme.h>

#include <zel/appearance/ColorManager.h>

namespace ZEL {

kromediaui::ZoomBarColors GetZoomBarThemeColors() {
  return {ColorManager::GetColorRGBA(kColor_ZoomBarTrack), ColorManager::GetColorRGBA(kColor_ZoomBarThumb),
          ColorManager::GetColorRGBA(kColor_ZoomBarThumbActive), ColorManager::GetColorRGBA(kColor_ZoomBarHandle)};
}

} // namespace ZEL
