#include "ContainerTestSupport.h"

#include <vector>

namespace {

using Bytes = std::vector<ZEL::u8>;
using zel_test::Items;

constexpr ZEL::t_ByteOrdering kLittle = ZEL::ZEL_LITTLE_ENDIAN;
constexpr ZEL::t_ByteOrdering kBig = ZEL::ZEL_BIG_ENDIAN;

TEST(CZEL_Uint8VectorAccess, FieldsMustFitTheLength) {
  CZEL_Uint8Vector v(4u, 0);
  v.GetUint32(0, kLittle);
  EXPECT_ZEL_THROW(v.GetUint32(1, kLittle), ZEL_ERR_INVALID_ARGUMENT, &v);
  v.SetUint16(0xABCD, 2, kBig);
  EXPECT_EQ(Items(v), (Bytes{0, 0, 0xAB, 0xCD}));
  EXPECT_ZEL_THROW(v.SetUint16(0x1111, 3, kBig), ZEL_ERR_INVALID_ARGUMENT, &v);
  EXPECT_EQ(Items(v), (Bytes{0, 0, 0xAB, 0xCD}));
  EXPECT_ZEL_THROW(v[4], ZEL_ERR_BAD_POSITION, &v);  // the base's code for the same slip
}

TEST(CZEL_Uint8VectorAccess, EmptyVectorRefusesEveryAccessor) {
  CZEL_Uint8Vector v;
  EXPECT_ZEL_THROW(v.GetInt16(0, kLittle), ZEL_ERR_INVALID_ARGUMENT, &v);
  EXPECT_ZEL_THROW(v.GetUint16(0, kLittle), ZEL_ERR_INVALID_ARGUMENT, &v);
  EXPECT_ZEL_THROW(v.GetInt32(0, kLittle), ZEL_ERR_INVALID_ARGUMENT, &v);
  EXPECT_ZEL_THROW(v.GetUint32(0, kLittle), ZEL_ERR_INVALID_ARGUMENT, &v);
  EXPECT_ZEL_THROW(v.GetInt64(0, kLittle), ZEL_ERR_INVALID_ARGUMENT, &v);
  EXPECT_ZEL_THROW(v.GetUint64(0, kLittle), ZEL_ERR_INVALID_ARGUMENT, &v);
  EXPECT_ZEL_THROW(v.GetFloat(0, kLittle), ZEL_ERR_INVALID_ARGUMENT, &v);
  EXPECT_ZEL_THROW(v.GetDouble(0, kLittle), ZEL_ERR_INVALID_ARGUMENT, &v);
  EXPECT_ZEL_THROW(v.SetInt16(1, 0, kBig), ZEL_ERR_INVALID_ARGUMENT, &v);
  EXPECT_ZEL_THROW(v.SetUint16(1, 0, kBig), ZEL_ERR_INVALID_ARGUMENT, &v);
  EXPECT_ZEL_THROW(v.SetInt32(1, 0, kBig), ZEL_ERR_INVALID_ARGUMENT, &v);
  EXPECT_ZEL_THROW(v.SetUint32(1, 0, kBig), ZEL_ERR_INVALID_ARGUMENT, &v);
  EXPECT_ZEL_THROW(v.SetInt64(1, 0, kBig), ZEL_ERR_INVALID_ARGUMENT, &v);
  EXPECT_ZEL_THROW(v.SetUint64(1, 0, kBig), ZEL_ERR_INVALID_ARGUMENT, &v);
  EXPECT_ZEL_THROW(v.SetFloat(1, 0, kBig), ZEL_ERR_INVALID_ARGUMENT, &v);
  EXPECT_ZEL_THROW(v.SetDouble(1, 0, kBig), ZEL_ERR_INVALID_ARGUMENT, &v);
}

TEST(CZEL_Uint8VectorAccess, IntegerFieldsInBothOrders) {
  CZEL_Uint8Vector v(10u, 0);
  v.SetUint32(0x11223344u, 1, kLittle);
  EXPECT_EQ(Items(v), (Bytes{0, 0x44, 0x33, 0x22, 0x11, 0, 0, 0, 0, 0}));
  EXPECT_EQ(v.GetUint32(1, kBig), 0x44332211u);  // read back with the bytes reversed
  EXPECT_EQ(v.GetUint32(1, kLittle), 0x11223344u);
  v.SetInt16(-2, 8, ZEL::t_ByteOrdering(7));  // any non-zero order is big-endian
  EXPECT_EQ(v[8], 0xFF);
  EXPECT_EQ(v[9], 0xFE);
  EXPECT_EQ(v.GetInt16(8, kBig), -2);
  v.SetInt64(-3, 2, kBig).SetUint64(0x0102030405060708ull, 0, kBig);
  EXPECT_EQ(v.GetUint64(0, kLittle), 0x0807060504030201ull);
  v.SetInt32(-5, 6, kLittle);
  EXPECT_EQ(v.GetInt32(6, kLittle), -5);
  v.SetUint16(0xBEEF, 0, kLittle);
  EXPECT_EQ(v.GetUint16(0, kBig), 0xEFBE);
  v.SetInt64(-7, 1, kLittle);
  EXPECT_EQ(v.GetInt64(1, kLittle), -7);
}

TEST(CZEL_Uint8VectorAccess, FloatFields) {
  CZEL_Uint8Vector v(12u, 0);
  v.SetFloat(1.5f, 1, kBig);
  EXPECT_EQ(v.GetUint32(1, kBig), 0x3FC00000u);
  EXPECT_EQ(v.GetFloat(1, kBig), 1.5f);
  v.SetDouble(-0.25, 3, kLittle);
  EXPECT_EQ(v.GetUint64(3, kLittle), 0xBFD0000000000000ull);
  EXPECT_EQ(v.GetDouble(3, kLittle), -0.25);
}

TEST(CZEL_Uint8VectorAccess, WrappedOffsetPassesTheTestButTouchesNothing) {
  CZEL_Uint8Vector v(4u, 9);
  EXPECT_EQ(v.GetUint16(0xFFFFFFFFu, kLittle), 0u);  // 0xFFFFFFFF + 2 wraps to 1
  v.SetUint32(7, 0xFFFFFFFEu, kLittle);
  EXPECT_EQ(Items(v), (Bytes{9, 9, 9, 9}));
}

TEST(CZEL_Uint8VectorAccess, ConstructionAssignmentAndOrder) {
  ZEL::u8 raw[] = {3, 1, 2};
  CZEL_Uint8Vector v(raw, 3);
  CZEL_Uint8List list;
  list = v;
  CZEL_Uint8Vector back;
  back = list;
  EXPECT_TRUE(back == v);
  CZEL_List<ZEL::u8>& plain = list;
  back = plain;
  EXPECT_EQ(back.Max(), 3);
  EXPECT_EQ(v.Min(), 1);
  CZEL_Uint8Vector empty;
  EXPECT_ZEL_THROW(empty.Sort(1), ZEL_ERR_INVALID_ARGUMENT, &empty);
}

TEST(CZEL_Uint8VectorAccess, ListOfBlocks) {
  CZEL_List<CZEL_Uint8Vector> blocks;
  blocks += CZEL_Uint8Vector(2u, 1);
  blocks += CZEL_Uint8Vector(3u, 2);
  CZEL_List<CZEL_Uint8Vector> copy(blocks);
  blocks.ToStart().SetUint16(0xFFFF, 0, kLittle);
  copy.ToStart();
  EXPECT_EQ((copy >> 1)[0], 1);  // a deep copy
  EXPECT_EQ(copy.CurItem().GetLength(), 3u);
  EXPECT_TRUE(blocks != copy);
}

}  // namespace
