// SPDX-License-Identifier: Apache-2.0
// Helpers shared by the container tests: containers of ints built from text,
// their text after an edit, the table runner, and checking a thrown
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

// The ints of a text such as "1 [2] 3"; `cursor` gets the bracketed one's index.
inline IntList Ints(std::string const& text, ZEL::u32* cursor = nullptr) {
  IntList out;
  std::istringstream in(text);
  for (std::string word; in >> word; out.push_back(std::stoi(word.substr(word[0] == '[')))) {
    if (word[0] == '[' && cursor != nullptr) *cursor = ZEL::u32(out.size());
  }
  return out;
}

// A vector of the ints of `text`.
inline V Vec(std::string const& text) {
  IntList items = Ints(text);
  V v;
  if (!items.empty()) v.Create(items.data(), ZEL::u32(items.size()));
  return v;
}

// A list from its text: "1 [2] 3" holds 1, 2, 3 with the cursor on 2.
inline L Parse(std::string const& text) {
  ZEL::u32 cursor = 0;
  L list;
  for (int item : Ints(text, &cursor)) list += item;
  if (list.GetLength() != 0) list.ToPos(cursor);
  return list;
}

// All items of a vector.
template <typename T>
std::vector<T> Items(CZEL_Vector<T> const& v) {
  return std::vector<T>(v.GetBuf(), v.GetBuf() + v.GetLength());
}

// A vector's items as text.
template <typename T>
std::string Text(CZEL_Vector<T> const& v) {
  std::ostringstream out;
  for (ZEL::u32 i = 0; i < v.GetLength(); ++i) out << (i ? " " : "") << v.GetBuf()[i];
  return out.str();
}

// The items along a list's forward links from the head, the cursor's node in
// brackets: "1 [2] 3", with a note of the length when the links reach fewer
// nodes than it counts, and of the cursor counts when they disagree with where
// the links show the cursor. Leaves the cursor on the last node reached.
template <typename T>
std::string Text(CZEL_List<T>& list) {
  ZEL::u32 const from = list.ItemsFromStart(), to = list.ItemsToEnd();
  void* const cursor = list.CurItemRef();
  std::ostringstream out, notes;
  ZEL::u32 reached = 0, at = ~0u;
  for (list.ToStart(); list.GetLength() != 0 && list.CurItemRef() != nullptr; list.Next(1)) {
    bool const here = list.CurItemRef() == cursor;
    at = here ? reached : at;
    out << (reached++ ? " " : "") << (here ? "[" : "") << list.CurItem() << (here ? "]" : "");
    if (list.ItemsToEnd() == 0) break;
  }
  if (reached != list.GetLength()) notes << "; length " << list.GetLength();
  if (reached != 0 && (from != at || to != reached - 1 - at)) notes << "; at " << from << ":" << to;
  std::string const shown = out.str();
  if (notes.str().empty()) return shown;
  return shown + (shown.empty() ? "(" : " (") + notes.str().substr(2) + ")";
}

// What an edit of `c` did: the container's text afterwards, preceded by
// "<code>; " when it threw (" by another" when the exception names some
// other object, " extra" when its extra value isn't 0).
template <typename C, typename Edit>
std::string Outcome(C& c, Edit const& edit) {
  try {
    edit(c);
    return Text(c);
  } catch (CZEL_Exception const& e) {
    char const* const names[] = {"", "", "INVALID_ARGUMENT", "", "", "BAD_POSITION", "",
                                 "", "", "EMPTY_INPUT"};
    std::string out = e.m_Code < 10 ? names[e.m_Code] : std::to_string(e.m_Code);
    if (e.m_Object != static_cast<void const*>(&c)) out += " by another";
    if (e.m_Extra != 0) out += " extra";
    return out + "; " + Text(c);
  }
}

// One edit of a vector or list of ints: its text before (see Vec and Parse),
// the edit, and Outcome's text after.
template <typename C>
struct Row {
  char const* before;
  void (*edit)(C&);
  char const* after;
};

inline V Build(V*, char const* text) { return Vec(text); }
inline L Build(L*, char const* text) { return Parse(text); }

template <typename C>
void Check(std::vector<Row<C>> const& rows) {
  for (Row<C> const& r : rows) {
    SCOPED_TRACE(r.before);
    C c = Build(static_cast<C*>(nullptr), r.before);
    EXPECT_EQ(Outcome(c, r.edit), r.after);
  }
}

// A temporary as an lvalue, for sources taken by reference; it lives to the
// end of the full expression.
template <typename T>
T& Lv(T&& temporary) {
  return temporary;
}

// The order of ints by their last two digits, so that 1, 101 and 201 are
// equal and show whether a sort keeps equal items in their order.
inline signed char ByKey(int const& a, int const& b) {
  return a % 100 > b % 100 ? 1 : a % 100 < b % 100 ? -1 : 0;
}

}  // namespace zel_test

#endif  // LZEL_TESTS_CONTAINERS_CONTAINER_TEST_SUPPORT_H_
