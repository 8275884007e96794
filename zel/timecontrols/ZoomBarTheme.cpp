#include <zel/timecontrols/ZoomBarTheme.h>

#include <zel/appearance/ColorManager.h>

namespace ZEL {

kromediaui::ZoomBarColors GetZoomBarThemeColors() {
  static const krocore::utility::ImmutableString kTrack{"colors.kls.audio.zoom.bar.control.background"};
  static const krocore::utility::ImmutableString kThumb{"colors.kls.audio.zoom.bar.control.thumb"};
  static const krocore::utility::ImmutableString kThumbActive{"colors.kls.audio.zoom.bar.control.thumb.active"};
  static const krocore::utility::ImmutableString kHandle{"colors.kls.audio.zoom.bar.control.handle"};
  return {ColorManager::GetColorRGBA(kTrack), ColorManager::GetColorRGBA(kThumb),
          ColorManager::GetColorRGBA(kThumbActive), ColorManager::GetColorRGBA(kHandle)};
}

} // namespace ZEL
