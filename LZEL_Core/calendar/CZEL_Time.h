// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Time.h
// -----------------------------------------------------------------------------
//
// `CZEL_Time` is a time of day to the millisecond, with no date and no time
// zone. It holds the milliseconds since midnight in one int, and its
// additions wrap at midnight in both directions.
//
//   CZEL_Time t(9, 5, 3, 7);
//   t.ToString("%H:%T:%S.%X");                        // "09:05:03.007"
//   t.ToString("%h:%t:%s.%x");                        // "9:5:3.7"
//   CZEL_Time(23, 59, 59, 999).AddMilliseconds(1);    // 00:00:00.000
//   CZEL_Time(0, 0, 0, 0).AddSeconds(-1);             // 23:59:59.000
//   CZEL_Time(1, 0, 0, 0).MillisecondsTo(CZEL_Time(0, 0, 0, 0));  // -3600000
//
// Valid and null
//
// A time is valid when it holds 0 to 86399999 milliseconds; anything else is
// null, and the null value that the class itself stores is -1. A null time
// equals a null time and sorts below every valid one. Nothing throws: a
// failed `Set` makes the time null and says so in its result, the parts of a
// null time read -1, and `GetTimeStruct` returns a code.

#ifndef LZEL_CORE_CALENDAR_CZEL_TIME_H_
#define LZEL_CORE_CALENDAR_CZEL_TIME_H_

#include <LZEL_Core/frame/CZEL_Object.h>
#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/text/CZEL_String.h>

// The stream class whose free operators read and write the milliseconds.
class CZEL_Buffer;

class ZEL_API CZEL_Time : public CZEL_Object {
 public:
  // A time of day in its parts. (The name is shared with the date's struct;
  // this one is `CZEL_Time::t_Date_Struct`.)
  struct t_Date_Struct {
    ZEL::u8 hour;          // 0 to 23
    ZEL::u8 minute;        // 0 to 59
    ZEL::u8 second;        // 0 to 59
    ZEL::u16 millisecond;  // 0 to 999
  };

  // ---------------------------------------------------------------------------
  // Construction and setting
  // ---------------------------------------------------------------------------

  // A null time.
  CZEL_Time();

  // `Set(hour, minute, second, millisecond)`: null unless each part is in
  // range.
  CZEL_Time(int hour, int minute, int second, int millisecond);

  // A copy of `src`.
  CZEL_Time(CZEL_Time const& src);

  ~CZEL_Time() override;

  // A copy of `src`.
  CZEL_Time& operator=(CZEL_Time const& src);

  // Becomes the time of the parts if `hour` is 0 to 23, `minute` and `second`
  // 0 to 59 (no leap second) and `millisecond` 0 to 999, else null. Returns
  // `IsValid()`: 1 on success, 0 on failure.
  ZEL::u32 Set(int hour, int minute, int second, int millisecond);

  // The same with the four fields of `time`.
  ZEL::u32 Set(t_Date_Struct const& time);

  // Now, read from the local clock; null if the clock can't be read or
  // stands in a leap second.
  static CZEL_Time GetCurrentTime();

  // Makes this time `GetCurrentTime()` and returns it.
  CZEL_Time& FromCurrentTime();

  // ---------------------------------------------------------------------------
  // Reading
  // ---------------------------------------------------------------------------

  // 1 if the time holds 0 to 86399999 milliseconds, else 0.
  ZEL::u8 IsValid() const;

  // The negation of `IsValid()`.
  ZEL::u8 IsNull() const;

  // The hour (0 to 23), minute, second (0 to 59) or millisecond (0 to 999);
  // -1 for a null time.
  int GetHour() const;
  int GetMinute() const;
  int GetSecond() const;
  int GetMillisecond() const;

  // Fills `time` with the four parts and returns 0; returns ZEL_ERR_FAILED
  // for a null time and leaves `time` alone.
  ZEL::u32 GetTimeStruct(t_Date_Struct& time) const;

  // `format` with its fields expanded. Each `%` and the character after it
  // form a field:
  //   %h  hour          "9"     %H  hour, two digits at least         "09"
  //   %t  minute        "5"     %T  minute, two digits at least       "05"
  //   %s  second        "3"     %S  second, two digits at least       "03"
  //   %x  millisecond   "7"     %X  millisecond, three digits at least "007"
  //   %%  a single %
  // Any other character after `%` writes neither itself nor the `%` but the
  // text of the last number field once more, or nothing if there was none
  // (`%H%q` gives "0909"); `%%` is no number field. A `%` at the end of the
  // format gives nothing. A null time reads as 00:00:00.000.
  CZEL_String ToString(CZEL_String const& format) const;

  // Reads `text` as `ToString(format)` writes it and, on success, makes this
  // time the one read and returns ZEL_ERR_NONE. The text must match the
  // whole format: each character of `format` other than a field stands as it
  // is; %h, %t and %s read one or two digits, %H, %T and %S exactly two, %x
  // one to three and %X exactly three, `%%` a `%`, and any other field the
  // text of the last number field once more. A number field without padding
  // reads as many digits as follow, leaving to the padded fields right after
  // it the digits they take ("%h%T" reads "905" as 9:05). The parts that
  // the format doesn't name are 0: "%H:%T" reads "09:05" as 09:05:00.000.
  // The time read must then give back `text` exactly, so nothing that
  // `ToString` doesn't write is accepted (no zeros in front of %h, no `+`,
  // no repeated field that disagrees). On failure the time is left as it
  // was, and the result is ZEL_ERR_INVALID_ARGUMENT for parts out of range
  // (hour 24, minute or second 60) and ZEL_ERR_BAD_FORMAT for a text that
  // doesn't match the format. Never throws.
  //
  //   CZEL_Time t;
  //   t.Parse("09:05:03.007", "%H:%T:%S.%X");  // ZEL_ERR_NONE
  //   t.Parse("9:05", "%H:%T");                // ZEL_ERR_BAD_FORMAT, t as it was
  //   t.Parse("24:00", "%H:%T");               // ZEL_ERR_INVALID_ARGUMENT
  ZEL::u32 Parse(CZEL_String const& text, CZEL_String const& format);

  // ---------------------------------------------------------------------------
  // Arithmetic
  // ---------------------------------------------------------------------------

  // The time `milliseconds` later (earlier if negative), wrapped into the
  // day: 23:59:59.999 plus 1 is 00:00:00.000, 00:00:00.000 minus 1 is
  // 23:59:59.999. A null time gives a null time.
  CZEL_Time AddMilliseconds(int milliseconds) const;

  // The time `seconds` later (earlier if negative), wrapped into the day;
  // whole days drop out first, so `AddSeconds(86401)` is `AddSeconds(1)`.
  // A null time gives a null time.
  CZEL_Time AddSeconds(int seconds) const;

  // The milliseconds from this time to `other`, negative when `other` is
  // earlier; no wrap at midnight. 0 if either time is null.
  int MillisecondsTo(CZEL_Time other) const;

  // `MillisecondsTo(other)` in whole seconds, cut toward zero: -1500 ms is -1.
  int SecondsTo(CZEL_Time other) const;

  // ---------------------------------------------------------------------------
  // Comparison
  // ---------------------------------------------------------------------------

  // 1 or 0 by the milliseconds: a null time equals a null time and is below
  // every valid time.
  ZEL::u8 operator==(CZEL_Time const& other) const;
  ZEL::u8 operator!=(CZEL_Time const& other) const;
  ZEL::u8 operator<(CZEL_Time const& other) const;
  ZEL::u8 operator<=(CZEL_Time const& other) const;
  ZEL::u8 operator>(CZEL_Time const& other) const;
  ZEL::u8 operator>=(CZEL_Time const& other) const;

  // 0 if `a` equals `b`, 1 if `a` is later, -1 if earlier: the comparator
  // that the containers' `Sort` takes.
  static signed char SortCompare(CZEL_Time const& a, CZEL_Time const& b);

 protected:
  // 1 if `hour` is 0 to 23, `minute` and `second` 0 to 59 and `millisecond`
  // 0 to 999, else 0.
  static ZEL::u8 IsValid(int hour, int minute, int second, int millisecond);

  // Makes this time a copy of `src`.
  void DataCopy(CZEL_Time const& src);

  // Milliseconds since midnight, 0 to 86399999; -1 is the null value.
  int m_Msecs;

 private:
  // The serialised form writes and reads the milliseconds as they stand.
  friend ZEL_API CZEL_Buffer& operator<<(CZEL_Buffer& buffer, CZEL_Time const& time);
  friend ZEL_API CZEL_Buffer& operator>>(CZEL_Buffer& buffer, CZEL_Time& time);
};

#endif  // LZEL_CORE_CALENDAR_CZEL_TIME_H_
