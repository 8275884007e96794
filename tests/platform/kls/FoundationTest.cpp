#include <kls/Foundation.h>
#include <kls/ParamColor.h>

#include <krocore/debug/Assert.h>
#include <krocore/threads/MainThread.h>
#include <krocore/threads/MainThreadQueue.h>

#include <gtest/gtest.h>

#include <thread>

namespace {

TEST(Foundation, NestedCallsActOnlyAtTheOutermostPair) {
  bool ran = false;
  KLS::Foundation::Initialize();
  KLS::Foundation::Initialize();
  krocore::threads::PostToMainThread([&] { ran = true; });
  KLS::Foundation::Terminate();
  EXPECT_TRUE(KLS::Foundation::IsInitialized());
  EXPECT_EQ(krocore::threads::MainThreadQueue::Instance().PendingCount(), 1u) << "inner Terminate keeps work";
  KLS::Foundation::Terminate();
  EXPECT_FALSE(KLS::Foundation::IsInitialized());
  EXPECT_EQ(krocore::threads::MainThreadQueue::Instance().PendingCount(), 0u) << "outer Terminate drops work";
  EXPECT_FALSE(ran);
}

TEST(Foundation, TheInitializingThreadBecomesTheUIThread) {
  std::thread([] {
    KLS::Foundation::Initialize();
    EXPECT_TRUE(krocore::threads::CurrentThreadIsMainThread());
    KLS::Foundation::Terminate();
  }).join();
  EXPECT_FALSE(krocore::threads::CurrentThreadIsMainThread());
  krocore::threads::DesignateCurrentThreadAsMainThread();
}

TEST(Foundation, TerminateWithoutInitializeIsReported) {
  krocore::debug::ScopedAssertionRecorder recorder;
  KLS::Foundation::Terminate();
  EXPECT_TRUE(recorder.Contains("Foundation has not been initialized"));
  EXPECT_FALSE(KLS::Foundation::IsInitialized());
}

TEST(ParamColor, ComparesChannelsInRedGreenBlueOrder) {
  using Color = KLS::ParamColor<unsigned char>;
  EXPECT_EQ(Color(1, 2, 3), Color(1, 2, 3));
  EXPECT_LT(Color(1, 2, 3), Color(2, 0, 0));
  EXPECT_EQ(Color().red + Color().green + Color().blue, 0);
}

} // namespace
