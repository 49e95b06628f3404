#include "ContainerTestSupport.h"

#include <new>
#include <vector>

namespace {

using namespace zel_test;

// One edit of a vector: the items before, the edit, and Outcome's text after.
struct Row {
  IntList before;
  void (*edit)(V&);
  char const* after;
};

void Check(std::vector<Row> const& rows) {
  for (size_t i = 0; i < rows.size(); ++i) {
    V v = MakeVector(rows[i].before);
    EXPECT_EQ(Outcome(v, rows[i].edit), rows[i].after) << "row " << i;
  }
}

// The vector that v.Extract(out, pos, count) leaves in `out`, which held 9.
V Extracted(V const& v, ZEL::u32 pos, ZEL::u32 count) {
  V out = MakeVector({9});
  v.Extract(out, pos, count);
  return out;
}

TEST(CZEL_VectorSizing, CreateRecreateAppendAssign) {
  Check({
      {{}, [](V& v) { v = V(3u, 7); }, "7 7 7"},
      {{7}, [](V& v) { v.Create(0); }, "throws EMPTY_INPUT; 7"},
      {{7},
       [](V& v) {
         v = V(V(MakeVector({4, 5})));
       },
       "4 5"},
      {{7, 7},
       [](V& v) {
         v.Create(Lv(IntList{4, 5, 6}).data(), 3);
       },
       "4 5 6"},
      // Recreate keeps the items from its start; new slots take the value.
      {{1, 2, 3, 4}, [](V& v) { v.Recreate(3, 2, 7); }, "3 4 7"},
      {{1, 2, 3, 4}, [](V& v) { v.Recreate(6, 0, 7); }, "1 2 3 4 7 7"},
      {{1, 2, 3, 4}, [](V& v) { v.Recreate(2, 1); }, "2 3"},
      {{1, 2, 3, 4}, [](V& v) { v.Recreate(2, 9, 7); }, "7 7"},
      {{1, 2, 3, 4}, [](V& v) { v.Recreate(0, 0); }, ""},
      {{}, [](V& v) { v.Recreate(0, 0); }, "throws EMPTY_INPUT; "},
      {{}, [](V& v) { v.Recreate(2, 5, 1); }, "1 1"},  // Create: the start ignored
      // Appending reads its value before releasing the old array.
      {{}, [](V& v) { v.AppendVector(Lv(V())); }, "throws EMPTY_INPUT; "},
      {{1, 2},
       [](V& v) { v &= Lv(V()), v.AppendVector(Lv(V())), v.Recreate(4, 0, v[1]); },
       "1 2 2 2"},
      {{1, 2}, [](V& v) { v.AppendItem(v[0]), v += 9, v &= Lv(MakeVector({3})); }, "1 2 1 9 3"},
      {{1, 2}, [](V& v) { v = *&v; }, "1 2"},
      {{1, 2}, [](V& v) { v = V(); }, ""},
      {{1, 2, 3}, [](V& v) { v[3]; }, "throws BAD_POSITION; 1 2 3"},
  });
  alignas(V) unsigned char storage[sizeof(V)];
  int raw[] = {4, 5};
  EXPECT_ZEL_THROW(new (storage) V(0u), ZEL_ERR_EMPTY_INPUT, storage);
  EXPECT_ZEL_THROW(new (storage) V(0u, 5), ZEL_ERR_EMPTY_INPUT, storage);
  EXPECT_ZEL_THROW(new (storage) V(raw, 0u), ZEL_ERR_EMPTY_INPUT, storage);
  V empty, copy(empty), v(3u, 1);
  EXPECT_EQ(copy.GetBuf(), nullptr);
  EXPECT_EQ(!v, 3u);  // the length, not an emptiness flag
  int* buf = v.GetBuf();
  v = MakeVector({4, 5, 6});  // an equal length reuses the array
  EXPECT_EQ(v.GetBuf(), buf);
  v.DeleteAll();
  EXPECT_EQ(v.GetBuf(), nullptr);
}

TEST(CZEL_VectorSizing, EqualityAndFind) {
  V v = MakeVector({1, 2, 3});
  EXPECT_TRUE(v == MakeVector({1, 2, 3}) && V() == V());
  EXPECT_TRUE(v != MakeVector({1, 2, 4}) && v != MakeVector({1, 2}));
  v = MakeVector({5, 6, 5, 7});  // the searches include their start
  struct {
    bool toEnd;
    int item;
    ZEL::u32 start, found;  // 99 for none, leaving the position untouched
  } const rows[] = {
      {true, 5, 2, 2}, {false, 5, 1, 0}, {true, 6, 2, 99}, {true, 7, 4, 99}, {false, 7, 2, 99}};
  for (auto const& r : rows) {
    ZEL::u32 pos = 99;
    EXPECT_EQ(r.toEnd ? v.FindToEnd(r.item, &pos, r.start) : v.FindToStart(r.item, &pos, r.start),
              r.found != 99);
    EXPECT_EQ(pos, r.found) << r.item << " from " << r.start;
  }
  ZEL::u32 pos = 0;
  EXPECT_EQ(V().FindToEnd(5, &pos, 0), 0);
}

TEST(CZEL_VectorCopies, CopyInsertDeleteFill) {
  Check({
      {{1, 2, 3}, [](V& v) { v.CopyItemsFrom(0xFFFFFFF0u, v, 0, 0, 0); }, "1 2 3"},  // count 0
      {{1, 2, 3},
       [](V& v) {
         v.CopyItemsFrom(2, Lv(MakeVector({8, 9})), 0, 2, 0);
       },
       "throws INVALID_ARGUMENT; 1 2 3"},
      // A source too short throws its own code, the items before it written.
      {{1, 2, 3},
       [](V& v) {
         v.CopyItemsFrom(0, Lv(MakeVector({8, 9})), 1, 2, 0);
       },
       "throws BAD_POSITION by another; 9 2 3"},
      // Past the end with extend; the slots between stay unset, zeroed here.
      {{1, 2, 3},
       [](V& v) {
         v.CopyItemsFrom(5, Lv(MakeVector({8, 9})), 0, 2, 1), v[3] = v[4] = 0;
       },
       "1 2 3 0 0 8 9"},
      {{1, 2, 3, 4}, [](V& v) { v.CopyItemsFrom(1, v, 0, 3, 0); }, "1 1 1 1"},  // rising copy
      {{1, 2, 3, 4},
       [](V& v) {
         v.CopyItemsFrom(2, Lv(IntList{0, 5, 6}).data(), 1, 2, 0);
       },
       "1 2 5 6"},
      {{1, 2, 3}, [](V& v) { v.InsertItems(1, 9, 2, 1); }, "1 9 9 2 3"},
      {{1, 2, 3, 4}, [](V& v) { v.InsertItems(1, 9, 2, 0); }, "1 9 9 2"},
      {{1, 2}, [](V& v) { v.InsertItems(2, 9, 1, 0); }, "throws INVALID_ARGUMENT; 1 2"},
      // At the end only with the growth; the value may lie in the released array.
      {{1, 2}, [](V& v) { v.InsertItems(2, 9, 1, 1).InsertItems(0, v[1], 1, 1); }, "2 1 2 9"},
      {{}, [](V& v) { v.InsertItems(0, 9, 0, 1); }, "throws EMPTY_INPUT; "},
      // From a vector or array the vector grows past its end even without extend.
      {{1, 2, 3},
       [](V& v) {
         v.InsertItems(2, Lv(MakeVector({7, 8, 9})), 3, 0, 0);
       },
       "1 2 7 8 9"},
      {{1, 2},
       [](V& v) {
         v.InsertItems(0, Lv(IntList{4, 5, 6}).data(), 1, 2, 1);
       },
       "6 1 2"},
      {{},
       [](V& v) {
         v.InsertItems(0, Lv(MakeVector({7, 8, 9})), 2, 1, 0);
       },
       "8 9"},
      {{1, 2, 3, 4}, [](V& v) { v.DeleteItems(1, 2, 0); }, "1 4 3 4"},
      {{1, 2, 3, 4}, [](V& v) { v.DeleteItems(1, 2, 1); }, "1 4"},
      {{1, 2, 3, 4}, [](V& v) { v.DeleteItems(1, 99, 1); }, "1"},
      {{1}, [](V& v) { v.DeleteItems(0, 1, 1); }, ""},
      {{1, 2, 3}, [](V& v) { v.DeleteItems(1, 0xFFFFFFFFu, 0); }, "1 2 3"},
      {{1, 2}, [](V& v) { v.DeleteItems(2, 1, 1); }, "throws INVALID_ARGUMENT; 1 2"},
      {{}, [](V& v) { v.Fill(3); }, ""},
      {{1, 2, 3}, [](V& v) { v.Fill(0).Fill(5, 1, 2, 0); }, "0 5 5"},
      {{1, 2, 3}, [](V& v) { v.Fill(4, 2, 2, 0); }, "throws INVALID_ARGUMENT; 1 2 3"},
      {{0, 5, 5}, [](V& v) { v.Fill(v[1], 2, 2, 1); }, "0 5 5 5"},
  });
  int out[5] = {0, 0, 0, 0, 0};
  MakeVector({1, 1, 5, 6}).CopyItemsTo(1, out, 2, 9);  // stops at the vector's end
  EXPECT_EQ(IntList(out, out + 5), (IntList{0, 5, 6, 0, 0}));
}

TEST(CZEL_VectorShifts, ShiftSwapInvertExtract) {
  Check({
      {{1, 2, 3}, [](V& v) { v.UpShift(1, 1); }, "1 3 3"},
      {{1, 2, 3}, [](V& v) { v.DownShift(1, 1), v.DownShift(0, 3); }, "1 2 2"},  // count = length
      {{1, 2, 3}, [](V& v) { v.UpShift(3, 1); }, "throws INVALID_ARGUMENT; 1 2 3"},
      {{1, 2, 3}, [](V& v) { v.DownShift(3, 1); }, "throws INVALID_ARGUMENT; 1 2 3"},
      {{}, [](V& v) { v.DownShift(5, 1); }, ""},  // length - 1 is the largest u32 here
      {{}, [](V& v) { v.UpShift(0, 1); }, "throws INVALID_ARGUMENT; "},
      {{1, 2, 3}, [](V& v) { v.SwapItems(0, 2), v.SwapItems(3, 0); }, "3 2 1"},  // 3 passes
      {{1, 2, 3}, [](V& v) { v.SwapItems(4, 0); }, "throws INVALID_ARGUMENT; 1 2 3"},
      {{1, 2, 3}, [](V& v) { v.SwapItems(0, 4); }, "throws INVALID_ARGUMENT; 1 2 3"},
      {{1, 2, 3, 4, 5}, [](V& v) { v.InvertItemsOrder().InvertItemsOrder(1, 2); }, "5 3 4 2 1"},
      {{1, 2}, [](V& v) { v.InvertItemsOrder(0, 0); }, "1 2"},
      {{}, [](V& v) { v.InvertItemsOrder(); }, ""},
      {{1, 2, 3, 4}, [](V& v) { v.InvertItemsOrder(2, 4); }, "throws INVALID_ARGUMENT; 1 2 3 4"},
      {{1, 2, 3, 4}, [](V& v) { v.InvertItemsOrder(1, 4); }, "1 2 4 3"},  // the length: 2 swap
      {{1, 2, 3, 4}, [](V& v) { v = Extracted(v, 1, 2); }, "2 3"},
      // Only 4 exists: the further slots stay unset, zeroed here.
      {{1, 2, 3, 4}, [](V& v) { v = Extracted(v, 3, 3), v[1] = v[2] = 0; }, "4 0 0"},
      {{1, 2, 3, 4}, [](V& v) { v = v.ExtractInvertVector(1, 3); }, "4 3 2"},
      {{1, 2, 3, 4}, [](V& v) { v = v.ExtractInvertVector(2, 4), v[0] = v[1] = 0; }, "0 0 4 3"},
      {{1, 2, 3, 4}, [](V& v) { v = v.ExtractInvertVector(0, 0); }, ""},
  });
  V v = MakeVector({1, 2}), out = MakeVector({9});
  EXPECT_ZEL_THROW(v.Extract(out, 0, 0), ZEL_ERR_EMPTY_INPUT, &out);
  EXPECT_EQ(out.GetLength(), 0u);  // emptied before the throw
}

TEST(CZEL_VectorFromList, ReadsFromTheHeadOrTheCursor) {
  // An edit with a list source: the vector's outcome, then the source list.
  struct {
    IntList before;
    char const* source;
    void (*edit)(V&, L&);
    char const* after;
  } const rows[] = {
      {{}, "", [](V& v, L& l) { v.AppendList(l); }, "throws EMPTY_INPUT; /"},
      {{1}, "", [](V& v, L& l) { v = l; }, "/"},
      {{9, 9}, "1 [2] 3", [](V& v, L& l) { v = l; }, "1 2 3/1 2 [3]"},
      {{4}, "1 [2] 3", [](V& v, L& l) { (v &= Lv(L())).AppendList(l); }, "4 1 2 3/1 2 [3]"},
      // CopyItemsFrom reads from the cursor, stops quietly at the tail, and
      // leaves the cursor on the item after the last one copied.
      {{1, 2, 3, 4, 5},
       "[8] 9",
       [](V& v, L& l) { v.CopyItemsFrom(0, l, 5, 0); },
       "8 9 3 4 5/8 [9]"},
      {{1, 2, 3, 4, 5},
       "1 [2] 3 4",
       [](V& v, L& l) { v.CopyItemsFrom(3, l, 2, 0); },
       "1 2 3 2 3/1 2 3 [4]"},
      {{1, 2}, "", [](V& v, L& l) { v.CopyItemsFrom(7, l, 0, 0); }, "1 2/"},  // count 0
      {{1, 2},
       "",
       [](V& v, L& l) { v.CopyItemsFrom(0, l, 1, 0); },
       "throws BAD_POSITION by another; 1 2/"},
      {{1, 2},
       "[5] 6 7",
       [](V& v, L& l) { v.CopyItemsFrom(1, l, 2, 0); },
       "throws INVALID_ARGUMENT; 1 2/[5] 6 7"},
      {{1, 2}, "[5] 6 7", [](V& v, L& l) { v.CopyItemsFrom(1, l, 2, 1); }, "1 5 6/5 6 [7]"},
      {{1, 2, 3},
       "7 [8] 9",
       [](V& v, L& l) { v = v.InsertItems(1, l, 2, 1); },
       "1 8 9 2 3/7 8 [9]"},
      {{1, 2, 3}, "[7] 8 9", [](V& v, L& l) { v.InsertItems(0, l, 2, 0); }, "7 8 1/7 8 [9]"},
  };
  for (auto const& r : rows) {
    V v = MakeVector(r.before);
    L list = Parse(r.source);
    std::string const got = Outcome(v, [&](V& w) { r.edit(w, list); });
    EXPECT_EQ(got + "/" + Text(list), r.after) << r.source;
  }
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
  // Each pair is asked twice, (later, earlier), except when the first answer
  // already exchanges it in falling order. 200 calls are more than any pass
  // count that orders eight items needs.
  struct {
    IntList items;
    ZEL::u8 ascending;
    int calls;
    IntList after, firsts;
  } const rows[] = {
      {{4}, 1, 0, {4}, {}},  // returns without a call
      {{3, 1, 4, 1, 5, 9, 2, 6}, 1, 200, {1, 1, 2, 3, 4, 5, 6, 9}, {}},
      {{3, 1, 4, 1, 5, 9, 2, 6}, 0, 200, {9, 6, 5, 4, 3, 2, 1, 1}, {}},
      {{3, 1, 4, 1, 5, 9, 2, 6}, 7, 200, {1, 1, 2, 3, 4, 5, 6, 9}, {}},
      {{2, 1}, 1, 4, {1, 2}, {1, 1, 2, 2}},  // exchanged at the second call, then in order
      {{1, 2}, 0, 4, {2, 1}, {2, 1, 1, 1}},  // exchanged at the first call
      {{1, 2}, 1, 4, {1, 2}, {2, 2, 2, 2}},
  };
  for (auto const& r : rows) {
    V v = MakeVector(r.items);
    IntEscaping::Reset(r.calls);
    if (r.items.size() > 1) {
      EXPECT_THROW(v.Sort(&IntEscaping::Compare, r.ascending), Escape);
    } else {
      v.Sort(&IntEscaping::Compare, r.ascending);
    }
    EXPECT_EQ(Items(v), r.after);
    if (r.calls == 4) {
      EXPECT_EQ(IntEscaping::firsts, r.firsts);
    }
  }
  Keyed raw[] = {{2, 0}, {1, 1}, {2, 2}, {1, 3}};
  CZEL_Vector<Keyed> keyed(raw, 4);
  using KeyedEscaping = Escaping<Keyed, &ByKey>;
  KeyedEscaping::Reset(200);
  EXPECT_THROW(keyed.Sort(&KeyedEscaping::Compare, 1), Escape);  // equal keys keep their order
  EXPECT_EQ(Items(keyed), (std::vector<Keyed>{{1, 1}, {1, 3}, {2, 0}, {2, 2}}));
}

}  // namespace
