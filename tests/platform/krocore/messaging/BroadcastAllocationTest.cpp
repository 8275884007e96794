// Broadcasting runs on every mouse move of a drag, so it must not allocate.
// The sanitizer builds, in which the tests run, can count a thread's allocations.
#include "MessagingTestSupport.h"

#include <cstddef>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define KROCORE_TEST_COUNTS_ALLOCATIONS 1
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*mallocHook)(const volatile void*, std::size_t),
                                                         void (*freeHook)(const volatile void*));
#endif

namespace {

thread_local bool tCounting = false;
thread_local int tAllocations = 0;

template <typename Function>
int CountAllocations(Function&& function) {
#ifdef KROCORE_TEST_COUNTS_ALLOCATIONS
  [[maybe_unused]] static const int sInstalled = __sanitizer_install_malloc_and_free_hooks(
      [](const volatile void*, std::size_t) { tAllocations += tCounting ? 1 : 0; }, [](const volatile void*) {});
#endif
  tAllocations = 0;
  tCounting = true;
  function();
  tCounting = false;
  return tAllocations;
}

using BroadcastAllocationTest = messaging_test::MessagingTest;

} // namespace

TEST_F(BroadcastAllocationTest, BroadcastToListenersAllocatesNothing) {
#ifndef KROCORE_TEST_COUNTS_ALLOCATIONS
  GTEST_SKIP() << "allocations are counted in sanitizer builds only";
#endif
  const krocore::utility::ImmutableString station("test.allocation");
  std::vector<messaging_test::RecordingListener> listeners(10);
  for (auto& listener : listeners) {
    listener.SubscribeTo(station);
    listener.mValues.reserve(101);
  }
  const messaging_test::ValueChangedMessage message(0, 1);
  // The first broadcast interns the message's type identifier, once per process.
  krocore::messaging::BroadcastMessageOnMainThread(station, message);
  EXPECT_EQ(CountAllocations([&] {
              for (int i = 0; i < 100; ++i) krocore::messaging::BroadcastMessageOnMainThread(station, message);
            }),
            0);
  EXPECT_EQ(listeners.front().mValues.size(), 101u);
  // The count must see allocations, or the zero above proves nothing.
  EXPECT_GT(CountAllocations([] { krocore::messaging::CreateStation("test.allocation.other"); }), 0);
}
