// SPDX-License-Identifier: Apache-2.0
// Throughput of CZEL_Crc::Compute at each width, beside Boost.CRC's
// crc_optimal with the same parameters and zlib's crc32, on blocks of 1 KiB,
// 64 KiB and 16 MiB. The figures to compare are the bytes per second of one
// width and block size across the three.
//
// Then CRC-32 alone, beside crc_32_type and zlib: setting up an object and
// computing 64 bytes (the cost of a CRC made where it is needed); 16 bytes on
// an object that is ready (configured once and used before); and 64 KiB
// given in pieces of 4 KiB (Begin, Update, Finish; process_bytes; crc32_z
// chained). Compare the times per iteration across the three.

#include <LZEL_Core/values/CZEL_Crc.h>

#include <benchmark/benchmark.h>
#include <zlib.h>

#include <boost/crc.hpp>

#include <cstdint>
#include <vector>

namespace {

using ZEL::u16;
using ZEL::u32;
using ZEL::u64;
using ZEL::u8;

// One catalogue member per width, and its Boost twin: normal form at 8 and
// 64 bits, reflected at 16 and 32.
using Boost8 = boost::crc_optimal<8, 0x07, 0x00, 0x00, false, false>;        // Crc8
using Boost16 = boost::crc_optimal<16, 0x8005, 0xFFFF, 0x0000, true, true>;  // Crc16_Modbus
using Boost32 = boost::crc_optimal<32, 0x04C11DB7, 0xFFFFFFFF, 0xFFFFFFFF, true, true>;  // Crc32
using Boost64 = boost::crc_optimal<64, 0x42F0E1EBA9EA3693, 0, 0, false, false>;          // Crc64

std::vector<u8> Block(benchmark::State const& state) {
  std::vector<u8> data(static_cast<size_t>(state.range(0)));
  u32 x = 12345;
  for (u8& b : data) {
    x = x * 1103515245u + 12345u;
    b = u8(x >> 24);
  }
  return data;
}

void Done(benchmark::State& state) {
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * state.range(0));
}

template <typename T, CZEL_Crc::t_StdCrc kType>
void BM_Lzel(benchmark::State& state) {
  std::vector<u8> data = Block(state);
  CZEL_Crc const crc(kType);
  T value = 0;
  for (auto _ : state) {
    crc.Compute(data.data(), data.size(), &value, 0);
    benchmark::DoNotOptimize(value);
  }
  Done(state);
}

template <typename B>
void BM_Boost(benchmark::State& state) {
  std::vector<u8> data = Block(state);
  for (auto _ : state) {
    B crc;
    crc.process_bytes(data.data(), data.size());
    benchmark::DoNotOptimize(crc.checksum());
  }
  Done(state);
}

void BM_Zlib32(benchmark::State& state) {
  std::vector<u8> data = Block(state);
  for (auto _ : state) {
    benchmark::DoNotOptimize(crc32_z(crc32_z(0, nullptr, 0), data.data(), data.size()));
  }
  Done(state);
}

// Set-up and 64 bytes.
void BM_LzelSetUp64(benchmark::State& state) {
  std::vector<u8> data = Block(state);
  for (auto _ : state) {
    CZEL_Crc const crc(CZEL_Crc::Crc32);
    u32 value = 0;
    crc.Compute(data.data(), data.size(), &value, 0);
    benchmark::DoNotOptimize(value);
  }
  Done(state);
}

// 16 bytes on a ready object.
void BM_LzelReady16(benchmark::State& state) {
  std::vector<u8> data = Block(state);
  CZEL_Crc const crc(CZEL_Crc::Crc32);
  u32 value = 0;
  for (int i = 0; i < 1000; ++i) crc.Compute(data.data(), data.size(), &value, 0);
  for (auto _ : state) {
    crc.Compute(data.data(), data.size(), &value, 0);
    benchmark::DoNotOptimize(value);
  }
  Done(state);
}

constexpr size_t kPiece = 4096;

void BM_LzelPieces(benchmark::State& state) {
  std::vector<u8> data = Block(state);
  CZEL_Crc crc(CZEL_Crc::Crc32);
  for (auto _ : state) {
    crc.Begin();
    for (size_t at = 0; at < data.size(); at += kPiece) crc.Update(data.data() + at, kPiece);
    benchmark::DoNotOptimize(crc.Finish());
  }
  Done(state);
}

void BM_BoostPieces(benchmark::State& state) {
  std::vector<u8> data = Block(state);
  for (auto _ : state) {
    boost::crc_32_type crc;
    for (size_t at = 0; at < data.size(); at += kPiece) crc.process_bytes(data.data() + at, kPiece);
    benchmark::DoNotOptimize(crc.checksum());
  }
  Done(state);
}

void BM_ZlibPieces(benchmark::State& state) {
  std::vector<u8> data = Block(state);
  for (auto _ : state) {
    uLong crc = crc32_z(0, nullptr, 0);
    for (size_t at = 0; at < data.size(); at += kPiece)
      crc = crc32_z(crc, data.data() + at, kPiece);
    benchmark::DoNotOptimize(crc);
  }
  Done(state);
}

#define CRC_SIZES ->Arg(1 << 10)->Arg(64 << 10)->Arg(16 << 20)

BENCHMARK_TEMPLATE(BM_Lzel, u8, CZEL_Crc::Crc8) CRC_SIZES;
BENCHMARK_TEMPLATE(BM_Boost, Boost8) CRC_SIZES;
BENCHMARK_TEMPLATE(BM_Lzel, u16, CZEL_Crc::Crc16_Modbus) CRC_SIZES;
BENCHMARK_TEMPLATE(BM_Boost, Boost16) CRC_SIZES;
BENCHMARK_TEMPLATE(BM_Lzel, u32, CZEL_Crc::Crc32) CRC_SIZES;
BENCHMARK_TEMPLATE(BM_Boost, Boost32) CRC_SIZES;
BENCHMARK(BM_Zlib32) CRC_SIZES;
BENCHMARK_TEMPLATE(BM_Lzel, u64, CZEL_Crc::Crc64) CRC_SIZES;
BENCHMARK_TEMPLATE(BM_Boost, Boost64) CRC_SIZES;

BENCHMARK(BM_LzelSetUp64)->Arg(64);
BENCHMARK_TEMPLATE(BM_Boost, boost::crc_32_type)->Arg(64)->Arg(16);  // set-up is a register
BENCHMARK(BM_Zlib32)->Arg(64)->Arg(16);
BENCHMARK(BM_LzelReady16)->Arg(16);
BENCHMARK(BM_LzelPieces)->Arg(64 << 10);
BENCHMARK(BM_BoostPieces)->Arg(64 << 10);
BENCHMARK(BM_ZlibPieces)->Arg(64 << 10);

}  // namespace
