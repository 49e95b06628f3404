// SPDX-License-Identifier: Apache-2.0
// The two file formats against plain standard code doing the same work:
// reading a whole CSV file into records with CZEL_CsvFile::ReadFile beside a
// std::getline loop that splits each line into a std::vector<std::string>,
// at 5 MB and 50 MB; and querying every pixel of a 4000 x 4000 24-bit bitmap
// with GetPixelColor beside a direct walk over the same pixel bytes.
//
// The files are written into a temporary directory of their own when a
// benchmark first needs them, and removed with it when the program ends.

#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/frame/ZEL_Primitives.h>
#include <LZEL_Core/io/CZEL_CsvFile.h>
#include <LZEL_Core/io/CZEL_File.h>
#include <LZEL_Core/io/CZEL_WinBitmapData.h>

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace {

constexpr ZEL::u32 kFields = 8;
constexpr char kSeparator = ',';
constexpr ZEL::u32 kSide = 4000;

// Appends `value` to `bytes`, least significant byte first.
void Put(std::string& bytes, std::uint32_t value, int width) {
  for (int i = 0; i < width; ++i) bytes += static_cast<char>((value >> (8 * i)) & 0xFF);
}

// A CSV file of about `megabytes` MB: records of 8 fields, words of mixed
// lengths (some empty) and numbers, the last field never empty, lines ended by
// CR LF.
std::string CsvText(std::size_t megabytes) {
  static char const* const kWords[] = {"alpha", "b", "gamma ray", "", "delta-epsilon", "zeta"};
  std::string text;
  std::uint32_t n = 12345;
  for (std::size_t line = 0; text.size() < megabytes * 1000000; ++line) {
    for (ZEL::u32 f = 0; f < kFields; ++f) {
      n = n * 1103515245u + 12345u;
      if (f % 2 == 0) {
        text += kWords[(n >> 16) % 6];
      } else {
        text += std::to_string(n % 100000);
      }
      text += f + 1 < kFields ? kSeparator : '\r';
    }
    text += '\n';
  }
  return text;
}

// A 24-bit bitmap file of 4000 x 4000 pixels, bottom-up, of made-up colours.
std::string BitmapBytes() {
  std::uint32_t const stride = kSide * 3;  // already a multiple of 4
  std::string b = "BM";
  Put(b, 54 + stride * kSide, 4);
  Put(b, 0, 4);
  Put(b, 54, 4);
  for (std::uint32_t field : {40u, kSide, kSide}) Put(b, field, 4);
  Put(b, 1, 2);
  Put(b, 24, 2);
  for (std::uint32_t field : {0u, stride * kSide, 2835u, 2835u, 0u, 0u}) Put(b, field, 4);
  b.reserve(b.size() + std::size_t{stride} * kSide);
  for (std::uint32_t i = 0; i < stride * kSide; ++i) b += static_cast<char>(i * 7 + (i >> 12));
  return b;
}

// The temporary directory and the files in it, each written on first use.
class Files {
 public:
  static Files& Get() {
    static Files files;
    return files;
  }
  Files(Files const&) = delete;
  Files& operator=(Files const&) = delete;
  ~Files() {
    std::error_code ignored;
    std::filesystem::remove_all(m_Dir, ignored);
  }

  std::string Csv(std::size_t megabytes) {
    return Make("data" + std::to_string(megabytes) + ".csv", [&] { return CsvText(megabytes); });
  }
  std::string Bitmap() { return Make("image.bmp", BitmapBytes); }

 private:
  Files() {
    std::string pattern = (std::filesystem::temp_directory_path() / "zel_bench_XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) std::abort();
    m_Dir = pattern;
  }

  template <typename Content>
  std::string Make(std::string const& name, Content content) {
    std::string const path = (m_Dir / name).string();
    if (m_Made.count(name) == 0) {
      std::string const bytes = content();
      std::ofstream(path, std::ios::binary).write(bytes.data(), std::streamsize(bytes.size()));
      m_Made[name] = bytes.size();
    }
    return path;
  }

  std::filesystem::path m_Dir;
  std::map<std::string, std::size_t> m_Made;
};

// One reading of the whole file with ReadFile; false if it failed.
bool ReadWithCsvFile(std::string const& path) {
  CZEL_CsvFile csv(kFields, kSeparator, CZEL_File::LINE_END_CR | CZEL_File::LINE_END_LF);
  ZEL::u32 count = 0;
  CZEL_StringVector* records = csv.ReadFile(CZEL_String(path.c_str()), count);
  benchmark::DoNotOptimize(records);
  delete[] records;
  return records != nullptr;
}

// The same records the plain way: one std::getline per line, the carriage
// return dropped, the line split into fields with std::getline as well.
bool ReadWithGetline(std::string const& path) {
  std::ifstream in(path, std::ios::binary);
  std::vector<std::vector<std::string>> records;
  std::string line;
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    std::vector<std::string> fields;
    std::istringstream split(line);
    for (std::string field; std::getline(split, field, kSeparator);) fields.push_back(field);
    records.push_back(std::move(fields));
  }
  benchmark::DoNotOptimize(records.data());
  return !records.empty();
}

// Reads the CSV file of state.range(0) MB with `read`. One untimed reading
// first, so that the heap the records need has been paged in before the
// clock runs: a single timed reading of 50 MB would otherwise pay for
// hundreds of megabytes of first-touch page faults that later readings don't.
void ReadCsv(benchmark::State& state, bool (*read)(std::string const&)) {
  std::string const path = Files::Get().Csv(std::size_t(state.range(0)));
  if (!read(path)) state.SkipWithError("reading failed");
  for (auto _ : state) read(path);
  state.SetBytesProcessed(state.iterations() * std::int64_t(std::filesystem::file_size(path)));
}

void BM_CsvReadFile(benchmark::State& state) { ReadCsv(state, ReadWithCsvFile); }
BENCHMARK(BM_CsvReadFile)->Arg(5)->Arg(50)->Unit(benchmark::kMillisecond);

void BM_GetlineSplit(benchmark::State& state) { ReadCsv(state, ReadWithGetline); }
BENCHMARK(BM_GetlineSplit)->Arg(5)->Arg(50)->Unit(benchmark::kMillisecond);

void BM_BitmapPixelQueries(benchmark::State& state) {
  CZEL_WinBitmapData bitmap;
  if (bitmap.LoadFromFile(CZEL_String(Files::Get().Bitmap().c_str())) != ZEL_ERR_NONE) {
    state.SkipWithError("LoadFromFile failed");
    return;
  }
  for (auto _ : state) {
    std::uint64_t sum = 0;
    ZEL::t_WinRgbQuad color{};
    for (ZEL::u32 y = 0; y < kSide; ++y) {
      for (ZEL::u32 x = 0; x < kSide; ++x) {
        bitmap.GetPixelColor(x, y, color);
        sum += color.red + color.green + color.blue;
      }
    }
    benchmark::DoNotOptimize(sum);
  }
  state.SetItemsProcessed(state.iterations() * std::int64_t{kSide} * kSide);
}
BENCHMARK(BM_BitmapPixelQueries)->Unit(benchmark::kMillisecond);

// The same pixels read straight from the file's bytes, row by row from the
// top, each row found bottom-up as the file stores it.
void BM_BitmapDirectWalk(benchmark::State& state) {
  std::ifstream in(Files::Get().Bitmap(), std::ios::binary);
  std::vector<unsigned char> const file((std::istreambuf_iterator<char>(in)),
                                        std::istreambuf_iterator<char>());
  unsigned char const* const pixels = file.data() + 54;
  std::size_t const stride = std::size_t{kSide} * 3;
  for (auto _ : state) {
    std::uint64_t sum = 0;
    for (std::size_t y = 0; y < kSide; ++y) {
      unsigned char const* row = pixels + (kSide - 1 - y) * stride;
      for (std::size_t x = 0; x < kSide; ++x) {
        unsigned char const* p = row + x * 3;
        ZEL::t_WinRgbQuad const color{p[2], p[1], p[0], 0};
        sum += color.red + color.green + color.blue;
      }
    }
    benchmark::DoNotOptimize(sum);
  }
  state.SetItemsProcessed(state.iterations() * std::int64_t{kSide} * kSide);
}
BENCHMARK(BM_BitmapDirectWalk)->Unit(benchmark::kMillisecond);

}  // namespace
