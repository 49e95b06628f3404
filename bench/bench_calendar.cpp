// Date conversions per second: a Julian day number read as year, month and
// day and turned back into a day number, for each calendar of CZEL_Date, and
// the Gregorian round trip of Howard Hinnant's date library (`date::
// year_month_day` from `date::sys_days` and back) beside them. Each
// iteration converts a block of consecutive days from 1 January 1900 on.

#include <LZEL_Core/calendar/CZEL_Date.h>
#include <LZEL_Core/calendar/CZEL_Time.h>

#include <benchmark/benchmark.h>
#include <date/date.h>

namespace {

using ZEL::i64;

constexpr i64 kFirstDay = 2415021;  // 1 January 1900, Gregorian.
constexpr i64 kBlock = 4096;
constexpr i64 kUnixEpochDay = 2440588;

// A date whose day number the benchmark sets and reads directly, so that
// only the conversions are timed.
class DateAccess : public CZEL_Date {
 public:
  void SetDay(i64 day) { m_JulianDay = day; }
  i64 Day() const { return m_JulianDay; }
};

void BM_ZelRoundTrip(benchmark::State& state) {
  auto const calendar = static_cast<CZEL_Date::t_Calendar>(state.range(0));
  DateAccess date;
  DateAccess back;
  i64 changed = 0;
  for (auto _ : state) {
    for (i64 day = kFirstDay; day < kFirstDay + kBlock; ++day) {
      CZEL_Date::t_Date_Struct s{};
      date.SetDay(day);
      date.GetDateStruct(s, calendar);
      back.Set(s.year, s.month, s.day, calendar);
      changed += back.Day() != day ? 1 : 0;
    }
    benchmark::DoNotOptimize(changed);
  }
  if (changed != 0) state.SkipWithError("a round trip changed a day");
  state.SetItemsProcessed(state.iterations() * kBlock);
}
BENCHMARK(BM_ZelRoundTrip)
    ->ArgName("calendar")
    ->Arg(CZEL_Date::Calendar_Gregorian)
    ->Arg(CZEL_Date::Calendar_Julian)
    ->Arg(CZEL_Date::Calendar_RevisedJulian)
    ->Arg(CZEL_Date::Calendar_Persian)
    ->Arg(CZEL_Date::Calendar_Islamic);

void BM_HinnantGregorianRoundTrip(benchmark::State& state) {
  i64 changed = 0;
  for (auto _ : state) {
    for (i64 day = kFirstDay; day < kFirstDay + kBlock; ++day) {
      date::sys_days const since{date::days{static_cast<int>(day - kUnixEpochDay)}};
      date::year_month_day const ymd{since};
      benchmark::DoNotOptimize(ymd);
      changed += date::sys_days{ymd}.time_since_epoch().count() + kUnixEpochDay != day ? 1 : 0;
    }
    benchmark::DoNotOptimize(changed);
  }
  if (changed != 0) state.SkipWithError("a round trip changed a day");
  state.SetItemsProcessed(state.iterations() * kBlock);
}
BENCHMARK(BM_HinnantGregorianRoundTrip);

// The text forms, for scale.
void BM_DateToString(benchmark::State& state) {
  CZEL_Date const d(2021, 3, 5);
  CZEL_String const format("%D.%M.%Y");
  for (auto _ : state) {
    CZEL_String const text = d.ToString(format);
    benchmark::DoNotOptimize(text.GetStringC());
  }
}
BENCHMARK(BM_DateToString);

void BM_TimeToString(benchmark::State& state) {
  CZEL_Time const t(9, 5, 3, 7);
  CZEL_String const format("%H:%T:%S.%X");
  for (auto _ : state) {
    CZEL_String const text = t.ToString(format);
    benchmark::DoNotOptimize(text.GetStringC());
  }
}
BENCHMARK(BM_TimeToString);

}  // namespace
