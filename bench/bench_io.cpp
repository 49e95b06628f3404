// SPDX-License-Identifier: Apache-2.0
// The stream classes beside what an application would write by hand:
//   - 64 MiB of mixed typed values through CZEL_FileBuffer (blocks of 4 KiB
//     and 64 KiB), written and read, beside one fwrite or fread per value;
//   - 8-byte values alone through CZEL_FileBuffer in 64 KiB blocks, beside
//     one fwrite or fread per value;
//   - the same bytes handed to AppendData in 64 KiB pieces, beside one bulk
//     fwrite of them all, and beside one fwrite and fflush per piece, which
//     is what CZEL_File::Write with flush costs for each full block;
//   - typed values into CZEL_MemoryBuffer beside appends to a
//     std::vector<uint8_t>;
//   - lines of a 100 MB text file through both CZEL_File::ReadTextLine forms
//     beside std::getline.
// Files live in a directory of their own under TMPDIR, removed at the end.

#include <LZEL_Core/io/CZEL_File.h>
#include <LZEL_Core/io/CZEL_FileBuffer.h>
#include <LZEL_Core/io/CZEL_MemoryBuffer.h>
#include <LZEL_Core/text/CZEL_String.h>

#include <benchmark/benchmark.h>

#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

namespace {

constexpr std::uint64_t kTypedBytes = 64ull << 20;
constexpr std::uint64_t kTextBytes = 100ull * 1000 * 1000;
constexpr std::uint32_t kPiece = 64u << 10;

// One record of mixed values: 1 + 2 + 4 + 8 + 4 + 8 + 4 = 31 bytes.
constexpr std::uint64_t kRecordBytes = 31;
constexpr std::uint64_t kRecords = kTypedBytes / kRecordBytes;

// The scratch directory, made at the first use and removed at exit.
std::string const& Dir() {
  static std::string const dir = [] {
    std::string pattern = (std::getenv("TMPDIR") ? std::getenv("TMPDIR") : "/tmp");
    pattern += "/bench_io_XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr) std::abort();
    return pattern;
  }();
  // Registered once the path is made, so that it runs before the path goes.
  static int const removal = std::atexit([] {
    std::string const command = "rm -rf '" + Dir() + "'";
    if (std::system(command.c_str()) != 0) std::perror("rm");
  });
  (void)removal;
  return dir;
}
std::string PathOf(char const* name) { return Dir() + "/" + name; }

template <typename Out>
void WriteRecord(Out& out, std::uint64_t i) {
  out << static_cast<ZEL::u8>(i);
  out << static_cast<short>(i);
  out << static_cast<int>(i);
  out << static_cast<ZEL::i64>(i);
  out << static_cast<float>(i);
  out << static_cast<double>(i);
  out << static_cast<ZEL::u32>(i);
}

template <typename In>
std::uint64_t ReadRecord(In& in) {
  ZEL::u8 a;
  short b;
  int c;
  ZEL::i64 d;
  float e;
  double f;
  ZEL::u32 g;
  in >> a;
  in >> b;
  in >> c;
  in >> d;
  in >> e;
  in >> f;
  in >> g;
  return a + b + c + d + static_cast<std::uint64_t>(e + f) + g;
}

// Per-value stdio: the little-endian bytes of each value, one fwrite or
// fread each (the host is little-endian, so the bytes are the value's own).
struct StdioOut {
  std::FILE* f;
  template <typename V>
  StdioOut& operator<<(V v) {
    std::fwrite(&v, sizeof v, 1, f);
    return *this;
  }
};
struct StdioIn {
  std::FILE* f;
  template <typename V>
  StdioIn& operator>>(V& v) {
    if (std::fread(&v, sizeof v, 1, f) != 1) std::abort();
    return *this;
  }
};

// A std::vector<uint8_t> that takes each value's bytes at its end.
struct VectorOut {
  std::vector<std::uint8_t> bytes;
  template <typename V>
  VectorOut& operator<<(V v) {
    std::uint8_t packed[sizeof v];
    std::memcpy(packed, &v, sizeof v);
    bytes.insert(bytes.end(), packed, packed + sizeof v);
    return *this;
  }
};

void Typed(benchmark::State& state, std::int64_t items) {
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(kRecords * kRecordBytes));
  state.SetItemsProcessed(state.iterations() * items);
}

// ---------------------------------------------------------------------------
// Typed values through a file
// ---------------------------------------------------------------------------

void BM_FileBufferWrite(benchmark::State& state) {
  for (auto _ : state) {
    CZEL_File file;
    file.Open(PathOf("typed.bin").c_str(),
              CZEL_File::FILE_OPEN_WRITE | CZEL_File::FILE_OPEN_TRUNCATE);
    CZEL_FileBuffer out(static_cast<ZEL::u32>(state.range(0)));
    out.AttachFile(&file, CZEL_Buffer::ACCESS_WRITE);
    for (std::uint64_t i = 0; i < kRecords; ++i) WriteRecord(out, i);
    out.Close();
    file.Close();
  }
  Typed(state, static_cast<std::int64_t>(kRecords * 7));
}
BENCHMARK(BM_FileBufferWrite)->Arg(4 << 10)->Arg(64 << 10)->Unit(benchmark::kMillisecond);

void BM_StdioPerValueWrite(benchmark::State& state) {
  for (auto _ : state) {
    StdioOut out{std::fopen(PathOf("typed.bin").c_str(), "wb")};
    for (std::uint64_t i = 0; i < kRecords; ++i) WriteRecord(out, i);
    std::fclose(out.f);
  }
  Typed(state, static_cast<std::int64_t>(kRecords * 7));
}
BENCHMARK(BM_StdioPerValueWrite)->Unit(benchmark::kMillisecond);

// The file of typed values that the readers read, written once.
std::string const& TypedFile() {
  static std::string const path = [] {
    std::string const p = PathOf("typed_in.bin");
    CZEL_File file;
    file.Open(p.c_str(), CZEL_File::FILE_OPEN_WRITE | CZEL_File::FILE_OPEN_TRUNCATE);
    CZEL_FileBuffer out(kPiece);
    out.AttachFile(&file, CZEL_Buffer::ACCESS_WRITE);
    for (std::uint64_t i = 0; i < kRecords; ++i) WriteRecord(out, i);
    out.Close();
    return p;
  }();
  return path;
}

void BM_FileBufferRead(benchmark::State& state) {
  std::string const& path = TypedFile();
  std::uint64_t sum = 0;
  for (auto _ : state) {
    CZEL_File file;
    file.Open(path.c_str(), CZEL_File::FILE_OPEN_READ);
    CZEL_FileBuffer in(static_cast<ZEL::u32>(state.range(0)));
    in.AttachFile(&file, CZEL_Buffer::ACCESS_READ);
    for (std::uint64_t i = 0; i < kRecords; ++i) sum += ReadRecord(in);
    in.Close();
  }
  benchmark::DoNotOptimize(sum);
  Typed(state, static_cast<std::int64_t>(kRecords * 7));
}
BENCHMARK(BM_FileBufferRead)->Arg(4 << 10)->Arg(64 << 10)->Unit(benchmark::kMillisecond);

void BM_StdioPerValueRead(benchmark::State& state) {
  std::string const& path = TypedFile();
  std::uint64_t sum = 0;
  for (auto _ : state) {
    StdioIn in{std::fopen(path.c_str(), "rb")};
    for (std::uint64_t i = 0; i < kRecords; ++i) sum += ReadRecord(in);
    std::fclose(in.f);
  }
  benchmark::DoNotOptimize(sum);
  Typed(state, static_cast<std::int64_t>(kRecords * 7));
}
BENCHMARK(BM_StdioPerValueRead)->Unit(benchmark::kMillisecond);

// ---------------------------------------------------------------------------
// 8-byte values alone, blocks of 64 KiB
// ---------------------------------------------------------------------------

constexpr std::uint64_t kWords = kTypedBytes / 8;

void Words(benchmark::State& state) {
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(kWords * 8));
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kWords));
}

void BM_FileBufferWriteI64(benchmark::State& state) {
  for (auto _ : state) {
    CZEL_File file;
    file.Open(PathOf("words.bin").c_str(),
              CZEL_File::FILE_OPEN_WRITE | CZEL_File::FILE_OPEN_TRUNCATE);
    CZEL_FileBuffer out(kPiece);
    out.AttachFile(&file, CZEL_Buffer::ACCESS_WRITE);
    for (std::uint64_t i = 0; i < kWords; ++i) out << static_cast<ZEL::i64>(i);
    out.Close();
    file.Close();
  }
  Words(state);
}
BENCHMARK(BM_FileBufferWriteI64)->Unit(benchmark::kMillisecond);

void BM_StdioPerValueWriteI64(benchmark::State& state) {
  for (auto _ : state) {
    StdioOut out{std::fopen(PathOf("words.bin").c_str(), "wb")};
    for (std::uint64_t i = 0; i < kWords; ++i) out << static_cast<ZEL::i64>(i);
    std::fclose(out.f);
  }
  Words(state);
}
BENCHMARK(BM_StdioPerValueWriteI64)->Unit(benchmark::kMillisecond);

void BM_FileBufferReadI64(benchmark::State& state) {
  std::string const& path = TypedFile();  // 64 MiB less a few bytes: read kWords - 1
  std::uint64_t sum = 0;
  for (auto _ : state) {
    CZEL_File file;
    file.Open(path.c_str(), CZEL_File::FILE_OPEN_READ);
    CZEL_FileBuffer in(kPiece);
    in.AttachFile(&file, CZEL_Buffer::ACCESS_READ);
    ZEL::i64 value;
    for (std::uint64_t i = 1; i < kWords; ++i) {
      in >> value;
      sum += static_cast<std::uint64_t>(value);
    }
    in.Close();
  }
  benchmark::DoNotOptimize(sum);
  Words(state);
}
BENCHMARK(BM_FileBufferReadI64)->Unit(benchmark::kMillisecond);

void BM_StdioPerValueReadI64(benchmark::State& state) {
  std::string const& path = TypedFile();
  std::uint64_t sum = 0;
  for (auto _ : state) {
    StdioIn in{std::fopen(path.c_str(), "rb")};
    ZEL::i64 value;
    for (std::uint64_t i = 1; i < kWords; ++i) {
      in >> value;
      sum += static_cast<std::uint64_t>(value);
    }
    std::fclose(in.f);
  }
  benchmark::DoNotOptimize(sum);
  Words(state);
}
BENCHMARK(BM_StdioPerValueReadI64)->Unit(benchmark::kMillisecond);

// ---------------------------------------------------------------------------
// Bulk data
// ---------------------------------------------------------------------------

std::vector<std::uint8_t> const& BulkData() {
  static std::vector<std::uint8_t> const data = [] {
    std::vector<std::uint8_t> d(kTypedBytes);
    for (std::size_t i = 0; i < d.size(); ++i) d[i] = static_cast<std::uint8_t>(i * 131);
    return d;
  }();
  return data;
}

void BM_FileBufferAppend64KiB(benchmark::State& state) {
  auto& data = const_cast<std::vector<std::uint8_t>&>(BulkData());
  for (auto _ : state) {
    CZEL_File file;
    file.Open(PathOf("bulk.bin").c_str(),
              CZEL_File::FILE_OPEN_WRITE | CZEL_File::FILE_OPEN_TRUNCATE);
    CZEL_FileBuffer out(kPiece);
    out.AttachFile(&file, CZEL_Buffer::ACCESS_WRITE);
    for (std::size_t at = 0; at < data.size(); at += kPiece) out.AppendData(&data[at], kPiece);
    out.Close();
    file.Close();
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(data.size()));
}
BENCHMARK(BM_FileBufferAppend64KiB)->Unit(benchmark::kMillisecond);

void BM_StdioBulkWrite(benchmark::State& state) {
  auto const& data = BulkData();
  for (auto _ : state) {
    std::FILE* f = std::fopen(PathOf("bulk.bin").c_str(), "wb");
    std::fwrite(data.data(), 1, data.size(), f);
    std::fclose(f);
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(data.size()));
}
BENCHMARK(BM_StdioBulkWrite)->Unit(benchmark::kMillisecond);

// The file side of AppendData alone: each 64 KiB piece through one fwrite
// and one fflush, as CZEL_File::Write with flush does for every full block.
void BM_StdioPieceFlushWrite(benchmark::State& state) {
  auto const& data = BulkData();
  for (auto _ : state) {
    std::FILE* f = std::fopen(PathOf("bulk.bin").c_str(), "wb");
    for (std::size_t at = 0; at < data.size(); at += kPiece) {
      std::fwrite(&data[at], 1, kPiece, f);
      std::fflush(f);
    }
    std::fclose(f);
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(data.size()));
}
BENCHMARK(BM_StdioPieceFlushWrite)->Unit(benchmark::kMillisecond);

// ---------------------------------------------------------------------------
// Typed values in memory
// ---------------------------------------------------------------------------

void BM_MemoryBufferWrite(benchmark::State& state) {
  for (auto _ : state) {
    CZEL_MemoryBuffer out(static_cast<ZEL::u32>(state.range(0)));
    for (std::uint64_t i = 0; i < kRecords; ++i) WriteRecord(out, i);
    benchmark::DoNotOptimize(out.GetSize());
  }
  Typed(state, static_cast<std::int64_t>(kRecords * 7));
}
BENCHMARK(BM_MemoryBufferWrite)->Arg(4 << 10)->Arg(64 << 10)->Unit(benchmark::kMillisecond);

void BM_VectorAppend(benchmark::State& state) {
  for (auto _ : state) {
    VectorOut out;
    for (std::uint64_t i = 0; i < kRecords; ++i) WriteRecord(out, i);
    benchmark::DoNotOptimize(out.bytes.data());
  }
  Typed(state, static_cast<std::int64_t>(kRecords * 7));
}
BENCHMARK(BM_VectorAppend)->Unit(benchmark::kMillisecond);

// ---------------------------------------------------------------------------
// Text lines
// ---------------------------------------------------------------------------

// 100 MB of lines of 0 to 120 characters, with LF and now and then CR LF.
std::string const& TextFile() {
  static std::string const path = [] {
    std::string const p = PathOf("lines.txt");
    std::FILE* f = std::fopen(p.c_str(), "wb");
    std::string line;
    std::uint64_t written = 0;
    for (std::uint32_t n = 0; written < kTextBytes; ++n) {
      line.assign((n * 37) % 121, static_cast<char>('a' + n % 26));
      line += n % 7 == 0 ? "\r\n" : "\n";
      std::fwrite(line.data(), 1, line.size(), f);
      written += line.size();
    }
    std::fclose(f);
    return p;
  }();
  return path;
}

void Lines(benchmark::State& state, std::int64_t lines) {
  state.counters["lines/s"] =
      benchmark::Counter(static_cast<double>(lines), benchmark::Counter::kIsRate);
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(kTextBytes));
}

void BM_ReadTextLineArray(benchmark::State& state) {
  std::int64_t lines = 0;
  char buf[257];
  std::string const& path = TextFile();  // made before the timing starts
  for (auto _ : state) {
    CZEL_File file;
    file.Open(path.c_str(), CZEL_File::FILE_OPEN_READ);
    while (file.ReadTextLine(buf, 256) == 0) ++lines;
  }
  Lines(state, lines);
}
BENCHMARK(BM_ReadTextLineArray)->Unit(benchmark::kMillisecond);

void BM_ReadTextLineString(benchmark::State& state) {
  std::int64_t lines = 0;
  CZEL_String line;
  std::string const& path = TextFile();  // made before the timing starts
  for (auto _ : state) {
    CZEL_File file;
    file.Open(path.c_str(), CZEL_File::FILE_OPEN_READ);
    while (file.ReadTextLine(line) == 0) ++lines;
  }
  Lines(state, lines);
}
BENCHMARK(BM_ReadTextLineString)->Unit(benchmark::kMillisecond);

void BM_StdGetline(benchmark::State& state) {
  std::int64_t lines = 0;
  std::string line;
  std::string const& path = TextFile();  // made before the timing starts
  for (auto _ : state) {
    std::ifstream in(path, std::ios::binary);
    while (std::getline(in, line)) ++lines;
  }
  Lines(state, lines);
}
BENCHMARK(BM_StdGetline)->Unit(benchmark::kMillisecond);

}  // namespace
