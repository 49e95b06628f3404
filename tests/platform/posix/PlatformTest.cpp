// SPDX-License-Identifier: Apache-2.0
// The POSIX platform: full paths made lexically with `/`, and /dev/full,
// which takes buffered bytes and refuses them at the flush.

#include <unistd.h>

#include "io/IoTestSupport.h"

using namespace std::string_literals;
using namespace zel_test;

namespace {

constexpr ZEL::u32 kW = F::FILE_OPEN_WRITE;

class PosixFileTest : public TempDirTest {};

TEST_F(PosixFileTest, AWriteToAFullDeviceFailsAtTheFlush) {
  if (access("/dev/full", W_OK) != 0) GTEST_SKIP() << "no /dev/full";
  F f;
  char got[8] = {};
  std::string const big(1 << 20, 'y');
  ASSERT_EQ(f.Open("/dev/full", kW), 0u);
  EXPECT_EQ((Codes{f.Write(got, 3, 0), f.Flush(), f.Write(got, 3, 1), f.WriteText(big.c_str())}),
            (Codes{0, ZEL_ERR_FILE_NOT_OPEN, 0, ZEL_ERR_IO}));  // the failed flush is dropped
  Spit("src", big);
  EXPECT_EQ(F::CopyFile("/dev/full", Z("src"), 1 << 16), ZEL_ERR_IO);
}

// Full path, then directory part and name: `.` and `..` folded, runs of `/`
// joined, nothing above the root; relative paths hang from the current
// directory.
TEST(PosixPaths, FoldedLexicallyAndCutBehindTheLastSlash) {
  for (auto const& row : {Lines{"/a/./b/../c.txt", "/a/", "c.txt"}, Lines{"//a///b/", "/a/b/", ""},
                          Lines{"/a/b/..", "/", "a"}, Lines{"/../..", "/", ""}}) {
    CZEL_String const p(row[0].c_str());
    EXPECT_EQ(Text(F::GetFullPathFromPath(p)) + Text(F::GetPathFromPath(p)) + "|" +
                  Text(F::GetNameFromPath(p)),
              row[1] + row[2] + row[1] + "|" + row[2]);
  }
  char cwd[4096];
  ASSERT_NE(getcwd(cwd, sizeof cwd), nullptr);
  EXPECT_EQ(Text(F::GetFullPathFromPath("x/../y")), (cwd == "/"s ? "" : cwd) + "/y"s);
}

}  // namespace
