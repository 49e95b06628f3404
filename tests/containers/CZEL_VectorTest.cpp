#include "ContainerTestSupport.h"

#include <new>
#include <vector>

namespace {

using namespace zel_test;

TEST(CZEL_VectorSizing, CountsOfZeroThrowAndCreateReplaces) {
  alignas(V) unsigned char storage[sizeof(V)];
  int raw[] = {4, 5};
  EXPECT_ZEL_THROW(new (storage) V(0u), ZEL_ERR_EMPTY_INPUT, storage);
  EXPECT_ZEL_THROW(new (storage) V(0u, 5), ZEL_ERR_EMPTY_INPUT, storage);
  EXPECT_ZEL_THROW(new (storage) V(raw, 0u), ZEL_ERR_EMPTY_INPUT, storage);
  V empty, copy(empty);
  EXPECT_EQ(copy.GetBuf(), nullptr);
  EXPECT_EQ(copy.GetLength(), 0u);
  V v(3u, 7);
  EXPECT_EQ(!v, 3u);  // the length, not an emptiness flag
  EXPECT_ZEL_THROW(v.Create(0), ZEL_ERR_EMPTY_INPUT, &v);
  EXPECT_EQ(Items(v), (IntList{7, 7, 7}));
  v.Create(raw, 2);
  EXPECT_EQ(Items(V(v)), (IntList{4, 5}));
}

TEST(CZEL_VectorSizing, RecreateKeepsFromStart) {
  struct Row {
    ZEL::u32 length, start;
    bool withValue;
    IntList front;  // the slots that hold defined values
  };
  Row const rows[] = {
      {3, 2, true, {30, 40, 7}}, {6, 0, true, {10, 20, 30, 40, 7, 7}},
      {2, 1, false, {20, 30}},   {2, 9, true, {7, 7}},
      {0, 0, false, {}},
  };
  for (Row const& r : rows) {
    V v = MakeVector({10, 20, 30, 40});
    r.withValue ? v.Recreate(r.length, r.start, 7) : v.Recreate(r.length, r.start);
    EXPECT_EQ(v.GetLength(), r.length);
    EXPECT_EQ(Front(v, ZEL::u32(r.front.size())), r.front) << r.length << "," << r.start;
  }
  V empty;  // on an empty vector Recreate is Create, the start ignored
  EXPECT_ZEL_THROW(empty.Recreate(0, 0), ZEL_ERR_EMPTY_INPUT, &empty);
  empty.Recreate(2, 5, 1);
  EXPECT_EQ(Items(empty), (IntList{1, 1}));
}

TEST(CZEL_VectorSizing, AppendingReadsItsValueBeforeReleasing) {
  V a, b;
  EXPECT_ZEL_THROW(a.AppendVector(b), ZEL_ERR_EMPTY_INPUT, &a);
  a = MakeVector({1, 2});
  (a &= b).AppendVector(b);  // an empty source adds nothing
  a.Recreate(4, 0, a[1]);
  a.AppendItem(a[0]);
  a += 9;
  b = MakeVector({3});
  a &= b;
  EXPECT_EQ(Items(a), (IntList{1, 2, 2, 2, 1, 9, 3}));
}

TEST(CZEL_VectorSizing, AssignmentReusesAnArrayOfEqualLength) {
  V a = MakeVector({1, 2, 3});
  int* buf = a.GetBuf();
  a = MakeVector({4, 5, 6});
  EXPECT_EQ(a.GetBuf(), buf);
  auto& same = a;
  a = same;
  EXPECT_EQ(Items(a), (IntList{4, 5, 6}));
  a = V();
  EXPECT_EQ(a.GetLength(), 0u);
  a.DeleteAll();
  EXPECT_EQ(a.GetBuf(), nullptr);
}

TEST(CZEL_VectorSizing, IndexEqualityAndFind) {
  V v = MakeVector({1, 2, 3});
  EXPECT_EQ(v[2], 3);
  EXPECT_ZEL_THROW(v[3], ZEL_ERR_BAD_POSITION, &v);
  EXPECT_TRUE(v == MakeVector({1, 2, 3}));
  EXPECT_TRUE(v != MakeVector({1, 2, 4}));
  EXPECT_TRUE(v != MakeVector({1, 2}));
  EXPECT_TRUE(V() == V());
  v = MakeVector({5, 6, 5, 7});  // the searches include their start
  ZEL::u32 pos = 99;
  EXPECT_EQ(v.FindToEnd(5, &pos, 2), 1);
  EXPECT_EQ(pos, 2u);
  EXPECT_EQ(v.FindToStart(5, &pos, 1), 1);
  EXPECT_EQ(pos, 0u);
  EXPECT_EQ(v.FindToEnd(6, &pos, 2), 0);
  EXPECT_EQ(v.FindToEnd(7, &pos, 4), 0);
  EXPECT_EQ(v.FindToStart(7, &pos, 2), 0);
  EXPECT_EQ(pos, 0u);  // untouched by the failed searches
  EXPECT_EQ(V().FindToEnd(5, &pos, 0), 0);
}

TEST(CZEL_VectorCopies, CopyItemsFromRanges) {
  V v = MakeVector({1, 2, 3});
  V src = MakeVector({8, 9});
  v.CopyItemsFrom(0xFFFFFFF0u, src, 0, 0, 0);  // count 0 looks at nothing
  EXPECT_ZEL_THROW(v.CopyItemsFrom(2, src, 0, 2, 0), ZEL_ERR_INVALID_ARGUMENT, &v);
  EXPECT_EQ(Items(v), (IntList{1, 2, 3}));
  // A source too short throws its own code, the items before it written.
  EXPECT_ZEL_THROW(v.CopyItemsFrom(0, src, 1, 2, 0), ZEL_ERR_BAD_POSITION, &src);
  EXPECT_EQ(Items(v), (IntList{9, 2, 3}));
  v.CopyItemsFrom(5, src, 0, 2, 1);  // slots 3 and 4 stay unset
  EXPECT_EQ(v.GetLength(), 7u);
  EXPECT_EQ(Front(v, 3), (IntList{9, 2, 3}));
  EXPECT_EQ(IntList(v.GetBuf() + 5, v.GetBuf() + 7), (IntList{8, 9}));
}

TEST(CZEL_VectorCopies, CopiesRiseWithoutOverlapGuardAndCopyItemsToStops) {
  V v = MakeVector({1, 2, 3, 4});
  v.CopyItemsFrom(1, v, 0, 3, 0);
  EXPECT_EQ(Items(v), (IntList{1, 1, 1, 1}));
  int raw[] = {0, 5, 6};
  v.CopyItemsFrom(2, raw, 1, 2, 0);
  EXPECT_EQ(Items(v), (IntList{1, 1, 5, 6}));
  int out[5] = {0, 0, 0, 0, 0};
  v.CopyItemsTo(1, out, 2, 9);
  EXPECT_EQ(IntList(out, out + 5), (IntList{0, 5, 6, 0, 0}));
}

TEST(CZEL_VectorCopies, InsertValues) {
  V a = MakeVector({1, 2, 3});
  a.InsertItems(1, 9, 2, 1);
  EXPECT_EQ(Items(a), (IntList{1, 9, 9, 2, 3}));
  V b = MakeVector({1, 2, 3, 4});
  b.InsertItems(1, 9, 2, 0);
  EXPECT_EQ(Items(b), (IntList{1, 9, 9, 2}));
  V c = MakeVector({1, 2});
  EXPECT_ZEL_THROW(c.InsertItems(2, 9, 1, 0), ZEL_ERR_INVALID_ARGUMENT, &c);
  c.InsertItems(2, 9, 1, 1);     // at the end only with the growth
  c.InsertItems(0, c[1], 1, 1);  // the value lies in the released array
  EXPECT_EQ(Items(c), (IntList{2, 1, 2, 9}));
  V empty;
  EXPECT_ZEL_THROW(empty.InsertItems(0, 9, 0, 1), ZEL_ERR_EMPTY_INPUT, &empty);
}

TEST(CZEL_VectorCopies, InsertFromVectorGrowsPastTheEndEvenWithoutExtend) {
  V v = MakeVector({1, 2, 3});
  V src = MakeVector({7, 8, 9});
  v.InsertItems(2, src, 3, 0, 0);
  EXPECT_EQ(Items(v), (IntList{1, 2, 7, 8, 9}));
  int raw[] = {4, 5, 6};
  v.InsertItems(0, raw, 1, 2, 1);
  EXPECT_EQ(Items(v), (IntList{6, 1, 2, 7, 8, 9}));
  V empty;
  empty.InsertItems(0, src, 2, 1, 0);  // an empty vector passes the shift
  EXPECT_EQ(Items(empty), (IntList{8, 9}));
}

TEST(CZEL_VectorCopies, DeleteItems) {
  struct Row {
    IntList before;
    ZEL::u32 pos, count;
    ZEL::u8 shrink;
    IntList after;
  };
  Row const rows[] = {
      {{1, 2, 3, 4}, 1, 2, 0, {1, 4, 3, 4}},
      {{1, 2, 3, 4}, 1, 2, 1, {1, 4}},
      {{1, 2, 3, 4}, 1, 99, 1, {1}},
      {{1}, 0, 1, 1, {}},
      {{1, 2, 3}, 1, 0xFFFFFFFFu, 0, {1, 2, 3}},
  };
  for (Row const& r : rows) {
    V v = MakeVector(r.before);
    v.DeleteItems(r.pos, r.count, r.shrink);
    EXPECT_EQ(Items(v), r.after) << r.pos << "," << r.count;
  }
  V v = MakeVector({1, 2});
  EXPECT_ZEL_THROW(v.DeleteItems(2, 1, 1), ZEL_ERR_INVALID_ARGUMENT, &v);
  EXPECT_EQ(Items(v), (IntList{1, 2}));
}

TEST(CZEL_VectorCopies, Fill) {
  V empty;
  empty.Fill(3);
  EXPECT_EQ(empty.GetLength(), 0u);
  V v = MakeVector({1, 2, 3});
  v.Fill(0).Fill(5, 1, 2, 0);
  EXPECT_EQ(Items(v), (IntList{0, 5, 5}));
  EXPECT_ZEL_THROW(v.Fill(4, 2, 2, 0), ZEL_ERR_INVALID_ARGUMENT, &v);
  v.Fill(v[1], 2, 2, 1);
  EXPECT_EQ(Items(v), (IntList{0, 5, 5, 5}));
}

TEST(CZEL_VectorShifts, UpAndDown) {
  V up = MakeVector({1, 2, 3}), down = up;
  up.UpShift(1, 1);
  EXPECT_EQ(Items(up), (IntList{1, 3, 3}));
  down.DownShift(1, 1);
  down.DownShift(0, 3);  // a count of the length moves nothing
  EXPECT_EQ(Items(down), (IntList{1, 2, 2}));
  EXPECT_ZEL_THROW(up.UpShift(3, 1), ZEL_ERR_INVALID_ARGUMENT, &up);
  EXPECT_ZEL_THROW(up.DownShift(3, 1), ZEL_ERR_INVALID_ARGUMENT, &up);
  V empty;
  empty.DownShift(5, 1);  // length - 1 is the largest u32 here
  EXPECT_ZEL_THROW(empty.UpShift(0, 1), ZEL_ERR_INVALID_ARGUMENT, &empty);
}

TEST(CZEL_VectorShifts, SwapBounds) {
  V v = MakeVector({1, 2, 3});
  v.SwapItems(0, 2);
  v.SwapItems(3, 0);  // a position equal to the length passes the test
  EXPECT_EQ(Items(v), (IntList{3, 2, 1}));
  EXPECT_ZEL_THROW(v.SwapItems(4, 0), ZEL_ERR_INVALID_ARGUMENT, &v);
  EXPECT_ZEL_THROW(v.SwapItems(0, 4), ZEL_ERR_INVALID_ARGUMENT, &v);
}

TEST(CZEL_VectorShifts, InvertItemsOrder) {
  V v = MakeVector({1, 2, 3, 4, 5});
  v.InvertItemsOrder();
  EXPECT_EQ(Items(v), (IntList{5, 4, 3, 2, 1}));
  v.InvertItemsOrder(1, 2).InvertItemsOrder(0, 0);
  EXPECT_EQ(Items(v), (IntList{5, 3, 4, 2, 1}));
  V().InvertItemsOrder();
  V run = MakeVector({1, 2, 3, 4});
  EXPECT_ZEL_THROW(run.InvertItemsOrder(2, 4), ZEL_ERR_INVALID_ARGUMENT, &run);
  run.InvertItemsOrder(1, 4);  // its upper end is the length: only 2 and 3 swap
  EXPECT_EQ(Items(run), (IntList{1, 2, 4, 3}));
}

TEST(CZEL_VectorShifts, ExtractAndExtractInvertVector) {
  V v = MakeVector({1, 2, 3, 4});
  V out = MakeVector({9});
  v.Extract(out, 1, 2);
  EXPECT_EQ(Items(out), (IntList{2, 3}));
  v.Extract(out, 3, 3);  // only 4 exists: the further slots stay unset
  EXPECT_EQ(out.GetLength(), 3u);
  EXPECT_EQ(out[0], 4);
  EXPECT_ZEL_THROW(v.Extract(out, 0, 0), ZEL_ERR_EMPTY_INPUT, &out);
  EXPECT_EQ(out.GetLength(), 0u);  // emptied before the throw
  EXPECT_EQ(Items(v.ExtractInvertVector(1, 3)), (IntList{4, 3, 2}));
  V cut = v.ExtractInvertVector(2, 4);  // only 3 and 4 exist: the low slots stay unset
  EXPECT_EQ(cut.GetLength(), 4u);
  EXPECT_EQ(IntList(cut.GetBuf() + 2, cut.GetBuf() + 4), (IntList{4, 3}));
  EXPECT_EQ(v.ExtractInvertVector(0, 0).GetLength(), 0u);
}

TEST(CZEL_VectorFromList, AssignmentAndAppendListReadFromTheHeadAndEndOnTheTail) {
  L list = MakeList({1, 2, 3}, 1), other = MakeList({4, 5, 6}), empty;
  V v;
  EXPECT_ZEL_THROW(v.AppendList(empty), ZEL_ERR_EMPTY_INPUT, &v);
  v = list;
  EXPECT_EQ(Items(v), (IntList{1, 2, 3}));
  EXPECT_EQ(list.IsEnd(), 1);
  int* buf = v.GetBuf();
  v = other;
  EXPECT_EQ(v.GetBuf(), buf);  // an equal length reuses the array
  v &= empty;
  list.ToPos(1);
  v.AppendList(list);
  EXPECT_EQ(Items(v), (IntList{4, 5, 6, 1, 2, 3}));
  EXPECT_EQ(Cursor(list), 3);
  v = empty;
  EXPECT_EQ(v.GetLength(), 0u);
}

TEST(CZEL_VectorFromList, CopyItemsFromReadsFromTheCursorAndStopsQuietly) {
  L list = MakeList({8, 9}, 0);
  V v = MakeVector({1, 2, 3, 4, 5});
  v.CopyItemsFrom(0, list, 5, 0);
  EXPECT_EQ(Items(v), (IntList{8, 9, 3, 4, 5}));
  EXPECT_EQ(Cursor(list), 9);
  L longer = MakeList({1, 2, 3, 4}, 1);
  v.CopyItemsFrom(3, longer, 2, 0);
  EXPECT_EQ(Items(v), (IntList{8, 9, 3, 2, 3}));
  EXPECT_EQ(Cursor(longer), 4);  // on the item after the last one copied
}

TEST(CZEL_VectorFromList, CopyItemsFromFailures) {
  V v = MakeVector({1, 2});
  L empty;
  v.CopyItemsFrom(7, empty, 0, 0);  // count 0 looks at nothing
  EXPECT_ZEL_THROW(v.CopyItemsFrom(0, empty, 1, 0), ZEL_ERR_BAD_POSITION, &empty);
  L list = MakeList({5, 6, 7});
  EXPECT_ZEL_THROW(v.CopyItemsFrom(1, list, 2, 0), ZEL_ERR_INVALID_ARGUMENT, &v);
  EXPECT_EQ(Items(v), (IntList{1, 2}));
  v.CopyItemsFrom(1, list, 2, 1);
  EXPECT_EQ(Items(v), (IntList{1, 5, 6}));
}

TEST(CZEL_VectorFromList, InsertItemsReturnsACopy) {
  V v = MakeVector({1, 2, 3});
  L list = MakeList({7, 8, 9}, 1);
  V copy = v.InsertItems(1, list, 2, 1);
  EXPECT_EQ(Items(v), (IntList{1, 8, 9, 2, 3}));
  EXPECT_EQ(Items(copy), (IntList{1, 8, 9, 2, 3}));
  list.ToStart();
  v.InsertItems(0, list, 2, 0);
  EXPECT_EQ(Items(v), (IntList{7, 8, 1, 8, 9}));
}

TEST(CZEL_ListFromVector, StringItemsAreDeepCopies) {
  CZEL_StringVector words(2);
  words[0] = "alpha";
  words[1] = "beta";
  CZEL_StringList list;
  list = words;
  words[0] = "changed";
  EXPECT_STREQ(list.ToStart().GetStringC(), "alpha");
  CZEL_StringVector back;
  back = list;
  EXPECT_STREQ(back[1].GetStringC(), "beta");
  EXPECT_TRUE(back != words);
  words[0] = "alpha";
  EXPECT_TRUE(back == words);
}

struct Escape {};

// Compares by `Order` and records each call's first argument; throws Escape
// once `budget` calls are used up, the only way out of a vector's Sort.
template <typename T, signed char (*Order)(T const&, T const&)>
struct Escaping {
  static inline int budget = 0;
  static inline std::vector<T> firsts;
  static signed char Compare(T const& a, T const& b) {
    if (budget-- == 0) throw Escape();
    firsts.push_back(a);
    return Order(a, b);
  }
  static void Reset(int calls) {
    budget = calls;
    firsts.clear();
  }
};
using IntEscaping = Escaping<int, &ByValue>;

TEST(CZEL_VectorSort, OrdersAndKeepsPassingUntilTheComparatorThrows) {
  V empty;
  EXPECT_ZEL_THROW(empty.Sort(&IntEscaping::Compare, 1), ZEL_ERR_INVALID_ARGUMENT, &empty);
  V one = MakeVector({4});
  IntEscaping::Reset(0);
  one.Sort(&IntEscaping::Compare, 1);  // returns without a call
  EXPECT_EQ(Items(one), (IntList{4}));
  // 200 calls are more than any pass count that orders eight items needs.
  for (ZEL::u8 ascending : {ZEL::u8(1), ZEL::u8(0), ZEL::u8(7)}) {
    V v = MakeVector({3, 1, 4, 1, 5, 9, 2, 6});
    IntEscaping::Reset(200);
    EXPECT_THROW(v.Sort(&IntEscaping::Compare, ascending), Escape);
    EXPECT_EQ(Items(v),
              ascending ? (IntList{1, 1, 2, 3, 4, 5, 6, 9}) : (IntList{9, 6, 5, 4, 3, 2, 1, 1}));
  }
}

TEST(CZEL_VectorSort, ComparatorCallsPerPair) {
  // Each pair is asked twice, (later, earlier), except when the first answer
  // already exchanges it in falling order.
  struct Row {
    IntList items;
    ZEL::u8 ascending;
    IntList firsts;  // of the first four calls
  };
  Row const rows[] = {
      {{2, 1}, 1, {1, 1, 2, 2}},  // exchanged at the second call, then in order
      {{1, 2}, 0, {2, 1, 1, 1}},  // exchanged at the first call
      {{1, 2}, 1, {2, 2, 2, 2}},
  };
  for (Row const& r : rows) {
    V v = MakeVector(r.items);
    IntEscaping::Reset(4);
    EXPECT_THROW(v.Sort(&IntEscaping::Compare, r.ascending), Escape);
    EXPECT_EQ(IntEscaping::firsts, r.firsts);
  }
}

TEST(CZEL_VectorSort, EqualItemsKeepTheirOrder) {
  Keyed raw[] = {{2, 0}, {1, 1}, {2, 2}, {1, 3}};
  CZEL_Vector<Keyed> v(raw, 4);
  using KeyedEscaping = Escaping<Keyed, &ByKey>;
  KeyedEscaping::Reset(200);
  EXPECT_THROW(v.Sort(&KeyedEscaping::Compare, 1), Escape);
  EXPECT_EQ(Items(v), (std::vector<Keyed>{{1, 1}, {1, 3}, {2, 0}, {2, 2}}));
}

}  // namespace
