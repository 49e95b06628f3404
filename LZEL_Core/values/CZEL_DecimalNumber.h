// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_DecimalNumber.h
// -----------------------------------------------------------------------------
//
// `CZEL_DecimalNumber` is a signed fixed-point number: one 64-bit integer that
// counts units of 10 to the minus `m_NumDigits` ("places"). Each object keeps
// its own number of places, 2 unless chosen otherwise. It adds, subtracts and
// multiplies by integers exactly, and reads and writes text with a chosen
// decimal point.
//
//   CZEL_DecimalNumber price(2, "19.99", CZEL_DecimalNumber::DecimalPoint_Dot);
//   CZEL_DecimalNumber total = price * 3;              // 59.97
//   total += CZEL_DecimalNumber(2, "0,03", CZEL_DecimalNumber::DecimalPoint_Comma);
//   total.ToString('.');                               // "60.00"
//   CZEL_DecimalNumber(2, 1234567.5).ToString('.', ',');  // "1,234,567.50"
//
// The fraction is 16 bits wide
//
// The fractional part passes through 16-bit values everywhere: in
// `GetDecimal`, in the setters and in `ChangeNumDigits`. Up to 4 places every
// fraction is exact; from 5 places on, fractions of 65536 and above wrap.
//
// Rounding works on whole numbers, by size
//
// A fraction is handed to the setters as a whole number of digits, not as a
// fraction. A number with more digits than there are places is brought down
// to that many digits, rounding half up on the first digit dropped; a number
// with no more digits than places is taken as it stands, whatever zeros
// stood before it in the text. So at two places "1.005" reads 1.05 and
// "1.00456" reads 1.46, while "1.5" reads 1.50 and "1.999" reads 2.00.
//
// Quiet wraps
//
// Nothing here throws or returns an error code. The arithmetic wraps modulo
// 2 to the 64, a fraction text worth more than 65535 wraps to 16 bits, and
// malformed text reads by the rules of `CZEL_String::ToSigned` and
// `CZEL_String::ToUnsigned` ("12abc" reads 12). The number of places is not
// checked: from 19 places on 10 to that power has overflowed, and from 64
// places on it is 0, where most members divide by zero. The caller keeps the
// places below 64.
//
// Places across operands
//
// Sums and differences take the places of the left operand; a right operand
// with other places is first converted by `ChangeNumDigits`, on a copy. A
// comparison converts whichever operand has fewer places to the other's, so
// that both orders of the operands give opposite answers and every
// comparison returns.

#ifndef LZEL_CORE_VALUES_CZEL_DECIMALNUMBER_H_
#define LZEL_CORE_VALUES_CZEL_DECIMALNUMBER_H_

#include <LZEL_Core/frame/CZEL_Object.h>
#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/text/CZEL_String.h>

class ZEL_API CZEL_DecimalNumber : public CZEL_Object {
 public:
  // The decimal point that the text setter looks for.
  enum t_DecimalPointType : ZEL::u32 {
    DecimalPoint_Dot = 0,         // '.'
    DecimalPoint_Comma = 1,       // ','
    DecimalPoint_DotOrComma = 2,  // the first '.', or failing that the first ','
  };

  // ---------------------------------------------------------------------------
  // Construction
  // ---------------------------------------------------------------------------

  // 0 at `numDigits` places.
  explicit CZEL_DecimalNumber(ZEL::u16 numDigits = 2);

  // A copy of `src`, with its places.
  CZEL_DecimalNumber(CZEL_DecimalNumber const& src);

  // `Set(text, type)` at `numDigits` places.
  CZEL_DecimalNumber(ZEL::u16 numDigits, char const* text, t_DecimalPointType type);

  // `Set(number)` at `numDigits` places, for a double.
  CZEL_DecimalNumber(ZEL::u16 numDigits, double const& number);

  // `Set(number)` at `numDigits` places, for an integer.
  CZEL_DecimalNumber(ZEL::u16 numDigits, ZEL::i64 const& number);

  // The same for an `int`, so that `CZEL_DecimalNumber(2, 0)` and
  // `CZEL_DecimalNumber(2, 5)` hold the integers 0 and 5.
  CZEL_DecimalNumber(ZEL::u16 numDigits, int number);

  // `Set(integral, decimal, 0)` at `numDigits` places, the integer taken as
  // unsigned. A negative `integral` wraps to the right multiple and the
  // fraction is then added, not subtracted: (2, -5, 25) holds -4.75. Give
  // the sign of a number with a fraction through `Set`'s `negative`.
  CZEL_DecimalNumber(ZEL::u16 numDigits, ZEL::i64 const& integral, ZEL::u16 const& decimal);

  ~CZEL_DecimalNumber() override;

  // ---------------------------------------------------------------------------
  // Setting
  // ---------------------------------------------------------------------------
  //
  // The setters keep the places; only the assignment of another number,
  // `ChangeNumDigits` and the arithmetic's results change them.

  // A copy of `src`, places included. Assigning a number to itself changes
  // nothing.
  CZEL_DecimalNumber& operator=(CZEL_DecimalNumber const& src);

  // `Set(number)`.
  CZEL_DecimalNumber& operator=(double const& number);

  // The basic setter: `integral` plus the fraction `decimal`, negated if
  // `negative` is non-zero. `decimal` is a whole number of digits, rounded
  // half up by size to the places (see the file comment), and it may carry
  // into the integer: at two places, (1, 999, 0) holds 2.00. The value wraps
  // modulo 2 to the 64.
  CZEL_DecimalNumber& Set(ZEL::u64 const& integral, ZEL::u16 const& decimal, ZEL::u8 negative);

  // `number` with a zero fraction; a negative `number` wraps to the right
  // multiple.
  CZEL_DecimalNumber& Set(ZEL::i64 const& number);

  // The same for an `int`: `Set(5)` holds the integer 5.
  CZEL_DecimalNumber& Set(int number);

  // `number` rounded half up to the places. The fraction's digits are
  // rounded once more by size, so that a fraction which rounds up to a whole
  // loses its carry and leaves a 1 in the first place: at two places 1.999
  // gives 1.10 and 0.999 gives 0.10, and at 0 places 1.5 gives 1. The text
  // setter rounds these correctly. Parts of `number` at or above 2 to the 64
  // wrap modulo 2 to the 64; infinities and NaN read as 0.
  CZEL_DecimalNumber& Set(double const& number);

  // `text` without its outer blanks, read at the first decimal point of
  // `type`; any other `type` finds no point. Without a point the whole text
  // reads through `CZEL_String::ToSigned`, so "1,5" with `DecimalPoint_Dot`
  // is 1. With a point the integer left of it and the fraction right of it
  // (padded with '0' up to the places) read in base 10 through
  // `CZEL_String::ToUnsigned`, a leading '-' gives the sign, and the
  // fraction is cut to 16 bits and rounded by size: at two places "1.005"
  // gives 1.05, "1.999" gives 2.00 and "1.123456" gives 1.58.
  CZEL_DecimalNumber& Set(char const* text, t_DecimalPointType type);

  // Converts the number to `numDigits` places. Going up, the 16-bit fraction
  // is multiplied by 10 per place, wrapping from 5 places on. Going down,
  // the digits are dropped and only the most significant one dropped
  // rounds, half up: 1.2349 at four places gives 1.23 at two, 1.2451 gives
  // 1.25. A fraction that rounds up to a whole loses its carry: 0.99 at two
  // places gives 0.1 at one, 1.75 gives 1 at none.
  CZEL_DecimalNumber& ChangeNumDigits(ZEL::u16 numDigits);

  // ---------------------------------------------------------------------------
  // Arithmetic
  // ---------------------------------------------------------------------------
  //
  // Nothing checks for overflow: the value wraps modulo 2 to the 64.

  // The sum or difference at this number's places. An `other` with other
  // places is first taken to these places by `ChangeNumDigits` on a copy:
  // 1.00 at two places plus 0.2345 at four is 1.23. `other` stays as it is.
  CZEL_DecimalNumber operator+(CZEL_DecimalNumber const& other) const;
  CZEL_DecimalNumber operator-(CZEL_DecimalNumber const& other) const;

  // The same on this number itself.
  CZEL_DecimalNumber& operator+=(CZEL_DecimalNumber const& other);
  CZEL_DecimalNumber& operator-=(CZEL_DecimalNumber const& other);

  // This number times `factor`, at the same places: 0.01 times 3 is 0.03.
  CZEL_DecimalNumber operator*(ZEL::i64 const& factor) const;

  // ---------------------------------------------------------------------------
  // Comparison
  // ---------------------------------------------------------------------------

  // The order of this number and `other`: -1, 0 or 1. The one with fewer
  // places is first taken to the other's by `ChangeNumDigits` on a copy, so
  // 1.10 at two places equals 1.1 at one, in either order.
  signed char Compare(CZEL_DecimalNumber const& other) const;

  // `a.Compare(b)`, in the form that the containers' `Sort` takes.
  static signed char Compare(CZEL_DecimalNumber const& a, CZEL_DecimalNumber const& b);

  // 1 or 0 by `Compare(other)`: equal, unequal, below, at most, above, at
  // least.
  ZEL::u8 operator==(CZEL_DecimalNumber const& other) const;
  ZEL::u8 operator!=(CZEL_DecimalNumber const& other) const;
  ZEL::u8 operator<(CZEL_DecimalNumber const& other) const;
  ZEL::u8 operator<=(CZEL_DecimalNumber const& other) const;
  ZEL::u8 operator>(CZEL_DecimalNumber const& other) const;
  ZEL::u8 operator>=(CZEL_DecimalNumber const& other) const;

  // ---------------------------------------------------------------------------
  // Reading
  // ---------------------------------------------------------------------------

  // The integer part of the absolute value.
  ZEL::u64 GetIntegral() const;

  // The fraction of the absolute value as a whole number of digits (50 for
  // -0.50), cut to 16 bits: from 5 places on, fractions of 65536 and above
  // come out wrapped.
  ZEL::u16 GetDecimal() const;

  // -1 for a negative number, otherwise 1: zero has the sign 1.
  signed char GetSign() const;

  // The number as a double: integer part plus fraction over 10 to the places.
  double ToDouble() const;

  // The number as text: "-" if negative, the integer part, `decimalPoint`
  // and the fraction with at least as many digits as places. The integer
  // part is printed from its low 32 bits as a signed number, so an integer
  // part of 2147483648 or more prints wrong here (2147483648 as
  // "-2147483648"); the other form prints it whole. At 0 places the fraction
  // reads "0": 12 prints "12.0".
  CZEL_String ToString(char decimalPoint) const;

  // As `ToString(decimalPoint)`, but the integer part whole, with
  // `thousandsSeparator` between every three digits from the right:
  // 1234567.5 prints "1,234,567.50".
  CZEL_String ToString(char decimalPoint, char thousandsSeparator) const;

 protected:
  // 10 to the power `n`, modulo 2 to the 64, by `n` multiplications: 1 for
  // 0 places, 0 from 64 places on.
  static ZEL::u64 GetMaxDec(ZEL::u16 n);

  // Brings the digits of `decimal` down to at most `numDigits` digits,
  // rounding half up on the digits dropped, and cuts the result to 16 bits.
  // A value that fits passes unchanged. The result may equal 10 to the
  // places (999 at two places gives 100), which `Set` carries into the
  // integer.
  static ZEL::u16 RoundDecimal(ZEL::u16 numDigits, ZEL::u64 decimal);

  // The sum and the difference of two values, modulo 2 to the 64.
  static ZEL::i64 Sum(ZEL::i64 a, ZEL::i64 b);
  static ZEL::i64 Sub(ZEL::i64 a, ZEL::i64 b);

  // Makes this number a copy of `src`; `src` may be this number.
  void DataCopy(CZEL_DecimalNumber const& src);

  // Decimal places. Not limited by any check.
  ZEL::u16 m_NumDigits;
  // The number times 10 to the power `m_NumDigits`, two's complement.
  ZEL::i64 m_Value;

 private:
  // `other`'s value at this number's places.
  ZEL::i64 ValueAtOwnPlaces(CZEL_DecimalNumber const& other) const;

  // The sign's text in both `ToString` forms: "-" if negative, else "".
  char const* SignText() const;
};

// `number` times `factor`, as `number * factor`.
ZEL_API CZEL_DecimalNumber operator*(ZEL::i64 const& factor, CZEL_DecimalNumber& number);

// The same for a constant `number`.
ZEL_API CZEL_DecimalNumber operator*(ZEL::i64 const& factor, CZEL_DecimalNumber const& number);

#endif  // LZEL_CORE_VALUES_CZEL_DECIMALNUMBER_H_
