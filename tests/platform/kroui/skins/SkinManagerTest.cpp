#include <kroui/skins/SkinManager.h>
#include <kroui/theme/SkinVersionChange.h>
#include <kroui/theme/Theme.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using kroui::skins::core::SkinManager;

namespace {

class SkinManagerTest : public testing::Test {
protected:
  void TearDown() override {
    kroui::ui::SetSkinVersionChangedFunction({});
    SkinManager::SetSkinVersion(SkinManager::kDefaultSkinVersion);
    SkinManager::SetLegacyTestingAllowed(false);
    for (const std::string& set : SkinManager::GetRegisteredSkinSets()) SkinManager::UnregisterSkinSet(set);
  }
};

TEST_F(SkinManagerTest, LegacyThemeIsRequiredUpToVersionSix) {
  EXPECT_TRUE(SkinManager::RequiresLegacyTheme());
  SkinManager::SetSkinVersion(6);
  EXPECT_TRUE(SkinManager::RequiresLegacyTheme());
  SkinManager::SetSkinVersion(7);
  EXPECT_FALSE(SkinManager::RequiresLegacyTheme());
}

TEST_F(SkinManagerTest, LegacyTestingIsOffUntilAllowed) {
  EXPECT_FALSE(SkinManager::IsLegacyTestingAllowed());
  SkinManager::SetLegacyTestingAllowed(true);
  EXPECT_TRUE(SkinManager::IsLegacyTestingAllowed());
}

TEST_F(SkinManagerTest, SkinSetsFollowTheDefaultInRegistrationOrderAndTheDefaultStays) {
  EXPECT_TRUE(SkinManager::RegisterSkinSet("Spectrum"));
  EXPECT_TRUE(SkinManager::RegisterSkinSet("HighContrast"));
  EXPECT_FALSE(SkinManager::RegisterSkinSet("Spectrum"));
  EXPECT_FALSE(SkinManager::RegisterSkinSet(""));
  EXPECT_EQ(SkinManager::GetRegisteredSkinSets(), (std::vector<std::string>{"Default", "Spectrum", "HighContrast"}));
  EXPECT_FALSE(SkinManager::UnregisterSkinSet(SkinManager::kDefaultSkinSet));
  EXPECT_TRUE(SkinManager::UnregisterSkinSet("Spectrum"));
  EXPECT_EQ(SkinManager::GetRegisteredSkinSets(), (std::vector<std::string>{"Default", "HighContrast"}));
}

TEST_F(SkinManagerTest, VersionChangeCallsTheFunctionBeforeTheThemeChangeAndOnlyOnAChange) {
  std::vector<std::string> events;
  kroui::ui::SetSkinVersionChangedFunction([&](int version) { events.push_back("skin " + std::to_string(version)); });
  auto handle = kroui::ui::InstallThemeChangedFunction([&] { events.emplace_back("theme"); });
  SkinManager::SetSkinVersion(7);
  SkinManager::SetSkinVersion(7);
  EXPECT_EQ(events, (std::vector<std::string>{"skin 7", "theme"}));
}

TEST_F(SkinManagerTest, InstallingAFunctionHandsBackTheOneReplaced) {
  int first = 0;
  EXPECT_FALSE(kroui::ui::SetSkinVersionChangedFunction([&](int) { ++first; }));
  EXPECT_TRUE(kroui::ui::HasSkinVersionChangedFunction());
  auto previous = kroui::ui::SetSkinVersionChangedFunction({});
  ASSERT_TRUE(previous);
  previous(7);
  EXPECT_EQ(first, 1);
  EXPECT_FALSE(kroui::ui::HasSkinVersionChangedFunction());
  kroui::ui::CallSkinVersionChangedFunction(8); // none installed: nothing happens
}

} // namespace
