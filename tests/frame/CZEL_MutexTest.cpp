// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/frame/CZEL_Dumper.h>
#include <LZEL_Core/frame/CZEL_Mutex.h>
#include <LZEL_Core/text/CZEL_String.h>

#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <iostream>
#include <optional>
#include <sstream>
#include <thread>

namespace {

using ZEL::u32;

// Runs `work` on another thread; a wait of 50 ms tells whether it blocks.
template <typename Work>
std::future<u32> Elsewhere(Work work, bool blocks) {
  std::future<u32> result = std::async(std::launch::async, work);
  EXPECT_EQ(result.wait_for(std::chrono::milliseconds(50)) == std::future_status::timeout, blocks);
  return result;
}

// The result of `f`, waiting at most 10 s for it.
u32 ResultOf(std::future<u32>& f) {
  return f.wait_for(std::chrono::seconds(10)) == std::future_status::ready ? f.get() : 99;
}

TEST(CZEL_MutexLocking, RecursiveForTheHolderExclusiveAcrossCopiesAndAbandonmentReported) {
  CZEL_Mutex m;
  CZEL_Mutex copy(m);
  EXPECT_EQ(m.Unlock() + 2 * m.Lock() + 4 * m.Lock(), 1u);
  std::future<u32> stranger = Elsewhere([&copy] { return copy.Unlock(); }, false);
  EXPECT_EQ(ResultOf(stranger), 1u);
  EXPECT_EQ(m.Unlock(), 0u);
  std::future<u32> waiter = Elsewhere([&copy] { return copy.Lock() + copy.Unlock(); }, true);
  EXPECT_EQ(m.Unlock() + 2 * ResultOf(waiter) + 4 * m.Unlock(), 4u);

  std::thread([&copy] { copy.Lock(); }).join();  // ends holding the lock
  EXPECT_EQ(m.Lock() + 2 * m.Unlock() + 4 * m.Lock() + 8 * m.Unlock(), 1u);
}

TEST(CZEL_MutexSharing, TheFirstCopyDestroyedClosesTheLockForAll) {
  std::optional<CZEL_Mutex> first(std::in_place);
  CZEL_Mutex second(*first);
  CZEL_Mutex other;
  CZEL_Mutex third(other);
  third = second;  // drops `other`'s lock without closing it
  EXPECT_EQ(other.Lock() + other.Unlock() + first->Lock(), 0u);
  std::future<u32> waiter = Elsewhere([&second] { return second.Lock(); }, true);
  first.reset();  // closes, and lets go of this thread's hold
  EXPECT_EQ(ResultOf(waiter) + second.Lock() + third.Unlock(), 3u);
}

TEST(CZEL_Dumper, WritesOneLinePerWrittenObjectWithTheStreamsFormatting) {
  std::ostringstream out;
  std::streambuf* const saved = std::cout.rdbuf(out.rdbuf());
  { CZEL_Dumper silent; }
  CZEL_Dumper() << 1 << 2;
  CZEL_Dumper() << "x=" << 2.5 << ZEL::u64{7} << ZEL::i64{-7} << ZEL::u32{9}
                << CZEL_String("s\0t", 3);
  std::cout << std::hex;
  CZEL_Dumper() << 255;
  {
    CZEL_Dumper source;
    source << "a";
    CZEL_Dumper copy(source);
    CZEL_Dumper assigned;
    assigned = source;
  }
  std::cout << std::dec;
  std::cout.rdbuf(saved);
  EXPECT_EQ(out.str(), "12\nx=2.57-79s\nff\na\n\n\n");
}

}  // namespace
