// SPDX-License-Identifier: Apache-2.0
// Throughput of the bit and byte primitives of namespace ZEL: the field
// functions that registers and bit sets are built on, and the buffer packing
// that every binary form of the library goes through.

#include <LZEL_Core/frame/ZEL_Primitives.h>

#include <benchmark/benchmark.h>

#include <array>

namespace {

using ZEL::u32;
using ZEL::u64;
using ZEL::u8;

void BM_GetField(benchmark::State& state) {
  u64 value = 0xFEDCBA9876543210ull;
  u32 start = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(ZEL::GetField(value, start & 63u, 13));
    ++start;
  }
}
BENCHMARK(BM_GetField);

void BM_SetField64(benchmark::State& state) {
  u64 word = 0;
  u32 start = 0;
  for (auto _ : state) {
    ZEL::SetField(word, start & 63u, 13, u64{start});
    benchmark::DoNotOptimize(word);
    ++start;
  }
}
BENCHMARK(BM_SetField64);

void BM_SignedFieldRoundTrip(benchmark::State& state) {
  auto const repr = static_cast<ZEL::t_ZEL_NumberRepr>(state.range(0));
  u64 word = 0;
  ZEL::i64 n = -1000;
  for (auto _ : state) {
    ZEL::SetSignedField(word, 8, 16, n, repr);
    benchmark::DoNotOptimize(ZEL::GetSignedField(word, 8, 16, repr));
    ++n;
  }
}
BENCHMARK(BM_SignedFieldRoundTrip)->DenseRange(0, 4);

void BM_BcdRoundTrip(benchmark::State& state) {
  u64 word = 0;
  u64 n = 0;
  for (auto _ : state) {
    ZEL::SetBcdField(word, 0, 16, n);
    benchmark::DoNotOptimize(ZEL::GetBcdField(word, 0, 16));
    n += 12345;
  }
}
BENCHMARK(BM_BcdRoundTrip);

void BM_ReflectUint64(benchmark::State& state) {
  u64 v = 0x0123456789ABCDEFull;
  for (auto _ : state) {
    v = ZEL::ReflectUint64(v) + 1;
    benchmark::DoNotOptimize(v);
  }
}
BENCHMARK(BM_ReflectUint64);

// Packs and unpacks 1024 u64 values, in the order given by the argument.
void BM_Uint64BufferPacking(benchmark::State& state) {
  auto const order = static_cast<ZEL::t_ByteOrdering>(state.range(0));
  std::array<u8, 8 * 1024 + 1> buffer{};
  for (auto _ : state) {
    u64 sum = 0;
    for (u32 i = 0; i < 1024; ++i) {
      u64 const v = i * 0x9E3779B97F4A7C15ull;
      ZEL::Uint64ToBuf(v, buffer.data() + 1 + 8 * i, order);  // unaligned
    }
    for (u32 i = 0; i < 1024; ++i) sum += ZEL::Uint64FromBuf(buffer.data() + 1 + 8 * i, order);
    benchmark::DoNotOptimize(sum);
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * 2 * 8 * 1024);
}
BENCHMARK(BM_Uint64BufferPacking)->Arg(0)->Arg(1);

}  // namespace
