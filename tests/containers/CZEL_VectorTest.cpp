#include "ContainerTestSupport.h"

#include <new>
#include <type_traits>
#include <vector>

namespace {

using V = CZEL_Vector<int>;
using zel_test::Front;
using zel_test::Items;
using IntList = std::vector<int>;

V Make(IntList const& items) {
  V v;
  if (!items.empty()) v.Create(const_cast<int*>(items.data()), ZEL::u32(items.size()));
  return v;
}

// Construction and sizing ------------------------------------------------------

TEST(CZEL_VectorSizing, CountingConstructorsRefuseZero) {
  std::aligned_storage<sizeof(V), alignof(V)>::type storage;
  int raw[1] = {1};
  EXPECT_ZEL_THROW(new (&storage) V(0u), ZEL_ERR_EMPTY_INPUT, &storage);
  EXPECT_ZEL_THROW(new (&storage) V(0u, 5), ZEL_ERR_EMPTY_INPUT, &storage);
  EXPECT_ZEL_THROW(new (&storage) V(raw, 0u), ZEL_ERR_EMPTY_INPUT, &storage);
}

TEST(CZEL_VectorSizing, DefaultAndCopyOfEmptyHoldNoArray) {
  V empty;
  V copy(empty);
  EXPECT_EQ(empty.GetBuf(), nullptr);
  EXPECT_EQ(copy.GetBuf(), nullptr);
  EXPECT_EQ(copy.GetLength(), 0u);
  EXPECT_EQ(!Make({1, 2, 3}), 3u);  // the length, not an emptiness flag
}

TEST(CZEL_VectorSizing, CreateReplacesAndCreateZeroKeeps) {
  V v(3u, 7);
  EXPECT_EQ(Items(v), (IntList{7, 7, 7}));
  EXPECT_ZEL_THROW(v.Create(0), ZEL_ERR_EMPTY_INPUT, &v);
  EXPECT_EQ(Items(v), (IntList{7, 7, 7}));
  int raw[] = {4, 5};
  v.Create(raw, 2);
  EXPECT_EQ(Items(v), (IntList{4, 5}));
}

TEST(CZEL_VectorSizing, RecreateKeepsFromStart) {
  struct Row {
    ZEL::u32 length, start;
    bool withValue;
    IntList front;  // the slots that hold defined values
  };
  Row const rows[] = {
      {3, 2, false, {30, 40}},       {3, 2, true, {30, 40, 7}},
      {6, 0, true, {10, 20, 30, 40, 7, 7}}, {2, 0, false, {10, 20}},
      {2, 9, true, {7, 7}},          {0, 0, false, {}},
  };
  for (Row const& r : rows) {
    V v = Make({10, 20, 30, 40});
    if (r.withValue) {
      v.Recreate(r.length, r.start, 7);
    } else {
      v.Recreate(r.length, r.start);
    }
    EXPECT_EQ(v.GetLength(), r.length);
    EXPECT_EQ(Front(v, ZEL::u32(r.front.size())), r.front) << r.length << "," << r.start;
  }
}

TEST(CZEL_VectorSizing, RecreateOnEmptyIsCreate) {
  V v;
  EXPECT_ZEL_THROW(v.Recreate(0, 0), ZEL_ERR_EMPTY_INPUT, &v);
  v.Recreate(2, 5, 1);  // the start is ignored
  EXPECT_EQ(Items(v), (IntList{1, 1}));
}

TEST(CZEL_VectorSizing, RecreateReadsItsValueBeforeReleasing) {
  V v = Make({1, 2});
  v.Recreate(4, 0, v[1]);
  EXPECT_EQ(Items(v), (IntList{1, 2, 2, 2}));
  v.AppendItem(v[0]);
  v += 9;
  EXPECT_EQ(Items(v), (IntList{1, 2, 2, 2, 1, 9}));
}

TEST(CZEL_VectorSizing, AppendVector) {
  V a, b;
  EXPECT_ZEL_THROW(a.AppendVector(b), ZEL_ERR_EMPTY_INPUT, &a);
  a = Make({1, 2});
  (a &= b).AppendVector(b);
  EXPECT_EQ(Items(a), (IntList{1, 2}));
  b = Make({3});
  a &= b;
  EXPECT_EQ(Items(a), (IntList{1, 2, 3}));
}

TEST(CZEL_VectorSizing, AssignmentReusesAnArrayOfEqualLength) {
  V a = Make({1, 2, 3});
  V b = Make({4, 5, 6});
  int* buf = a.GetBuf();
  a = b;
  EXPECT_EQ(a.GetBuf(), buf);
  EXPECT_EQ(Items(a), (IntList{4, 5, 6}));
  auto& same = a;
  a = same;  // self-assignment
  EXPECT_EQ(Items(a), (IntList{4, 5, 6}));
  a = V();
  EXPECT_EQ(a.GetLength(), 0u);
  a.DeleteAll();
  EXPECT_EQ(a.GetBuf(), nullptr);
}

TEST(CZEL_VectorSizing, IndexAndEquality) {
  V v = Make({1, 2, 3});
  EXPECT_EQ(v[2], 3);
  EXPECT_ZEL_THROW(v[3], ZEL_ERR_BAD_POSITION, &v);
  EXPECT_TRUE(v == Make({1, 2, 3}));
  EXPECT_TRUE(v != Make({1, 2, 4}));
  EXPECT_TRUE(v != Make({1, 2}));
  EXPECT_TRUE(V() == V());
}

TEST(CZEL_VectorSizing, Find) {
  V v = Make({5, 6, 5, 7});
  ZEL::u32 pos = 99;
  EXPECT_EQ(v.FindToEnd(5, &pos, 1), 1);
  EXPECT_EQ(pos, 2u);
  EXPECT_EQ(v.FindToStart(5, &pos, 1), 1);
  EXPECT_EQ(pos, 0u);
  pos = 99;
  EXPECT_EQ(v.FindToEnd(6, &pos, 2), 0);
  EXPECT_EQ(v.FindToEnd(7, &pos, 4), 0);
  EXPECT_EQ(v.FindToStart(7, &pos, 2), 0);
  EXPECT_EQ(pos, 99u);
  EXPECT_EQ(V().FindToEnd(5, &pos, 0), 0);
}

// Bulk copies ------------------------------------------------------------------

TEST(CZEL_VectorCopies, CopyItemsFromRanges) {
  V v = Make({1, 2, 3});
  V src = Make({8, 9});
  v.CopyItemsFrom(0xFFFFFFF0u, src, 0, 0, 0);  // count 0 looks at nothing
  EXPECT_ZEL_THROW(v.CopyItemsFrom(2, src, 0, 2, 0), ZEL_ERR_INVALID_ARGUMENT, &v);
  EXPECT_EQ(Items(v), (IntList{1, 2, 3}));
  v.CopyItemsFrom(5, src, 0, 2, 1);
  EXPECT_EQ(v.GetLength(), 7u);
  EXPECT_EQ(Front(v, 3), (IntList{1, 2, 3}));
  EXPECT_EQ(v[5], 8);
  EXPECT_EQ(v[6], 9);
}

TEST(CZEL_VectorCopies, ShortVectorSourceStopsWithItsCode) {
  V v = Make({1, 2, 3, 4});
  V src = Make({8, 9});
  EXPECT_ZEL_THROW(v.CopyItemsFrom(0, src, 1, 3, 0), ZEL_ERR_BAD_POSITION, &src);
  EXPECT_EQ(Items(v), (IntList{9, 2, 3, 4}));
}

TEST(CZEL_VectorCopies, CopiesRiseWithoutOverlapGuard) {
  V v = Make({1, 2, 3, 4});
  v.CopyItemsFrom(1, v, 0, 3, 0);
  EXPECT_EQ(Items(v), (IntList{1, 1, 1, 1}));
  int raw[] = {0, 5, 6};
  v.CopyItemsFrom(2, raw, 1, 2, 0);
  EXPECT_EQ(Items(v), (IntList{1, 1, 5, 6}));
}

TEST(CZEL_VectorCopies, CopyItemsToStopsAtTheEnd) {
  V v = Make({1, 2, 3});
  int out[5] = {0, 0, 0, 0, 0};
  v.CopyItemsTo(1, out, 1, 9);
  EXPECT_EQ(IntList(out, out + 5), (IntList{0, 2, 3, 0, 0}));
}

TEST(CZEL_VectorCopies, InsertValues) {
  V a = Make({1, 2, 3});
  a.InsertItems(1, 9, 2, 1);
  EXPECT_EQ(Items(a), (IntList{1, 9, 9, 2, 3}));
  V b = Make({1, 2, 3, 4});
  b.InsertItems(1, 9, 2, 0);
  EXPECT_EQ(Items(b), (IntList{1, 9, 9, 2}));
  V c = Make({1, 2});
  c.InsertItems(0, c[1], 1, 1);  // the value lies in the released array
  EXPECT_EQ(Items(c), (IntList{2, 1, 2}));
}

TEST(CZEL_VectorCopies, InsertAtTheEnd) {
  V v = Make({1, 2});
  EXPECT_ZEL_THROW(v.InsertItems(2, 9, 1, 0), ZEL_ERR_INVALID_ARGUMENT, &v);
  EXPECT_EQ(Items(v), (IntList{1, 2}));
  v.InsertItems(2, 9, 1, 1);
  EXPECT_EQ(Items(v), (IntList{1, 2, 9}));
  V empty;
  EXPECT_ZEL_THROW(empty.InsertItems(0, 9, 0, 1), ZEL_ERR_EMPTY_INPUT, &empty);
}

TEST(CZEL_VectorCopies, InsertFromVectorGrowsPastTheEndEvenWithoutExtend) {
  V v = Make({1, 2, 3});
  V src = Make({7, 8, 9});
  v.InsertItems(2, src, 3, 0, 0);
  EXPECT_EQ(Items(v), (IntList{1, 2, 7, 8, 9}));
  int raw[] = {5, 6};
  v.InsertItems(0, raw, 1, 1, 1);
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
      {{1, 2, 3, 4}, 1, 2, 0, {1, 4, 3, 4}}, {{1, 2, 3, 4}, 1, 2, 1, {1, 4}},
      {{1, 2, 3, 4}, 1, 99, 1, {1}},         {{1}, 0, 1, 1, {}},
      {{1, 2, 3}, 0, 0xFFFFFFFFu, 0, {1, 2, 3}},
  };
  for (Row const& r : rows) {
    V v = Make(r.before);
    v.DeleteItems(r.pos, r.count, r.shrink);
    EXPECT_EQ(Items(v), r.after) << r.pos << "," << r.count;
  }
  V v = Make({1, 2});
  EXPECT_ZEL_THROW(v.DeleteItems(2, 1, 1), ZEL_ERR_INVALID_ARGUMENT, &v);
  EXPECT_EQ(Items(v), (IntList{1, 2}));
}

TEST(CZEL_VectorCopies, Fill) {
  V empty;
  empty.Fill(3);
  EXPECT_EQ(empty.GetLength(), 0u);
  V v = Make({1, 2, 3});
  v.Fill(0).Fill(5, 1, 2, 0);
  EXPECT_EQ(Items(v), (IntList{0, 5, 5}));
  EXPECT_ZEL_THROW(v.Fill(4, 2, 2, 0), ZEL_ERR_INVALID_ARGUMENT, &v);
  v.Fill(v[1], 2, 2, 1);
  EXPECT_EQ(Items(v), (IntList{0, 5, 5, 5}));
}

// Shifts and order ---------------------------------------------------------------

TEST(CZEL_VectorShifts, UpAndDown) {
  V up = Make({1, 2, 3});
  up.UpShift(1, 1);
  EXPECT_EQ(Items(up), (IntList{1, 3, 3}));
  V down = Make({1, 2, 3});
  down.DownShift(1, 1);
  EXPECT_EQ(Items(down), (IntList{1, 2, 2}));
  down.DownShift(0, 3);  // a count of the length moves nothing
  EXPECT_EQ(Items(down), (IntList{1, 2, 2}));
  EXPECT_ZEL_THROW(up.UpShift(3, 1), ZEL_ERR_INVALID_ARGUMENT, &up);
  EXPECT_ZEL_THROW(up.DownShift(3, 1), ZEL_ERR_INVALID_ARGUMENT, &up);
  V empty;
  empty.DownShift(5, 1);  // length - 1 is the largest u32 here
  EXPECT_ZEL_THROW(empty.UpShift(0, 1), ZEL_ERR_INVALID_ARGUMENT, &empty);
}

TEST(CZEL_VectorShifts, SwapBounds) {
  V v = Make({1, 2, 3});
  v.SwapItems(0, 2);
  EXPECT_EQ(Items(v), (IntList{3, 2, 1}));
  v.SwapItems(3, 0);  // a position equal to the length passes the test
  EXPECT_EQ(Items(v), (IntList{3, 2, 1}));
  EXPECT_ZEL_THROW(v.SwapItems(4, 0), ZEL_ERR_INVALID_ARGUMENT, &v);
  EXPECT_ZEL_THROW(v.SwapItems(0, 4), ZEL_ERR_INVALID_ARGUMENT, &v);
}

TEST(CZEL_VectorShifts, InvertItemsOrder) {
  V v = Make({1, 2, 3, 4, 5});
  v.InvertItemsOrder();
  EXPECT_EQ(Items(v), (IntList{5, 4, 3, 2, 1}));
  v.InvertItemsOrder(1, 2).InvertItemsOrder(0, 0);
  EXPECT_EQ(Items(v), (IntList{5, 3, 4, 2, 1}));
  V empty;
  empty.InvertItemsOrder();
  V run = Make({1, 2, 3, 4});
  EXPECT_ZEL_THROW(run.InvertItemsOrder(2, 4), ZEL_ERR_INVALID_ARGUMENT, &run);
  run.InvertItemsOrder(1, 4);  // its upper end is the length: only 2 and 3 swap
  EXPECT_EQ(Items(run), (IntList{1, 2, 4, 3}));
}

TEST(CZEL_VectorShifts, Extract) {
  V v = Make({1, 2, 3, 4});
  V out = Make({9});
  v.Extract(out, 1, 2);
  EXPECT_EQ(Items(out), (IntList{2, 3}));
  v.Extract(out, 3, 3);
  EXPECT_EQ(out.GetLength(), 3u);
  EXPECT_EQ(out[0], 4);
  EXPECT_ZEL_THROW(v.Extract(out, 0, 0), ZEL_ERR_EMPTY_INPUT, &out);
  EXPECT_EQ(out.GetLength(), 0u);  // emptied before the throw
}

TEST(CZEL_VectorShifts, ExtractInvertVector) {
  V v = Make({1, 2, 3, 4});
  EXPECT_EQ(Items(v.ExtractInvertVector(1, 3)), (IntList{4, 3, 2}));
  V cut = v.ExtractInvertVector(2, 4);  // only 3 and 4 exist: the low slots stay unset
  EXPECT_EQ(cut.GetLength(), 4u);
  EXPECT_EQ(cut[2], 4);
  EXPECT_EQ(cut[3], 3);
  EXPECT_EQ(v.ExtractInvertVector(0, 0).GetLength(), 0u);
}

// Sort -----------------------------------------------------------------------------

struct Escape {};

// Orders ints; throws Escape once the watched vector has been in order for
// `spareCalls` further calls, so that a sort that never returns can be left.
struct Watch {
  static V const* vector;
  static bool ascending;
  static int spareCalls;
  static int calls;
  static bool InOrder() {
    for (ZEL::u32 i = 1; i < vector->GetLength(); ++i) {
      int a = (*vector)[i - 1], b = (*vector)[i];
      if (ascending ? a > b : a < b) return false;
    }
    return true;
  }
  static signed char Compare(int const& a, int const& b) {
    ++calls;
    if (InOrder() && spareCalls-- == 0) throw Escape();
    return a > b ? 1 : a < b ? -1 : 0;
  }
};
V const* Watch::vector = nullptr;
bool Watch::ascending = true;
int Watch::spareCalls = 0;
int Watch::calls = 0;

TEST(CZEL_VectorSort, EmptyThrowsAndOneItemReturns) {
  V empty;
  EXPECT_ZEL_THROW(empty.Sort(&Watch::Compare, 1), ZEL_ERR_INVALID_ARGUMENT, &empty);
  V one = Make({4});
  one.Sort(&Watch::Compare, 1);
  EXPECT_EQ(Items(one), (IntList{4}));
}

TEST(CZEL_VectorSort, OrdersAndKeepsPassingUntilTheComparatorThrows) {
  for (ZEL::u8 ascending : {ZEL::u8(1), ZEL::u8(0), ZEL::u8(7)}) {
    V v = Make({3, 1, 4, 1, 5, 9, 2, 6});
    Watch::vector = &v;
    Watch::ascending = ascending != 0;
    Watch::spareCalls = 5 * 2 * 7;  // five more full passes after the order is reached
    EXPECT_THROW(v.Sort(&Watch::Compare, ascending), Escape);
    EXPECT_EQ(Items(v), ascending ? (IntList{1, 1, 2, 3, 4, 5, 6, 9})
                                  : (IntList{9, 6, 5, 4, 3, 2, 1, 1}));
  }
}

// Records the first argument of each call and throws at the fifth.
struct Recorder {
  static IntList firsts;
  static signed char Compare(int const& a, int const& b) {
    if (firsts.size() == 4) throw Escape();
    firsts.push_back(a);
    return a > b ? 1 : a < b ? -1 : 0;
  }
};
IntList Recorder::firsts;

TEST(CZEL_VectorSort, ComparatorCallsPerPair) {
  // Each pair is asked twice, (later, earlier), except when the first answer
  // already exchanges it in falling order.
  struct Row {
    IntList items;
    ZEL::u8 ascending;
    IntList firsts;
  };
  Row const rows[] = {
      {{2, 1}, 1, {1, 1, 2, 2}},  // exchanged at the second call, then in order
      {{1, 2}, 0, {2, 1, 1, 1}},  // exchanged at the first call
      {{1, 2}, 1, {2, 2, 2, 2}},
  };
  for (Row const& r : rows) {
    V v = Make(r.items);
    Recorder::firsts.clear();
    EXPECT_THROW(v.Sort(&Recorder::Compare, r.ascending), Escape);
    EXPECT_EQ(Recorder::firsts, r.firsts);
  }
}

struct KeyedEscape {
  static int budget;
  static signed char Compare(zel_test::Keyed const& a, zel_test::Keyed const& b) {
    if (budget-- == 0) throw Escape();
    return zel_test::ByKey(a, b);
  }
};
int KeyedEscape::budget = 0;

TEST(CZEL_VectorSort, EqualItemsKeepTheirOrder) {
  using zel_test::Keyed;
  Keyed raw[] = {{2, 0}, {1, 1}, {2, 2}, {1, 3}};
  CZEL_Vector<Keyed> v(raw, 4);
  KeyedEscape::budget = 200;
  EXPECT_THROW(v.Sort(&KeyedEscape::Compare, 1), Escape);
  IntList tags;
  for (ZEL::u32 i = 0; i < 4; ++i) tags.push_back(v[i].tag);
  EXPECT_EQ(tags, (IntList{1, 3, 0, 2}));
}

}  // namespace
