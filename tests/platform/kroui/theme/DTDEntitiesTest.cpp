#include <kroui/theme/DTDEntities.h>

#include <gtest/gtest.h>

#include <string>

using kroui::ui::DTDEntities;

namespace {

DTDEntities ParseOrFail(std::string_view subset) {
  auto parsed = DTDEntities::Parse(subset);
  EXPECT_TRUE(parsed) << parsed.Error();
  return parsed ? parsed.Value() : DTDEntities{};
}

std::string Repeat(std::string_view text, int count) {
  std::string out;
  for (int i = 0; i < count; ++i) out += text;
  return out;
}

TEST(DTDEntities, ExpandsNestedEntitiesAndReferences) {
  const DTDEntities entities = ParseOrFail(R"(
    <!-- Inline DTD: <!ENTITY Commented "no"> -->
    <!ELEMENT KeyFrame EMPTY>
    <!ATTLIST KeyFrame hold (true|false) "false" note CDATA "a > b">
    <?editor keep ?>
    <!ENTITY Dark "0.5">
    <!ENTITY Shade '&Dark;1'>
    <!ENTITY Dark "0.9">
    <!ENTITY % Parameter "ignored">
    <!ENTITY Outside SYSTEM "http://example.invalid/never-read">)");
  EXPECT_EQ(entities.Expand("t=&Shade;;&amp;&lt;&gt;&apos;&quot;&#65;&#x42;&#x20AC;").Value(),
            "t=0.51;&<>'\"AB\xE2\x82\xAC");
  EXPECT_FALSE(entities.Expand("&Commented;")) << "declarations inside comments are not declarations";
  using Entries = std::vector<std::pair<std::string, std::string>>;
  EXPECT_EQ(entities.GetEntities(), (Entries{{"Dark", "0.5"}, {"Shade", "&Dark;1"}}))
      << "the first declaration binds; parameter and external entities are not listed";
}

struct ExpansionFailure {
  const char* label;
  std::string subset;
  std::string text;
  const char* message;
};

class DTDEntitiesRefuses : public testing::TestWithParam<ExpansionFailure> {};

TEST_P(DTDEntitiesRefuses, ExpansionThatCannotEndWell) {
  const DTDEntities entities = ParseOrFail(GetParam().subset);
  const auto expanded = entities.Expand(GetParam().text);
  ASSERT_FALSE(expanded);
  EXPECT_NE(expanded.Error().find(GetParam().message), std::string::npos) << expanded.Error();
}

std::string LaughChain(int levels) {
  std::string subset = "<!ENTITY l0 \"" + Repeat("ha", 50) + "\">";
  for (int i = 1; i < levels; ++i)
    subset +=
        "<!ENTITY l" + std::to_string(i) + " \"" + Repeat("&l" + std::to_string(i - 1) + ";", 10) + "\">";
  return subset;
}

std::string EmptyFanOut() {
  std::string subset = "<!ENTITY e0 \"\">";
  for (int i = 1; i < 6; ++i)
    subset +=
        "<!ENTITY e" + std::to_string(i) + " \"" + Repeat("&e" + std::to_string(i - 1) + ";", 20) + "\">";
  return subset;
}

std::string DeepChain(int depth) {
  std::string subset = "<!ENTITY d0 \"x\">";
  for (int i = 1; i <= depth; ++i)
    subset += "<!ENTITY d" + std::to_string(i) + " \"&d" + std::to_string(i - 1) + ";\">";
  return subset;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, DTDEntitiesRefuses,
    testing::Values(ExpansionFailure{"Undeclared", "", "&Missing;", "not declared"},
                    ExpansionFailure{"SelfReference", "<!ENTITY a \"x&a;\">", "&a;", "refers to itself"},
                    ExpansionFailure{"MutualReference", "<!ENTITY a \"&b;\"><!ENTITY b \"&a;\">", "&a;",
                                     "refers to itself"},
                    ExpansionFailure{"BillionLaughs", LaughChain(9), "&l8;", "too much text"},
                    ExpansionFailure{"EmptyFanOut", EmptyFanOut(), "&e5;", "too many references"},
                    ExpansionFailure{"DeepChain", DeepChain(20), "&d20;", "nest too deeply"},
                    ExpansionFailure{"External", "<!ENTITY x SYSTEM \"file:///etc/passwd\">", "&x;",
                                     "external"},
                    ExpansionFailure{"LoneAmpersand", "", "a & b", "starts no reference"},
                    ExpansionFailure{"Surrogate", "", "&#xD800;", "no character"},
                    ExpansionFailure{"BeyondUnicode", "", "&#x110000;", "no character"},
                    ExpansionFailure{"NotANumber", "", "&#x;", "no character"}),
    [](const auto& row) { return std::string(row.param.label); });

TEST(DTDEntities, ChainsWithinTheLimitsExpand) {
  EXPECT_EQ(ParseOrFail(DeepChain(DTDEntities::kMaxDepth - 1)).Expand("&d15;").Value(), "x");
  EXPECT_EQ(ParseOrFail(LaughChain(3)).Expand("&l2;").Value().size(), 10000u);
}

TEST(DTDEntities, RefusesASubsetItCannotRead) {
  for (const char* subset : {"<!-- never closed", "<!ENTITY a \"1\"> stray", "<!ENTITY a \"1>",
                             "<!ENTITY \"1\">", "%shared;", "<!ELEMENT a EMPTY"}) {
    const auto parsed = DTDEntities::Parse(subset);
    EXPECT_FALSE(parsed) << subset;
    EXPECT_NE(parsed.Error().find("DTD"), std::string::npos) << parsed.Error();
  }
}

} // namespace
