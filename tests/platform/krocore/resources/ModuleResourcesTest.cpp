#include <krocore/resources/ModuleResources.h>

#include <gtest/gtest.h>

#include <memory>

using krocore::utility::GetBinaryFromModule;
using krocore::utility::ModuleResource;
using krocore::utility::ModuleResourceRegistrar;

namespace {

// The build compiles resources/sample.txt into this test program as
// module "krocore_tests", type "table", name "sample".
TEST(ModuleResources, FindsCompiledInBytesExactly) {
  const auto bytes = GetBinaryFromModule("krocore_tests", u"table", u"sample");
  ASSERT_FALSE(bytes.IsEmpty());
  EXPECT_EQ(bytes.AsText(), "first line\r\nsecond line\r\n");
  EXPECT_EQ(bytes.data[bytes.size], 0) << "text resources end in a zero byte";
}

TEST(ModuleResources, TypeAndNameMatchWithoutRegardToCase) {
  EXPECT_FALSE(GetBinaryFromModule("krocore_tests", u"TABLE", u"Sample").IsEmpty());
}

TEST(ModuleResources, AnythingElseIsEmpty) {
  EXPECT_TRUE(GetBinaryFromModule("krocore_tests", u"table", u"missing").IsEmpty());
  EXPECT_TRUE(GetBinaryFromModule("krocore_tests", u"png", u"sample").IsEmpty());
  EXPECT_TRUE(GetBinaryFromModule("other", u"table", u"sample").IsEmpty());
  EXPECT_EQ(GetBinaryFromModule("", u"", u"").size, 0u);
}

constexpr unsigned char kFirst[] = "first";
constexpr unsigned char kSecond[] = "second!";

TEST(ModuleResources, ATableIsFiledWhileItsRegistrarLives) {
  const ModuleResource table[] = {{u"table", u"one", kFirst, kFirst + 5}, {u"xml", u"two", kSecond, kSecond + 7}};
  {
    const ModuleResourceRegistrar registrar("table_module", table);
    EXPECT_EQ(GetBinaryFromModule("table_module", u"table", u"one").AsText(), "first");
    EXPECT_EQ(GetBinaryFromModule("table_module", u"XML", u"Two").AsText(), "second!");
    EXPECT_TRUE(GetBinaryFromModule("table_module", u"table", u"two").IsEmpty());
  }
  EXPECT_TRUE(GetBinaryFromModule("table_module", u"table", u"one").IsEmpty());
  EXPECT_TRUE(GetBinaryFromModule("table_module", u"xml", u"two").IsEmpty());
}

TEST(ModuleResources, ALaterRegistrarReplacesAnEarlierOneThatThenWithdrawsNothing) {
  auto earlier = std::make_unique<ModuleResourceRegistrar>("replaced", u"table", u"name", kFirst, 5);
  {
    const ModuleResourceRegistrar later("replaced", u"table", u"name", kSecond, 7);
    earlier.reset();
    EXPECT_EQ(GetBinaryFromModule("replaced", u"table", u"name").AsText(), "second!");
  }
  EXPECT_TRUE(GetBinaryFromModule("replaced", u"table", u"name").IsEmpty());
}

} // namespace
