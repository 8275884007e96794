#include <krocore/debug/Assert.h>
#include <krocore/threads/MainThread.h>
#include <krocore/threads/MainThreadQueue.h>

#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>
#include <thread>
#include <vector>

using krocore::threads::MainThreadQueue;

namespace {

class MainThreadQueueTest : public testing::Test {
protected:
  void SetUp() override { MainThreadQueue::Instance().Clear(); }
  void TearDown() override {
    MainThreadQueue::Instance().SetWakeUpFunction({});
    MainThreadQueue::Instance().Clear();
  }
};

TEST_F(MainThreadQueueTest, WorkerPostsRunOnlyWhenDrainedAllInOrderPerThread) {
  constexpr int kThreads = 4;
  constexpr int kPosts = 500;
  std::vector<std::vector<int>> received(kThreads);
  std::vector<std::thread> workers;
  for (int t = 0; t < kThreads; ++t)
    workers.emplace_back([t, &received] {
      for (int i = 0; i < kPosts; ++i)
        krocore::threads::PostToMainThread([t, i, &received] {
          EXPECT_TRUE(krocore::threads::CurrentThreadIsMainThread());
          received[t].push_back(i);
        });
    });
  for (auto& worker : workers) worker.join();
  for (const auto& list : received) EXPECT_TRUE(list.empty()) << "ran before the drain";

  EXPECT_EQ(MainThreadQueue::Instance().PendingCount(), static_cast<size_t>(kThreads * kPosts));
  EXPECT_EQ(krocore::threads::DrainMainThreadQueue(), static_cast<size_t>(kThreads * kPosts));
  for (const auto& list : received) {
    ASSERT_EQ(list.size(), static_cast<size_t>(kPosts));
    for (int i = 0; i < kPosts; ++i) ASSERT_EQ(list[i], i);
  }
}

TEST_F(MainThreadQueueTest, TasksPostedWhileDrainingWaitForTheNextDrain) {
  int runs = 0;
  std::function<void()> repost = [&] {
    ++runs;
    krocore::threads::PostToMainThread(repost);
  };
  krocore::threads::PostToMainThread(repost);
  EXPECT_EQ(krocore::threads::DrainMainThreadQueue(), 1u);
  EXPECT_EQ(runs, 1);
  EXPECT_EQ(krocore::threads::DrainMainThreadQueue(), 1u);
  EXPECT_EQ(runs, 2);
}

TEST_F(MainThreadQueueTest, ThrowingTaskIsContainedAndLaterTasksStillRun) {
  krocore::debug::ScopedAssertionRecorder recorder;
  bool laterRan = false;
  krocore::threads::PostToMainThread([] { throw std::runtime_error("disk full"); });
  krocore::threads::PostToMainThread([&] { laterRan = true; });
  EXPECT_EQ(krocore::threads::DrainMainThreadQueue(), 2u);
  EXPECT_TRUE(laterRan);
  EXPECT_TRUE(recorder.Contains("Exception escaped a top-level task: disk full"));
}

TEST_F(MainThreadQueueTest, DrainingOffTheMainThreadIsRefused) {
  krocore::debug::ScopedAssertionRecorder recorder;
  bool ran = false;
  krocore::threads::PostToMainThread([&] { ran = true; });
  std::thread([] { EXPECT_EQ(krocore::threads::DrainMainThreadQueue(), 0u); }).join();
  EXPECT_FALSE(ran);
  EXPECT_TRUE(recorder.Contains("The main-thread queue must be drained on the main thread"));
  EXPECT_EQ(krocore::threads::DrainMainThreadQueue(), 1u);
  EXPECT_TRUE(ran);
}

TEST_F(MainThreadQueueTest, EveryPostWakesTheEventLoop) {
  std::atomic<int> wakeUps{0};
  MainThreadQueue::Instance().SetWakeUpFunction([&] { ++wakeUps; });
  std::thread([] {
    krocore::threads::PostToMainThread([] {});
    krocore::threads::PostToMainThread([] {});
  }).join();
  EXPECT_EQ(wakeUps, 2);
}

} // namespace
