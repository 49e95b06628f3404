// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/values/CZEL_DecimalNumber.h>

#include <gtest/gtest.h>

#include <cmath>
#include <string>

using ZEL::i64;
using ZEL::u16;
using ZEL::u64;
using D = CZEL_DecimalNumber;

namespace {

constexpr auto kComma = D::DecimalPoint_Comma;
constexpr auto kEither = D::DecimalPoint_DotOrComma;

std::string Text(CZEL_String const& s) { return std::string(s.GetStringC(), s.GetLength()); }
D T(u16 places, char const* text, D::t_DecimalPointType type = D::DecimalPoint_Dot) {
  return D(places, text, type);
}
D Moved(D d, u16 places) { return d.ChangeNumDigits(places); }

// `expr` gives a number whose grouped text form is `expected`; up to 4
// places that shows its places as well as its value.
struct Row {
  char const* expr;
  D number;
  char const* expected;
};
#define ROW(expr, expected) \
  Row { #expr, expr, expected }

// Setters: a negative integer wraps through the unsigned forms and the
// fraction is then added; fractions are whole numbers rounded by size, so
// leading zeros of a long fraction text are lost. ChangeNumDigits: down,
// only the most significant dropped digit rounds and a carry to a whole is
// cut; up, the 16-bit fraction wraps from 5 places on. Arithmetic: results
// take the left operand's places, the right operand converted on a copy.
TEST(CZEL_DecimalNumberTest, SettersPlacesAndArithmetic) {
  D const small = T(4, "0.2345");
  D cent = T(2, "0.01");
  D const top = D(0).Set((u64{1} << 63) - 1, 0, 0);
  D assigned(3);
  // clang-format off
  Row const rows[] = {
      ROW(D(), "0.00"), ROW(D(2, i64{-5}, u16{25}), "-4.75"), ROW(D(2).Set(u64{1}, 999, 0), "2.00"),
      ROW(D(0).Set(u64{1} << 63, 0, 1), "-9,223,372,036,854,775,808.0"),
      ROW(T(2, "  -1.25  "), "-1.25"), ROW(T(2, "-.5"), "-0.50"), ROW(T(2, "12abc"), "12.00"),
      ROW(T(2, "1,5"), "1.00"), ROW(T(2, "1.5", kComma), "1.00"), ROW(T(2, "1,5", kEither), "1.50"),
      ROW(T(2, "-1,5", kComma), "-1.50"), ROW(T(2, "1.2,5", kEither), "1.02"),
      ROW(T(2, "1,234.5", kEither), "1.50"), ROW(T(2, "1.5", D::t_DecimalPointType(7)), "1.00"),
      ROW(T(2, "1.005"), "1.05"), ROW(T(2, "1.00456"), "1.46"), ROW(T(2, "1.999"), "2.00"),
      ROW(T(2, "1.123456"), "1.58"), ROW(T(2, "1.-5"), "1.66"), ROW(T(0, "1.5"), "2.0"),
      ROW(T(0, "99999999999999999999.0"), "-1.0"),  // saturated, then wrapped
      ROW(D(2, -1.25), "-1.25"), ROW(D(2, 1.999), "1.10"), ROW(D(2, 0.999), "0.10"),
      ROW(D(0, 1.5), "1.0"), ROW(D(4, 3.14159), "3.1416"), ROW(D(2, std::nan("")), "0.00"),
      ROW(D(2, -HUGE_VAL), "0.00"), ROW(D(0, 1e20), "7,766,279,631,452,241,920.0"),  // modulo 2^64
      ROW(D(5, 0.7), "0.04464"), ROW(T(5, "0.4") + T(5, "0.3"), "0.04464"),  // 70000 cut to 16 bits
      ROW(assigned = -2.5, "-2.500"), ROW(D() = T(3, "1.5"), "1.500"),
      ROW(Moved(T(4, "1.2349"), 2), "1.23"), ROW(Moved(T(4, "1.2451"), 2), "1.25"),
      ROW(Moved(T(2, "0.99"), 1), "0.1"), ROW(Moved(T(2, "1.75"), 0), "1.0"),
      ROW(Moved(T(2, "-1.25"), 4), "-1.2500"), ROW(Moved(T(2, "-0.5"), 0), "0.0"),
      ROW(Moved(T(2, "0.99"), 5), "0.33464"),
      ROW(T(2, "1") + small, "1.23"), ROW(small + T(2, "1"), "1.2345"), ROW(small, "0.2345"),
      ROW(T(2, "1") - T(1, "2.5"), "-1.50"), ROW(T(2, "1.5") -= small, "1.27"),
      ROW(T(1, "1.5") += small, "1.7"), ROW(cent * 3, "0.03"), ROW(3 * cent, "0.03"),
      ROW(top + D(0, i64{1}), "-9,223,372,036,854,775,808.0"), ROW(D(0, i64{1} << 62) * 4, "0.0"),
      ROW(D(2, 0), "0.00"), ROW(D(1, -7), "-7.0"), ROW(D(3).Set(5), "5.000"),
      ROW(3 * static_cast<D const&>(cent), "0.03"),
  };
  // clang-format on
  for (Row const& r : rows) EXPECT_EQ(Text(r.number.ToString('.', ',')), r.expected) << r.expr;
}

// Both operands meet at the larger number of places.
TEST(CZEL_DecimalNumberTest, Comparison) {
  struct Case {
    D a, b;
    int expected;
  } const cases[] = {
      {T(2, "1.10"), T(1, "1.1"), 0}, {T(4, "1.0049"), T(2, "1"), 1}, {T(2, "-1"), T(2, "1"), -1},
      {T(0, "5"), T(3, "4.999"), 1},  {T(2, "0.5"), T(2, "-0.5"), 1},
  };
  for (Case const& c : cases) {
    SCOPED_TRACE(Text(c.a.ToString('.')));
    int const e = c.expected;
    EXPECT_EQ(c.a.Compare(c.b), e);
    EXPECT_EQ(
        (c.a == c.b) | (c.a != c.b) << 1 | (c.a < c.b) << 2 | (c.a <= c.b) << 3 | (c.a > c.b) << 4 |
            (c.a >= c.b) << 5,
        (e == 0) | (e != 0) << 1 | (e < 0) << 2 | (e <= 0) << 3 | (e > 0) << 4 | (e >= 0) << 5);
  }
}

// The simple form prints the integer part from its low 32 bits, signed. A
// point or separator of 0 stays in the text ('_' stands for it here).
TEST(CZEL_DecimalNumberTest, SimpleTextAndReaders) {
  EXPECT_EQ(Text(D(0, i64{12}).ToString('.')), "12.0");
  EXPECT_EQ(Text(T(2, "-1234567.5").ToString(',')), "-1234567,50");
  EXPECT_EQ(Text(D(0, i64{2147483648}).ToString('.')), "-2147483648.0");
  EXPECT_EQ(Text(D(2, i64{4294967301}).ToString('.')), "5.00");
  EXPECT_EQ(Text(T(2, "1234567.5").ToString(',', '.')), "1.234.567,50");
  auto const zeros = [](std::string s) { return s.replace(s.find('_'), 1, 1, '\0'); };
  EXPECT_EQ(Text(T(2, "1234.5").ToString('\0')), zeros("1234_50"));
  EXPECT_EQ(Text(T(2, "1234.5").ToString('\0', '\0')), zeros(zeros("1_234_50")));
  D const half = T(2, "-0.5");
  EXPECT_TRUE(half.GetIntegral() == 0 && half.GetDecimal() == 50 && half.GetSign() == -1);
  EXPECT_TRUE(D().GetSign() == 1 && half.ToDouble() == -0.5);
  EXPECT_EQ(T(3, "1234567.125").ToDouble(), 1234567.125);
}

}  // namespace
