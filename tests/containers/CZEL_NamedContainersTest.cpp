// SPDX-License-Identifier: Apache-2.0
#include "ContainerTestSupport.h"

#include <cmath>
#include <limits>
#include <new>
#include <type_traits>

namespace {

using namespace zel_test;

// Opens the protected comparator to the tests.
template <typename T>
struct OpenVector : CZEL_OrderedVector<T> {
  using CZEL_OrderedVector<T>::Compare;
};
template <typename T>
struct OpenList : CZEL_OrderedList<T> {
  using CZEL_OrderedList<T>::Compare;
};

TEST(CZEL_Ordered, CompareSignsWidthsAndNan) {
  double const nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(OpenVector<int>::Compare(1, 2) * 100 + OpenVector<int>::Compare(2, 1) * 10 +
                OpenList<int>::Compare(3, 3),
            -90);
  EXPECT_EQ(OpenVector<ZEL::u64>::Compare(0xFFFFFFFFFFFFFFFFull, 1), 1);
  EXPECT_EQ(OpenList<ZEL::i64>::Compare(-1, 1), -1);
  EXPECT_EQ(OpenList<signed char>::Compare(-128, 127), -1);
  EXPECT_EQ(OpenVector<double>::Compare(nan, 1.0), 0);
  EXPECT_EQ(OpenList<float>::Compare(1.0f, float(nan)), 0);
}

TEST(CZEL_Ordered, FirstOfEqualExtremesIsTheItemItself) {
  CZEL_OrderedVector<int> v(Ints("3 1 1 3").data(), 4);
  v.Min() = 0;
  v.Max() = 9;
  EXPECT_EQ(Text(v), "9 0 1 3");
  CZEL_OrderedList<int> list(Ints("3 1 1 3").data(), 4);
  list.ToEnd();
  list.Min() = 0;
  list.Max() = 9;
  EXPECT_EQ(Text(list), "9 0 1 [3]");  // the cursor does not move
  CZEL_OrderedVector<int>().Min();     // no throw; the reference is not to be used
  CZEL_OrderedList<int>().Max();
  double nanFirst[] = {std::numeric_limits<double>::quiet_NaN(), -1, 5};
  CZEL_OrderedVector<double> d(nanFirst, 3);
  EXPECT_EQ(&d.Min(), d.GetBuf());
  EXPECT_EQ(&d.Max(), d.GetBuf());
}

TEST(CZEL_Ordered, ListSortsBothWaysVectorSortIsTheVectorsSort) {
  CZEL_OrderedList<int> list(Ints("3 1 2").data(), 3);
  EXPECT_EQ(Text(list.Sort(1)), "1 2 [3]");  // the cursor stays on its node
  EXPECT_EQ(Text(list.Sort(0)), "[3] 2 1");
  ZEL::u64 big[] = {1, 0xFFFFFFFFFFFFFFFFull, 0};
  EXPECT_EQ(Text(Lv(CZEL_Uint64List(big, 3)).Sort(1)), "0 [1] 18446744073709551615");
  CZEL_OrderedVector<int> empty;
  EXPECT_ZEL_THROW(empty.Sort(1), ZEL_ERR_INVALID_ARGUMENT, &empty);
  EXPECT_EQ(CZEL_Int32Vector(1u, 4).Sort(1)[0], 4);
}

template <typename Named, typename Base>
constexpr bool DerivesFrom() {
  return std::is_base_of<Base, Named>::value && std::has_virtual_destructor<Named>::value &&
         sizeof(Named) == sizeof(Base);
}
static_assert(DerivesFrom<CZEL_Int8List, CZEL_OrderedList<signed char>>(), "");
static_assert(DerivesFrom<CZEL_Uint8Vector, CZEL_OrderedVector<ZEL::u8>>(), "");
static_assert(DerivesFrom<CZEL_DoubleList, CZEL_OrderedList<double>>(), "");
static_assert(DerivesFrom<CZEL_StringList, CZEL_List<CZEL_String>>(), "");
static_assert(DerivesFrom<CZEL_StringVector, CZEL_Vector<CZEL_String>>(), "");
static_assert(!std::is_convertible<ZEL::u32, CZEL_Int32Vector>::value, "");

TEST(CZEL_NamedContainers, CountsOfZeroAndAssignmentBothWays) {
  alignas(CZEL_Int32Vector) unsigned char storage[sizeof(CZEL_Int32Vector)];
  EXPECT_ZEL_THROW(new (storage) CZEL_Int32Vector(0u), ZEL_ERR_EMPTY_INPUT, storage);
  EXPECT_EQ(CZEL_Int32List(0u, 5).GetLength(), 0u);
  CZEL_Int32Vector v(Ints("4 5 6").data(), 3), back, none;
  CZEL_Int32List list, empty, fromPlain;
  list = v;
  list.ToPos(1);
  back = list;  // from the head; the list's cursor ends on its tail
  EXPECT_EQ(list.IsEnd(), 1);
  EXPECT_TRUE(back == v);
  CZEL_Int32List copy(list);
  copy = empty;  // an empty list source changes nothing
  EXPECT_EQ(copy.GetLength(), 3u);
  (copy = none) = list;
  EXPECT_EQ(Text(copy), "[4] 5 6");
  fromPlain = static_cast<CZEL_Vector<int>&>(v);
  EXPECT_TRUE(fromPlain == list);
}

TEST(CZEL_NamedContainers, DoubleRmsAndEmptyStringSort) {
  double raw[] = {3, 4};
  EXPECT_DOUBLE_EQ(CZEL_DoubleVector(raw, 2).GetRMS(), std::sqrt(12.5));
  EXPECT_DOUBLE_EQ(CZEL_DoubleVector(1u, -5.0).GetRMS(), 5.0);
  EXPECT_TRUE(std::isnan(CZEL_DoubleVector().GetRMS()));
  CZEL_StringVector empty;  // the string list's Sort: see CZEL_ContainerMovesTest.cpp
  EXPECT_ZEL_THROW(empty.Sort(1, 1), ZEL_ERR_INVALID_ARGUMENT, &empty);
}

// The byte vector's typed fields ------------------------------------------------

using Bytes = std::vector<ZEL::u8>;
using B = CZEL_Uint8Vector;
using Order = ZEL::t_ByteOrdering;

constexpr Order kLittle = ZEL::ZEL_LITTLE_ENDIAN;
constexpr Order kBig = ZEL::ZEL_BIG_ENDIAN;

// A getter (the const one) and a setter (of the value 1) for the field `Type`.
// clang-format off
#define FIELD(Type, width)                                                                    \
  {#Type, width, [](B const& v, ZEL::u32 p, Order o) { return double(v.Get##Type(p, o)); }, \
   [](B& v, ZEL::u32 p, Order o) { v.Set##Type(1, p, o); }}
// clang-format on

TEST(CZEL_Uint8Vector, EveryFieldMustFitTheLengthInBothOrders) {
  struct Field {
    char const* name;
    ZEL::u32 width;
    double (*get)(B const&, ZEL::u32, Order);
    void (*set)(B&, ZEL::u32, Order);
  };
  Field const fields[] = {FIELD(Int16, 2), FIELD(Uint16, 2), FIELD(Int32, 4), FIELD(Uint32, 4),
                          FIELD(Int64, 8), FIELD(Uint64, 8), FIELD(Float, 4), FIELD(Double, 8)};
  for (Field const& f : fields) {
    for (Order order : {kLittle, kBig}) {
      SCOPED_TRACE(std::string(f.name) + (order == kLittle ? " little-endian" : " big-endian"));
      B v(9u, 0), empty;
      f.set(v, 9 - f.width, order);  // the field that ends at the last byte
      EXPECT_EQ(f.get(v, 9 - f.width, order), 1.0);
      Bytes const before = Items(v);
      EXPECT_ZEL_THROW(f.get(v, 10 - f.width, order), ZEL_ERR_INVALID_ARGUMENT, &v);
      EXPECT_ZEL_THROW(f.set(v, 10 - f.width, order), ZEL_ERR_INVALID_ARGUMENT, &v);
      EXPECT_EQ(Items(v), before);
      EXPECT_ZEL_THROW(f.get(empty, 0, order), ZEL_ERR_INVALID_ARGUMENT, &empty);
      EXPECT_ZEL_THROW(f.set(empty, 0, order), ZEL_ERR_INVALID_ARGUMENT, &empty);
    }
  }
  B v(4u, 9);
  EXPECT_ZEL_THROW(v[4], ZEL_ERR_BAD_POSITION, &v);  // the base's code for the same slip
  // A wrapped offset passes the range test but touches nothing.
  EXPECT_EQ(v.GetUint16(0xFFFFFFFFu, kLittle), 0u);  // 0xFFFFFFFF + 2 wraps to 1
  v.SetUint32(7, 0xFFFFFFFEu, kLittle);
  EXPECT_EQ(Items(v), (Bytes{9, 9, 9, 9}));
}

TEST(CZEL_Uint8Vector, FieldBytesInBothOrders) {
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

TEST(CZEL_Uint8Vector, ByteListAndListsOfBlocks) {
  ZEL::u8 raw[] = {3, 1, 2};
  B v(raw, 3), back(1u, 0);
  CZEL_Uint8List list;
  list = v;
  back = static_cast<CZEL_List<ZEL::u8>&>(list);
  EXPECT_EQ(Items(back), (Bytes{3, 1, 2}));
  CZEL_List<B> blocks(&back, 1), copy(blocks);  // a deep copy
  blocks.ToStart().SetUint16(0xFFFF, 0, kLittle);
  EXPECT_TRUE(blocks != copy && copy.ToStart() == back);
}

}  // namespace
