// SPDX-License-Identifier: Apache-2.0
// The Windows platform: full paths in the system's rules, `\` as the
// separator, `/` taken as one, a drive letter in front; and the NUL device,
// which takes every write (Windows has no device that refuses them).

#include "io/IoTestSupport.h"

#include <windows.h>  // after the library, whose CopyFile and DeleteFile it would rename

using namespace std::string_literals;
using namespace zel_test;

namespace {

constexpr ZEL::u32 kW = F::FILE_OPEN_WRITE;

TEST(WindowsFiles, TheNulDeviceTakesEveryWrite) {
  F f;
  char got[8] = {};
  ASSERT_EQ(f.Open("NUL", kW), 0u);
  EXPECT_EQ((Codes{f.Write(got, 3, 0), f.Flush(), f.WriteText("abc")}), Codes(3, 0));
}

// Full path, then directory part and name; relative paths hang from the
// current directory, a rooted one from the current drive.
TEST(WindowsPaths, TheSystemsLookupAndACutBehindTheLastBackslash) {
  for (auto const& row :
       {Lines{"C:\\a\\.\\b\\..\\c.txt", "C:\\a\\", "c.txt"}, Lines{"C:/a//b/", "C:\\a\\b\\", ""},
        Lines{"c:\\a\\b\\..", "c:\\", "a"}, Lines{"D:\\..\\..", "D:\\", ""},
        Lines{"\\\\server\\share\\x", "\\\\server\\share\\", "x"}}) {
    CZEL_String const p(row[0].c_str());
    EXPECT_EQ(Text(F::GetFullPathFromPath(p)) + Text(F::GetPathFromPath(p)) + "|" +
                  Text(F::GetNameFromPath(p)),
              row[1] + row[2] + row[1] + "|" + row[2]);
  }
  char cwd[MAX_PATH];
  ASSERT_NE(GetCurrentDirectoryA(MAX_PATH, cwd), 0u);
  std::string const here(cwd);
  std::string const dir = here.back() == '\\' ? here : here + "\\";
  EXPECT_EQ(Text(F::GetFullPathFromPath("x/../y")), dir + "y");
  EXPECT_EQ(Text(F::GetFullPathFromPath("\\top")), here.substr(0, 2) + "\\top");
  EXPECT_EQ(Text(F::GetNameFromPath("a/b.txt")) + "|" + Text(F::GetPathFromPath("a/b.txt")),
            "b.txt|" + dir + "a\\");
}

}  // namespace
