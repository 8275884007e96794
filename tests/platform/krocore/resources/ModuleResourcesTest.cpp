#include <krocore/resources/ModuleResources.h>

#include <gtest/gtest.h>

using krocore::utility::GetBinaryFromModule;

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

} // namespace
