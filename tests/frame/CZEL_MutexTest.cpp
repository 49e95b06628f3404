#include <LZEL_Core/frame/CZEL_Mutex.h>

#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <optional>
#include <thread>

namespace {

using ZEL::u32;

// Runs `work` on another thread; the future holds its result.
template <typename Work>
std::future<u32> Elsewhere(Work work) {
  return std::async(std::launch::async, work);
}

bool Finishes(std::future<u32>& f) {
  return f.wait_for(std::chrono::seconds(10)) == std::future_status::ready;
}

TEST(CZEL_MutexLocking, RecursiveOnTheHolderAndRefusedToOthers) {
  CZEL_Mutex m;
  EXPECT_EQ(m.Unlock(), 1u);
  EXPECT_EQ(m.Lock() + m.Lock(), 0u);
  std::future<u32> stranger = Elsewhere([&m] { return m.Unlock(); });
  ASSERT_TRUE(Finishes(stranger));
  EXPECT_EQ(stranger.get(), 1u);
  EXPECT_EQ(m.Unlock() + m.Unlock(), 0u);
  EXPECT_EQ(m.Unlock(), 1u);
}

TEST(CZEL_MutexLocking, CopiesExcludeEachOtherAndAnAbandonedLockIsReported) {
  CZEL_Mutex m;
  CZEL_Mutex copy(m);
  ASSERT_EQ(m.Lock(), 0u);
  std::future<u32> waiter = Elsewhere([&copy] { return copy.Lock() + copy.Unlock(); });
  EXPECT_EQ(waiter.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
  EXPECT_EQ(m.Unlock(), 0u);
  ASSERT_TRUE(Finishes(waiter));
  EXPECT_EQ(waiter.get(), 0u);

  std::thread([&copy] { copy.Lock(); }).join();  // ends holding the lock
  EXPECT_EQ(m.Lock(), 1u);                       // abandoned, yet held now
  EXPECT_EQ(m.Unlock(), 0u);
  EXPECT_EQ(m.Lock() + m.Unlock(), 0u);
}

TEST(CZEL_MutexSharing, TheFirstCopyDestroyedClosesTheLockForAll) {
  std::optional<CZEL_Mutex> first(std::in_place);
  CZEL_Mutex second(*first);
  CZEL_Mutex other;
  CZEL_Mutex third(other);
  third = second;  // drops `other`'s lock without closing it
  EXPECT_EQ(other.Lock() + other.Unlock(), 0u);

  ASSERT_EQ(first->Lock(), 0u);
  std::future<u32> waiter = Elsewhere([&second] { return second.Lock(); });
  EXPECT_EQ(waiter.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
  first.reset();  // closes, and lets go of this thread's hold
  ASSERT_TRUE(Finishes(waiter));
  EXPECT_EQ(waiter.get(), 1u);
  EXPECT_EQ(second.Lock(), 1u);
  EXPECT_EQ(third.Unlock(), 1u);
}

}  // namespace
