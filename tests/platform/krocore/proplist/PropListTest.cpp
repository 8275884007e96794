#include <krocore/proplist/PropList.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using krocore::proplist::PropList;
using krocore::proplist::PropValue;

namespace {

PropList PanelState() {
  PropList size;
  size.Set("width", 640);
  size.Set("height", 480);
  PropList state;
  state.Set("name", "Timeline \"A\"\n\ttab\\ \x01 caf\xC3\xA9");
  state.Set("size", size);
  state.Set("zoom", 1.5);
  state.Set("exact", 0.1);
  state.Set("whole", 2.0);
  state.Set("huge", std::numeric_limits<std::int64_t>::min());
  state.Set("visible", true);
  state.Set("nothing", PropValue());
  state.Set("tabs", PropValue::Array{1, "two", PropValue::Array{}, PropList(), size});
  state.Set("empty", PropList());
  return state;
}

TEST(PropList, TextFormReadsBackToAnEqualList) {
  const PropList state = PanelState();
  const std::string text = state.ToText();
  auto read = PropList::FromText(text);
  ASSERT_TRUE(read) << read.Error() << "\n" << text;
  EXPECT_EQ(read.Value(), state);
  EXPECT_EQ(read.Value().ToText(), text);
  // Types survive: a real that is whole stays a real, an integer an integer.
  EXPECT_EQ(read.Value().Find("whole")->GetType(), PropValue::Type::Real);
  EXPECT_EQ(read.Value().GetList("size")->Find("width")->GetType(), PropValue::Type::Integer);
  EXPECT_EQ(read.Value().GetReal("exact", 0), 0.1);
}

TEST(PropList, TextIsTheSameWhateverTheOrderOfSetting) {
  PropList a, b;
  a.Set("b", 2);
  a.Set("a", 1);
  b.Set("a", 1);
  b.Set("b", 2);
  EXPECT_EQ(a.ToText(), b.ToText());
  EXPECT_EQ(a.ToText(), "{\n  \"a\" = 1;\n  \"b\" = 2;\n}\n");
}

TEST(PropList, TypedGettersAnswerTheFallbackForOtherTypes) {
  const PropList state = PanelState();
  EXPECT_EQ(state.GetString("name", "").substr(0, 8), "Timeline");
  EXPECT_EQ(state.GetInteger("name", -1), -1);
  EXPECT_EQ(state.GetReal("size", 7.0), 7.0);
  EXPECT_EQ(state.GetList("size")->GetInteger("width", 0), 640);
  EXPECT_EQ(state.GetReal("huge", 0), static_cast<double>(std::numeric_limits<std::int64_t>::min()));
  EXPECT_TRUE(state.GetBool("visible", false));
  EXPECT_EQ(state.GetList("zoom"), nullptr);
  EXPECT_EQ(state.Find("missing"), nullptr);
}

TEST(PropList, CopiesAreDeep) {
  PropList original = PanelState();
  PropList copy = original;
  PropList size = *copy.GetList("size");
  size.Set("width", 1);
  copy.Set("size", size);
  EXPECT_EQ(original.GetList("size")->GetInteger("width", 0), 640);
  EXPECT_NE(copy, original);
}

TEST(PropList, RealsKeepInfinitiesAndNaN) {
  PropList list;
  list.Set("up", std::numeric_limits<double>::infinity());
  list.Set("down", -std::numeric_limits<double>::infinity());
  list.Set("nan", std::nan(""));
  auto read = PropList::FromText(list.ToText());
  ASSERT_TRUE(read) << read.Error();
  EXPECT_EQ(read.Value().GetReal("up", 0), std::numeric_limits<double>::infinity());
  EXPECT_EQ(read.Value().GetReal("down", 0), -std::numeric_limits<double>::infinity());
  EXPECT_TRUE(std::isnan(read.Value().GetReal("nan", 0)));
}

TEST(PropList, ReadsCommentsAndUnicodeEscapes) {
  auto read = PropList::FromText("# saved by hand\n{ \"a\" = \"\\u00e9\\ud83c\\udfac\\ud800x\"; }");
  ASSERT_TRUE(read) << read.Error();
  EXPECT_EQ(read.Value().GetString("a", ""), "\xC3\xA9\xF0\x9F\x8E\xAC\xEF\xBF\xBDx");
}

struct DamagedCase {
  const char* name;
  std::string text;
  std::string error;
};

class DamagedPropList : public testing::TestWithParam<DamagedCase> {};

TEST_P(DamagedPropList, FailsWithLineAndReason) {
  auto read = PropList::FromText(GetParam().text);
  ASSERT_FALSE(read);
  EXPECT_EQ(read.Error(), GetParam().error);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, DamagedPropList,
    testing::Values(DamagedCase{"Empty", "", "line 1, column 1: expected '{'"},
                    DamagedCase{"Truncated", "{\n  \"a\" = 1;\n", "line 3, column 1: expected '}' before the end of the text"},
                    DamagedCase{"MissingSemicolon", "{ \"a\" = 1 }", "line 1, column 11: expected ';' after a value"},
                    DamagedCase{"UnquotedKey", "{ a = 1; }", "line 1, column 3: expected a quoted key"},
                    DamagedCase{"DuplicateKey", "{ \"a\" = 1;\n\"a\" = 2; }", "line 2, column 4: the key \"a\" appears twice"},
                    DamagedCase{"IntegerOverflow", "{ \"a\" = 9223372036854775808; }", "line 1, column 9: \"9223372036854775808\" is not a value"},
                    DamagedCase{"BadWord", "{ \"a\" = yes; }", "line 1, column 9: \"yes\" is not a value"},
                    DamagedCase{"OpenString", "{ \"a\" = \"abc", "line 1, column 13: a string is not closed"},
                    DamagedCase{"BadEscape", "{ \"a\" = \"\\q\"; }", "line 1, column 12: unknown escape \\q"},
                    DamagedCase{"ShortUnicode", "{ \"a\" = \"\\u12\"; }", "line 1, column 12: \\u needs four hexadecimal digits"},
                    DamagedCase{"TrailingText", "{} {}", "line 1, column 4: unexpected text after the closing '}'"},
                    DamagedCase{"ArrayWithoutComma", "{ \"a\" = ( 1 2 ); }", "line 1, column 13: expected ',' or ')' in an array"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(PropList, DeepNestingIsRefusedNotRecursedInto) {
  std::string deep;
  for (int i = 0; i < 100000; ++i) deep += "{ \"a\" = ";
  auto read = PropList::FromText(deep);
  ASSERT_FALSE(read);
  EXPECT_NE(read.Error().find("nested too deeply"), std::string::npos);

  std::string arrays = "{ \"a\" = ";
  for (int i = 0; i < 100000; ++i) arrays += "(";
  EXPECT_FALSE(PropList::FromText(arrays));
}

} // namespace
