// The costs of CZEL_String's exact-size buffers: appending one character at
// a time (an allocation and a full copy each), editing in the middle, and
// turning numbers into text.

#include <LZEL_Core/text/CZEL_String.h>

#include <benchmark/benchmark.h>

namespace {

void BM_AppendChar(benchmark::State& state) {
  auto const count = static_cast<ZEL::u32>(state.range(0));
  for (auto _ : state) {
    CZEL_String s;
    for (ZEL::u32 i = 0; i < count; ++i) s += 'x';
    benchmark::DoNotOptimize(s.GetStringC());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_AppendChar)->Arg(64)->Arg(1024);

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
