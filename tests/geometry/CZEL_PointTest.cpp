// Points and sizes: both pair templates run the same cases through a form
// that names their accessors, and each of the four named classes is built,
// copied and assigned from its template.

#include <LZEL_Core/geometry/ZEL_Geometry.h>

#include <gtest/gtest.h>

#include <climits>
#include <cmath>

namespace {

template <typename T>
struct PointForm {
  using Pair = CZEL_Point<T>;
  static T First(Pair const& p) { return p.GetX(); }
  static T Second(Pair const& p) { return p.GetY(); }
  static void SetFirst(Pair& p, T v) { p.SetX(v); }
  static void SetSecond(Pair& p, T v) { p.SetY(v); }
};

template <typename T>
struct SizeForm {
  using Pair = CZEL_Size<T>;
  static T First(Pair const& p) { return p.GetWidth(); }
  static T Second(Pair const& p) { return p.GetHeight(); }
  static void SetFirst(Pair& p, T v) { p.SetWidth(v); }
  static void SetSecond(Pair& p, T v) { p.SetHeight(v); }
};

template <typename Form>
class PairTest : public ::testing::Test {};

using Forms = ::testing::Types<PointForm<int>, PointForm<double>, SizeForm<int>, SizeForm<double>>;
TYPED_TEST_SUITE(PairTest, Forms);

template <typename Form>
void ExpectPair(typename Form::Pair const& p, double first, double second) {
  EXPECT_EQ(Form::First(p), first);
  EXPECT_EQ(Form::Second(p), second);
}

TYPED_TEST(PairTest, ConstructsSetsAndCopies) {
  using F = TypeParam;
  using P = typename F::Pair;
  ExpectPair<F>(P(), 0, 0);
  P p(3, 4);
  ExpectPair<F>(p, 3, 4);
  F::SetFirst(p, 7);
  F::SetSecond(p, -8);
  ExpectPair<F>(p, 7, -8);
  EXPECT_EQ(&p.Set(1, 2), &p);
  ExpectPair<F>(p, 1, 2);
  P copy(p);
  P assigned;
  EXPECT_EQ(&(assigned = p), &assigned);
  ExpectPair<F>(copy, 1, 2);
  ExpectPair<F>(assigned, 1, 2);
  P const& same = p;
  p = same;
  ExpectPair<F>(p, 1, 2);
}

TYPED_TEST(PairTest, ArithmeticLeavesOperandsOrAssigns) {
  using F = TypeParam;
  using P = typename F::Pair;
  P const a(3, 4);
  P const b(1, 1);
  ExpectPair<F>(a - b, 2, 3);
  ExpectPair<F>(a + b, 4, 5);
  ExpectPair<F>(a, 3, 4);
  ExpectPair<F>(b, 1, 1);
  P c(a);
  c += b;
  ExpectPair<F>(c, 4, 5);
  c -= P(10, -10);
  ExpectPair<F>(c, -6, 15);
}

TYPED_TEST(PairTest, EqualityComparesBothFields) {
  using P = typename TypeParam::Pair;
  EXPECT_EQ(P(1, 2) == P(1, 2), 1);
  EXPECT_EQ(P(1, 2) == P(0, 2), 0);
  EXPECT_EQ(P(1, 2) == P(1, 0), 0);
  EXPECT_EQ(P(1, 2) != P(1, 0), 1);
  EXPECT_EQ(P(1, 2) != P(1, 2), 0);
}

TEST(PairTest, IntSumsWrapIn32Bits) {
  EXPECT_EQ(CZEL_Point<int>(INT_MAX, 0) + CZEL_Point<int>(1, INT_MIN),
            CZEL_Point<int>(INT_MIN, INT_MIN));
  EXPECT_EQ(CZEL_Size<int>(INT_MIN, 0) - CZEL_Size<int>(1, INT_MIN),
            CZEL_Size<int>(INT_MAX, INT_MIN));
  CZEL_Point<int> p(INT_MAX, INT_MIN);
  p += CZEL_Point<int>(INT_MAX, INT_MIN);
  EXPECT_EQ(p, CZEL_Point<int>(-2, 0));
}

TEST(PairTest, DoubleEqualityIsExact) {
  EXPECT_EQ(CZEL_Point<double>(0.1 + 0.2, 0) == CZEL_Point<double>(0.3, 0), 0);
  CZEL_Size<double> const nan(0, std::nan(""));
  EXPECT_EQ(nan == nan, 0);
  EXPECT_EQ(nan != nan, 1);
  EXPECT_EQ(CZEL_Point<double>(-0.0, 0) == CZEL_Point<double>(0.0, 0), 1);
}

template <typename Named>
class NamedPairTest : public ::testing::Test {};

using NamedPairs =
    ::testing::Types<CZEL_Int32Point, CZEL_DoublePoint, CZEL_Int32Size, CZEL_DoubleSize>;
TYPED_TEST_SUITE(NamedPairTest, NamedPairs);

TYPED_TEST(NamedPairTest, ForwardsToTheTemplate) {
  using N = TypeParam;
  N const a(5, 6);
  N b;
  EXPECT_EQ(b == N(0, 0), 1);
  EXPECT_EQ(&(b = a + a), &b);  // the sum is of the template type
  EXPECT_EQ(b == N(10, 12), 1);
  N c(b);
  EXPECT_EQ(&(c = a), &c);
  EXPECT_EQ(c == a, 1);
}

}  // namespace
