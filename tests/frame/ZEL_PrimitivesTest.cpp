#include <LZEL_Core/frame/ZEL_Primitives.h>

#include <gtest/gtest.h>

#include <cstring>
#include <limits>

namespace {

using ZEL::i64;
using ZEL::u16;
using ZEL::u32;
using ZEL::u64;
using ZEL::u8;

constexpr u32 kMaxU32 = 0xFFFFFFFFu;
constexpr u64 kPattern = 0xFEDCBA9876543210ull;
constexpr u64 kAll = ~u64{0};

ZEL::t_ByteOrdering Order(u32 o) { return static_cast<ZEL::t_ByteOrdering>(o); }
ZEL::t_ZEL_NumberRepr Repr(u32 r) { return static_cast<ZEL::t_ZEL_NumberRepr>(r); }
constexpr u32 kUns = ZEL::ZEL_REPR_UNSIGNED;
constexpr u32 kOnes = ZEL::ZEL_REPR_ONES_COMPLEMENT;
constexpr u32 kTwos = ZEL::ZEL_REPR_TWOS_COMPLEMENT;
constexpr u32 kSignMag = ZEL::ZEL_REPR_SIGN_MAGNITUDE;
constexpr u32 kOffset = ZEL::ZEL_REPR_OFFSET_BINARY;

// A bit-by-bit model of the field mask: bit i of a word is in the field when
// i >= start and i < start + width, the sum taken in 32 unsigned bits.
bool InField(u32 i, u32 start, u32 width) { return i >= start && i < start + width; }

u64 ModelGetField(u64 value, u32 start, u32 width) {
  u64 out = 0;
  for (u32 i = 0; i < 64; ++i) {
    if (InField(i, start, width) && ((value >> i) & 1u)) out |= u64{1} << (i - start);
  }
  return out;
}

template <typename T>
T ModelSetField(T word, u32 start, u32 width, T field) {
  u64 out = word;
  for (u32 i = 0; i < 8 * sizeof(T); ++i) {
    if (!InField(i, start, width)) continue;
    u64 const bit = (static_cast<u64>(field) >> (i - start)) & 1u;  // i - start < 64
    out = (out & ~(u64{1} << i)) | (bit << i);
  }
  return static_cast<T>(out);
}

// Starts and widths reaching every edge: the word tops, N itself, and sums that
// wrap past 32 bits (to 0, to just above 0, or just short of wrapping).
constexpr u32 kStarts[] = {0,  1,  3,  7,  8,  12, 15, 16, 31, 32, 33, 60, 63, 64, 65,
                           0x80000000u, kMaxU32 - 1, kMaxU32};
constexpr u32 kWidths[] = {0,  1,  4,  8,  9,  16, 17, 32, 33, 64, 65, 0x80000004u,
                           kMaxU32 - 3, kMaxU32 - 2, kMaxU32 - 1, kMaxU32};

template <typename T>
void CheckFieldsAgainstModel() {
  T const values[] = {T{0}, static_cast<T>(kAll), static_cast<T>(kPattern)};
  for (u32 start : kStarts) {
    for (u32 width : kWidths) {
      for (T word : values) {
        if (sizeof(T) == 8) {
          ASSERT_EQ(ZEL::GetField(word, start, width), ModelGetField(word, start, width))
              << "start " << start << " width " << width;
        }
        for (T field : values) {
          T got = word;
          ZEL::SetField(got, start, width, field);
          ASSERT_EQ(got, ModelSetField<T>(word, start, width, field))
              << 8 * sizeof(T) << "-bit word, start " << start << " width " << width;
        }
      }
    }
  }
}

TEST(ZEL_PrimitivesFields, GetFieldAndSetFieldFollowTheBitByBitMaskRule) {
  CheckFieldsAgainstModel<u8>();
  CheckFieldsAgainstModel<u16>();
  CheckFieldsAgainstModel<u32>();
  CheckFieldsAgainstModel<u64>();
}

TEST(ZEL_PrimitivesFields, CutAtTheTopEmptyPastTheWordAtWidthZeroOrWhenTheEndWraps) {
  struct Row {
    u32 start, width;
    u64 expected;
  } const rows[] = {
      {60, 8, kAll >> 60},                  // cut at the top of the word
      {64, 1, 0}, {3, 0, 0},                // start at N; width 0
      {1, kMaxU32, 0}, {0, kMaxU32, kAll},  // the end wraps: empty unless start is 0
      {2, kMaxU32 - 2, kAll >> 2}};         // an end of 0xFFFFFFFF does not wrap
  for (Row const& r : rows) {
    EXPECT_EQ(ZEL::GetField(kAll, r.start, r.width), r.expected) << r.start << " " << r.width;
  }
  u16 w16 = 0;
  ZEL::SetField(w16, 12, 8, u16{0xFFFF});
  EXPECT_EQ(w16, 0xF000u);
  u8 w8 = 0x5A;
  ZEL::SetField(w8, 8, 1, u8{0xFF});
  ZEL::SetField(w8, 3, 0, u8{0xFF});
  ZEL::SetField(w8, 1, kMaxU32, u8{0xFF});
  EXPECT_EQ(w8, 0x5Au);
}

// Sets `pos` (with `on` 0x80: any non-zero value sets) in an all-clear word and
// clears it in an all-set word: only `expected_bit` may change (0: none).
template <typename T>
void CheckSetBit(u32 pos, u64 expected_bit) {
  T set = 0, clear = static_cast<T>(kAll);
  ZEL::SetBit(set, pos, 0x80);
  ZEL::SetBit(clear, pos, 0);
  EXPECT_EQ(set, static_cast<T>(expected_bit)) << 8 * sizeof(T) << "-bit, pos " << pos;
  EXPECT_EQ(clear, static_cast<T>(~expected_bit)) << 8 * sizeof(T) << "-bit, pos " << pos;
}

TEST(ZEL_PrimitivesBits, SetBitWrapsAt32OnNarrowWordsAndIgnoresPositionsPastWideOnes) {
  // u8 and u16: the count is taken modulo 32, then the mask is cut to the word.
  for (u32 pos : {0u, 7u, 32u, 39u}) CheckSetBit<u8>(pos, u64{1} << (pos % 32));
  for (u32 pos : {8u, 15u, 31u, 40u, 63u}) CheckSetBit<u8>(pos, 0);
  for (u32 pos : {0u, 15u, 32u, 47u}) CheckSetBit<u16>(pos, u64{1} << (pos % 32));
  for (u32 pos : {16u, 31u, 48u}) CheckSetBit<u16>(pos, 0);
  // u32 and u64: a position at or beyond the width leaves the word unchanged.
  for (u32 pos : {0u, 31u}) CheckSetBit<u32>(pos, u64{1} << pos);
  for (u32 pos : {32u, 33u, 63u, 64u, 255u}) CheckSetBit<u32>(pos, 0);
  for (u32 pos : {0u, 32u, 63u}) CheckSetBit<u64>(pos, u64{1} << pos);
  for (u32 pos : {64u, 96u, 255u}) CheckSetBit<u64>(pos, 0);
  // GetBit reads 0 from position 64 on.
  EXPECT_EQ(ZEL::GetBit(kAll, 63), 1u);
  EXPECT_EQ(ZEL::GetBit(kAll, 64), 0u);
}

TEST(ZEL_PrimitivesSigned, GetSignedFieldReadsEachRepresentation) {
  i64 const p = static_cast<i64>(kPattern);
  struct Row {
    u64 value;
    u32 start, width, repr;
    i64 expected;
  } const rows[] = {
      // Bits 1110 in four bits, at bit 0 and higher up.
      {0xE, 0, 4, kOnes, -1}, {0xE, 0, 4, kTwos, -2}, {0xE, 0, 4, kSignMag, -6},
      {0xE, 0, 4, kOffset, 6}, {0xE, 0, 4, kUns, 14}, {0xE0000, 16, 4, kTwos, -2},
      {0xF, 0, 4, kOnes, 0},  // one's complement minus zero
      // Two's complement of width 64 returns the word itself, whatever the start.
      {kPattern, 0, 64, kTwos, p}, {kPattern, 8, 64, kTwos, p},
      {kPattern, 8, 64, kUns, static_cast<i64>(kPattern >> 8)},
      // One-bit fields: the representations with a sign bit read 0.
      {1, 0, 1, kOnes, 0}, {1, 0, 1, kTwos, 0}, {1, 0, 1, kSignMag, 0},
      {1, 0, 1, kUns, 1}, {1, 0, 1, kOffset, 0}, {0, 0, 1, kOffset, -1},
      // Width 0 and unknown representations read 0.
      {kAll, 5, 0, kOffset, 0}, {0xE, 0, 4, 5, 0}, {0xE, 0, 4, kMaxU32, 0},
  };
  for (Row const& r : rows) {
    EXPECT_EQ(ZEL::GetSignedField(r.value, r.start, r.width, Repr(r.repr)), r.expected)
        << "row " << &r - rows;
  }
}

// Each row writes `number` into an all-ones word, then reads the field back.
TEST(ZEL_PrimitivesSigned, SetSignedFieldCodesEachRepresentation) {
  i64 const min = std::numeric_limits<i64>::min();
  u64 const top = u64{1} << 63;
  struct Row {
    u32 start, width;
    i64 number;
    u32 repr;
    u64 stored;
    i64 read_back;
  } const rows[] = {
      {16, 8, -1, kOnes, 0xFE, -1}, {16, 8, -1, kTwos, 0xFF, -1},
      {16, 8, -1, kSignMag, 0x81, -1}, {16, 8, -1, kOffset, 0x7F, -1},
      {16, 8, -1, 5, 0x00, 0},  // an unknown representation clears the field
      {0, 4, -9, kTwos, 0x7, 7},  // a number that does not fit loses its top bits
      // INT64_MIN at width 64 is well defined.
      {0, 64, min, kTwos, top, min}, {0, 64, min, kOffset, 0, min},
      {0, 64, min, kSignMag, top, 0},  // minus zero
      {0, 64, min, kOnes, top - 1, std::numeric_limits<i64>::max()},
  };
  for (Row const& r : rows) {
    u64 const mask = r.width == 64 ? kAll : ((u64{1} << r.width) - 1) << r.start;
    u64 w = kAll;
    ZEL::SetSignedField(w, r.start, r.width, r.number, Repr(r.repr));
    EXPECT_EQ(w, (kAll & ~mask) | (r.stored << r.start)) << "row " << &r - rows;
    EXPECT_EQ(ZEL::GetSignedField(w, r.start, r.width, Repr(r.repr)), r.read_back)
        << "row " << &r - rows;
  }
}

// Every representable number of widths 2..8 goes in at an odd start and comes
// back, with the bits around the field untouched.
TEST(ZEL_PrimitivesSigned, RoundTripOverSmallWidths) {
  for (u32 width = 2; width <= 8; ++width) {
    i64 const half = i64{1} << (width - 1);
    struct Range {
      u32 repr;
      i64 lo, hi;
    } const ranges[] = {{kUns, 0, 2 * half - 1}, {kOnes, 1 - half, half - 1},
                        {kTwos, -half, half - 1}, {kSignMag, 1 - half, half - 1},
                        {kOffset, -half, half - 1}};
    u64 const outside = ~(((u64{1} << width) - 1) << 7);
    for (Range const& r : ranges) {
      for (i64 n = r.lo; n <= r.hi; ++n) {
        u64 w = kPattern;
        ZEL::SetSignedField(w, 7, width, n, Repr(r.repr));
        ASSERT_EQ(ZEL::GetSignedField(w, 7, width, Repr(r.repr)), n)
            << "width " << width << " repr " << r.repr;
        ASSERT_EQ(w & outside, kPattern & outside);
      }
    }
  }
}

TEST(ZEL_PrimitivesBcd, ReadsAndWritesDecimalDigits) {
  EXPECT_EQ(ZEL::GetBcdField(0x1234, 0, 4), 1234u);
  EXPECT_EQ(ZEL::GetBcdField(0x1F, 0, 2), 25u);  // nibbles 1 and 15
  EXPECT_EQ(ZEL::GetBcdField(0x1234567890123456ull, 0, 20), 1234567890123456u);  // 16 digits
  u64 w = 0;
  ZEL::SetBcdField(w, 0, 4, 12345);
  EXPECT_EQ(w, 0x2345u);
  w = kAll;
  ZEL::SetBcdField(w, 8, 2, 7);
  EXPECT_EQ(w, ~u64{0xFF00} | 0x0700u);
  EXPECT_EQ(ZEL::GetBcdField(w, 8, 2), 7u);
}

TEST(ZEL_PrimitivesReflectRotate, ReflectAndRotateAtTheWordEdges) {
  EXPECT_EQ(ZEL::ReflectUint8(0x01), 0x80u);
  EXPECT_EQ(ZEL::ReflectUint16(0x0001), 0x8000u);
  EXPECT_EQ(ZEL::ReflectUint32(0x00000003u), 0xC0000000u);
  EXPECT_EQ(ZEL::ReflectUint64(0x0F), u64{0xF} << 60);
  EXPECT_EQ(ZEL::ShiftRotatedLeft8(0x81, 1), 0x03u);
  EXPECT_EQ(ZEL::ShiftRotatedRight8(0x81, 1), 0xC0u);
  EXPECT_EQ(ZEL::ShiftRotatedLeft16(1, 16), 1u);
  // Counts are taken modulo the width.
  EXPECT_EQ(ZEL::ShiftRotatedLeft8(0x81, 9), 0x03u);
  EXPECT_EQ(ZEL::ShiftRotatedRight16(0x0001, 17), 0x8000u);
  EXPECT_EQ(ZEL::ShiftRotatedLeft32(0x80000001u, 33), 0x00000003u);
  EXPECT_EQ(ZEL::ShiftRotatedLeft64(kPattern, 68), 0xEDCBA9876543210Full);
  EXPECT_EQ(ZEL::ShiftRotatedRight64(kPattern, 4), 0x0FEDCBA987654321ull);
  EXPECT_EQ(ZEL::ShiftRotatedRight64(kPattern, 64), kPattern);
}

TEST(ZEL_PrimitivesIntCeil, RoundsUpOnlyWithARemainder) {
  EXPECT_EQ(ZEL::IntCeil(10, 5), 2u);
  EXPECT_EQ(ZEL::IntCeil(11, 5), 3u);
  EXPECT_EQ(ZEL::IntCeil(0, 5), 0u);
  EXPECT_EQ(ZEL::IntCeil(kAll, 2), u64{1} << 63);
}

// Order 0 is little-endian and any other value big-endian (7 included); each
// width round-trips at an odd address without touching the bytes around it.
TEST(ZEL_PrimitivesBuffers, OrderZeroIsLittleEndianAnyOtherBigEndianAtAnyAddress) {
  u8 storage[11];
  u8* const b = storage + 1;
  for (u32 order : {0u, 1u, 7u}) {
    bool const little = order == 0;
    u8 const bytes[] = {0x01, 0x02, 0x03, 0x04};
    EXPECT_EQ(ZEL::Uint32FromBuf(const_cast<u8*>(bytes), Order(order)),
              little ? 0x04030201u : 0x01020304u);
    std::memset(storage, 0xCC, sizeof(storage));
    ZEL::Uint16ToBuf(0x1122, b, Order(order));
    EXPECT_EQ(ZEL::Uint16FromBuf(b, Order(order)), 0x1122u);
    ZEL::Uint32ToBuf(0x11223344u, b, Order(order));
    EXPECT_EQ(ZEL::Uint32FromBuf(b, Order(order)), 0x11223344u);
    ZEL::FloatToBuf(-0.75f, b, Order(order));
    EXPECT_EQ(ZEL::FloatFromBuf(b, Order(order)), -0.75f);
    ZEL::Uint64ToBuf(0x0102030405060708ull, b, Order(order));
    for (int i = 0; i < 8; ++i) EXPECT_EQ(b[i], little ? 8 - i : 1 + i) << "order " << order;
    EXPECT_EQ(ZEL::Uint64FromBuf(b, Order(order)), 0x0102030405060708ull);
    EXPECT_EQ(storage[0], 0xCCu);
    EXPECT_EQ(b[8], 0xCCu);
  }
}

TEST(ZEL_PrimitivesBuffers, SignedAndFloatFormsMoveTheSameBits) {
  u8 b[8];
  for (u32 order : {0u, 1u}) {
    ZEL::Int16ToBuf(short{-2}, b, Order(order));
    EXPECT_EQ(ZEL::Uint16FromBuf(b, Order(order)), 0xFFFEu);
    EXPECT_EQ(ZEL::Int16FromBuf(b, Order(order)), -2);
    ZEL::Int32ToBuf(-123456789, b, Order(order));
    EXPECT_EQ(ZEL::Uint32FromBuf(b, Order(order)), static_cast<u32>(-123456789));
    EXPECT_EQ(ZEL::Int32FromBuf(b, Order(order)), -123456789);
    ZEL::Int64ToBuf(i64{-3}, b, Order(order));
    EXPECT_EQ(ZEL::Uint64FromBuf(b, Order(order)), kAll - 2);
    EXPECT_EQ(ZEL::Int64FromBuf(b, Order(order)), -3);
    ZEL::DoubleToBuf(-2.5, b, Order(order));
    EXPECT_EQ(ZEL::Uint64FromBuf(b, Order(order)), 0xC004000000000000ull);
    EXPECT_EQ(ZEL::DoubleFromBuf(b, Order(order)), -2.5);
  }
  ZEL::FloatToBuf(1.0f, b, ZEL::ZEL_BIG_ENDIAN);
  u8 const one[] = {0x3F, 0x80, 0x00, 0x00};
  EXPECT_EQ(std::memcmp(b, one, sizeof(one)), 0);
}

TEST(ZEL_PrimitivesBuffers, InvertByteOrderReversesExactlySizeBytes) {
  u8 b[] = {0x01, 0x02, 0x03, 0x04, 0xEE};
  ZEL::InvertByteOrder(b, 0);
  ZEL::InvertByteOrder(b, 1);
  EXPECT_EQ(b[0], 0x01u);
  ZEL::InvertByteOrder(b, 3);
  u8 const after3[] = {0x03, 0x02, 0x01, 0x04, 0xEE};
  EXPECT_EQ(std::memcmp(b, after3, sizeof(b)), 0);
  ZEL::InvertByteOrder(b, 4);
  u8 const after4[] = {0x04, 0x01, 0x02, 0x03, 0xEE};
  EXPECT_EQ(std::memcmp(b, after4, sizeof(b)), 0);
}

TEST(ZEL_PrimitivesBuffers, ToWinRgbQuad32BitSplitsThePaletteWord) {
  ZEL::t_WinRgbQuad const q = ZEL::ToWinRgbQuad32Bit(0xAA223344u);
  EXPECT_EQ(q.red, 0x22u);
  EXPECT_EQ(q.green, 0x33u);
  EXPECT_EQ(q.blue, 0x44u);
  EXPECT_EQ(q.reserved, 0xAAu);
}

}  // namespace
