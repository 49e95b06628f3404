#include "ContainerTestSupport.h"

#include <vector>

namespace {

using V = CZEL_Vector<int>;
using L = CZEL_List<int>;
using IntList = std::vector<int>;
using zel_test::Cursor;
using zel_test::Fill;
using zel_test::Forward;
using zel_test::Items;

L MakeList(IntList const& items, ZEL::u32 cursor = 0) {
  L list;
  Fill(list, items);
  if (!items.empty()) list.ToPos(cursor);
  return list;
}

V MakeVector(IntList items) { return V(items.data(), ZEL::u32(items.size())); }

TEST(CZEL_VectorFromList, AssignmentMovesTheListCursorToItsTail) {
  L list = MakeList({1, 2, 3}, 0);
  V v;
  v = list;
  EXPECT_EQ(Items(v), (IntList{1, 2, 3}));
  EXPECT_EQ(list.IsEnd(), 1);
  int* buf = v.GetBuf();
  L other = MakeList({4, 5, 6});
  v = other;
  EXPECT_EQ(v.GetBuf(), buf);  // an equal length reuses the array
  L empty;
  v = empty;
  EXPECT_EQ(v.GetLength(), 0u);
}

TEST(CZEL_VectorFromList, AppendList) {
  V v;
  L empty;
  EXPECT_ZEL_THROW(v.AppendList(empty), ZEL_ERR_EMPTY_INPUT, &v);
  v = MakeVector({1});
  v &= empty;
  EXPECT_EQ(Items(v), (IntList{1}));
  L list = MakeList({2, 3}, 1);
  v.AppendList(list);  // from the list's head, whatever its cursor
  EXPECT_EQ(Items(v), (IntList{1, 2, 3}));
  EXPECT_EQ(Cursor(list), 3);
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

TEST(CZEL_ListFromVector, AppendAndInsertVector) {
  V v = MakeVector({7, 8});
  L list = MakeList({1, 2}, 0);
  list &= v;
  EXPECT_EQ(Cursor(list), 8);
  EXPECT_EQ(Forward(list), (IntList{1, 2, 7, 8}));
  L none;
  none.DataCopy(v);
  EXPECT_EQ(Cursor(none), 8);
}

TEST(CZEL_ListFromVector, StringItemsAreDeepCopies) {
  CZEL_StringVector words(2);
  words[0] = "alpha";
  words[1] = "beta";
  CZEL_StringList list;
  list = words;
  words[0] = "changed";
  list.ToStart();
  EXPECT_STREQ(list.CurItem().GetStringC(), "alpha");
  CZEL_StringVector back;
  back = list;
  EXPECT_STREQ(back[1].GetStringC(), "beta");
  EXPECT_TRUE(back != words);
  words[0] = "alpha";
  EXPECT_TRUE(back == words);
}

}  // namespace
