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

// All items of a vector.
template <typename T>
std::vector<T> Items(CZEL_Vector<T> const& v) {
  return std::vector<T>(v.GetBuf(), v.GetBuf() + v.GetLength());
}

// The items along the forward links from the head, the cursor's node in
// brackets: "1 [2] 3". Leaves the cursor on the last node reached.
template <typename T>
std::string Show(CZEL_List<T>& list) {
  void* const cursor = list.CurItemRef();
  std::ostringstream out;
  if (list.GetLength() == 0) return out.str();
  for (list.ToStart(); list.CurItemRef() != nullptr; list.Next(1)) {
    if (list.CurItemRef() == cursor) {
      out << '[' << list.CurItem() << ']';
    } else {
      out << list.CurItem();
    }
    if (list.ItemsToEnd() == 0) break;
    out << ' ';
  }
  return out.str();
}

// A list from its text: "1 [2] 3" holds 1, 2, 3 with the cursor on 2.
inline L Parse(std::string const& text) {
  L list;
  std::istringstream in(text);
  std::string word;
  ZEL::u32 cursor = 0;
  for (ZEL::u32 n = 0; in >> word; ++n) {
    if (word.front() == '[') {
      cursor = n;
      word = word.substr(1, word.size() - 2);
    }
    list += std::stoi(word);
  }
  if (list.GetLength() != 0) list.ToPos(cursor);
  return list;
}

// A container as text: a vector's items; a list's Show, with a note of its
// length when the forward links reach fewer nodes than it counts, and of its
// cursor counts when they disagree with where the links show the cursor.
template <typename T>
std::string Text(CZEL_Vector<T> const& v) {
  std::ostringstream out;
  for (ZEL::u32 i = 0; i < v.GetLength(); ++i) out << (i ? " " : "") << v.GetBuf()[i];
  return out.str();
}
template <typename T>
std::string Text(CZEL_List<T>& list) {
  ZEL::u32 const from = list.ItemsFromStart(), to = list.ItemsToEnd();
  std::string const shown = Show(list);
  std::istringstream in(shown);
  std::string word;
  ZEL::u32 reached = 0, at = ~0u;
  for (; in >> word; ++reached) at = word.front() == '[' ? reached : at;
  std::ostringstream notes;
  if (reached != list.GetLength()) notes << "; length " << list.GetLength();
  if (reached != 0 && (from != at || to != reached - 1 - at)) notes << "; at " << from << ":" << to;
  if (notes.str().empty()) return shown;
  return shown + (shown.empty() ? "(" : " (") + notes.str().substr(2) + ")";
}

// What an edit of `c` did: the container's text afterwards, preceded by
// "throws <code>; " when it threw (" by another" when the exception names some
// other object, " extra" when its extra value isn't 0).
template <typename C, typename Edit>
std::string Outcome(C& c, Edit const& edit) {
  try {
    edit(c);
    return Text(c);
  } catch (CZEL_Exception const& e) {
    char const* const names[] = {"", "", "INVALID_ARGUMENT", "", "", "BAD_POSITION", "",
                                 "", "", "EMPTY_INPUT"};
    std::string out = "throws ";
    out += e.m_Code < 10 ? names[e.m_Code] : std::to_string(e.m_Code);
    if (e.m_Object != static_cast<void const*>(&c)) out += " by another";
    if (e.m_Extra != 0) out += " extra";
    return out + "; " + Text(c);
  }
}

// A temporary as an lvalue, for sources taken by reference; it lives to the
// end of the full expression.
template <typename T>
T& Lv(T&& temporary) {
  return temporary;
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
