// What CZEL_CsvFile::ReadFile allocates, counted by replacing the global
// operator new and delete of this program: the library's allocations come
// through them too. A bad line near the start of a long file must stop the
// reading before the rest costs anything, and a good file costs about what
// its records hold.

#include <LZEL_Core/io/CZEL_CsvFile.h>

#include <gtest/gtest.h>

#include <malloc.h>

#include <cstdlib>
#include <new>
#include <string>

#include "IoTestSupport.h"

namespace {

std::size_t g_Live = 0;
std::size_t g_Peak = 0;

}  // namespace

// Counts by the allocator's own size of each block, so that delete knows
// what goes.
void* operator new(std::size_t size) {
  void* block = std::malloc(size == 0 ? 1 : size);
  if (block == nullptr) throw std::bad_alloc();
  g_Live += malloc_usable_size(block);
  if (g_Live > g_Peak) g_Peak = g_Live;
  return block;
}

void operator delete(void* block) noexcept {
  if (block != nullptr) g_Live -= malloc_usable_size(block);
  std::free(block);
}

void operator delete(void* block, std::size_t /*size*/) noexcept { operator delete(block); }

namespace zel_test {
namespace {

class CsvMemoryTest : public TempDirTest {
 protected:
  // The peak of the bytes allocated and not yet released while the records of
  // the file `name` are read and released, beyond what lived before.
  std::size_t PeakOfReading(std::string const& name, ZEL::u32& count) {
    CZEL_CsvFile csv(2, ';', F::LINE_END_LF);
    CZEL_String const path = Z(name);
    std::size_t const before = g_Live;
    g_Peak = before;
    delete[] csv.ReadFile(path, count);
    return g_Peak - before;
  }
};

TEST_F(CsvMemoryTest, CostFollowsTheRecordsKept) {
  constexpr std::size_t kFeeds = 4u << 20;
  struct Case {
    std::string head;
    ZEL::u32 count;
    std::size_t bound;
  } const cases[] = {
      {"", 1, 256u << 10},                // an empty first line
      {"a;b\nc\n", 2, 256u << 10},        // a line of one field
      {"a;b\nc;d\n;e\n", 4, 256u << 10},  // the empty line behind them
  };
  for (Case const& c : cases) {
    Spit("feeds.csv", c.head + std::string(kFeeds, '\n'));
    ZEL::u32 count = 0;
    EXPECT_LT(PeakOfReading("feeds.csv", count), c.bound) << c.head;
    EXPECT_EQ(count, c.count) << c.head;
  }
  // A good file of 100000 records of two short fields.
  std::string good;
  for (int i = 0; i < 100000; ++i) good += std::to_string(i) + ";x\n";
  Spit("good.csv", good);
  ZEL::u32 count = 0;
  std::size_t const peak = PeakOfReading("good.csv", count);
  EXPECT_EQ(count, 100000u);
  // The records alone: each a vector of two strings, each string with its
  // own buffer; the waiting lines may add as much again.
  EXPECT_LT(peak, 100000u * (sizeof(CZEL_StringVector) + 2 * sizeof(CZEL_String) + 64) * 2);
}

}  // namespace
}  // namespace zel_test
