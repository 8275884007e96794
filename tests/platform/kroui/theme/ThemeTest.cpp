#include "ThemeTestSupport.h"

#include <kroui/theme/Theme.h>

#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <thread>

using kroui::testing::ThemeXML;
using kroui::ui::InstallThemeChangedFunction;
using kroui::ui::Theme;

namespace {

const std::string kPalette = ThemeXML(
    "<!ENTITY kColor_Focus \"5000014\"> <!ENTITY kColor_Blue \"5000011\"> <!ENTITY NotAColour \"7\">",
    R"(<Theme t="&General;"><KeyFrame name="&kColor_Blue;" v="1" h="240" s="1"/></Theme>
       <Theme t="&Darkest;"><KeyFrame name="&kColor_Focus;" v="0.2"/></Theme>
       <Theme t="&Dark;"><KeyFrame name="&kColor_Focus;" v="0.4"/></Theme>
       <Theme t="&Light;"><KeyFrame name="&kColor_Focus;" v="0.8"/></Theme>)",
    R"(<ThemeFonts><FontSize name="1" size="8" scheme="0"/></ThemeFonts>)");

class ThemeTest : public testing::Test {
protected:
  void SetUp() override { Theme::Get().Reset(); }
  void TearDown() override { Theme::Get().Reset(); }

  void Load(const std::string& xml) {
    const auto loaded = Theme::Get().Load(xml);
    ASSERT_TRUE(loaded) << loaded.Error();
  }
};

TEST_F(ThemeTest, BrightnessChangesReachGetColor) {
  Load(kPalette);
  EXPECT_EQ(Theme::Get().GetBrightness(), Theme::kDefaultBrightness);
  for (const auto& [brightness, red] : std::initializer_list<std::pair<float, float>>{
           {0.25f, 0.3f}, {0.5f, 0.4f}, {0.9f, 0.8f}, {-1.f, 0.2f}}) {
    Theme::Get().SetBrightness(brightness);
    EXPECT_NEAR(kroui::ui::GetColor(5000014).red, red, 1e-5f) << brightness;
  }
  EXPECT_EQ(Theme::Get().GetBrightness(), 0.f) << "clamped";
  Theme::Get().SetBrightness(NAN);
  EXPECT_EQ(Theme::Get().GetBrightness(), 0.f) << "NaN ignored";
  EXPECT_EQ(kroui::ui::GetColor(5000011), (kroui::drawbot::ColorRGBA{0.f, 0.f, 1.f, 1.f}))
      << "General is fixed";
  EXPECT_EQ(kroui::ui::GetColor(99), (kroui::drawbot::ColorRGBA{1.f, 0.f, 0.f, 1.f}))
      << "unknown IDs are red";
}

TEST_F(ThemeTest, ALaterFileReplacesTheIDsItGivesAndABadOneNothing) {
  Load(kPalette);
  Load(ThemeXML("", R"(<Theme t="0"><KeyFrame name="5000014" v="1"/></Theme>)"));
  EXPECT_EQ(Theme::Get().GetColorAt(5000014, 0.9f).red, 1.f) << "the earlier key frames of the ID are gone";
  EXPECT_FALSE(Theme::Get().Load("<ThemeParameters>"));
  EXPECT_FALSE(Theme::Get().LoadFromModule("kroui_tests", u"xml", u"missing"));
  EXPECT_EQ(Theme::Get().GetColorIDs(), (std::vector<kroui::ui::ColorID>{5000011, 5000014}));
  EXPECT_EQ(Theme::Get().FindColorID("kColor_Focus"), 5000014u);
  EXPECT_EQ(Theme::Get().FindColorID("NotAColour"), std::nullopt) << "7 has no key frames";
  EXPECT_EQ(Theme::Get().GetFontSize(kroui::ui::FontText::MainSmall, kroui::ui::FontScheme::Small), 8.f);
}

TEST_F(ThemeTest, ChangesCallTheInstalledFunctionsInOrderUntilReleased) {
  std::vector<int> calls;
  auto first = InstallThemeChangedFunction([&] { calls.push_back(1); });
  auto second = InstallThemeChangedFunction([&] { calls.push_back(2); });
  Load(kPalette);
  EXPECT_FALSE(Theme::Get().Load("not a theme"));
  Theme::Get().SetBrightness(0.75f);
  Theme::Get().SetBrightness(0.75f); // no change, no call
  auto moved = std::move(first);
  moved.Release();
  Theme::Get().NotifyThemeChanged();
  EXPECT_EQ(calls, (std::vector<int>{1, 2, 1, 2, 2}));
}

TEST_F(ThemeTest, AFunctionMayReleaseItselfWhileCalled) {
  int calls = 0;
  kroui::ui::ThemeChangedFunctionHandle handle;
  handle = InstallThemeChangedFunction([&] {
    ++calls;
    handle.Release();
  });
  Theme::Get().NotifyThemeChanged();
  Theme::Get().NotifyThemeChanged();
  EXPECT_EQ(calls, 1);
}

TEST_F(ThemeTest, ReleaseWaitsForACallUnderWayOnAnotherThread) {
  std::atomic<bool> entered{false}, finish{false}, finished{false}, releasedTooEarly{false};
  auto handle = InstallThemeChangedFunction([&] {
    entered = true;
    while (!finish) std::this_thread::yield();
    finished = true;
  });
  std::thread notifier([] { Theme::Get().NotifyThemeChanged(); });
  while (!entered) std::this_thread::yield();
  std::thread releaser([&] {
    handle.Release();
    releasedTooEarly = !finished;
  });
  std::this_thread::sleep_for(std::chrono::milliseconds(20));
  finish = true;
  releaser.join();
  notifier.join();
  EXPECT_FALSE(releasedTooEarly);
}

} // namespace
