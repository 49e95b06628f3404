// SPDX-License-Identifier: Apache-2.0
// The costs of CZEL_String's exact-size buffers beside std::string: growing
// a text by appends (the buffer resized by realloc at each step, where
// std::string keeps spare capacity), editing in the middle, and turning
// numbers into text. The append benchmarks run at 10,000 and 1,000,000
// steps: equal times per step mean linear growth.

#include <LZEL_Core/text/CZEL_String.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace {

// One way of growing a text by one step, for either string class.
void AppendChar(CZEL_String& s) { s += 'x'; }
void AppendChar(std::string& s) { s += 'x'; }
void AppendText(CZEL_String& s) { s += "abcdef"; }
void AppendText(std::string& s) { s += "abcdef"; }
void InsertAtEnd(CZEL_String& s) { s.Insert('x', s.GetLength()); }
void InsertAtEnd(std::string& s) { s.insert(s.size(), 1, 'x'); }
void SetLengthPlusOne(CZEL_String& s) { s.SetLength(s.GetLength() + 1, 'x'); }
void SetLengthPlusOne(std::string& s) { s.resize(s.size() + 1, 'x'); }

char const* Data(CZEL_String const& s) { return s.GetStringC(); }
char const* Data(std::string const& s) { return s.data(); }

// `range(0)` steps of `step` on an empty string; one item is one step.
template <typename String, void (*step)(String&)>
void BM_Grow(benchmark::State& state) {
  auto const count = state.range(0);
  for (auto _ : state) {
    String s;
    for (auto i = count; i != 0; --i) step(s);
    benchmark::DoNotOptimize(Data(s));
  }
  state.SetItemsProcessed(state.iterations() * count);
}
#define ZEL_BENCH_GROW(String, step) \
  BENCHMARK_TEMPLATE(BM_Grow, String, step)->Arg(10000)->Arg(1000000)->Unit(benchmark::kMicrosecond)
ZEL_BENCH_GROW(CZEL_String, AppendChar);
ZEL_BENCH_GROW(std::string, AppendChar);
ZEL_BENCH_GROW(CZEL_String, AppendText);
ZEL_BENCH_GROW(std::string, AppendText);
ZEL_BENCH_GROW(CZEL_String, InsertAtEnd);
ZEL_BENCH_GROW(std::string, InsertAtEnd);
ZEL_BENCH_GROW(CZEL_String, SetLengthPlusOne);
ZEL_BENCH_GROW(std::string, SetLengthPlusOne);

// A move of a 1 MiB string hands the buffer over: the time doesn't depend
// on the length.
template <typename String>
void BM_MoveMiB(benchmark::State& state) {
  String a(1u << 20, 'x');
  for (auto _ : state) {
    String b(static_cast<String&&>(a));
    a = static_cast<String&&>(b);
    benchmark::DoNotOptimize(Data(a));
  }
}
BENCHMARK_TEMPLATE(BM_MoveMiB, CZEL_String);
BENCHMARK_TEMPLATE(BM_MoveMiB, std::string);

// std::sort of 100,000 short words in a std::vector: the swaps are moves, and
// the comparisons go through operator<.
template <typename String>
void BM_SortWords(benchmark::State& state) {
  std::mt19937 random(7);
  std::vector<String> words;
  for (int i = 0; i < 100000; ++i) {
    std::string word = std::to_string(random()) + "-word";
    words.emplace_back(word.c_str());
  }
  for (auto _ : state) {
    state.PauseTiming();
    std::vector<String> shuffled = words;
    state.ResumeTiming();
    std::sort(shuffled.begin(), shuffled.end());
    benchmark::DoNotOptimize(Data(shuffled.front()));
  }
}
BENCHMARK_TEMPLATE(BM_SortWords, CZEL_String)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(BM_SortWords, std::string)->Unit(benchmark::kMillisecond);

void BM_InsertMiddle(benchmark::State& state) {
  CZEL_String const text(static_cast<ZEL::u32>(state.range(0)), 'a');
  CZEL_String const piece("inserted");
  for (auto _ : state) {
    CZEL_String s(text);
    s.Insert(piece, s.GetLength() / 2, 0, piece.GetLength());
    benchmark::DoNotOptimize(s.GetStringC());
  }
}
BENCHMARK(BM_InsertMiddle)->Arg(64)->Arg(4096);

void BM_ReplaceString(benchmark::State& state) {
  CZEL_String const text(static_cast<ZEL::u32>(state.range(0)), 'a');
  CZEL_String const piece("replacement");
  for (auto _ : state) {
    CZEL_String s(text);
    s.ReplaceString(piece, 3, 5, 0, piece.GetLength());
    benchmark::DoNotOptimize(s.GetStringC());
  }
}
BENCHMARK(BM_ReplaceString)->Arg(64)->Arg(4096);

void BM_FromNumberGrouped(benchmark::State& state) {
  ZEL::u64 value = 1234567890123ull;
  for (auto _ : state) {
    CZEL_String s = CZEL_String::FromNumber(value++, 10, 3, ',');
    benchmark::DoNotOptimize(s.GetStringC());
  }
}
BENCHMARK(BM_FromNumberGrouped);

void BM_FromNumberDouble(benchmark::State& state) {
  double value = 3.14159;
  for (auto _ : state) {
    CZEL_String s = CZEL_String::FromNumber(value, 'f', 3);
    value += 1.0;
    benchmark::DoNotOptimize(s.GetStringC());
  }
}
BENCHMARK(BM_FromNumberDouble);

void BM_ToUnsignedAutoRadix(benchmark::State& state) {
  CZEL_String const text("  0FFFFh");
  for (auto _ : state) benchmark::DoNotOptimize(text.ToUnsignedAutoRadix(2));
}
BENCHMARK(BM_ToUnsignedAutoRadix);

}  // namespace
