// Helpers shared by the container tests: building containers of ints, reading
// their items without disturbing what a test checks, and checking a thrown
// CZEL_Exception.

#ifndef LZEL_TESTS_CONTAINERS_CONTAINER_TEST_SUPPORT_H_
#define LZEL_TESTS_CONTAINERS_CONTAINER_TEST_SUPPORT_H_

#include <LZEL_Core/containers/ZEL_Containers.h>
#include <LZEL_Core/frame/CZEL_Exception.h>

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

// Runs `statement`, which must throw CZEL_Exception(code, object, 0).
#define EXPECT_ZEL_THROW(statement, code, object)                            \
  do {                                                                       \
    try {                                                                    \
      statement;                                                             \
      ADD_FAILURE() << "no exception from " #statement;                      \
    } catch (CZEL_Exception const& e) {                                      \
      EXPECT_EQ(e.m_Code, ZEL::u32(code)) << #statement;                     \
      EXPECT_EQ(e.m_Object, static_cast<void const*>(object)) << #statement; \
      EXPECT_EQ(e.m_Extra, 0u) << #statement;                                \
    }                                                                        \
  } while (0)

namespace zel_test {

using IntList = std::vector<int>;
using V = CZEL_Vector<int>;
using L = CZEL_List<int>;

inline V MakeVector(IntList items) {
  V v;
  if (!items.empty()) v.Create(items.data(), ZEL::u32(items.size()));
  return v;
}

// A list of the items built by appending, with the cursor on position `cursor`.
inline L MakeList(IntList const& items, ZEL::u32 cursor = 0) {
  L list;
  for (int item : items) list += item;
  if (!items.empty()) list.ToPos(cursor);
  return list;
}

// The first `count` items of a vector (the rest may be unset), or all of them.
template <typename T>
std::vector<T> Front(CZEL_Vector<T> const& v, ZEL::u32 count) {
  return std::vector<T>(v.GetBuf(), v.GetBuf() + count);
}
template <typename T>
std::vector<T> Items(CZEL_Vector<T> const& v) {
  return Front(v, v.GetLength());
}

// The items along the forward links from the head, the cursor's node in
// brackets: "1 [2] 3". Leaves the cursor on the last node reached.
template <typename T>
std::string Show(CZEL_List<T>& list) {
  void* const cursor = list.CurItemRef();
  std::ostringstream out;
  if (list.GetLength() == 0) return out.str();
  for (list.ToStart();; list.Next(1)) {
    if (list.CurItemRef() == cursor) {
      out << '[' << list.CurItem() << ']';
    } else {
      out << list.CurItem();
    }
    if (list.ItemsToEnd() == 0) return out.str();
    out << ' ';
  }
}

// The list's cursor item, or -1 for no cursor.
inline int Cursor(L& list) { return list.CurItemRef() == nullptr ? -1 : list.CurItem(); }

// The order of ints: 1 if a is greater, -1 if less, else 0.
inline signed char ByValue(int const& a, int const& b) { return a > b ? 1 : a < b ? -1 : 0; }

// An element with a sort key and an identity, to see the order of equal keys.
struct Keyed {
  int key = 0;
  int tag = 0;
  bool operator==(Keyed const& o) const { return key == o.key && tag == o.tag; }
  bool operator!=(Keyed const& o) const { return !(*this == o); }
};
inline std::ostream& operator<<(std::ostream& out, Keyed const& k) {
  return out << k.key << ':' << k.tag;
}
inline signed char ByKey(Keyed const& a, Keyed const& b) { return ByValue(a.key, b.key); }

}  // namespace zel_test

#endif  // LZEL_TESTS_CONTAINERS_CONTAINER_TEST_SUPPORT_H_
