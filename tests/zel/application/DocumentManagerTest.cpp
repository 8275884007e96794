#include <zel/application/DocumentManager.h>

#include <gtest/gtest.h>

TEST(DocumentManager, IsOneObjectForTheWholeProcessSharedWithEveryCaller) {
  const std::shared_ptr<ZEL::DocumentManager> first = ZEL::DocumentManager::Instance();
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(ZEL::DocumentManager::Instance(), first);
  EXPECT_GE(first.use_count(), 2) << "the process keeps its own share";
}
