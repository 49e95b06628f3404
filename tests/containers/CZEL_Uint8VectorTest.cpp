#include "ContainerTestSupport.h"

#include <string>
#include <vector>

namespace {

using zel_test::Items;
using Bytes = std::vector<ZEL::u8>;
using B = CZEL_Uint8Vector;
using Order = ZEL::t_ByteOrdering;

constexpr Order kLittle = ZEL::ZEL_LITTLE_ENDIAN;
constexpr Order kBig = ZEL::ZEL_BIG_ENDIAN;

// A getter and a setter (of the value 1) for the typed field `Type`.
#define FIELD(Type, width)                                                                       \
  {                                                                                              \
#Type, width,                                                                                \
        [](B & v, ZEL::u32 p,                                                                    \
           Order o) { return double(v.Get##Type(p, o)); }, [](B & v, ZEL::u32 p,                 \
                                                              Order o) { v.Set##Type(1, p, o); } \
  }

TEST(CZEL_Uint8VectorAccess, EveryFieldMustFitTheLengthInBothOrders) {
  struct Field {
    char const* name;
    ZEL::u32 width;
    double (*get)(B&, ZEL::u32, Order);
    void (*set)(B&, ZEL::u32, Order);
  };
  Field const fields[] = {FIELD(Int16, 2), FIELD(Uint16, 2), FIELD(Int32, 4), FIELD(Uint32, 4),
                          FIELD(Int64, 8), FIELD(Uint64, 8), FIELD(Float, 4), FIELD(Double, 8)};
  for (Field const& f : fields) {
    for (Order order : {kLittle, kBig}) {
      SCOPED_TRACE(std::string(f.name) + (order == kLittle ? " little-endian" : " big-endian"));
      B v(9u, 0);
      f.set(v, 9 - f.width, order);  // the field that ends at the last byte
      EXPECT_EQ(f.get(v, 9 - f.width, order), 1.0);
      Bytes const before = Items(v);
      EXPECT_ZEL_THROW(f.get(v, 10 - f.width, order), ZEL_ERR_INVALID_ARGUMENT, &v);
      EXPECT_ZEL_THROW(f.set(v, 10 - f.width, order), ZEL_ERR_INVALID_ARGUMENT, &v);
      EXPECT_EQ(Items(v), before);
      B empty;
      EXPECT_ZEL_THROW(f.get(empty, 0, order), ZEL_ERR_INVALID_ARGUMENT, &empty);
      EXPECT_ZEL_THROW(f.set(empty, 0, order), ZEL_ERR_INVALID_ARGUMENT, &empty);
    }
  }
  B v(4u, 0);
  EXPECT_ZEL_THROW(v[4], ZEL_ERR_BAD_POSITION, &v);  // the base's code for the same slip
}

TEST(CZEL_Uint8VectorAccess, FieldBytesInBothOrders) {
  B v(10u, 0);
  v.SetUint32(0x11223344u, 1, kLittle).SetInt16(-2, 8, Order(7));  // any order but 0 is big
  EXPECT_EQ(Items(v), (Bytes{0, 0x44, 0x33, 0x22, 0x11, 0, 0, 0, 0xFF, 0xFE}));
  EXPECT_EQ(v.GetUint32(1, kBig), 0x44332211u);  // read back with the bytes reversed
  EXPECT_EQ(v.GetInt16(8, kBig), -2);
  v.SetInt64(-3, 2, kBig).SetUint64(0x0102030405060708ull, 0, kBig);
  EXPECT_EQ(v.GetUint64(0, kLittle), 0x0807060504030201ull);
  v.SetUint16(0xBEEF, 0, kLittle);
  EXPECT_EQ(v.GetUint16(0, kBig), 0xEFBE);
  v.SetFloat(1.5f, 0, kBig);
  EXPECT_EQ(v.GetUint32(0, kBig), 0x3FC00000u);
  v.SetDouble(-0.25, 2, kLittle);
  EXPECT_EQ(v.GetUint64(2, kLittle), 0xBFD0000000000000ull);
}

TEST(CZEL_Uint8VectorAccess, WrappedOffsetPassesTheTestButTouchesNothing) {
  B v(4u, 9);
  EXPECT_EQ(v.GetUint16(0xFFFFFFFFu, kLittle), 0u);  // 0xFFFFFFFF + 2 wraps to 1
  v.SetUint32(7, 0xFFFFFFFEu, kLittle);
  EXPECT_EQ(Items(v), (Bytes{9, 9, 9, 9}));
}

TEST(CZEL_Uint8VectorAccess, AssignmentWithTheByteList) {
  ZEL::u8 raw[] = {3, 1, 2};
  B v(raw, 3), back;
  CZEL_Uint8List list;
  list = v;
  back = list;
  EXPECT_TRUE(back == v);
  back = B(1u, 0);
  back = static_cast<CZEL_List<ZEL::u8>&>(list);
  EXPECT_EQ(Items(back), (Bytes{3, 1, 2}));
}

TEST(CZEL_Uint8VectorAccess, ListOfBlocks) {
  CZEL_List<B> blocks;
  blocks += B(2u, 1);
  blocks += B(3u, 2);
  CZEL_List<B> copy(blocks);
  blocks.ToStart().SetUint16(0xFFFF, 0, kLittle);
  copy.ToStart();
  EXPECT_EQ((copy >> 1)[0], 1);  // a deep copy
  EXPECT_EQ(copy.CurItem().GetLength(), 3u);
  EXPECT_TRUE(blocks != copy);
}

}  // namespace
