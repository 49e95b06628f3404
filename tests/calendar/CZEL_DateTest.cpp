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
using Ymd = std::tuple<int, int, int>;

constexpr Cal kG = CZEL_Date::Calendar_Gregorian;
constexpr Cal kJ = CZEL_Date::Calendar_Julian;
constexpr Cal kRJ = CZEL_Date::Calendar_RevisedJulian;
constexpr Cal kP = CZEL_Date::Calendar_Persian;
constexpr Cal kI = CZEL_Date::Calendar_Islamic;
constexpr Cal kUnknown = static_cast<Cal>(5);

constexpr i64 kFirstDay = -784350574879;
constexpr i64 kLastDay = 784354017364;

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

Ymd Read(CZEL_Date const& d, Cal c) {
  CZEL_Date::t_Date_Struct s{-7, -7, -7};
  EXPECT_EQ(d.GetDateStruct(s, c), 0u);
  return {s.year, s.month, s.day};
}

std::string Text(CZEL_String const& s) { return std::string(s.GetStringC(), s.GetLength()); }

// The Persian reading as the calendar defines it: a search from the cycle
// and the mean year length in double precision, then month by month.
Ymd PersianByDefinition(i64 j) {
  auto start = [](i64 rest, i64 cycle) {
    return i64(std::floor(rest * 365.2421985815603)) + 1029983 * cycle + 2121446;
  };
  i64 const cycle = i64(std::floor((j - 2121446) / 1029983.0));
  i64 const rest = i64(std::floor((j - start(0, cycle)) / 365.2421985815603));
  i64 year = rest + 2820 * cycle + 475, day = j - start(rest, cycle) + 1;
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
    Ymd date;
  } const rows[] = {
      {2451545, kG, {2000, 1, 1}},      {2451545, kRJ, {2000, 1, 1}},
      {2451545, kJ, {1999, 12, 19}},    {2451545, kP, {1378, 10, 11}},
      {2451545, kI, {1420, 9, 24}},     {2459295, kG, {2021, 3, 21}},
      {2459295, kP, {1400, 1, 1}},      {2299161, kJ, {1582, 10, 5}},
      {1721426, kG, {1, 1, 1}},         {1721425, kG, {-1, 12, 31}},
      {1948440, kI, {1, 1, 1}},         {1948321, kP, {1, 1, 1}},
      {kFirstDay, kG, {INT_MIN, 1, 1}}, {kLastDay, kG, {INT_MAX, 12, 31}},
  };
  for (auto const& r : rows) {
    EXPECT_EQ(Read(FromDay(r.day), r.calendar), r.date) << r.day << " in " << r.calendar;
    auto const [y, m, d] = r.date;
    EXPECT_EQ(DayOf(CZEL_Date(y, m, d, r.calendar)), r.day) << r.day << " in " << r.calendar;
  }
}

// Every day of the years -5000 to 5000 of each calendar, in order: each day
// number reads as the day after the one before by the month lengths, and
// converts back to itself. Persian days also read as the definition does.
TEST(DateTest, RoundTripThroughTenThousandYears) {
  for (Cal c : {kG, kJ, kRJ, kP, kI}) {
    i64 day = Probe::DateToJulianDay(-5000, 1, 1, c);
    int y = -5000, m = 1, d = 1, failures = 0;
    for (; y <= 5000 && failures < 5; ++day) {
      Ymd const expected{y, m, d};
      bool const ok = Read(FromDay(day), c) == expected &&
                      Probe::DateToJulianDay(y, m, d, c) == day &&
                      (c != kP || PersianByDefinition(day) == expected);
      if (!ok) ADD_FAILURE() << "calendar " << c << ", day " << day << " (" << ++failures << ")";
      if (++d > CZEL_Date::GetDaysPerMonth(m, y, c)) d = 1, ++m;
      if (m > 12) m = 1, y = y == -1 ? 1 : y + 1;
    }
  }
}

TEST(DateTest, LeapYearRules) {
  struct Row {
    Cal calendar;
    int cycle, leapsPerCycle;
    std::vector<int> leap, common;
  } const rows[] = {
      {kG, 400, 97, {2000, 2024, -1, -5, -401}, {1900, -101, INT_MIN}},
      {kJ, 400, 100, {1900, -1}, {0, 1901}},
      {kRJ, 900, 218, {2000, 2400, 2900}, {1900, 2800, -1}},
      {kP, 2820, 683, {1399, 1403}, {1400}},
      {kI, 30, 11, {1442}, {1441}},
  };
  for (auto const& r : rows) {
    for (int year : r.leap) EXPECT_EQ(Probe::IsLeapYear(year, r.calendar), 1) << year;
    for (int year : r.common) EXPECT_EQ(Probe::IsLeapYear(year, r.calendar), 0) << year;
    for (int from : {1, -r.cycle}) {
      int leaps = 0;
      for (int y = from; y < from + r.cycle; ++y) leaps += Probe::IsLeapYear(y, r.calendar);
      EXPECT_EQ(leaps, r.leapsPerCycle) << r.calendar << " from " << from;
    }
  }
  EXPECT_EQ(Probe::IsLeapYear(2000, kUnknown), 0);
}

TEST(DateTest, CalendarRules) {
  struct Row {
    Cal calendar;
    int year;
    char const* months;  // Days of months 1 to 12, less 28, as digits.
    int daysPerYear;
  } const rows[] = {
      {kG, 2023, "303232332323", 365}, {kG, 2024, "313232332323", 366},
      {kP, 1401, "333333222221", 365}, {kP, 1399, "333333222222", 366},
      {kI, 1441, "212121212121", 365}, {kI, 1442, "212121212122", 366},
  };
  for (auto const& r : rows) {
    for (int m = 1; m <= 12; ++m) {
      EXPECT_EQ(CZEL_Date::GetDaysPerMonth(m, r.year, r.calendar), 28 + r.months[m - 1] - '0');
    }
    EXPECT_EQ(CZEL_Date::GetDaysPerYear(r.year, r.calendar), r.daysPerYear);
  }
  for (Cal c : {kG, kJ, kRJ, kP, kI}) {
    EXPECT_EQ(CZEL_Date::GetDaysPerMonth(1, 0, c) + CZEL_Date::GetDaysPerYear(0, c), 0);
    EXPECT_EQ(CZEL_Date::GetMonthsPerYear(0, c), 0);
    EXPECT_EQ(CZEL_Date::GetMonthsPerYear(-7, c), 12);
    EXPECT_EQ(CZEL_Date::CalendarHasYearZero(c) * 2 + CZEL_Date::CalendarHasNegativeYears(c), 1);
    EXPECT_TRUE(CZEL_Date(0, 1, 1, c).IsNull());
  }
  EXPECT_EQ(CZEL_Date::GetDaysPerMonth(0, 2000) + CZEL_Date::GetDaysPerMonth(13, 2000), 0);
  EXPECT_EQ(CZEL_Date::GetDaysPerMonth(1, 2000, kUnknown), 0);
  EXPECT_EQ(CZEL_Date::GetMonthsPerYear(2000, kUnknown), 0);
  EXPECT_EQ(CZEL_Date::GetDaysPerYear(2000, kUnknown), 0);
}

TEST(DateTest, SetReadAndValidity) {
  CZEL_Date d;
  EXPECT_EQ(d.Set(1900, 2, 29, kJ), 1u);
  EXPECT_EQ(d.Set(1900, 2, 29, kG), 0u);
  EXPECT_EQ(DayOf(d), INT64_MIN);
  for (Ymd bad : {Ymd{2021, 4, 31}, Ymd{2021, 4, 0}, Ymd{2021, 13, 1}}) {
    EXPECT_EQ(d.Set(std::get<0>(bad), std::get<1>(bad), std::get<2>(bad)), 0u);
  }
  EXPECT_EQ(d.Set(2021, 3, 5, kUnknown), 0u);
  EXPECT_TRUE(FromDay(kFirstDay - 1).IsNull() && FromDay(kLastDay + 1).IsNull());
  // A date that exists but lies beyond the range is stored and reads null.
  EXPECT_EQ(d.Set(INT_MAX, 12, 31, kJ), 0u);
  EXPECT_GT(DayOf(d), kLastDay);

  CZEL_Date::t_Date_Struct s{7, 8, 9};
  EXPECT_EQ(CZEL_Date().GetDateStruct(s, kUnknown), ZEL_ERR_FAILED);
  EXPECT_EQ(CZEL_Date(2000, 1, 1).GetDateStruct(s, kUnknown), ZEL_ERR_INVALID_ARGUMENT);
  EXPECT_EQ(s.day * 100 + s.month * 10 + s.year, 789);
  EXPECT_EQ(CZEL_Date().GetYear() + CZEL_Date(2000, 1, 1).GetMonth(kUnknown), 0);

  // Julian years read back are cut to 16 bits; others stay whole.
  CZEL_Date const far(40000, 6, 1, kJ);
  EXPECT_EQ(far.GetYear(kJ), 40000 - 65536 - 1);
  EXPECT_GT(far.GetYear(kG), 32767);
}

TEST(DateTest, WeekdayDayOfYearAndLengths) {
  EXPECT_EQ(CZEL_Date(2000, 1, 1).GetWeekday(), 6);
  EXPECT_EQ(CZEL_Date(1970, 1, 1).GetWeekday(kP), 4);
  EXPECT_EQ(FromDay(-1).GetWeekday(), 7);
  EXPECT_EQ(CZEL_Date().GetWeekday(), 0);
  EXPECT_EQ(CZEL_Date(2000, 3, 1).GetDayOfyear(), 61);
  EXPECT_EQ(CZEL_Date(-1, 12, 31).GetDayOfyear(), 366);
  EXPECT_EQ(CZEL_Date(1442, 12, 30, kI).GetDayOfyear(kI), 355);
  EXPECT_EQ(CZEL_Date().GetDayOfyear() + CZEL_Date(2000, 1, 1).GetDayOfyear(kUnknown), 0);
  CZEL_Date const leap(2024, 2, 10);
  EXPECT_EQ(leap.GetDaysPerMonth() + leap.GetDaysPerYear(), 29 + 366);
  EXPECT_EQ(CZEL_Date().GetDaysPerMonth() + CZEL_Date().GetDaysPerYear(), 0);
}

TEST(DateTest, AddDaysAndDistance) {
  EXPECT_EQ(DayOf(CZEL_Date(-1, 12, 31).AddDays(1)), 1721426);
  EXPECT_TRUE(FromDay(kLastDay).AddDays(1).IsNull());
  EXPECT_TRUE(FromDay(kFirstDay).AddDays(-1).IsNull());
  EXPECT_TRUE(FromDay(kLastDay).AddDays(INT64_MAX).IsNull());
  EXPECT_TRUE(FromDay(kFirstDay).AddDays(INT64_MIN).IsNull());
  EXPECT_TRUE(CZEL_Date().AddDays(5).IsNull());
  CZEL_Date const a(2021, 3, 5), b(2021, 4, 5);
  EXPECT_EQ(a.GetDaysTo(b), 31);
  EXPECT_EQ(b.GetDaysTo(a), -31);
  EXPECT_EQ(a.GetDaysTo(CZEL_Date()) + CZEL_Date().GetDaysTo(a), 0);
}

TEST(DateTest, AddMonthsAndYears) {
  struct Row {
    Cal calendar;
    Ymd from;
    int months, years;
    Ymd to;
  } const rows[] = {
      {kG, {2021, 1, 31}, 1, 0, {2021, 2, 28}},   {kG, {2024, 1, 31}, 1, 0, {2024, 2, 29}},
      {kG, {-1, 12, 15}, 1, 0, {1, 1, 15}},       {kG, {1, 1, 15}, -1, 0, {-1, 12, 15}},
      {kG, {1, 3, 1}, -15, 0, {-2, 12, 1}},       {kG, {-2, 12, 1}, 15, 0, {1, 3, 1}},
      {kG, {2000, 1, 1}, 1201, 0, {2100, 2, 1}},  {kP, {1399, 11, 30}, 1, 0, {1399, 12, 30}},
      {kI, {1441, 11, 30}, 1, 0, {1441, 12, 29}}, {kG, {2020, 2, 29}, 0, 1, {2021, 2, 28}},
      {kG, {-1, 6, 1}, 0, 1, {1, 6, 1}},          {kG, {1, 6, 1}, 0, -1, {-1, 6, 1}},
      {kG, {-1, 6, 1}, 0, 2, {2, 6, 1}},          {kG, {-5, 6, 1}, 0, 5, {1, 6, 1}},
      {kP, {1399, 12, 30}, 0, 1, {1400, 12, 29}}, {kJ, {1900, 2, 29}, 0, -100, {1800, 2, 29}},
  };
  for (auto const& r : rows) {
    CZEL_Date const d(std::get<0>(r.from), std::get<1>(r.from), std::get<2>(r.from), r.calendar);
    CZEL_Date const moved =
        r.months != 0 ? d.AddMonths(r.months, r.calendar) : d.AddYears(r.years, r.calendar);
    EXPECT_EQ(Read(moved, r.calendar), r.to) << r.months << " months, " << r.years << " years";
  }
  CZEL_Date const d(2021, 3, 5);
  EXPECT_TRUE(d.AddMonths(0) == d && d.AddYears(0) == d);
  for (CZEL_Date const& null :
       {CZEL_Date().AddMonths(1), CZEL_Date().AddYears(1), d.AddMonths(1, kUnknown),
        d.AddYears(-1, kUnknown), FromDay(kLastDay).AddMonths(1), d.AddYears(INT_MAX)}) {
    EXPECT_TRUE(null.IsNull());
  }
  EXPECT_TRUE(d.AddMonths(INT_MIN).IsValid());
}

TEST(DateTest, Comparison) {
  CZEL_Date const null, early(1, 1, 1), late(2000, 1, 1);
  EXPECT_TRUE(null == CZEL_Date() && null < early && early < late && late >= late);
  EXPECT_TRUE(early != late && late > null && early <= early);
  EXPECT_EQ(CZEL_Date::SortCompare(late, early), 1);
  EXPECT_EQ(CZEL_Date::SortCompare(null, early), -1);
  EXPECT_EQ(CZEL_Date::SortCompare(null, null), 0);
  CZEL_Date copy(late);
  CZEL_Date const& self = copy;
  copy = self;
  EXPECT_TRUE(copy == late);
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
  };
  for (auto const& r : rows) {
    EXPECT_EQ(Text(CZEL_Date(r.year, 3, 5).ToString(r.format)), r.text) << r.format;
  }
  EXPECT_EQ(Text(CZEL_Date(2000, 1, 1).ToString("%Y-%M-%D", kJ)), "1999-12-19");
  EXPECT_EQ(Text(CZEL_Date(2021, 3, 5).ToString(CZEL_String("a\0%d", 4))),
            std::string("a\0005", 3));
  EXPECT_EQ(Text(CZEL_Date().ToString("%D.%M.%Y %y")), "00.00.0 0");
  EXPECT_EQ(Text(CZEL_Date(2021, 3, 5).ToString("%d", kUnknown)), "0");
}

TEST(DateTest, CurrentDate) {
  CZEL_Date const today = CZEL_Date::GetCurrentDate();
  CZEL_Date later;
  later.FromCurrentDate();
  ASSERT_TRUE(today.IsValid());
  EXPECT_TRUE(today.GetDaysTo(later) == 0 || today.GetDaysTo(later) == 1);
}

}  // namespace
