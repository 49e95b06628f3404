// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/calendar/CZEL_Date.h>

#include <LZEL_Core/calendar/ZEL_CalendarFormat.h>
#include <LZEL_Core/calendar/ZEL_CalendarSupport.h>
#include <LZEL_Core/frame/ZEL_Errors.h>

#include <algorithm>
#include <climits>
#include <cstdint>

using ZEL::i64;
using ZEL::u16;
using ZEL::u32;
using ZEL::u64;
using ZEL::u8;

namespace {

constexpr i64 kNullDay = INT64_MIN;
constexpr i64 kFirstValidDay = -784350574879;  // 1 January -2147483648, Gregorian.
constexpr i64 kLastValidDay = 784354017364;    // 31 December 2147483647, Gregorian.

// Every year that a known calendar has, has twelve months.
constexpr i64 kMonthsPerYear = 12;

// The Persian arithmetic calendar: 1029983 days in a cycle of 2820 years,
// whose year `rest` 0 is year 475 and starts on day 2121446.
constexpr i64 kPersianCycleDays = 1029983;
constexpr i64 kPersianCycleYears = 2820;
constexpr i64 kPersianEpochDay = 2121446;

// Division rounding toward minus infinity, for a positive divisor `b` and a
// dividend below 2^62 either way (every one here is far smaller), and the
// remainder that goes with it, never negative. Adding a multiple of `b` that
// makes the dividend positive lets plain unsigned division do the rounding.
constexpr i64 DivBias(i64 b) { return ((i64{1} << 62) / b + 1) * b; }
constexpr i64 Div(i64 a, i64 b) {
  return static_cast<i64>(static_cast<u64>(a + DivBias(b)) / static_cast<u64>(b)) - DivBias(b) / b;
}
constexpr i64 Mod(i64 a, i64 b) {
  return static_cast<i64>(static_cast<u64>(a + DivBias(b)) % static_cast<u64>(b));
}

// The low 32 bits of `value` as a signed int: what the same sum or product
// gives in wrapping 32-bit arithmetic.
constexpr int Low32(i64 value) { return static_cast<int>(static_cast<u32>(value)); }

// The year with the gap closed: year + 1 for a year before year 1, so that
// year -1 is 0.
constexpr i64 ClosedYear(i64 year) { return year < 1 ? year + 1 : year; }

// The year that a conversion stores from its computed year `y`: `y` above 0,
// `y` - 1 otherwise, so that 0 becomes -1.
constexpr int StoredYear(i64 y) { return Low32(y > 0 ? y : y - 1); }

// The start of a Persian year, `rest` years (0 to 2819) into cycle `cycle`:
// floor(rest * 365.2421985815603) + 1029983 * cycle + 2121446. The integer
// form gives the same floor for every `rest` of a cycle, since
// rest * 1029983 / 2820 is never within 1 / 2820 of a whole number unless it
// is one, far beyond the error of the double product.
constexpr i64 PersianYearStart(i64 rest, i64 cycle) {
  return rest * kPersianCycleDays / kPersianCycleYears + kPersianCycleDays * cycle +
         kPersianEpochDay;
}

// The days of the Persian months before `month`: 31 for months 1 to 6, 30 for
// 7 to 11.
constexpr int PersianDaysBeforeMonth(int month) {
  return month <= 7 ? 31 * (month - 1) : 186 + 30 * (month - 7);
}

// The months as one count without a gap: with no year 0, year 1 begins at 0
// and year -1 ends at -1.
i64 MonthIndex(i64 year, i64 month, CZEL_Date::t_Calendar calendar) {
  i64 const years = year >= 1 || CZEL_Date::CalendarHasYearZero(calendar) ? year - 1 : year;
  return years * kMonthsPerYear + month - 1;
}

// The year of a month count of `MonthIndex`.
i64 YearOfMonthIndex(i64 index, CZEL_Date::t_Calendar calendar) {
  i64 const years = Div(index, kMonthsPerYear);
  return years >= 0 || CZEL_Date::CalendarHasYearZero(calendar) ? years + 1 : years;
}

// -----------------------------------------------------------------------------
// The calendar rules and conversions. They live here rather than in the
// members so that the conversions can be inlined into one another; the
// members hand on to them.
// -----------------------------------------------------------------------------

using Calendar = CZEL_Date::t_Calendar;
using DateStruct = CZEL_Date::t_Date_Struct;

bool IsKnown(Calendar calendar) { return calendar <= CZEL_Date::Calendar_Islamic; }

bool InValidRange(i64 julianDay) {
  return julianDay >= kFirstValidDay && julianDay <= kLastValidDay;
}

bool LeapYear(int year, Calendar calendar) {
  if (year == INT_MIN) return false;
  i64 const y1 = ClosedYear(year);
  i64 const y0 = year < 0 ? y1 : year;  // The same, but year 0 counting as 0.
  switch (calendar) {
    case CZEL_Date::Calendar_Gregorian:  // Divisible by 400: by 100 and by 16.
      return (static_cast<u64>(y1) & 3) == 0 && (y1 % 100 != 0 || (static_cast<u64>(y1) & 15) == 0);
    case CZEL_Date::Calendar_Julian:
      return year != 0 && Mod(y1, 4) == 0;
    case CZEL_Date::Calendar_RevisedJulian: {
      i64 const century = Mod(Div(y1, 100), 9);
      return Mod(y1, 4) == 0 && (Mod(y1, 100) != 0 || century == 2 || century == 6);
    }
    case CZEL_Date::Calendar_Persian:
      return Mod(Low32((y0 + 2346) * 683), 2820) < 683;
    case CZEL_Date::Calendar_Islamic:
      return Mod(Low32(y0 * 11 + 14), 30) < 11;
    default:
      return false;
  }
}

int MonthsInYear(int year, Calendar calendar) {
  if (!IsKnown(calendar)) return 0;
  if (year > 0) return kMonthsPerYear;
  u8 const has = year < 0 ? CZEL_Date::CalendarHasNegativeYears(calendar)
                          : CZEL_Date::CalendarHasYearZero(calendar);
  return has ? kMonthsPerYear : 0;
}

int DaysInYear(int year, Calendar calendar) {
  return MonthsInYear(year, calendar) == 0 ? 0 : 365 + (LeapYear(year, calendar) ? 1 : 0);
}

int DaysInMonth(int month, int year, Calendar calendar) {
  if (year == 0 || month < 1 || month > 12) return 0;
  auto leap = [year, calendar] { return LeapYear(year, calendar) ? 1 : 0; };
  switch (calendar) {
    case CZEL_Date::Calendar_Gregorian:
    case CZEL_Date::Calendar_Julian:
    case CZEL_Date::Calendar_RevisedJulian:
      return month == 2 ? 28 + leap() : ((month & 1) ^ (month >> 3)) | 30;
    case CZEL_Date::Calendar_Persian:
      return month <= 6 ? 31 : month <= 11 ? 30 : 29 + leap();
    case CZEL_Date::Calendar_Islamic:
      return month == 12 ? 29 + leap() : 29 + (month & 1);
    default:
      return 0;
  }
}

// Every month of a known calendar has 28 days at least, so only a later day
// needs the month's length, and with it the leap-year rule.
bool DateExists(int year, int month, int day, Calendar calendar) {
  if (!IsKnown(calendar) || year == 0 || month < 1 || month > 12 || day < 1) return false;
  return day <= 28 || day <= DaysInMonth(month, year, calendar);
}

// The Gregorian conversions, in the form of Neri and Schneider ("Euclidean
// affine functions and their application to calendar algorithms", 2022):
// days are counted from 1 March of year 0 (1 BC), so that February ends the
// year, and divisions by constants become multiplications and shifts. They
// give the same dates as the Julian day formulas. Shifting the years (the
// days) by a whole number of 400-year eras first makes every operand
// positive; the shift covers every year an int holds and every valid day.
constexpr i64 kShiftEras = 5368722;
constexpr i64 kEraDays = 146097;
constexpr i64 kMarchZeroDay = 1721120;  // 1 March of year 0, Gregorian.

// The day number of a Gregorian date, `y1` being its year with the gap
// closed.
i64 GregorianDayNumber(i64 y1, int month, int day) {
  u32 const early = month <= 2 ? 1 : 0;  // January and February count with the year before.
  u64 const y = static_cast<u64>(y1 + 400 * kShiftEras) - early;
  u32 const m = static_cast<u32>(month) + 12 * early;
  u64 const centuries = y / 100;
  u64 const yearDays = 1461 * y / 4 - centuries + centuries / 4;
  u32 const monthDays = (979 * m - 2919) / 32;
  return static_cast<i64>(yearDays + monthDays) + day - 1 + kMarchZeroDay - kEraDays * kShiftEras;
}

// Fills the day and month of `date` from the valid day number `j` and
// returns the year with the gap closed.
i64 ReadGregorian(i64 j, DateStruct& date) {
  auto const n = static_cast<u64>(j - kMarchZeroDay + kEraDays * kShiftEras);
  u64 const n1 = 4 * n + 3;
  u64 const centuries = n1 / kEraDays;
  u32 const dayOfCentury = static_cast<u32>(n1 % kEraDays) / 4;
  u64 const p2 = u64{2939745} * (4 * dayOfCentury + 3);
  auto const yearOfCentury = static_cast<u32>(p2 >> 32);
  u32 const dayOfYear = static_cast<u32>(p2) / 2939745 / 4;  // From 1 March.
  u32 const n3 = 2141 * dayOfYear + 197913;
  u32 const early = dayOfYear >= 306 ? 1 : 0;  // January and February end the year.
  date.month = static_cast<int>((n3 >> 16) - 12 * early);
  date.day = static_cast<int>((n3 & 0xFFFF) / 2141 + 1);
  return static_cast<i64>(100 * centuries + yearOfCentury + early) - 400 * kShiftEras;
}

// The day number of a date, or the null value if it doesn't exist.
i64 DayNumber(int year, int month, int day, Calendar calendar) {
  if (!DateExists(year, month, day, calendar)) return kNullDay;
  i64 const y1 = ClosedYear(year);
  i64 const t = month < 3 ? -1 : 0;  // Months 1 and 2 count with the year before.
  switch (calendar) {
    case CZEL_Date::Calendar_Gregorian:
      return GregorianDayNumber(y1, month, day);
    case CZEL_Date::Calendar_Julian:
      return Div((y1 + t) * 1461, 4) + (153 * month - 1836 * t - 457) / 5 + day + 1721117;
    case CZEL_Date::Calendar_RevisedJulian: {
      i64 const m = month - 12 * t - 3;
      i64 const y = y1 + t;
      i64 const c = Div(y, 100);
      i64 const r = Mod(y, 100);
      return Div(Low32(328718 * c) + i64{6}, 9) + 36525 * r / 100 + (153 * m + 2) / 5 + day +
             1721119;
    }
    case CZEL_Date::Calendar_Persian: {
      i64 const e = year >= 1 ? year - 475 : year - 474;
      i64 const cycle = Div(e, kPersianCycleYears);
      i64 const rest = e - kPersianCycleYears * cycle;
      return PersianYearStart(rest, cycle) + PersianDaysBeforeMonth(month) + day - 1;
    }
    default:  // Calendar_Islamic
      return Div(Low32(10631 * y1) - i64{10617}, 30) + (325 * month - 320) / 11 + day + 1948439;
  }
}

// Fills `date` from the day number `j` in `calendar`, which is known.
void ReadDayNumber(i64 j, Calendar calendar, DateStruct& date) {
  i64 year = 0;
  switch (calendar) {
    case CZEL_Date::Calendar_Gregorian:
      year = ReadGregorian(j, date);
      break;
    case CZEL_Date::Calendar_Julian: {
      i64 const c = 4 * (j - 1721118) + 3;
      i64 const e = 5 * (Mod(c, 1461) / 4) + 2;
      i64 const m = e / 153;
      i64 const t = (m + 2) / 12;
      year = static_cast<short>(static_cast<u16>(Div(c, 1461) + t));  // Cut to 16 bits.
      date.month = static_cast<int>(m - 12 * t + 3);
      date.day = static_cast<int>(e % 153 / 5 + 1);
      break;
    }
    case CZEL_Date::Calendar_RevisedJulian: {
      i64 const k2 = 9 * (j - 1721120) + 2;
      i64 const c = Div(k2, 328718);
      i64 const k1 = 100 * (Mod(k2, 328718) / 9) + 99;
      i64 const k3 = 5 * (k1 % 36525 / 100) + 2;
      i64 const x = k3 / 153;
      i64 const w = (x + 2) / 12;
      year = 100 * c + k1 / 36525 + w;
      date.month = static_cast<int>(x - 12 * w + 3);
      date.day = static_cast<int>(k3 % 153 / 5 + 1);
      break;
    }
    case CZEL_Date::Calendar_Persian: {
      // The year from the cycle and the mean year length; its start may lie
      // one day after `j`'s year ends, and then `j` is the next year's first
      // day. rest = floor(since / 365.2421985815603) in integers, exact for
      // every day of a cycle (see PersianYearStart).
      i64 const cycle = Div(j - kPersianEpochDay, kPersianCycleDays);
      i64 const since = j - (kPersianCycleDays * cycle + kPersianEpochDay);
      i64 const rest = since * kPersianCycleYears / kPersianCycleDays;
      year = rest + kPersianCycleYears * cycle + 475;
      i64 dayOfYear = j - PersianYearStart(rest, cycle) + 1;
      // Every year has 365 days at least, so only a later day needs the
      // leap-year rule.
      if (dayOfYear > 365 && dayOfYear > DaysInYear(Low32(year > 0 ? year : year - 1), calendar)) {
        ++year;
        dayOfYear = 1;
      }
      // Months 1 to 6 have 31 days, 7 to 11 have 30, and month 12 the rest.
      int const d = static_cast<int>(dayOfYear) - 1;
      int const month = d < 186 ? d / 31 + 1 : std::min(7 + (d - 186) / 30, 12);
      date.month = month;
      date.day = d - PersianDaysBeforeMonth(month) + 1;
      break;
    }
    default: {  // Calendar_Islamic
      int const k2 = Low32(30 * (j - 1948440) + 15);
      int const k1 = static_cast<int>(11 * (Mod(k2, 10631) / 30) + 5);
      year = Div(k2, 10631) + 1;
      date.month = k1 / 325 + 1;
      date.day = k1 % 325 / 11 + 1;
      break;
    }
  }
  date.year = StoredYear(year);
}

// The number fields of the format strings, read by `ToString` and `Parse`
// alike. %y shows the last two digits of the year without its sign, with no
// padding for a one-digit year, so it is written apart from the table's
// widths; it names no part that `Parse` sets.
enum : u8 { kPartDay, kPartMonth, kPartYear, kPartYearEnd };
constexpr u32 kDayMonthYear = 1u << kPartDay | 1u << kPartMonth | 1u << kPartYear;
constexpr ZEL::t_FormatField kDateFieldTable[] = {
    {'d', kPartDay, 0, 2, 0},   {'D', kPartDay, 2, 2, 0},   {'m', kPartMonth, 0, 2, 0},
    {'M', kPartMonth, 2, 2, 0}, {'Y', kPartYear, 0, 10, 1}, {'y', kPartYearEnd, 0, 2, 0}};
constexpr ZEL::t_FormatFields kDateFields{kDateFieldTable, 6};

// The text of a `ToString` field of `date`, or -1 for a character that
// names none.
int ExpandDateField(char code, CZEL_Date::t_Date_Struct const& date, char* text) {
  ZEL::t_FormatField const* const field = kDateFields.Find(code);
  if (field == nullptr) return -1;
  switch (field->part) {
    case kPartDay:
      return ZEL::FormatFieldNumber(date.day, field->width, text);
    case kPartMonth:
      return ZEL::FormatFieldNumber(date.month, field->width, text);
    case kPartYear:
      return ZEL::FormatFieldNumber(date.year, field->width, text);
    default: {  // kPartYearEnd
      i64 const magnitude = date.year < 0 ? -i64{date.year} : date.year;
      return ZEL::FormatFieldNumber(static_cast<int>(magnitude % 100), magnitude >= 10 ? 2 : 0,
                                    text);
    }
  }
}

}  // namespace

// -----------------------------------------------------------------------------
// Construction and setting
// -----------------------------------------------------------------------------

CZEL_Date::CZEL_Date() : m_JulianDay(kNullDay) {}

CZEL_Date::CZEL_Date(int year, int month, int day, t_Calendar calendar) : m_JulianDay(kNullDay) {
  Set(year, month, day, calendar);
}

CZEL_Date::CZEL_Date(CZEL_Date const& src) : CZEL_Object(src), m_JulianDay(kNullDay) {
  DataCopy(src);
}

CZEL_Date::CZEL_Date(i64 julianDay) : m_JulianDay(julianDay) {}

CZEL_Date::~CZEL_Date() = default;

CZEL_Date& CZEL_Date::operator=(CZEL_Date const& src) {
  DataCopy(src);
  return *this;
}

void CZEL_Date::DataCopy(CZEL_Date const& src) { m_JulianDay = src.m_JulianDay; }

// `DateToJulianDay` gives the null value exactly when the date doesn't
// exist, so one call both tests and converts.
u32 CZEL_Date::Set(int year, int month, int day, t_Calendar calendar) {
  m_JulianDay = DayNumber(year, month, day, calendar);
  return InValidRange(m_JulianDay) ? 1 : 0;
}

CZEL_Date CZEL_Date::CreateFromJulianDay(i64 julianDay) {
  return InValidRange(julianDay) ? CZEL_Date(julianDay) : CZEL_Date();
}

CZEL_Date CZEL_Date::GetCurrentDate() {
  ZEL::t_LocalClock const now = ZEL::ReadLocalClock();
  return CZEL_Date(now.year, now.month, now.day, Calendar_Gregorian);
}

CZEL_Date& CZEL_Date::FromCurrentDate() { return *this = GetCurrentDate(); }

// -----------------------------------------------------------------------------
// Reading
// -----------------------------------------------------------------------------

u32 CZEL_Date::GetDateStruct(t_Date_Struct& date, t_Calendar calendar) const {
  if (!InValidRange(m_JulianDay)) return ZEL_ERR_FAILED;
  if (!IsKnown(calendar)) return ZEL_ERR_INVALID_ARGUMENT;
  ReadDayNumber(m_JulianDay, calendar, date);
  return ZEL_ERR_NONE;
}

int CZEL_Date::GetDay(t_Calendar calendar) const {
  t_Date_Struct date{};
  return GetDateStruct(date, calendar) == ZEL_ERR_NONE ? date.day : 0;
}

int CZEL_Date::GetMonth(t_Calendar calendar) const {
  t_Date_Struct date{};
  return GetDateStruct(date, calendar) == ZEL_ERR_NONE ? date.month : 0;
}

int CZEL_Date::GetYear(t_Calendar calendar) const {
  t_Date_Struct date{};
  return GetDateStruct(date, calendar) == ZEL_ERR_NONE ? date.year : 0;
}

int CZEL_Date::GetWeekday(t_Calendar /*calendar*/) const {
  return IsNull() ? 0 : static_cast<int>(Mod(m_JulianDay, 7) + 1);
}

int CZEL_Date::GetDayOfyear(t_Calendar calendar) const {
  if (IsNull()) return 0;
  CZEL_Date const first(GetYear(calendar), 1, 1, calendar);
  return first.IsValid() ? static_cast<int>(first.GetDaysTo(*this) + 1) : 0;
}

// A null date leaves the struct at zeros, and year 0 has no days.
int CZEL_Date::GetDaysPerMonth(t_Calendar calendar) const {
  t_Date_Struct date{};
  (void)GetDateStruct(date, calendar);
  return GetDaysPerMonth(date.month, date.year, calendar);
}

int CZEL_Date::GetDaysPerYear(t_Calendar calendar) const {
  t_Date_Struct date{};
  (void)GetDateStruct(date, calendar);
  return GetDaysPerYear(date.year, calendar);
}

u8 CZEL_Date::IsValid() const { return InValidRange(m_JulianDay) ? 1 : 0; }

u8 CZEL_Date::IsNull() const { return IsValid() ? 0 : 1; }

CZEL_String CZEL_Date::ToString(CZEL_String const& format, t_Calendar calendar) const {
  t_Date_Struct date{};  // Zeros for a null date or an unknown calendar.
  (void)GetDateStruct(date, calendar);
  return ZEL::ExpandFormatFields(
      format, [&date](char field, char* text) { return ExpandDateField(field, date, text); });
}

// The numbers are read first; the date they make must exist, and must write
// the text back exactly as `ToString` would, which refuses what `ToString` never writes (a `+`,
// zeros in front, "-0", a %y or a repeated field that disagrees).
u32 CZEL_Date::Parse(CZEL_String const& text, CZEL_String const& format, t_Calendar calendar) {
  if (!IsKnown(calendar)) return ZEL_ERR_INVALID_ARGUMENT;
  ZEL::t_FormatValues read{};
  u8 const matched = ZEL::ReadFormatFields(text, format, kDateFields, read);
  if ((read.named & kDayMonthYear) != kDayMonthYear &&
      (ZEL::NamedFormatParts(format, kDateFields) & kDayMonthYear) != kDayMonthYear) {
    return ZEL_ERR_NOT_SUPPORTED;
  }
  if (!matched) return ZEL_ERR_BAD_FORMAT;
  i64 const year = read.values[kPartYear];
  if (year < INT_MIN || year > INT_MAX) return ZEL_ERR_BAD_FORMAT;
  i64 const day = DayNumber(static_cast<int>(year), static_cast<int>(read.values[kPartMonth]),
                            static_cast<int>(read.values[kPartDay]), calendar);
  if (!InValidRange(day)) return ZEL_ERR_INVALID_ARGUMENT;
  t_Date_Struct date{};
  ReadDayNumber(day, calendar, date);
  auto const expand = [&date](char field, char* out) { return ExpandDateField(field, date, out); };
  if (!ZEL::FormatWrites(format, expand, text)) return ZEL_ERR_BAD_FORMAT;
  m_JulianDay = day;
  return ZEL_ERR_NONE;
}

// -----------------------------------------------------------------------------
// Calendar rules
// -----------------------------------------------------------------------------

int CZEL_Date::GetDaysPerMonth(int month, int year, t_Calendar calendar) {
  return DaysInMonth(month, year, calendar);
}

int CZEL_Date::GetDaysPerYear(int year, t_Calendar calendar) { return DaysInYear(year, calendar); }

int CZEL_Date::GetMonthsPerYear(int year, t_Calendar calendar) {
  return MonthsInYear(year, calendar);
}

u8 CZEL_Date::CalendarHasYearZero(t_Calendar /*calendar*/) { return 0; }

u8 CZEL_Date::CalendarHasNegativeYears(t_Calendar calendar) { return IsKnown(calendar) ? 1 : 0; }

u8 CZEL_Date::IsLeapYear(int year, t_Calendar calendar) { return LeapYear(year, calendar) ? 1 : 0; }

u8 CZEL_Date::IsValid(int year, int month, int day, t_Calendar calendar) {
  return DateExists(year, month, day, calendar) ? 1 : 0;
}

i64 CZEL_Date::DateToJulianDay(int year, int month, int day, t_Calendar calendar) {
  return DayNumber(year, month, day, calendar);
}

// -----------------------------------------------------------------------------
// Arithmetic
// -----------------------------------------------------------------------------

// The sum wraps in unsigned arithmetic; a wrapped sum never lands in the
// valid range, so an overflow gives a null date as the true sum would.
CZEL_Date CZEL_Date::AddDays(i64 days) const {
  if (IsNull()) return *this;
  auto const sum = static_cast<std::uint64_t>(m_JulianDay) + static_cast<std::uint64_t>(days);
  return CreateFromJulianDay(static_cast<i64>(sum));
}

// The months are counted through as one number across the years, year 0
// left out: the same as stepping year by year, twelve months at a time.
CZEL_Date CZEL_Date::AddMonths(int months, t_Calendar calendar) const {
  if (IsNull()) return CZEL_Date();
  if (months == 0) return *this;
  t_Date_Struct date{};
  if (GetDateStruct(date, calendar) != ZEL_ERR_NONE) return CZEL_Date();
  i64 const index = MonthIndex(date.year, date.month, calendar) + months;
  return FromClampedStruct(YearOfMonthIndex(index, calendar),
                           static_cast<int>(Mod(index, kMonthsPerYear) + 1), date.day, calendar);
}

CZEL_Date CZEL_Date::AddYears(int years, t_Calendar calendar) const {
  if (IsNull()) return CZEL_Date();
  if (years == 0) return *this;
  t_Date_Struct date{};
  if (GetDateStruct(date, calendar) != ZEL_ERR_NONE) return CZEL_Date();
  i64 year = i64{date.year} + years;
  bool const crossed = (date.year < 1) != (year < 1) || year == 0;
  if (!CalendarHasYearZero(calendar) && crossed) year += years > 0 ? 1 : -1;
  return FromClampedStruct(year, date.month, date.day, calendar);
}

CZEL_Date CZEL_Date::FromClampedStruct(i64 year, int month, int day, t_Calendar calendar) {
  if (year < 0 && !CalendarHasNegativeYears(calendar)) return CZEL_Date();
  if (year == 0 && !CalendarHasYearZero(calendar)) return CZEL_Date();
  if (year < INT_MIN || year > INT_MAX) return CZEL_Date();
  int const y = static_cast<int>(year);
  return CZEL_Date(y, month, std::min(day, DaysInMonth(month, y, calendar)), calendar);
}

i64 CZEL_Date::GetDaysTo(CZEL_Date const& other) const {
  if (IsNull() || other.IsNull()) return 0;
  return other.m_JulianDay - m_JulianDay;
}

// -----------------------------------------------------------------------------
// Comparison
// -----------------------------------------------------------------------------

u8 CZEL_Date::operator==(CZEL_Date const& other) const { return SortCompare(*this, other) == 0; }
u8 CZEL_Date::operator!=(CZEL_Date const& other) const { return SortCompare(*this, other) != 0; }
u8 CZEL_Date::operator<(CZEL_Date const& other) const { return SortCompare(*this, other) < 0; }
u8 CZEL_Date::operator<=(CZEL_Date const& other) const { return SortCompare(*this, other) <= 0; }
u8 CZEL_Date::operator>(CZEL_Date const& other) const { return SortCompare(*this, other) > 0; }
u8 CZEL_Date::operator>=(CZEL_Date const& other) const { return SortCompare(*this, other) >= 0; }

signed char CZEL_Date::SortCompare(CZEL_Date const& a, CZEL_Date const& b) {
  if (a.m_JulianDay == b.m_JulianDay) return 0;
  return a.m_JulianDay > b.m_JulianDay ? 1 : -1;
}
