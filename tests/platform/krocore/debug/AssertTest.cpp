#include <krocore/debug/Assert.h>

#include <gtest/gtest.h>

namespace {

struct SubView {
  bool GetBounds(int& out) const {
    if (!KROCORE_ASSERT(mImpl, "SubViewImpl has not been initialized")) return false;
    out = 1;
    return true;
  }
  int* mImpl = nullptr;
};

TEST(Assert, RecorderCapturesExactMessageFileAndOperationThenExecutionGoesOn) {
  krocore::debug::ScopedAssertionRecorder recorder;
  SubView view;
  int bounds = 0;
  EXPECT_FALSE(view.GetBounds(bounds)); // the caller's neutral answer follows the report
  ASSERT_EQ(recorder.Count(), 1u);
  const auto report = recorder.Reports().front();
  EXPECT_EQ(report.message, "SubViewImpl has not been initialized");
  EXPECT_NE(report.file.find("AssertTest.cpp"), std::string::npos);
  EXPECT_GT(report.line, 0);
  EXPECT_EQ(report.operation, "{anonymous}::SubView::GetBounds");
  EXPECT_TRUE(recorder.Contains("SubViewImpl has not been initialized"));
  EXPECT_FALSE(recorder.Contains("SubViewImpl has not been"));
}

TEST(Assert, PassingConditionReportsNothing) {
  krocore::debug::ScopedAssertionRecorder recorder;
  int impl = 0;
  SubView view{&impl};
  int bounds = 0;
  EXPECT_TRUE(view.GetBounds(bounds));
  EXPECT_EQ(recorder.Count(), 0u);
}

TEST(Assert, NestedRecordersRestoreTheOuterOne) {
  krocore::debug::ScopedAssertionRecorder outer;
  {
    krocore::debug::ScopedAssertionRecorder inner;
    KROCORE_FAIL("inner");
    EXPECT_EQ(inner.Count(), 1u);
  }
  KROCORE_FAIL("outer");
  ASSERT_EQ(outer.Count(), 1u);
  EXPECT_EQ(outer.Reports()[0].message, "outer");
}

TEST(Assert, NoDebuggerIsAttachedToTheTestRun) { EXPECT_FALSE(krocore::debug::IsDebuggerAttached()); }

struct OperationCase {
  const char* pretty;
  const char* expected;
};

class QualifiedOperationName : public testing::TestWithParam<OperationCase> {};

TEST_P(QualifiedOperationName, StripsReturnTypeAndParameters) {
  EXPECT_EQ(krocore::debug::QualifiedOperationName(GetParam().pretty), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Signatures, QualifiedOperationName,
    testing::Values(OperationCase{"bool ZEL::SubView::GetBounds(krocore::geom::RectT<int>&) const",
                                  "ZEL::SubView::GetBounds"},
                    OperationCase{"void ZEL::Workspace::Initialize()", "ZEL::Workspace::Initialize"},
                    OperationCase{"ZEL::SubView::SubView(krocore::FlexWeakPtr<ZEL::Commander>)",
                                  "ZEL::SubView::SubView"},
                    OperationCase{"std::map<int, std::pair<int, int> > ZEL::A<B, C>::Get(int)",
                                  "ZEL::A<B, C>::Get"},
                    OperationCase{"bool Functor::operator()(int) const", "Functor::operator()"},
                    OperationCase{"", ""}));

} // namespace
