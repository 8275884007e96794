#include <zel/views/CustomSettings.h>

#include <krocore/settings/Settings.h>
#include <kroui/skins/SkinManager.h>
#include <kroui/theme/Theme.h>
#include <kroui/ui/PopupMenuSettings.h>
#include <kroui/ui/ToolTipManager.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using ZEL::CustomSettings;
using kroui::skins::core::SkinManager;

class CustomSettingsTest : public ::testing::Test {
protected:
  void TearDown() override {
    for (std::string_view name : {CustomSettings::kToolTipInitialDelay, CustomSettings::kThemeBrightness,
                                  CustomSettings::kSkinVersion, CustomSettings::kPopupMenuCheckStyle})
      krocore::settings::Settings::Instance().Remove(name);
    kroui::ui::ToolTipManager::Instance().Reset();
    kroui::ui::Theme::Get().Reset();
    SkinManager::SetSkinVersion(SkinManager::kDefaultSkinVersion);
    kroui::ui::SetPopupMenuDefaultCheckStyle(false);
  }
};

TEST_F(CustomSettingsTest, AppliesTheDefaultsWhenTheHostGivesNothing) {
  CustomSettings::Apply();
  EXPECT_EQ(kroui::ui::ToolTipManager::Instance().GetInitialDelay(), kroui::ui::ToolTipManager::kDefaultInitialDelay);
  EXPECT_FLOAT_EQ(kroui::ui::Theme::Get().GetBrightness(), kroui::ui::Theme::kDefaultBrightness);
  EXPECT_EQ(SkinManager::GetSkinVersion(), SkinManager::kDefaultSkinVersion);
  EXPECT_TRUE(kroui::ui::IsPopupMenuDefaultCheckStyleOn());
}

TEST_F(CustomSettingsTest, HandsEachStoredValueToItsPiece) {
  auto& settings = krocore::settings::Settings::Instance();
  settings.Set(CustomSettings::kToolTipInitialDelay, 1200);
  settings.Set(CustomSettings::kThemeBrightness, 0.25);
  settings.Set(CustomSettings::kSkinVersion, 7);
  settings.Set(CustomSettings::kPopupMenuCheckStyle, false);
  CustomSettings::Apply();
  EXPECT_EQ(kroui::ui::ToolTipManager::Instance().GetInitialDelay(), 1200);
  EXPECT_FLOAT_EQ(kroui::ui::Theme::Get().GetBrightness(), 0.25f);
  EXPECT_EQ(SkinManager::GetSkinVersion(), 7);
  EXPECT_FALSE(kroui::ui::IsPopupMenuDefaultCheckStyleOn());
  EXPECT_EQ(CustomSettings::Describe(),
            (std::vector<std::string>{"ZEL.ToolTip.InitialDelayMs = 1200", "ZEL.Theme.Brightness = 0.250000",
                                      "ZEL.Skin.Version = 7", "ZEL.PopupMenu.DefaultCheckStyle = false"}));
}

} // namespace
