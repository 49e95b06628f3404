#include "ContainerTestSupport.h"

#include <new>
#include <type_traits>
#include <vector>

namespace {

using L = CZEL_List<int>;
using IntList = std::vector<int>;
using zel_test::Cursor;
using zel_test::Fill;
using zel_test::Forward;

// A list of the items with the cursor on position `cursor`.
L Make(IntList const& items, ZEL::u32 cursor = 0) {
  L list;
  Fill(list, items);
  if (!items.empty()) list.ToPos(cursor);
  return list;
}

// Construction and assignment --------------------------------------------------

TEST(CZEL_ListConstruction, CountsAndSources) {
  L none(0u, 5);
  EXPECT_EQ(none.GetLength(), 0u);
  std::aligned_storage<sizeof(L), alignof(L)>::type storage;
  int raw[] = {1, 2, 3};
  EXPECT_ZEL_THROW(new (&storage) L(raw, 0u), ZEL_ERR_EMPTY_INPUT, &storage);
  L fromRaw(raw, 3);
  EXPECT_EQ(Cursor(fromRaw), 1);
  EXPECT_EQ(!fromRaw, 3u);
  L sevens(3u, 7);
  EXPECT_EQ(sevens.IsStart(), 1);
  L source = Make({4, 5}, 1);
  L copy(source);
  EXPECT_EQ(Cursor(copy), 4);
  EXPECT_EQ(Forward(copy), (IntList{4, 5}));
}

TEST(CZEL_ListConstruction, AssignmentFromAnEmptyListChangesNothing) {
  L a = Make({1, 2, 3}, 2);
  L empty;
  a = empty;
  EXPECT_EQ(a.GetLength(), 3u);
  EXPECT_EQ(Cursor(a), 3);
  CZEL_Vector<int> noItems;
  a = noItems;  // a vector source empties the list
  EXPECT_EQ(a.GetLength(), 0u);
  EXPECT_EQ(a.CurItemRef(), nullptr);
}

TEST(CZEL_ListConstruction, AssignmentReusesNodes) {
  L a = Make({1, 2, 3}, 2);
  a.ToStart();
  void* head = a.CurItemRef();
  a = Make({7, 8});
  EXPECT_EQ(a.CurItemRef(), head);  // cursor to the head, the first node kept
  EXPECT_EQ(Forward(a), (IntList{7, 8}));
  EXPECT_EQ(a.ToEnd(), 8);
  a = Make({4, 5, 6, 7}, 3);
  EXPECT_EQ(Cursor(a), 4);
  EXPECT_EQ(Forward(a), (IntList{4, 5, 6, 7}));
  auto& same = a;
  a = same;  // self-assignment
  EXPECT_EQ(a.GetLength(), 4u);
}

TEST(CZEL_ListConstruction, AssignmentFromAVectorEndsOnTheTail) {
  int raw[] = {5, 6};
  CZEL_Vector<int> v(raw, 2);
  L a = Make({1, 2, 3});
  a = v;
  EXPECT_EQ(Cursor(a), 6);
  EXPECT_EQ(Forward(a), (IntList{5, 6}));
}

// Cursor movement ------------------------------------------------------------------

TEST(CZEL_ListCursor, ReadLoopHandsOutTheItemBeforeTheStep) {
  L list = Make({1, 2, 3});
  IntList seen;
  for (int i = 0; i < 4; ++i) seen.push_back(list >> 1);
  EXPECT_EQ(seen, (IntList{1, 2, 3, 3}));
  EXPECT_EQ(list.IsEnd(), 1);
  EXPECT_EQ(list << 5, 3);
  EXPECT_EQ(list.IsStart(), 1);
  EXPECT_EQ(list.Next(5), 1);
  EXPECT_EQ(Cursor(list), 3);
  EXPECT_EQ(list.Prev(1), 3);
  EXPECT_EQ(list.Next(0), 2);
}

TEST(CZEL_ListCursor, PositionsAreChecked) {
  L list = Make({1, 2, 3}, 1);
  EXPECT_ZEL_THROW(list.ToPos(3), ZEL_ERR_BAD_POSITION, &list);
  EXPECT_EQ(Cursor(list), 2);
  EXPECT_EQ(list.ToPos(2), 3);
  EXPECT_EQ(list[0], 1);
  EXPECT_EQ(Cursor(list), 1);  // indexing moves the cursor
}

TEST(CZEL_ListCursor, EmptyList) {
  L list;
  EXPECT_EQ(list.IsStart(), 1);
  EXPECT_EQ(list.IsEnd(), 1);
  EXPECT_EQ(list.ItemsFromStart(), 0u);
  EXPECT_EQ(list.ItemsToEnd(), 0u);
  list.ToStart();  // no throw; the reference is not to be used
  list.ToEnd();
  EXPECT_ZEL_THROW(list.CurItem(), ZEL_ERR_BAD_POSITION, &list);
  EXPECT_ZEL_THROW(list >> 1, ZEL_ERR_BAD_POSITION, &list);
  EXPECT_ZEL_THROW(list << 1, ZEL_ERR_BAD_POSITION, &list);
  EXPECT_ZEL_THROW(list[0], ZEL_ERR_BAD_POSITION, &list);
}

TEST(CZEL_ListCursor, CountsAroundTheCursor) {
  L list = Make({1, 2, 3, 4}, 1);
  EXPECT_EQ(list.ItemsFromStart(), 1u);
  EXPECT_EQ(list.ItemsToEnd(), 2u);
}

TEST(CZEL_ListCursor, FindStartsAtTheCursor) {
  L list = Make({5, 6, 5, 7}, 1);
  EXPECT_EQ(list.FindToEnd(6), 1);  // the cursor's own item counts
  EXPECT_EQ(list.ItemsFromStart(), 1u);
  EXPECT_EQ(list.FindToEnd(5), 1);
  EXPECT_EQ(list.ItemsFromStart(), 2u);
  EXPECT_EQ(list.FindToEnd(6), 0);  // 6 lies before the cursor
  EXPECT_EQ(list.ItemsFromStart(), 2u);
  EXPECT_EQ(list.FindToStart(5), 1);
  EXPECT_EQ(list.ItemsFromStart(), 2u);
  list.ToEnd();
  EXPECT_EQ(list.FindToStart(6), 1);
  EXPECT_EQ(list.ItemsFromStart(), 1u);
}

TEST(CZEL_ListCursor, EqualityIgnoresCursors) {
  L a = Make({1, 2}, 0), b = Make({1, 2}, 1);
  EXPECT_TRUE(a == b);
  EXPECT_EQ(Cursor(b), 2);
  EXPECT_TRUE(a != Make({1, 3}));
  EXPECT_TRUE(a != Make({1}));
  EXPECT_TRUE(L() == L());
}

// Insertion ---------------------------------------------------------------------

TEST(CZEL_ListInsert, InsertItemGoesBeforeTheCursor) {
  L list = Make({1, 2, 3}, 1);
  list.InsertItem(9);
  EXPECT_EQ(Cursor(list), 9);
  list.InsertItem(8);
  EXPECT_EQ(list.ItemsFromStart(), 1u);
  EXPECT_EQ(Forward(list), (IntList{1, 8, 9, 2, 3}));
  L empty;
  *empty.InsertItem() = 4;
  *empty.AppendItem() = 5;
  EXPECT_EQ(Forward(empty), (IntList{4, 5}));
}

TEST(CZEL_ListInsert, PushAndPop) {
  L list = Make({1});
  list.Push(2);
  int out = 0;
  EXPECT_EQ(list.Pop(&out), 1);
  EXPECT_EQ(out, 2);
  EXPECT_EQ(Cursor(list), 1);
  EXPECT_EQ(list.Pop(&out), 1);
  out = 42;
  EXPECT_EQ(list.Pop(&out), 0);
  EXPECT_EQ(out, 42);
}

TEST(CZEL_ListInsert, Appends) {
  L list = Make({1}, 0);
  int raw[] = {0, 2, 3};
  list.AppendItems(raw, 2, 1);
  EXPECT_EQ(Cursor(list), 3);
  L src = Make({7, 8, 9}, 1);
  L copy = list.AppendItems(src, 5);  // from src's cursor, stopping at its end
  EXPECT_EQ(Cursor(src), 8);
  EXPECT_EQ(Forward(copy), (IntList{1, 2, 3, 8, 9}));
  list.AppendList(src);  // from src's head
  list.ToStart();
  CZEL_Vector<int> none;
  list &= none;
  EXPECT_EQ(Cursor(list), 9);
  EXPECT_EQ(Forward(list), (IntList{1, 2, 3, 8, 9, 7, 8, 9}));
}

TEST(CZEL_ListInsert, InsertItemsLeavesTheCursorsBackLink) {
  L list = Make({1, 2, 3}, 2);
  int raw[] = {7, 8};
  list.InsertItems(raw, 2, 0);
  EXPECT_EQ(list.GetLength(), 5u);
  EXPECT_EQ(Cursor(list), 3);
  EXPECT_EQ(list.ItemsFromStart(), 2u);  // the back-link passes over 7 and 8
  EXPECT_EQ(list.FindToStart(8), 0);
  EXPECT_EQ(list.Prev(1), 3);
  EXPECT_EQ(Cursor(list), 2);
  EXPECT_EQ(list.Next(1), 2);
  EXPECT_EQ(Cursor(list), 7);  // the forward links run through the new items
  EXPECT_EQ(Forward(list), (IntList{1, 2, 7, 8, 3}));
}

TEST(CZEL_ListInsert, InsertItemsAtTheHead) {
  L list = Make({1, 2}, 0);
  int raw[] = {7, 8};
  list.InsertItems(raw, 2, 0);
  EXPECT_EQ(list.IsStart(), 0);
  EXPECT_EQ(list.ItemsFromStart(), 0u);
  EXPECT_EQ(Forward(list), (IntList{7, 8, 1, 2}));
}

TEST(CZEL_ListInsert, InsertItemsFromVectorAndList) {
  int raw[] = {7, 8};
  CZEL_Vector<int> v(raw, 2);
  L list = Make({1, 2}, 1);
  list.InsertItems(v, 5, 1);  // stops quietly at the vector's end
  EXPECT_EQ(list.GetLength(), 3u);
  L src = Make({5, 6}, 1);
  // The cursor's back-link still names 1, so the new run replaces 8 in the
  // forward chain; 8 stays counted.
  L copy = list.InsertItems(src, 1);
  EXPECT_EQ(list.GetLength(), 4u);
  EXPECT_EQ(Forward(copy), (IntList{1, 6, 2}));
  EXPECT_EQ(Forward(list), (IntList{1, 6, 2}));
  L empty;
  EXPECT_ZEL_THROW(empty.InsertItems(raw, 1, 0), ZEL_ERR_BAD_POSITION, &empty);
}

TEST(CZEL_ListInsert, ShortListSourceLeavesCountedNodesUnlinked) {
  L list = Make({1, 2, 3}, 1);
  L src = Make({8, 9}, 0);
  EXPECT_ZEL_THROW(list.InsertItems(src, 3), ZEL_ERR_BAD_POSITION, &list);
  EXPECT_EQ(list.GetLength(), 5u);
  EXPECT_EQ(Cursor(list), 2);
  EXPECT_EQ(list.Next(1), 2);
  EXPECT_EQ(Cursor(list), 3);
  EXPECT_EQ(Forward(list), (IntList{1, 8, 9}));  // 9 does not lead on to 2
}

TEST(CZEL_ListInsert, InsertListRecordsItsLastNodeAsTheTail) {
  L list = Make({1, 2, 3}, 1);
  L src = Make({7, 8}, 1);
  list.InsertList(src);
  EXPECT_EQ(list.GetLength(), 5u);
  EXPECT_EQ(Cursor(list), 8);
  EXPECT_EQ(list.IsEnd(), 1);
  EXPECT_EQ(list.ItemsToEnd(), 2u);
  EXPECT_EQ(list.ItemsFromStart(), 2u);
  EXPECT_EQ(Forward(list), (IntList{1, 7, 8, 2, 3}));
  list += 5;  // linked behind the recorded tail: 2 and 3 drop out, still counted
  EXPECT_EQ(list.GetLength(), 6u);
  EXPECT_EQ(Forward(list), (IntList{1, 7, 8, 5}));
  L empty;
  empty.InsertList(src);
  EXPECT_EQ(Cursor(empty), 8);
}

TEST(CZEL_ListInsert, EditsAfterBrokenLinksStaySafe) {
  // The node before an inserted run goes while the cursor's back-link still
  // names it; stepping back over it must not reach freed memory.
  L list = Make({1, 2, 3}, 2);
  int raw[] = {7};
  list.InsertItems(raw, 1, 0);
  list.ToPos(1);
  list.DeleteItem();  // removes 2, named by 3's back-link
  EXPECT_EQ(Forward(list), (IntList{1, 7, 3}));
  list.ToEnd();
  EXPECT_EQ(list.Prev(1), 3);
  list.InsertItems(raw, 1, 0);
  list.DeleteItems(2);
  list.Truncate(0);
  list.ToStart();
  list.Truncate(1);
}

TEST(CZEL_ListInsert, SecondInsertAtTheSameCursorReplacesTheFirstRun) {
  L list = Make({1, 2, 3}, 2);
  int raw[] = {7, 8, 9};
  list.InsertItems(raw, 2, 0);
  list.InsertItems(raw, 1, 2);
  EXPECT_EQ(list.GetLength(), 6u);
  EXPECT_EQ(Forward(list), (IntList{1, 2, 9, 3}));
}

TEST(CZEL_ListInsert, EmptyingTheLinksKeepsUnreachedNodesCounted) {
  // DeleteItems and Truncate count only the nodes they remove: after links
  // went out of step, nodes they can't reach stay in the length.
  L viaDelete = Make({1, 2, 3}, 0);
  L src = Make({7, 8});
  viaDelete.InsertList(src);  // 7, 8 before 1; the recorded tail is 8
  viaDelete.ToStart();
  viaDelete.DeleteItems(5);  // removes 7 and 8, stops at the recorded tail
  EXPECT_EQ(viaDelete.GetLength(), 3u);
  viaDelete += 9;
  EXPECT_EQ(viaDelete.GetLength(), 4u);
  EXPECT_EQ(Forward(viaDelete), (IntList{9}));

  L viaTruncate = Make({1, 2, 3}, 1);
  int raw[] = {7, 8};
  viaTruncate.InsertItems(raw, 2, 0);  // 3's back-link passes over 7, 8
  viaTruncate.ToEnd();
  viaTruncate.Truncate(1);  // the back walk removes 3, 2, 1
  EXPECT_EQ(viaTruncate.GetLength(), 2u);
  viaTruncate.DeleteAll();
  EXPECT_EQ(viaTruncate.GetLength(), 0u);
}

// Deletion ------------------------------------------------------------------------

TEST(CZEL_ListDelete, DeleteItem) {
  struct Row {
    ZEL::u32 cursor;
    IntList after;
    int cursorAfter;
  };
  Row const rows[] = {{2, {1, 2}, 2}, {0, {2, 3}, 2}, {1, {1, 3}, 3}};
  for (Row const& r : rows) {
    L list = Make({1, 2, 3}, r.cursor);
    list.DeleteItem();
    EXPECT_EQ(Cursor(list), r.cursorAfter);
    EXPECT_EQ(Forward(list), r.after);
  }
  L one = Make({1});
  one.DeleteItem().DeleteItem();
  EXPECT_EQ(one.GetLength(), 0u);
  EXPECT_EQ(Cursor(one), -1);
}

TEST(CZEL_ListDelete, DeleteItems) {
  struct Row {
    IntList before;
    ZEL::u32 cursor, count;
    IntList after;
    int cursorAfter;
  };
  Row const rows[] = {
      {{1, 2, 3}, 1, 99, {1}, 1},      {{1, 2, 3}, 1, 1, {1, 3}, 3},
      {{1, 2, 3}, 1, 0, {1, 2, 3}, 2}, {{1, 2, 3}, 0, 2, {3}, 3},
      {{1, 2, 3}, 0, 3, {}, -1},       {{1, 2, 3, 4}, 1, 2, {1, 4}, 4},
  };
  for (Row const& r : rows) {
    L list = Make(r.before, r.cursor);
    list.DeleteItems(r.count);
    EXPECT_EQ(Cursor(list), r.cursorAfter) << r.cursor << "," << r.count;
    EXPECT_EQ(list.GetLength(), r.after.size());
    EXPECT_EQ(Forward(list), r.after);
  }
  L empty;
  empty.DeleteItems(3);
}

TEST(CZEL_ListDelete, Truncate) {
  struct Row {
    ZEL::u32 cursor;
    ZEL::u8 fromStart;
    IntList after;
  };
  Row const rows[] = {{1, 1, {3}}, {1, 0, {1}}, {2, 1, {}}, {0, 0, {}}, {0, 1, {2, 3}}};
  for (Row const& r : rows) {
    L list = Make({1, 2, 3}, r.cursor);
    list.Truncate(r.fromStart);
    EXPECT_EQ(list.GetLength(), r.after.size());
    EXPECT_EQ(list.IsEnd(), 1);
    EXPECT_EQ(Forward(list), r.after);
  }
  L empty;
  empty.Truncate(1);
}

// Overwriting and copying out ---------------------------------------------------------

TEST(CZEL_ListCopies, CopyItemsFromStopsQuietlyAtTheTail) {
  L list = Make({1, 2, 3}, 1);
  int raw[] = {0, 7, 8, 9};
  list.CopyItemsFrom(raw, 1, 9);
  EXPECT_EQ(Cursor(list), 7);
  EXPECT_EQ(Forward(list), (IntList{1, 7, 8}));
  CZEL_Vector<int> v(raw, 2);
  list.ToStart();
  list.CopyItemsFrom(v, 1, 9);  // stops at the vector's end
  EXPECT_EQ(Forward(list), (IntList{7, 7, 8}));
  L empty;
  EXPECT_ZEL_THROW(empty.CopyItemsFrom(raw, 0, 1), ZEL_ERR_BAD_POSITION, &empty);
  EXPECT_ZEL_THROW(empty.CopyItemsFrom(v, 0, 1), ZEL_ERR_BAD_POSITION, &empty);
}

TEST(CZEL_ListCopies, CopyItemsFromListIsStrict) {
  L list = Make({1, 2, 3}, 1);
  L src = Make({8, 9}, 0);
  EXPECT_ZEL_THROW(list.CopyItemsFrom(src, 3), ZEL_ERR_BAD_POSITION, &list);
  EXPECT_EQ(Forward(list), (IntList{1, 8, 9}));  // the items written stay
  EXPECT_EQ(Cursor(src), 8);
  L empty, other;
  empty.CopyItemsFrom(other, 0);
  list.ToPos(2);
  EXPECT_ZEL_THROW(list.CopyItemsFrom(src, 2), ZEL_ERR_BAD_POSITION, &list);
}

TEST(CZEL_ListCopies, CopyItemsToAndExtract) {
  L list = Make({1, 2, 3}, 1);
  int out[4] = {0, 0, 0, 0};
  list.CopyItemsTo(out, 1, 9);
  EXPECT_EQ(IntList(out, out + 4), (IntList{0, 2, 3, 0}));
  L part = Make({9});
  list.Extract(part, 1);
  EXPECT_EQ(Forward(part), (IntList{2}));
  EXPECT_EQ(Cursor(list), 2);
  L empty;
  EXPECT_ZEL_THROW(empty.CopyItemsTo(out, 0, 0), ZEL_ERR_BAD_POSITION, &empty);
  EXPECT_ZEL_THROW(empty.Extract(part, 1), ZEL_ERR_BAD_POSITION, &empty);
  EXPECT_EQ(part.GetLength(), 1u);  // out untouched
}

// Order -------------------------------------------------------------------------------

TEST(CZEL_ListOrder, SwapItemsRelinks) {
  L list = Make({1, 2, 3}, 0);
  int* first = &list.CurItem();
  list.SwapItems(list.CurItemRef());
  EXPECT_EQ(&list.CurItem(), first);  // cursor and item stay together
  EXPECT_EQ(list.ItemsFromStart(), 1u);
  list.ToPos(1);
  list.SwapItems(list.CurItemRef());
  EXPECT_EQ(list.IsEnd(), 1);
  EXPECT_EQ(Forward(list), (IntList{2, 3, 1}));
  list.ToEnd();
  list.SwapItems(list.CurItemRef());  // a node without a successor: no change
  EXPECT_EQ(Forward(list), (IntList{2, 3, 1}));
}

signed char Ints(int const& a, int const& b) { return a > b ? 1 : a < b ? -1 : 0; }

TEST(CZEL_ListOrder, SortRelinksAndTheCursorFollows) {
  L list = Make({3, 1, 2}, 0);
  list.Sort(&Ints, 1);
  EXPECT_EQ(Cursor(list), 3);
  EXPECT_EQ(list.ItemsFromStart(), 2u);
  EXPECT_EQ(Forward(list), (IntList{1, 2, 3}));
  list.Sort(&Ints, 0);
  EXPECT_EQ(Forward(list), (IntList{3, 2, 1}));
  L empty;
  empty.Sort(&Ints, 1);
}

TEST(CZEL_ListOrder, SortKeepsEqualItemsInOrder) {
  using zel_test::Keyed;
  Keyed raw[] = {{2, 0}, {1, 1}, {2, 2}, {1, 3}};
  CZEL_List<Keyed> list(raw, 4);
  list.Sort(&zel_test::ByKey, 1);
  IntList tags;
  list.ToStart();
  for (int i = 0; i < 4; ++i) tags.push_back((list >> 1).tag);
  EXPECT_EQ(tags, (IntList{1, 3, 0, 2}));
}

}  // namespace
