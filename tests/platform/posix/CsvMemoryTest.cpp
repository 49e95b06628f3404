// SPDX-License-Identifier: Apache-2.0
// What CZEL_CsvFile::ReadFile allocates, counted by this program's own global
// operator new and delete, through which the library allocates too.

#include <LZEL_Core/io/CZEL_CsvFile.h>

#include <malloc.h>

#include <cstdlib>
#include <new>

#include "io/IoTestSupport.h"

namespace {
std::size_t g_Live = 0, g_Peak = 0;
}  // namespace

void* operator new(std::size_t size) {
  void* block = std::malloc(size == 0 ? 1 : size);
  if (block == nullptr) throw std::bad_alloc();
  g_Live += malloc_usable_size(block);
  g_Peak = g_Live > g_Peak ? g_Live : g_Peak;
  return block;
}
void operator delete(void* block) noexcept {
  if (block != nullptr) g_Live -= malloc_usable_size(block);
  std::free(block);
}
void operator delete(void* block, std::size_t /*size*/) noexcept { operator delete(block); }

namespace zel_test {
namespace {

// A bad line near the start of 4 MB of line feeds stops the reading before
// the rest costs anything; 100000 good records cost about what they hold.
TEST_F(TempDirTest, CsvReadingCostFollowsTheRecordsKept) {
  std::string good;
  for (int i = 0; i < 100000; ++i) good += std::to_string(i) + ";x\n";
  std::string const feeds(4u << 20, '\n');
  struct {
    std::string text;
    ZEL::u32 count;
    std::size_t bound;
  } const cases[] = {{feeds, 1, 256u << 10},
                     {"a;b\nc\n" + feeds, 2, 256u << 10},
                     {good, 100000, 100000 * 2 * (sizeof(CZEL_StringVector) + 80)}};
  for (auto const& c : cases) {
    Spit("f.csv", c.text);
    CZEL_CsvFile csv(2, ';', F::LINE_END_LF);
    CZEL_String const path = Z("f.csv");
    ZEL::u32 count = 0;
    g_Peak = g_Live;
    std::size_t const before = g_Live;
    delete[] csv.ReadFile(path, count);
    EXPECT_LT(g_Peak - before, c.bound) << c.count;
    EXPECT_EQ(count, c.count);
  }
}

}  // namespace
}  // namespace zel_test
