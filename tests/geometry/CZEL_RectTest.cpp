// Rectangles: what is read from the edges as they stand (inverted ones
// included), containment with and without edges, the combining operations
// with their default results, and the two ways of adding a size.

#include <LZEL_Core/geometry/ZEL_Geometry.h>

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <ostream>

namespace {

using IRect = CZEL_Rect<int>;
using DRect = CZEL_Rect<double>;
using IPoint = CZEL_Point<int>;
using ISize = CZEL_Size<int>;

// Edges in the order left, top, right, bottom.
struct Edges {
  int l, t, r, b;
};

IRect Make(Edges e) { return IRect(e.l, e.t, e.r, e.b); }

void ExpectEdges(IRect const& rect, Edges e) {
  EXPECT_EQ(rect.GetLeft(), e.l);
  EXPECT_EQ(rect.GetTop(), e.t);
  EXPECT_EQ(rect.GetRight(), e.r);
  EXPECT_EQ(rect.GetBottom(), e.b);
}

TEST(RectTest, ReadsTheEdgesAsStored) {
  struct Row {
    Edges rect;
    int width, height, centerX, centerY;
    int valid, null;
  };
  Row const rows[] = {
      {{0, 0, 10, 20}, 10, 20, 5, 10, 1, 0},
      {{1, 1, 2, 2}, 1, 1, 1, 1, 1, 0},
      {{-3, 0, 0, 0}, 3, 0, -1, 0, 1, 1},  // center truncates toward 0
      {{5, 5, 0, 0}, -5, -5, 2, 2, 0, 0},  // inverted: kept, reported
      {{0, 0, 0, 10}, 0, 10, 0, 5, 1, 1},  // one zero extent is null
      {{0, 5, 10, 4}, 10, -1, 5, 4, 0, 0},
      {{INT_MAX, 0, INT_MAX, 0}, 0, 0, -1, 0, 1, 1},  // the sum wraps
      {{INT_MIN, 0, INT_MAX, 0}, -1, 0, 0, 0, 1, 1},  // so does the width
  };
  for (Row const& row : rows) {
    IRect const rect = Make(row.rect);
    SCOPED_TRACE(::testing::Message()
                 << row.rect.l << ',' << row.rect.t << ',' << row.rect.r << ',' << row.rect.b);
    EXPECT_EQ(rect.GetWidth(), row.width);
    EXPECT_EQ(rect.GetHeight(), row.height);
    EXPECT_EQ(rect.GetCenter(), IPoint(row.centerX, row.centerY));
    EXPECT_EQ(rect.IsValid(), row.valid);
    EXPECT_EQ(rect.IsNull(), row.null);
  }
  EXPECT_EQ(DRect(0, 0, 1, 3).GetCenter(), CZEL_Point<double>(0.5, 1.5));
  EXPECT_EQ(DRect(-3, 0, 0, 0).GetCenter(), CZEL_Point<double>(-1.5, 0));
}

TEST(RectTest, ConstructsFromPointsAndSizes) {
  IRect const rect(IPoint(1, 2), IPoint(-3, -4));
  ExpectEdges(rect, {1, 2, -3, -4});
  EXPECT_EQ(rect.GetTopLeft(), IPoint(1, 2));
  EXPECT_EQ(rect.GetTopRight(), IPoint(-3, 2));
  EXPECT_EQ(rect.GetBottomLeft(), IPoint(1, -4));
  EXPECT_EQ(rect.GetBottomRight(), IPoint(-3, -4));
  ExpectEdges(IRect(IPoint(1, 2), ISize(3, -4)), {1, 2, 4, -2});
  ExpectEdges(IRect(IPoint(INT_MAX, 0), ISize(1, 0)), {INT_MAX, 0, INT_MIN, 0});
  IRect set;
  ExpectEdges(set, {0, 0, 0, 0});
  EXPECT_EQ(&set.Set(1, 2, 3, 4), &set);
  ExpectEdges(set, {1, 2, 3, 4});
  EXPECT_EQ(&set.Set(IPoint(5, 6), IPoint(7, 8)), &set);
  ExpectEdges(set, {5, 6, 7, 8});
  EXPECT_EQ(&set.Set(IPoint(5, 6), ISize(1, 1)), &set);
  ExpectEdges(set, {5, 6, 6, 7});
  IRect copy(set);
  IRect const& same = copy;
  EXPECT_EQ(&(copy = same), &copy);
  EXPECT_EQ(copy, set);
}

TEST(RectTest, EqualityTakesAllFourEdges) {
  IRect const rect(1, 2, 3, 4);
  EXPECT_EQ(rect == IRect(1, 2, 3, 4), 1);
  for (IRect const& other :
       {IRect(0, 2, 3, 4), IRect(1, 0, 3, 4), IRect(1, 2, 0, 4), IRect(1, 2, 3, 0)}) {
    EXPECT_EQ(rect == other, 0);
    EXPECT_EQ(rect != other, 1);
  }
  DRect const nan(0, 0, std::nan(""), 1);
  EXPECT_EQ(nan == nan, 0);
}

TEST(RectTest, IsInsideWithAndWithoutEdges) {
  IRect const rect(0, 0, 10, 10);
  struct Row {
    int x, y, withEdges, withoutEdges;
  };
  Row const rows[] = {
      {5, 5, 1, 1}, {10, 5, 1, 0}, {0, 5, 1, 0},  {5, 0, 1, 0},  {5, 10, 1, 0},
      {0, 0, 1, 0}, {11, 5, 0, 0}, {-1, 5, 0, 0}, {5, 11, 0, 0}, {5, -1, 0, 0},
  };
  for (Row const& row : rows) {
    SCOPED_TRACE(::testing::Message() << row.x << ',' << row.y);
    EXPECT_EQ(rect.IsInside(row.x, row.y, 1), row.withEdges);
    EXPECT_EQ(rect.IsInside(row.x, row.y, 7), row.withEdges);
    EXPECT_EQ(rect.IsInside(IPoint(row.x, row.y), 0), row.withoutEdges);
  }
  EXPECT_EQ(rect.IsInside(rect, 1), 1);
  EXPECT_EQ(rect.IsInside(rect, 0), 0);
  EXPECT_EQ(rect.IsInside(IRect(1, 1, 9, 9), 0), 1);
  EXPECT_EQ(rect.IsInside(IRect(1, 1, 9, 11), 1), 0);  // the bottom corners fail
  EXPECT_EQ(IRect(5, 5, 0, 0).IsInside(2, 2, 1), 0);   // inverted: nothing inside
}

TEST(RectTest, NanCoordinatesCountAsInside) {
  double const nan = std::nan("");
  DRect const rect(0, 0, 10, 10);
  for (ZEL::u8 edges : {0, 1}) {
    EXPECT_EQ(rect.IsInside(nan, 5, edges), 1);
    EXPECT_EQ(rect.IsInside(5, nan, edges), 1);
    EXPECT_EQ(rect.IsInside(nan, 20, edges), 0);
    EXPECT_EQ(DRect(nan, nan, nan, nan).IsInside(5, 5, edges), 1);
  }
}

TEST(RectTest, IntersectAndMerge) {
  struct Row {
    Edges a, b, intersection, merge;
  };
  Row const rows[] = {
      {{0, 0, 10, 10}, {5, 5, 20, 20}, {5, 5, 10, 10}, {0, 0, 20, 20}},
      {{0, 0, 10, 10}, {10, 0, 20, 10}, {10, 0, 10, 10}, {0, 0, 20, 10}},  // shared edge
      {{0, 0, 10, 10}, {11, 0, 20, 10}, {0, 0, 0, 0}, {0, 0, 20, 10}},     // apart
      {{1, 1, 2, 2}, {0, 0, 0, 0}, {0, 0, 0, 0}, {0, 0, 2, 2}},  // the origin is pulled in
      {{5, 5, 0, 0}, {6, 6, 1, 1}, {0, 0, 0, 0}, {0, 0, 0, 0}},  // inverted inputs
      {{-5, -5, -1, -1}, {-3, -9, 4, -2}, {-3, -5, -1, -2}, {-5, -9, 4, -1}},
  };
  for (Row const& row : rows) {
    IRect const a = Make(row.a);
    IRect const b = Make(row.b);
    SCOPED_TRACE(::testing::Message()
                 << row.b.l << ',' << row.b.t << ',' << row.b.r << ',' << row.b.b);
    ExpectEdges(a.Intersect(b), row.intersection);
    ExpectEdges(b & a, row.intersection);
    ExpectEdges(a.Merge(b), row.merge);
    ExpectEdges(b | a, row.merge);
    IRect c = a;
    EXPECT_EQ(&(c &= b), &c);
    ExpectEdges(c, row.intersection);
    c = a;
    EXPECT_EQ(&(c |= b), &c);
    ExpectEdges(c, row.merge);
  }
  IRect const shared = IRect(0, 0, 10, 10) & IRect(10, 0, 20, 10);
  EXPECT_EQ(shared.IsNull(), 1);
  EXPECT_EQ(shared.IsValid(), 1);
}

TEST(RectTest, AddingASizeDiffersAtTheBottomEdge) {
  IRect grown(0, 0, 10, 10);
  EXPECT_EQ(&(grown += ISize(1, 1)), &grown);
  ExpectEdges(grown, {0, 0, 11, 11});
  IRect const rect(0, 5, 10, 15);
  ExpectEdges(rect + ISize(1, 1), {0, 5, 11, 26});
  ExpectEdges(rect, {0, 5, 10, 15});
  grown = rect;
  grown += ISize(1, 1);
  ExpectEdges(grown, {0, 5, 11, 16});
  DRect const drect(0, 5, 10, 15);
  EXPECT_EQ(drect + CZEL_Size<double>(1, 1), DRect(0, 5, 11, 26));
}

TEST(RectTest, EdgeSettersMoveNothingElse) {
  IRect rect(5, 5, 0, 0);
  rect.SetWidth(3);  // repairs the width alone
  ExpectEdges(rect, {5, 5, 8, 0});
  rect.SetHeight(-2);
  ExpectEdges(rect, {5, 5, 8, 3});
  rect.SetSize(ISize(1, 2));
  ExpectEdges(rect, {5, 5, 6, 7});
  rect.SetLeft(1);
  rect.SetTop(2);
  rect.SetRight(3);
  rect.SetBottom(4);
  ExpectEdges(rect, {1, 2, 3, 4});
  rect.SetTopLeft(IPoint(9, 8));
  ExpectEdges(rect, {9, 8, 3, 4});
  rect.SetTopRight(IPoint(7, 6));
  ExpectEdges(rect, {9, 6, 7, 4});
  rect.SetBottomLeft(IPoint(5, 4));
  ExpectEdges(rect, {5, 6, 7, 4});
  rect.SetBottomRight(IPoint(3, 2));
  ExpectEdges(rect, {5, 6, 3, 2});
}

TEST(RectTest, MovingKeepsTheExtents) {
  IRect rect(5, 5, 0, 10);
  rect.MoveTo(100, 200);
  ExpectEdges(rect, {100, 200, 95, 205});  // the negative width stays
  rect.MoveTo(IPoint(0, 0));
  ExpectEdges(rect, {0, 0, -5, 5});
  rect.Translate(1, -1);
  ExpectEdges(rect, {1, -1, -4, 4});
  rect.TranslateX(2);
  ExpectEdges(rect, {3, -1, -2, 4});
  rect.TranslateY(INT_MAX);
  ExpectEdges(rect, {3, INT_MAX - 1, -2, INT_MIN + 3});
}

TEST(RectTest, NamedClassesForwardToTheTemplate) {
  CZEL_Int32Rect const a(0, 0, 4, 4);
  CZEL_Int32Rect b = a & CZEL_Int32Rect(2, 2, 8, 8);  // built from the template result
  ExpectEdges(b, {2, 2, 4, 4});
  EXPECT_EQ(&(b = a | b), &b);
  ExpectEdges(b, {0, 0, 4, 4});
  CZEL_Int32Rect c(CZEL_Int32Point(1, 2), CZEL_Int32Point(3, 4));
  ExpectEdges(c, {1, 2, 3, 4});
  EXPECT_EQ(&(c = a), &c);
  ExpectEdges(CZEL_Int32Rect(CZEL_Int32Point(1, 2), CZEL_Int32Size(3, 4)), {1, 2, 4, 6});
  ExpectEdges(CZEL_Int32Rect(c), {0, 0, 4, 4});
  CZEL_DoubleRect d(CZEL_DoublePoint(0.5, 0.5), CZEL_DoubleSize(1, 1));
  EXPECT_EQ(d, DRect(0.5, 0.5, 1.5, 1.5));
  d = CZEL_DoubleRect();
  EXPECT_EQ(d, DRect());
}

}  // namespace
