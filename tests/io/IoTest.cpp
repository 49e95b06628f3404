// SPDX-License-Identifier: Apache-2.0
// Files, memory and file buffers, and the serialised value forms on them.

#include <LZEL_Core/calendar/CZEL_Date.h>
#include <LZEL_Core/calendar/CZEL_Time.h>
#include <LZEL_Core/geometry/CZEL_Color.h>
#include <LZEL_Core/net/CZEL_IpAddress.h>

#include "IoTestSupport.h"

using namespace std::string_literals;
using namespace zel_test;

namespace {

constexpr ZEL::u32 kW = F::FILE_OPEN_WRITE, kR = F::FILE_OPEN_READ, kT = F::FILE_OPEN_TRUNCATE;

class FileTest : public TempDirTest {};

// Each flag combination on a missing and on an existing file "abc": whether
// it opens, and the content after writing "XY" at the start.
TEST_F(FileTest, OpenModes) {
  struct Row {
    ZEL::u32 flags;
    bool opensMissing, opensExisting;
    std::string after;
  } const rows[] = {{kW | kR | kT, true, true, "XY"},  {kW | kR, false, true, "XYc"},
                    {kW | kT, true, true, "XY"},       {kW, true, true, "abcXY"},
                    {kR | kT | 8, false, true, "abc"}, {kT, false, false, "abc"}};
  F f;
  for (auto const& row : rows) {
    SCOPED_TRACE(row.flags);
    EXPECT_EQ(f.Open(Z(std::to_string(row.flags)), row.flags) == 0, row.opensMissing);
    Spit("f", "abc");
    EXPECT_EQ(f.Open(Z("f"), row.flags), row.opensExisting ? 0u : ZEL_ERR_OPEN_FAILED);
    EXPECT_EQ(f.GetOpenFlags(), row.opensExisting ? row.flags : 0u);
    f.Write(const_cast<char*>("XY"), 2, 1);
    f.Close();
    EXPECT_EQ(OnDisk("f"), row.after);
  }
  ASSERT_EQ(f.Open(Z("f"), kR), 0u);  // a failed open leaves the earlier stream
  EXPECT_EQ(f.Open(m_Dir.c_str(), kW) + f.Open(m_Dir.c_str(), kR), 2 * ZEL_ERR_OPEN_FAILED);
  EXPECT_EQ(f.GetOpenFlags(), kR);
}

// Closed is tested before the origin; a seek before the start is refused
// quietly; short transfers and counts beyond 32 bits fail with ZEL_ERR_IO.
TEST_F(FileTest, TransfersAndLines) {
  F f;
  char got[8] = {};
  EXPECT_EQ((Codes{f.Read(got, 1), f.Write(got, 1, 1), f.Flush(), f.To(0, 3), f.ToEnd()}),
            Codes(5, ZEL_ERR_FILE_NOT_OPEN));
  ASSERT_EQ(f.Open(Z("f"), kW | kR | kT), 0u);
  EXPECT_EQ(f.Write(const_cast<char*>("0123456789"), 10, 0), 0u);
  EXPECT_EQ(f.GetLength(), 10u);  // pending bytes count
  EXPECT_EQ((Codes{f.To(static_cast<ZEL::u64>(-4), F::FILE_FROM_END), f.To(0, 3),
                   f.To(static_cast<ZEL::u64>(-100), F::FILE_FROM_START), f.Read(got, 8)}),
            (Codes{0, ZEL_ERR_INVALID_ARGUMENT, 0, ZEL_ERR_IO}));
  EXPECT_EQ(std::string(got, 4), "6789");  // the bytes delivered
  f.ToStart();
  EXPECT_EQ(f.Read(got, (1ull << 32) + 1) + f.Write(got, 1ull << 32, 1), 2 * ZEL_ERR_IO);
  EXPECT_EQ(f.GetPos(), 1u);  // one byte reached the stream
  // Reading lines fails at the end with ZEL_ERR_IO (array form) and with
  // ZEL_ERR_READ_DENIED (string form, which keeps the text); line ends are
  // written by flag, and a NUL ends the text.
  Spit("t", "ab");
  ASSERT_EQ(f.Open(Z("t"), kR), 0u);
  CZEL_String line;
  EXPECT_EQ((Codes{f.ReadTextLine(line), f.ReadTextLine(line), f.ReadTextLine(got, 3)}),
            (Codes{0, ZEL_ERR_READ_DENIED, ZEL_ERR_IO}));
  EXPECT_EQ(Text(line), "ab");
  for (auto const& row : {std::pair(F::LINE_END_LF | F::LINE_END_CR, "ab\r\n"s),
                          {F::LINE_END_NUL | F::LINE_END_LF | F::LINE_END_CR, "ab\0\r\n"s},
                          {F::LINE_END_NUL | 8, "ab\0"s}}) {
    ASSERT_EQ(f.Open(Z("w"), kW | kT), 0u);
    EXPECT_EQ(f.WriteTextLine(Make("ab\0zz"s), row.first), 0u);
    EXPECT_EQ(OnDisk("w"), row.second) << row.first;  // flushed before Close
  }
  EXPECT_EQ(f.ReadTextLine(line), ZEL_ERR_READ_DENIED);  // open for writing alone
  f.Close();
  EXPECT_EQ((Codes{f.WriteText(""), f.WriteTextLine("", 0), f.WriteTextLine("", F::LINE_END_LF)}),
            (Codes{0, 0, ZEL_ERR_FILE_NOT_OPEN}));
}

TEST_F(FileTest, CopyDeleteAndPaths) {
  std::string const content(3000, '\xA5');
  Spit("src", content);
  EXPECT_EQ(F::CopyFile(Z("dst"), Z("src"), 999), 0u);
  EXPECT_EQ(
      (Codes{F::CopyFile(Z("dst"), Z("missing"), 16), F::CopyFile(m_Dir.c_str(), Z("src"), 16)}),
      Codes(2, ZEL_ERR_OPEN_FAILED));
  EXPECT_EQ(OnDisk("dst"), content);
  EXPECT_EQ(F::CopyFile(Z("dst"), m_Dir.c_str(), 16), ZEL_ERR_OPEN_FAILED);  // no file
  EXPECT_EQ(CodeOf([&] { F::CopyFile(Z("dst"), Z("src"), 0); }), ZEL_ERR_EMPTY_INPUT);
  EXPECT_EQ(OnDisk("dst"), "");
  EXPECT_EQ((Codes{F::DeleteFile(Z("dst")), F::DeleteFile(Z("dst")), F::DeleteFile(m_Dir.c_str())}),
            (Codes{0, ZEL_ERR_IO, ZEL_ERR_IO}));  // a directory is no file
  EXPECT_EQ(F::IsPresent(Z("dst")) * 2 + F::IsPresent(m_Dir.c_str()), 1);
}

void Put(B& b, std::string const& s) {
  b.AppendData(const_cast<char*>(s.data()), ZEL::u32(s.size()));
}
std::string Take(B& b, ZEL::u32 count) {
  std::string out(count, '\0');
  b.RetrieveData(out.data(), count);
  return out;
}
std::string Reread(B& b, ZEL::u32 count) {
  b.ToStart();
  return Take(b, count);
}

TEST(BufferTest, LayoutsAndCursor) {
  // Each typed operator's bytes, least significant first, across blocks of 3.
  CZEL_MemoryBuffer b(3);
  auto put = [&b](auto... values) { ((b << values), ...); };
  put(static_cast<signed char>(-1), short(-2), INT32_MIN, ZEL::u32(0xA1B2C3D4), ZEL::i64(-2), 1.0f,
      -0.5);
  std::string const bytes =
      "\xFF\xFE\xFF\0\0\0\x80\xD4\xC3\xB2\xA1\xFE\xFF\xFF\xFF\xFF\xFF\xFF\xFF\0\0\x80\x3F\0\0\0\0\0\0\xE0\xBF"s;
  EXPECT_EQ(Reread(b, ZEL::u32(bytes.size())), bytes);
  // The cursor stops at the end of the data but ToEnd goes behind the whole
  // last block; writing overwrites at the cursor and still grows the size.
  b.DeleteAll();
  Put(b, "12345");
  EXPECT_ZEL_THROW(Take(b, 1), ZEL_ERR_OUT_OF_RANGE, &b);
  b.ToEnd();
  EXPECT_EQ(b.GetAbsPosition(), 6u);
  Put(b, "x");  // leaves a gap of unset bytes
  b.ToStart();
  Put(b, "ab");
  EXPECT_EQ(b.GetSize(), 6u + 2u);
  EXPECT_EQ(Reread(b, 5), "ab345");
  CZEL_MemoryBuffer none(0);
  EXPECT_EQ(CodeOf([&] { Put(none, "x"); }), ZEL_ERR_EMPTY_INPUT);
}

TEST(BufferTest, TypedValuesReadBackAndBaseRefuses) {
  CZEL_MemoryBuffer b(5);
  b << 2.5;
  b << 1.5f;
  b << short(-3);
  b << static_cast<signed char>(-4);
  b << ZEL::u64(5);
  b << ZEL::u8(6);
  b << 'c';
  CZEL_MemoryBuffer copy(b);  // blocks of its own
  copy.ToStart();
  double d = 0;
  float f = 0;
  short h = 0;
  signed char sc = 0;
  ZEL::u64 q = 0;
  ZEL::u8 u = 0;
  char c = 0;
  copy >> d, copy >> f, copy >> h, copy >> sc, copy >> q, copy >> u, copy >> c;
  EXPECT_TRUE(d == 2.5 && f == 1.5f && h == -3 && sc == -4 && q == 5 && u == 6 && c == 'c');
  CZEL_Buffer base;
  EXPECT_ZEL_THROW(base.ToStart(), ZEL_ERR_NOT_SUPPORTED, &base);
  EXPECT_ZEL_THROW(Take(base, 1), ZEL_ERR_NOT_SUPPORTED, &base);
}

// `long long` values travel as the 8-byte i64 and u64; moves and swaps hand
// the blocks over, the source left empty. An address cut among its digits
// keeps the digits read and zeros, never bytes that no read wrote; one of
// the unknown kind 2 throws from the buffer and stays invalid.
TEST(BufferTest, LongLongMovesAndCutAddress) {
  CZEL_MemoryBuffer b(3), other(5);
  b << -2LL, b << 3ULL;
  EXPECT_EQ(Reread(b, 16), "\xFE\xFF\xFF\xFF\xFF\xFF\xFF\xFF\3\0\0\0\0\0\0\0"s);
  CZEL_MemoryBuffer moved(std::move(b));
  EXPECT_EQ(b.GetSize() + b.IsEnd() + b.GetAbsPosition(), 1u);  // NOLINT(bugprone-use-after-move)
  swap(moved, other);
  b = std::move(other);
  b.ToStart();
  long long ll = 0;
  unsigned long long ull = 0;
  b >> ll, b >> ull;
  EXPECT_TRUE(ll == -2 && ull == 3 && moved.GetSize() == 0);
  EXPECT_ZEL_THROW(b >> ll, ZEL_ERR_OUT_OF_RANGE, &b);
  b.DeleteAll();
  b << ZEL::u16(0), b << ZEL::u32(4), b << ZEL::u32(1);
  b.ToStart();
  CZEL_IpAddress address;
  EXPECT_ZEL_THROW(b >> address, ZEL_ERR_OUT_OF_RANGE, &b);
  EXPECT_EQ(Text(address.ToString()) + std::to_string(ll), "1.0.0.0-2");
  b.DeleteAll();
  b << ZEL::u16(2);
  b.ToStart();
  EXPECT_ZEL_THROW(b >> address, ZEL_ERR_FAILED, &b);
  EXPECT_EQ(address.ToString().GetLength(), 0u);
}

class FileBufferTest : public TempDirTest {
 protected:
  void OpenFile(ZEL::u32 flags) { ASSERT_EQ(m_File.Open(Z("f"), flags), 0u); }
  F m_File;
};

TEST_F(FileBufferTest, AttachReadAndWrite) {
  CZEL_FileBuffer b(4);
  F closed;
  EXPECT_ZEL_THROW(Put(b, "x"), ZEL_ERR_IO, &b);  // detached
  EXPECT_EQ(
      (Codes{b.AttachFile(&closed, B::ACCESS_READ_WRITE), b.AttachFile(&closed, B::ACCESS_READ)}),
      (Codes{ZEL_ERR_INVALID_ARGUMENT, ZEL_ERR_FILE_NOT_OPEN}));
  Spit("f", "abc");
  OpenFile(kR);
  m_File.To(2, F::FILE_FROM_START);
  EXPECT_EQ((Codes{b.AttachFile(&m_File, B::ACCESS_WRITE), b.AttachFile(&m_File, B::ACCESS_READ),
                   b.AttachFile(&m_File, static_cast<B::t_Access>(9))}),
            (Codes{ZEL_ERR_NOT_READY, 0, ZEL_ERR_NOT_READY}));
  EXPECT_EQ(m_File.GetPos() + b.GetSize() + b.IsEnd(), 4u);  // rewound, sized; no end mark
  EXPECT_EQ(Take(b, 3) + Take(b, 0), "abc");                 // before the first read
  EXPECT_EQ(b.IsEnd(), 1);
  EXPECT_ZEL_THROW(Take(b, 1), ZEL_ERR_OUT_OF_RANGE, &b);
  F writer;  // a rewind sees what another writer appended
  ASSERT_EQ(writer.Open(Z("f"), kW), 0u);
  writer.WriteText("de");
  EXPECT_EQ(Reread(b, 5), "abcde");
  EXPECT_ZEL_THROW(Put(b, "x"), ZEL_ERR_WRITE_DENIED, &b);
  b.Close();
  EXPECT_ZEL_THROW(Put(b, "x"), ZEL_ERR_IO, &b);  // no file comes before the access
  OpenFile(kW | kT);
  EXPECT_EQ(b.AttachFile(&m_File, B::ACCESS_READ), ZEL_ERR_NOT_READY);
  ASSERT_EQ(b.AttachFile(&m_File, B::ACCESS_WRITE), 0u);
  EXPECT_ZEL_THROW(Take(b, 0), ZEL_ERR_READ_DENIED, &b);
  EXPECT_ZEL_THROW(b.ToStart(), ZEL_ERR_NOT_READY, &b);
  // A full block leaves at once; Abort writes the block from the file's start
  // and drops the rest; destruction writes what waits.
  Put(b, "abcdef");
  EXPECT_EQ(OnDisk("f"), "abcd");
  b.Close();
  EXPECT_EQ(OnDisk("f") + std::to_string(b.GetSize() + b.GetAbsPosition()),
            "abcdef11");  // the size counts on
  ASSERT_EQ(b.AttachFile(&m_File, B::ACCESS_WRITE), 0u);
  Put(b, "0123456789");
  b.Abort();
  EXPECT_EQ(OnDisk("f"), "01234567");
  {
    CZEL_FileBuffer c(4);
    ASSERT_EQ(c.AttachFile(&m_File, B::ACCESS_WRITE), 0u);
    Put(c, "xy");
  }
  EXPECT_EQ(OnDisk("f"), "xy234567");
}

// One value of each class on its way to a file and back, its bytes checked
// on disk. The invalid address leaves its count of 0 behind; a read past the
// end moves nothing.
TEST_F(FileBufferTest, ValuesToFileAndBack) {
  CZEL_String const ab("AB"), withNul = Make("a\0b"s);
  CZEL_Color const color(1, 2, 3);
  CZEL_Date const date(2000, 1, 1), noDate;
  CZEL_Time const noon(12, 0, 0, 0), noTime;
  CZEL_IpAddress const v4(CZEL_String("192.168.0.1")), v6(CZEL_String("1:2:3:4:5:6:7:65535"));
  OpenFile(kW | kT);
  CZEL_FileBuffer buffer(4);
  ASSERT_EQ(buffer.AttachFile(&m_File, B::ACCESS_WRITE), 0u);
  buffer << ab << CZEL_String() << withNul << color << date << noDate << noon << noTime << v4 << v6
         << CZEL_IpAddress();
  buffer.Close();
  std::string const expected =
      "\2\0\0\0AB\0\0\0\0\3\0\0\0a\0b"                    // strings
      "\1\2\3\0"                                          // colour
      "\x59\x68\x25\0\0\0\0\0\0\0\0\0\0\0\0\x80"          // dates
      "\0\x2E\x93\2\xFF\xFF\xFF\xFF"                      // times
      "\0\0\4\0\0\0\xC0\0\0\0\xA8\0\0\0\0\0\0\0\1\0\0\0"  // v4
      "\1\0\x08\0\0\0\1\0\0\0\2\0\0\0\3\0\0\0\4\0\0\0\5\0\0\0\6\0\0\0\7\0\0\0\xFF\xFF\0\0"
      "\xFF\xFF\0\0\0\0"s;  // invalid
  EXPECT_EQ(OnDisk("f"), expected);
  OpenFile(kR);
  ASSERT_EQ(buffer.AttachFile(&m_File, B::ACCESS_READ), 0u);
  CZEL_String s1, s2("old"), s3;
  CZEL_Color c;
  CZEL_Date d1, d2(date);
  CZEL_Time t1, t2(noon);
  CZEL_IpAddress a1, a2, a3(v4);
  ZEL::u32 count = 7;
  buffer >> s1 >> s2 >> s3 >> c >> d1 >> d2 >> t1 >> t2 >> a1 >> a2 >> a3;
  buffer >> count;
  EXPECT_EQ(Text(s1) + "|" + Text(s2) + "|" + Text(s3), "AB||a\0b"s);
  EXPECT_EQ(c.GetUnsignedColor(), color.GetUnsignedColor());
  EXPECT_TRUE(d1 == date && d2 == noDate && t1 == noon && t2 == noTime && a1 == v4 && a2 == v6 &&
              a3 == CZEL_IpAddress() && count == 0);
  EXPECT_ZEL_THROW(buffer >> d1, ZEL_ERR_OUT_OF_RANGE, &buffer);
  EXPECT_EQ(buffer.GetAbsPosition(), expected.size());
  EXPECT_TRUE(d1 == date);
}

// A file cut short under the buffer ends the stream where its bytes end: the
// read that reaches beyond fails as one past the size, the bytes before it
// delivered, and no byte of the block that the file did not fill comes out.
TEST_F(FileBufferTest, FileCutShortEndsTheStream) {
  // Blocks larger than the runtime's own buffer, so that the cut is seen.
  std::string content(20000, ' '), got(10, '.');
  for (std::size_t i = 0; i < content.size(); ++i) content[i] = char('a' + i % 26);
  Spit("f", content);
  OpenFile(kR);
  CZEL_FileBuffer b(8192);
  ASSERT_EQ(b.AttachFile(&m_File, B::ACCESS_READ), 0u);
  EXPECT_EQ(Take(b, 8190), content.substr(0, 8190));
  Spit("f", content.substr(0, 8195));
  EXPECT_ZEL_THROW(b.RetrieveData(got.data(), 10), ZEL_ERR_OUT_OF_RANGE, &b);
  EXPECT_EQ(got + std::to_string(b.GetSize() + b.GetAbsPosition() + b.IsEnd()),
            content.substr(8190, 2) + "........" + std::to_string(8195 + 8192));
  EXPECT_EQ(Take(b, 3), content.substr(8192, 3));
  EXPECT_ZEL_THROW(Take(b, 1), ZEL_ERR_OUT_OF_RANGE, &b);
}

}  // namespace
