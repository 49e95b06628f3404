#include "ContainerTestSupport.h"

#include <cmath>
#include <limits>
#include <type_traits>
#include <vector>

namespace {

using IntList = std::vector<int>;
using zel_test::Forward;
using zel_test::Items;

// Opens the protected comparator to the tests.
template <typename T>
struct OpenVector : CZEL_OrderedVector<T> {
  using CZEL_OrderedVector<T>::Compare;
};
template <typename T>
struct OpenList : CZEL_OrderedList<T> {
  using CZEL_OrderedList<T>::Compare;
};

TEST(CZEL_OrderedCompare, SignsAndWidths) {
  EXPECT_EQ(OpenVector<int>::Compare(1, 2), -1);
  EXPECT_EQ(OpenVector<int>::Compare(2, 1), 1);
  EXPECT_EQ(OpenVector<int>::Compare(2, 2), 0);
  EXPECT_EQ(OpenVector<ZEL::u64>::Compare(0xFFFFFFFFFFFFFFFFull, 1), 1);
  EXPECT_EQ(OpenList<ZEL::i64>::Compare(-1, 1), -1);
  EXPECT_EQ(OpenList<signed char>::Compare(-128, 127), -1);
  double const nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(OpenVector<double>::Compare(nan, 1.0), 0);
  EXPECT_EQ(OpenList<float>::Compare(1.0f, std::numeric_limits<float>::quiet_NaN()), 0);
}

TEST(CZEL_OrderedExtremes, FirstOfEqualExtremesIsTheItemItself) {
  int raw[] = {3, 1, 1, 2};
  CZEL_OrderedVector<int> v(raw, 4);
  v.Min() = 0;
  EXPECT_EQ(Items(v), (IntList{3, 0, 1, 2}));
  v.Max() = 9;
  EXPECT_EQ(Items(v), (IntList{9, 0, 1, 2}));
  CZEL_OrderedList<int> list(raw, 4);
  list.ToEnd();
  list.Min() = 0;
  EXPECT_EQ(list.CurItem(), 2);  // the cursor does not move
  EXPECT_EQ(Forward(list), (IntList{3, 0, 1, 2}));
  CZEL_OrderedList<int> one(1u, 5);
  EXPECT_EQ(&one.Max(), &one.CurItem());
  CZEL_OrderedVector<int> empty;
  CZEL_OrderedList<int> none;
  empty.Min();  // no throw; the reference is not to be used
  none.Max();
}

TEST(CZEL_OrderedExtremes, NanInFirstPlaceStays) {
  double raw[] = {std::numeric_limits<double>::quiet_NaN(), -1, 5};
  CZEL_OrderedVector<double> v(raw, 3);
  EXPECT_EQ(&v.Min(), v.GetBuf());
  EXPECT_EQ(&v.Max(), v.GetBuf());
}

TEST(CZEL_OrderedSort, ListSortsBothWays) {
  int raw[] = {3, 1, 2};
  CZEL_OrderedList<int> list(raw, 3);
  EXPECT_EQ(Forward(list.Sort(1)), (IntList{1, 2, 3}));
  EXPECT_EQ(Forward(list.Sort(0)), (IntList{3, 2, 1}));
  CZEL_Uint64List big;
  big += 1;
  big += 0xFFFFFFFFFFFFFFFFull;
  big += 0;
  big.Sort(1);
  big.ToStart();
  EXPECT_EQ(big >> 1, 0u);
  EXPECT_EQ(big >> 1, 1u);
  EXPECT_EQ(big >> 1, 0xFFFFFFFFFFFFFFFFull);
}

TEST(CZEL_OrderedSort, VectorSortIsTheVectorsSort) {
  CZEL_OrderedVector<int> empty;
  EXPECT_ZEL_THROW(empty.Sort(1), ZEL_ERR_INVALID_ARGUMENT, &empty);
  CZEL_Int32Vector one(1u, 4);
  EXPECT_EQ(one.Sort(1)[0], 4);
}

// Named classes ------------------------------------------------------------------

template <typename Named, typename Base>
constexpr bool DerivesFrom() {
  return std::is_base_of<Base, Named>::value && std::has_virtual_destructor<Named>::value &&
         sizeof(Named) == sizeof(Base);
}

TEST(CZEL_NamedContainers, BasesAndNoData) {
  static_assert(DerivesFrom<CZEL_Int8List, CZEL_OrderedList<signed char>>(), "");
  static_assert(DerivesFrom<CZEL_Uint8Vector, CZEL_OrderedVector<ZEL::u8>>(), "");
  static_assert(DerivesFrom<CZEL_Int16Vector, CZEL_OrderedVector<short>>(), "");
  static_assert(DerivesFrom<CZEL_Uint16List, CZEL_OrderedList<ZEL::u16>>(), "");
  static_assert(DerivesFrom<CZEL_Uint32Vector, CZEL_OrderedVector<ZEL::u32>>(), "");
  static_assert(DerivesFrom<CZEL_Int64List, CZEL_OrderedList<ZEL::i64>>(), "");
  static_assert(DerivesFrom<CZEL_FloatVector, CZEL_OrderedVector<float>>(), "");
  static_assert(DerivesFrom<CZEL_DoubleList, CZEL_OrderedList<double>>(), "");
  static_assert(DerivesFrom<CZEL_StringList, CZEL_List<CZEL_String>>(), "");
  static_assert(DerivesFrom<CZEL_StringVector, CZEL_Vector<CZEL_String>>(), "");
  static_assert(!std::is_convertible<ZEL::u32, CZEL_Int32Vector>::value, "");
  SUCCEED();
}

TEST(CZEL_NamedContainers, CountsOfZero) {
  std::aligned_storage<sizeof(CZEL_Int32Vector), alignof(CZEL_Int32Vector)>::type storage;
  EXPECT_ZEL_THROW(new (&storage) CZEL_Int32Vector(0u), ZEL_ERR_EMPTY_INPUT, &storage);
  CZEL_Int32List empty(0u, 5);
  EXPECT_EQ(empty.GetLength(), 0u);
}

TEST(CZEL_NamedContainers, ListAndVectorRoundTrip) {
  int raw[] = {4, 5, 6};
  CZEL_Int32Vector v(raw, 3);
  CZEL_Int32List list;
  list = v;
  EXPECT_EQ(list.IsEnd(), 1);
  CZEL_Int32Vector back;
  list.ToStart();
  back = list;
  EXPECT_EQ(list.IsEnd(), 1);
  EXPECT_TRUE(back == v);
  CZEL_Int32List copy(list);
  CZEL_Int32List empty;
  copy = empty;  // an empty list source changes nothing
  EXPECT_EQ(copy.GetLength(), 3u);
  CZEL_Int32Vector none;
  (copy = none) = list;
  EXPECT_EQ(Forward(copy), (IntList{4, 5, 6}));
  CZEL_Vector<int>& plain = v;
  CZEL_Int32List fromPlain;
  fromPlain = plain;
  EXPECT_TRUE(fromPlain == list);
}

TEST(CZEL_NamedContainers, DoubleRms) {
  double raw[] = {3, 4};
  EXPECT_DOUBLE_EQ(CZEL_DoubleVector(raw, 2).GetRMS(), std::sqrt(12.5));
  EXPECT_DOUBLE_EQ(CZEL_DoubleVector(1u, -5.0).GetRMS(), 5.0);
  EXPECT_TRUE(std::isnan(CZEL_DoubleVector().GetRMS()));
}

TEST(CZEL_NamedContainers, StringSortByCase) {
  CZEL_StringList list;
  list += "b";
  list += "A";
  list += "c";
  list.Sort(1, 0);
  list.ToStart();
  EXPECT_STREQ((list >> 1).GetStringC(), "A");
  EXPECT_STREQ((list >> 1).GetStringC(), "b");
  EXPECT_STREQ((list >> 1).GetStringC(), "c");
  list += "B";
  list.Sort(1, 1);  // case-sensitive: capitals first
  list.ToStart();
  EXPECT_STREQ((list >> 1).GetStringC(), "A");
  EXPECT_STREQ((list >> 1).GetStringC(), "B");
  EXPECT_STREQ((list >> 1).GetStringC(), "b");
  CZEL_StringVector empty;
  EXPECT_ZEL_THROW(empty.Sort(1, 1), ZEL_ERR_INVALID_ARGUMENT, &empty);
}

}  // namespace
