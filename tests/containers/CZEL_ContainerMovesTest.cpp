// Moves, swaps and iteration of the containers, the overloads for literal
// zeros, the byte vector's const getters, and the exact size of a grown array.

#include <algorithm>
#include <iterator>
#include <numeric>
#include <string>
#include <type_traits>
#include <utility>

#include "ContainerTestSupport.h"

namespace {

using namespace zel_test;

// Moves `full` (holding items) into new objects and back, and swaps it with
// an empty one: every source ends empty, every target equal to the original.
template <typename C>
void CheckMoves(C const& full) {
  static_assert(std::is_nothrow_move_constructible<C>::value, "");
  static_assert(std::is_nothrow_move_assignable<C>::value, "");
  static_assert(std::is_nothrow_swappable<C>::value, "");
  C a(full), b(std::move(a)), c;
  C& alias = c;
  c = std::move(b);
  c = std::move(alias);  // a self-move changes nothing
  EXPECT_TRUE(a.GetLength() == 0 && b.GetLength() == 0 && c == full);
  using std::swap;
  swap(a, c);
  EXPECT_TRUE(c.GetLength() == 0 && a == full);
  c.Swap(a);
  EXPECT_TRUE(a.GetLength() == 0 && c == full);
}

TEST(CZEL_ContainerMoves, MovedFromIsEmpty) {
  CheckMoves(Vec("1 2 3"));
  CheckMoves(Parse("1 [2] 3"));
  CheckMoves(CZEL_Int32Vector(2u, 5));
  CheckMoves(CZEL_DoubleList(2u, 0.5));
  CheckMoves(CZEL_Uint8Vector(3u, 7));
  CheckMoves(CZEL_OrderedList<short>(2u, 4));
  CZEL_StringList words(2u, CZEL_String("w"));
  CheckMoves(words);
  CZEL_StringVector strings;
  strings = words;
  CheckMoves(strings);
  // A vector of equal length keeps its array, as for a copy; else takes src's.
  V v = Vec("1 2"), same = Vec("3 4"), longer = Vec("5 6 7");
  int* const buf = v.GetBuf();
  int* const other = longer.GetBuf();
  EXPECT_EQ((v = std::move(same)).GetBuf(), buf);
  EXPECT_EQ((v = std::move(longer)).GetBuf(), other);
  EXPECT_TRUE(same.GetBuf() == nullptr && Text(v) == "5 6 7");
  // A list moves with a copy's results: cursor on the head, an empty source
  // changes nothing; the moved-from cursor is null; a swap keeps cursors.
  L list = Parse("1 [2] 3"), empty, moved(std::move(list));
  EXPECT_EQ(Text(moved = std::move(empty)), "[1] 2 3");
  EXPECT_EQ(list.CurItemRef(), nullptr);
  list = Parse("7 [8]");
  list.ToEnd();
  moved.ToPos(1);
  swap(list, moved);
  EXPECT_EQ(Text(list) + "/" + Text(moved), "1 [2] 3/7 [8]");
}

// A class item that counts the copies and moves of its assignment.
template <bool kNothrowMove>
struct Counted {
  static int copies, moves;
  Counted() = default;
  Counted(Counted const&) = default;
  Counted& operator=(Counted const&) { return ++copies, *this; }
  Counted& operator=(Counted&&) noexcept(kNothrowMove) { return ++moves, *this; }
  bool operator==(Counted const&) const { return true; }
  bool operator!=(Counted const&) const { return false; }
};
template <bool kNothrowMove>
int Counted<kNothrowMove>::copies = 0;
template <bool kNothrowMove>
int Counted<kNothrowMove>::moves = 0;

TEST(CZEL_ContainerMoves, ReallocationMovesWhereTheMoveCannotThrow) {
  using Moving = Counted<true>;
  using Copying = Counted<false>;
  CZEL_Vector<Moving> m(3u);
  CZEL_Vector<Copying> c(3u);
  Moving::copies = Moving::moves = Copying::copies = Copying::moves = 0;
  m.AppendItem(Moving());  // the new item is copied, the old ones moved
  c.AppendItem(Copying());
  m.DeleteItems(0, 1, 1);  // three items shifted by copies, then 3 moved over
  EXPECT_EQ(Moving::copies * 10 + Moving::moves, 46);
  EXPECT_EQ(Copying::copies * 10 + Copying::moves, 40);
}

TEST(CZEL_ContainerIteration, RangesAndStandardAlgorithms) {
  V v = Vec("3 1 2"), empty;
  std::sort(v.begin(), v.end());  // terminates, unlike Sort
  EXPECT_EQ(Text(v), "1 2 3");
  V const& cv = v;
  EXPECT_EQ(std::accumulate(cv.begin(), cv.end(), 0), 6);
  EXPECT_EQ(empty.begin(), empty.end());
  CZEL_StringVector strings(2u, CZEL_String("b"));
  strings[1] = "a";
  std::sort(strings.begin(), strings.end(), [](CZEL_String const& a, CZEL_String const& b) {
    return CZEL_String::CompareMatchingCase(a, b) < 0;
  });
  EXPECT_STREQ(strings[0].GetStringC(), "a");
  // The const walk goes from the head and leaves the cursor alone.
  L list = Parse("4 5 [6] 7");
  void* const cursor = list.CurItemRef();
  L const& cl = list;
  int sum = 0;
  for (int item : cl) sum += item;
  EXPECT_EQ(sum, 22);
  EXPECT_EQ(*std::find(cl.begin(), cl.end(), 5), 5);
  EXPECT_EQ(std::find(cl.begin(), cl.end(), 9), cl.end());
  EXPECT_EQ(std::distance(cl.begin(), cl.end()), 4);
  EXPECT_EQ(list.CurItemRef(), cursor);
  EXPECT_TRUE(L().begin() == L().end());
}

TEST(CZEL_ContainerOverloads, LiteralZerosMeanCountsAndFlags) {
  // Sort(ascending, matchCase) with other integers, each cut to a byte.
  struct {
    int ascending, matchCase;
    char const* order;
  } const rows[] = {{0, 0, "cBbA"}, {1, 0, "ABbc"}, {0, 1, "cbBA"}, {256, 1, "cbBA"}};
  for (auto const& r : rows) {
    CZEL_StringList list;
    for (char const* s : {"B", "A", "c", "b"}) list += s;
    list.Sort(r.ascending, r.matchCase);
    std::string order;
    for (CZEL_String const& s : static_cast<CZEL_StringList const&>(list)) order += s.GetStringC();
    EXPECT_EQ(order, r.order) << r.ascending << r.matchCase;
  }
  CZEL_StringVector none;
  EXPECT_ZEL_THROW(none.Sort(0, 0), ZEL_ERR_INVALID_ARGUMENT, &none);
  EXPECT_EQ(CZEL_DoubleList(0, 0).GetLength() + CZEL_List<float>(2, 0).GetLength(), 2u);
  EXPECT_EQ(CZEL_Uint32Vector(2, 0u).GetLength() + CZEL_OrderedList<ZEL::u64>(0, 0).GetLength(),
            2u);
  CZEL_Vector<double> d;
  EXPECT_ZEL_THROW(d.Create(0, 0), ZEL_ERR_EMPTY_INPUT, &d);
}

TEST(CZEL_Uint8Vector, ConstVectorReadsEveryField) {
  CZEL_Uint8Vector v(8u, 0);
  v.SetUint64(0x3FF0000000000001ull, 0, ZEL::ZEL_BIG_ENDIAN);
  CZEL_Uint8Vector const& c = v;
  ZEL::t_ByteOrdering const big = ZEL::ZEL_BIG_ENDIAN;
  EXPECT_EQ(c.GetInt16(0, big) + c.GetUint16(6, big) + c.GetInt32(0, big), 0x3FF0 + 1 + 0x3FF00000);
  EXPECT_EQ(c.GetUint32(4, big) + c.GetInt64(0, big), 1 + 0x3FF0000000000001ll);
  EXPECT_EQ(c.GetUint64(0, ZEL::ZEL_LITTLE_ENDIAN), 0x010000000000F03Full);
  EXPECT_EQ(c.GetFloat(0, big), 1.875f);
  EXPECT_EQ(c.GetDouble(0, big), v.GetDouble(0, big));
  EXPECT_ZEL_THROW(c.GetUint16(7, big), ZEL_ERR_INVALID_ARGUMENT, &v);
}

#if defined(__SANITIZE_ADDRESS__)
#define ZEL_TEST_ASAN 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ZEL_TEST_ASAN 1
#endif
#endif

// Reads the first byte past the last item of v's array.
template <typename T>
void ReadPastEnd(CZEL_Vector<T> const& v) {
  auto const* past = reinterpret_cast<unsigned char const volatile*>(v.GetBuf() + v.GetLength());
  (void)*past;
}

TEST(CZEL_ContainerStorage, GrownArrayHoldsExactlyTheLength) {
  CZEL_Int32Vector ints;
  CZEL_Uint8Vector bytes(1u, 0);
  CZEL_StringVector strings;
  for (int i = 0; i < 3; ++i) ints += i, bytes += 1, strings += CZEL_String("s");
  ints.InsertItems(1, 9, 2, 1).DeleteItems(0, 1, 1);
  EXPECT_EQ(Text(ints), "9 9 1 2");
#ifdef ZEL_TEST_ASAN
  EXPECT_DEATH(ReadPastEnd(ints), "heap-buffer-overflow");
  EXPECT_DEATH(ReadPastEnd(bytes), "heap-buffer-overflow");
  EXPECT_DEATH(ReadPastEnd(strings), "heap-buffer-overflow");
#endif
}

}  // namespace
