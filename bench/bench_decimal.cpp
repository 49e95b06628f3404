// SPDX-License-Identifier: Apache-2.0
// CZEL_DecimalNumber beside the standard library doing the equivalent work:
// reading number texts (strtod), adding and scaling at two places (plain
// int64 fixed-point arithmetic) and printing (snprintf). Each pair runs over
// the same inputs, so their ratio is the cost of the class.

#include <LZEL_Core/values/CZEL_DecimalNumber.h>

#include <benchmark/benchmark.h>

#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

using D = CZEL_DecimalNumber;

char const* const kTexts[] = {"12345.67", "-0.5", "987654321.25", "3.14159", "-42", "0.07"};
constexpr int kTextCount = sizeof(kTexts) / sizeof(kTexts[0]);

void BM_Decimal_Parse(benchmark::State& state) {
  D number;
  int i = 0;
  for (auto _ : state) {
    number.Set(kTexts[i], D::DecimalPoint_Dot);
    benchmark::DoNotOptimize(number);
    i = (i + 1) % kTextCount;
  }
}
BENCHMARK(BM_Decimal_Parse);

void BM_Std_Parse(benchmark::State& state) {
  int i = 0;
  for (auto _ : state) {
    double value = std::strtod(kTexts[i], nullptr);
    benchmark::DoNotOptimize(value);
    i = (i + 1) % kTextCount;
  }
}
BENCHMARK(BM_Std_Parse);

// A running total of 1.25 added and 0.10 taken away, then the total
// scaled by 3: what a ledger does at two places.
void BM_Decimal_Arithmetic(benchmark::State& state) {
  D const add(2, "1.25", D::DecimalPoint_Dot);
  D const take(2, "0.10", D::DecimalPoint_Dot);
  D total;
  for (auto _ : state) {
    total += add;
    total -= take;
    D scaled = total * 3;
    benchmark::DoNotOptimize(scaled);
  }
}
BENCHMARK(BM_Decimal_Arithmetic);

void BM_Std_Arithmetic(benchmark::State& state) {
  std::int64_t add = 125;
  std::int64_t take = 10;
  benchmark::DoNotOptimize(add);
  benchmark::DoNotOptimize(take);
  std::int64_t total = 0;
  for (auto _ : state) {
    total += add;
    total -= take;
    std::int64_t scaled = total * 3;
    benchmark::DoNotOptimize(scaled);
  }
}
BENCHMARK(BM_Std_Arithmetic);

// Adding a four-place number to a two-place total converts it on a copy.
void BM_Decimal_MixedPlaces(benchmark::State& state) {
  D const add(4, "0.2345", D::DecimalPoint_Dot);
  D total;
  for (auto _ : state) {
    total += add;
    benchmark::DoNotOptimize(total);
  }
}
BENCHMARK(BM_Decimal_MixedPlaces);

void BM_Std_MixedPlaces(benchmark::State& state) {
  std::int64_t add = 2345;
  benchmark::DoNotOptimize(add);
  std::int64_t total = 0;
  for (auto _ : state) {
    std::int64_t const rounded = add / 100 + (add % 100 >= 50 ? 1 : 0);
    total += rounded;
    benchmark::DoNotOptimize(total);
  }
}
BENCHMARK(BM_Std_MixedPlaces);

void BM_Decimal_ToString(benchmark::State& state) {
  D const number(2, "-12345.67", D::DecimalPoint_Dot);
  for (auto _ : state) {
    CZEL_String text = number.ToString('.');
    benchmark::DoNotOptimize(text.GetStringC());
  }
}
BENCHMARK(BM_Decimal_ToString);

void BM_Std_ToString(benchmark::State& state) {
  std::int64_t value = -1234567;
  benchmark::DoNotOptimize(value);
  char text[32];
  for (auto _ : state) {
    std::uint64_t const magnitude =
        value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
    std::snprintf(text, sizeof text, "%s%" PRIu64 ".%02" PRIu64, value < 0 ? "-" : "",
                  magnitude / 100, magnitude % 100);
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(BM_Std_ToString);

void BM_Decimal_ToStringGrouped(benchmark::State& state) {
  D const number(2, "1234567.5", D::DecimalPoint_Dot);
  for (auto _ : state) {
    CZEL_String text = number.ToString('.', ',');
    benchmark::DoNotOptimize(text.GetStringC());
  }
}
BENCHMARK(BM_Decimal_ToStringGrouped);

}  // namespace
