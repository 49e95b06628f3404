// SPDX-License-Identifier: Apache-2.0
// CZEL_BitSet beside boost::dynamic_bitset, doing the same work in the same
// run: the word-wise operators &, |, ^, the numeric comparison over the
// words, and the text forms, on sets of 1,000 and 100,000 bits. The text
// form in base 16 has no counterpart in the peer, so the peer's side builds
// the same digits from its blocks; base 2 is set against the peer's own
// to_string. The text forms also run at 10,000 bits to show that their cost
// grows linearly with the length.

#include <LZEL_Core/values/CZEL_BitSet.h>

#include <benchmark/benchmark.h>
#include <boost/dynamic_bitset.hpp>

#include <cstdint>
#include <iterator>
#include <string>
#include <vector>

namespace {

using ZEL::u32;
using ZEL::u64;
using Peer = boost::dynamic_bitset<std::uint64_t>;

// A fixed pseudo-random word sequence, the same for both libraries.
std::vector<u64> Words(u32 bits, u64 seed) {
  std::vector<u64> words((bits + 63) / 64);
  for (u64& w : words) {
    seed = seed * 6364136223846793005ull + 1442695040888963407ull;
    w = seed;
  }
  words.back() &= ~u64{0} >> (64 - (bits % 64 == 0 ? 64 : bits % 64));
  return words;
}

CZEL_BitSet MakeZel(u32 bits, u64 seed) {
  std::vector<u64> const words = Words(bits, seed);
  CZEL_BitSet s(bits, 0);
  s.SetRawByteBuffer(reinterpret_cast<ZEL::u8 const*>(words.data()),
                     static_cast<u32>(words.size() * 8), ZEL::ZEL_LITTLE_ENDIAN);
  return s;
}

Peer MakePeer(u32 bits, u64 seed) {
  std::vector<u64> const words = Words(bits, seed);
  Peer p(words.begin(), words.end());
  p.resize(bits);
  return p;
}

u32 Bits(benchmark::State const& state) { return static_cast<u32>(state.range(0)); }

// `op` of two sets made by `make`, a new set each time.
template <typename Set, typename Op>
void Binary(benchmark::State& state, Set (*make)(u32, u64), Op op) {
  Set const a = make(Bits(state), 1);
  Set const b = make(Bits(state), 2);
  for (auto _ : state) {
    Set r = op(a, b);
    benchmark::DoNotOptimize(r);
  }
  state.SetBytesProcessed(state.iterations() * state.range(0) / 8);
}

void BM_And_Zel(benchmark::State& s) {
  Binary(s, MakeZel, [](auto& a, auto& b) { return a & b; });
}
void BM_And_Boost(benchmark::State& s) {
  Binary(s, MakePeer, [](auto& a, auto& b) { return a & b; });
}
void BM_Or_Zel(benchmark::State& s) {
  Binary(s, MakeZel, [](auto& a, auto& b) { return a | b; });
}
void BM_Or_Boost(benchmark::State& s) {
  Binary(s, MakePeer, [](auto& a, auto& b) { return a | b; });
}
void BM_Xor_Zel(benchmark::State& s) {
  Binary(s, MakeZel, [](auto& a, auto& b) { return a ^ b; });
}
void BM_Xor_Boost(benchmark::State& s) {
  Binary(s, MakePeer, [](auto& a, auto& b) { return a ^ b; });
}
BENCHMARK(BM_And_Zel)->Arg(1000)->Arg(100000);
BENCHMARK(BM_And_Boost)->Arg(1000)->Arg(100000);
BENCHMARK(BM_Or_Zel)->Arg(1000)->Arg(100000);
BENCHMARK(BM_Or_Boost)->Arg(1000)->Arg(100000);
BENCHMARK(BM_Xor_Zel)->Arg(1000)->Arg(100000);
BENCHMARK(BM_Xor_Boost)->Arg(1000)->Arg(100000);

// Equal operands: both sides scan every word before they can answer.
void BM_Compare_Zel(benchmark::State& state) {
  CZEL_BitSet const a = MakeZel(Bits(state), 3);
  CZEL_BitSet const b = MakeZel(Bits(state), 3);
  for (auto _ : state) benchmark::DoNotOptimize(CZEL_BitSet::Compare(a, b));
  state.SetBytesProcessed(state.iterations() * state.range(0) / 8);
}
void BM_Compare_Boost(benchmark::State& state) {
  Peer const a = MakePeer(Bits(state), 3);
  Peer const b = MakePeer(Bits(state), 3);
  for (auto _ : state) benchmark::DoNotOptimize(a < b);
  state.SetBytesProcessed(state.iterations() * state.range(0) / 8);
}
BENCHMARK(BM_Compare_Zel)->Arg(1000)->Arg(100000);
BENCHMARK(BM_Compare_Boost)->Arg(1000)->Arg(100000);

// The text in `base` with groups of `group` digits (0: none).
void ZelText(benchmark::State& state, u32 base, u32 group) {
  CZEL_BitSet const a = MakeZel(Bits(state), 4);
  for (auto _ : state) {
    CZEL_String text = a.ToString(base, group, ' ');
    benchmark::DoNotOptimize(text.GetStringC());
  }
  state.SetComplexityN(state.range(0));
}
void BM_ToString16_Zel(benchmark::State& state) { ZelText(state, 16, 4); }
void BM_ToString2_Zel(benchmark::State& state) { ZelText(state, 2, 0); }

// The same digits and groups from the peer's blocks, most significant first.
void BM_ToString16_Boost(benchmark::State& state) {
  Peer const a = MakePeer(Bits(state), 4);
  for (auto _ : state) {
    std::vector<u64> blocks;
    boost::to_block_range(a, std::back_inserter(blocks));
    std::size_t const digits = (a.size() + 3) / 4;
    std::string text(digits + (digits - 1) / 4, ' ');
    std::size_t at = text.size();
    for (std::size_t d = 0; d < digits; ++d) {
      text[--at] = "0123456789ABCDEF"[(blocks[d / 16] >> (4 * (d % 16))) & 15];
      if ((d + 1) % 4 == 0 && d + 1 < digits) --at;
    }
    benchmark::DoNotOptimize(text.data());
  }
  state.SetComplexityN(state.range(0));
}

void BM_ToString2_Boost(benchmark::State& state) {
  Peer const a = MakePeer(Bits(state), 4);
  for (auto _ : state) {
    std::string text;
    boost::to_string(a, text);
    benchmark::DoNotOptimize(text.data());
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_ToString16_Zel)->Arg(1000)->Arg(10000)->Arg(100000)->Complexity();
BENCHMARK(BM_ToString16_Boost)->Arg(1000)->Arg(10000)->Arg(100000)->Complexity();
BENCHMARK(BM_ToString2_Zel)->Arg(1000)->Arg(10000)->Arg(100000)->Complexity();
BENCHMARK(BM_ToString2_Boost)->Arg(1000)->Arg(10000)->Arg(100000)->Complexity();

}  // namespace
