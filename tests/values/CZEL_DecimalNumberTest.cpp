#include <LZEL_Core/values/CZEL_DecimalNumber.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

using ZEL::i64;
using ZEL::u16;
using ZEL::u64;
using D = CZEL_DecimalNumber;

namespace {

constexpr auto kDot = D::DecimalPoint_Dot;
constexpr auto kComma = D::DecimalPoint_Comma;
constexpr auto kEither = D::DecimalPoint_DotOrComma;

// Opens the protected helpers and fields to the tests.
class Probe : public D {
 public:
  explicit Probe(D const& d) : D(d) {}
  using D::GetMaxDec;
  using D::RoundDecimal;
  static i64 Value(D const& d) { return Probe(d).m_Value; }
  static u16 Places(D const& d) { return Probe(d).m_NumDigits; }
};

std::string Text(CZEL_String const& s) { return std::string(s.GetStringC(), s.GetLength()); }
D Parse(u16 places, char const* text, D::t_DecimalPointType type = kDot) {
  return D(places, text, type);
}

TEST(CZEL_DecimalNumberTest, MaxDecAndRoundDecimal) {
  EXPECT_EQ(Probe::GetMaxDec(0), 1u);
  EXPECT_EQ(Probe::GetMaxDec(19), 10000000000000000000u);
  EXPECT_EQ(Probe::GetMaxDec(20), 7766279631452241920u);  // wrapped
  EXPECT_EQ(Probe::GetMaxDec(64), 0u);
  struct Case {
    u16 places;
    u64 decimal;
    u16 expected;
  } const cases[] = {
      {2, 5, 5},
      {2, 99, 99},
      {2, 100, 10},
      {2, 456, 46},
      {2, 454, 45},
      {2, 999, 100},
      {0, 1, 0},
      {0, 5, 1},
      {2, 57920, 58},
      {5, 99999, 34463},
      {2, std::numeric_limits<u64>::max(), 18},
  };
  for (Case const& c : cases)
    EXPECT_EQ(Probe::RoundDecimal(c.places, c.decimal), c.expected) << c.places << " " << c.decimal;
}

// The integer wraps through the unsigned forms and the fraction is added after it.
TEST(CZEL_DecimalNumberTest, IntegerForms) {
  EXPECT_EQ(Probe::Value(D()), 0);
  EXPECT_EQ(Probe::Places(D()), 2);
  EXPECT_EQ(Probe::Value(D(2, i64{-5}, u16{25})), -475);
  EXPECT_EQ(Probe::Value(D(2, i64{-5})), -500);
  EXPECT_EQ(Probe::Value(D(3).Set(u64{7}, 25, 1)), -7025);
  EXPECT_EQ(Probe::Value(D(2).Set(u64{1}, 999, 0)), 200);
  EXPECT_EQ(Probe::Value(D(0).Set(u64{1} << 63, 0, 1)), std::numeric_limits<i64>::min());
}

TEST(CZEL_DecimalNumberTest, TextSetter) {
  struct Case {
    u16 places;
    char const* text;
    D::t_DecimalPointType type;
    i64 expected;
  } const cases[] = {
      {2, "1.25", kDot, 125},
      {2, "  -1.25  ", kDot, -125},
      {2, "- 1.25", kDot, -125},
      {2, "1,5", kDot, 100},
      {2, "-1,5", kComma, -150},
      {2, "1,5", kEither, 150},
      {2, "1.5", kComma, 100},
      {2, "1.2,5", kEither, 102},
      {2, "1,234.5", kEither, 150},
      {2, "1.5", D::t_DecimalPointType(7), 100},
      {2, "-.5", kDot, -50},
      {2, "+2.5", kDot, 250},
      {2, "12abc", kDot, 1200},
      {2, "-12", kDot, -1200},
      {2, "", kDot, 0},
      {2, "abc", kDot, 0},
      {2, "1.005", kDot, 105},
      {2, "1.00456", kDot, 146},
      {2, "1.999", kDot, 200},
      {2, "1.123456", kDot, 158},
      {2, "1.-5", kDot, 166},
      {4, "1.5", kDot, 15000},
      {0, "1.5", kDot, 2},
      {0, "1.4", kDot, 1},
      {0, "99999999999999999999.0", kDot, -1},  // saturated, then wrapped
  };
  for (Case const& c : cases)
    EXPECT_EQ(Probe::Value(Parse(c.places, c.text, c.type)), c.expected) << c.text;
}

// The fraction is rounded once more by size, so a carry to a whole is lost.
TEST(CZEL_DecimalNumberTest, DoubleSetter) {
  struct Case {
    u16 places;
    double number;
    i64 expected;
  } const cases[] = {
      {2, -1.25, -125},    {2, 1.999, 110}, {2, 0.999, 10}, {0, 1.5, 1},          {2, 0.125, 13},
      {4, 3.14159, 31416}, {2, -0.0, 0},    {5, 0.7, 4464}, {2, std::nan(""), 0}, {2, -HUGE_VAL, 0},
  };
  for (Case const& c : cases)
    EXPECT_EQ(Probe::Value(D(c.places, c.number)), c.expected) << c.number;
  EXPECT_EQ(Probe::Value(D(0, 1e20)), i64{7766279631452241920});  // 1e20 modulo 2^64
  D d(3);
  d = -2.5;
  EXPECT_EQ(Probe::Value(d), -2500);
  EXPECT_EQ(Probe::Places(d), 3);
}

TEST(CZEL_DecimalNumberTest, ChangeNumDigits) {
  struct Case {
    u16 from;
    char const* text;
    u16 to;
    i64 expected;
  } const cases[] = {
      {4, "1.2349", 2, 123},   {4, "1.2451", 2, 125}, {2, "0.99", 1, 1},     {2, "1.75", 0, 1},
      {2, "-1.25", 4, -12500}, {2, "-0.5", 0, 0},     {2, "0.99", 5, 33464}, {2, "7.5", 2, 750},
  };
  for (Case const& c : cases) {
    D d = Parse(c.from, c.text);
    EXPECT_EQ(&d.ChangeNumDigits(c.to), &d);
    EXPECT_EQ(Probe::Value(d), c.expected) << c.text << " to " << c.to;
    EXPECT_EQ(Probe::Places(d), c.to);
  }
}

// Results take the left operand's places; the right operand is rounded on a copy.
TEST(CZEL_DecimalNumberTest, Arithmetic) {
  D const one = Parse(2, "1.00");
  D const small = Parse(4, "0.2345");
  D sum = one + small;
  EXPECT_EQ(Probe::Value(sum), 123);
  EXPECT_EQ(Probe::Places(sum), 2);
  EXPECT_EQ(Probe::Value(small + one), 12345);
  EXPECT_EQ(Probe::Value(small), 2345);
  EXPECT_EQ(Probe::Value(one - Parse(1, "2.5")), -150);
  EXPECT_EQ(Probe::Value(sum -= small), 100);
  EXPECT_EQ(Probe::Value(sum += Parse(2, "0.5")), 150);

  D cent = Parse(2, "0.01");
  EXPECT_EQ(Probe::Value(cent * 3), 3);
  EXPECT_EQ(Probe::Value(3 * cent), 3);
  EXPECT_EQ(Probe::Places(3 * cent), 2);

  D const top = D(0).Set(u64{std::numeric_limits<i64>::max()}, 0, 0);
  EXPECT_EQ(Probe::Value(top + D(0, i64{1})), std::numeric_limits<i64>::min());
  EXPECT_EQ(Probe::Value(D(0, i64{1} << 62) * 4), 0);
}

// Both orders meet at the larger number of places.
TEST(CZEL_DecimalNumberTest, Comparison) {
  struct Case {
    D a, b;
    signed char expected;
  } const cases[] = {
      {Parse(2, "1.10"), Parse(1, "1.1"), 0}, {Parse(4, "1.0049"), Parse(2, "1.00"), 1},
      {Parse(2, "-1"), Parse(2, "1"), -1},    {Parse(0, "5"), Parse(3, "4.999"), 1},
      {Parse(2, "0.5"), Parse(2, "-0.5"), 1},
  };
  for (Case const& c : cases) {
    EXPECT_EQ(c.a.Compare(c.b), c.expected) << Text(c.a.ToString('.'));
    EXPECT_EQ(D::Compare(c.b, c.a), -c.expected) << Text(c.a.ToString('.'));
    EXPECT_EQ(c.a == c.b, c.expected == 0);
    EXPECT_EQ(c.a != c.b, c.expected != 0);
    EXPECT_EQ(c.a < c.b, c.expected < 0);
    EXPECT_EQ(c.a <= c.b, c.expected <= 0);
    EXPECT_EQ(c.a > c.b, c.expected > 0);
    EXPECT_EQ(c.a >= c.b, c.expected >= 0);
  }
  signed char (*comparator)(D const&, D const&) = &D::Compare;
  EXPECT_EQ(comparator(Parse(2, "1"), Parse(2, "2")), -1);
}

TEST(CZEL_DecimalNumberTest, TextForms) {
  struct Case {
    D number;
    char point;
    std::string simple, grouped;
  } const cases[] = {
      {D(), '.', "0.00", "0.00"},
      {D(0, i64{12}), '.', "12.0", "12.0"},
      {Parse(2, "-0.5"), '.', "-0.50", "-0.50"},
      {Parse(2, "1234567.5"), '.', "1234567.50", "1,234,567.50"},
      {Parse(2, "-1000", kComma), ',', "-1000,00", "-1,000,00"},
      {Parse(4, "0.0005"), '.', "0.0005", "0.0005"},
      {D(0, i64{2147483648}), '.', "-2147483648.0", "2,147,483,648.0"},
      {D(2, i64{4294967301}), '.', "5.00", "4,294,967,301.00"},
      {Parse(5, "0.4") + Parse(5, "0.3"), '.', "0.04464", "0.04464"},  // 70000 cut to 16 bits
      {D(0).Set(u64{1} << 63, 0, 1), '.', "-0.0", "-9,223,372,036,854,775,808.0"},
  };
  for (Case const& c : cases) {
    EXPECT_EQ(Text(c.number.ToString(c.point)), c.simple);
    EXPECT_EQ(Text(c.number.ToString(c.point, ',')), c.grouped);
  }
}

TEST(CZEL_DecimalNumberTest, Readers) {
  D const half = Parse(2, "-0.5");
  EXPECT_EQ(half.GetIntegral(), 0u);
  EXPECT_EQ(half.GetDecimal(), 50);
  EXPECT_EQ(half.GetSign(), -1);
  EXPECT_EQ(D().GetSign(), 1);
  EXPECT_EQ(half.ToDouble(), -0.5);
  EXPECT_EQ(Parse(3, "1234567.125").ToDouble(), 1234567.125);
  EXPECT_EQ((Parse(5, "0.4") + Parse(5, "0.3")).GetDecimal(), 4464);

  D copy(Parse(3, "1.5"));
  copy = static_cast<D const&>(copy);
  EXPECT_EQ(Probe::Value(copy), 1500);
  D other;
  other = copy;
  EXPECT_EQ(Probe::Places(other), 3);
}

}  // namespace
