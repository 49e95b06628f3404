// SPDX-License-Identifier: Apache-2.0
// Moves, swaps and iteration of the containers, the overloads for literal
// zeros, and the exact size of a grown array.

#include <algorithm>
#include <numeric>
#include <string>
#include <tuple>
#include <utility>

#include "ContainerTestSupport.h"

namespace {

using namespace zel_test;

// Moves `full` into new objects and back (a self-move included) and swaps it
// both ways: every source ends empty, every target equal to `full`.
template <typename C>
void CheckMoves(C const& full) {
  static_assert(std::is_nothrow_move_assignable<C>{} && std::is_nothrow_swappable<C>{}, "");
  C a(full), b(std::move(a)), c, &alias = c;
  (c = std::move(b)) = std::move(alias);
  using std::swap;
  swap(a, c);
  EXPECT_TRUE(b.GetLength() + c.GetLength() == 0 && a == full);
  EXPECT_TRUE(c.Swap(a) == full && a.GetLength() == 0);
}

TEST(CZEL_ContainerMoves, MovedFromIsEmpty) {
  CZEL_StringList words(2u, CZEL_String("w"));
  CZEL_StringVector strings;
  CheckMoves(Vec("1 2 3")), CheckMoves(Parse("1 [2] 3")), CheckMoves(CZEL_Int32Vector(2u, 5));
  CheckMoves(CZEL_DoubleList(2u, 0.5)), CheckMoves(CZEL_Uint8Vector(3u, 7));
  CheckMoves(CZEL_OrderedList<short>(2u, 4)), CheckMoves(words), CheckMoves(strings = words);
  // A list moves with a copy's cursor, on the head; the moved-from cursor is
  // null, and a swap keeps each cursor on its node.
  L list = Parse("1 [2] 3"), moved(std::move(list)), other = Parse("7 [8]");
  swap(moved, other);
  EXPECT_EQ(Text(moved) + "/" + Text(other), "7 [8]/[1] 2 3");
  EXPECT_EQ(list.CurItemRef(), nullptr);
}

// Counts the copies and moves of its assignment; its move may throw or not.
template <bool kNothrow>
struct Counted {
  static inline int copies = 0, moves = 0;
  Counted() = default;
  Counted(Counted const&) = default;
  Counted& operator=(Counted const&) { return ++copies, *this; }
  Counted& operator=(Counted&&) noexcept(kNothrow) { return ++moves, *this; }
};

// Copies * 10 + moves of an append to three items (the new one copied, the
// old ones carried over) and a shrinking delete (shifted by copies, carried).
template <bool kNothrow>
int CopiesAndMoves() {
  CZEL_Vector<Counted<kNothrow>> v(3u);
  v.AppendItem(Counted<kNothrow>());
  v.DeleteItems(0, 1, 1);
  return Counted<kNothrow>::copies * 10 + Counted<kNothrow>::moves;
}

TEST(CZEL_ContainerMoves, ReallocationMovesWhereTheMoveCannotThrow) {
  EXPECT_EQ(CopiesAndMoves<true>(), 46);
  EXPECT_EQ(CopiesAndMoves<false>(), 100);
}

TEST(CZEL_ContainerIteration, RangesAndStandardAlgorithms) {
  V v = Vec("3 1 2"), empty;
  std::sort(v.begin(), v.end());  // terminates, unlike Sort
  EXPECT_EQ(Text(v) + std::to_string(
                          std::accumulate(std::as_const(v).begin(), std::as_const(v).end(), 0)),
            "1 2 36");
  EXPECT_TRUE(empty.begin() == empty.end() && L().begin() == L().end());
  // The const walk goes from the head and leaves the cursor alone.
  L list = Parse("4 5 [6] 7");
  L const& walk = list;
  int sum = 0;
  for (int item : walk) sum += item;
  EXPECT_EQ(sum + *std::find(walk.begin(), walk.end(), 5), 27);
  EXPECT_EQ(Text(list), "4 5 [6] 7");
}

TEST(CZEL_ContainerOverloads, LiteralZerosMeanCountsAndFlags) {
  // The string list's Sort, blind to case or not (equal items keep their
  // order), with flags of any integer type, each cut to a byte.
  for (auto [ascending, matchCase, order] :
       {std::make_tuple(0, 0, "cbBAa"), std::make_tuple(1, 0, "AabBc"),
        std::make_tuple(1, 1, "ABabc"), std::make_tuple(256, 1, "cbaBA")}) {
    CZEL_StringList list;
    for (char const* s : {"b", "A", "c", "B", "a"}) list += s;
    std::string sorted;
    for (CZEL_String const& s : std::as_const(list.Sort(ascending, matchCase))) {
      sorted += s.GetStringC();
    }
    EXPECT_EQ(sorted, order) << ascending << matchCase;
  }
  CZEL_StringVector none;
  EXPECT_ZEL_THROW(none.Sort(0, 0), ZEL_ERR_INVALID_ARGUMENT, &none);
  EXPECT_EQ(CZEL_DoubleList(0, 0).GetLength() + CZEL_List<float>(2, 0).GetLength(), 2u);
  EXPECT_EQ(CZEL_Uint32Vector(2, 0u).GetLength() + CZEL_OrderedList<ZEL::u64>(0, 0).GetLength(),
            2u);
  CZEL_Vector<double> d;
  EXPECT_ZEL_THROW(d.Create(0, 0), ZEL_ERR_EMPTY_INPUT, &d);
}

#ifndef __has_feature
#define __has_feature(feature) 0
#endif

// The first byte past the last item of a vector's array.
#define PAST_END(v) (*reinterpret_cast<unsigned char const volatile*>((v).end()))

TEST(CZEL_ContainerStorage, GrownArrayHoldsExactlyTheLength) {
  CZEL_Int32Vector ints;
  CZEL_StringVector strings;
  for (int i = 0; i < 3; ++i) ints += i, strings += CZEL_String("s");
  ints.InsertItems(1, 9, 2, 1).DeleteItems(0, 1, 1);
  EXPECT_EQ(Text(ints), "9 9 1 2");
#if defined(__SANITIZE_ADDRESS__) || __has_feature(address_sanitizer)
  EXPECT_DEATH(PAST_END(ints), "heap-buffer-overflow");
  EXPECT_DEATH(PAST_END(strings), "heap-buffer-overflow");
#endif
}

}  // namespace
