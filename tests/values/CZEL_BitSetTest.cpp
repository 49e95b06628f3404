#include <LZEL_Core/frame/CZEL_Exception.h>
#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/values/CZEL_BitSet.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using ZEL::u32;
using ZEL::u64;
using ZEL::u8;
constexpr u64 kAll = ~u64{0};

// Runs `run`, which must throw a CZEL_Exception with `code` and extra 0;
// `object`, where given, must be its source.
template <typename Run>
void ExpectThrow(Run run, u32 code, void const* object = nullptr) {
  try {
    run();
    ADD_FAILURE() << "no exception";
  } catch (CZEL_Exception const& e) {
    EXPECT_EQ(e.m_Code, code);
    EXPECT_EQ(e.m_Extra, 0u);
    if (object != nullptr) {
      EXPECT_EQ(e.m_Object, object);
    }
  }
}

// Reads the word count, which copies keep.
struct Probe : CZEL_BitSet {
  explicit Probe(CZEL_BitSet const& s) : CZEL_BitSet(s) {}
  u32 Words() const { return m_NumWords; }
};

// A set of `bits` bits whose words are `value` and `high`, tails included;
// any further words are 0.
CZEL_BitSet Make(u32 bits, u64 value, u64 high = 0) {
  CZEL_BitSet s(bits, 0);
  u8 bytes[16];
  ZEL::Uint64ToBuf(value, bytes, ZEL::ZEL_LITTLE_ENDIAN);
  ZEL::Uint64ToBuf(high, bytes + 8, ZEL::ZEL_LITTLE_ENDIAN);
  return s.SetRawByteBuffer(bytes, 16, ZEL::ZEL_LITTLE_ENDIAN);
}

std::string Text(CZEL_BitSet const& s, u32 base, u32 group = 0) {
  return s.ToString(base, group, ' ').GetStringC();
}

TEST(CZEL_BitSetLayout, TailsAreWrittenAndReadByWholeWordOperationsOnly) {
  ExpectThrow([] { CZEL_BitSet(0, 1); }, ZEL_ERR_BAD_POSITION);
  EXPECT_EQ(CZEL_BitSet(64, 1).ToUnsigned(), kAll);
  EXPECT_EQ(Make(65, 7, 1).ToUnsigned(), kAll);
  CZEL_BitSet four(4, 1);
  EXPECT_EQ(four.ToUnsigned(), kAll);
  EXPECT_EQ(four.GetFieldUnsigned(0, 64), 15u);
  EXPECT_TRUE(four == CZEL_BitSet(64, 1));
  EXPECT_FALSE(four == u64{15});
  EXPECT_EQ(four.And(), 1);
  four.SetBit(2, 0);
  EXPECT_EQ(four.ToUnsigned(), kAll - 4);
  EXPECT_EQ(four.And() + 2 * four.Or() + 4 * four.Xor(), 2 + 4);
  EXPECT_EQ(CZEL_BitSet().And() + 2 * CZEL_BitSet().Or() + 4 * CZEL_BitSet().Xor(), 1);
  EXPECT_EQ((~CZEL_BitSet(70, 0)).Xor(), 0);  // 70 ones; the tail's 58 unseen
  EXPECT_EQ((~CZEL_BitSet(4, 0)).ToUnsigned(), kAll);
}

TEST(CZEL_BitSetLayout, AssigningANumberKeepsAOneWordLengthAndLengthsKeepTheirWords) {
  CZEL_BitSet twelve(12, 0);
  twelve = u64{0x12345};
  EXPECT_EQ(twelve.GetNumBits(), 12u);
  EXPECT_EQ(twelve.ToUnsigned(), 0x12345u);
  EXPECT_EQ(twelve.GetFieldUnsigned(0, 64), 0x345u);
  CZEL_BitSet fresh;
  EXPECT_EQ(fresh.IsValid(), 0);
  fresh = u64{5};
  EXPECT_EQ(fresh.GetNumBits(), 64u);
  CZEL_BitSet ones(8, 1);
  ones.SetNumBits(3);
  ones.SetNumBits(8);
  EXPECT_EQ(ones.GetFieldUnsigned(0, 8), 0xFFu);
  CZEL_BitSet wide(65, 1);
  wide.SetNumBits(130);
  EXPECT_EQ(wide.GetFieldUnsigned(64, 64), kAll);
  EXPECT_EQ(wide.GetFieldUnsigned(128, 2), 0u);
  wide.SetNumBits(0);
  EXPECT_EQ(wide.IsValid(), 0);
  EXPECT_EQ(wide.GetBit(0), 0);
  CZEL_BitSet copy(twelve);
  CZEL_BitSet const& same = copy;
  copy = same;
  EXPECT_EQ(copy.ToUnsigned(), 0x12345u);
  copy = fresh = CZEL_BitSet();
  EXPECT_EQ(copy.IsValid() + fresh.IsValid(), 0);
}

TEST(CZEL_BitSetLayout, BitsOutOfRangeAreQuietAndProxiesStealTheIndex) {
  CZEL_BitSet s(10, 0);
  s.SetBit(10, 1);
  s.SetBit(3, 7);
  EXPECT_EQ(s.ToUnsigned(), 8u);
  EXPECT_EQ(s.GetBit(3) + s.GetBit(10), 1);
  s[12] = 1;  // a proxy checks nothing: the tail
  EXPECT_EQ(s.ToUnsigned(), 0x1008u);
  EXPECT_EQ(s.GetBit(12), 0);
  CZEL_BitSet::CBit p = s[0];
  CZEL_BitSet::CBit q = s[3];
  p = q;
  EXPECT_EQ(p.m_Index, 3u);
  EXPECT_EQ(s.GetBit(0), 1);
  p = 0;
  EXPECT_EQ(u8(q), 0);
}

TEST(CZEL_BitSetFields, FillGetAndSetCutAtTheLengthAndCrossWords) {
  CZEL_BitSet s(20, 0);
  s.Fill(20, 5, 1).Fill(21, 5, 1);
  EXPECT_EQ(s.ToUnsigned(), 0u);
  s.Fill(10, 0xFFFFFFFFu, 1);  // the end wraps to 9: bit 9 alone stays clear
  EXPECT_EQ(s.ToUnsigned(), 0xFFDFFu);
  s.Fill(18, 9, 0);
  EXPECT_EQ(s.ToUnsigned(), 0x3FDFFu);
  EXPECT_EQ(s.GetField(20, 3).IsValid(), 0);
  EXPECT_EQ(s.GetFieldUnsigned(20, 3), 0u);
  CZEL_BitSet hundred(100, 0);
  hundred.SetBit(70, 1);
  EXPECT_EQ(hundred.GetFieldUnsigned(0, 100), kAll);
  EXPECT_EQ(hundred.GetFieldUnsigned(60, 64), 0x400u);
  EXPECT_EQ(hundred.GetField(60, 64).GetNumBits(), 40u);
  hundred.SetFieldUnsigned(62, 4, 0xFF);
  EXPECT_EQ(hundred.GetFieldUnsigned(60, 8), 0x3Cu);
  hundred.SetField(100, 5, CZEL_BitSet(5, 1)).SetField(0, 99, CZEL_BitSet(3, 1));
  EXPECT_EQ(hundred.GetFieldUnsigned(0, 8), 7u);
  CZEL_BitSet target(70, 0);
  target.SetField(60, 0xFFFFFFC4u, CZEL_BitSet(100, 1));  // wraps: runs on into the tail
  EXPECT_EQ(Probe(target).Words(), 2u);
  EXPECT_EQ(target.GetFieldUnsigned(56, 8), 0xF0u);
  EXPECT_TRUE(target == Make(70, 0xF000000000000000u, kAll));
  CZEL_BitSet self = Make(8, 0x0F);
  self.SetField(2, 8, self);
  EXPECT_EQ(self.GetFieldUnsigned(0, 8), 0x3Fu);
}

TEST(CZEL_BitSetFields, JoinAndMergeStackTheOperandsAndRefuseInvalidOnes) {
  CZEL_BitSet const high = Make(4, 0xA);
  CZEL_BitSet const low = Make(62, 0x1);
  CZEL_BitSet joined = high.Join(low);
  EXPECT_EQ(joined.GetNumBits(), 66u);
  EXPECT_EQ(joined.GetFieldUnsigned(60, 6), 0x28u);
  CZEL_BitSet appended = low;
  appended.Merge(high, 1);
  EXPECT_TRUE(appended == joined);
  CZEL_BitSet prepended = high;
  prepended.Merge(low, 0);
  EXPECT_TRUE(prepended == joined);
  prepended = high;
  prepended.Merge(prepended, 0);
  EXPECT_EQ(prepended.ToUnsigned(), 0xAAu);
  CZEL_BitSet empty;
  ExpectThrow([&] { high.Join(empty); }, ZEL_ERR_FAILED, &high);
  ExpectThrow([&] { empty.Join(high); }, ZEL_ERR_FAILED, &empty);
  ExpectThrow([&] { prepended.Merge(empty, 1); }, ZEL_ERR_FAILED, &prepended);
  EXPECT_EQ(prepended.GetNumBits(), 8u);
}

TEST(CZEL_BitSetLogic, WholeSetOperatorsTakeTheSmallerSizeAndCombineTails) {
  CZEL_BitSet const a(70, 1);
  CZEL_BitSet const b = Make(10, 0x155);
  for (CZEL_BitSet const& r : {a & b, b & a, a | b, a ^ b}) {
    EXPECT_EQ(r.GetNumBits(), 10u);
    EXPECT_EQ(Probe(r).Words(), 1u);
  }
  EXPECT_EQ((a & b).ToUnsigned(), 0x155u);
  EXPECT_EQ((a ^ b).ToUnsigned(), kAll - 0x155);
  EXPECT_EQ((CZEL_BitSet(4, 1) & CZEL_BitSet(4, 1)).ToUnsigned(), kAll);
  CZEL_BitSet in = b;
  in |= a;  // in place: this side is the shorter
  EXPECT_EQ(in.ToUnsigned(), kAll);
  CZEL_BitSet out = a;
  out ^= b;  // rebuilt: this side is the longer
  EXPECT_EQ(out.GetNumBits(), 10u);
  EXPECT_EQ(out.ToUnsigned(), kAll - 0x155);
  CZEL_BitSet const& same = out;
  out &= same;
  EXPECT_EQ(out.ToUnsigned(), kAll - 0x155);
}

TEST(CZEL_BitSetLogic, ShiftsMoveBitsWithinTheLengthAndClearTheTail) {
  CZEL_BitSet const s = Make(70, 0x8000000000000001u, 0x3F);  // bits 0, 63, 64-69
  EXPECT_TRUE((s << 1) == Make(70, 2, 0x3F));
  EXPECT_TRUE((s >> 63) == Make(70, 0x7F));
  EXPECT_TRUE((s << 70) == u64{0});
  EXPECT_TRUE((s >> 200) == u64{0});
  EXPECT_EQ((s << 0).GetNumBits(), 70u);
  EXPECT_EQ((CZEL_BitSet(4, 1) << 0).ToUnsigned(), 15u);
  CZEL_BitSet t = Make(10, 0x201);
  t <<= 1;
  EXPECT_EQ(t.ToUnsigned(), 2u);
  t >>= 1;
  EXPECT_EQ(t.ToUnsigned(), 1u);
  CZEL_BitSet empty;
  ExpectThrow([&] { empty << 1; }, ZEL_ERR_BAD_POSITION);
  ExpectThrow([&] { empty >>= 0; }, ZEL_ERR_BAD_POSITION);
}

TEST(CZEL_BitSetCompare, ComparesWordsAsNumbersWhateverTheLengths) {
  struct Row {
    CZEL_BitSet a, b;
    int expected;
  } const rows[] = {
      {Make(3, 5), Make(300, 5), 0},           {CZEL_BitSet(), CZEL_BitSet(), 0},
      {CZEL_BitSet(), CZEL_BitSet(200, 0), 0}, {Make(70, 0, 1), Make(64, kAll), 1},
      {Make(64, kAll), Make(70, 0, 1), -1},    {Make(70, 5, 1), Make(70, 6, 1), -1},
      {Make(70, 2, 1), Make(70, kAll, 0), 1},  {Make(300, 1), Make(300, 2), -1},
      {Make(300, 0, 1), Make(300, kAll), 1},
  };
  for (Row const& row : rows) {
    EXPECT_EQ(CZEL_BitSet::Compare(row.a, row.b), row.expected);
    EXPECT_EQ(row.a.Compare(row.b), row.expected);
    u8 const relations[] = {row.a == row.b, row.a != row.b,
                            row.a<row.b, row.a <= row.b, row.a> row.b, row.a >= row.b};
    u8 const expected[] = {row.expected == 0, row.expected != 0,
                           row.expected<0, row.expected <= 0, row.expected> 0, row.expected >= 0};
    for (int i = 0; i < 6; ++i) EXPECT_EQ(relations[i], expected[i]) << i;
  }
  CZEL_BitSet const five = Make(200, 5);
  EXPECT_EQ((five == u64{5}) + (five != u64{6}) + (five < u64{6}) + (five <= u64{5}) +
                (five > u64{4}) + (five >= u64{5}),
            6);
  EXPECT_EQ(Make(70, 0, 1) > kAll, 1);
}

TEST(CZEL_BitSetText, BasesTwoAndSixteenCoverTheLengthOthersGoThroughWordZero) {
  EXPECT_EQ(Text(Make(10, 0x2AA), 2, 4), "10 1010 1010");
  EXPECT_EQ(Text(Make(10, 0x2AA), 2, 0), "1010101010");
  EXPECT_EQ(Text(CZEL_BitSet(6, 1), 16, 4), "FF");
  EXPECT_EQ(Text(Make(8, 0x0A), 16), "0A");
  EXPECT_EQ(Text(Make(72, 0x0123456789ABCDEFu, 0xFE), 16, 4), "FE 0123 4567 89AB CDEF");
  EXPECT_EQ(Text(Make(72, 1, 0x80), 2, 64).substr(0, 12), "10000000 000");
  EXPECT_EQ(Text(Make(12, 0x1234), 10, 3), "4 660");
  EXPECT_EQ(Text(Make(12, 255), 8), "377");
  EXPECT_EQ(Text(CZEL_BitSet(65, 0), 10), "");
  EXPECT_EQ(Text(CZEL_BitSet(), 2), "");
  EXPECT_EQ(Text(CZEL_BitSet(), 10), "");
}

TEST(CZEL_BitSetRawBytes, ReadingTakesFourBytesPerWordWritingTakesEight) {
  CZEL_BitSet s = Make(64, 0x0807060504030201u);
  u8 buffer[6] = {0, 0, 0, 0, 0xEE, 0xEE};
  s.GetRawByteBuffer(buffer, 6, ZEL::ZEL_LITTLE_ENDIAN);
  EXPECT_EQ(std::string(buffer, buffer + 6), std::string("\1\2\3\4\xEE\xEE"));
  u8 reversed[6] = {0xEE, 0xEE, 0, 0, 0, 0};
  s.GetRawByteBuffer(reversed, 6, static_cast<ZEL::t_ByteOrdering>(7));
  EXPECT_EQ(std::string(reversed, reversed + 6), std::string("\xEE\xEE\4\3\2\1"));
  CZEL_BitSet two(70, 0);
  u8 const bytes[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17};
  two.SetRawByteBuffer(bytes, 17, ZEL::ZEL_BIG_ENDIAN);
  EXPECT_TRUE(two == Make(70, 0x0A0B0C0D0E0F1011u, 0x0203040506070809u));
  u8 out[12] = {};
  two.GetRawByteBuffer(out, 12, ZEL::ZEL_LITTLE_ENDIAN);
  EXPECT_EQ(std::string(out, out + 8), std::string("\x11\x10\x0F\x0E\x09\x08\x07\x06"));
  EXPECT_EQ(out[8], 0);
}

}  // namespace
