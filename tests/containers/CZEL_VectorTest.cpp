// SPDX-License-Identifier: Apache-2.0
#include "ContainerTestSupport.h"

#include <new>

namespace {

using namespace zel_test;

TEST(CZEL_Vector, CreateRecreateAppendAssign) {
  Check<V>({
      {"", [](V& v) { v = V(3u, 7); }, "7 7 7"},
      {"7", [](V& v) { v.Create(0); }, "EMPTY_INPUT; 7"},
      {"7", [](V& v) { v = V(V(Vec("4 5"))); }, "4 5"},
      // Recreate keeps the items from its start; new slots take the value.
      {"1 2 3 4", [](V& v) { v.Recreate(3, 2, 7); }, "3 4 7"},
      {"1 2 3 4", [](V& v) { v.Recreate(2, 9, 7); }, "7 7"},
      {"1 2 3 4", [](V& v) { v.Recreate(0, 0); }, ""},
      {"", [](V& v) { v.Recreate(0, 0); }, "EMPTY_INPUT; "},
      {"", [](V& v) { v.Recreate(2, 5, 1); }, "1 1"},  // Create: the start ignored
      // Appending reads its value before releasing the old array.
      {"", [](V& v) { v.AppendVector(Lv(V())); }, "EMPTY_INPUT; "},
      {"1 2", [](V& v) { v &= Lv(V()), v.AppendVector(Lv(V())), v.Recreate(4, 0, v[1]); },
       "1 2 2 2"},
      {"1 2", [](V& v) { v.AppendItem(v[0]), v += 9, v &= Lv(Vec("3")); }, "1 2 1 9 3"},
      {"1 2", [](V& v) { v = *&v; }, "1 2"},
      {"1 2", [](V& v) { v = V(); }, ""},
      {"1 2 3", [](V& v) { v[3]; }, "BAD_POSITION; 1 2 3"},
  });
  alignas(V) unsigned char storage[sizeof(V)];
  EXPECT_ZEL_THROW(new (storage) V(0u), ZEL_ERR_EMPTY_INPUT, storage);
  EXPECT_ZEL_THROW(new (storage) V(0u, 5), ZEL_ERR_EMPTY_INPUT, storage);
  EXPECT_ZEL_THROW(new (storage) V(Ints("4").data(), 0u), ZEL_ERR_EMPTY_INPUT, storage);
  V empty, v(3u, 1);
  EXPECT_EQ(V(empty).GetBuf(), nullptr);
  EXPECT_EQ(!v, 3u);  // the length, not an emptiness flag
  int* buf = v.GetBuf();
  v = Vec("4 5 6");  // an equal length reuses the array
  EXPECT_EQ(v.GetBuf(), buf);
  EXPECT_EQ(v.DeleteAll().GetBuf(), nullptr);
}

TEST(CZEL_Vector, EqualityAndFind) {
  EXPECT_TRUE(Vec("1 2 3") == Vec("1 2 3") && V() == V());
  EXPECT_TRUE(Vec("1 2 3") != Vec("1 2 4") && Vec("1 2 3") != Vec("1 2"));
  V v = Vec("5 6 5 7");  // the searches include their start
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
}

TEST(CZEL_Vector, CopyInsertDeleteFill) {
  Check<V>({
      {"1 2 3", [](V& v) { v.CopyItemsFrom(0xFFFFFFF0u, v, 0, 0, 0); }, "1 2 3"},  // count 0
      {"1 2 3", [](V& v) { v.CopyItemsFrom(2, Lv(Vec("8 9")), 0, 2, 0); },
       "INVALID_ARGUMENT; 1 2 3"},
      // A source too short throws its own code, the items before it written.
      {"1 2 3", [](V& v) { v.CopyItemsFrom(0, Lv(Vec("8 9")), 1, 2, 0); },
       "BAD_POSITION by another; 9 2 3"},
      // Past the end with extend; the slots between stay unset, zeroed here.
      {"1 2 3", [](V& v) { v.CopyItemsFrom(5, Lv(Vec("8 9")), 0, 2, 1), v[3] = v[4] = 0; },
       "1 2 3 0 0 8 9"},
      {"1 2 3 4", [](V& v) { v.CopyItemsFrom(1, v, 0, 3, 0); }, "1 1 1 1"},  // rising copy
      {"1 2 3 4", [](V& v) { v.CopyItemsFrom(2, Ints("0 5 6").data(), 1, 2, 0); }, "1 2 5 6"},
      {"1 2 3", [](V& v) { v.InsertItems(1, 9, 2, 1); }, "1 9 9 2 3"},
      {"1 2 3 4", [](V& v) { v.InsertItems(1, 9, 2, 0); }, "1 9 9 2"},
      {"1 2", [](V& v) { v.InsertItems(2, 9, 1, 0); }, "INVALID_ARGUMENT; 1 2"},
      // At the end only with the growth; the value may lie in the released array.
      {"1 2", [](V& v) { v.InsertItems(2, 9, 1, 1).InsertItems(0, v[1], 1, 1); }, "2 1 2 9"},
      {"", [](V& v) { v.InsertItems(0, 9, 0, 1); }, "EMPTY_INPUT; "},
      // From a vector or array the vector grows past its end even without extend.
      {"1 2 3", [](V& v) { v.InsertItems(2, Lv(Vec("7 8 9")), 3, 0, 0); }, "1 2 7 8 9"},
      {"1 2", [](V& v) { v.InsertItems(0, Ints("4 5 6").data(), 1, 2, 1); }, "6 1 2"},
      {"1 2 3 4", [](V& v) { v.DeleteItems(1, 2, 0); }, "1 4 3 4"},
      {"1 2 3 4", [](V& v) { v.DeleteItems(1, 2, 1); }, "1 4"},
      {"1 2 3 4", [](V& v) { v.DeleteItems(1, 99, 1); }, "1"},
      {"1 2 3", [](V& v) { v.DeleteItems(1, 0xFFFFFFFFu, 0); }, "1 2 3"},
      {"1 2", [](V& v) { v.DeleteItems(2, 1, 1); }, "INVALID_ARGUMENT; 1 2"},
      {"1 2 3", [](V& v) { v.Fill(0).Fill(5, 1, 2, 0); }, "0 5 5"},
      {"1 2 3", [](V& v) { v.Fill(4, 2, 2, 0); }, "INVALID_ARGUMENT; 1 2 3"},
      {"0 5 5", [](V& v) { v.Fill(v[1], 2, 2, 1); }, "0 5 5 5"},
  });
  int out[5] = {0, 0, 0, 0, 0};
  Vec("1 1 5 6").CopyItemsTo(1, out, 2, 9);  // stops at the vector's end
  EXPECT_EQ(IntList(out, out + 5), Ints("0 5 6 0 0"));
}

// The vector that v.Extract(out, pos, count) leaves in `out`, which held 9.
V Extracted(V const& v, ZEL::u32 pos, ZEL::u32 count) {
  V out = Vec("9");
  v.Extract(out, pos, count);
  return out;
}

TEST(CZEL_Vector, ShiftSwapInvertExtract) {
  Check<V>({
      {"1 2 3", [](V& v) { v.UpShift(1, 1); }, "1 3 3"},
      {"1 2 3", [](V& v) { v.DownShift(1, 1), v.DownShift(0, 3); }, "1 2 2"},  // count = length
      {"1 2 3", [](V& v) { v.UpShift(3, 1); }, "INVALID_ARGUMENT; 1 2 3"},
      {"1 2 3", [](V& v) { v.DownShift(3, 1); }, "INVALID_ARGUMENT; 1 2 3"},
      {"", [](V& v) { v.DownShift(5, 1); }, ""},  // length - 1 is the largest u32 here
      {"", [](V& v) { v.UpShift(0, 1); }, "INVALID_ARGUMENT; "},
      {"1 2 3", [](V& v) { v.SwapItems(0, 2), v.SwapItems(3, 0); }, "3 2 1"},  // 3 passes
      {"1 2 3", [](V& v) { v.SwapItems(4, 0); }, "INVALID_ARGUMENT; 1 2 3"},
      {"1 2 3", [](V& v) { v.SwapItems(0, 4); }, "INVALID_ARGUMENT; 1 2 3"},
      {"1 2 3 4 5", [](V& v) { v.InvertItemsOrder().InvertItemsOrder(1, 2); }, "5 3 4 2 1"},
      {"1 2 3 4", [](V& v) { v.InvertItemsOrder(2, 4); }, "INVALID_ARGUMENT; 1 2 3 4"},
      {"1 2 3 4", [](V& v) { v.InvertItemsOrder(1, 4); }, "1 2 4 3"},  // the length: 2 swap
      {"1 2 3 4", [](V& v) { v = Extracted(v, 1, 2); }, "2 3"},
      // Only 4 exists: the further slots stay unset, zeroed here.
      {"1 2 3 4", [](V& v) { v = Extracted(v, 3, 3), v[1] = v[2] = 0; }, "4 0 0"},
      {"1 2 3 4", [](V& v) { v = v.ExtractInvertVector(1, 3); }, "4 3 2"},
      {"1 2 3 4", [](V& v) { v = v.ExtractInvertVector(2, 4), v[0] = v[1] = 0; }, "0 0 4 3"},
  });
  V v = Vec("1 2"), out = Vec("9");
  EXPECT_ZEL_THROW(v.Extract(out, 0, 0), ZEL_ERR_EMPTY_INPUT, &out);
  EXPECT_EQ(out.GetLength(), 0u);  // emptied before the throw
}

TEST(CZEL_Vector, FromListReadsFromTheHeadOrTheCursor) {
  // An edit with a list source: the vector's outcome, then the source list.
  struct {
    char const *before, *source;
    void (*edit)(V&, L&);
    char const* after;
  } const rows[] = {
      {"", "", [](V& v, L& l) { v.AppendList(l); }, "EMPTY_INPUT; /"},
      {"1", "", [](V& v, L& l) { v = l; }, "/"},
      {"9 9", "1 [2] 3", [](V& v, L& l) { v = l; }, "1 2 3/1 2 [3]"},
      {"4", "1 [2] 3", [](V& v, L& l) { (v &= Lv(L())).AppendList(l); }, "4 1 2 3/1 2 [3]"},
      // CopyItemsFrom reads from the cursor, stops quietly at the tail, and
      // leaves the cursor on the item after the last one copied.
      {"1 2 3 4 5", "[8] 9", [](V& v, L& l) { v.CopyItemsFrom(0, l, 5, 0); }, "8 9 3 4 5/8 [9]"},
      {"1 2 3 4 5", "1 [2] 3 4", [](V& v, L& l) { v.CopyItemsFrom(3, l, 2, 0); },
       "1 2 3 2 3/1 2 3 [4]"},
      {"1 2", "", [](V& v, L& l) { v.CopyItemsFrom(7, l, 0, 0); }, "1 2/"},  // count 0
      {"1 2", "", [](V& v, L& l) { v.CopyItemsFrom(0, l, 1, 0); }, "BAD_POSITION by another; 1 2/"},
      {"1 2", "[5] 6 7", [](V& v, L& l) { v.CopyItemsFrom(1, l, 2, 0); },
       "INVALID_ARGUMENT; 1 2/[5] 6 7"},
      {"1 2", "[5] 6 7", [](V& v, L& l) { v.CopyItemsFrom(1, l, 2, 1); }, "1 5 6/5 6 [7]"},
      {"1 2 3", "7 [8] 9", [](V& v, L& l) { v = v.InsertItems(1, l, 2, 1); }, "1 8 9 2 3/7 8 [9]"},
      {"1 2 3", "[7] 8 9", [](V& v, L& l) { v.InsertItems(0, l, 2, 0); }, "7 8 1/7 8 [9]"},
  };
  for (auto const& r : rows) {
    V v = Vec(r.before);
    L list = Parse(r.source);
    std::string const got = Outcome(v, [&](V& w) { r.edit(w, list); });
    EXPECT_EQ(got + "/" + Text(list), r.after) << r.source;
  }
}

struct Escape {};

// Compares by ByKey and records each call's first argument; throws Escape
// once `budget` calls are used up, the only way out of a vector's Sort.
int budget = 0;
IntList firsts;
signed char Escaping(int const& a, int const& b) {
  if (budget-- == 0) throw Escape();
  firsts.push_back(a);
  return ByKey(a, b);
}

TEST(CZEL_Vector, SortKeepsPassingUntilTheComparatorThrows) {
  V empty;
  EXPECT_ZEL_THROW(empty.Sort(&Escaping, 1), ZEL_ERR_INVALID_ARGUMENT, &empty);
  // Each pair is asked twice, (later, earlier), except when the first answer
  // already exchanges it in falling order. 200 calls are more than any pass
  // count that orders eight items needs; equal keys keep their order.
  struct {
    char const* items;
    ZEL::u8 ascending;
    int calls;
    char const *after, *firsts;
  } const rows[] = {
      {"4", 1, 0, "4", ""},  // returns without a call
      {"3 1 4 1 5 9 2 6", 1, 200, "1 1 2 3 4 5 6 9", nullptr},
      {"3 1 4 1 5 9 2 6", 0, 200, "9 6 5 4 3 2 1 1", nullptr},
      {"3 1 4 1 5 9 2 6", 7, 200, "1 1 2 3 4 5 6 9", nullptr},
      {"102 1 202 101", 1, 200, "1 101 102 202", nullptr},
      {"2 1", 1, 4, "1 2", "1 1 2 2"},  // exchanged at the second call, then in order
      {"1 2", 0, 4, "2 1", "2 1 1 1"},  // exchanged at the first call
      {"1 2", 1, 4, "1 2", "2 2 2 2"},
  };
  for (auto const& r : rows) {
    SCOPED_TRACE(r.items);
    V v = Vec(r.items);
    budget = r.calls;
    firsts.clear();
    if (v.GetLength() > 1) {
      EXPECT_THROW(v.Sort(&Escaping, r.ascending), Escape);
    } else {
      v.Sort(&Escaping, r.ascending);
    }
    EXPECT_EQ(Text(v), r.after);
    if (r.firsts != nullptr) {
      EXPECT_EQ(firsts, Ints(r.firsts));
    }
  }
}

}  // namespace
