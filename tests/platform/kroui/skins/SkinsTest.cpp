#include "../theme/ThemeTestSupport.h"

#include <kroui/skins/SkinManager.h>
#include <kroui/skins/SkinSetUtilities.h>
#include <kroui/theme/Theme.h>

#include <gtest/gtest.h>

#include <set>

using kroui::skins::core::SkinManager;
namespace utilities = kroui::skins::utilities;

namespace {

class SkinsTest : public testing::Test {
protected:
  void SetUp() override { kroui::ui::Theme::Get().Reset(); }
  void TearDown() override {
    SkinManager::SetSkinVersion(SkinManager::kDefaultSkinVersion);
    kroui::ui::Theme::Get().Reset();
  }
};

TEST_F(SkinsTest, VersionSevenAndBeyondIsToldAndAVersionChangeIsAThemeChange) {
  int calls = 0;
  auto handle = kroui::ui::InstallThemeChangedFunction([&] { ++calls; });
  EXPECT_FALSE(kroui::skins::IsRunningV7OrBeyond());
  SkinManager::SetSkinVersion(6);
  EXPECT_FALSE(kroui::skins::IsRunningV7OrBeyond());
  SkinManager::SetSkinVersion(7);
  SkinManager::SetSkinVersion(7);
  EXPECT_TRUE(kroui::skins::IsRunningV7OrBeyond());
  EXPECT_EQ(calls, 2);
}

TEST_F(SkinsTest, TheRolesHaveDistinctIDsInTheCurrentPalette) {
  const std::set<kroui::ui::ColorID> ids{
      utilities::GetApplicationBackgroundColorID(), utilities::GetContentBackgroundColorID(),
      utilities::GetFocusColorID(), utilities::GetDividerColorID(), utilities::GetDefaultTextColorID()};
  EXPECT_EQ(ids.size(), 5u);
  EXPECT_EQ(utilities::GetContentBackgroundColorID(), 5000013u);
  for (const auto id : ids) EXPECT_TRUE(id > 5000000 && id <= 5000120) << id;
}

TEST_F(SkinsTest, NamesResolveThroughTheLoadedThemesOwnEntities) {
  EXPECT_EQ(utilities::GetColorByName("kColor_Focus"), std::nullopt);
  ASSERT_TRUE(kroui::ui::Theme::Get().Load(
      kroui::testing::ThemeXML("<!ENTITY kColor_Focus \"5000014\">",
                               R"(<Theme t="&General;"><KeyFrame name="&kColor_Focus;" v="1"/></Theme>)")));
  EXPECT_EQ(utilities::GetColorByName("kColor_Focus"), (kroui::drawbot::ColorRGBA{1.f, 1.f, 1.f, 1.f}));
  EXPECT_EQ(utilities::GetColorByName("Dark"), std::nullopt) << "a level, not a colour";
}

} // namespace
