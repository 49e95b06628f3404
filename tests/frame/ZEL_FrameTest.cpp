// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/frame/CZEL_Exception.h>
#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/frame/ZEL_Primitives.h>

#include <gtest/gtest.h>

#include <cstring>

namespace {

using namespace ZEL;
constexpr u32 kMaxU32 = 0xFFFFFFFFu;
constexpr u64 kAll = ~u64{0};
t_ZEL_NumberRepr Repr(u32 r) { return static_cast<t_ZEL_NumberRepr>(r); }

// `word` after SetBit or SetField, as one expression.
template <typename T>
T WithBit(T word, u32 pos, u8 on) {
  SetBit(word, pos, on);
  return word;
}
template <typename T>
T WithField(T word, u32 start, u32 width, T field) {
  SetField(word, start, width, field);
  return word;
}

TEST(CZEL_ExceptionTest, DefaultIsAllZeroAndCopyKeepsAllFields) {
  int anchor = 0;
  CZEL_Exception const none, thrown(ZEL_ERR_INVALID_ARGUMENT, &anchor, 7), copy(thrown);
  EXPECT_TRUE(none.m_Code == 0 && none.m_Object == nullptr && none.m_Extra == 0);
  EXPECT_TRUE(copy.m_Code == ZEL_ERR_INVALID_ARGUMENT && copy.m_Object == &anchor &&
              copy.m_Extra == 7);
}

// Every code has its constant's name; numbers between the codes have none.
TEST(CZEL_ExceptionTest, ErrorNamesSpellTheConstants) {
  struct {
    u32 code;
    char const* name;
  } const rows[] = {{ZEL_ERR_NONE, "ZEL_ERR_NONE"},
                    {ZEL_ERR_BAD_POSITION, "ZEL_ERR_BAD_POSITION"},
                    {ZEL_ERR_FAILED, "ZEL_ERR_FAILED"},
                    {4, "unknown"},
                    {33, "unknown"},
                    {kMaxU32, "unknown"}};
  for (auto const& row : rows) {
    EXPECT_STREQ(ErrorName(row.code), row.name) << row.code;
    EXPECT_STREQ(CZEL_Exception(row.code, nullptr, 0).What(), row.name);
  }
  for (u32 code = 0; code < 40; ++code) {  // each name is its code's alone
    for (u32 other = code + 1; other < 40; ++other) {
      if (std::strcmp(ErrorName(code), "unknown") != 0) {
        EXPECT_STRNE(ErrorName(code), ErrorName(other));
      }
    }
  }
}

// The mask is cut at the word's top and is empty past it, at width 0 and
// when start + width wraps in 32 bits. SetBit wraps at 32 on narrow words
// and ignores positions past the wide ones.
TEST(ZEL_PrimitivesBits, FieldMaskAndBitPositionsAtTheEdges) {
  struct Row {
    u32 start, width;
    u64 field, mask;
  } const rows[] = {{60, 8, 0xF, u64{0xF} << 60},
                    {64, 1, 0, 0},
                    {3, 0, 0, 0},
                    {1, kMaxU32, 0, 0},
                    {0, kMaxU32, kAll, kAll}};
  for (Row const& r : rows) {
    SCOPED_TRACE(::testing::Message() << r.start << " + " << r.width);
    EXPECT_EQ(GetField(kAll, r.start, r.width), r.field);
    EXPECT_EQ(WithField(u64{0}, r.start, r.width, kAll), r.mask);
  }
  EXPECT_EQ(WithField(u16{0}, 12, 8, u16{0xFFFF}), 0xF000u);
  EXPECT_EQ(WithField(u8{0x5A}, 8, 1, u8{0xFF}), 0x5Au);
  EXPECT_EQ(WithBit(u8{0}, 39, 0x80), 0x80u);
  EXPECT_EQ(WithBit(u16{0}, 32, 1), 1u);
  EXPECT_EQ(WithBit(kMaxU32, 32, 0), kMaxU32);
  EXPECT_EQ(WithBit(kAll, 64, 0), kAll);
}

// By representation, 0 to 5 (5 is none): bits 1110 read in 4 bits, a set
// bit read in 1 bit, and -1 stored in 8 bits.
TEST(ZEL_PrimitivesSigned, EachRepresentationReadsAndWrites) {
  struct Row {
    i64 of1110, ofOneBit;
    u64 minusOne;
  } const rows[] = {{14, 1, 0xFF}, {-1, 0, 0xFE}, {-2, 0, 0xFF},
                    {-6, 0, 0x81}, {6, 0, 0x7F},  {0, 0, 0}};
  for (u32 repr = 0; repr < 6; ++repr) {
    SCOPED_TRACE(repr);
    EXPECT_EQ(GetSignedField(0xE, 0, 4, Repr(repr)), rows[repr].of1110);
    EXPECT_EQ(GetSignedField(1, 0, 1, Repr(repr)), rows[repr].ofOneBit);
    u64 w = kAll;
    SetSignedField(w, 16, 8, -1, Repr(repr));
    EXPECT_EQ(w, (kAll & ~u64{0xFF0000}) | (rows[repr].minusOne << 16));
  }
  EXPECT_EQ(GetSignedField(0, 0, 1, ZEL_REPR_OFFSET_BINARY), -1);
  constexpr u64 kPattern = 0xFEDCBA9876543210ull;  // 64 bits of two's complement: unshifted
  EXPECT_EQ(GetSignedField(kPattern, 8, 64, ZEL_REPR_TWOS_COMPLEMENT), static_cast<i64>(kPattern));
}

TEST(ZEL_PrimitivesArithmetic, BcdReflectRotateAndIntCeil) {
  EXPECT_EQ(GetBcdField(0x1234, 0, 4), 1234u);
  EXPECT_EQ(GetBcdField(0x1234567890123456ull, 0, 20), 1234567890123456u);
  u64 w = 0;
  SetBcdField(w, 0, 4, 12345);
  EXPECT_EQ(w, 0x2345u);
  EXPECT_EQ(ReflectUint8(0x01), 0x80u);
  EXPECT_EQ(ReflectUint64(0x0F), u64{0xF} << 60);
  EXPECT_EQ(ShiftRotatedLeft8(0x81, 9), 0x03u);
  EXPECT_EQ(ShiftRotatedRight16(0x0001, 17), 0x8000u);
  EXPECT_EQ(ShiftRotatedLeft32(0x80000001u, 33), 0x00000003u);
  EXPECT_EQ(ShiftRotatedRight64(0xFEDCBA9876543210ull, 64), 0xFEDCBA9876543210ull);
  EXPECT_EQ(IntCeil(10, 5), 2u);
  EXPECT_EQ(IntCeil(11, 5), 3u);
  EXPECT_EQ(IntCeil(kAll, 2), u64{1} << 63);
}

// Order 0 is little-endian, any other big-endian.
TEST(ZEL_PrimitivesBuffers, ByteOrdersInversionAndPaletteWords) {
  u8 bytes[] = {0x01, 0x02, 0x03, 0x04, 0xEE};
  EXPECT_EQ(Uint32FromBuf(bytes, static_cast<t_ByteOrdering>(0)), 0x04030201u);
  EXPECT_EQ(Uint32FromBuf(bytes, static_cast<t_ByteOrdering>(7)), 0x01020304u);
  InvertByteOrder(bytes, 4);
  u8 const inverted[] = {0x04, 0x03, 0x02, 0x01, 0xEE};
  EXPECT_EQ(std::memcmp(bytes, inverted, sizeof(bytes)), 0);
  FloatToBuf(1.0f, bytes, ZEL_BIG_ENDIAN);
  u8 const one[] = {0x3F, 0x80, 0x00, 0x00};
  EXPECT_EQ(std::memcmp(bytes, one, sizeof(one)), 0);
  t_WinRgbQuad const q = ToWinRgbQuad32Bit(0xAA223344u);
  EXPECT_TRUE(q.red == 0x22 && q.green == 0x33 && q.blue == 0x44 && q.reserved == 0xAA);
}

}  // namespace
