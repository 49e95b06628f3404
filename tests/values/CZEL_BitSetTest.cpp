// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/frame/CZEL_Exception.h>
#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/values/CZEL_BitSet.h>
#include <LZEL_Core/values/CZEL_Register.h>

#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <new>
#include <string>

#include "../containers/ContainerTestSupport.h"

namespace {

using ZEL::u32;
using ZEL::u64;
using ZEL::u8;
constexpr u64 kAll = ~u64{0};

// A set of `bits` bits whose words are `low` and `high`, tails included.
CZEL_BitSet Make(u32 bits, u64 low, u64 high = 0) {
  u8 bytes[16];
  ZEL::Uint64ToBuf(low, bytes, ZEL::ZEL_LITTLE_ENDIAN);
  ZEL::Uint64ToBuf(high, bytes + 8, ZEL::ZEL_LITTLE_ENDIAN);
  return CZEL_BitSet(bits, 0).SetRawByteBuffer(bytes, 16, ZEL::ZEL_LITTLE_ENDIAN);
}

// Whole-word operations (the u64 forms, And/Or/Xor of an empty set, ~) see
// the tail past the length; bit-wise ones do not. Out-of-range bits are
// quiet; a proxy checks nothing and its assignment takes the other's index.
TEST(CZEL_BitSetLayout, TailsLengthsAndQuietBits) {
  alignas(CZEL_BitSet) u8 raw[sizeof(CZEL_BitSet)];
  EXPECT_ZEL_THROW(new (raw) CZEL_BitSet(0, 1), ZEL_ERR_BAD_POSITION, raw);
  CZEL_BitSet four(4, 1);
  EXPECT_TRUE(four.ToUnsigned() == kAll && four.GetFieldUnsigned(0, 64) == 15u);
  EXPECT_TRUE(four == CZEL_BitSet(64, 1) && four != u64{15});
  four.SetBit(2, 0);
  EXPECT_EQ(four.And() + 2 * four.Or() + 4 * four.Xor(), 6);  // three ones, tail unseen
  EXPECT_EQ(CZEL_BitSet().And() + 2 * CZEL_BitSet().Or() + 4 * CZEL_BitSet().Xor(), 1);
  EXPECT_EQ(Make(65, 7, 1).ToUnsigned() + (~CZEL_BitSet(70, 0)).Xor(), kAll);
  CZEL_BitSet s(10, 0);
  s.SetBit(10, 1);
  s.SetBit(3, 7);
  s[12] = 1;
  EXPECT_EQ(s.ToUnsigned() + s.GetBit(12), 0x1008u);
  CZEL_BitSet::CBit p = s[0];
  p = s[3];
  EXPECT_EQ(p.m_Index + s.GetBit(0), 4u);
  // Lengths change within their words without clearing; a new word is zero.
  CZEL_BitSet twelve(12, 0);
  twelve = u64{0x12345};
  EXPECT_EQ(twelve.GetNumBits() + twelve.GetFieldUnsigned(0, 64), 12u + 0x345);
  CZEL_BitSet ones(8, 1);
  ones.SetNumBits(3);
  ones.SetNumBits(8);
  EXPECT_EQ(ones.GetFieldUnsigned(0, 8), 0xFFu);
  CZEL_BitSet wide(65, 1);
  wide.SetNumBits(130);
  EXPECT_TRUE(wide.GetFieldUnsigned(64, 64) == kAll && wide.GetFieldUnsigned(128, 2) == 0);
  wide.SetNumBits(0);
  EXPECT_EQ(wide.IsValid() + wide.GetBit(0), 0);
  twelve = static_cast<CZEL_BitSet const&>(twelve);
  EXPECT_EQ(twelve.ToUnsigned(), 0x12345u);
}

// Ranges are cut at the length, and an end past 32 bits wraps round to bit 0.
TEST(CZEL_BitSetFields, RangesCutAtTheLengthAndWrapIn32Bits) {
  CZEL_BitSet s(20, 0);
  s.Fill(20, 5, 1).Fill(21, 5, 1).Fill(10, 0xFFFFFFFFu, 1);  // ends at 9 after a wrap
  EXPECT_EQ(s.ToUnsigned(), 0xFFDFFu);
  EXPECT_EQ(s.Fill(18, 9, 0).ToUnsigned(), 0x3FDFFu);
  EXPECT_EQ(s.GetField(20, 3).IsValid() + s.GetFieldUnsigned(20, 3), 0u);
  CZEL_BitSet hundred(100, 0);
  hundred.SetBit(70, 1);
  EXPECT_EQ(hundred.GetFieldUnsigned(0, 100), kAll);
  EXPECT_EQ(hundred.GetFieldUnsigned(60, 64), 0x400u);
  hundred.SetFieldUnsigned(62, 4, 0xFF).SetField(0, 99, CZEL_BitSet(3, 1));
  EXPECT_EQ(hundred.GetFieldUnsigned(0, 64), 0xC000000000000007u);
  EXPECT_EQ(hundred.GetFieldUnsigned(64, 8), 0x43u);
  // A count that wraps runs on into the tail.
  EXPECT_TRUE(CZEL_BitSet(70, 0).SetField(60, 0xFFFFFFC4u, CZEL_BitSet(100, 1)) ==
              Make(70, 0xF000000000000000u, kAll));
  CZEL_BitSet self = Make(8, 0x0F);
  EXPECT_EQ(self.SetField(2, 8, self).ToUnsigned(), 0x3Fu);
  // Join and Merge stack the operands and refuse invalid ones.
  CZEL_BitSet high = Make(4, 0xA);
  CZEL_BitSet low = Make(62, 0x1);
  CZEL_BitSet const joined = high.Join(low);
  EXPECT_TRUE(joined == Make(66, 0x8000000000000001u, 2) && joined.GetNumBits() == 66);
  EXPECT_TRUE(CZEL_BitSet(low).Merge(high, 1) == joined);
  EXPECT_TRUE(CZEL_BitSet(high).Merge(low, 0) == joined);
  EXPECT_EQ(high.Merge(high, 0).ToUnsigned(), 0xAAu);
  CZEL_BitSet empty;
  EXPECT_ZEL_THROW(low.Join(empty), ZEL_ERR_FAILED, &low);
  EXPECT_ZEL_THROW(high.Merge(empty, 1), ZEL_ERR_FAILED, &high);
  EXPECT_EQ(high.GetNumBits(), 8u);
}

// Whole-set operators take the smaller size and combine whole words, tails
// included; in place when this side is the shorter, rebuilt otherwise.
// Shifts move bits within the length and clear what they leave behind.
TEST(CZEL_BitSetLogic, OperatorsTakeTheSmallerSizeAndShiftsStayInTheLength) {
  CZEL_BitSet const a(70, 1);
  CZEL_BitSet const b = Make(10, 0x155);
  EXPECT_EQ((a & b).GetNumBits() + (b | a).GetNumBits() + (a ^ b).GetNumBits(), 30u);
  EXPECT_TRUE((a & b).ToUnsigned() == 0x155u && (CZEL_BitSet(4, 1) & CZEL_BitSet(4, 1)) == kAll);
  EXPECT_EQ((CZEL_BitSet(b) |= a).ToUnsigned(), kAll);
  CZEL_BitSet const out = CZEL_BitSet(a) ^= b;
  EXPECT_EQ(out.GetNumBits() + out.ToUnsigned(), 10 + kAll - 0x155);
  CZEL_BitSet const s = Make(70, 0x8000000000000001u, 0x3F);  // bits 0, 63, 64-69
  EXPECT_TRUE((s << 1) == Make(70, 2, 0x3F) && (s >> 63) == Make(70, 0x7F));
  EXPECT_TRUE((s << 70) == u64{0} && (s >> 200) == u64{0});
  EXPECT_EQ((CZEL_BitSet(4, 1) <<= 0).ToUnsigned(), 15u);
  CZEL_BitSet empty;
  EXPECT_THROW(empty >>= 0, CZEL_Exception);
}

// The six relations of `a` to `b` as a mask: ==, !=, <, <=, >, >= from bit 0.
template <typename A, typename B>
int Relations(A const& a, B const& b) {
  return (a == b) | (a != b) << 1 | (a < b) << 2 | (a <= b) << 3 | (a > b) << 4 | (a >= b) << 5;
}
int RelationsOfSign(int sign) { return sign < 0 ? 0b001110 : sign == 0 ? 0b101001 : 0b110010; }

TEST(CZEL_BitSetCompare, ComparesWordsAsNumbersWhateverTheLengths) {
  struct Row {
    CZEL_BitSet a, b;
    int expected;
  } const rows[] = {
      {Make(3, 5), Make(300, 5), 0},          {CZEL_BitSet(), CZEL_BitSet(200, 0), 0},
      {Make(70, 0, 1), Make(64, kAll), 1},    {Make(70, 5, 1), Make(70, 6, 1), -1},
      {Make(70, 2, 1), Make(70, kAll, 0), 1}, {Make(300, 1), Make(300, 2), -1},
      {Make(300, 0, 1), Make(300, kAll), 1},
  };
  for (Row const& row : rows) {
    SCOPED_TRACE(&row - rows);
    EXPECT_EQ(CZEL_BitSet::Compare(row.a, row.b), row.expected);
    EXPECT_EQ(row.b.Compare(row.a), -row.expected);
    EXPECT_EQ(Relations(row.a, row.b), RelationsOfSign(row.expected));
  }
  EXPECT_EQ(Relations(Make(3, 5), u64{5}), RelationsOfSign(0));
  EXPECT_EQ(Relations(Make(200, 5), u64{6}), RelationsOfSign(-1));
  EXPECT_EQ(Relations(Make(70, 0, 1), kAll), RelationsOfSign(1));
  EXPECT_EQ(Relations(u64{6}, Make(200, 5)), RelationsOfSign(1));  // a u64 on the left
  EXPECT_EQ(Relations(kAll, Make(70, 0, 1)), RelationsOfSign(-1));
}

// A move takes the words and leaves an invalid set; swap exchanges them.
TEST(CZEL_BitSetMoves, MovesLeaveAnEmptySetAndSwapExchanges) {
  CZEL_BitSet a = Make(70, 5, 1);
  CZEL_BitSet b(std::move(a));
  EXPECT_TRUE(a.IsValid() == 0 && a.GetNumBits() == 0 && b == Make(70, 5, 1));
  a = Make(3, 2);
  swap(a, b);
  EXPECT_TRUE(a.GetNumBits() == 70 && b.GetNumBits() == 3 && b == u64{2});
  CZEL_BitSet& alias = a;
  a = std::move(alias);
  EXPECT_TRUE(a == Make(70, 5, 1));
  b = std::move(a);
  EXPECT_TRUE(a.IsValid() == 0 && b.GetNumBits() == 70);
}

// Bases 2 and 16 cover the length; the others go through word 0.
TEST(CZEL_BitSetText, TextAndRawBytes) {
  auto text = [](CZEL_BitSet const& s, u32 base, u32 group) {
    return std::string(s.ToString(base, group, ' ').GetStringC());
  };
  EXPECT_EQ(text(Make(10, 0x2AA), 2, 4), "10 1010 1010");
  EXPECT_EQ(text(CZEL_BitSet(6, 1), 16, 4), "FF");
  EXPECT_EQ(text(Make(72, 0x0123456789ABCDEFu, 0xFE), 16, 4), "FE 0123 4567 89AB CDEF");
  EXPECT_EQ(text(Make(72, 1, 0x80), 2, 8).substr(0, 12), "10000000 000");
  EXPECT_EQ(text(Make(12, 0x1234), 10, 3), "4 660");
  EXPECT_EQ(text(CZEL_BitSet(65, 0), 10, 0) + text(CZEL_BitSet(), 2, 0), "");
  // Reading raw bytes takes four bytes per word, writing eight; an unknown
  // order is little-endian words in big-endian halves.
  CZEL_BitSet const s = Make(64, 0x0807060504030201u);
  u8 buffer[6] = {0, 0, 0, 0, 0xEE, 0xEE};
  s.GetRawByteBuffer(buffer, 6, ZEL::ZEL_LITTLE_ENDIAN);
  EXPECT_EQ(std::string(buffer, buffer + 6), "\1\2\3\4\xEE\xEE");
  s.GetRawByteBuffer(buffer, 6, static_cast<ZEL::t_ByteOrdering>(7));
  EXPECT_EQ(std::string(buffer, buffer + 6), "\1\2\4\3\2\1");
  u8 const bytes[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17};
  EXPECT_TRUE(CZEL_BitSet(70, 0).SetRawByteBuffer(bytes, 17, ZEL::ZEL_BIG_ENDIAN) ==
              Make(70, 0x0A0B0C0D0E0F1011u, 0x0203040506070809u));
}

// Exposes the marks.
struct MarkedRegister : CZEL_Register {
  u64 Marks() const { return m_Mark0 + 2u * m_Mark1; }
  void Mark() { m_Mark0 = m_Mark1 = 1; }
};

// Fields are cut at bit 63; a copy keeps word and marks, Reset clears both;
// copies share one lock.
TEST(CZEL_Register, FieldsCutAtBit63AndCopiesShareTheLock) {
  MarkedRegister r;
  r.SetField(60, 8, 0xFF);
  r.SetField(4, 4, 0x1F);
  r.SetField(65, 1, 1);
  EXPECT_EQ(r.GetField(0, 64), 0xF0000000000000F0u);
  EXPECT_EQ(r.GetField(4, 255) + r.GetField(65, 1), 0x0F0000000000000Fu);
  r.Mark();
  MarkedRegister copy(r);
  r.Reset();
  EXPECT_EQ(copy.GetField(0, 64) + copy.Marks(), 0xF0000000000000F0u + 3);
  EXPECT_EQ(r.GetField(0, 64) + r.Marks() + r.GetNumBits(), 64u);
  CZEL_Register assigned;
  assigned = copy;
  r.Lock();
  std::future<void> other = std::async(std::launch::async, [&assigned] {
    assigned.Lock();
    assigned.Unlock();
  });
  EXPECT_EQ(other.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
  r.Unlock();
  EXPECT_EQ(other.wait_for(std::chrono::seconds(10)), std::future_status::ready);
  // A move shares the lock as a copy does; swap exchanges bits, marks, locks.
  MarkedRegister fresh;
  CZEL_Register moved(std::move(assigned));
  EXPECT_TRUE(assigned.GetNumBits() == 0 && moved.GetField(0, 64) == 0xF0000000000000F0u);
  swap(static_cast<CZEL_Register&>(fresh), moved);
  EXPECT_EQ(fresh.GetField(0, 64) + fresh.Marks() + moved.GetField(0, 64), 0xF0000000000000F0u + 3);
  r.Lock();
  other = std::async(std::launch::async, [&fresh] {
    fresh.Lock();
    fresh.Unlock();
  });
  EXPECT_EQ(other.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
  r.Unlock();
  EXPECT_EQ(other.wait_for(std::chrono::seconds(10)), std::future_status::ready);
}

}  // namespace
