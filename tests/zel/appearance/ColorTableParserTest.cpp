#include <zel/appearance/ColorTableParser.h>

#include <gtest/gtest.h>

#include <vector>

using ZEL::ColorTableParser;

namespace {

struct LineCase {
  const char* label;
  const char* line;
  std::optional<ColorTableParser::Line> parsed;
};

class ColorTableLine : public testing::TestWithParam<LineCase> {};

TEST_P(ColorTableLine, ParsesAndNormalisesOrIgnores) {
  EXPECT_EQ(ColorTableParser::ParseLine(GetParam().line), GetParam().parsed);
}

ColorTableParser::Line Accepted(const char* key, const char* expression) { return {key, expression}; }

INSTANTIATE_TEST_SUITE_P(
    Cases, ColorTableLine,
    testing::Values(
        LineCase{"Compact", "colors.x=$RGB(1,2,3)", Accepted("colors.x", "$RGB(1, 2, 3)")},
        LineCase{"TableLayout", "colors.z   \t= $RGB(255,255, 255)\r",
                 Accepted("colors.z", "$RGB(255, 255, 255)")},
        LineCase{"CapitalPrefixKept", "Colors.x = $RGB(1,2,3)", Accepted("Colors.x", "$RGB(1, 2, 3)")},
        LineCase{"ShoutedPrefix", "COLORS.up = $MAP(colors.x)", Accepted("COLORS.up", "$MAP(colors.x)")},
        LineCase{"EveryWhiteSpace", " colors.t\f= $RGB( 1,\t2,\v3 ) ", Accepted("colors.t", "$RGB(1, 2, 3)")},
        LineCase{"OnlyUpToASecondEquals", "colors.k = $MAP(colors.a) = ignored",
                 Accepted("colors.k", "$MAP(colors.a)")},
        LineCase{"KeyWithoutPrefix", "x = $RGB(1,2,3)", std::nullopt},
        LineCase{"PrefixWithoutDot", "colors = $RGB(1,2,3)", std::nullopt},
        LineCase{"NothingAfterTheSign", "colors.y =", std::nullopt},
        LineCase{"OnlySpaceAfterTheSign", "colors.y = \t\r", std::nullopt},
        LineCase{"NoSign", "colors.y $RGB(1,2,3)", std::nullopt},
        LineCase{"NoKey", " = $RGB(1,2,3)", std::nullopt}),
    [](const auto& row) { return std::string(row.param.label); });

TEST(ColorTableParser, VisitsLinesLongerThanOneCharacter) {
  std::vector<std::string> lines;
  const bool seen = ColorTableParser::ForEachLine("ab\r\n\r\n\ncd\nx\n\nlast",
                                                  [&](std::string_view line) { lines.emplace_back(line); });
  EXPECT_TRUE(seen);
  EXPECT_EQ(lines, (std::vector<std::string>{"ab\r", "cd", "last"}));
}

TEST(ColorTableParser, BlankTablesSeeNothing) {
  int calls = 0;
  EXPECT_FALSE(ColorTableParser::ForEachLine("\r\n\r\n\nx", [&](std::string_view) { ++calls; }));
  EXPECT_FALSE(ColorTableParser::ForEachLine("", [&](std::string_view) { ++calls; }));
  EXPECT_EQ(calls, 0);
}

} // namespace
