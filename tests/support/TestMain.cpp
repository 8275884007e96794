// The main of every test executable. A krocore assertion that a test did not
// expect (by recording it with ScopedAssertionRecorder) fails that test, so
// that a report printed in passing can never hide a fault.
#include <krocore/debug/Assert.h>
#include <krocore/threads/MainThread.h>

#include <gtest/gtest.h>

namespace {

class UnexpectedAssertionsFail : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo&) override {
    krocore::debug::SetAssertionHandler([](const krocore::debug::AssertionReport& report) {
      ADD_FAILURE_AT(report.file.c_str(), report.line)
          << "Unexpected assertion in " << report.operation << ": " << report.message;
    });
  }
  void OnTestEnd(const testing::TestInfo&) override { krocore::debug::SetAssertionHandler({}); }
};

} // namespace

int main(int argc, char** argv) {
  krocore::threads::DesignateCurrentThreadAsMainThread();
  testing::InitGoogleTest(&argc, argv);
  testing::UnitTest::GetInstance()->listeners().Append(new UnexpectedAssertionsFail);
  return RUN_ALL_TESTS();
}
