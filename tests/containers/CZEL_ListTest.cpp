#include "ContainerTestSupport.h"

#include <algorithm>
#include <new>
#include <vector>

namespace {

using namespace zel_test;

TEST(CZEL_ListConstruction, CountsAndSources) {
  EXPECT_EQ(L(0u, 5).GetLength(), 0u);
  alignas(L) unsigned char storage[sizeof(L)];
  int raw[] = {1, 2, 3};
  EXPECT_ZEL_THROW(new (storage) L(raw, 0u), ZEL_ERR_EMPTY_INPUT, storage);
  L fromRaw(raw, 3), sevens(3u, 7);
  EXPECT_EQ(!fromRaw, 3u);
  EXPECT_EQ(Show(fromRaw), "[1] 2 3");
  EXPECT_EQ(Show(sevens), "[7] 7 7");
  L source = MakeList({4, 5}, 1);
  L copy(source);
  EXPECT_EQ(Show(copy), "[4] 5");
}

TEST(CZEL_ListConstruction, AssignmentFromAnEmptyListChangesNothing) {
  L a = MakeList({1, 2, 3}, 1);
  L empty;
  a = empty;
  EXPECT_EQ(Show(a), "1 [2] 3");
  V v = MakeVector({5, 6}), none;
  a = v;  // the vector's items replace the list's, the cursor on the tail
  EXPECT_EQ(Show(a), "5 [6]");
  a = none;  // an empty vector empties the list
  EXPECT_EQ(a.GetLength(), 0u);
  EXPECT_EQ(a.CurItemRef(), nullptr);
}

TEST(CZEL_ListConstruction, AssignmentReusesNodes) {
  L a = MakeList({1, 2, 3}, 2);
  void* head = &a.ToStart();
  a.ToEnd();
  a = MakeList({7, 8});
  EXPECT_EQ(&a.CurItem(), head);  // cursor to the head, the first node kept
  EXPECT_EQ(Show(a), "[7] 8");
  EXPECT_EQ(a.ToEnd(), 8);
  a = MakeList({4, 5, 6, 7}, 3);
  EXPECT_EQ(Show(a), "[4] 5 6 7");
  auto& same = a;
  a = same;
  EXPECT_EQ(a.GetLength(), 4u);
}

TEST(CZEL_ListCursor, ReadLoopHandsOutTheItemBeforeTheStep) {
  L list = MakeList({1, 2, 3});
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

TEST(CZEL_ListCursor, PositionsAreCheckedIndexingMovesAndEqualityIgnoresCursors) {
  L list = MakeList({1, 2, 3, 4}, 1);
  EXPECT_EQ(list.ItemsFromStart(), 1u);
  EXPECT_EQ(list.ItemsToEnd(), 2u);
  EXPECT_ZEL_THROW(list.ToPos(4), ZEL_ERR_BAD_POSITION, &list);
  EXPECT_EQ(Cursor(list), 2);
  EXPECT_EQ(list.ToPos(2), 3);
  EXPECT_EQ(list[0], 1);
  EXPECT_EQ(Cursor(list), 1);
  L other = MakeList({1, 2, 3, 4}, 2);
  EXPECT_TRUE(list == other);
  EXPECT_EQ(Cursor(other), 3);
  EXPECT_TRUE(list != MakeList({1, 2, 3, 5}));
  EXPECT_TRUE(list != MakeList({1, 2, 3}));
  EXPECT_TRUE(L() == L());
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

TEST(CZEL_ListCursor, FindStartsAtTheCursor) {
  L list = MakeList({5, 6, 5, 7}, 1);
  EXPECT_EQ(list.FindToEnd(6), 1);  // the cursor's own item counts
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

TEST(CZEL_ListInsert, InsertItemGoesBeforeTheCursor) {
  L list = MakeList({1, 2, 3}, 1);
  list.InsertItem(9);
  list.InsertItem(8);
  EXPECT_EQ(list.ItemsFromStart(), 1u);
  EXPECT_EQ(Show(list), "1 [8] 9 2 3");
  L empty;
  *empty.InsertItem() = 4;
  *empty.AppendItem() = 5;
  EXPECT_EQ(Show(empty), "4 [5]");
}

TEST(CZEL_ListInsert, PushAndPopWorkAtTheTail) {
  L list = MakeList({1, 2});
  list.Push(3);
  list.ToStart();
  int out = 0;
  EXPECT_EQ(list.Pop(&out), 1);
  EXPECT_EQ(out, 3);
  EXPECT_EQ(Show(list), "1 [2]");
  EXPECT_EQ(list.Pop(&out) + list.Pop(&out), 2);
  out = 42;
  EXPECT_EQ(list.Pop(&out), 0);
  EXPECT_EQ(out, 42);
}

TEST(CZEL_ListInsert, Appends) {
  L list = MakeList({1}, 0);
  int raw[] = {0, 2, 3};
  list.AppendItems(raw, 2, 1);
  EXPECT_EQ(Show(list), "1 2 [3]");
  L src = MakeList({7, 8, 9}, 1);
  L copy = list.AppendItems(src, 5);  // from src's cursor, stopping at its end
  EXPECT_EQ(Cursor(src), 8);
  EXPECT_EQ(Show(copy), "[1] 2 3 8 9");
  list.AppendList(src);  // from src's head
  V four = MakeVector({4}), none;
  list &= four;
  list.ToStart();
  list &= none;  // even an empty vector moves the cursor to the tail
  EXPECT_EQ(Show(list), "1 2 3 8 9 7 8 9 [4]");
}

TEST(CZEL_ListInsert, InsertItemsLeavesTheCursorsBackLink) {
  L list = MakeList({1, 2, 3}, 2);
  int raw[] = {0, 7, 8};
  list.InsertItems(raw, 2, 1);
  EXPECT_EQ(list.GetLength(), 5u);
  EXPECT_EQ(Cursor(list), 3);
  EXPECT_EQ(list.ItemsFromStart(), 2u);  // the back-link passes over 7 and 8
  EXPECT_EQ(list.FindToStart(8), 0);
  EXPECT_EQ(list.Prev(1), 3);
  EXPECT_EQ(list.Next(1), 2);
  EXPECT_EQ(Show(list), "1 2 [7] 8 3");  // the forward links run through the new items
  L atHead = MakeList({1, 2}, 0);
  atHead.InsertItems(raw, 2, 1);
  EXPECT_EQ(atHead.IsStart(), 0);
  EXPECT_EQ(atHead.ItemsFromStart(), 0u);
  EXPECT_EQ(Show(atHead), "7 8 [1] 2");
}

TEST(CZEL_ListInsert, InsertItemsFromVectorAndList) {
  V v = MakeVector({7, 8});
  L list = MakeList({1, 2}, 1);
  list.InsertItems(v, 5, 1);  // stops quietly at the vector's end
  EXPECT_EQ(list.GetLength(), 3u);
  L src = MakeList({5, 6}, 1);
  // The cursor's back-link still names 1, so the new run replaces 8 in the
  // forward chain; 8 stays counted.
  L copy = list.InsertItems(src, 1);
  EXPECT_EQ(list.GetLength(), 4u);
  EXPECT_EQ(Show(copy), "[1] 6 2");
  EXPECT_EQ(Show(list), "1 6 [2]");
  L empty;
  EXPECT_ZEL_THROW(empty.InsertItems(v.GetBuf(), 1, 0), ZEL_ERR_BAD_POSITION, &empty);
}

TEST(CZEL_ListInsert, ShortListSourceLeavesCountedNodesUnlinked) {
  L list = MakeList({1, 2, 3}, 1);
  L src = MakeList({8, 9}, 0);
  EXPECT_ZEL_THROW(list.InsertItems(src, 3), ZEL_ERR_BAD_POSITION, &list);
  EXPECT_EQ(list.GetLength(), 5u);
  EXPECT_EQ(list.Next(1), 2);
  EXPECT_EQ(Show(list), "1 8 9");  // 9 does not lead on to 2 and 3, where the cursor is
}

TEST(CZEL_ListInsert, InsertListRecordsItsLastNodeAsTheTail) {
  L list = MakeList({1, 2, 3}, 1);
  L src = MakeList({7, 8}, 1);
  list.InsertList(src);
  EXPECT_EQ(list.GetLength(), 5u);
  EXPECT_EQ(list.IsEnd(), 1);
  EXPECT_EQ(list.ItemsToEnd(), 2u);
  EXPECT_EQ(list.ItemsFromStart(), 2u);
  EXPECT_EQ(Show(list), "1 7 [8] 2 3");
  list += 5;  // linked behind the recorded tail: 2 and 3 drop out, still counted
  EXPECT_EQ(list.GetLength(), 6u);
  EXPECT_EQ(Show(list), "1 7 8 [5]");
  L empty;
  empty.InsertList(src);
  EXPECT_EQ(Show(empty), "7 [8]");
}

TEST(CZEL_ListInsert, EditsAfterBrokenLinksStaySafe) {
  // The node before an inserted run goes while the cursor's back-link still
  // names it; stepping back over it must not reach freed memory.
  L list = MakeList({1, 2, 3}, 2);
  int raw[] = {7};
  list.InsertItems(raw, 1, 0);
  list.ToPos(1);
  list.DeleteItem();  // removes 2, named by 3's back-link
  EXPECT_EQ(Show(list), "1 [7] 3");
  list.ToEnd();
  EXPECT_EQ(list.Prev(1), 3);
  list.InsertItems(raw, 1, 0);
  list.DeleteItems(2);
  list.Truncate(0);
  list.ToStart();
  list.Truncate(1);
}

TEST(CZEL_ListInsert, EmptyingTheLinksKeepsUnreachedNodesCounted) {
  // DeleteItems and Truncate count only the nodes they remove: after links
  // went out of step, nodes they can't reach stay in the length.
  L viaDelete = MakeList({1, 2, 3}, 0);
  L src = MakeList({7, 8});
  viaDelete.InsertList(src);  // 7, 8 before 1; the recorded tail is 8
  viaDelete.ToStart();
  viaDelete.DeleteItems(5);  // removes 7 and 8, stops at the recorded tail
  EXPECT_EQ(viaDelete.GetLength(), 3u);
  viaDelete += 9;
  EXPECT_EQ(viaDelete.GetLength(), 4u);
  EXPECT_EQ(Show(viaDelete), "[9]");

  L viaTruncate = MakeList({1, 2, 3}, 1);
  int raw[] = {7, 8};
  viaTruncate.InsertItems(raw, 2, 0);  // 3's back-link passes over 7, 8
  viaTruncate.ToEnd();
  viaTruncate.Truncate(1);  // the back walk removes 3, 2, 1
  EXPECT_EQ(viaTruncate.GetLength(), 2u);
  viaTruncate.DeleteAll();
  EXPECT_EQ(viaTruncate.GetLength(), 0u);
}

TEST(CZEL_ListDelete, DeleteItemsAndDeleteItem) {
  struct Row {
    ZEL::u32 cursor, count;
    char const* after;
  };
  Row const rows[] = {
      {2, 99, "1 [2]"}, {1, 0, "1 [2] 3 4"}, {0, 2, "[3] 4"},   {0, 4, ""},
      {1, 2, "1 [4]"},  {3, 1, "1 2 [3]"},   {0, 1, "[2] 3 4"}, {1, 1, "1 [3] 4"},
  };
  for (Row const& r : rows) {
    // DeleteItem removes what DeleteItems(1) removes and moves the cursor alike.
    for (bool single : {false, true}) {
      if (single && r.count != 1) continue;
      L list = MakeList({1, 2, 3, 4}, r.cursor);
      single ? list.DeleteItem() : list.DeleteItems(r.count);
      EXPECT_EQ(list.GetLength(), 4 - std::min(r.count, 4 - r.cursor));
      EXPECT_EQ(Show(list), r.after) << r.cursor << "," << r.count << "," << single;
    }
  }
  L().DeleteItems(3);
  L one = MakeList({1});
  one.DeleteItem().DeleteItem();
  EXPECT_EQ(one.GetLength(), 0u);
  EXPECT_EQ(one.CurItemRef(), nullptr);
}

TEST(CZEL_ListDelete, TruncateEndsOnTheTail) {
  struct Row {
    ZEL::u32 cursor;
    ZEL::u8 fromStart;
    ZEL::u32 length;
    char const* after;
  };
  Row const rows[] = {
      {1, 1, 1, "[3]"}, {1, 0, 1, "[1]"}, {2, 1, 0, ""}, {0, 0, 0, ""}, {0, 1, 2, "2 [3]"}};
  for (Row const& r : rows) {
    L list = MakeList({1, 2, 3}, r.cursor);
    list.Truncate(r.fromStart);
    EXPECT_EQ(list.GetLength(), r.length);
    EXPECT_EQ(list.IsEnd(), 1);
    EXPECT_EQ(Show(list), r.after);
  }
  L().Truncate(1);
}

TEST(CZEL_ListCopies, CopyItemsFromStopsQuietlyAtTheTail) {
  L list = MakeList({1, 2, 3}, 1);
  int raw[] = {0, 7, 8, 9};
  list.CopyItemsFrom(raw, 1, 9);
  EXPECT_EQ(Show(list), "1 [7] 8");
  V v(raw, 2);
  list.ToStart();
  list.CopyItemsFrom(v, 1, 9);  // stops at the vector's end
  EXPECT_EQ(Show(list), "[7] 7 8");
  L empty;
  EXPECT_ZEL_THROW(empty.CopyItemsFrom(raw, 0, 1), ZEL_ERR_BAD_POSITION, &empty);
  EXPECT_ZEL_THROW(empty.CopyItemsFrom(v, 0, 1), ZEL_ERR_BAD_POSITION, &empty);
}

TEST(CZEL_ListCopies, CopyItemsFromListIsStrict) {
  L list = MakeList({1, 2, 3}, 1);
  L src = MakeList({8, 9}, 0);
  EXPECT_ZEL_THROW(list.CopyItemsFrom(src, 3), ZEL_ERR_BAD_POSITION, &list);
  EXPECT_EQ(Cursor(src), 8);
  EXPECT_EQ(Show(list), "1 [8] 9");  // the items written stay
  L empty, other;
  empty.CopyItemsFrom(other, 0);
  list.ToPos(2);
  EXPECT_ZEL_THROW(list.CopyItemsFrom(src, 2), ZEL_ERR_BAD_POSITION, &list);
}

TEST(CZEL_ListCopies, CopyItemsToAndExtract) {
  L list = MakeList({1, 2, 3}, 1);
  int out[4] = {0, 0, 0, 0};
  list.CopyItemsTo(out, 1, 9);
  EXPECT_EQ(IntList(out, out + 4), (IntList{0, 2, 3, 0}));
  L part = MakeList({9});
  list.Extract(part, 1);
  EXPECT_EQ(Show(part), "[2]");
  EXPECT_EQ(Cursor(list), 2);
  L empty;
  EXPECT_ZEL_THROW(empty.CopyItemsTo(out, 0, 0), ZEL_ERR_BAD_POSITION, &empty);
  EXPECT_ZEL_THROW(empty.Extract(part, 1), ZEL_ERR_BAD_POSITION, &empty);
  EXPECT_EQ(part.GetLength(), 1u);  // out untouched
}

TEST(CZEL_ListOrder, SwapItemsRelinks) {
  L list = MakeList({1, 2, 3}, 0);
  int* first = &list.CurItem();
  list.SwapItems(list.CurItemRef());
  EXPECT_EQ(&list.CurItem(), first);  // cursor and item stay together
  EXPECT_EQ(list.ItemsFromStart(), 1u);
  list.ToPos(1);
  list.SwapItems(list.CurItemRef());
  list.SwapItems(list.CurItemRef());  // a node without a successor: no change
  EXPECT_EQ(list.IsEnd(), 1);
  EXPECT_EQ(Show(list), "2 3 [1]");
}

TEST(CZEL_ListOrder, SortRelinksAndTheCursorFollows) {
  L list = MakeList({3, 1, 2}, 0);
  list.Sort(&ByValue, 1);
  EXPECT_EQ(list.ItemsFromStart(), 2u);
  EXPECT_EQ(Show(list), "1 2 [3]");
  list.Sort(&ByValue, 0);
  EXPECT_EQ(Show(list), "[3] 2 1");
  L().Sort(&ByValue, 1);
  Keyed raw[] = {{2, 0}, {1, 1}, {2, 2}, {1, 3}};
  CZEL_List<Keyed> keyed(raw, 4);
  keyed.Sort(&ByKey, 1);  // equal keys keep their order
  EXPECT_EQ(Show(keyed), "1:1 1:3 [2:0] 2:2");
}

}  // namespace
