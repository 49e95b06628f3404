// SPDX-License-Identifier: Apache-2.0
// The library's whole surface, reached through the umbrella header alone:
// every class, every template instantiation and every free function is named
// here, so that this program links only if each of them is exported from the
// library. The checks at run time are light; the link is the proof.

#include <LZEL_Core/LZEL_Core.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <string_view>
#include <utility>

namespace {

using ZEL::u32;

// One use of a vector and a list of T: construction, a length, destruction,
// all out-of-line members of the library's instantiation.
template <typename T>
void UseContainers() {
  CZEL_Vector<T> vector;
  CZEL_List<T> list;
  EXPECT_EQ(vector.GetLength() + list.GetLength(), 0u);
}

template <typename T>
void UseOrderedContainers() {
  UseContainers<T>();
  CZEL_OrderedVector<T> vector(2, T(1));
  CZEL_OrderedList<T> list(2, T(2));
  EXPECT_EQ(vector.Min(), T(1));
  EXPECT_EQ(list.Max(), T(2));
}

template <typename T>
void UseGeometry() {
  CZEL_Point<T> point(T(1), T(2));
  CZEL_Size<T> size(T(3), T(4));
  CZEL_Rect<T> rect(point, size);
  EXPECT_TRUE(rect.IsValid());
}

TEST(Surface, EveryTemplateInstantiation) {
#define ZEL_SURFACE_ORDERED(T) UseOrderedContainers<T>();
  ZEL_CONTAINER_NUMBERS(ZEL_SURFACE_ORDERED)
#undef ZEL_SURFACE_ORDERED
#define ZEL_SURFACE_USE(T) UseContainers<T>();
  ZEL_CONTAINER_VALUES(ZEL_SURFACE_USE)
  ZEL_CONTAINER_VALUE_CLASSES(ZEL_SURFACE_USE)
#undef ZEL_SURFACE_USE
  UseContainers<CZEL_Code::CFormatNode>();
  CZEL_List<CZEL_Uint8Vector> blocks;
  EXPECT_EQ(blocks.GetLength(), 0u);
  UseGeometry<int>();
  UseGeometry<double>();
}

// Default-constructs each named class and destroys it again.
#define ZEL_SURFACE_NAMED_CLASSES(X) \
  X(CZEL_Int8List)                   \
  X(CZEL_Int8Vector)                 \
  X(CZEL_Uint8List)                  \
  X(CZEL_Uint8Vector)                \
  X(CZEL_Int16List)                  \
  X(CZEL_Int16Vector)                \
  X(CZEL_Uint16List)                 \
  X(CZEL_Uint16Vector)               \
  X(CZEL_Int32List)                  \
  X(CZEL_Int32Vector)                \
  X(CZEL_Uint32List)                 \
  X(CZEL_Uint32Vector)               \
  X(CZEL_Int64List)                  \
  X(CZEL_Int64Vector)                \
  X(CZEL_Uint64List)                 \
  X(CZEL_Uint64Vector)               \
  X(CZEL_FloatList)                  \
  X(CZEL_FloatVector)                \
  X(CZEL_DoubleList)                 \
  X(CZEL_DoubleVector)               \
  X(CZEL_StringList)                 \
  X(CZEL_StringVector)               \
  X(CZEL_BitSetList)                 \
  X(CZEL_BitSetVector)               \
  X(CZEL_DecimalNumberList)          \
  X(CZEL_DecimalNumberVector)        \
  X(CZEL_DateList)                   \
  X(CZEL_DateVector)                 \
  X(CZEL_TimeList)                   \
  X(CZEL_TimeVector)                 \
  X(CZEL_IpAddressList)              \
  X(CZEL_IpAddressVector)            \
  X(CZEL_Int32PointList)             \
  X(CZEL_Int32PointVector)           \
  X(CZEL_DoublePointList)            \
  X(CZEL_DoublePointVector)          \
  X(CZEL_Int32SizeList)              \
  X(CZEL_Int32SizeVector)            \
  X(CZEL_Int32RectList)              \
  X(CZEL_Int32RectVector)            \
  X(CZEL_DoubleRectList)             \
  X(CZEL_DoubleRectVector)           \
  X(CZEL_Int32Point)                 \
  X(CZEL_DoublePoint)                \
  X(CZEL_Int32Size)                  \
  X(CZEL_DoubleSize)                 \
  X(CZEL_Int32Rect)                  \
  X(CZEL_DoubleRect)                 \
  X(CZEL_Object)                     \
  X(CZEL_Exception)                  \
  X(CZEL_Dumper)                     \
  X(CZEL_Mutex)                      \
  X(CZEL_String)                     \
  X(CZEL_Code)                       \
  X(CZEL_BitSet)                     \
  X(CZEL_Register)                   \
  X(CZEL_Crc)                        \
  X(CZEL_Date)                       \
  X(CZEL_Time)                       \
  X(CZEL_Color)                      \
  X(CZEL_IpAddress)                  \
  X(CZEL_File)                       \
  X(CZEL_Buffer)                     \
  X(CZEL_MemoryBuffer)               \
  X(CZEL_FileBuffer)                 \
  X(CZEL_WinBitmapData)

TEST(Surface, EveryClass) {
  u32 constructed = 0;
#define ZEL_SURFACE_CONSTRUCT(C) \
  {                              \
    C object;                    \
    (void)object;                \
    ++constructed;               \
  }
  ZEL_SURFACE_NAMED_CLASSES(ZEL_SURFACE_CONSTRUCT)
#undef ZEL_SURFACE_CONSTRUCT
  EXPECT_GT(constructed, 60u);
  CZEL_CsvFile csv(3, ';', CZEL_File::LINE_END_LF);
  CZEL_StringVector record(3);
  EXPECT_NE(csv.WriteRecord(record), ZEL_ERR_NONE);  // no file open
  CZEL_DecimalNumber decimal(2, ZEL::i64(7));
  CZEL_BitSet bits(4, 1);
  CZEL_BitSet::CBit bit = bits[0];
  EXPECT_EQ(static_cast<ZEL::u8>(bit), 1);
}

TEST(Surface, EveryFreeFunction) {
  using namespace ZEL;
  u8 b8 = 0;
  u16 b16 = 0;
  u32 b32 = 0;
  u64 b64 = 0;
  SetBit(b8, 1, 1);
  SetBit(b16, 1, 1);
  SetBit(b32, 1, 1);
  SetBit(b64, 1, 1);
  SetField(b8, 0, 2, u8(3));
  SetField(b16, 0, 2, u16(3));
  SetField(b32, 0, 2, u32(3));
  SetField(b64, 0, 2, u64(3));
  SetSignedField(b64, 8, 8, -1, ZEL_REPR_TWOS_COMPLEMENT);
  SetBcdField(b64, 16, 2, 42);
  EXPECT_EQ(GetBit(b64, 1) + GetField(b64, 0, 2) + GetBcdField(b64, 16, 2), 46u);
  EXPECT_EQ(GetSignedField(b64, 8, 8, ZEL_REPR_TWOS_COMPLEMENT), -1);
  EXPECT_EQ(ReflectUint8(1) + ReflectUint16(1) + ReflectUint32(1) + ReflectUint64(1) > 0, true);
  EXPECT_EQ(ShiftRotatedLeft8(1, 1) + ShiftRotatedLeft16(1, 1) + ShiftRotatedLeft32(1, 1) +
                ShiftRotatedLeft64(1, 1) + ShiftRotatedRight8(2, 1) + ShiftRotatedRight16(2, 1) +
                ShiftRotatedRight32(2, 1) + ShiftRotatedRight64(2, 1) + IntCeil(3, 2),
            14u);
  u8 buffer[8] = {};
  Uint16ToBuf(1, buffer, ZEL_LITTLE_ENDIAN);
  Int16ToBuf(1, buffer, ZEL_LITTLE_ENDIAN);
  Uint32ToBuf(1, buffer, ZEL_LITTLE_ENDIAN);
  Int32ToBuf(1, buffer, ZEL_LITTLE_ENDIAN);
  Uint64ToBuf(1, buffer, ZEL_LITTLE_ENDIAN);
  Int64ToBuf(1, buffer, ZEL_LITTLE_ENDIAN);
  FloatToBuf(1.0f, buffer, ZEL_LITTLE_ENDIAN);
  DoubleToBuf(1.0, buffer, ZEL_LITTLE_ENDIAN);
  InvertByteOrder(buffer, 8);
  DoubleToBuf(1.0, buffer, ZEL_BIG_ENDIAN);
  EXPECT_EQ(
      DoubleFromBuf(buffer, ZEL_BIG_ENDIAN) + FloatFromBuf(buffer, ZEL_BIG_ENDIAN) * 0 +
          Uint16FromBuf(buffer, ZEL_BIG_ENDIAN) * 0 + Int16FromBuf(buffer, ZEL_BIG_ENDIAN) * 0 +
          Uint32FromBuf(buffer, ZEL_BIG_ENDIAN) * 0 + Int32FromBuf(buffer, ZEL_BIG_ENDIAN) * 0 +
          Uint64FromBuf(buffer, ZEL_BIG_ENDIAN) * 0 + Int64FromBuf(buffer, ZEL_BIG_ENDIAN) * 0,
      1.0);
  EXPECT_EQ(ToWinRgbQuad32Bit(0x00FF0000).red + ToWinRgbQuad32Bit(0x000000FF).blue, 0x1FE);

  CZEL_String text("b");
  EXPECT_EQ(('a' + text).GetLength() + ("a" + text).GetLength(), 4u);
  EXPECT_TRUE(("b" == text) && !("b" != text) && ("a" < text) && ("b" <= text) && ("c" > text) &&
              ("b" >= text));
  CZEL_DecimalNumber two(0, ZEL::i64(2));
  EXPECT_EQ((ZEL::i64(3) * two).GetIntegral(), 6u);

  // The stream forms of the value classes, there and back.
  CZEL_MemoryBuffer stream;
  stream << text << CZEL_Color(1, 2, 3) << CZEL_Date(2000, 1, 1) << CZEL_Time(1, 2, 3, 4)
         << CZEL_IpAddress(CZEL_String("1.2.3.4"));
  stream.ToStart();
  CZEL_String text2;
  CZEL_Color color;
  CZEL_Date date;
  CZEL_Time time;
  CZEL_IpAddress address;
  stream >> text2 >> color >> date >> time >> address;
  EXPECT_TRUE(text2 == text && date == CZEL_Date(2000, 1, 1) && time == CZEL_Time(1, 2, 3, 4) &&
              address == CZEL_IpAddress(CZEL_String("1.2.3.4")));
  EXPECT_EQ(color.GetUnsignedColor(), CZEL_Color(1, 2, 3).GetUnsignedColor());
}

// The members added for standard-library use, moves, parsing and error
// names, each called once through the library's exports.
TEST(Surface, EveryAddedMember) {
  EXPECT_STREQ(CZEL_Exception(ZEL_ERR_IO, nullptr, 0).What(), ZEL::ErrorName(ZEL_ERR_IO));
  CZEL_String text(std::string_view("ab")), other("b");
  text.Swap(other);
  CZEL_String moved(std::move(other));
  other = std::move(moved);
  EXPECT_TRUE(text.View() == "b" && text == "b" && text != "a" && text < "c" && text <= "b" &&
              text > "a" && text >= "b" && other.end() - other.begin() == 2);
  CZEL_Code code(CZEL_String("<a>")), code2(std::move(code));
  code = std::move(code2);
  code.Swap(code2);

  CZEL_BitSet bits(8, 0), bits2(std::move(bits));
  bits = std::move(bits2);
  bits.Swap(bits2);
  EXPECT_TRUE(ZEL::u64{0} == bits2 && !(ZEL::u64{1} < bits2) && ZEL::u64{0} <= bits2 &&
              !(ZEL::u64{0} != bits2) && !(ZEL::u64{0} > bits2) && ZEL::u64{0} >= bits2);
  CZEL_Register reg, reg2(std::move(reg));
  reg = std::move(reg2);
  reg.Swap(reg2);
  CZEL_DecimalNumber decimal(2, 0);
  decimal.Set(3);
  EXPECT_EQ((ZEL::i64(2) * static_cast<CZEL_DecimalNumber const&>(decimal)).GetIntegral(), 6u);
  CZEL_Crc crc(CZEL_Crc::Crc32), crc2(std::move(crc));
  crc = std::move(crc2);
  crc.Swap(crc2);
  ZEL::u32 value = 0;
  crc2.Compute("123456789", 9, &value, 0);
  EXPECT_EQ(crc2.Begin().Update(reinterpret_cast<ZEL::u8 const*>("123456789"), 9).Finish(), value);

  CZEL_Date date;
  CZEL_Time time;
  EXPECT_EQ(date.Parse("2000-01-02", "%Y-%M-%D") + time.Parse("01:02", "%H:%T"), ZEL_ERR_NONE);
  CZEL_IpAddress address, address2;
  EXPECT_EQ(address.ParseStandard("::1") + address.IsValid(), 2);
  EXPECT_EQ(address.GetKind(), CZEL_IpAddress(CZEL_String("0:0:0:0:0:0:0:1")).GetKind());
  EXPECT_EQ(address.ToStandardString(), "::1");
  address2 = std::move(address);
  CZEL_IpAddress address3(std::move(address2));
  address3.Swap(address);
  EXPECT_TRUE(address.IsValid() && !address3.IsValid());

  CZEL_MemoryBuffer stream;
  stream << 1LL;
  stream << 2ULL;
  CZEL_MemoryBuffer stream2(std::move(stream));
  stream = std::move(stream2);
  stream.Swap(stream2);
  EXPECT_EQ(stream2.GetSize(), 16u);
}

}  // namespace
