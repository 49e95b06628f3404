#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/io/CZEL_File.h>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <string>
#include <vector>

#include "IoTestSupport.h"

using namespace std::string_literals;
using zel_test::Slurp;
using zel_test::Spit;
using zel_test::Text;

namespace {

using F = CZEL_File;
constexpr ZEL::u32 kW = F::FILE_OPEN_WRITE, kR = F::FILE_OPEN_READ, kT = F::FILE_OPEN_TRUNCATE;

class FileTest : public zel_test::TempDirTest {};

// Each flag combination on a missing and on an existing file "abc": whether
// it opens, and the content after going to the start and writing "XY".
TEST_F(FileTest, ModeTable) {
  struct Row {
    ZEL::u32 flags;
    bool opensMissing, opensExisting;
    std::string after;
  } const rows[] = {{kW | kR | kT, true, true, "XY"},  {kW | kR, false, true, "XYc"},
                    {kW | kT, true, true, "XY"},       {kW, true, true, "abcXY"},
                    {kR | kT | 8, false, true, "abc"}, {0, false, false, "abc"},
                    {kT, false, false, "abc"}};
  for (auto const& row : rows) {
    F f;
    EXPECT_EQ(f.Open(Z("missing"), row.flags), row.opensMissing ? 0u : ZEL_ERR_OPEN_FAILED);
    f.Close();
    std::remove(PathOf("missing").c_str());
    Spit(PathOf("f"), "abc");
    EXPECT_EQ(f.Open(Z("f"), row.flags), row.opensExisting ? 0u : ZEL_ERR_OPEN_FAILED);
    EXPECT_EQ(f.GetOpenFlags(), row.opensExisting ? row.flags : 0u);
    char xy[] = "XY";
    f.Write(xy, 2, 1);
    f.Close();
    EXPECT_EQ(Slurp(PathOf("f")), row.after) << row.flags;
  }
}

TEST_F(FileTest, OpenCloseAndClosedFile) {
  F f;
  char byte = 0;
  for (ZEL::u32 result :
       {f.Read(&byte, 1), f.Write(&byte, 1, 1), f.Flush(), f.To(0, 3), f.ToStart(), f.ToEnd()}) {
    EXPECT_EQ(result, ZEL_ERR_FILE_NOT_OPEN);  // closed is tested before the origin
  }
  EXPECT_EQ(f.GetPos() + f.GetLength(), 0u);
  EXPECT_EQ(f.IsEOF(), 1);
  Spit(PathOf("f"), "");
  ASSERT_EQ(f.Open(Z("f"), kR), 0u);
  EXPECT_EQ(f.IsEOF(), 1);
  // A failed open leaves the earlier stream, flags and path in place.
  EXPECT_EQ(f.Open(m_Dir.c_str(), kW), ZEL_ERR_OPEN_FAILED);
  EXPECT_EQ(f.IsOpen(), 1);
  EXPECT_EQ(f.GetOpenFlags(), kR);
  f.Close();
  EXPECT_EQ(f.GetOpenFlags(), 0u);
  EXPECT_EQ(Text(f.GetFullPath()), PathOf("f"));  // the path outlives the stream
  F copy;
  copy = f;  // a closed file copies safely
  EXPECT_EQ(Text(copy.GetName()), "f");
}

TEST_F(FileTest, TransfersAndPositions) {
  F f;
  ASSERT_EQ(f.Open(Z("f"), kW | kR | kT), 0u);
  char data[] = "0123456789";
  EXPECT_EQ(f.Write(data, 10, 0), 0u);
  EXPECT_EQ(f.GetLength(), 10u);  // pending bytes count, and the position stays
  EXPECT_EQ(f.GetPos(), 10u);
  f.To(3, F::FILE_FROM_START);
  f.To(2, F::FILE_FROM_CURRENT);
  EXPECT_EQ(f.GetPos(), 5u);
  EXPECT_EQ(f.To(static_cast<ZEL::u64>(-4), F::FILE_FROM_END), 0u);  // signed offset
  EXPECT_EQ(f.GetPos(), 6u);
  EXPECT_EQ(f.To(0, 3), ZEL_ERR_INVALID_ARGUMENT);
  EXPECT_EQ(f.To(static_cast<ZEL::u64>(-100), F::FILE_FROM_START), 0u);  // refused, not reported
  EXPECT_EQ(f.GetPos(), 6u);
  char got[8] = {};
  EXPECT_EQ(f.Read(got, 8), ZEL_ERR_IO);  // short, the bytes delivered
  EXPECT_EQ(std::string(got, 4), "6789");
  f.ToStart();
  EXPECT_EQ(f.Read(got, (1ull << 32) + 1), ZEL_ERR_IO);  // one byte reaches the stream
  EXPECT_EQ(f.GetPos(), 1u);
  EXPECT_EQ(f.Write(data, 1ull << 32, 1), ZEL_ERR_IO);

  // A reader at its end sees what another writer appends.
  F reader;
  ASSERT_EQ(reader.Open(Z("f"), kR), 0u);
  EXPECT_EQ(reader.Read(got, 8), 0u);
  EXPECT_EQ(reader.Read(got, 4), ZEL_ERR_IO);
  f.ToEnd();
  EXPECT_EQ(f.WriteText("ab"), 0u);
  EXPECT_EQ(reader.GetLength(), 12u);
  EXPECT_EQ(reader.Read(got, 2), 0u);
  EXPECT_EQ(std::string(got, 2), "ab");
}

// /dev/full takes buffered bytes and refuses them when they are flushed.
TEST_F(FileTest, FullDevice) {
  if (access("/dev/full", W_OK) != 0) GTEST_SKIP() << "no /dev/full";
  F f;
  ASSERT_EQ(f.Open("/dev/full", kW), 0u);
  char small[] = "abc";
  EXPECT_EQ(f.Write(small, 3, 0), 0u);
  EXPECT_EQ(f.Flush(), ZEL_ERR_FILE_NOT_OPEN);
  EXPECT_EQ(f.Write(small, 3, 1), 0u);  // the failed flush is dropped
  EXPECT_EQ(f.WriteText(std::string(1 << 20, 'y').c_str()), ZEL_ERR_IO);
  Spit(PathOf("src"), std::string(1 << 16, 'x'));
  EXPECT_EQ(F::CopyFile("/dev/full", Z("src"), 1 << 16), ZEL_ERR_IO);
}

// Lines by both readers until the first failure; a failure keeps the text.
TEST_F(FileTest, ReadTextLine) {
  using Lines = std::vector<std::string>;
  struct Row {
    std::string content;
    ZEL::u32 maxChars;
    Lines byArray, byString;
  } const rows[] = {
      {"ab\r\ncd", 10, {"ab", "cd"}, {"ab", "cd"}},
      {"\n", 10, {""}, {""}},
      {"a\rb\0c\r\n\0"s, 10, {"abc"}, {"abc"}},
      {"abc\ndef\n", 3, {"abc", "", "def", ""}, {"abc", "def"}},
      {"abc", 0, {}, {"abc"}},
      {"abc\r\nd", 3, {"abc", "", "d"}, {"abc", "d"}},
      {std::string(5000, 'x') + "\r\n", 9000, {std::string(5000, 'x')}, {std::string(5000, 'x')}},
  };
  for (auto const& row : rows) {
    Spit(PathOf("t"), row.content);
    F f;
    ASSERT_EQ(f.Open(Z("t"), kR), 0u);
    Lines lines;
    std::vector<char> buf(row.maxChars + 1);
    while (f.ReadTextLine(buf.data(), row.maxChars) == 0) lines.emplace_back(buf.data());
    EXPECT_EQ(lines, row.byArray) << row.content;
    EXPECT_EQ(f.ReadTextLine(buf.data(), row.maxChars), ZEL_ERR_IO);
    f.ToStart();
    lines.clear();
    CZEL_String line("old");
    while (f.ReadTextLine(line) == 0) lines.push_back(Text(line));
    EXPECT_EQ(lines, row.byString) << row.content;
    EXPECT_EQ(f.ReadTextLine(line), ZEL_ERR_READ_DENIED);
    EXPECT_EQ(Text(line), lines.empty() ? "old" : lines.back());
  }
  // A stream open for writing too reads what it wrote; one for writing alone fails.
  F f;
  ASSERT_EQ(f.Open(Z("t"), kW | kR | kT), 0u);
  f.WriteTextLine("one", F::LINE_END_LF);
  f.ToStart();
  CZEL_String line;
  EXPECT_EQ(f.ReadTextLine(line), 0u);
  EXPECT_EQ(Text(line), "one");
  f.Close();
  ASSERT_EQ(f.Open(Z("t"), kW), 0u);
  EXPECT_EQ(f.ReadTextLine(line), ZEL_ERR_READ_DENIED);
}

TEST_F(FileTest, WriteTextLine) {
  struct Row {
    ZEL::u32 lineEnd;
    std::string bytes;
  } const rows[] = {{0, "ab"},
                    {F::LINE_END_LF, "ab\n"},
                    {F::LINE_END_LF | F::LINE_END_CR, "ab\r\n"},
                    {F::LINE_END_NUL | F::LINE_END_LF | F::LINE_END_CR, "ab\0\r\n"s},
                    {F::LINE_END_NUL | 8, "ab\0"s}};
  for (auto const& row : rows) {
    F f;
    ASSERT_EQ(f.Open(Z("w"), kW | kT), 0u);
    EXPECT_EQ(f.WriteTextLine(CZEL_String("ab\0zz", 5), row.lineEnd), 0u);
    EXPECT_EQ(Slurp(PathOf("w")), row.bytes) << row.lineEnd;  // flushed before Close
  }
  F closed;
  EXPECT_EQ(closed.WriteText(""), 0u);
  EXPECT_EQ(closed.WriteTextLine("", 0), 0u);
  EXPECT_EQ(closed.WriteTextLine("", F::LINE_END_LF), ZEL_ERR_FILE_NOT_OPEN);
}

TEST_F(FileTest, CopyFile) {
  std::string content(10000, 0);
  for (std::size_t i = 0; i < content.size(); ++i) content[i] = static_cast<char>(i * 7);
  Spit(PathOf("src"), content);
  for (ZEL::u32 blockSize : {1u, 999u, 65536u}) {
    EXPECT_EQ(F::CopyFile(Z("dst"), Z("src"), blockSize), 0u);
    EXPECT_EQ(Slurp(PathOf("dst")), content) << blockSize;
  }
  Spit(PathOf("dst"), "keep");
  EXPECT_EQ(F::CopyFile(Z("dst"), Z("missing"), 16), ZEL_ERR_OPEN_FAILED);
  EXPECT_EQ(Slurp(PathOf("dst")), "keep");
  EXPECT_EQ(F::CopyFile(m_Dir.c_str(), Z("src"), 16), ZEL_ERR_OPEN_FAILED);
  EXPECT_EQ(F::CopyFile(Z("dst"), m_Dir.c_str(), 16), ZEL_ERR_IO);  // opens, can't be read
  Spit(PathOf("dst"), "keep");
  EXPECT_EQ(zel_test::CodeOf([&] { F::CopyFile(Z("dst"), Z("src"), 0); }), ZEL_ERR_EMPTY_INPUT);
  EXPECT_EQ(Slurp(PathOf("dst")), "");
  Spit(PathOf("src"), "");
  EXPECT_EQ(F::CopyFile(Z("dst"), Z("src"), 16), 0u);
}

TEST_F(FileTest, PathsDeleteAndPresence) {
  struct Row {
    std::string path, full, name;
  } const rows[] = {{"/a/./b/../c.txt", "/a/c.txt", "c.txt"},
                    {"//a///b/", "/a/b/", ""},
                    {"/a/b/..", "/a", "a"},
                    {"/../..", "/", ""},
                    {"", "", ""}};
  for (auto const& row : rows) {
    CZEL_String const path(row.path.c_str());
    EXPECT_EQ(Text(F::GetFullPathFromPath(path)), row.full) << row.path;
    EXPECT_EQ(Text(F::GetNameFromPath(path)), row.name) << row.path;
    EXPECT_EQ(Text(F::GetPathFromPath(path)) + row.name, row.full) << row.path;
  }
  char cwd[4096];
  ASSERT_NE(getcwd(cwd, sizeof cwd), nullptr);
  std::string const here = std::string(cwd) == "/" ? "" : cwd;
  EXPECT_EQ(Text(F::GetFullPathFromPath("x/../y.txt")), here + "/y.txt");

  Spit(PathOf("f"), "x");
  EXPECT_EQ(F::IsPresent(Z("f")), 1);
  EXPECT_EQ(F::DeleteFile(Z("f")), 0u);
  EXPECT_EQ(F::IsPresent(Z("f")), 0);
  EXPECT_EQ(F::DeleteFile(Z("f")), ZEL_ERR_IO);
  EXPECT_EQ(F::DeleteFile(m_Dir.c_str()), ZEL_ERR_IO);  // a directory is no file
  EXPECT_EQ(F::IsPresent(m_Dir.c_str()), 1);
}

}  // namespace
