#include <LZEL_Core/frame/ZEL_Primitives.h>

#include <gtest/gtest.h>

#include <cstring>

namespace {

using namespace ZEL;
constexpr u32 kMaxU32 = 0xFFFFFFFFu;
constexpr u64 kAll = ~u64{0};
t_ZEL_NumberRepr Repr(u32 r) { return static_cast<t_ZEL_NumberRepr>(r); }

TEST(ZEL_PrimitivesFields, MaskCutsAtTopAndIsEmptyPastWordAtWidthZeroOrWhenEndWraps) {
  EXPECT_EQ(GetField(kAll, 60, 8), 0xFu);
  EXPECT_EQ(GetField(kAll, 64, 1), 0u);
  EXPECT_EQ(GetField(kAll, 3, 0), 0u);
  EXPECT_EQ(GetField(kAll, 1, kMaxU32), 0u);
  EXPECT_EQ(GetField(kAll, 0, kMaxU32), kAll);
  u16 w16 = 0;
  SetField(w16, 12, 8, u16{0xFFFF});
  EXPECT_EQ(w16, 0xF000u);
  u8 w8 = 0x5A;
  SetField(w8, 8, 1, u8{0xFF});
  SetField(w8, 3, 0, u8{0xFF});
  SetField(w8, 1, kMaxU32, u8{0xFF});
  EXPECT_EQ(w8, 0x5Au);
  SetField(w8, 0, kMaxU32, u8{0x0F});
  EXPECT_EQ(w8, 0x0Fu);
}

TEST(ZEL_PrimitivesBits, SetBitWrapsAt32OnNarrowWordsAndIgnoresPositionsPastWideOnes) {
  u8 b8 = 0;
  SetBit(b8, 39, 0x80);
  EXPECT_EQ(b8, 0x80u);
  u16 b16 = 0;
  SetBit(b16, 32, 1);
  EXPECT_EQ(b16, 1u);
  u32 b32 = kMaxU32;
  SetBit(b32, 32, 0);
  EXPECT_EQ(b32, kMaxU32);
  u64 b64 = kAll;
  SetBit(b64, 64, 0);
  EXPECT_EQ(b64, kAll);
}

TEST(ZEL_PrimitivesSigned, GetSignedFieldReadsEachRepresentation) {
  constexpr u64 kPattern = 0xFEDCBA9876543210ull;
  struct Row {
    u64 value;
    u32 start, width, repr;
    i64 expected;
  } const rows[] = {
      {0xE, 0, 4, ZEL_REPR_ONES_COMPLEMENT, -1},
      {0xE, 0, 4, ZEL_REPR_TWOS_COMPLEMENT, -2},
      {0xE, 0, 4, ZEL_REPR_SIGN_MAGNITUDE, -6},
      {0xE, 0, 4, ZEL_REPR_OFFSET_BINARY, 6},
      {0xE, 0, 4, ZEL_REPR_UNSIGNED, 14},
      {kPattern, 8, 64, ZEL_REPR_TWOS_COMPLEMENT, static_cast<i64>(kPattern)},
      {1, 0, 1, ZEL_REPR_TWOS_COMPLEMENT, 0},
      {1, 0, 1, ZEL_REPR_UNSIGNED, 1},
      {0, 0, 1, ZEL_REPR_OFFSET_BINARY, -1},
      {0xE, 0, 4, 5, 0},
  };
  for (Row const& r : rows) {
    EXPECT_EQ(GetSignedField(r.value, r.start, r.width, Repr(r.repr)), r.expected)
        << "row " << &r - rows;
  }
}

TEST(ZEL_PrimitivesSigned, SetSignedFieldCodesMinusOneInEightBits) {
  struct Row {
    u32 repr;
    u64 stored;
  } const rows[] = {{ZEL_REPR_ONES_COMPLEMENT, 0xFE},
                    {ZEL_REPR_TWOS_COMPLEMENT, 0xFF},
                    {ZEL_REPR_SIGN_MAGNITUDE, 0x81},
                    {ZEL_REPR_OFFSET_BINARY, 0x7F},
                    {5, 0}};
  for (Row const& r : rows) {
    u64 w = kAll;
    SetSignedField(w, 16, 8, -1, Repr(r.repr));
    EXPECT_EQ(w, (kAll & ~u64{0xFF0000}) | (r.stored << 16)) << "repr " << r.repr;
  }
}

TEST(ZEL_PrimitivesBcd, ReadsAndWritesDecimalDigits) {
  EXPECT_EQ(GetBcdField(0x1234, 0, 4), 1234u);
  EXPECT_EQ(GetBcdField(0x1234567890123456ull, 0, 20), 1234567890123456u);
  u64 w = 0;
  SetBcdField(w, 0, 4, 12345);
  EXPECT_EQ(w, 0x2345u);
}

TEST(ZEL_PrimitivesReflectRotate, ReflectAndRotateAtTheWordEdges) {
  EXPECT_EQ(ReflectUint8(0x01), 0x80u);
  EXPECT_EQ(ReflectUint64(0x0F), u64{0xF} << 60);
  EXPECT_EQ(ShiftRotatedLeft8(0x81, 9), 0x03u);
  EXPECT_EQ(ShiftRotatedRight16(0x0001, 17), 0x8000u);
  EXPECT_EQ(ShiftRotatedLeft32(0x80000001u, 33), 0x00000003u);
  EXPECT_EQ(ShiftRotatedRight64(0xFEDCBA9876543210ull, 64), 0xFEDCBA9876543210ull);
}

TEST(ZEL_PrimitivesIntCeil, RoundsUpOnlyWithARemainder) {
  EXPECT_EQ(IntCeil(10, 5), 2u);
  EXPECT_EQ(IntCeil(11, 5), 3u);
  EXPECT_EQ(IntCeil(kAll, 2), u64{1} << 63);
}

TEST(ZEL_PrimitivesBuffers, OrderZeroIsLittleEndianAnyOtherBigEndian) {
  u8 bytes[] = {0x01, 0x02, 0x03, 0x04};
  EXPECT_EQ(Uint32FromBuf(bytes, static_cast<t_ByteOrdering>(0)), 0x04030201u);
  EXPECT_EQ(Uint32FromBuf(bytes, static_cast<t_ByteOrdering>(1)), 0x01020304u);
  EXPECT_EQ(Uint32FromBuf(bytes, static_cast<t_ByteOrdering>(7)), 0x01020304u);
  u8 b[4];
  FloatToBuf(1.0f, b, ZEL_BIG_ENDIAN);
  u8 const one[] = {0x3F, 0x80, 0x00, 0x00};
  EXPECT_EQ(std::memcmp(b, one, sizeof(one)), 0);
}

TEST(ZEL_PrimitivesBuffers, InvertByteOrderReversesExactlySizeBytes) {
  u8 b[] = {0x01, 0x02, 0x03, 0x04, 0xEE};
  InvertByteOrder(b, 4);
  u8 const after[] = {0x04, 0x03, 0x02, 0x01, 0xEE};
  EXPECT_EQ(std::memcmp(b, after, sizeof(b)), 0);
}

TEST(ZEL_PrimitivesBuffers, ToWinRgbQuad32BitSplitsThePaletteWord) {
  t_WinRgbQuad const q = ToWinRgbQuad32Bit(0xAA223344u);
  EXPECT_EQ(q.red, 0x22u);
  EXPECT_EQ(q.green, 0x33u);
  EXPECT_EQ(q.blue, 0x44u);
  EXPECT_EQ(q.reserved, 0xAAu);
}

}  // namespace
