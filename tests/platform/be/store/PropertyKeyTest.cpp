#include <be/store/PropertyKey.h>

#include <gtest/gtest.h>

namespace {

struct KeyCase {
  std::string base;
  std::string suffix;
  std::uint32_t index;
  std::string withSuffix;
  std::string withIndex;
};

class PropertyKey : public testing::TestWithParam<KeyCase> {};

TEST_P(PropertyKey, JoinsBaseAndSuffixOrIndexWithADot) {
  const KeyCase& c = GetParam();
  EXPECT_EQ(BE::CreateKeyWithSuffix(c.base, c.suffix), c.withSuffix);
  EXPECT_EQ(BE::CreateKeyWithIndex(c.base, c.index), c.withIndex);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, PropertyKey,
    testing::Values(KeyCase{"context", "Timeline", 3, "context.Timeline", "context.3"},
                    KeyCase{"item", "", 0, "item.", "item.0"}, KeyCase{"", "platform", 42, "platform", "42"},
                    KeyCase{"item", "Überblick", 4294967295u, "item.Überblick", "item.4294967295"},
                    KeyCase{"a.b", "c.d", 10, "a.b.c.d", "a.b.10"}));

} // namespace
