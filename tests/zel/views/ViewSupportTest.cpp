#include <zel/views/ViewSupport.h>

#include <krocore/debug/Assert.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

struct FakeNode {
  static constexpr std::string_view kReportedName = "FakeControl";
};

struct FakeHandle {
  std::unique_ptr<FakeNode> mImpl;
  int mCheckLine = 0;

  int Operation() {
    // clang-format off
    mCheckLine = __LINE__; if (!ZEL::detail::HasNode(mImpl)) return -1;
    // clang-format on
    return 1;
  }
};

TEST(ViewSupport, AHandleWithoutItsNodeReportsAgainstTheCallingOperation) {
  krocore::debug::ScopedAssertionRecorder recorder;
  FakeHandle handle;
  EXPECT_EQ(handle.Operation(), -1);
  ASSERT_EQ(recorder.Count(), 1u);
  const krocore::debug::AssertionReport report = recorder.Reports()[0];
  EXPECT_EQ(report.message, "FakeControl has not been initialized");
  EXPECT_EQ(report.operation, "{anonymous}::FakeHandle::Operation");
  EXPECT_EQ(report.line, handle.mCheckLine) << "the operation's line, not the helper's";
  EXPECT_NE(report.file.find("ViewSupportTest.cpp"), std::string::npos) << report.file;

  handle.mImpl = std::make_unique<FakeNode>();
  EXPECT_EQ(handle.Operation(), 1);
  EXPECT_EQ(recorder.Count(), 1u) << "a handle with its node reports nothing";
}

} // namespace
