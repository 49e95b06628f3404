// Helpers shared by the container tests: reading a container's items without
// disturbing what a test checks, and checking a thrown CZEL_Exception.

#ifndef LZEL_TESTS_CONTAINERS_CONTAINER_TEST_SUPPORT_H_
#define LZEL_TESTS_CONTAINERS_CONTAINER_TEST_SUPPORT_H_

#include <LZEL_Core/containers/ZEL_Containers.h>
#include <LZEL_Core/frame/CZEL_Exception.h>

#include <gtest/gtest.h>

#include <vector>

// Runs `statement`, which must throw CZEL_Exception(code, object, 0).
#define EXPECT_ZEL_THROW(statement, code, object)                          \
  do {                                                                     \
    try {                                                                  \
      statement;                                                           \
      ADD_FAILURE() << "no exception from " #statement;                    \
    } catch (CZEL_Exception const& e) {                                    \
      EXPECT_EQ(e.m_Code, ZEL::u32(code)) << #statement;                   \
      EXPECT_EQ(e.m_Object, static_cast<void const*>(object)) << #statement; \
      EXPECT_EQ(e.m_Extra, 0u) << #statement;                              \
    }                                                                      \
  } while (0)

namespace zel_test {

// All items of a vector, every one of them written by the test.
template <typename T>
std::vector<T> Items(CZEL_Vector<T> const& v) {
  return std::vector<T>(v.GetBuf(), v.GetBuf() + v.GetLength());
}

// The first `count` items of a vector (the rest may be unset).
template <typename T>
std::vector<T> Front(CZEL_Vector<T> const& v, ZEL::u32 count) {
  return std::vector<T>(v.GetBuf(), v.GetBuf() + count);
}

// The items along the forward links from the head. Leaves the cursor on the
// last node reached.
template <typename T>
std::vector<T> Forward(CZEL_List<T>& list) {
  std::vector<T> out;
  if (list.GetLength() == 0) return out;
  list.ToStart();
  for (;;) {
    out.push_back(list.CurItem());
    if (list.ItemsToEnd() == 0) break;
    list.Next(1);
  }
  return out;
}

// A list of ints built by appending; the cursor ends on the tail.
inline void Fill(CZEL_List<int>& list, std::vector<int> const& items) {
  for (int item : items) list += item;
}

// The list's cursor item, or -1 for no cursor.
inline int Cursor(CZEL_List<int>& list) {
  return list.CurItemRef() == nullptr ? -1 : list.CurItem();
}

// An element with a sort key and an identity, to see the order of equal keys.
struct Keyed {
  int key = 0;
  int tag = 0;
  bool operator==(Keyed const& o) const { return key == o.key && tag == o.tag; }
  bool operator!=(Keyed const& o) const { return !(*this == o); }
};

inline signed char ByKey(Keyed const& a, Keyed const& b) {
  return a.key > b.key ? 1 : a.key < b.key ? -1 : 0;
}

}  // namespace zel_test

#endif  // LZEL_TESTS_CONTAINERS_CONTAINER_TEST_SUPPORT_H_
