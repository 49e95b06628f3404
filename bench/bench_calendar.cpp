// SPDX-License-Identifier: Apache-2.0
// Date conversions per second: a date stepped on by one day, read as year,
// month and day and set again from them, for each calendar of CZEL_Date, and
// the same Gregorian round trip of Howard Hinnant's date library (`date::
// sys_days` stepped on, read as `date::year_month_day` and turned back)
// beside them. Each iteration walks a block of consecutive days from
// 1 January 1900 on. Then the text forms: writing, and reading beside
// Hinnant's parse.

#include <LZEL_Core/calendar/CZEL_Date.h>
#include <LZEL_Core/calendar/CZEL_Time.h>

#include <benchmark/benchmark.h>
#include <date/date.h>

#include <sstream>
#include <string>

namespace {

using ZEL::i64;

constexpr int kBlock = 4096;

void BM_ZelRoundTrip(benchmark::State& state) {
  auto const calendar = static_cast<CZEL_Date::t_Calendar>(state.range(0));
  CZEL_Date const first(1900, 1, 1);
  CZEL_Date back;
  i64 changed = 0;
  for (auto _ : state) {
    CZEL_Date date = first;
    for (int i = 0; i < kBlock; ++i) {
      date = date.AddDays(1);
      CZEL_Date::t_Date_Struct s{};
      date.GetDateStruct(s, calendar);
      back.Set(s.year, s.month, s.day, calendar);
      changed += back != date ? 1 : 0;
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
  date::sys_days const first{date::year{1900} / 1 / 1};
  i64 changed = 0;
  for (auto _ : state) {
    date::sys_days day = first;
    for (int i = 0; i < kBlock; ++i) {
      day += date::days{1};
      date::year_month_day const ymd{day};
      benchmark::DoNotOptimize(ymd);
      changed += date::sys_days{ymd} != day ? 1 : 0;
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

// Reading a date from text, beside Hinnant's `date::parse` from a string
// stream, which is how an application would read one with that library.
void BM_DateParse(benchmark::State& state) {
  CZEL_String const text("05.03.2021");
  CZEL_String const format("%D.%M.%Y");
  CZEL_Date d;
  for (auto _ : state) {
    benchmark::DoNotOptimize(d.Parse(text, format));
    benchmark::DoNotOptimize(d);
  }
}
BENCHMARK(BM_DateParse);

void BM_HinnantDateParse(benchmark::State& state) {
  std::string const text("05.03.2021");
  date::year_month_day ymd{};
  for (auto _ : state) {
    std::istringstream in(text);
    in >> date::parse("%d.%m.%Y", ymd);
    benchmark::DoNotOptimize(ymd);
  }
}
BENCHMARK(BM_HinnantDateParse);

}  // namespace
