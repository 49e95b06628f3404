#include <LZEL_Core/calendar/CZEL_Date.h>

#include <LZEL_Core/frame/ZEL_Errors.h>

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <string>
#include <tuple>
#include <vector>

namespace {

using ZEL::i64;
using Cal = CZEL_Date::t_Calendar;
using S = CZEL_Date::t_Date_Struct;

constexpr Cal kG = CZEL_Date::Calendar_Gregorian;
constexpr Cal kJ = CZEL_Date::Calendar_Julian;
constexpr Cal kRJ = CZEL_Date::Calendar_RevisedJulian;
constexpr Cal kP = CZEL_Date::Calendar_Persian;
constexpr Cal kI = CZEL_Date::Calendar_Islamic;
constexpr Cal kUnknown = static_cast<Cal>(5);
constexpr Cal kAll[] = {kG, kJ, kRJ, kP, kI};

constexpr i64 kFirstDay = -784350574879;
constexpr i64 kLastDay = 784354017364;
constexpr i64 kNull = INT64_MIN;

// Opens the protected rules and the day number to the tests.
class Probe : public CZEL_Date {
 public:
  explicit Probe(CZEL_Date const& d) : CZEL_Date(d) {}
  i64 Day() const { return m_JulianDay; }
  using CZEL_Date::CreateFromJulianDay;
  using CZEL_Date::DateToJulianDay;
  using CZEL_Date::IsLeapYear;
};

i64 DayOf(CZEL_Date const& d) { return Probe(d).Day(); }
CZEL_Date FromDay(i64 day) { return Probe::CreateFromJulianDay(day); }

std::tuple<int, int, int> Ymd(CZEL_Date const& d, Cal c) {
  S s{-7, -7, -7};
  EXPECT_EQ(d.GetDateStruct(s, c), 0u);
  return {s.year, s.month, s.day};
}

std::string Text(CZEL_String const& s) { return std::string(s.GetStringC(), s.GetLength()); }

// The Persian reading exactly as the calendar defines it: a search from the
// cycle and the mean year length in double precision, month by month.
std::tuple<int, int, int> PersianByDefinition(i64 j) {
  auto div = [](i64 a, i64 b) { return a / b - (a % b < 0 ? 1 : 0); };
  auto start = [](i64 rest, i64 cycle) {
    return static_cast<i64>(std::floor(rest * 365.2421985815603)) + 1029983 * cycle + 2121446;
  };
  i64 const cycle = div(j - 2121446, 1029983);
  i64 const rest =
      static_cast<i64>(std::floor((j - (1029983 * cycle + 2121446)) / 365.2421985815603));
  i64 year = rest + 2820 * cycle + 475;
  i64 day = j - start(rest, cycle) + 1;
  if (day > CZEL_Date::GetDaysPerYear(int(year > 0 ? year : year - 1), kP)) ++year, day = 1;
  if (year <= 0) --year;
  int month = 1;
  for (; month < 12 && day > CZEL_Date::GetDaysPerMonth(month, int(year), kP); ++month) {
    day -= CZEL_Date::GetDaysPerMonth(month, int(year), kP);
  }
  return {int(year), month, int(day)};
}

TEST(DateTest, OneDayInEveryCalendar) {
  struct Row {
    i64 day;
    Cal calendar;
    int y, m, d;
  } const rows[] = {
      {2451545, kG, 2000, 1, 1},       {2451545, kRJ, 2000, 1, 1},  {2451545, kJ, 1999, 12, 19},
      {2451545, kP, 1378, 10, 11},     {2451545, kI, 1420, 9, 24},  {2459295, kG, 2021, 3, 21},
      {2459295, kP, 1400, 1, 1},       {2299161, kG, 1582, 10, 15}, {2299161, kJ, 1582, 10, 5},
      {1721426, kG, 1, 1, 1},          {1721425, kG, -1, 12, 31},   {1721424, kJ, 1, 1, 1},
      {1948440, kI, 1, 1, 1},          {1948321, kP, 1, 1, 1},      {kFirstDay, kG, INT_MIN, 1, 1},
      {kLastDay, kG, INT_MAX, 12, 31},
  };
  for (auto const& r : rows) {
    SCOPED_TRACE(testing::Message() << r.day << " in calendar " << r.calendar);
    EXPECT_EQ(Ymd(FromDay(r.day), r.calendar), std::make_tuple(r.y, r.m, r.d));
    EXPECT_EQ(DayOf(CZEL_Date(r.y, r.m, r.d, r.calendar)), r.day);
  }
}

// Every day of the years -5000 to 5000 of each calendar, in order: the
// reading of each day number is the day after the one before by the month
// lengths, and converts back to the same number.
TEST(DateTest, RoundTripThroughTenThousandYears) {
  for (Cal c : kAll) {
    SCOPED_TRACE(testing::Message() << "calendar " << c);
    i64 day = Probe::DateToJulianDay(-5000, 1, 1, c);
    int y = -5000, m = 1, d = 1, failures = 0;
    while (y <= 5000 && failures < 5) {
      S s{};
      CZEL_Date const date = FromDay(day);
      date.GetDateStruct(s, c);
      bool ok =
          s.year == y && s.month == m && s.day == d && Probe::DateToJulianDay(y, m, d, c) == day;
      if (c == kP) ok = ok && PersianByDefinition(day) == std::make_tuple(y, m, d);
      if (!ok) {
        ADD_FAILURE() << "day " << day << " read " << s.year << "-" << s.month << "-" << s.day
                      << ", expected " << y << "-" << m << "-" << d;
        ++failures;
      }
      ++day;
      if (++d > CZEL_Date::GetDaysPerMonth(m, y, c)) d = 1, ++m;
      if (m > 12) m = 1, y = y == -1 ? 1 : y + 1;
    }
  }
}

TEST(DateTest, LeapYearsPerCycle) {
  struct Row {
    Cal calendar;
    int cycle, leaps;
  } const rows[] = {{kG, 400, 97}, {kJ, 400, 100}, {kRJ, 900, 218}, {kP, 2820, 683}, {kI, 30, 11}};
  for (auto const& r : rows) {
    for (int from : {1, -r.cycle}) {
      int leaps = 0;
      for (int y = from; y < from + r.cycle; ++y) leaps += Probe::IsLeapYear(y, r.calendar);
      EXPECT_EQ(leaps, r.leaps) << "calendar " << r.calendar << " from " << from;
    }
  }
}

TEST(DateTest, LeapYearRules) {
  struct Row {
    Cal calendar;
    int year;
    int leap;
  } const rows[] = {
      {kG, 2000, 1},    {kG, 1900, 0},       {kG, 2024, 1},  {kG, -1, 1},    {kG, -5, 1},
      {kG, -101, 0},    {kG, -401, 1},       {kJ, 1900, 1},  {kJ, -1, 1},    {kJ, 0, 0},
      {kRJ, 2000, 1},   {kRJ, 2400, 1},      {kRJ, 1900, 0}, {kRJ, 2800, 0}, {kRJ, 2900, 1},
      {kP, 1399, 1},    {kP, 1400, 0},       {kP, 1403, 1},  {kI, 1442, 1},  {kI, 1441, 0},
      {kG, INT_MIN, 0}, {kUnknown, 2000, 0},
  };
  for (auto const& r : rows) {
    EXPECT_EQ(Probe::IsLeapYear(r.year, r.calendar), r.leap)
        << "calendar " << r.calendar << " year " << r.year;
  }
}

TEST(DateTest, CalendarRules) {
  std::vector<int> const solar{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  std::vector<int> const persian{31, 31, 31, 31, 31, 31, 30, 30, 30, 30, 30, 29};
  std::vector<int> const islamic{30, 29, 30, 29, 30, 29, 30, 29, 30, 29, 30, 29};
  auto months = [](int year, Cal c) {
    std::vector<int> days;
    for (int m = 1; m <= 12; ++m) days.push_back(CZEL_Date::GetDaysPerMonth(m, year, c));
    return days;
  };
  EXPECT_EQ(months(2023, kG), solar);
  EXPECT_EQ(months(1401, kP), persian);
  EXPECT_EQ(months(1441, kI), islamic);
  EXPECT_EQ(CZEL_Date::GetDaysPerMonth(2, 2024, kG), 29);
  EXPECT_EQ(CZEL_Date::GetDaysPerMonth(12, 1399, kP), 30);
  EXPECT_EQ(CZEL_Date::GetDaysPerMonth(12, 1442, kI), 30);
  for (int bad : {0, 13, -1}) EXPECT_EQ(CZEL_Date::GetDaysPerMonth(bad, 2000, kG), 0);
  for (Cal c : kAll) {
    EXPECT_EQ(CZEL_Date::GetDaysPerMonth(1, 0, c), 0);
    EXPECT_EQ(CZEL_Date::GetMonthsPerYear(0, c), 0);
    EXPECT_EQ(CZEL_Date::GetMonthsPerYear(-7, c), 12);
    EXPECT_EQ(CZEL_Date::GetDaysPerYear(0, c), 0);
    EXPECT_EQ(CZEL_Date::CalendarHasYearZero(c), 0);
    EXPECT_EQ(CZEL_Date::CalendarHasNegativeYears(c), 1);
    EXPECT_FALSE(CZEL_Date(0, 1, 1, c).IsValid());
  }
  EXPECT_EQ(CZEL_Date::GetDaysPerMonth(1, 2000, kUnknown), 0);
  EXPECT_EQ(CZEL_Date::GetMonthsPerYear(2000, kUnknown), 0);
  EXPECT_EQ(CZEL_Date::GetDaysPerYear(2000, kUnknown), 0);
  EXPECT_EQ(CZEL_Date::GetDaysPerYear(1442, kI), 366);  // Not 355: the solar rule.
  EXPECT_EQ(CZEL_Date::GetDaysPerYear(1441, kI), 365);
  EXPECT_EQ(CZEL_Date::GetDaysPerYear(-1, kG), 366);
}

TEST(DateTest, SetAndValidity) {
  CZEL_Date d(2021, 3, 5);
  EXPECT_EQ(d.Set(1900, 2, 29, kG), 0u);
  EXPECT_TRUE(d.IsNull());
  EXPECT_EQ(DayOf(d), kNull);
  EXPECT_EQ(d.Set(1900, 2, 29, kJ), 1u);
  EXPECT_EQ(d.Set(2021, 3, 5, kUnknown), 0u);
  EXPECT_EQ(DayOf(d), kNull);
  EXPECT_EQ(d.Set(2021, 4, 31, kG), 0u);
  EXPECT_EQ(d.Set(2021, 4, 0, kG), 0u);
  EXPECT_TRUE(CZEL_Date().IsNull());
  EXPECT_EQ(DayOf(CZEL_Date()), kNull);
  EXPECT_TRUE(FromDay(kFirstDay - 1).IsNull());
  EXPECT_TRUE(FromDay(kLastDay + 1).IsNull());
  // A date that exists but lies beyond the range is stored and reads null.
  EXPECT_EQ(d.Set(INT_MAX, 12, 31, kJ), 0u);
  EXPECT_GT(DayOf(d), kLastDay);
}

TEST(DateTest, GetDateStructFailures) {
  S s{7, 8, 9};
  EXPECT_EQ(CZEL_Date().GetDateStruct(s, kUnknown), ZEL_ERR_FAILED);
  EXPECT_EQ(CZEL_Date(2000, 1, 1).GetDateStruct(s, kUnknown), ZEL_ERR_INVALID_ARGUMENT);
  EXPECT_EQ(std::make_tuple(s.day, s.month, s.year), std::make_tuple(7, 8, 9));
  EXPECT_EQ(CZEL_Date().GetYear(), 0);
  EXPECT_EQ(CZEL_Date(2000, 1, 1).GetMonth(kUnknown), 0);
}

TEST(DateTest, JulianYearsAreCutTo16Bits) {
  CZEL_Date const d(40000, 6, 1, kJ);
  EXPECT_TRUE(d.IsValid());
  EXPECT_EQ(d.GetYear(kJ), 40000 - 65536 - 1);  // -25536, stored with the gap.
  EXPECT_GT(d.GetYear(kG), 32767);              // Other calendars keep the whole year.
}

TEST(DateTest, WeekdayDayOfYearAndLengths) {
  EXPECT_EQ(CZEL_Date(2000, 1, 1).GetWeekday(), 6);
  EXPECT_EQ(CZEL_Date(1970, 1, 1).GetWeekday(kP), 4);
  EXPECT_EQ(CZEL_Date(2021, 3, 7).GetWeekday(), 7);
  EXPECT_EQ(FromDay(-1).GetWeekday(), 7);  // The remainder is never negative.
  EXPECT_EQ(CZEL_Date().GetWeekday(), 0);
  EXPECT_EQ(CZEL_Date(2000, 3, 1).GetDayOfyear(), 61);
  EXPECT_EQ(CZEL_Date(2024, 12, 31).GetDayOfyear(), 366);
  EXPECT_EQ(CZEL_Date(1442, 12, 30, kI).GetDayOfyear(kI), 355);
  EXPECT_EQ(CZEL_Date(-1, 12, 31).GetDayOfyear(), 366);
  EXPECT_EQ(CZEL_Date().GetDayOfyear(), 0);
  EXPECT_EQ(CZEL_Date(2000, 1, 1).GetDayOfyear(kUnknown), 0);
  EXPECT_EQ(CZEL_Date(2024, 2, 10).GetDaysPerMonth(), 29);
  EXPECT_EQ(CZEL_Date(2024, 2, 10).GetDaysPerYear(), 366);
  EXPECT_EQ(CZEL_Date(2024, 2, 10).GetDaysPerYear(kI), 366);  // 1445, leap.
  EXPECT_EQ(CZEL_Date().GetDaysPerMonth(), 0);
  EXPECT_EQ(CZEL_Date().GetDaysPerYear(), 0);
}

TEST(DateTest, AddDaysAndDistance) {
  EXPECT_EQ(DayOf(CZEL_Date(-1, 12, 31).AddDays(1)), 1721426);
  EXPECT_EQ(Ymd(CZEL_Date(-1, 12, 31).AddDays(1), kG), std::make_tuple(1, 1, 1));
  EXPECT_TRUE(FromDay(kLastDay).AddDays(1).IsNull());
  EXPECT_TRUE(FromDay(kFirstDay).AddDays(-1).IsNull());
  EXPECT_TRUE(FromDay(kLastDay).AddDays(INT64_MAX).IsNull());
  EXPECT_TRUE(FromDay(kFirstDay).AddDays(INT64_MIN).IsNull());
  EXPECT_TRUE(CZEL_Date().AddDays(5).IsNull());
  CZEL_Date const a(2021, 3, 5), b(2021, 4, 5);
  EXPECT_EQ(a.GetDaysTo(b), 31);
  EXPECT_EQ(b.GetDaysTo(a), -31);
  EXPECT_EQ(a.GetDaysTo(CZEL_Date()), 0);
  EXPECT_EQ(CZEL_Date().GetDaysTo(a), 0);
}

TEST(DateTest, AddMonthsAndYears) {
  struct Row {
    Cal calendar;
    int y, m, d;
    int months, years;
    int ry, rm, rd;
  } const rows[] = {
      {kG, 2021, 1, 31, 1, 0, 2021, 2, 28},   {kG, 2024, 1, 31, 1, 0, 2024, 2, 29},
      {kG, -1, 12, 15, 1, 0, 1, 1, 15},       {kG, 1, 1, 15, -1, 0, -1, 12, 15},
      {kG, 1, 3, 1, -15, 0, -2, 12, 1},       {kG, -2, 12, 1, 15, 0, 1, 3, 1},
      {kG, 2021, 5, 31, -3, 0, 2021, 2, 28},  {kG, 2000, 1, 1, 12 * 100 + 1, 0, 2100, 2, 1},
      {kP, 1399, 11, 30, 1, 0, 1399, 12, 30}, {kI, 1441, 11, 30, 1, 0, 1441, 12, 29},
      {kG, 2020, 2, 29, 0, 1, 2021, 2, 28},   {kG, 2020, 2, 29, 0, 4, 2024, 2, 29},
      {kG, -1, 6, 1, 0, 1, 1, 6, 1},          {kG, 1, 6, 1, 0, -1, -1, 6, 1},
      {kG, -1, 6, 1, 0, 2, 2, 6, 1},          {kG, 1, 6, 1, 0, -2, -2, 6, 1},
      {kG, -5, 6, 1, 0, 5, 1, 6, 1},          {kG, 5, 6, 1, 0, -5, -1, 6, 1},
      {kP, 1399, 12, 30, 0, 1, 1400, 12, 29}, {kJ, 1900, 2, 29, 0, -100, 1800, 2, 29},
  };
  for (auto const& r : rows) {
    CZEL_Date const d(r.y, r.m, r.d, r.calendar);
    CZEL_Date const moved =
        r.months != 0 ? d.AddMonths(r.months, r.calendar) : d.AddYears(r.years, r.calendar);
    EXPECT_EQ(Ymd(moved, r.calendar), std::make_tuple(r.ry, r.rm, r.rd))
        << r.y << "-" << r.m << "-" << r.d << " + " << r.months << " months, " << r.years
        << " years";
  }
  CZEL_Date const d(2021, 3, 5);
  EXPECT_TRUE(d.AddMonths(0) == d && d.AddYears(0) == d);
  EXPECT_TRUE(CZEL_Date().AddMonths(1).IsNull());
  EXPECT_TRUE(CZEL_Date().AddYears(1).IsNull());
  EXPECT_TRUE(d.AddMonths(1, kUnknown).IsNull());
  EXPECT_TRUE(d.AddYears(-1, kUnknown).IsNull());
  EXPECT_TRUE(FromDay(kLastDay).AddMonths(1).IsNull());
  EXPECT_TRUE(FromDay(kLastDay).AddYears(1).IsNull());
  EXPECT_TRUE(d.AddMonths(INT_MIN).IsValid());
  EXPECT_TRUE(d.AddYears(INT_MAX).IsNull());  // Past the last year an int holds.
}

TEST(DateTest, Comparison) {
  CZEL_Date const null, early(1, 1, 1), late(2000, 1, 1);
  EXPECT_TRUE(null == CZEL_Date());
  EXPECT_TRUE(null < early && early < late && late > null && late >= late && early <= early);
  EXPECT_TRUE(early != late && !(early == late));
  EXPECT_EQ(CZEL_Date::SortCompare(late, early), 1);
  EXPECT_EQ(CZEL_Date::SortCompare(null, early), -1);
  EXPECT_EQ(CZEL_Date::SortCompare(null, null), 0);
  CZEL_Date copy(late);
  CZEL_Date const& self = copy;
  copy = self;
  EXPECT_TRUE(copy == late);
  copy = null;
  EXPECT_TRUE(copy.IsNull());
}

TEST(DateTest, ToString) {
  struct Row {
    int year;
    char const* format;
    char const* text;
  } const rows[] = {
      {2021, "%D.%M.%Y", "05.03.2021"},
      {2021, "%d/%m/%y", "5/3/21"},
      {2021, "%d-%q", "5-5"},
      {2021, "%q%Y%%%z", "2021%2021"},
      {2021, "100%%", "100%"},
      {2021, "%Y%", "2021"},
      {-44, "%y %Y", "44 -44"},
      {7, "%y", "7"},
      {105, "%y", "05"},
      {INT_MIN, "%y", "48"},
      {2021, "", ""},
      {2021, "%d%D%m%M", "505303"},
  };
  for (auto const& r : rows) {
    EXPECT_EQ(Text(CZEL_Date(r.year, 3, 5).ToString(r.format)), r.text) << r.format;
  }
  EXPECT_EQ(Text(CZEL_Date(2000, 1, 1).ToString("%Y-%M-%D", kJ)), "1999-12-19");
  EXPECT_EQ(Text(CZEL_Date(2021, 3, 5).ToString(CZEL_String("a\0%d", 4))), std::string("a\0"
                                                                                       "5",
                                                                                       3));
  EXPECT_EQ(Text(CZEL_Date().ToString("%D.%M.%Y %y")), "00.00.0 0");
  EXPECT_EQ(Text(CZEL_Date(2021, 3, 5).ToString("%d", kUnknown)), "0");
}

TEST(DateTest, CurrentDate) {
  CZEL_Date const today = CZEL_Date::GetCurrentDate();
  CZEL_Date later;
  later.FromCurrentDate();
  ASSERT_TRUE(today.IsValid());
  EXPECT_GE(today.GetYear(), 2024);
  i64 const apart = today.GetDaysTo(later);
  EXPECT_TRUE(apart == 0 || apart == 1);
}

}  // namespace
