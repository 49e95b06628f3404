// SPDX-License-Identifier: Apache-2.0
// The containers against the standard containers doing the same work:
// walking a list with its cursor, creating a vector once and then writing its
// items, and growing a vector one item at a time (exact size, so every append
// reallocates: number items in place by realloc, class items moved over).

#include <LZEL_Core/containers/ZEL_Containers.h>

#include <benchmark/benchmark.h>

#include <cstdint>
#include <list>
#include <string>
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

// Appending one item at a time: the exact-size vector of numbers grows its
// block through realloc, the standard vector by doubling. The time per item
// at 1,000 and at 100,000 items shows whether the growth stays linear.
void BM_Int32VectorAppend(benchmark::State& state) {
  int const n = static_cast<int>(state.range(0));
  for (auto _ : state) {
    CZEL_Int32Vector v;
    for (int i = 0; i < n; ++i) v += i;
    benchmark::DoNotOptimize(v.GetBuf());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_Int32VectorAppend)->Arg(1000)->Arg(100000);

void BM_ByteVectorAppend(benchmark::State& state) {
  int const n = static_cast<int>(state.range(0));
  for (auto _ : state) {
    CZEL_Uint8Vector v;
    for (int i = 0; i < n; ++i) v += static_cast<ZEL::u8>(i);
    benchmark::DoNotOptimize(v.GetBuf());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_ByteVectorAppend)->Arg(1000)->Arg(100000);

void BM_StdVectorPushBack(benchmark::State& state) {
  int const n = static_cast<int>(state.range(0));
  for (auto _ : state) {
    std::vector<int> v;
    for (int i = 0; i < n; ++i) v.push_back(i);
    benchmark::DoNotOptimize(v.data());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_StdVectorPushBack)->Arg(1000)->Arg(100000);

// 20,000 short strings appended one by one: each append reallocates the whole
// string vector, so the cost lies in carrying the old items over (moves once
// the string's move assignment cannot throw, copies before).
void BM_StringVectorAppend(benchmark::State& state) {
  int const n = static_cast<int>(state.range(0));
  CZEL_String const item("item-1234");
  for (auto _ : state) {
    CZEL_StringVector v;
    for (int i = 0; i < n; ++i) v.AppendItem(item);
    benchmark::DoNotOptimize(v.GetBuf());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_StringVectorAppend)->Arg(20000)->Unit(benchmark::kMillisecond);

void BM_StdStringVectorPushBack(benchmark::State& state) {
  int const n = static_cast<int>(state.range(0));
  std::string const item("item-1234");
  for (auto _ : state) {
    std::vector<std::string> v;
    for (int i = 0; i < n; ++i) v.push_back(item);
    benchmark::DoNotOptimize(v.data());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_StdStringVectorPushBack)->Arg(20000)->Unit(benchmark::kMillisecond);

}  // namespace
