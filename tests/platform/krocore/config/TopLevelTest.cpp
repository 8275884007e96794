#include <krocore/config/TopLevel.h>
#include <krocore/debug/Assert.h>
#include <krocore/detail/TaskStatistic.h>

#include <gtest/gtest.h>

namespace {

TEST(ExecuteTopLevelFunction, ContainsTheNullPointerFailureAndReportsIt) {
  krocore::debug::ScopedAssertionRecorder recorder;
  bool after = false;
  const bool finished = krocore::config::ExecuteTopLevelFunction([&] {
    krocore::config::DoThrowNullPtrException("ZEL::Commander");
    after = true;
  });
  EXPECT_FALSE(finished);
  EXPECT_FALSE(after);
  EXPECT_TRUE(recorder.Contains("Exception escaped a top-level task: Null pointer of type ZEL::Commander"));
}

TEST(ExecuteTopLevelFunction, ContainsExceptionsOfAnyType) {
  krocore::debug::ScopedAssertionRecorder recorder;
  EXPECT_FALSE(krocore::config::ExecuteTopLevelFunction([] { throw 42; }));
  EXPECT_TRUE(recorder.Contains("Unknown exception escaped a top-level task"));
  EXPECT_TRUE(krocore::config::ExecuteTopLevelFunction([] {}));
  EXPECT_TRUE(krocore::config::ExecuteTopLevelFunction({}));
  EXPECT_EQ(recorder.Count(), 1u);
}

TEST(NullPtrException, CarriesTheTypeName) {
  try {
    krocore::config::DoThrowNullPtrException("ZEL::Commander");
  } catch (const krocore::config::NullPtrException& e) {
    EXPECT_EQ(e.GetTypeName(), "ZEL::Commander");
  }
}

TEST(TaskStatistic, CountsEachKindOfTask) {
  krocore::detail::TaskStatistic::ResetCounts();
  krocore::detail::TaskStatistic(true, false);
  krocore::detail::TaskStatistic(true, true);
  krocore::detail::TaskStatistic(false, false);
  const auto counts = krocore::detail::TaskStatistic::GetCounts();
  EXPECT_EQ(counts.total, 3u);
  EXPECT_EQ(counts.userInitiated, 2u);
  EXPECT_EQ(counts.modifying, 1u);
}

TEST(ClientName, IsWhatTheHostSet) {
  const std::string previous = krocore::config::GetClientName();
  krocore::config::SetClientName("ZEL Gallery");
  EXPECT_EQ(krocore::config::GetClientName(), "ZEL Gallery");
  krocore::config::SetClientName(previous);
}

} // namespace
