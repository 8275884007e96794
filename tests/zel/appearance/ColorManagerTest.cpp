#include "AppearanceFixture.h"

#include <krocore/debug/Assert.h>
#include <krocore/string/UTF16OutputStream.h>
#include <kroui/skins/SkinSetUtilities.h>

#include <algorithm>
#include <sstream>
#include <thread>

using ZEL::ColorManager;
using Color = ZEL::ColorManager::Color;
using Key = ZEL::ColorManager::Key;

namespace {

constexpr Color kRed{255, 0, 0};

// Registers without notifying, as a host that flushes afterwards would.
void Register(const char* key, const std::string& expression) {
  ColorManager::RegisterColor(Key(key), {Key(key), expression});
}

class ColorManagerTest : public ZEL::testing::AppearanceFixture<> {};

// Formulas over two fixed colours, colors.test.a (10, 20, 30) and colors.test.b (200, 100, 0).
struct FormulaCase {
  const char* label;
  const char* expression;
  Color expected;
};

class ColorFormula : public ZEL::testing::AppearanceFixture<testing::TestWithParam<FormulaCase>> {};

TEST_P(ColorFormula, Evaluates) {
  Register("colors.test.a", "$RGB(10, 20, 30)");
  Register("colors.test.b", "$RGB(200, 100, 0)");
  Register("colors.test.formula", GetParam().expression);
  ColorManager::FlushCache();
  EXPECT_EQ(ColorManager::GetColor("colors.test.formula"), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ColorFormula,
    testing::Values(
        FormulaCase{"HexNegative", "$RGB(0x10, 16, -1)", {16, 16, 255}},
        FormulaCase{"LowEightBits", "$RGB(256, 257, 511)", {0, 1, 255}},
        FormulaCase{"PastThirtyTwoBits", "$RGB(4294967296, 0x100000000, 2147483647)", {0, 0, 255}},
        FormulaCase{"Unparsable", "$RGB(red, , 0x)", {0, 0, 0}},
        FormulaCase{"MissingChannel", "$RGB(1, 2)", {1, 2, 0}},
        FormulaCase{"Spaced", " note $ RGB ( 7 , 8 , 9 ) (1, 1, 1)", {7, 8, 9}},
        FormulaCase{"CaseSensitiveName", "$rgb(1, 2, 3)", {0, 0, 0}},
        FormulaCase{"UnknownFunction", "$HSV(1, 2, 3)", {0, 0, 0}},
        FormulaCase{"Map", "$MAP(colors.test.a)", {10, 20, 30}},
        FormulaCase{"BlendNone", "$COLOR(colors.test.a, colors.test.b, 0%)", {10, 20, 30}},
        FormulaCase{"BlendAll", "$COLOR(colors.test.a, colors.test.b, 100%)", {200, 100, 0}},
        FormulaCase{"BlendThird", "$COLOR(colors.test.a, colors.test.b, 33%)", {73, 46, 20}},
        FormulaCase{"BlendPastTheEnd", "$COLOR(colors.test.a, colors.test.b, 150%)", {255, 140, 0}},
        FormulaCase{"BlendBeforeTheStart", "$COLOR(colors.test.a, colors.test.b, -50%)", {0, 0, 45}},
        FormulaCase{"UnknownThemeName", "$KRO(kColor_Nothing)", kRed},
        FormulaCase{"ScaledPercentIgnored", "$SCALEDRGB(254, 169, 0, 100%)", {203, 135, 0}}),
    [](const auto& row) { return std::string(row.param.label); });

TEST_F(ColorManagerTest, ScaledColoursFollowTheRoundedBrightness) {
  const Key scaled("colors.kls.PaneFocusColorScaled");
  const std::pair<float, Color> levels[] = {{0.5f, {203, 135, 0}}, {1.f, {255, 211, 0}}, {0.f, {89, 59, 0}}};
  for (const auto& [brightness, expected] : levels) {
    SetBrightness(brightness);
    EXPECT_EQ(ColorManager::GetColor(scaled), expected) << brightness;
  }
  const std::pair<float, unsigned> rounding[] = {
      {0.125f, 13}, {0.375f, 38}, {0.5001f, 50}, {0.994f, 99}, {1.f, 100}};
  for (const auto& [brightness, percent] : rounding) {
    SetBrightness(brightness);
    EXPECT_EQ(ColorManager::GetBrightness(), percent) << brightness;
  }
}

TEST(ColorManagerMakeColor, ScalesThenBlends) {
  constexpr Color kOrange{254, 169, 0}, kA{10, 20, 30}, kB{200, 100, 0};
  EXPECT_EQ(ColorManager::MakeColor(kOrange, 50u, 30u), ColorManager::MakeColor(kOrange, 50u, 0u));
  EXPECT_EQ(ColorManager::MakeColor(kB, 400u, 0u), (Color{255, 255, 0})) << "clamped";
  EXPECT_EQ(ColorManager::MakeColor(kA, kB, 0.25), (Color{58, 40, 23}));
  EXPECT_EQ(ColorManager::MakeColor(kA, kB, NAN), (Color{0, 0, 0}));
  EXPECT_EQ(ColorManager::MakeColor(kOrange, kA, 0.5, 50u), (Color{107, 78, 15}))
      << "(203, 135, 0) halfway to a";
  EXPECT_EQ(ColorManager::MakeColor(kOrange, kOrange, 1.0, 0u), kOrange) << "only a is scaled";
}

TEST_F(ColorManagerTest, KeyAndAdjustedFormsLookUpAndScale) {
  Register("colors.test.make.a", "$RGB(10, 20, 30)");
  Register("colors.test.make.b", "$RGB(200, 100, 0)");
  ColorManager::FlushCache();
  EXPECT_EQ(ColorManager::MakeColor("colors.test.make.a", "colors.test.make.b", 0.0, 100u),
            (Color{13, 25, 38}));
  EXPECT_EQ(ColorManager::MakeAdjustedColor("colors.test.make.a", "colors.test.make.b", 0.0),
            (Color{8, 16, 24}));
}

TEST_F(ColorManagerTest, ReversibleColoursInvertOnADarkTheme) {
  SetBrightness(0.5f);
  EXPECT_TRUE(ColorManager::IsReversingColors());
  EXPECT_EQ(ColorManager::GetColor("colors.kls.reversible.white"), (Color{0, 0, 0}));
  EXPECT_EQ(ColorManager::GetColor("colors.kls.Text.Hot"), (Color{120, 164, 204}))
      << "light text, scaled by 0.8";
  SetBrightness(1.f);
  EXPECT_FALSE(ColorManager::IsReversingColors());
  EXPECT_EQ(ColorManager::GetColor("colors.kls.reversible.white"), (Color{255, 255, 255}));
  EXPECT_EQ(ColorManager::GetColor("colors.kls.Text.Hot"), (Color{33, 105, 200}))
      << "dark text, scaled by 1.25";
}

class ColorManagerReversing
    : public ZEL::testing::AppearanceFixture<testing::TestWithParam<std::pair<Color, bool>>> {};

TEST_P(ColorManagerReversing, WhenTheTextIsLighterThan111Of255) {
  const Color c = GetParam().first;
  Register("colors.kls.reversible.black", "$RGB(" + std::to_string(c.red) + ", " + std::to_string(c.green) +
                                              ", " + std::to_string(c.blue) + ")");
  ColorManager::FlushCache();
  EXPECT_EQ(ColorManager::IsReversingColors(), GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(Cases, ColorManagerReversing,
                         testing::Values(std::pair{Color{111, 111, 111}, false},
                                         std::pair{Color{112, 112, 112}, true},
                                         std::pair{Color{255, 0, 0}, false},
                                         std::pair{Color{0, 255, 0}, true}));

TEST_F(ColorManagerTest, NestedAndUnregisteredKeysAreCachedOnTheirOwn) {
  static int sRun = 0; // registrations outlive the case: a repeated run needs a key never registered
  const std::string unregistered = "colors.test.unregistered." + std::to_string(++sRun);
  Register("colors.test.outer", "$COLOR(colors.test.inner, " + unregistered + ", 0%)");
  Register("colors.test.inner", "$RGB(1, 2, 3)");
  ColorManager::FlushCache();
  EXPECT_EQ(ColorManager::GetColor("colors.test.outer"), (Color{1, 2, 3}));
  Register("colors.test.inner", "$RGB(9, 9, 9)");
  Register(unregistered.c_str(), "$RGB(9, 9, 9)");
  EXPECT_EQ(ColorManager::GetColor("colors.test.inner"), (Color{1, 2, 3}))
      << "registering alone does not flush";
  EXPECT_EQ(ColorManager::GetColor(Key(unregistered)), kRed);
  ColorManager::FlushCache();
  EXPECT_EQ(ColorManager::GetColor("colors.test.inner"), (Color{9, 9, 9}));
}

TEST_F(ColorManagerTest, UnregisteredThemeColourNamesAreTheThemesColours) {
  EXPECT_EQ(ColorManager::GetColor("kColor_Focus"), ThemeColor(kroui::skins::utilities::GetFocusColorID()));
  EXPECT_EQ(ColorManager::GetColor("kColor_ListBoxContentHighlighted"), ThemeColor(235));
  EXPECT_EQ(ColorManager::GetColorRGBA("colors.test.rgba"), (kroui::drawbot::ColorRGBA{1.f, 0.f, 0.f, 1.f}));
  kroui::skins::core::SkinManager::SetSkinVersion(7); // the skin's own names: those of the theme files
  EXPECT_EQ(ColorManager::GetColor("kColor_Gamut_01"), kRed);
  EXPECT_EQ(ColorManager::GetColor("kColor_Gray_01"), ThemeColor(5000001));
}

TEST_F(ColorManagerTest, SetColorRegistersTheLineAndAnnouncesAThemeChange) {
  ZEL::testing::ThemeChangeCounter counter;
  ColorManager::GetColor("colors.test.set");
  ColorManager::SetColor("colors.test.set=$RGB(1,2,3)");
  EXPECT_EQ(ColorManager::GetColor("colors.test.set"), (Color{1, 2, 3}))
      << "the theme change emptied the cache";
  ColorManager::SetColor("colors.test.set = ");
  ColorManager::SetColor("Colors.test.Capital = $RGB(4, 5, 6)");
  EXPECT_EQ(counter.Count(), 3) << "an ignored line notifies too";
  EXPECT_EQ(ColorManager::GetColor("colors.test.set"), (Color{1, 2, 3}));
  EXPECT_EQ(ColorManager::GetColor("Colors.test.Capital"), (Color{4, 5, 6}));
}

TEST_F(ColorManagerTest, AThemeChangeOnAnotherThreadQueuesTheAnnouncement) {
  ZEL::testing::ThemeChangeCounter counter;
  Register("colors.test.worker", "$RGB(1, 1, 1)");
  ColorManager::FlushCache();
  EXPECT_EQ(ColorManager::GetColor("colors.test.worker"), (Color{1, 1, 1}));
  Register("colors.test.worker", "$RGB(2, 2, 2)");
  std::thread([] { kroui::ui::Theme::Get().NotifyThemeChanged(); }).join();
  EXPECT_EQ(counter.Count(), 0);
  EXPECT_EQ(ColorManager::GetColor("colors.test.worker"), (Color{2, 2, 2}))
      << "the cache was emptied already";
  EXPECT_EQ(krocore::threads::DrainMainThreadQueue(), 1u);
  EXPECT_EQ(counter.Count(), 1);
  SetBrightness(0.9f);
  EXPECT_EQ(counter.Count(), 2) << "on the main thread, at once";
}

TEST_F(ColorManagerTest, TerminateReleasesTheThemeChangedFunction) {
  ZEL::testing::ThemeChangeCounter counter;
  ColorManager::Terminate();
  SetBrightness(0.9f);
  EXPECT_EQ(counter.Count(), 0);
  ColorManager::Initialize();
  SetBrightness(0.1f);
  EXPECT_EQ(counter.Count(), 1);
}

TEST_F(ColorManagerTest, ALoopIsReportedOnceAndShowsRed) {
  krocore::debug::ScopedAssertionRecorder recorder;
  Register("colors.test.loop.a", "$COLOR(colors.test.loop.b, colors.test.loop.aside, 50%)");
  Register("colors.test.loop.b", "$COLOR(colors.test.loop.a, colors.kls.white, 50%)");
  Register("colors.test.loop.aside", "$RGB(1, 2, 3)");
  Register("colors.test.loop.user", "$COLOR(colors.test.loop.a, colors.kls.black, 50%)");
  ColorManager::FlushCache();
  EXPECT_EQ(ColorManager::GetColor("colors.test.loop.user"), (Color{128, 0, 0}));
  EXPECT_EQ(ColorManager::GetColor("colors.test.loop.b"), kRed) << "every key on the loop";
  EXPECT_EQ(ColorManager::GetColor("colors.test.loop.aside"), (Color{1, 2, 3})) << "reached, but not on the loop";
  ColorManager::FlushCache();
  EXPECT_EQ(ColorManager::GetColor("colors.test.loop.b"), kRed);
  ASSERT_EQ(recorder.Count(), 1u) << "entering by another key is the same loop";
  EXPECT_EQ(recorder.Reports()[0].message, "Colour formulas form a loop through colors.test.loop.a");
}

TEST_F(ColorManagerTest, ChainsDeeperThanTheLimitAreReportedNotFollowed) {
  krocore::debug::ScopedAssertionRecorder recorder;
  constexpr int kLength = 80;
  for (int i = 0; i < kLength; ++i) {
    const std::string key = "colors.test.chain." + std::to_string(i);
    Register(key.c_str(),
             i + 1 < kLength ? "$MAP(colors.test.chain." + std::to_string(i + 1) + ")" : "$RGB(1, 2, 3)");
  }
  ColorManager::FlushCache();
  EXPECT_EQ(ColorManager::GetColor("colors.test.chain.0"), kRed);
  EXPECT_EQ(recorder.Count(), 1u);
  ColorManager::FlushCache();
  EXPECT_EQ(ColorManager::GetColor("colors.test.chain.30"), (Color{1, 2, 3})) << "a shorter chain is fine";
}

TEST_F(ColorManagerTest, DumpAndListWriteOneLinePerRecord) {
  std::ostringstream dump;
  ColorManager::DumpColors(dump);
  krocore::StringUTF16OutputStream list;
  ColorManager::ListColors(list);
  const std::string text = dump.str();
  EXPECT_TRUE(text.starts_with("<resource id> KLSCOLORTABLE\nBEGIN\n"));
  EXPECT_TRUE(text.ends_with("\t\"\\0\"\nEND\n"));
  EXPECT_NE(text.find("\n\t\"colors.kls.kro.Value.4.Unblended = $RGB(167, 167, 167)\" \"\\n\"\n"),
            std::string::npos);
  EXPECT_NE(list.GetText().find(u"colors.kls.reversible.white$REVERSIBLE(255, 255, 255)\n"),
            std::u16string::npos);
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n') - 4,
            std::count(list.GetText().begin(), list.GetText().end(), u'\n'));
}

} // namespace
