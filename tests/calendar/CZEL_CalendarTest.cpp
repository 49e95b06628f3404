// SPDX-License-Identifier: Apache-2.0
// Dates and times of day. Dates: worked day numbers in the five calendars,
// every day of ten thousand years both ways, the leap and month rules, the
// arithmetic with its null results, and the text form. Times: the bounds of
// the parts, the wrap at midnight, differences truncated toward zero.

#include <LZEL_Core/calendar/CZEL_Date.h>
#include <LZEL_Core/calendar/CZEL_Time.h>

#include <LZEL_Core/frame/ZEL_Errors.h>

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <initializer_list>
#include <string>
#include <tuple>

namespace {

using ZEL::i64;
using D = CZEL_Date;
using Cal = D::t_Calendar;
using Ymd = std::tuple<int, int, int>;

constexpr Cal kG = D::Calendar_Gregorian, kJ = D::Calendar_Julian;
constexpr Cal kRJ = D::Calendar_RevisedJulian, kP = D::Calendar_Persian;
constexpr Cal kI = D::Calendar_Islamic, kUnknown = static_cast<Cal>(5);
constexpr i64 kFirstDay = -784350574879, kLastDay = 784354017364;

// Opens the protected rules and the day number to the tests.
class Probe : public D {
 public:
  explicit Probe(D const& d) : D(d) {}
  i64 Day() const { return m_JulianDay; }
  using D::CreateFromJulianDay;
  using D::DateToJulianDay;
  using D::IsLeapYear;
};

i64 DayOf(D const& d) { return Probe(d).Day(); }
D FromDay(i64 day) { return Probe::CreateFromJulianDay(day); }
D Make(Ymd ymd, Cal c) { return D(std::get<0>(ymd), std::get<1>(ymd), std::get<2>(ymd), c); }

std::string Text(CZEL_String const& s) { return std::string(s.GetStringC(), s.GetLength()); }

Ymd Read(D const& d, Cal c) {
  D::t_Date_Struct s{-7, -7, -7};
  EXPECT_EQ(d.GetDateStruct(s, c), 0u);
  return {s.year, s.month, s.day};
}

// The Persian reading as the calendar defines it: a search from the cycle
// and the mean year length in double precision, then month by month.
Ymd PersianByDefinition(i64 j) {
  auto start = [](i64 rest, i64 cycle) {
    return i64(std::floor(rest * 365.2421985815603)) + 1029983 * cycle + 2121446;
  };
  i64 const cycle = i64(std::floor((j - 2121446) / 1029983.0));
  i64 const rest = i64(std::floor((j - start(0, cycle)) / 365.2421985815603));
  i64 year = rest + 2820 * cycle + 475, day = j - start(rest, cycle) + 1;
  if (day > D::GetDaysPerYear(int(year > 0 ? year : year - 1), kP)) ++year, day = 1;
  if (year <= 0) --year;
  int month = 1;
  for (; month < 12 && day > D::GetDaysPerMonth(month, int(year), kP); ++month) {
    day -= D::GetDaysPerMonth(month, int(year), kP);
  }
  return {int(year), month, int(day)};
}

TEST(DateTest, OneDayInEveryCalendar) {
  struct Row {
    i64 day;
    Cal calendar;
    Ymd date;
  } const rows[] = {{2451545, kG, {2000, 1, 1}},      {2451545, kRJ, {2000, 1, 1}},
                    {2451545, kJ, {1999, 12, 19}},    {2451545, kP, {1378, 10, 11}},
                    {2451545, kI, {1420, 9, 24}},     {2459295, kP, {1400, 1, 1}},
                    {1721425, kG, {-1, 12, 31}},      {1948440, kI, {1, 1, 1}},
                    {kFirstDay, kG, {INT_MIN, 1, 1}}, {kLastDay, kG, {INT_MAX, 12, 31}}};
  for (auto const& r : rows) {
    SCOPED_TRACE(::testing::Message() << r.day << " in " << r.calendar);
    EXPECT_EQ(Read(FromDay(r.day), r.calendar), r.date);
    EXPECT_EQ(DayOf(Make(r.date, r.calendar)), r.day);
  }
}

// Every day of the years -5000 to 5000 of each calendar, in order: each day
// number reads as the day after the one before by the month lengths, and
// converts back to itself, also through its text. Persian days also read as
// the definition does.
TEST(DateTest, RoundTripThroughTenThousandYears) {
  CZEL_String const format("%Y-%m-%D %y");
  for (Cal c : {kG, kJ, kRJ, kP, kI}) {
    i64 day = Probe::DateToJulianDay(-5000, 1, 1, c);
    int y = -5000, m = 1, d = 1, failures = 0;
    for (; y <= 5000 && failures < 5; ++day) {
      Ymd const expected{y, m, d};
      D parsed;
      bool const ok =
          Read(FromDay(day), c) == expected && Probe::DateToJulianDay(y, m, d, c) == day &&
          (c != kP || PersianByDefinition(day) == expected) &&
          parsed.Parse(FromDay(day).ToString(format, c), format, c) == 0 && DayOf(parsed) == day;
      if (!ok) ADD_FAILURE() << "calendar " << c << ", day " << day << " (" << ++failures << ")";
      if (++d > D::GetDaysPerMonth(m, y, c)) d = 1, ++m;
      if (m > 12) m = 1, y = y == -1 ? 1 : y + 1;
    }
  }
}

// Leap years per cycle, and month lengths less 28 of a leap year as digits.
TEST(DateTest, LeapAndMonthRules) {
  struct Row {
    Cal calendar;
    int cycle, leapsPerCycle, leap, common;
    char const* months;
  } const rows[] = {{kG, 400, 97, 2024, 1900, "313232332323"},
                    {kJ, 400, 100, 1900, 1901, "313232332323"},
                    {kRJ, 900, 218, 2400, 2800, "313232332323"},
                    {kP, 2820, 683, 1399, 1400, "333333222222"},
                    {kI, 30, 11, 1442, 1441, "212121212122"}};
  for (auto const& r : rows) {
    Cal const c = r.calendar;
    SCOPED_TRACE(c);
    EXPECT_EQ(Probe::IsLeapYear(r.leap, c) * 2 + Probe::IsLeapYear(r.common, c), 2);
    for (int from : {1, -r.cycle}) {
      int leaps = 0;
      for (int y = from; y < from + r.cycle; ++y) leaps += Probe::IsLeapYear(y, c);
      EXPECT_EQ(leaps, r.leapsPerCycle) << from;
    }
    for (int m = 1; m <= 12; ++m) {
      EXPECT_EQ(D::GetDaysPerMonth(m, r.leap, c), 28 + r.months[m - 1] - '0');
    }
    EXPECT_EQ(D::GetDaysPerYear(r.leap, c), 366);
    EXPECT_EQ(D::GetMonthsPerYear(0, c) + D::GetDaysPerYear(0, c), 0);
    EXPECT_EQ(D::CalendarHasYearZero(c) * 2 + D::CalendarHasNegativeYears(c), 1);
    EXPECT_TRUE(D(0, 1, 1, c).IsNull());
  }
  EXPECT_EQ(D::GetDaysPerMonth(13, 2000) + D::GetDaysPerYear(2000, kUnknown), 0);
}

TEST(DateTest, SetReadAndQuietResults) {
  D d;
  EXPECT_EQ(d.Set(1900, 2, 29, kJ), 1u);
  EXPECT_EQ(d.Set(1900, 2, 29, kG) + d.Set(2021, 4, 31) + d.Set(2021, 3, 5, kUnknown), 0u);
  EXPECT_TRUE(FromDay(kFirstDay - 1).IsNull() && FromDay(kLastDay + 1).IsNull());
  D::t_Date_Struct s{7, 8, 9};
  EXPECT_EQ(D().GetDateStruct(s, kG), ZEL_ERR_FAILED);
  EXPECT_EQ(D(2000, 1, 1).GetDateStruct(s, kUnknown), ZEL_ERR_INVALID_ARGUMENT);
  EXPECT_EQ(s.day * 100 + s.month * 10 + s.year, 789);
  // Julian years read back are cut to 16 bits; others stay whole.
  EXPECT_EQ(D(40000, 6, 1, kJ).GetYear(kJ), 40000 - 65536 - 1);
  EXPECT_EQ(D(2000, 1, 1).GetWeekday() * 10 + FromDay(-1).GetWeekday(), 67);
  EXPECT_EQ(D(-1, 12, 31).GetDayOfyear(), 366);
  EXPECT_EQ(D(2024, 2, 10).GetDaysPerMonth(), 29);
  EXPECT_EQ(D().GetWeekday() + D().GetDaysPerYear(), 0);
  D const a(2021, 3, 5), b(2021, 4, 5);
  EXPECT_EQ(b.GetDaysTo(a) * 10 + a.GetDaysTo(D()), -310);
  EXPECT_TRUE(D() < a && a < b && b >= b && a != b);
  EXPECT_EQ(D::SortCompare(b, a) * 10 + D::SortCompare(D(), a), 9);
}

TEST(DateTest, AddDaysMonthsAndYears) {
  struct Row {
    Cal calendar;
    Ymd from;
    int months, years;
    Ymd to;
  } const rows[] = {
      {kG, {2021, 1, 31}, 1, 0, {2021, 2, 28}},   {kG, {-1, 12, 15}, 1, 0, {1, 1, 15}},
      {kG, {1, 1, 15}, -1, 0, {-1, 12, 15}},      {kG, {1, 3, 1}, -15, 0, {-2, 12, 1}},
      {kI, {1441, 11, 30}, 1, 0, {1441, 12, 29}}, {kG, {2020, 2, 29}, 0, 1, {2021, 2, 28}},
      {kG, {-1, 6, 1}, 0, 1, {1, 6, 1}},          {kG, {1, 6, 1}, 0, -1, {-1, 6, 1}},
      {kJ, {1900, 2, 29}, 0, -100, {1800, 2, 29}}};
  for (auto const& r : rows) {
    SCOPED_TRACE(::testing::Message() << r.months << " months, " << r.years << " years");
    D const d = Make(r.from, r.calendar);
    D const moved =
        r.months != 0 ? d.AddMonths(r.months, r.calendar) : d.AddYears(r.years, r.calendar);
    EXPECT_EQ(Read(moved, r.calendar), r.to);
  }
  D const d(2021, 3, 5);
  EXPECT_EQ(DayOf(D(-1, 12, 31).AddDays(1)), 1721426);
  for (D const& null : {FromDay(kLastDay).AddDays(1), FromDay(kFirstDay).AddDays(INT64_MIN),
                        D().AddDays(5), D().AddMonths(1), d.AddMonths(1, kUnknown),
                        FromDay(kLastDay).AddMonths(1), d.AddYears(INT_MAX)}) {
    EXPECT_TRUE(null.IsNull());
  }
  EXPECT_TRUE(d.AddMonths(INT_MIN).IsValid());
}

TEST(DateTest, ToString) {
  auto text = [](int year, char const* format) { return Text(D(year, 3, 5).ToString(format)); };
  EXPECT_EQ(text(2021, "%D.%M.%Y") + ' ' + text(2021, "%d/%m/%y"), "05.03.2021 5/3/21");
  EXPECT_EQ(text(2021, "%d-%q") + ' ' + text(2021, "%q%Y%%%z") + ' ' + text(2021, "%Y%"),
            "5-5 2021%2021 2021");
  EXPECT_EQ(text(-44, "%y %Y") + ' ' + text(105, "%y") + ' ' + text(INT_MIN, "%y"), "44 -44 05 48");
  EXPECT_EQ(Text(D(2000, 1, 1).ToString("%Y-%M-%D", kJ)), "1999-12-19");
  EXPECT_EQ(Text(D().ToString("%D.%M.%Y %y")), "00.00.0 0");
  EXPECT_TRUE(D::GetCurrentDate().IsValid());
}

// Accepted texts give the date; refused ones (an unpadded day, trailing or
// missing text, a sign or zero that ToString never writes, a %y or repeat
// that disagrees, a Julian year past its 16-bit cut, a year 0, a day that
// the calendar lacks) give their code and leave the date alone.
TEST(DateTest, Parse) {
  struct Row {
    char const *text, *format;
    Cal calendar;
    Ymd date;
  } const rows[] = {{"05.03.2021", "%D.%M.%Y", kG, {2021, 3, 5}},
                    {"-44-3-15 44", "%Y-%m-%d %y", kG, {-44, 3, 15}},
                    {"20210305", "%Y%M%D", kG, {2021, 3, 5}},
                    {"1400/1/1%1", "%Y/%m/%d%%%q", kP, {1400, 1, 1}},
                    {"1900-2-29", "%Y-%m-%d", kJ, {1900, 2, 29}}};
  for (auto const& r : rows) {
    D d;
    EXPECT_EQ(d.Parse(r.text, r.format, r.calendar), 0u) << r.text;
    EXPECT_EQ(Read(d, r.calendar), r.date) << r.text;
  }
  // Pairs of text and format, each refused with `code`, the date left alone.
  auto refused = [](ZEL::u32 code, Cal c, std::initializer_list<char const*> pairs) {
    for (auto p = pairs.begin(); p != pairs.end(); p += 2) {
      D d(1999, 9, 9);
      EXPECT_EQ(d.Parse(p[0], p[1], c), code) << p[0];
      EXPECT_EQ(Read(d, kG), Ymd(1999, 9, 9)) << p[0];
    }
  };
  refused(ZEL_ERR_BAD_FORMAT, kG,
          {"5.3.2021", "%D.%M.%Y", "05.03.2021.", "%D.%M.%Y", "05.03.", "%D.%M.%Y", "5.3.+2021",
           "%d.%m.%Y", "5.3.02021", "%d.%m.%Y", "5.3.2021 20", "%d.%m.%Y %y", "5.3.2021-6",
           "%d.%m.%Y-%q", "1.1.9999999999", "%d.%m.%Y"});
  refused(ZEL_ERR_BAD_FORMAT, kJ, {"1.1.40000", "%d.%m.%Y"});  // read back cut to 16 bits
  refused(ZEL_ERR_INVALID_ARGUMENT, kG,
          {"1.1.0", "%d.%m.%Y", "1.1.-0", "%d.%m.%Y", "29.2.1900", "%d.%m.%Y"});
  refused(ZEL_ERR_INVALID_ARGUMENT, kI, {"30.12.1441", "%d.%m.%Y"});
  refused(ZEL_ERR_INVALID_ARGUMENT, kUnknown, {"1.1.2021", "%d.%m.%Y"});
  refused(ZEL_ERR_NOT_SUPPORTED, kG, {"1.1.21", "%d.%m.%y", "1.1", "%d.%m"});
}

using T = CZEL_Time;

int MsecsOf(T const& t) { return T(0, 0, 0, 0).MillisecondsTo(t); }

TEST(TimeTest, PartsBoundsAndStruct) {
  for (T const& bad : {T(24, 0, 0, 0), T(0, 60, 0, 0), T(0, 0, 60, 0), T(0, 0, 0, 1000),
                       T(-1, 0, 0, 0), T(0, -1, 0, 0), T(0, 0, -1, 0), T(0, 0, 0, -1)}) {
    EXPECT_TRUE(bad.IsNull() && bad.GetHour() == -1 && bad.GetMillisecond() == -1);
  }
  EXPECT_EQ(MsecsOf(T(23, 59, 59, 999)), 86399999);
  T t(9, 5, 3, 7);
  EXPECT_EQ(t.GetMinute() * 100 + t.GetSecond() * 10 + t.GetMillisecond(), 537);
  T::t_Date_Struct s{7, 7, 7, 7};
  EXPECT_EQ(T().GetTimeStruct(s), ZEL_ERR_FAILED);
  EXPECT_EQ(s.hour + s.minute + s.second + s.millisecond, 28);
  EXPECT_EQ(T(23, 59, 58, 999).GetTimeStruct(s), 0u);
  EXPECT_EQ(t.Set(12, 0, 60, 0), 0u);
  EXPECT_EQ(t.Set(s), 1u);
  EXPECT_EQ(MsecsOf(t), 86398999);
}

TEST(TimeTest, AdditionsWrapAtMidnight) {
  auto ms = [](int from, int add) {
    return MsecsOf(T(0, 0, 0, 0).AddMilliseconds(from).AddMilliseconds(add));
  };
  auto s = [](int from, int add) {
    return MsecsOf(T(0, 0, 0, 0).AddMilliseconds(from).AddSeconds(add));
  };
  EXPECT_EQ(ms(86399999, 1), 0);
  EXPECT_EQ(ms(0, -1), 86399999);
  EXPECT_EQ(ms(5000, 86400000), 5000);
  EXPECT_EQ(ms(5000, -3 * 86400000 - 6000), 86399000);
  EXPECT_EQ(ms(0, INT_MAX), INT_MAX % 86400000);
  EXPECT_EQ(s(1000, 86401), 2000);
  EXPECT_EQ(s(0, INT_MIN), 86400000 + INT_MIN % 86400 * 1000);
  EXPECT_TRUE(T().AddSeconds(0).IsNull() && T().AddMilliseconds(5).IsNull());
}

TEST(TimeTest, DifferencesComparisonAndText) {
  EXPECT_EQ(
      T(0, 0, 1, 500).SecondsTo(T(0, 0, 0, 0)) * 10 + T(0, 0, 0, 0).SecondsTo(T(0, 0, 1, 999)), -9);
  EXPECT_EQ(T(1, 0, 0, 0).MillisecondsTo(T(0, 0, 0, 0)), -3600000);
  EXPECT_EQ(T().MillisecondsTo(T(1, 0, 0, 0)) + T(1, 0, 0, 0).SecondsTo(T()), 0);
  T const early(0, 0, 0, 0), late(12, 0, 0, 0);
  EXPECT_TRUE(T() == T() && T() < early && early < late && late >= late && early != late);
  EXPECT_EQ(T::SortCompare(late, early) * 10 + T::SortCompare(T(), early), 9);
  auto text = [](char const* format) { return Text(T(9, 5, 3, 7).ToString(format)); };
  EXPECT_EQ(text("%H:%T:%S.%X") + ' ' + text("%h:%t:%s.%x"), "09:05:03.007 9:5:3.7");
  EXPECT_EQ(text("%H%q") + ' ' + text("100%%") + ' ' + text("%q%h%"), "0909 100% 9");
  EXPECT_TRUE(T::GetCurrentTime().IsValid());
}

TEST(TimeTest, Parse) {
  struct Row {
    char const *text, *format;
    ZEL::u32 code;
    int msecs;
  } const rows[] = {{"905", "%h%T", 0, 32700000},
                    {"23h 23", "%hh %q", 0, 82800000},
                    {"9:05", "%H:%T", ZEL_ERR_BAD_FORMAT, 3723004},
                    {"09:05 ", "%H:%T", ZEL_ERR_BAD_FORMAT, 3723004},
                    {"24:00", "%H:%T", ZEL_ERR_INVALID_ARGUMENT, 3723004}};
  for (auto const& r : rows) {
    T t(1, 2, 3, 4);
    EXPECT_EQ(t.Parse(r.text, r.format), r.code) << r.text;
    EXPECT_EQ(MsecsOf(t), r.msecs) << r.text;
  }
  // Every second of the day through its text, each with another of the
  // 1000 milliseconds (the parts are read apart, so this covers every value
  // of each).
  char const* const format = "%H:%T:%S.%X %h:%t:%s.%x";
  for (int s = 0, failures = 0; s < 86400 && failures < 5; ++s) {
    T const time = T(0, 0, 0, 0).AddMilliseconds(s * 1000 + s * 337 % 1000);
    T back;
    if (back.Parse(time.ToString(format), format) != 0 || back != time) {
      ADD_FAILURE() << Text(time.ToString(format)) << " (" << ++failures << ")";
    }
  }
}

}  // namespace
