// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/values/CZEL_DecimalNumber.h>

#include <cmath>

using ZEL::i64;
using ZEL::u16;
using ZEL::u32;
using ZEL::u64;
using ZEL::u8;

namespace {

// The absolute value of a two's complement value, also of the smallest one.
u64 Magnitude(i64 value) {
  auto const bits = static_cast<u64>(value);
  return value < 0 ? 0 - bits : bits;
}

// A non-negative double truncated to a whole number modulo 2 to the 64, so
// that parts too large for 64 bits wrap as the integer arithmetic does
// (fmod is exact). Infinities and NaN give 0.
u64 TruncateToU64(double value) {
  constexpr double kTwoTo64 = 18446744073709551616.0;
  if (!std::isfinite(value)) return 0;
  if (value >= kTwoTo64) value = std::fmod(value, kTwoTo64);
  return static_cast<u64>(value);
}

}  // namespace

// -----------------------------------------------------------------------------
// Construction and copying
// -----------------------------------------------------------------------------

CZEL_DecimalNumber::CZEL_DecimalNumber(u16 numDigits) : m_NumDigits(numDigits), m_Value(0) {}

CZEL_DecimalNumber::CZEL_DecimalNumber(CZEL_DecimalNumber const& src)
    : CZEL_Object(), m_NumDigits(2), m_Value(0) {
  DataCopy(src);
}

CZEL_DecimalNumber::CZEL_DecimalNumber(u16 numDigits, char const* text, t_DecimalPointType type)
    : m_NumDigits(numDigits), m_Value(0) {
  Set(text, type);
}

CZEL_DecimalNumber::CZEL_DecimalNumber(u16 numDigits, double const& number)
    : m_NumDigits(numDigits), m_Value(0) {
  Set(number);
}

CZEL_DecimalNumber::CZEL_DecimalNumber(u16 numDigits, i64 const& number)
    : m_NumDigits(numDigits), m_Value(0) {
  Set(number);
}

CZEL_DecimalNumber::CZEL_DecimalNumber(u16 numDigits, int number)
    : CZEL_DecimalNumber(numDigits, i64{number}) {}

CZEL_DecimalNumber::CZEL_DecimalNumber(u16 numDigits, i64 const& integral, u16 const& decimal)
    : m_NumDigits(numDigits), m_Value(0) {
  Set(static_cast<u64>(integral), decimal, 0);
}

CZEL_DecimalNumber::~CZEL_DecimalNumber() = default;

CZEL_DecimalNumber& CZEL_DecimalNumber::operator=(CZEL_DecimalNumber const& src) {
  DataCopy(src);
  return *this;
}

CZEL_DecimalNumber& CZEL_DecimalNumber::operator=(double const& number) { return Set(number); }

void CZEL_DecimalNumber::DataCopy(CZEL_DecimalNumber const& src) {
  m_NumDigits = src.m_NumDigits;
  m_Value = src.m_Value;
}

// -----------------------------------------------------------------------------
// Setting
// -----------------------------------------------------------------------------

// The integer is scaled in unsigned arithmetic, so that it wraps modulo 2 to
// the 64, and the rounded fraction is added before the sign is applied.
CZEL_DecimalNumber& CZEL_DecimalNumber::Set(u64 const& integral, u16 const& decimal, u8 negative) {
  u64 const magnitude = integral * GetMaxDec(m_NumDigits) + RoundDecimal(m_NumDigits, decimal);
  m_Value = static_cast<i64>(negative != 0 ? 0 - magnitude : magnitude);
  return *this;
}

CZEL_DecimalNumber& CZEL_DecimalNumber::Set(i64 const& number) {
  return Set(static_cast<u64>(number), 0, 0);
}

CZEL_DecimalNumber& CZEL_DecimalNumber::Set(int number) { return Set(i64{number}); }

// The fraction is scaled by repeated multiplication and rounded half up by
// adding 0.5; `RoundDecimal` then sees a fraction that rounded up to a whole
// as a number with one digit too many and drops a zero, so the carry is lost.
CZEL_DecimalNumber& CZEL_DecimalNumber::Set(double const& number) {
  double integerPart = 0.0;
  double fraction = std::modf(std::fabs(number), &integerPart);
  for (u16 place = 0; place < m_NumDigits; ++place) fraction *= 10.0;
  u16 const decimal = RoundDecimal(m_NumDigits, TruncateToU64(fraction + 0.5));
  return Set(TruncateToU64(integerPart), decimal, 0.0 > number ? 1 : 0);
}

// The fraction text is read as a number before it is rounded, so its leading
// zeros are lost once it has more digits than places ("1.005" is 1.05 at
// two places). The sign is taken from the first character; the integer text
// then starts after it.
CZEL_DecimalNumber& CZEL_DecimalNumber::Set(char const* text, t_DecimalPointType type) {
  CZEL_String s(text);
  s.Trim(' ', 3);
  u32 point = 0;
  bool found = false;
  if (type == DecimalPoint_Dot || type == DecimalPoint_DotOrComma)
    found = s.FindFromBegin('.', &point, 0) != 0;
  if (!found && (type == DecimalPoint_Comma || type == DecimalPoint_DotOrComma))
    found = s.FindFromBegin(',', &point, 0) != 0;
  if (!found) return Set(static_cast<u64>(s.ToSigned()), 0, 0);

  CZEL_String fractionText = s.RightFromPos(point + 1);
  if (fractionText.GetLength() < m_NumDigits) fractionText.SetLength(m_NumDigits, '0');
  auto const fraction = static_cast<u16>(fractionText.ToUnsigned(10));
  u8 const negative = s.GetChar(0) == '-' ? 1 : 0;
  u64 const integral = s.Mid(negative, point - negative).ToUnsigned(10);
  return Set(integral, fraction, negative);
}

// Only the most significant digit dropped rounds. The fraction stays in 16
// bits throughout, and the basic setter rounds it once more by size, which
// cuts a carry that reached the new maximum.
CZEL_DecimalNumber& CZEL_DecimalNumber::ChangeNumDigits(u16 numDigits) {
  if (numDigits == m_NumDigits) return *this;
  u64 const integral = GetIntegral();
  u16 decimal = GetDecimal();
  u8 const negative = GetSign() < 0 ? 1 : 0;
  for (; m_NumDigits < numDigits; ++m_NumDigits) decimal = static_cast<u16>(decimal * 10);
  if (m_NumDigits > numDigits) {
    u16 lastDropped = 0;
    for (; m_NumDigits > numDigits; --m_NumDigits) {
      lastDropped = decimal % 10;
      decimal /= 10;
    }
    if (lastDropped >= 5) ++decimal;
  }
  return Set(integral, decimal, negative);
}

// -----------------------------------------------------------------------------
// Arithmetic
// -----------------------------------------------------------------------------

i64 CZEL_DecimalNumber::ValueAtOwnPlaces(CZEL_DecimalNumber const& other) const {
  if (other.m_NumDigits == m_NumDigits) return other.m_Value;
  return CZEL_DecimalNumber(other).ChangeNumDigits(m_NumDigits).m_Value;
}

i64 CZEL_DecimalNumber::Sum(i64 a, i64 b) {
  return static_cast<i64>(static_cast<u64>(a) + static_cast<u64>(b));
}

i64 CZEL_DecimalNumber::Sub(i64 a, i64 b) {
  return static_cast<i64>(static_cast<u64>(a) - static_cast<u64>(b));
}

CZEL_DecimalNumber CZEL_DecimalNumber::operator+(CZEL_DecimalNumber const& other) const {
  return CZEL_DecimalNumber(*this) += other;
}

CZEL_DecimalNumber CZEL_DecimalNumber::operator-(CZEL_DecimalNumber const& other) const {
  return CZEL_DecimalNumber(*this) -= other;
}

CZEL_DecimalNumber& CZEL_DecimalNumber::operator+=(CZEL_DecimalNumber const& other) {
  m_Value = Sum(m_Value, ValueAtOwnPlaces(other));
  return *this;
}

CZEL_DecimalNumber& CZEL_DecimalNumber::operator-=(CZEL_DecimalNumber const& other) {
  m_Value = Sub(m_Value, ValueAtOwnPlaces(other));
  return *this;
}

CZEL_DecimalNumber CZEL_DecimalNumber::operator*(i64 const& factor) const {
  CZEL_DecimalNumber product(*this);
  product.m_Value = static_cast<i64>(static_cast<u64>(m_Value) * static_cast<u64>(factor));
  return product;
}

CZEL_DecimalNumber operator*(i64 const& factor, CZEL_DecimalNumber& number) {
  return number * factor;
}

CZEL_DecimalNumber operator*(i64 const& factor, CZEL_DecimalNumber const& number) {
  return number * factor;
}

// -----------------------------------------------------------------------------
// Comparison
// -----------------------------------------------------------------------------

// Both operands meet at the larger number of places: the other one is
// brought up to this one's, or a copy of this one up to the other's.
signed char CZEL_DecimalNumber::Compare(CZEL_DecimalNumber const& other) const {
  if (m_NumDigits < other.m_NumDigits) return -other.Compare(*this);
  i64 const theirs = ValueAtOwnPlaces(other);
  return m_Value > theirs ? 1 : m_Value < theirs ? -1 : 0;
}

signed char CZEL_DecimalNumber::Compare(CZEL_DecimalNumber const& a, CZEL_DecimalNumber const& b) {
  return a.Compare(b);
}

ZEL::u8 CZEL_DecimalNumber::operator==(CZEL_DecimalNumber const& other) const {
  return Compare(other) == 0;
}

ZEL::u8 CZEL_DecimalNumber::operator!=(CZEL_DecimalNumber const& other) const {
  return Compare(other) != 0;
}

ZEL::u8 CZEL_DecimalNumber::operator<(CZEL_DecimalNumber const& other) const {
  return Compare(other) < 0;
}

ZEL::u8 CZEL_DecimalNumber::operator<=(CZEL_DecimalNumber const& other) const {
  return Compare(other) <= 0;
}

ZEL::u8 CZEL_DecimalNumber::operator>(CZEL_DecimalNumber const& other) const {
  return Compare(other) > 0;
}

ZEL::u8 CZEL_DecimalNumber::operator>=(CZEL_DecimalNumber const& other) const {
  return Compare(other) >= 0;
}

// -----------------------------------------------------------------------------
// Reading
// -----------------------------------------------------------------------------

u64 CZEL_DecimalNumber::GetIntegral() const { return Magnitude(m_Value) / GetMaxDec(m_NumDigits); }

u16 CZEL_DecimalNumber::GetDecimal() const {
  return static_cast<u16>(Magnitude(m_Value) % GetMaxDec(m_NumDigits));
}

signed char CZEL_DecimalNumber::GetSign() const { return m_Value < 0 ? -1 : 1; }

double CZEL_DecimalNumber::ToDouble() const {
  double const magnitude =
      static_cast<double>(GetIntegral()) +
      static_cast<double>(GetDecimal()) / static_cast<double>(GetMaxDec(m_NumDigits));
  return GetSign() < 0 ? -magnitude : magnitude;
}

// The fraction takes the places as its least width, padded with zeros; the
// integer part goes through "%d" as its low 32 bits. One pass of the
// formatter builds the whole text.
CZEL_String CZEL_DecimalNumber::ToString(char decimalPoint) const {
  CZEL_String text;
  return text.Format("%s%d%c%0*d", SignText(), static_cast<int>(static_cast<u32>(GetIntegral())),
                     decimalPoint, static_cast<int>(m_NumDigits), static_cast<int>(GetDecimal()));
}

// The grouped integer text may hold bytes of 0 (a separator of 0), so it is
// joined as a string rather than passed through the formatter.
CZEL_String CZEL_DecimalNumber::ToString(char decimalPoint, char thousandsSeparator) const {
  CZEL_String fraction;
  fraction.Format("%c%0*d", decimalPoint, static_cast<int>(m_NumDigits),
                  static_cast<int>(GetDecimal()));
  return SignText() + CZEL_String::FromNumber(GetIntegral(), 10, 3, thousandsSeparator) + fraction;
}

char const* CZEL_DecimalNumber::SignText() const { return m_Value < 0 ? "-" : ""; }

// -----------------------------------------------------------------------------
// Helpers
// -----------------------------------------------------------------------------

u64 CZEL_DecimalNumber::GetMaxDec(u16 n) {
  u64 power = 1;
  for (u16 i = 0; i < n; ++i) power *= 10;
  return power;
}

u16 CZEL_DecimalNumber::RoundDecimal(u16 numDigits, u64 decimal) {
  u64 const maximum = GetMaxDec(numDigits);
  u64 digits = decimal;
  u64 scale = 1;
  while (digits >= maximum) {
    digits /= 10;
    scale *= 10;
  }
  if (scale == 1) return static_cast<u16>(digits);
  return static_cast<u16>(decimal % scale >= scale / 2 ? digits + 1 : digits);
}
