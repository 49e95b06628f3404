// SPDX-License-Identifier: Apache-2.0
// The named containers of the value classes: each sorts with its element's
// comparator (lists both ways, vectors on one item and on none), and each
// list and vector pair hands its items over in both directions as copies.

#include <LZEL_Core/LZEL_Core.h>

#include "ContainerTestSupport.h"

#include <utility>

namespace {

// Lists c, a, b; sorts them both ways with the named Sort, and checks the
// order with the element's own comparator. A one-item vector's Sort
// returns; an empty vector's throws ZEL_ERR_INVALID_ARGUMENT.
template <typename List, typename Vector, typename T>
void CheckSorts(signed char (*cmp)(T const&, T const&), T const& a, T const& b, T const& c) {
  List list;
  list += c;
  list += a;
  list += b;
  list.Sort(1);
  EXPECT_EQ(cmp(list[0], a) * 9 + cmp(list[1], b) * 3 + cmp(list[2], c), 0);
  list.Sort(0);
  EXPECT_EQ(cmp(list[0], c) * 3 + cmp(list[2], a), 0);
  Vector one(1, b), none;
  one.Sort(1);
  EXPECT_EQ(cmp(one[0], b), 0);
  EXPECT_ZEL_THROW(none.Sort(1), ZEL_ERR_INVALID_ARGUMENT, &none);
}

#define SORTS(Name, ...) \
  CheckSorts<CZEL_##Name##List, CZEL_##Name##Vector, CZEL_##Name>(__VA_ARGS__)

TEST(CZEL_ValueContainers, SortWithTheElementsComparator) {
  SORTS(BitSet, &CZEL_BitSet::Compare, CZEL_BitSet(8, 0), CZEL_BitSet(70, 0), CZEL_BitSet(3, 1));
  auto dec = [](char const* text) {
    return CZEL_DecimalNumber(2, text, CZEL_DecimalNumber::DecimalPoint_Dot);
  };
  SORTS(DecimalNumber, &CZEL_DecimalNumber::Compare, dec("-1.50"), dec("0.25"), dec("3"));
  SORTS(Date, &CZEL_Date::SortCompare, CZEL_Date(1999, 12, 31), CZEL_Date(2000, 1, 1),
        CZEL_Date(2024, 2, 29));
  SORTS(Time, &CZEL_Time::SortCompare, CZEL_Time(0, 0, 0, 1), CZEL_Time(12, 0, 0, 0),
        CZEL_Time(23, 59, 59, 999));
}

// A list of a, b handed to a vector and back: the same items, as copies.
// Both then move on, leaving themselves empty.
template <typename List, typename Vector, typename T>
void CheckHandOver(T const& a, T const& b) {
  List list(1u, a), back;
  list += b;
  Vector vector;
  vector = list;
  EXPECT_TRUE(vector.GetLength() == 2 && vector[0] == a && vector[1] == b);
  vector[0] = b;
  EXPECT_TRUE(list[0] == a);  // the vector holds copies
  back = vector;
  EXPECT_TRUE(back.GetLength() == 2 && back[0] == b && back[1] == b);
  Vector moved(std::move(vector));
  List taken(std::move(back));
  EXPECT_TRUE(moved.GetLength() + taken.GetLength() == 4 && !vector + !back == 0);
}

#define HAND_OVER(Name, a, b) CheckHandOver<CZEL_##Name##List, CZEL_##Name##Vector>(a, b)

TEST(CZEL_ValueContainers, ListAndVectorHandOverCopies) {
  HAND_OVER(IpAddress, CZEL_IpAddress(CZEL_String("10.0.0.1")), CZEL_IpAddress(CZEL_String("::1")));
  HAND_OVER(Int32Point, CZEL_Int32Point(1, 2), CZEL_Int32Point(-3, 4));
  HAND_OVER(DoublePoint, CZEL_DoublePoint(0.5, 1), CZEL_DoublePoint(2, -0.25));
  HAND_OVER(Int32Size, CZEL_Int32Size(640, 480), CZEL_Int32Size(1, 1));
  HAND_OVER(Int32Rect, CZEL_Int32Rect(0, 0, 4, 4), CZEL_Int32Rect(4, 4, 0, 0));
  HAND_OVER(DoubleRect, CZEL_DoubleRect(0, 0, 1, 2), CZEL_DoubleRect(-1, -1, 1, 1));
  HAND_OVER(Date, CZEL_Date(2000, 1, 1), CZEL_Date());
  HAND_OVER(String, CZEL_String("alpha"), CZEL_String("beta"));
}

}  // namespace
