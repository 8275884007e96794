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
  EXPECT_EQ(a.ToText(), "{\n  \"a\": 1,\n  \"b\": 2\n}\n");
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

TEST(PropList, WholeRealsStayRealsAndIntegersStayIntegers) {
  auto read = PropList::FromText(R"({ "a": 1.0, "b": 1, "c": -0.0, "d": 1e3, "e": 9223372036854775807,
                                      "f": -9223372036854775808, "g": [2, 2.0] })");
  ASSERT_TRUE(read) << read.Error();
  const PropList& list = read.Value();
  EXPECT_EQ(list.Find("a")->GetType(), PropValue::Type::Real);
  EXPECT_EQ(list.Find("b")->GetType(), PropValue::Type::Integer);
  EXPECT_EQ(list.Find("c")->GetType(), PropValue::Type::Real);
  EXPECT_EQ(list.Find("d")->GetType(), PropValue::Type::Real);
  EXPECT_EQ(list.GetInteger("e", 0), std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(list.GetInteger("f", 0), std::numeric_limits<std::int64_t>::min());
  const auto& array = *list.Find("g")->AsArray();
  EXPECT_EQ(array[0].GetType(), PropValue::Type::Integer);
  EXPECT_EQ(array[1].GetType(), PropValue::Type::Real);
  EXPECT_EQ(PropList::FromText(list.ToText()).Value(), list);
  EXPECT_NE(list.ToText().find("\"a\": 1.0"), std::string::npos) << list.ToText();
}

TEST(PropList, RealsRoundTripExactly) {
  PropList list;
  const double reals[] = {0.1, 1.0 / 3, 1e-300, 5e-324, 1.7976931348623157e308, -2.5, 123456789.125};
  for (std::size_t i = 0; i < std::size(reals); ++i) list.Set("r" + std::to_string(i), reals[i]);
  auto read = PropList::FromText(list.ToText());
  ASSERT_TRUE(read) << read.Error();
  for (std::size_t i = 0; i < std::size(reals); ++i)
    EXPECT_EQ(read.Value().GetReal("r" + std::to_string(i), 0), reals[i]);
}

TEST(PropList, RealsThatJSONCannotHoldAreWrittenAsNull) {
  PropList list;
  list.Set("up", std::numeric_limits<double>::infinity());
  list.Set("down", -std::numeric_limits<double>::infinity());
  list.Set("nan", std::nan(""));
  auto read = PropList::FromText(list.ToText());
  ASSERT_TRUE(read) << read.Error();
  for (const char* key : {"up", "down", "nan"}) EXPECT_EQ(read.Value().Find(key)->GetType(), PropValue::Type::None);
}

TEST(PropList, ReadsUnicodeEscapesAndWritesUTF8AsItIs) {
  auto read = PropList::FromText(R"({ "a": "\u00e9\ud83c\udfac x", "\u0001": "\n" })");
  ASSERT_TRUE(read) << read.Error();
  EXPECT_EQ(read.Value().GetString("a", ""), "\xC3\xA9\xF0\x9F\x8E\xAC x");
  EXPECT_EQ(read.Value().GetString("\x01", ""), "\n");
  EXPECT_NE(read.Value().ToText().find("\xC3\xA9"), std::string::npos);
}

TEST(PropList, InvalidUTF8IsWrittenAsReplacementCharacters) {
  PropList list;
  list.Set("bad", std::string("a\xFF\xC3z"));
  auto read = PropList::FromText(list.ToText());
  ASSERT_TRUE(read) << read.Error();
  EXPECT_EQ(read.Value().GetString("bad", ""), "a\xEF\xBF\xBD\xEF\xBF\xBDz");
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
  EXPECT_EQ(read.Error().substr(0, GetParam().error.size()), GetParam().error) << read.Error();
}

// Where reading stopped and the start of the reason; the parser words the rest.
INSTANTIATE_TEST_SUITE_P(
    Texts, DamagedPropList,
    testing::Values(DamagedCase{"Empty", "", "line 1, column 1: syntax error"},
                    DamagedCase{"Truncated", "{\n  \"a\": 1,\n", "line 3, column 1: syntax error"},
                    DamagedCase{"MissingComma", "{ \"a\": 1 \"b\": 2 }", "line 1, column 12: syntax error"},
                    DamagedCase{"UnquotedKey", "{ a: 1 }", "line 1, column 3: syntax error"},
                    DamagedCase{"DuplicateKey", "{ \"a\": 1,\n\"a\": 2 }", "line 2, column 3: the key \"a\" appears twice"},
                    DamagedCase{"IntegerOverflow", "{ \"a\": 9223372036854775808 }", "line 1, column 27: \"9223372036854775808\" is too large for an integer"},
                    DamagedCase{"HugeInteger", "{ \"a\": 123456789012345678901234567890 }", "line 1, column 38: \"123456789012345678901234567890\" is too large for an integer"},
                    DamagedCase{"RealOverflow", "{ \"a\": 1e999 }", "line 1, column 12: number overflow"},
                    DamagedCase{"BadWord", "{ \"a\": yes }", "line 1, column 8: syntax error"},
                    DamagedCase{"OpenString", "{ \"a\": \"abc", "line 1, column 11: syntax error"},
                    DamagedCase{"BadEscape", "{ \"a\": \"\\q\" }", "line 1, column 10: syntax error"},
                    DamagedCase{"Comment", "# old\n{}", "line 1, column 1: syntax error"},
                    DamagedCase{"TrailingText", "{} {}", "line 1, column 4: syntax error"},
                    DamagedCase{"TopLevelArray", "[1]", "line 1, column 1: expected an object"},
                    DamagedCase{"TopLevelNumber", "1", "line 1, column 1: expected an object"},
                    DamagedCase{"ArrayWithoutComma", "{ \"a\": [ 1 2 ] }", "line 1, column 12: syntax error"}),
    [](const auto& row) { return std::string(row.param.name); });

// Lists and arrays in turn: every container counts towards the limit.
std::string Nested(int depth) {
  std::string open, close;
  for (int i = 0; i < depth; ++i) {
    open += i % 2 == 0 ? "{\"a\": " : "[";
    close.insert(0, i % 2 == 0 ? "}" : "]");
  }
  return open + (depth % 2 == 1 ? "0" : "") + close;
}

TEST(PropList, NestingUpToTheLimitReadsAndOneMoreFails) {
  auto atLimit = PropList::FromText(Nested(PropList::kMaxDepth));
  ASSERT_TRUE(atLimit) << atLimit.Error();
  EXPECT_EQ(PropList::FromText(atLimit.Value().ToText()).Value(), atLimit.Value());
  auto over = PropList::FromText(Nested(PropList::kMaxDepth + 1));
  ASSERT_FALSE(over);
  EXPECT_NE(over.Error().find("nested too deeply"), std::string::npos) << over.Error();
}

TEST(PropList, DeepNestingIsRefusedNotRecursedInto) {
  std::string deep;
  for (int i = 0; i < 100000; ++i) deep += "{ \"a\": ";
  auto read = PropList::FromText(deep);
  ASSERT_FALSE(read);
  EXPECT_NE(read.Error().find("nested too deeply"), std::string::npos);

  std::string arrays = "{ \"a\": ";
  for (int i = 0; i < 100000; ++i) arrays += "[";
  EXPECT_FALSE(PropList::FromText(arrays));
}

} // namespace
