#include "AppearanceFixture.h"

#include <zel/appearance/ColorTableParser.h>
#include <zel/appearance/ThemeNameTable.h>

#include <krocore/resources/ModuleResources.h>
#include <kroui/theme/ThemeReader.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <unistd.h>

using ZEL::ColorManager;
using ZEL::ThemeResources;
using Color = ColorManager::Color;

namespace {

std::string_view Resource(std::u16string_view type, std::u16string_view name) {
  return krocore::utility::GetBinaryFromModule(ThemeResources::kModule, type, name).AsText();
}

// The rows of a table as written: key and the text after "= ".
std::map<std::string, std::string> Rows(std::u16string_view table) {
  std::map<std::string, std::string> rows;
  ZEL::ColorTableParser::ForEachLine(Resource(ThemeResources::kTableType, table), [&](std::string_view line) {
    const auto parsed = ZEL::ColorTableParser::ParseLine(line);
    if (!parsed) return;
    const std::size_t start = line.find("= ") + 2;
    rows[parsed->key] = std::string(line.substr(start, line.size() - start - (line.ends_with('\r') ? 1 : 0)));
  });
  return rows;
}

// Relative luminance, as contrast ratios are computed from it.
float Luminance(const Color& c) {
  const auto linear = [](unsigned char channel) {
    const float x = channel / 255.f;
    return x <= 0.04045f ? x / 12.92f : std::pow((x + 0.055f) / 1.055f, 2.4f);
  };
  return 0.2126f * linear(c.red) + 0.7152f * linear(c.green) + 0.0722f * linear(c.blue);
}

TEST(ColorTables, HoldTheirEntriesInCRLFLines) {
  for (const auto& [name, count] : {std::pair{u"zelcolors", 128u}, std::pair{u"appcolors", 34u}}) {
    const std::string_view text = Resource(ThemeResources::kTableType, name);
    ASSERT_FALSE(text.empty());
    std::size_t lines = 0;
    for (std::size_t at = text.find('\n'); at != std::string_view::npos;
         at = text.find('\n', at + 1), ++lines)
      EXPECT_TRUE(at > 0 && text[at - 1] == '\r') << "a line ends in a bare LF at byte " << at;
    EXPECT_GT(lines, count);
    EXPECT_EQ(Rows(name).size(), count) << "accepted lines, each key once";
  }
}

struct TellingRow {
  const char* key;
  const char* expression;
};

class ColorTableRow : public testing::TestWithParam<TellingRow> {};

TEST_P(ColorTableRow, IsWrittenExactly) {
  std::map<std::string, std::string> rows = Rows(u"zelcolors");
  rows.merge(Rows(u"appcolors"));
  ASSERT_EQ(rows.count(GetParam().key), 1u);
  EXPECT_EQ(rows[GetParam().key], GetParam().expression);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ColorTableRow,
    testing::Values(
        TellingRow{"colors.kls.base", "$KRO(kColor_ContentBackground)"},
        TellingRow{"colors.kls.unadjusted.base", "$RGB(167, 167, 167)"},
        TellingRow{"colors.kls.text", "$KRO(kColor_TextRegular)"},
        TellingRow{"colors.kls.reversible.black", "$MAP(colors.kls.text)"},
        TellingRow{"colors.kls.reversible.white", "$REVERSIBLE(255, 255, 255)"},
        TellingRow{"colors.kls.reversible.black.lighterReversed", "$MAP(colors.kls.text)"},
        TellingRow{"colors.kls.reversible.scaled.gray",
                   "$REVERSIBLESCALED(colors.kls.light.gray, colors.kls.lightest.gray, 40%, 30%)"},
        TellingRow{"colors.kls.Text.Hot",
                   "$REVERSIBLESCALED(colors.kls.DarkTimecodeText, colors.kls.LightTimecodeText, 0%, 0%)"},
        TellingRow{"colors.kls.BevelDark", "$COLOR(colors.kls.base, colors.kls.black, 50%)"},
        TellingRow{"colors.kls.kro.Value.4.Unblended", "$RGB(167,167,167)"},
        TellingRow{"colors.kls.kro.Value.4",
                   "$COLOR(colors.kls.base, colors.kls.kro.Value.4.Unblended, 50%)"},
        TellingRow{"colors.kls.kro.Dimmed.4",
                   "$COLOR(colors.kls.base, colors.kls.kro.Value.4.Unblended, 22%)"},
        TellingRow{"colors.kls.Formula.A", "$COLOR(colors.kls.base, colors.kls.white, 80%)"},
        TellingRow{"colors.kls.Formula.L", "$COLOR(colors.kls.base, colors.kls.black, 80%)"},
        TellingRow{"colors.kls.PaneFocusColorScaled", "$SCALEDRGB(254, 169, 0, 30%)"},
        TellingRow{"colors.kls.MarqueeBorder", "$RGB(255, 255, 255)"},
        TellingRow{"colors.kls.MarqueeFill", "$RGB(63, 63, 63)"},
        TellingRow{"colors.app.base", "$KRO(kColor_ContentBackground)"},
        TellingRow{"colors.Formula.C", "$MAP(colors.app.Formula.C)"},
        TellingRow{"colors.events.background", "$RGB(236, 233, 216)"}));

class ShippedColors : public ZEL::testing::AppearanceFixture<> {};

TEST_F(ShippedColors, RampsBlendTheBaseAsTheirNamesSay) {
  const std::vector<std::pair<const char*, int>> formulas = {
      {"A95", 95}, {"A90", 90}, {"A", 80},  {"B", 60},  {"C", 40},  {"D", 30},  {"E", 20},
      {"F", 10},   {"G", -10},  {"H", -20}, {"I", -30}, {"J", -40}, {"K", -60}, {"L", -80}};
  for (const char* family : {"colors.kls", "colors.app"}) {
    const Color base = ColorManager::GetColor(ColorManager::Key(std::string(family) + ".base"));
    for (const auto& [letter, percent] : formulas) {
      const Color towards = percent > 0 ? Color{255, 255, 255} : Color{0, 0, 0};
      const ColorManager::Key key(std::string(family) + ".Formula." + letter);
      EXPECT_EQ(ColorManager::GetColor(key),
                ColorManager::MakeColor(base, towards, std::abs(percent) / 100.0))
          << key.View();
    }
  }
  const Color base = ColorManager::GetColor("colors.kls.base");
  const int greys[] = {255, 234, 214, 193, 167, 146, 123, 96, 70, 35, 0};
  for (int i = 0; i <= 10; ++i) {
    const auto grey = static_cast<unsigned char>(greys[i]);
    const std::string value = "colors.kls.kro.Value." + std::to_string(i);
    EXPECT_EQ(ColorManager::GetColor(ColorManager::Key(value + ".Unblended")), (Color{grey, grey, grey}));
    EXPECT_EQ(ColorManager::GetColor(ColorManager::Key(value)),
              ColorManager::MakeColor(base, {grey, grey, grey}, 0.5));
    EXPECT_EQ(ColorManager::GetColor(ColorManager::Key("colors.kls.kro.Dimmed." + std::to_string(i))),
              ColorManager::MakeColor(base, {grey, grey, grey}, 0.22));
  }
  EXPECT_EQ(ColorManager::GetColor("colors.Formula.C"), ColorManager::GetColor("colors.app.Formula.C"));
}

TEST_F(ShippedColors, NoKeyFallsBackToRedAtAnyBrightness) {
  std::set<std::string> keys;
  for (const auto* table : {u"zelcolors", u"appcolors"})
    for (const auto& row : Rows(table)) keys.insert(row.first);
  ASSERT_EQ(keys.size(), 162u);
  for (const float brightness : {0.f, 0.25f, 0.5f, 0.5001f, 0.75f, 1.f}) {
    SetBrightness(brightness);
    for (const std::string& key : keys)
      EXPECT_NE(ColorManager::GetColor(ColorManager::Key(key)), (Color{255, 0, 0}))
          << key << " at " << brightness;
  }
}

TEST_F(ShippedColors, EveryThemeNameHasColoursInTheThemeFiles) {
  for (const auto& [name, id] : ZEL::ThemeNameTable::Instance().GetEntries())
    EXPECT_TRUE(kroui::ui::Theme::Get().HasColor(id)) << name << " = " << id;
}

TEST_F(ShippedColors, TheDefaultLookIsACalmDarkUI) {
  const Color base = ColorManager::GetColor("colors.kls.base");
  const Color text = ColorManager::GetColor("colors.kls.text");
  const Color background = ColorManager::GetColor("kColor_ApplicationBackground");
  const Color focus = ColorManager::GetColor("colors.kls.focus");
  EXPECT_LT(Luminance(base), 0.05f) << "dark panels";
  EXPECT_LT(Luminance(background), Luminance(base)) << "the frame behind the panels is darker still";
  EXPECT_GE((Luminance(text) + 0.05f) / (Luminance(base) + 0.05f), 7.f) << "text reads easily";
  EXPECT_LE(Luminance(text), 0.75f) << "but does not glare";
  EXPECT_TRUE(focus.blue > focus.red && focus.blue > focus.green) << "a blue accent";
  EXPECT_TRUE(ColorManager::IsReversingColors());
  EXPECT_TRUE(base.red == base.green && base.green == base.blue) << "neutral greys";
}

TEST_F(ShippedColors, BrightnessStepsToALightUIJustPastTheDarkLevel) {
  std::vector<Color> bases;
  for (const float brightness : {0.25f, 0.5f, 0.5001f}) {
    SetBrightness(brightness);
    bases.push_back(ColorManager::GetColor("colors.kls.base"));
  }
  EXPECT_LT(bases[0].red, bases[1].red);
  EXPECT_GT(bases[2].red, bases[1].red + 100) << "a step, not a ramp";
  EXPECT_FALSE(ColorManager::IsReversingColors());
  EXPECT_LT(Luminance(ColorManager::GetColor("colors.kls.text")), 0.1f);
  EXPECT_EQ(ColorManager::GetColor("colors.kls.highlight"), ColorManager::GetColor("kColor_Gamut_Blue"));
}

TEST_F(ShippedColors, HighContrastIsFixedBlackAndWhite) {
  ASSERT_TRUE(ThemeResources::Install(ThemeResources::Variant::HighContrast));
  for (const float brightness : {0.f, 1.f}) {
    SetBrightness(brightness);
    EXPECT_EQ(ColorManager::GetColor("colors.kls.base"), (Color{0, 0, 0}));
    EXPECT_EQ(ColorManager::GetColor("colors.kls.text"), (Color{255, 255, 255}));
  }
  ASSERT_TRUE(ThemeResources::Install());
  EXPECT_NE(ColorManager::GetColor("colors.kls.base"), (Color{0, 0, 0})) << "the standard palette again";
}

struct ThemeFile {
  const char16_t* name;
  kroui::ui::ColorID first;
  kroui::ui::ColorID last;
  bool allGeneral;
  bool dense; ///< every ID of the range has key frames
};

class ThemeFiles : public testing::TestWithParam<ThemeFile> {};

TEST_P(ThemeFiles, ValidateAgainstTheirOwnDTD) {
  const std::string_view xml = Resource(ThemeResources::kThemeType, GetParam().name);
  ASSERT_FALSE(xml.empty());
  const auto path =
      std::filesystem::temp_directory_path() /
      ("zel-theme-" + std::to_string(::getpid()) + "-" + std::to_string(GetParam().first) + ".xml");
  std::ofstream(path, std::ios::binary).write(xml.data(), static_cast<std::streamsize>(xml.size()));
  const std::string command = "xmllint --noout --valid '" + path.string() + "' 2>&1";
  const int status = std::system(command.c_str());
  std::filesystem::remove(path);
  EXPECT_EQ(status, 0) << "xmllint found the file invalid (or is not installed: scripts/setup installs it)";
}

TEST_P(ThemeFiles, CoverTheirIDRange) {
  const auto read = kroui::ui::ThemeReader::Read(Resource(ThemeResources::kThemeType, GetParam().name));
  ASSERT_TRUE(read) << read.Error();
  std::set<kroui::ui::ColorID> ids;
  bool allGeneral = true;
  for (const auto& frame : read.Value().keyFrames) {
    ids.insert(frame.name);
    allGeneral = allGeneral && frame.general;
  }
  EXPECT_EQ(*ids.begin(), GetParam().first);
  EXPECT_EQ(*ids.rbegin(), GetParam().last);
  if (GetParam().dense) {
    EXPECT_EQ(ids.size(), GetParam().last - GetParam().first + 1);
  }
  EXPECT_EQ(allGeneral, GetParam().allGeneral);
  EXPECT_EQ(read.Value().fontSizes.front(),
            (kroui::ui::FontSize{kroui::ui::FontText::MainSmall, 8.f, kroui::ui::FontScheme::Small}));
}

INSTANTIATE_TEST_SUITE_P(Cases, ThemeFiles,
                         testing::Values(ThemeFile{u"KROCOLORTHEMESV5", 5000000, 5000120, false, true},
                                         ThemeFile{u"HIGHCONTRASTCOLORTHEMEV5", 5000000, 5000119, true, true},
                                         ThemeFile{u"KROCOLORTHEMESV2", 12, 303, false, false}));

} // namespace
