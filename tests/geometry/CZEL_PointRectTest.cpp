// SPDX-License-Identifier: Apache-2.0
// Points and sizes: both pair templates run the same cases through a form
// that names their accessors, and the named classes forward to them.
// Rectangles: what is read from the edges as they stand (inverted ones
// included), containment with and without edges, the combining operations
// with their default results, and the two ways of adding a size.

#include <LZEL_Core/geometry/ZEL_Geometry.h>

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <ostream>
#include <utility>
#include <vector>

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

using Two = std::pair<double, double>;

// Reads and writes the two fields of a point or a size, named classes included.
struct Fields {
  template <typename T>
  static Two Of(CZEL_Point<T> const& p) {
    return {p.GetX(), p.GetY()};
  }
  template <typename T>
  static Two Of(CZEL_Size<T> const& s) {
    return {s.GetWidth(), s.GetHeight()};
  }
  template <typename T>
  static void Set(CZEL_Point<T>& p, double a, double b) {
    p.SetX(T(a));
    p.SetY(T(b));
  }
  template <typename T>
  static void Set(CZEL_Size<T>& s, double a, double b) {
    s.SetWidth(T(a));
    s.SetHeight(T(b));
  }
};

template <typename Pair>
class PairTest : public ::testing::Test {};

// The named classes run the template's code: each template is tested through one.
using Pairs = ::testing::Types<CZEL_Int32Point, CZEL_DoublePoint, CZEL_Int32Size, CZEL_DoubleSize>;
TYPED_TEST_SUITE(PairTest, Pairs, );

TYPED_TEST(PairTest, SetsComputesAndCompares) {
  using P = TypeParam;
  P p;
  EXPECT_EQ(Fields::Of(p), Two(0, 0));
  Fields::Set(p, 7, -8);
  EXPECT_EQ(Fields::Of(p), Two(7, -8));
  EXPECT_EQ(Fields::Of(p.Set(3, 4)), Two(3, 4));
  P copy(p);
  EXPECT_EQ(Fields::Of(p - P(1, 1)), Two(2, 3));
  EXPECT_EQ(&(copy = p + P(1, 1)), &copy);  // the sum is of the template type
  EXPECT_EQ(Fields::Of(copy), Two(4, 5));
  EXPECT_EQ(Fields::Of(p), Two(3, 4));  // the operands stay
  copy += P(1, 1);
  copy -= P(10, -10);
  EXPECT_EQ(Fields::Of(copy), Two(-5, 16));
  EXPECT_EQ((P(1, 2) == P(1, 2)) * 4 + (P(1, 2) == P(0, 2)) * 2 + (P(1, 2) == P(1, 0)), 4);
  EXPECT_EQ((P(1, 2) != P(1, 0)) * 2 + (P(1, 2) != P(1, 2)), 2);
}

TEST(PairTest, IntSumsWrapDoubleEqualityIsExact) {
  EXPECT_EQ(IPoint(INT_MAX, 0) + IPoint(1, INT_MIN), IPoint(INT_MIN, INT_MIN));
  EXPECT_EQ(ISize(INT_MIN, 0) - ISize(1, INT_MIN), ISize(INT_MAX, INT_MIN));
  IPoint p(INT_MAX, INT_MIN);
  p += IPoint(INT_MAX, INT_MIN);
  EXPECT_EQ(p, IPoint(-2, 0));
  EXPECT_EQ(CZEL_Point<double>(0.1 + 0.2, 0) == CZEL_Point<double>(0.3, 0), 0);
  CZEL_Size<double> const nan(0, std::nan(""));
  EXPECT_EQ((nan == nan) * 2 + (nan != nan), 1);
  EXPECT_EQ(CZEL_Point<double>(-0.0, 0) == CZEL_Point<double>(0.0, 0), 1);
}

TEST(RectTest, ReadsTheEdgesAsStored) {
  struct Row {
    IRect rect;
    std::vector<int> read;  // width, height, center x and y, IsValid, IsNull
  } const rows[] = {
      {IRect(0, 0, 10, 20), {10, 20, 5, 10, 1, 0}},
      {IRect(-3, 0, 0, 0), {3, 0, -1, 0, 1, 1}},  // center truncates toward 0
      {IRect(5, 5, 0, 0), {-5, -5, 2, 2, 0, 0}},  // inverted: kept, reported
      {IRect(0, 0, 0, 10), {0, 10, 0, 5, 1, 1}},  // one zero extent is null
      {IRect(0, 5, 10, 4), {10, -1, 5, 4, 0, 0}},
      {IRect(INT_MAX, 0, INT_MAX, 0), {0, 0, -1, 0, 1, 1}},  // the sum wraps
      {IRect(INT_MIN, 0, INT_MAX, 0), {-1, 0, 0, 0, 1, 1}},  // so does the width
  };
  for (Row const& row : rows) {
    IRect const& r = row.rect;
    EXPECT_EQ(std::vector<int>({r.GetWidth(), r.GetHeight(), r.GetCenter().GetX(),
                                r.GetCenter().GetY(), r.IsValid(), r.IsNull()}),
              row.read)
        << ::testing::PrintToString(r);
  }
  EXPECT_EQ(DRect(-3, 0, 1, 3).GetCenter(), CZEL_Point<double>(-1, 1.5));
  IRect const rect(1, 2, -3, -4);
  EXPECT_EQ(rect.GetTopRight(), IPoint(-3, 2));
  EXPECT_EQ(rect.GetBottomLeft(), IPoint(1, -4));
  EXPECT_EQ(IRect(rect.GetTopLeft(), rect.GetBottomRight()), rect);
}

TEST(RectTest, ConstructsSetsAndComparesWithoutReordering) {
  EXPECT_EQ(IRect(IPoint(1, 2), ISize(3, -4)), IRect(1, 2, 4, -2));
  EXPECT_EQ(IRect(IPoint(INT_MAX, 0), ISize(1, 0)), IRect(INT_MAX, 0, INT_MIN, 0));
  IRect rect;
  EXPECT_EQ(rect.Set(IPoint(5, 6), ISize(1, 1)), IRect(5, 6, 6, 7));
  EXPECT_EQ(rect.Set(IPoint(7, 8), IPoint(5, 6)), IRect(7, 8, 5, 6));
  EXPECT_EQ(&rect.Set(1, 2, 3, 4), &rect);
  for (IRect const& other :
       {IRect(0, 2, 3, 4), IRect(1, 0, 3, 4), IRect(1, 2, 0, 4), IRect(1, 2, 3, 0)}) {
    EXPECT_EQ((rect != other) * 2 + (rect == other), 2);
  }
  EXPECT_EQ(DRect(0, 0, std::nan(""), 1) == DRect(0, 0, std::nan(""), 1), 0);
}

TEST(RectTest, IsInsideWithAndWithoutEdges) {
  IRect const rect(0, 0, 10, 10);
  int const rows[][4] = {{5, 5, 1, 1},  {10, 5, 1, 0}, {5, 0, 1, 0}, {0, 10, 1, 0},
                         {11, 5, 0, 0}, {5, -1, 0, 0}, {0, 5, 1, 0}};
  for (auto const& row : rows) {
    SCOPED_TRACE(::testing::Message() << row[0] << ',' << row[1]);
    EXPECT_EQ(rect.IsInside(row[0], row[1], 7), row[2]);
    EXPECT_EQ(rect.IsInside(IPoint(row[0], row[1]), 0), row[3]);
  }
  EXPECT_EQ(rect.IsInside(rect, 1) * 2 + rect.IsInside(rect, 0), 2);
  EXPECT_EQ(rect.IsInside(IRect(1, 1, 9, 9), 0), 1);
  EXPECT_EQ(rect.IsInside(IRect(1, 1, 9, 11), 1), 0);  // the bottom corners fail
  EXPECT_EQ(IRect(5, 5, 0, 0).IsInside(2, 2, 1), 0);   // inverted: nothing inside
  double const nan = std::nan("");
  DRect const unit(0, 0, 10, 10);
  for (ZEL::u8 edges : {0, 1}) {
    EXPECT_EQ(unit.IsInside(nan, 5, edges) * 2 + unit.IsInside(nan, 20, edges), 2);
    EXPECT_EQ(DRect(nan, nan, nan, nan).IsInside(5, 5, edges), 1);
  }
}

TEST(RectTest, IntersectAndMerge) {
  struct Row {
    IRect a, b, intersection, merge;
  } const rows[] = {
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
  EXPECT_EQ(rect |= IRect(1, 1, 2, 2), IRect(1, 0, 10, 10));
}

TEST(RectTest, AddingASizeDiffersAtTheBottomEdge) {
  IRect const rect(0, 5, 10, 15);
  IRect grown = rect;
  grown += ISize(1, 1);
  EXPECT_EQ(grown, IRect(0, 5, 11, 16));
  EXPECT_EQ(rect + ISize(1, 1), IRect(0, 5, 11, 26));
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
  rect.MoveTo(100, 200);  // the negative extents stay
  EXPECT_EQ(rect, IRect(100, 200, 98, 195));
  rect.Translate(1, -1);
  rect.TranslateY(INT_MAX);
  EXPECT_EQ(rect, IRect(101, INT_MIN + 198, 99, INT_MIN + 193));
}

TEST(RectTest, NamedClassesForwardToTheTemplate) {
  CZEL_Int32Rect const a(0, 0, 4, 4);
  CZEL_Int32Rect b = a & CZEL_Int32Rect(2, 2, 8, 8);  // built from the template result
  EXPECT_EQ(b, IRect(2, 2, 4, 4));
  EXPECT_EQ(b = a | b, a);
  EXPECT_EQ(CZEL_Int32Rect(CZEL_Int32Point(1, 2), CZEL_Int32Size(3, 4)), IRect(1, 2, 4, 6));
  CZEL_DoubleRect d(CZEL_DoublePoint(0.5, 0.5), CZEL_DoublePoint(1.5, 1.5));
  EXPECT_EQ(d, DRect(0.5, 0.5, 1.5, 1.5));
}

}  // namespace
