#include "MarkerTestSupport.h"
#include "../appearance/AppearanceFixture.h"

namespace ZEL {
namespace {

using BE::MarkerUtils::MarkerColorID;
using BE::MarkerUtils::MarkerColorTable;

class MarkerPalettes : public ZEL::testing::AppearanceFixture<> {};

TEST_F(MarkerPalettes, V5IsOneFixedTableNeverRebuilt) {
  const MarkerColorTable& v5 = GetNewMarkerColorsV5();
  const MarkerColorTable copy = v5;
  ASSERT_EQ(v5.size(), 8u);
  EXPECT_EQ(v5.at(MarkerColorID::kGreen), (ColorManager::Color{112, 133, 55}));
  EXPECT_EQ(v5.at(MarkerColorID::kOrange), (ColorManager::Color{249, 137, 23}));
  EXPECT_EQ(v5.at(MarkerColorID::kCyan), (ColorManager::Color{52, 187, 132}));
  SetBrightness(0.9f);
  EXPECT_EQ(&GetNewMarkerColorsV5(), &v5);
  EXPECT_EQ(GetNewMarkerColorsV5(), copy);
}

TEST_F(MarkerPalettes, V7FollowsTheThemeAndIsRebuiltAfterAChange) {
  SetBrightness(0.2f);
  const MarkerColorTable& v7 = GetMarkerColorsV7();
  const MarkerColorTable dark = v7;
  ASSERT_EQ(dark.size(), 8u);
  for (const auto& [id, color] : dark) EXPECT_EQ(color, ColorManager::GetColor(GetMarkerColorKeyV7(id)));
  SetBrightness(0.9f);
  EXPECT_EQ(&GetMarkerColorsV7(), &v7) << "rebuilt in place";
  EXPECT_NE(GetMarkerColorsV7(), dark);
  for (const auto& [id, color] : GetMarkerColorsV7())
    EXPECT_EQ(color, ColorManager::GetColor(GetMarkerColorKeyV7(id))) << static_cast<int>(id);
  EXPECT_EQ(GetMarkerColorKeyV7(MarkerColorID::kYellow), krocore::utility::ImmutableString("colors.kls.Marker.Yellow"));
}

TEST(MarkerStandardColors, ListTheBackendColoursInIDOrder) {
  const auto& standard = GetStandardMarkerColors();
  const auto& backend = BE::MarkerUtils::GetMarkerColors();
  ASSERT_EQ(standard.size(), backend.size());
  for (const auto& [id, c] : backend) {
    const auto& rgba = standard[static_cast<std::size_t>(id)];
    EXPECT_EQ(rgba, (kroui::drawbot::ColorRGBA{c.red / 255.f, c.green / 255.f, c.blue / 255.f, 1.f}));
  }
  EXPECT_EQ(&GetStandardMarkerColors(), &standard);
}

} // namespace
} // namespace ZEL
