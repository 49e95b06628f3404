// SPDX-License-Identifier: Apache-2.0
#include "ContainerTestSupport.h"

#include <new>

namespace {

using namespace zel_test;

TEST(CZEL_List, ConstructionAndAssignment) {
  EXPECT_EQ(L(0u, 5).GetLength(), 0u);
  alignas(L) unsigned char storage[sizeof(L)];
  EXPECT_ZEL_THROW(new (storage) L(Ints("1").data(), 0u), ZEL_ERR_EMPTY_INPUT, storage);
  EXPECT_EQ(Text(Lv(L(Ints("1 2 3").data(), 3))), "[1] 2 3");
  EXPECT_EQ(Text(Lv(L(3u, 7))), "[7] 7 7");
  EXPECT_EQ(Text(Lv(L(Lv(Parse("4 [5]"))))), "[4] 5");
  Check<L>({
      {"1 [2] 3", [](L& l) { l = L(); }, "1 [2] 3"},  // an empty list changes nothing
      {"1 [2] 3", [](L& l) { l = Lv(Vec("5 6")); }, "5 [6]"},
      {"1 [2] 3", [](L& l) { l = Lv(V()); }, ""},                  // an empty vector empties it
      {"1 2 [3]", [](L& l) { l = Lv(Parse("7 [8]")); }, "[7] 8"},  // cursor to the head
      {"1 2 [3]", [](L& l) { (l = Lv(Parse("7 [8]"))).ToEnd(); }, "7 [8]"},
      {"1 [2]", [](L& l) { l = Lv(Parse("4 5 6 [7]")); }, "[4] 5 6 7"},
      {"1 [2] 3", [](L& l) { l = *&l; }, "1 [2] 3"},
  });
}

TEST(CZEL_List, StepsPositionsIndexingFindAndEquality) {
  L list = Parse("1 2 3");
  IntList seen;
  for (int i = 0; i < 4; ++i) seen.push_back(list >> 1);  // the item before the step
  EXPECT_EQ(seen, Ints("1 2 3 3"));
  EXPECT_EQ(list.IsEnd(), 1);
  EXPECT_EQ(list << 5, 3);
  EXPECT_EQ(list.IsStart(), 1);
  EXPECT_EQ(list.Next(5), 1);
  EXPECT_EQ(list.CurItem(), 3);
  EXPECT_EQ(list.Prev(1), 3);
  EXPECT_EQ(list.Next(0), 2);
  L four = Parse("1 [2] 3 4");
  EXPECT_EQ(four.ItemsFromStart() * 10 + four.ItemsToEnd(), 12u);
  EXPECT_ZEL_THROW(four.ToPos(4), ZEL_ERR_BAD_POSITION, &four);
  EXPECT_EQ(four.ToPos(2), 3);
  EXPECT_EQ(four[0], 1);
  EXPECT_EQ(four.CurItem(), 1);  // indexing moves the cursor
  L other = Parse("1 2 [3] 4");
  EXPECT_TRUE(four == other && L() == L());  // cursors don't count
  EXPECT_EQ(other.CurItem(), 3);
  EXPECT_TRUE(four != Parse("1 2 3 5") && four != Parse("1 2 3"));
  L finds = Parse("5 [6] 5 7");  // the searches start at the cursor's own item
  EXPECT_EQ(finds.FindToEnd(6) + finds.FindToEnd(5), 2);
  EXPECT_EQ(finds.ItemsFromStart(), 2u);
  EXPECT_EQ(finds.FindToEnd(6), 0);  // 6 lies before the cursor
  EXPECT_EQ(finds.FindToStart(5), 1);
  EXPECT_EQ(finds.ItemsFromStart(), 2u);
  finds.ToEnd();
  EXPECT_EQ(finds.FindToStart(6), 1);
  EXPECT_EQ(finds.ItemsFromStart(), 1u);
  L empty;
  EXPECT_EQ(empty.IsStart() + empty.IsEnd() + empty.ItemsFromStart() + empty.ItemsToEnd(), 2u);
  empty.ToStart();  // no throw; the reference is not to be used
  empty.ToEnd();
  EXPECT_ZEL_THROW(empty.CurItem(), ZEL_ERR_BAD_POSITION, &empty);
  EXPECT_ZEL_THROW(empty >> 1, ZEL_ERR_BAD_POSITION, &empty);
  EXPECT_ZEL_THROW(empty << 1, ZEL_ERR_BAD_POSITION, &empty);
  EXPECT_ZEL_THROW(empty[0], ZEL_ERR_BAD_POSITION, &empty);
}

TEST(CZEL_List, InsertAppendPushPop) {
  Check<L>({
      {"1 [2] 3", [](L& l) { l.InsertItem(9), l.InsertItem(8); }, "1 [8] 9 2 3"},  // before
      {"", [](L& l) { *l.InsertItem() = 4, *l.AppendItem() = 5; }, "4 [5]"},
      {"1 [2]", [](L& l) { l.Push(3), l.ToStart(); }, "[1] 2 3"},
      {"[1]", [](L& l) { l.AppendItems(Ints("0 2 3").data(), 2, 1); }, "1 2 [3]"},
      {"1 2 [3]", [](L& l) { l = l.AppendItems(Lv(Parse("7 [8] 9")), 5); }, "[1] 2 3 8 9"},
      {"[1]", [](L& l) { l.AppendList(Lv(Parse("7 [8]"))); }, "1 7 [8]"},  // from the head
      {"[1]", [](L& l) { l &= Lv(Vec("4")); }, "1 [4]"},
      {"[1] 2", [](L& l) { l &= Lv(V()); }, "1 [2]"},  // an empty vector moves the cursor
      // InsertItems leaves the cursor's back-link on the node before the run.
      {"1 2 [3]", [](L& l) { l.InsertItems(Ints("0 7 8").data(), 2, 1); }, "1 2 7 8 [3] (at 2:0)"},
      {"[1] 2", [](L& l) { l.InsertItems(Ints("0 7 8").data(), 2, 1); }, "7 8 [1] 2 (at 0:1)"},
      {"1 2 [3]", [](L& l) { l.InsertItems(Ints("7 8").data(), 2, 0), l.Prev(1); }, "1 [2] 7 8 3"},
      {"1 [2]", [](L& l) { l.InsertItems(Lv(Vec("7 8")), 5, 1); }, "1 8 [2] (at 1:0)"},
      // The back-link still names 1, so the list's run replaces 8 in the forward
      // chain; 8 stays counted.
      {"1 [2]",
       [](L& l) { l.InsertItems(Lv(Vec("7 8")), 5, 1), l.InsertItems(Lv(Parse("5 [6]")), 1); },
       "1 6 [2] (length 4; at 1:0)"},
      {"1 [2]", [](L& l) { l = l.InsertItems(Lv(Parse("5 [6]")), 1); }, "[1] 6 2"},
      {"", [](L& l) { l.InsertItems(Ints("1").data(), 1, 0); }, "BAD_POSITION; "},
      // A short list source leaves counted nodes unlinked.
      {"1 [2] 3", [](L& l) { l.InsertItems(Lv(Parse("[8] 9")), 3); },
       "BAD_POSITION; 1 8 9 (length 5; at 1:1)"},
      // InsertList records its last node as the tail: items appended later
      // drop 2 and 3 from the links, still counted.
      {"1 [2] 3", [](L& l) { l.InsertList(Lv(Parse("7 [8]"))); }, "1 7 [8] 2 3"},
      {"1 [2] 3", [](L& l) { l.InsertList(Lv(Parse("7 [8]"))), l += 5; }, "1 7 8 [5] (length 6)"},
  });
  L list = Parse("[1] 2 3");
  int out = 0;
  EXPECT_EQ(list.Pop(&out), 1);
  EXPECT_EQ(out, 3);  // from the tail
  EXPECT_EQ(Text(list), "1 [2]");
  EXPECT_EQ(list.Pop(&out) + list.Pop(&out) + list.Pop(&out), 2);
  EXPECT_EQ(out, 1);  // untouched by the failed Pop
  L shortSource = Parse("1 [2] 3");
  EXPECT_THROW(shortSource.InsertItems(Lv(Parse("[8] 9")), 3), CZEL_Exception);
  EXPECT_EQ(shortSource.Next(1), 2);  // the cursor stays on 2, past the broken link
}

TEST(CZEL_List, DeleteTruncateAndBrokenLinks) {
  Check<L>({
      {"1 2 [3] 4", [](L& l) { l.DeleteItems(99); }, "1 [2]"},
      {"1 [2] 3 4", [](L& l) { l.DeleteItems(0); }, "1 [2] 3 4"},
      {"[1] 2 3 4", [](L& l) { l.DeleteItems(2); }, "[3] 4"},
      {"[1] 2 3 4", [](L& l) { l.DeleteItems(4); }, ""},
      {"1 [2] 3 4", [](L& l) { l.DeleteItems(2); }, "1 [4]"},
      {"1 2 3 [4]", [](L& l) { l.DeleteItem(); }, "1 2 [3]"},
      {"[1] 2 3 4", [](L& l) { l.DeleteItem(); }, "[2] 3 4"},
      {"1 [2] 3 4", [](L& l) { l.DeleteItem(); }, "1 [3] 4"},
      {"", [](L& l) { l.DeleteItems(3); }, ""},
      {"[1]", [](L& l) { l.DeleteItem().DeleteItem(); }, ""},
      {"1 [2] 3", [](L& l) { l.Truncate(1); }, "[3]"},  // ends on the tail
      {"1 [2] 3", [](L& l) { l.Truncate(0); }, "[1]"},
      {"1 2 [3]", [](L& l) { l.Truncate(1); }, ""},
      {"[1] 2 3", [](L& l) { l.Truncate(0); }, ""},
      {"[1] 2 3", [](L& l) { l.Truncate(1); }, "2 [3]"},
      {"", [](L& l) { l.Truncate(1); }, ""},
      // The node before an inserted run goes while the cursor's back-link still
      // names it; stepping back over it must not reach freed memory.
      {"1 2 [3]", [](L& l) { l.InsertItems(Ints("7").data(), 1, 0), l.ToPos(1), l.DeleteItem(); },
       "1 [7] 3"},
      {"1 2 [3]",
       [](L& l) {
         l.InsertItems(Ints("7").data(), 1, 0), l.ToPos(1), l.DeleteItem(), l.ToEnd(), l.Prev(1),
             l.InsertItems(Ints("7").data(), 1, 0), l.DeleteItems(2), l.Truncate(0), l.ToStart(),
             l.Truncate(1);
       },
       ""},
      // DeleteItems and Truncate count only the nodes they remove: nodes they
      // can't reach stay in the length.
      {"[1] 2 3",
       [](L& l) { l.InsertList(Lv(Parse("7 8"))), l.ToStart(), l.DeleteItems(5), l += 9; },
       "[9] (length 4)"},
      {"1 [2] 3", [](L& l) { l.InsertItems(Ints("7 8").data(), 2, 0), l.ToEnd(), l.Truncate(1); },
       "(length 2)"},
  });
}

TEST(CZEL_List, CopyFromToAndExtract) {
  Check<L>({
      {"1 [2] 3", [](L& l) { l.CopyItemsFrom(Ints("0 7 8 9").data(), 1, 9); }, "1 [7] 8"},
      {"[1] 7 8", [](L& l) { l.CopyItemsFrom(Lv(Vec("0 7")), 1, 9); }, "[7] 7 8"},
      {"", [](L& l) { l.CopyItemsFrom(Ints("1").data(), 0, 1); }, "BAD_POSITION; "},
      {"", [](L& l) { l.CopyItemsFrom(Lv(Vec("1")), 0, 1); }, "BAD_POSITION; "},
      // From a list it is strict; the items written stay.
      {"1 [2] 3", [](L& l) { l.CopyItemsFrom(Lv(Parse("[8] 9")), 3); }, "BAD_POSITION; 1 [8] 9"},
      {"1 2 [3]", [](L& l) { l.CopyItemsFrom(Lv(Parse("[8] 9")), 2); }, "BAD_POSITION; 1 2 [8]"},
      {"", [](L& l) { l.CopyItemsFrom(Lv(L()), 0); }, ""},
      {"1 [2] 3", [](L& l) { l.Extract(l = Lv(Parse("9")), 1); }, ""},
      {"", [](L& l) { l.Extract(Lv(Parse("9")), 1); }, "BAD_POSITION; "},
      {"", [](L& l) { l.CopyItemsTo(Ints("0").data(), 0, 0); }, "BAD_POSITION; "},
  });
  L list = Parse("1 [2] 3"), part = Parse("9"), src = Parse("[8] 9");
  int out[4] = {0, 0, 0, 0};
  list.CopyItemsTo(out, 1, 9);
  EXPECT_EQ(IntList(out, out + 4), Ints("0 2 3 0"));
  list.Extract(part, 1);
  EXPECT_EQ(Text(part) + "/" + Text(list), "[2]/1 [2] 3");
  EXPECT_THROW(list.CopyItemsFrom(src, 3), CZEL_Exception);
  EXPECT_EQ(src.CurItem(), 8);
}

TEST(CZEL_List, SwapAndSortRelink) {
  Check<L>({
      {"[1] 2 3", [](L& l) { l.SwapItems(l.CurItemRef()); }, "2 [1] 3"},  // the cursor follows
      {"1 [2] 3", [](L& l) { l.SwapItems(l.CurItemRef()), l.SwapItems(l.CurItemRef()); },
       "1 3 [2]"},
      {"[3] 1 2", [](L& l) { l.Sort(&ByKey, 1); }, "1 2 [3]"},
      {"[3] 1 2", [](L& l) { l.Sort(&ByKey, 0); }, "[3] 2 1"},
      {"", [](L& l) { l.Sort(&ByKey, 1); }, ""},
      {"[102] 1 202 101", [](L& l) { l.Sort(&ByKey, 1); }, "1 101 [102] 202"},  // equal keys stay
  });
}

}  // namespace
