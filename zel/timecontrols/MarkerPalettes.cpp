// The palettes' half of MarkerUtils.h.
#include <zel/timecontrols/MarkerUtils.h>

#include <zel/appearance/ColorManager.h>

#include <krocore/debug/Assert.h>
#include <kroui/theme/ThemeChangedFunctions.h>

#include <array>
#include <atomic>

namespace ZEL {
namespace {

using BE::MarkerUtils::MarkerColorID;
using BE::MarkerUtils::MarkerColorTable;

// The version-7 palette and the flag that a theme change raises, on any
// thread; the palette is rebuilt on the main thread when next asked for.
struct ThemePalette {
  MarkerColorTable colors;
  std::atomic<bool> isStale{true};
  kroui::ui::ThemeChangedFunctionHandle onThemeChanged;
};

ThemePalette& PaletteV7() {
  // Never destroyed: its theme-changed function may run while the process ends.
  static ThemePalette* sPalette = [] {
    auto* palette = new ThemePalette;
    palette->onThemeChanged = kroui::ui::InstallThemeChangedFunction([palette] { palette->isStale = true; });
    return palette;
  }();
  return *sPalette;
}

} // namespace

const MarkerColorTable& GetNewMarkerColorsV5() {
  static const MarkerColorTable sColors = {
      {MarkerColorID::kGreen, {112, 133, 55}},   {MarkerColorID::kRed, {234, 56, 41}},
      {MarkerColorID::kPurple, {192, 143, 252}}, {MarkerColorID::kOrange, {249, 137, 23}},
      {MarkerColorID::kYellow, {199, 162, 0}},   {MarkerColorID::kWhite, {255, 255, 255}},
      {MarkerColorID::kBlue, {94, 170, 247}},    {MarkerColorID::kCyan, {52, 187, 132}},
  };
  return sColors;
}

const krocore::utility::ImmutableString& GetMarkerColorKeyV7(MarkerColorID id) {
  static const std::array<krocore::utility::ImmutableString, BE::MarkerUtils::kMarkerColorCount> sKeys = {
      krocore::utility::ImmutableString("colors.kls.Marker.Green"),
      krocore::utility::ImmutableString("colors.kls.Marker.Red"),
      krocore::utility::ImmutableString("colors.kls.Marker.Purple"),
      krocore::utility::ImmutableString("colors.kls.Marker.Orange"),
      krocore::utility::ImmutableString("colors.kls.Marker.Yellow"),
      krocore::utility::ImmutableString("colors.kls.Marker.White"),
      krocore::utility::ImmutableString("colors.kls.Marker.Blue"),
      krocore::utility::ImmutableString("colors.kls.Marker.Cyan"),
  };
  const auto index = static_cast<std::size_t>(id);
  if (!KROCORE_ASSERT(index < sKeys.size(), "Marker colour ID out of range")) return sKeys[0];
  return sKeys[index];
}

const MarkerColorTable& GetMarkerColorsV7() {
  ThemePalette& palette = PaletteV7();
  if (palette.isStale.exchange(false)) {
    for (std::size_t i = 0; i < BE::MarkerUtils::kMarkerColorCount; ++i) {
      const auto id = static_cast<MarkerColorID>(i);
      palette.colors[id] = ColorManager::GetColor(GetMarkerColorKeyV7(id));
    }
  }
  return palette.colors;
}

const std::vector<kroui::drawbot::ColorRGBA>& GetStandardMarkerColors() {
  static const std::vector<kroui::drawbot::ColorRGBA> sColors = [] {
    std::vector<kroui::drawbot::ColorRGBA> colors;
    for (const auto& [id, c] : BE::MarkerUtils::GetMarkerColors())
      colors.push_back({c.red / 255.f, c.green / 255.f, c.blue / 255.f, 1.f});
    return colors;
  }();
  return sColors;
}

} // namespace ZEL
