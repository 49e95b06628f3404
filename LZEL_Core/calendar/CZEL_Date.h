// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Date.h
// -----------------------------------------------------------------------------
//
// `CZEL_Date` is a calendar-independent date. It holds one number, a Julian
// day number, and reads it as year, month and day in any of five calendars on
// request: every member that needs a year, a month or a day takes a
// `t_Calendar` (by default `Calendar_Gregorian`, the calendar of the local
// clock). Comparison, `AddDays` and `GetDaysTo` need none.
//
//   CZEL_Date d(2021, 3, 5);                              // Gregorian
//   d.ToString("%D.%M.%Y");                               // "05.03.2021"
//   d.GetYear(CZEL_Date::Calendar_Persian);               // 1399
//   CZEL_Date next = d.AddMonths(1);                      // 5 April 2021
//   CZEL_Date(2021, 1, 31).AddMonths(1).GetDay();         // 28, clamped
//   CZEL_Date(-1, 12, 31).AddDays(1).GetYear();           // 1: no year 0
//   d.GetWeekday(CZEL_Date::Calendar_Gregorian);          // 5, a Friday
//   d.Parse("-44-3-15", "%Y-%m-%d");                      // 0: 15 March 44 BC
//
// Valid and null
//
// A date is valid when its day number lies between -784350574879 and
// 784354017364: 1 January of year -2147483648 to 31 December of year
// 2147483647, Gregorian. Anything else is null; the null value that the
// class itself stores is the smallest i64. A null date equals a null date
// and sorts below every valid one. Nothing throws: a failed `Set` makes the
// date null and says so in its result, arithmetic leaving the range gives a
// null date, and `GetDateStruct` returns a code.
//
// Years
//
// No calendar has a year 0: the year before year 1 is year -1, and the month
// and year arithmetic steps over it. The Gregorian, Julian and Revised
// Julian calendars are proleptic; the Persian one is the arithmetic calendar
// of the 2820-year cycle; the Islamic one is the tabular civil calendar.
// The conversions keep a few limits of their own: a Julian year read back is
// cut to 16 bits (so Julian years wrap beyond -32768 to 32767), and the
// Revised Julian, Persian and Islamic conversions do some of their products
// in wrapping 32-bit arithmetic, so that far from the present their years no
// longer round-trip. Within 600000 years of year 1 (the Islamic calendar:
// 190000 years) every other conversion round-trips.

#ifndef LZEL_CORE_CALENDAR_CZEL_DATE_H_
#define LZEL_CORE_CALENDAR_CZEL_DATE_H_

#include <LZEL_Core/frame/CZEL_Object.h>
#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/text/CZEL_String.h>

// The stream class whose free operators read and write the day number.
class CZEL_Buffer;

class ZEL_API CZEL_Date : public CZEL_Object {
 public:
  // The calendar in which a year, month and day are read or given. Any other
  // value is an unknown calendar: static rules give 0 for it, `Set` stores the
  // null value and `GetDateStruct` returns ZEL_ERR_INVALID_ARGUMENT.
  enum t_Calendar : ZEL::u32 {
    Calendar_Gregorian = 0,      // Proleptic Gregorian.
    Calendar_Julian = 1,         // Proleptic Julian.
    Calendar_RevisedJulian = 2,  // Revised Julian (century years leap when
                                 // their century is 2 or 6 modulo 9).
    Calendar_Persian = 3,        // Arithmetic Persian, 2820-year cycle.
    Calendar_Islamic = 4,        // Tabular Islamic, civil epoch.
  };

  // A date read in one calendar. Months run from 1 to 12.
  struct t_Date_Struct {
    int day;    // 1 to the month's length
    int month;  // 1 to 12
    int year;   // never 0
  };

  // ---------------------------------------------------------------------------
  // Construction and setting
  // ---------------------------------------------------------------------------

  // A null date.
  CZEL_Date();

  // `Set(year, month, day, calendar)`: null if that date doesn't exist.
  CZEL_Date(int year, int month, int day, t_Calendar calendar = Calendar_Gregorian);

  // A copy of `src`.
  CZEL_Date(CZEL_Date const& src);

  ~CZEL_Date() override;

  // A copy of `src`.
  CZEL_Date& operator=(CZEL_Date const& src);

  // Stores the day number of the date if it exists in `calendar` (month 1 to
  // 12, day 1 to the month's length, no year 0), else the null value, and
  // returns `IsValid()`: 1 on success, 0 on failure. A date that exists but
  // lies outside the valid range (a Julian date late in year 2147483647, say)
  // is stored as it stands and reads as null.
  ZEL::u32 Set(int year, int month, int day, t_Calendar calendar = Calendar_Gregorian);

  // Today, read from the local clock, as a Gregorian date; null if the clock
  // can't be read.
  static CZEL_Date GetCurrentDate();

  // Makes this date `GetCurrentDate()` and returns it.
  CZEL_Date& FromCurrentDate();

  // ---------------------------------------------------------------------------
  // Reading
  // ---------------------------------------------------------------------------

  // Fills `date` with this date read in `calendar` and returns 0. Returns
  // ZEL_ERR_FAILED for a null date, else ZEL_ERR_INVALID_ARGUMENT for an
  // unknown calendar, and leaves `date` alone in both cases.
  ZEL::u32 GetDateStruct(t_Date_Struct& date, t_Calendar calendar = Calendar_Gregorian) const;

  // The day, month or year in `calendar`; 0 where `GetDateStruct` fails.
  int GetDay(t_Calendar calendar = Calendar_Gregorian) const;
  int GetMonth(t_Calendar calendar = Calendar_Gregorian) const;
  int GetYear(t_Calendar calendar = Calendar_Gregorian) const;

  // 1 for Monday to 7 for Sunday, the same in every calendar (the argument
  // is not used); 0 for a null date.
  int GetWeekday(t_Calendar calendar = Calendar_Gregorian) const;

  // The day of the year in `calendar`, 1 for 1 January: the days from
  // 1 January of `GetYear(calendar)` plus 1. 0 for a null date, an unknown
  // calendar, or a 1 January that is null. (A Julian year past the 16-bit
  // cut names another year, whose 1 January this counts from.)
  int GetDayOfyear(t_Calendar calendar = Calendar_Gregorian) const;

  // The length of this date's month and year in `calendar`, by the static
  // rules below. A null date or an unknown calendar gives 0.
  int GetDaysPerMonth(t_Calendar calendar = Calendar_Gregorian) const;
  int GetDaysPerYear(t_Calendar calendar = Calendar_Gregorian) const;

  // 1 if the day number lies in the valid range, else 0.
  ZEL::u8 IsValid() const;

  // The negation of `IsValid()`.
  ZEL::u8 IsNull() const;

  // `format` with its fields expanded, this date read in `calendar`. Each
  // `%` and the character after it form a field:
  //   %d  day             "5"       %D  day, two digits at least    "05"
  //   %m  month           "3"       %M  month, two digits at least  "03"
  //   %Y  year, signed    "-44"     %y  last two digits of the year
  //                                     without sign ("21"; year 7: "7")
  //   %%  a single %
  // Any other character after `%` writes neither itself nor the `%` but the
  // text of the last number field once more, or nothing if there was none
  // (`%d-%q` gives "5-5"); `%%` is no number field. A `%` at the end of the
  // format gives nothing. A null date or an unknown calendar reads as day 0,
  // month 0, year 0: "%D.%M.%Y" gives "00.00.0".
  CZEL_String ToString(CZEL_String const& format, t_Calendar calendar = Calendar_Gregorian) const;

  // Reads `text` as `ToString(format, calendar)` writes it and, on success,
  // makes this date the one read and returns ZEL_ERR_NONE. The text must
  // match the whole format: each character of `format` other than a field
  // stands as it is; %d and %m read one or two digits, %D and %M exactly two,
  // %Y an optional `-` and up to ten digits, %y one or two digits that must
  // agree with the year, `%%` a `%`, and any other field the text of the
  // last number field once more. A number field without padding reads as
  // many digits as follow, leaving to the padded fields right after it the
  // digits they take ("%Y%M%D" reads "20210305"), and "%d%m" reads "112" as
  // 11 February. The date read must then give back `text` exactly, so
  // nothing that `ToString` doesn't write is accepted: no `+`, no zeros in
  // front of %d, %m or %Y, no repeated field that disagrees; and a Julian
  // year beyond the 16-bit cut isn't read. On failure the date is left as it
  // was, and the result is ZEL_ERR_INVALID_ARGUMENT for an unknown calendar
  // or a date that doesn't exist in it (year 0, 30 February) or lies outside
  // the valid range, ZEL_ERR_NOT_SUPPORTED for a format without a day, a
  // month and a year field (%y alone names no year), and ZEL_ERR_BAD_FORMAT
  // for a text that doesn't match the format. Never throws.
  //
  //   CZEL_Date d;
  //   d.Parse("05.03.2021", "%D.%M.%Y");     // ZEL_ERR_NONE: 5 March 2021
  //   d.Parse("-44-3-15", "%Y-%m-%d");       // ZEL_ERR_NONE: 15 March 44 BC
  //   d.Parse("5.3.2021", "%D.%M.%Y");       // ZEL_ERR_BAD_FORMAT, d as it was
  //   d.Parse("30.02.2021", "%D.%M.%Y");     // ZEL_ERR_INVALID_ARGUMENT
  ZEL::u32 Parse(CZEL_String const& text, CZEL_String const& format,
                 t_Calendar calendar = Calendar_Gregorian);

  // ---------------------------------------------------------------------------
  // Calendar rules
  // ---------------------------------------------------------------------------

  // The days of `month` in `year`. Gregorian, Julian, Revised Julian: 31 for
  // months 1, 3, 5, 7, 8, 10, 12, 30 for 4, 6, 9, 11, February 28 or 29.
  // Persian: 31 for months 1 to 6, 30 for 7 to 11, month 12 29 or 30.
  // Islamic: 30 for odd months, 29 for even ones, month 12 29 or 30. 0 for
  // year 0, a month outside 1 to 12, and an unknown calendar.
  static int GetDaysPerMonth(int month, int year, t_Calendar calendar = Calendar_Gregorian);

  // 366 in a leap year and 365 in any other, in all five calendars; also in
  // the Islamic one, whose months add up to 354 or 355. 0 for year 0 and an
  // unknown calendar.
  static int GetDaysPerYear(int year, t_Calendar calendar = Calendar_Gregorian);

  // 12 for every year that `calendar` has, 0 for year 0 and for an unknown
  // calendar.
  static int GetMonthsPerYear(int year, t_Calendar calendar = Calendar_Gregorian);

  // Whether `calendar` has a year 0: 0 for every calendar.
  static ZEL::u8 CalendarHasYearZero(t_Calendar calendar = Calendar_Gregorian);

  // Whether `calendar` has years before year 1: 1 for each of the five
  // calendars, 0 for an unknown one.
  static ZEL::u8 CalendarHasNegativeYears(t_Calendar calendar = Calendar_Gregorian);

  // ---------------------------------------------------------------------------
  // Arithmetic
  // ---------------------------------------------------------------------------

  // The date `days` later (earlier if negative); null if that leaves the
  // valid range. A null date stays null.
  CZEL_Date AddDays(ZEL::i64 days) const;

  // The date `months` later in `calendar`, its day cut to the length of the
  // new month: 31 January plus one month is the last day of February.
  // December of year -1 plus one month is January of year 1. A null date or
  // an unknown calendar gives a null date, `months` 0 a copy.
  CZEL_Date AddMonths(int months, t_Calendar calendar = Calendar_Gregorian) const;

  // The date `years` later in `calendar`, stepping over year 0 (-1 plus 1 is
  // 1, 1 minus 1 is -1), its day cut to the length of the month: 29 February
  // plus one year is 28 February. A null date or an unknown calendar gives a
  // null date, `years` 0 a copy.
  CZEL_Date AddYears(int years, t_Calendar calendar = Calendar_Gregorian) const;

  // The days from this date to `other`: positive when `other` is later. 0 if
  // either date is null.
  ZEL::i64 GetDaysTo(CZEL_Date const& other) const;

  // ---------------------------------------------------------------------------
  // Comparison
  // ---------------------------------------------------------------------------

  // 1 or 0 by the day numbers: a null date equals a null date and is below
  // every valid date.
  ZEL::u8 operator==(CZEL_Date const& other) const;
  ZEL::u8 operator!=(CZEL_Date const& other) const;
  ZEL::u8 operator<(CZEL_Date const& other) const;
  ZEL::u8 operator<=(CZEL_Date const& other) const;
  ZEL::u8 operator>(CZEL_Date const& other) const;
  ZEL::u8 operator>=(CZEL_Date const& other) const;

  // 0 if `a` equals `b`, 1 if `a` is later, -1 if earlier: the comparator
  // that the containers' `Sort` takes.
  static signed char SortCompare(CZEL_Date const& a, CZEL_Date const& b);

 protected:
  // A date of `julianDay` if it lies in the valid range, else a null date.
  static CZEL_Date CreateFromJulianDay(ZEL::i64 julianDay);

  // Whether `year` is a leap year in `calendar`, 1 or 0. The year
  // -2147483648 and an unknown calendar give 0.
  static ZEL::u8 IsLeapYear(int year, t_Calendar calendar = Calendar_Gregorian);

  // 1 if the calendar is known, `day` lies between 1 and the length of
  // `month` in `year`, and `year` isn't 0; else 0.
  static ZEL::u8 IsValid(int year, int month, int day, t_Calendar calendar = Calendar_Gregorian);

  // The day number of the date, or the null value if it doesn't exist.
  static ZEL::i64 DateToJulianDay(int year, int month, int day,
                                  t_Calendar calendar = Calendar_Gregorian);

  // Makes this date a copy of `src`.
  void DataCopy(CZEL_Date const& src);

  // The Julian day number: 2451545 is 1 January 2000 Gregorian. The smallest
  // i64 is the null value.
  ZEL::i64 m_JulianDay;

 private:
  // A date of `julianDay`, stored without any test.
  explicit CZEL_Date(ZEL::i64 julianDay);

  // The clamping step of `AddMonths` and `AddYears`: null for a year that
  // `calendar` doesn't have (or that an int can't hold), else the date with
  // `day` cut to the length of the month.
  static CZEL_Date FromClampedStruct(ZEL::i64 year, int month, int day, t_Calendar calendar);

  // The serialised form writes and reads the day number as it stands.
  friend ZEL_API CZEL_Buffer& operator<<(CZEL_Buffer& buffer, CZEL_Date const& date);
  friend ZEL_API CZEL_Buffer& operator>>(CZEL_Buffer& buffer, CZEL_Date& date);
};

#endif  // LZEL_CORE_CALENDAR_CZEL_DATE_H_
