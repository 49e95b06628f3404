#include <LZEL_Core/values/CZEL_Register.h>

#include <gtest/gtest.h>

#include <chrono>
#include <future>

namespace {

using ZEL::u64;
constexpr u64 kAll = ~u64{0};

// Exposes the marks.
struct MarkedRegister : CZEL_Register {
  ZEL::u8& Mark(int which) { return which == 0 ? m_Mark0 : m_Mark1; }
};

TEST(CZEL_RegisterFields, FieldsAreCutAtBit63AndResetClearsWordAndMarks) {
  MarkedRegister r;
  EXPECT_EQ(r.GetNumBits(), 64u);
  EXPECT_EQ(r.ToUnsigned(), 0u);
  r.SetField(60, 8, 0xFF);
  EXPECT_EQ(r.ToUnsigned(), 0xF000000000000000u);
  r.SetField(4, 4, 0x1F);
  EXPECT_EQ(r.GetField(0, 64), 0xF0000000000000F0u);
  EXPECT_EQ(r.GetField(4, 255), 0x0F0000000000000Fu);
  r.SetField(65, 1, 1);
  EXPECT_EQ(r.GetField(65, 1), 0u);
  static_cast<CZEL_Register&>(r) = u64{kAll};
  EXPECT_EQ(r.GetNumBits(), 64u);
  r.Mark(0) = 1;
  r.Mark(1) = 2;
  MarkedRegister copy(r);
  EXPECT_EQ(copy.GetField(0, 64) + copy.Mark(0) + copy.Mark(1), kAll + 3);
  r.Reset();
  EXPECT_EQ(r.GetField(0, 64) + r.Mark(0) + r.Mark(1), 0u);
  EXPECT_EQ(r.GetNumBits(), 64u);
  copy = r;
  EXPECT_EQ(copy.Mark(1), 0);
}

// Runs Lock and Unlock of `r` on another thread; the future is ready once
// the lock was had.
std::future<void> LockElsewhere(CZEL_Register& r) {
  return std::async(std::launch::async, [&r] {
    r.Lock();
    r.Unlock();
  });
}

TEST(CZEL_RegisterLock, CopiesShareOneLock) {
  CZEL_Register r;
  CZEL_Register copy(r);
  CZEL_Register assigned;
  assigned = r;
  r.Lock();
  std::future<void> viaCopy = LockElsewhere(copy);
  std::future<void> viaAssigned = LockElsewhere(assigned);
  EXPECT_EQ(viaCopy.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
  EXPECT_EQ(viaAssigned.wait_for(std::chrono::milliseconds(0)), std::future_status::timeout);
  r.Unlock();
  EXPECT_EQ(viaCopy.wait_for(std::chrono::seconds(10)), std::future_status::ready);
  EXPECT_EQ(viaAssigned.wait_for(std::chrono::seconds(10)), std::future_status::ready);
}

}  // namespace
