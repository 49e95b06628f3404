// The two fast paths of the containers against the standard containers doing
// the same work: walking a list with its cursor, and creating a vector once
// and then writing its items.

#include <LZEL_Core/containers/ZEL_Containers.h>

#include <benchmark/benchmark.h>

#include <cstdint>
#include <list>
#include <vector>

namespace {

// Walk: ToStart, then operator>> with 1 once per item, summing the items.
void BM_ListCursorWalk(benchmark::State& state) {
  ZEL::u32 const n = static_cast<ZEL::u32>(state.range(0));
  CZEL_List<int> list(n, 1);
  for (auto _ : state) {
    std::int64_t sum = 0;
    list.ToStart();
    for (ZEL::u32 i = 0; i < n; ++i) sum += list >> 1;
    benchmark::DoNotOptimize(sum);
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_ListCursorWalk)->RangeMultiplier(8)->Range(64, 1 << 18);

void BM_StdListWalk(benchmark::State& state) {
  std::list<int> list(static_cast<std::size_t>(state.range(0)), 1);
  for (auto _ : state) {
    std::int64_t sum = 0;
    for (int item : list) sum += item;
    benchmark::DoNotOptimize(sum);
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_StdListWalk)->RangeMultiplier(8)->Range(64, 1 << 18);

// Create-then-write: one exact allocation, then every item written through
// the array pointer. The standard vector value-initialises on construction.
void BM_VectorCreateThenWrite(benchmark::State& state) {
  ZEL::u32 const n = static_cast<ZEL::u32>(state.range(0));
  for (auto _ : state) {
    CZEL_Vector<int> v(n);
    int* items = v.GetBuf();
    for (ZEL::u32 i = 0; i < n; ++i) items[i] = static_cast<int>(i);
    benchmark::DoNotOptimize(items);
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_VectorCreateThenWrite)->RangeMultiplier(8)->Range(64, 1 << 18);

void BM_StdVectorSizeThenWrite(benchmark::State& state) {
  std::size_t const n = static_cast<std::size_t>(state.range(0));
  for (auto _ : state) {
    std::vector<int> v(n);
    int* items = v.data();
    for (std::size_t i = 0; i < n; ++i) items[i] = static_cast<int>(i);
    benchmark::DoNotOptimize(items);
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_StdVectorSizeThenWrite)->RangeMultiplier(8)->Range(64, 1 << 18);

}  // namespace
