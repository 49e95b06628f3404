// Rectangles: what is read from the edges as they stand (inverted ones
// included), containment with and without edges, the combining operations
// with their default results, and the two ways of adding a size.

#include <LZEL_Core/geometry/ZEL_Geometry.h>

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <ostream>

using IRect = CZEL_Rect<int>;
using DRect = CZEL_Rect<double>;
using IPoint = CZEL_Point<int>;
using ISize = CZEL_Size<int>;

// Failures show the edges.
void PrintTo(IRect const& r, std::ostream* out) {
  *out << '(' << r.GetLeft() << ", " << r.GetTop() << ", " << r.GetRight() << ", " << r.GetBottom()
       << ')';
}

namespace {

TEST(RectTest, ReadsTheEdgesAsStored) {
  struct Row {
    IRect rect;
    int width, height, centerX, centerY, valid, null;
  };
  Row const rows[] = {
      {IRect(0, 0, 10, 20), 10, 20, 5, 10, 1, 0},
      {IRect(1, 1, 2, 2), 1, 1, 1, 1, 1, 0},
      {IRect(-3, 0, 0, 0), 3, 0, -1, 0, 1, 1},  // center truncates toward 0
      {IRect(5, 5, 0, 0), -5, -5, 2, 2, 0, 0},  // inverted: kept, reported
      {IRect(0, 0, 0, 10), 0, 10, 0, 5, 1, 1},  // one zero extent is null
      {IRect(0, 5, 10, 4), 10, -1, 5, 4, 0, 0},
      {IRect(INT_MAX, 0, INT_MAX, 0), 0, 0, -1, 0, 1, 1},  // the sum wraps
      {IRect(INT_MIN, 0, INT_MAX, 0), -1, 0, 0, 0, 1, 1},  // so does the width
  };
  for (Row const& row : rows) {
    SCOPED_TRACE(::testing::PrintToString(row.rect));
    EXPECT_EQ(row.rect.GetWidth(), row.width);
    EXPECT_EQ(row.rect.GetHeight(), row.height);
    EXPECT_EQ(row.rect.GetCenter(), IPoint(row.centerX, row.centerY));
    EXPECT_EQ(row.rect.IsValid(), row.valid);
    EXPECT_EQ(row.rect.IsNull(), row.null);
  }
  EXPECT_EQ(DRect(-3, 0, 1, 3).GetCenter(), CZEL_Point<double>(-1, 1.5));
  IRect const rect(1, 2, -3, -4);
  EXPECT_EQ(rect.GetTopRight(), IPoint(-3, 2));
  EXPECT_EQ(rect.GetBottomLeft(), IPoint(1, -4));
  EXPECT_EQ(IRect(rect.GetTopLeft(), rect.GetBottomRight()), rect);
}

TEST(RectTest, ConstructsAndSetsWithoutReordering) {
  EXPECT_EQ(IRect(IPoint(1, 2), ISize(3, -4)), IRect(1, 2, 4, -2));
  EXPECT_EQ(IRect(IPoint(INT_MAX, 0), ISize(1, 0)), IRect(INT_MAX, 0, INT_MIN, 0));
  IRect rect;
  EXPECT_EQ(rect, IRect(0, 0, 0, 0));
  EXPECT_EQ(&rect.Set(IPoint(5, 6), ISize(1, 1)), &rect);
  EXPECT_EQ(rect, IRect(5, 6, 6, 7));
  EXPECT_EQ(rect.Set(IPoint(7, 8), IPoint(5, 6)), IRect(7, 8, 5, 6));
  IRect const& same = rect;
  EXPECT_EQ(&(rect = same), &rect);
  EXPECT_EQ(rect.Set(1, 2, 3, 4), IRect(1, 2, 3, 4));
  for (IRect const& other :
       {IRect(0, 2, 3, 4), IRect(1, 0, 3, 4), IRect(1, 2, 0, 4), IRect(1, 2, 3, 0)}) {
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
  Row const rows[] = {{5, 5, 1, 1},  {10, 5, 1, 0}, {5, 0, 1, 0},
                      {0, 10, 1, 0}, {11, 5, 0, 0}, {5, -1, 0, 0}};
  for (Row const& row : rows) {
    SCOPED_TRACE(::testing::Message() << row.x << ',' << row.y);
    EXPECT_EQ(rect.IsInside(row.x, row.y, 7), row.withEdges);
    EXPECT_EQ(rect.IsInside(IPoint(row.x, row.y), 0), row.withoutEdges);
  }
  EXPECT_EQ(rect.IsInside(rect, 1), 1);
  EXPECT_EQ(rect.IsInside(rect, 0), 0);
  EXPECT_EQ(rect.IsInside(IRect(1, 1, 9, 9), 0), 1);
  EXPECT_EQ(rect.IsInside(IRect(1, 1, 9, 11), 1), 0);  // the bottom corners fail
  EXPECT_EQ(IRect(5, 5, 0, 0).IsInside(2, 2, 1), 0);   // inverted: nothing inside

  double const nan = std::nan("");
  for (ZEL::u8 edges : {0, 1}) {
    EXPECT_EQ(DRect(0, 0, 10, 10).IsInside(nan, 5, edges), 1);
    EXPECT_EQ(DRect(0, 0, 10, 10).IsInside(nan, 20, edges), 0);
    EXPECT_EQ(DRect(nan, nan, nan, nan).IsInside(5, 5, edges), 1);
  }
}

TEST(RectTest, IntersectAndMerge) {
  struct Row {
    IRect a, b, intersection, merge;
  };
  Row const rows[] = {
      {IRect(0, 0, 10, 10), IRect(5, 5, 20, 20), IRect(5, 5, 10, 10), IRect(0, 0, 20, 20)},
      // A shared edge gives a null, valid rectangle on it; apart gives zeros.
      {IRect(0, 0, 10, 10), IRect(10, 0, 20, 10), IRect(10, 0, 10, 10), IRect(0, 0, 20, 10)},
      {IRect(0, 0, 10, 10), IRect(11, 0, 20, 10), IRect(), IRect(0, 0, 20, 10)},
      {IRect(1, 1, 2, 2), IRect(), IRect(), IRect(0, 0, 2, 2)},  // the origin is pulled in
      {IRect(5, 5, 0, 0), IRect(6, 6, 1, 1), IRect(), IRect()},  // inverted inputs
      {IRect(-5, -5, -1, -1), IRect(-3, -9, 4, -2), IRect(-3, -5, -1, -2), IRect(-5, -9, 4, -1)},
  };
  for (Row const& row : rows) {
    SCOPED_TRACE(::testing::PrintToString(row.b));
    EXPECT_EQ(row.a.Intersect(row.b), row.intersection);
    EXPECT_EQ(row.b & row.a, row.intersection);
    EXPECT_EQ(row.a.Merge(row.b), row.merge);
    EXPECT_EQ(row.b | row.a, row.merge);
  }
  IRect rect(0, 0, 10, 10);
  EXPECT_EQ(&(rect &= IRect(10, 0, 20, 10)), &rect);
  EXPECT_EQ(rect.IsNull() && rect.IsValid(), 1);
  EXPECT_EQ(&(rect |= IRect(1, 1, 2, 2)), &rect);
  EXPECT_EQ(rect, IRect(1, 0, 10, 10));
}

TEST(RectTest, AddingASizeDiffersAtTheBottomEdge) {
  IRect grown(0, 0, 10, 10);
  EXPECT_EQ(&(grown += ISize(1, 1)), &grown);
  EXPECT_EQ(grown, IRect(0, 0, 11, 11));
  IRect const rect(0, 5, 10, 15);
  EXPECT_EQ(rect + ISize(1, 1), IRect(0, 5, 11, 26));
  grown = rect;
  grown += ISize(1, 1);
  EXPECT_EQ(grown, IRect(0, 5, 11, 16));
  EXPECT_EQ(DRect(0, 5, 10, 15) + CZEL_Size<double>(1, 1), DRect(0, 5, 11, 26));
}

TEST(RectTest, ChangingAndMovingKeepTheOtherEdges) {
  IRect rect(5, 5, 0, 0);
  rect.SetWidth(3);  // repairs the width alone
  EXPECT_EQ(rect, IRect(5, 5, 8, 0));
  rect.SetSize(ISize(1, -2));
  EXPECT_EQ(rect, IRect(5, 5, 6, 3));
  rect.SetTopRight(IPoint(7, 6));
  rect.SetBottomLeft(IPoint(4, 8));
  EXPECT_EQ(rect, IRect(4, 6, 7, 8));
  rect.SetLeft(9);
  rect.SetBottom(1);
  EXPECT_EQ(rect, IRect(9, 6, 7, 1));
  rect.MoveTo(100, 200);  // the negative extents stay
  EXPECT_EQ(rect, IRect(100, 200, 98, 195));
  rect.Translate(1, -1);
  EXPECT_EQ(rect, IRect(101, 199, 99, 194));
  rect.TranslateY(INT_MAX);
  EXPECT_EQ(rect, IRect(101, INT_MIN + 198, 99, INT_MIN + 193));
}

TEST(RectTest, NamedClassesForwardToTheTemplate) {
  CZEL_Int32Rect const a(0, 0, 4, 4);
  CZEL_Int32Rect b = a & CZEL_Int32Rect(2, 2, 8, 8);  // built from the template result
  EXPECT_EQ(b, IRect(2, 2, 4, 4));
  EXPECT_EQ(&(b = a | b), &b);
  EXPECT_EQ(b, a);
  EXPECT_EQ(CZEL_Int32Rect(CZEL_Int32Point(1, 2), CZEL_Int32Size(3, 4)), IRect(1, 2, 4, 6));
  CZEL_DoubleRect d(CZEL_DoublePoint(0.5, 0.5), CZEL_DoublePoint(1.5, 1.5));
  EXPECT_EQ(d, DRect(0.5, 0.5, 1.5, 1.5));
  EXPECT_EQ(&(d = CZEL_DoubleRect()), &d);
}

}  // namespace
