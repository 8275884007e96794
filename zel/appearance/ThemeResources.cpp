#include <zel/appearance/ThemeResources.h>

#include <kroui/theme/Theme.h>

#include <initializer_list>

namespace ZEL {

krocore::utility::Result<void> ThemeResources::Install(Variant variant) {
  std::initializer_list<std::u16string_view> standard = {kLegacyPalette, kCurrentPalette};
  std::initializer_list<std::u16string_view> highContrast = {kLegacyPalette, kCurrentPalette,
                                                             kHighContrastPalette};
  for (const std::u16string_view name : variant == Variant::HighContrast ? highContrast : standard) {
    auto loaded = kroui::ui::Theme::Get().LoadFromModule(kModule, kThemeType, name);
    if (!loaded) return loaded;
  }
  return krocore::utility::Result<void>::Success();
}

} // namespace ZEL
