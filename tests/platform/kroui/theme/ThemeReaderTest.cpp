#include "ThemeTestSupport.h"

#include <kroui/theme/ThemeReader.h>

#include <gtest/gtest.h>

using kroui::testing::ThemeXML;
using kroui::ui::FontScheme;
using kroui::ui::FontSize;
using kroui::ui::FontText;
using kroui::ui::KeyFrame;
using kroui::ui::ThemeReader;
using kroui::ui::ThemeValue;

namespace {

KeyFrame Frame(std::uint64_t id, float t, float v, float h = 0.f, float s = 0.f, float a = 1.f,
               bool hold = false, bool general = false) {
  return {id, t, v, h, s, a, hold, general};
}

TEST(ThemeReader, ReadsKeyFramesThroughTheirEntities) {
  const auto read = ThemeReader::Read(
      ThemeXML("<!ENTITY kColor_Focus \"5000014\"> <!ENTITY FocusHue \"212\"> <!ENTITY Sat \"0.&Half;\"> "
               "<!ENTITY Half \"5\">",
               R"(<Theme t="&Darkest;"><KeyFrame name="&kColor_Focus;" v="0.8" h="&FocusHue;" s="&Sat;"
                                         a="0.9"/></Theme>
         <Theme t="&Dark;"><KeyFrame name="&kColor_Focus;" v=" 0.7 " hold="true"/>
                           <KeyFrame name="7" t="1" v="0.25"/></Theme>
         <KeyFrame name="8" t="0.75" v="1"/>)"));
  ASSERT_TRUE(read) << read.Error();
  EXPECT_EQ(read.Value().keyFrames, (std::vector<KeyFrame>{Frame(5000014, 0.f, 0.8f, 212.f, 0.5f, 0.9f),
                                                           Frame(5000014, 0.5f, 0.7f, 0, 0, 1, true),
                                                           Frame(7, 1.f, 0.25f), Frame(8, 0.75f, 1.f)}))
      << "a key frame's own t wins over its theme's; h, s, a and hold default to 0, 0, 1 and false";
}

TEST(ThemeReader, GeneralAndGenericThemesDoNotFollowTheBrightness) {
  const auto good = ThemeReader::Read(ThemeXML("<!ENTITY Generic \"0.0\">",
                                               R"(<Theme t="&General;"><KeyFrame name="1" v="1"/></Theme>
         <Theme t=" &Generic; "><KeyFrame name="2" v="1"/></Theme>
         <Theme t="&Darkest;"><KeyFrame name="3" v="1"/></Theme>
         <Theme t="0"><KeyFrame name="4" v="1"/></Theme>)"));
  ASSERT_TRUE(good) << good.Error();
  std::vector<bool> general;
  for (const KeyFrame& frame : good.Value().keyFrames) general.push_back(frame.general);
  EXPECT_EQ(general, (std::vector<bool>{true, true, false, false})) << "Darkest is 0.0 too, but not General";
}

TEST(ThemeReader, ReadsFontsValuesAndEntityNames) {
  const auto read = ThemeReader::Read(ThemeXML(
      "<!ENTITY kColor_Blue \"5000011\"> <!ENTITY kOpacity \"6000001\">",
      R"(<KeyFrame name="&kColor_Blue;" t="0" v="1"/>)",
      R"(<ThemeFonts><FontSize name="1" size="8" scheme="0"/><FontSize name="2" size="11.5"/></ThemeFonts>
                  <ThemeValues><ThemeValue name="&kOpacity;" v="-0.25"/></ThemeValues>)"));
  ASSERT_TRUE(read) << read.Error();
  EXPECT_EQ(read.Value().fontSizes, (std::vector<FontSize>{{FontText::MainSmall, 8.f, FontScheme::Small},
                                                           {FontText::Title, 11.5f, FontScheme::Regular}}));
  EXPECT_EQ(read.Value().values, (std::vector<ThemeValue>{{6000001, -0.25}}));
  ASSERT_EQ(read.Value().entities.size(), 7u);
  EXPECT_EQ(read.Value().entities[5], (std::pair<std::string, std::string>{"kColor_Blue", "5000011"}));
}

TEST(ThemeReader, TheOldestFilesHaveThemeColorsAsTheirRoot) {
  const auto read = ThemeReader::Read("<!DOCTYPE ThemeColors [<!ENTITY Medium \"0.5\">]><ThemeColors><Theme "
                                      "t=\"&Medium;\"><KeyFrame name=\"12\" "
                                      "v=\"0.5\"/></Theme></ThemeColors>");
  ASSERT_TRUE(read) << read.Error();
  EXPECT_EQ(read.Value().keyFrames, (std::vector<KeyFrame>{Frame(12, 0.5f, 0.5f)}));
}

struct BadTheme {
  const char* label;
  std::string xml;
  const char* message;
};

class ThemeReaderRefuses : public testing::TestWithParam<BadTheme> {};

TEST_P(ThemeReaderRefuses, TheWholeFileWithAMessage) {
  const auto read = ThemeReader::Read(GetParam().xml);
  ASSERT_FALSE(read);
  EXPECT_NE(read.Error().find(GetParam().message), std::string::npos) << read.Error();
}

std::string Colors(std::string_view colors) { return ThemeXML("<!ENTITY kColor_Focus \"5000014\">", colors); }

INSTANTIATE_TEST_SUITE_P(
    Cases, ThemeReaderRefuses,
    testing::Values(
        BadTheme{"NotWellFormed", "<ThemeParameters><ThemeColors></ThemeParameters>", "not well-formed"},
        BadTheme{"OtherRoot", "<Palette/>", "no theme"},
        BadTheme{"UnknownElement", Colors("<Swatch/>"), "Unexpected element"},
        BadTheme{"NoName", Colors("<KeyFrame t=\"0\" v=\"1\"/>"), "\"name\" is missing"},
        BadTheme{"LoneKeyFrameWithoutPosition", Colors("<KeyFrame name=\"1\" v=\"1\"/>"), "\"t\" is missing"},
        BadTheme{"NotANumber", Colors("<KeyFrame name=\"1\" t=\"0\" v=\"nan\"/>"), "\"v\" is not a number"},
        BadTheme{"ValueAboveOne", Colors("<KeyFrame name=\"1\" t=\"0\" v=\"1.5\"/>"),
                 "\"v\" is not a number"},
        BadTheme{"NameNotAnID", Colors("<KeyFrame name=\"-3\" t=\"0\" v=\"1\"/>"),
                 "\"name\" is not a number"},
        BadTheme{"HoldNotABoolean", Colors("<KeyFrame name=\"1\" t=\"0\" v=\"1\" hold=\"yes\"/>"),
                 "\"hold\""},
        BadTheme{"UndeclaredEntity", Colors("<KeyFrame name=\"&kColor_Nothing;\" t=\"0\" v=\"1\"/>"),
                 "not declared"},
        BadTheme{"BadDTD", "<!DOCTYPE ThemeColors [ stray ]><ThemeColors/>", "DTD"}),
    [](const auto& row) { return std::string(row.param.label); });

} // namespace
