#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/io/CZEL_File.h>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cstring>
#include <string>
#include <vector>

#include "IoTestSupport.h"

using namespace std::string_literals;
using zel_test::Slurp;
using zel_test::Spit;
using zel_test::Text;

namespace {

using F = CZEL_File;

class FileTest : public zel_test::TempDirTest {};

// A file object that can drop its stream without closing it, so that a test
// can let a shallow copy and its source both end.
class Forgetful : public CZEL_File {
 public:
  Forgetful() = default;
  explicit Forgetful(CZEL_File const& src) : CZEL_File(src) {}
  void Forget() { m_Stream = nullptr; }
};

// ---------------------------------------------------------------------------
// Opening
// ---------------------------------------------------------------------------

// Each flag combination against a missing and an existing file: whether the
// open works, what is left of the old content, and whether a write lands at
// the end although the position was set back to the start.
TEST_F(FileTest, ModeTable) {
  struct Row {
    ZEL::u32 flags;
    bool opensMissing;
    std::string afterWriteXY;  // content after Open on "abc", ToStart, write "XY"
  } const rows[] = {
      {F::FILE_OPEN_WRITE | F::FILE_OPEN_READ | F::FILE_OPEN_TRUNCATE, true, "XY"},
      {F::FILE_OPEN_WRITE | F::FILE_OPEN_READ, false, "XYc"},
      {F::FILE_OPEN_WRITE | F::FILE_OPEN_TRUNCATE, true, "XY"},
      {F::FILE_OPEN_WRITE, true, "abcXY"},
      {F::FILE_OPEN_READ, false, "abc"},
      {F::FILE_OPEN_READ | F::FILE_OPEN_TRUNCATE, false, "abc"},
  };
  for (auto const& row : rows) {
    SCOPED_TRACE(row.flags);
    F missing;
    EXPECT_EQ(missing.Open(Z("missing"), row.flags), row.opensMissing ? 0u : ZEL_ERR_OPEN_FAILED);
    missing.Close();
    std::remove(PathOf("missing").c_str());

    Spit(PathOf("f"), "abc");
    F f;
    ASSERT_EQ(f.Open(Z("f"), row.flags), 0u);
    EXPECT_EQ(f.GetPos(), 0u);
    char xy[] = "XY";
    f.Write(xy, 2, 1);
    f.Close();
    EXPECT_EQ(Slurp(PathOf("f")), row.afterWriteXY);
  }
}

TEST_F(FileTest, OpenFlagsAndFailures) {
  Spit(PathOf("f"), "abc");
  F f;
  EXPECT_EQ(f.Open(Z("f"), 0), ZEL_ERR_OPEN_FAILED);
  EXPECT_EQ(f.Open(Z("f"), F::FILE_OPEN_TRUNCATE), ZEL_ERR_OPEN_FAILED);
  EXPECT_EQ(f.IsOpen(), 0);
  ASSERT_EQ(f.Open(Z("f"), 10), 0u);  // read, and an unknown bit kept
  EXPECT_EQ(f.GetOpenFlags(), 10u);
  // A failed open leaves the earlier stream and flags in place.
  EXPECT_EQ(f.Open(Z("nope/x"), F::FILE_OPEN_READ), ZEL_ERR_OPEN_FAILED);
  EXPECT_EQ(f.IsOpen(), 1);
  EXPECT_EQ(f.GetOpenFlags(), 10u);
  EXPECT_EQ(Text(f.GetName()), "f");
  f.Close();
  EXPECT_EQ(f.GetOpenFlags(), 0u);
  EXPECT_EQ(Text(f.GetName()), "f");  // the path outlives the stream
  f.Close();                          // closing a closed file is harmless
  EXPECT_EQ(f.IsOpen(), 0);
  // A directory can't be opened for writing.
  EXPECT_EQ(f.Open(m_Dir.c_str(), F::FILE_OPEN_WRITE), ZEL_ERR_OPEN_FAILED);
}

TEST_F(FileTest, UnreadableFileDoesNotOpen) {
  if (geteuid() == 0) GTEST_SKIP() << "root reads every file";
  Spit(PathOf("locked"), "x");
  chmod(PathOf("locked").c_str(), 0);
  F f;
  EXPECT_EQ(f.Open(Z("locked"), F::FILE_OPEN_READ), ZEL_ERR_OPEN_FAILED);
}

// ---------------------------------------------------------------------------
// Transfers and positions
// ---------------------------------------------------------------------------

TEST_F(FileTest, ClosedFile) {
  F f;
  char byte = 0;
  EXPECT_EQ(f.Read(&byte, 1), ZEL_ERR_FILE_NOT_OPEN);
  EXPECT_EQ(f.Write(&byte, 1, 1), ZEL_ERR_FILE_NOT_OPEN);
  EXPECT_EQ(f.Flush(), ZEL_ERR_FILE_NOT_OPEN);
  EXPECT_EQ(f.To(0, 3), ZEL_ERR_FILE_NOT_OPEN);  // closed is tested first
  EXPECT_EQ(f.ToStart(), ZEL_ERR_FILE_NOT_OPEN);
  EXPECT_EQ(f.ToEnd(), ZEL_ERR_FILE_NOT_OPEN);
  EXPECT_EQ(f.GetPos(), 0u);
  EXPECT_EQ(f.GetLength(), 0u);
  EXPECT_EQ(f.IsEOF(), 1);
  EXPECT_EQ(f.GetOpenFlags(), 0u);
  EXPECT_EQ(Text(f.GetName()), "");
}

TEST_F(FileTest, ReadWriteAndSeek) {
  F f;
  ASSERT_EQ(f.Open(Z("f"), F::FILE_OPEN_WRITE | F::FILE_OPEN_READ | F::FILE_OPEN_TRUNCATE), 0u);
  EXPECT_EQ(f.IsEOF(), 1);  // open and empty
  char data[] = "0123456789";
  EXPECT_EQ(f.Write(data, 10, 0), 0u);
  EXPECT_EQ(f.GetLength(), 10u);  // pending bytes count, and the position stays
  EXPECT_EQ(f.GetPos(), 10u);
  EXPECT_EQ(f.To(3, F::FILE_FROM_START), 0u);
  EXPECT_EQ(f.To(2, F::FILE_FROM_CURRENT), 0u);
  EXPECT_EQ(f.GetPos(), 5u);
  EXPECT_EQ(f.To(static_cast<ZEL::u64>(-4), F::FILE_FROM_END), 0u);  // signed offset
  EXPECT_EQ(f.GetPos(), 6u);
  EXPECT_EQ(f.To(0, 3), ZEL_ERR_INVALID_ARGUMENT);
  EXPECT_EQ(f.GetPos(), 6u);
  // A seek before the start is refused by the stream and still reported as 0.
  EXPECT_EQ(f.To(static_cast<ZEL::u64>(-100), F::FILE_FROM_START), 0u);
  EXPECT_EQ(f.GetPos(), 6u);
  EXPECT_EQ(f.IsEOF(), 0);

  // A short read delivers the bytes that were there and reports ZEL_ERR_IO.
  char got[8] = {};
  EXPECT_EQ(f.Read(got, 8), ZEL_ERR_IO);
  EXPECT_EQ(std::string(got, 4), "6789");
  EXPECT_EQ(f.IsEOF(), 1);
  f.ToStart();
  EXPECT_EQ(f.Read(got, 4), 0u);
  EXPECT_EQ(std::string(got, 4), "0123");
  // Only the low 32 bits of the count reach the stream.
  EXPECT_EQ(f.Read(got, (1ull << 32) + 1), ZEL_ERR_IO);
  EXPECT_EQ(f.GetPos(), 5u);
  EXPECT_EQ(f.Write(data, 1ull << 32, 1), ZEL_ERR_IO);
  EXPECT_EQ(f.GetLength(), 10u);
}

// A length asked of a read stream sees what another writer appended.
TEST_F(FileTest, LengthFollowsAnotherWriter) {
  Spit(PathOf("f"), "ab");
  F reader;
  ASSERT_EQ(reader.Open(Z("f"), F::FILE_OPEN_READ), 0u);
  char got[4] = {};
  EXPECT_EQ(reader.Read(got, 4), ZEL_ERR_IO);  // reaches the end
  F writer;
  ASSERT_EQ(writer.Open(Z("f"), F::FILE_OPEN_WRITE), 0u);
  EXPECT_EQ(writer.WriteText("cd"), 0u);
  EXPECT_EQ(reader.GetLength(), 4u);
  EXPECT_EQ(reader.GetPos(), 2u);
  EXPECT_EQ(reader.Read(got, 2), 0u);
  EXPECT_EQ(std::string(got, 2), "cd");
}

// /dev/full takes buffered bytes and refuses them when they are flushed.
TEST_F(FileTest, FullDevice) {
  if (access("/dev/full", W_OK) != 0) GTEST_SKIP() << "no /dev/full";
  F f;
  ASSERT_EQ(f.Open("/dev/full", F::FILE_OPEN_WRITE), 0u);
  char small[4] = "abc";
  EXPECT_EQ(f.Write(small, 3, 0), 0u);
  EXPECT_EQ(f.Flush(), ZEL_ERR_FILE_NOT_OPEN);
  EXPECT_EQ(f.Write(small, 3, 1), 0u);  // the failed flush is dropped
  std::vector<char> big(1 << 20, 'x');
  EXPECT_EQ(f.Write(big.data(), big.size(), 0), ZEL_ERR_IO);
  EXPECT_EQ(f.WriteText(std::string(1 << 20, 'y').c_str()), ZEL_ERR_IO);
}

// ---------------------------------------------------------------------------
// Text lines
// ---------------------------------------------------------------------------

// Reads lines with both overloads until the first failure.
std::vector<std::string> LinesByArray(F& f, ZEL::u32 maxChars) {
  std::vector<std::string> lines;
  std::vector<char> buf(maxChars + 1, '#');
  while (f.ReadTextLine(buf.data(), maxChars) == 0) lines.emplace_back(buf.data());
  return lines;
}
std::vector<std::string> LinesByString(F& f) {
  std::vector<std::string> lines;
  CZEL_String line("old");
  while (f.ReadTextLine(line) == 0) lines.push_back(Text(line));
  EXPECT_EQ(Text(line), lines.empty() ? "old" : lines.back());  // a failure keeps the text
  return lines;
}

TEST_F(FileTest, ReadTextLine) {
  using Lines = std::vector<std::string>;
  struct Row {
    std::string content;
    ZEL::u32 maxChars;
    Lines byArray;
    Lines byString;
  } const rows[] = {
      {"ab\r\ncd", 10, {"ab", "cd"}, {"ab", "cd"}},
      {"\n", 10, {""}, {""}},
      {"", 10, {}, {}},
      {"\n\nx\n", 10, {"", "", "x"}, {"", "", "x"}},
      {"a\rb\0c\r\n\0"s, 10, {"abc"}, {"abc"}},
      {"abc\ndef\n", 3, {"abc", "", "def", ""}, {"abc", "def"}},
      {"abcdefg", 3, {"abc", "def", "g"}, {"abcdefg"}},
      {"\r\r", 10, {}, {}},  // nothing kept at the end: a failure
      {"abc", 0, {}, {"abc"}},
  };
  for (auto const& row : rows) {
    SCOPED_TRACE(row.content + " / " + std::to_string(row.maxChars));
    Spit(PathOf("t"), row.content);
    F f;
    ASSERT_EQ(f.Open(Z("t"), F::FILE_OPEN_READ), 0u);
    EXPECT_EQ(LinesByArray(f, row.maxChars), row.byArray);
    f.ToStart();
    EXPECT_EQ(LinesByString(f), row.byString);
  }
}

TEST_F(FileTest, ReadTextLineCodesAndLongLines) {
  F f;
  char buf[8];
  CZEL_String line("kept");
  EXPECT_EQ(f.ReadTextLine(buf, 7), ZEL_ERR_IO);  // closed
  EXPECT_EQ(f.ReadTextLine(line), ZEL_ERR_READ_DENIED);
  EXPECT_EQ(Text(line), "kept");

  std::string const longLine(250, 'q');
  Spit(PathOf("t"), longLine + "\nz");
  ASSERT_EQ(f.Open(Z("t"), F::FILE_OPEN_READ), 0u);
  EXPECT_EQ(f.ReadTextLine(line), 0u);
  EXPECT_EQ(Text(line), longLine);
  EXPECT_EQ(f.ReadTextLine(line), 0u);
  EXPECT_EQ(Text(line), "z");
  EXPECT_EQ(f.ReadTextLine(line), ZEL_ERR_READ_DENIED);
  EXPECT_EQ(f.ReadTextLine(buf, 7), ZEL_ERR_IO);
}

// A stream open for writing asks the stream for the line's position and
// reads what it wrote itself; one open for writing alone can't be read.
TEST_F(FileTest, ReadTextLineOnWriteStreams) {
  F f;
  ASSERT_EQ(f.Open(Z("t"), F::FILE_OPEN_WRITE | F::FILE_OPEN_READ | F::FILE_OPEN_TRUNCATE), 0u);
  f.WriteTextLine("one", F::LINE_END_LF);
  f.WriteText("two");
  f.ToStart();
  CZEL_String line;
  EXPECT_EQ(f.ReadTextLine(line), 0u);
  EXPECT_EQ(Text(line), "one");
  EXPECT_EQ(f.ReadTextLine(line), 0u);
  EXPECT_EQ(Text(line), "two");
  f.Close();

  ASSERT_EQ(f.Open(Z("t"), F::FILE_OPEN_WRITE), 0u);
  EXPECT_EQ(f.ReadTextLine(line), ZEL_ERR_READ_DENIED);
  EXPECT_EQ(Text(line), "two");
}

TEST_F(FileTest, WriteTextLine) {
  struct Row {
    ZEL::u32 lineEnd;
    std::string bytes;
  } const rows[] = {
      {0, "ab"},
      {F::LINE_END_LF, "ab\n"},
      {F::LINE_END_LF | F::LINE_END_CR, "ab\r\n"},
      {F::LINE_END_NUL | F::LINE_END_LF | F::LINE_END_CR, "ab\0\r\n"s},
      {F::LINE_END_NUL | 8, "ab\0"s},
  };
  for (auto const& row : rows) {
    F f;
    ASSERT_EQ(f.Open(Z("w"), F::FILE_OPEN_WRITE | F::FILE_OPEN_TRUNCATE), 0u);
    EXPECT_EQ(f.WriteTextLine(CZEL_String("ab\0zz", 5), row.lineEnd), 0u);
    // Text writes are flushed at once: the bytes are on disk before Close.
    EXPECT_EQ(Slurp(PathOf("w")), row.bytes) << row.lineEnd;
  }
  F closed;
  EXPECT_EQ(closed.WriteText(""), 0u);
  EXPECT_EQ(closed.WriteText("x"), ZEL_ERR_FILE_NOT_OPEN);
  EXPECT_EQ(closed.WriteTextLine("", 0), 0u);
  EXPECT_EQ(closed.WriteTextLine("", F::LINE_END_LF), ZEL_ERR_FILE_NOT_OPEN);
}

// ---------------------------------------------------------------------------
// Files by name
// ---------------------------------------------------------------------------

TEST_F(FileTest, CopyFile) {
  std::string content(10000, 0);
  for (std::size_t i = 0; i < content.size(); ++i) content[i] = static_cast<char>(i * 7);
  Spit(PathOf("src"), content);
  for (ZEL::u32 blockSize : {1u, 999u, 10000u, 65536u}) {
    EXPECT_EQ(F::CopyFile(Z("dst"), Z("src"), blockSize), 0u);
    EXPECT_EQ(Slurp(PathOf("dst")), content) << blockSize;
  }
  Spit(PathOf("empty"), "");
  EXPECT_EQ(F::CopyFile(Z("dst"), Z("empty"), 16), 0u);
  EXPECT_EQ(Slurp(PathOf("dst")), "");

  // A missing source leaves the destination alone.
  Spit(PathOf("dst"), "keep");
  EXPECT_EQ(F::CopyFile(Z("dst"), Z("missing"), 16), ZEL_ERR_OPEN_FAILED);
  EXPECT_EQ(Slurp(PathOf("dst")), "keep");
  // A destination that can't be opened.
  EXPECT_EQ(F::CopyFile(m_Dir.c_str(), Z("src"), 16), ZEL_ERR_OPEN_FAILED);
  // A source that opens but can't be read: a directory.
  EXPECT_EQ(F::CopyFile(Z("dst"), m_Dir.c_str(), 16), ZEL_ERR_IO);
  // A block size of 0 throws from the block vector, the destination emptied.
  Spit(PathOf("dst"), "keep");
  EXPECT_ZEL_CODE(F::CopyFile(Z("dst"), Z("src"), 0), ZEL_ERR_EMPTY_INPUT);
  EXPECT_EQ(Slurp(PathOf("dst")), "");
}

TEST_F(FileTest, CopyFileToFullDevice) {
  if (access("/dev/full", W_OK) != 0) GTEST_SKIP() << "no /dev/full";
  Spit(PathOf("src"), "abc");
  EXPECT_EQ(F::CopyFile("/dev/full", Z("src"), 16), 0u);  // the flush's failure is dropped
  Spit(PathOf("src"), std::string(1 << 16, 'x'));
  EXPECT_EQ(F::CopyFile("/dev/full", Z("src"), 1 << 16), ZEL_ERR_IO);
}

TEST_F(FileTest, DeleteAndPresence) {
  Spit(PathOf("f"), "x");
  EXPECT_EQ(F::IsPresent(Z("f")), 1);
  EXPECT_EQ(F::IsPresent(m_Dir.c_str()), 1);
  EXPECT_EQ(F::DeleteFile(Z("f")), 0u);
  EXPECT_EQ(F::IsPresent(Z("f")), 0);
  EXPECT_EQ(F::DeleteFile(Z("f")), ZEL_ERR_IO);
  ASSERT_EQ(mkdir(PathOf("d").c_str(), 0700), 0);
  EXPECT_EQ(F::DeleteFile(Z("d")), ZEL_ERR_IO);
  EXPECT_EQ(F::IsPresent(Z("d")), 1);
}

TEST_F(FileTest, Paths) {
  struct Row {
    std::string path, full, name;
  } const rows[] = {
      {"/a/b/c.txt", "/a/b/c.txt", "c.txt"},
      {"/a/./b/../c", "/a/c", "c"},
      {"//a///b/", "/a/b/", ""},
      {"/a/b/..", "/a", "a"},
      {"/../..", "/", ""},
      {"/", "/", ""},
      {"", "", ""},
  };
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
  EXPECT_EQ(Text(F::GetPathFromPath("y.txt")), here + "/");

  // The instance forms answer for the path of the last Open, closed or not.
  Spit(PathOf("n.bin"), "");
  F f;
  ASSERT_EQ(f.Open(Z("n.bin"), F::FILE_OPEN_READ), 0u);
  f.Close();
  EXPECT_EQ(Text(f.GetName()), "n.bin");
  EXPECT_EQ(Text(f.GetPath()), m_Dir + "/");
  EXPECT_EQ(Text(f.GetFullPath()), m_Dir + "/n.bin");
}

// ---------------------------------------------------------------------------
// Copies
// ---------------------------------------------------------------------------

TEST_F(FileTest, ShallowCopies) {
  F f;
  ASSERT_EQ(f.Open(Z("c"), F::FILE_OPEN_WRITE | F::FILE_OPEN_TRUNCATE), 0u);
  {
    Forgetful copy(f);  // shares the stream
    EXPECT_EQ(copy.IsOpen(), 1);
    EXPECT_EQ(copy.GetOpenFlags(), f.GetOpenFlags());
    EXPECT_EQ(copy.WriteText("via copy"), 0u);
    copy.Forget();
  }
  EXPECT_EQ(Slurp(PathOf("c")), "via copy");
  f.Close();

  // A closed file copies safely; assignment takes the path along.
  F g;
  g = f;
  EXPECT_EQ(g.IsOpen(), 0);
  EXPECT_EQ(Text(g.GetName()), "c");
}

}  // namespace
