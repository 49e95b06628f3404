#include "ContainerTestSupport.h"

#include <cmath>
#include <limits>
#include <new>
#include <string>
#include <type_traits>
#include <vector>

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

TEST(CZEL_OrderedCompare, SignsAndWidths) {
  EXPECT_EQ(OpenVector<int>::Compare(1, 2), -1);
  EXPECT_EQ(OpenVector<int>::Compare(2, 1), 1);
  EXPECT_EQ(OpenVector<int>::Compare(2, 2), 0);
  EXPECT_EQ(OpenVector<ZEL::u64>::Compare(0xFFFFFFFFFFFFFFFFull, 1), 1);
  EXPECT_EQ(OpenList<ZEL::i64>::Compare(-1, 1), -1);
  EXPECT_EQ(OpenList<signed char>::Compare(-128, 127), -1);
  EXPECT_EQ(OpenList<int>::Compare(3, 3), 0);
  double const nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(OpenVector<double>::Compare(nan, 1.0), 0);
  EXPECT_EQ(OpenList<float>::Compare(1.0f, std::numeric_limits<float>::quiet_NaN()), 0);
}

TEST(CZEL_OrderedExtremes, FirstOfEqualExtremesIsTheItemItself) {
  int raw[] = {3, 1, 1, 3};
  CZEL_OrderedVector<int> v(raw, 4);
  v.Min() = 0;
  v.Max() = 9;
  EXPECT_EQ(Items(v), (IntList{9, 0, 1, 3}));
  CZEL_OrderedList<int> list(raw, 4);
  list.ToEnd();
  list.Min() = 0;
  list.Max() = 9;
  EXPECT_EQ(Show(list), "9 0 1 [3]");  // the cursor does not move
  CZEL_OrderedVector<int>().Min();     // no throw; the reference is not to be used
  CZEL_OrderedList<int>().Max();
  double nanFirst[] = {std::numeric_limits<double>::quiet_NaN(), -1, 5};
  CZEL_OrderedVector<double> d(nanFirst, 3);
  EXPECT_EQ(&d.Min(), d.GetBuf());
  EXPECT_EQ(&d.Max(), d.GetBuf());
}

TEST(CZEL_OrderedSort, ListSortsBothWaysVectorSortIsTheVectorsSort) {
  int raw[] = {3, 1, 2};
  CZEL_OrderedList<int> list(raw, 3);
  EXPECT_EQ(Show(list.Sort(1)), "1 2 [3]");  // the cursor stays on its node
  EXPECT_EQ(Show(list.Sort(0)), "[3] 2 1");
  ZEL::u64 big[] = {1, 0xFFFFFFFFFFFFFFFFull, 0};
  EXPECT_EQ(Show(Lv(CZEL_Uint64List(big, 3)).Sort(1)), "0 [1] 18446744073709551615");
  CZEL_OrderedVector<int> empty;
  EXPECT_ZEL_THROW(empty.Sort(1), ZEL_ERR_INVALID_ARGUMENT, &empty);
  EXPECT_EQ(CZEL_Int32Vector(1u, 4).Sort(1)[0], 4);
}

// Named classes ------------------------------------------------------------------

template <typename Named, typename Base>
constexpr bool DerivesFrom() {
  return std::is_base_of<Base, Named>::value && std::has_virtual_destructor<Named>::value &&
         sizeof(Named) == sizeof(Base);
}
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

TEST(CZEL_NamedContainers, CountsOfZero) {
  alignas(CZEL_Int32Vector) unsigned char storage[sizeof(CZEL_Int32Vector)];
  EXPECT_ZEL_THROW(new (storage) CZEL_Int32Vector(0u), ZEL_ERR_EMPTY_INPUT, storage);
  CZEL_Int32List empty(0u, 5);
  EXPECT_EQ(empty.GetLength(), 0u);
}

TEST(CZEL_NamedContainers, ListAndVectorAssignBothWays) {
  int raw[] = {4, 5, 6};
  CZEL_Int32Vector v(raw, 3), back, none;
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
  EXPECT_EQ(Show(copy), "[4] 5 6");
  fromPlain = static_cast<CZEL_Vector<int>&>(v);
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
  auto text = [&list] {
    std::string out;
    list.ToStart();
    for (ZEL::u32 i = 0; i < list.GetLength(); ++i) out += (list >> 1).GetStringC();
    return out;
  };
  for (char const* s : {"b", "A", "c", "B"}) list += s;
  list.Sort(1, 0);  // equal but for case: in their order
  EXPECT_EQ(text(), "AbBc");
  list.Sort(1, 1);  // case-sensitive: capitals first
  EXPECT_EQ(text(), "ABbc");
  CZEL_StringVector empty;
  EXPECT_ZEL_THROW(empty.Sort(1, 1), ZEL_ERR_INVALID_ARGUMENT, &empty);
}

}  // namespace
