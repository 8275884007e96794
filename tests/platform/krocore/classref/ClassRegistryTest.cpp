#include <krocore/classref/ClassRegistry.h>
#include <krocore/debug/Assert.h>

#include <gtest/gtest.h>

namespace {

namespace classref = krocore::classref;

struct Writer : classref::UnknownBase {
  virtual std::string Write() = 0;
};

struct XMLWriter : Writer {
  std::string Write() override { return "<xml/>"; }
};

struct Other : classref::UnknownBase {};

class ClassRegistryTest : public testing::Test {
protected:
  void TearDown() override {
    classref::UnregisterClassFactory("test.writer");
    classref::UnregisterClassFactory("test.other");
  }
};

TEST_F(ClassRegistryTest, CreatesANewInstanceByIDAsItsInterface) {
  ASSERT_TRUE(classref::RegisterClassFactory("test.writer", [] { return std::make_shared<XMLWriter>(); }));
  auto a = classref::CreateClassInstanceRef<Writer>("test.writer");
  auto b = classref::CreateClassInstanceRef<Writer>("test.writer");
  ASSERT_TRUE(a && b);
  EXPECT_NE(a, b);
  EXPECT_EQ(a->Write(), "<xml/>");
}

TEST_F(ClassRegistryTest, UnknownIDOrWrongInterfaceGiveNull) {
  classref::RegisterClassFactory("test.other", [] { return std::make_shared<Other>(); });
  EXPECT_EQ(classref::CreateClassInstanceRef<Writer>("test.missing"), nullptr);
  EXPECT_EQ(classref::CreateClassInstanceRef<Writer>("test.other"), nullptr);
  EXPECT_NE(classref::CreateClassInstanceRef<Other>("test.other"), nullptr);
}

TEST_F(ClassRegistryTest, AnIDIsRegisteredOnce) {
  krocore::debug::ScopedAssertionRecorder recorder;
  classref::RegisterClassFactory("test.writer", [] { return std::make_shared<XMLWriter>(); });
  EXPECT_FALSE(classref::RegisterClassFactory("test.writer", [] { return std::make_shared<Other>(); }));
  EXPECT_TRUE(recorder.Contains("Class ID \"test.writer\" is already registered"));
  EXPECT_NE(classref::CreateClassInstanceRef<Writer>("test.writer"), nullptr);
  EXPECT_TRUE(classref::UnregisterClassFactory("test.writer"));
  EXPECT_FALSE(classref::IsClassRegistered("test.writer"));
}

} // namespace
