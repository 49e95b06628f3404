#include <LZEL_Core/calendar/CZEL_Date.h>
#include <LZEL_Core/calendar/CZEL_Time.h>
#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/geometry/CZEL_Color.h>
#include <LZEL_Core/io/CZEL_File.h>
#include <LZEL_Core/io/CZEL_FileBuffer.h>
#include <LZEL_Core/io/CZEL_MemoryBuffer.h>
#include <LZEL_Core/io/ZEL_StreamForms.h>
#include <LZEL_Core/net/CZEL_IpAddress.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "IoTestSupport.h"

using namespace std::string_literals;
using zel_test::Bytes;
using zel_test::Text;

namespace {

using F = CZEL_File;
using B = CZEL_Buffer;

class StreamFormsTest : public zel_test::TempDirTest {};

// A memory buffer holding `bytes`, ready to be read.
CZEL_MemoryBuffer Holding(Bytes bytes, ZEL::u32 blockSize = 1024) {
  CZEL_MemoryBuffer b(blockSize);
  b.AppendData(bytes.data(), ZEL::u32(bytes.size()));
  b.ToStart();
  return b;
}

CZEL_String Make(std::string const& s) { return CZEL_String(s.data(), ZEL::u32(s.size())); }

// Each value's bytes, checked on disk after a trip through the file buffer,
// and the value read back from that file.
TEST_F(StreamFormsTest, LayoutsOnDisk) {
  struct Row {
    char const* what;
    std::function<void(CZEL_Buffer&)> write;
    Bytes bytes;
    std::function<bool(CZEL_Buffer&)> readsBack;
  };
  auto row = [](char const* what, auto value, Bytes bytes) {
    using V = decltype(value);
    return Row{what, [value](CZEL_Buffer& b) { b << value; }, bytes,
               [value](CZEL_Buffer& b) {
                 V got;
                 b >> got;
                 return got == value;
               }};
  };
  Row const rows[] = {
      row("string AB", CZEL_String("AB"), {2, 0, 0, 0, 0x41, 0x42}),
      row("empty string", CZEL_String(), {0, 0, 0, 0}),
      row("string with NUL", Make("a\0b"s), {3, 0, 0, 0, 0x61, 0, 0x62}),
      row("colour", CZEL_Color(1, 2, 3), {1, 2, 3, 0}),
      row("colour with top byte", CZEL_Color(ZEL::u32(0xFF332211)), {0x11, 0x22, 0x33, 0xFF}),
      row("date 2000-01-01", CZEL_Date(2000, 1, 1), {0x59, 0x68, 0x25, 0, 0, 0, 0, 0}),
      row("null date", CZEL_Date(), {0, 0, 0, 0, 0, 0, 0, 0x80}),
      row("time 12:00", CZEL_Time(12, 0, 0, 0), {0x00, 0x2E, 0x93, 0x02}),
      row("null time", CZEL_Time(), {0xFF, 0xFF, 0xFF, 0xFF}),
      row("IPv4", CZEL_IpAddress(CZEL_String("192.168.0.1")),
          {0, 0, 4, 0, 0, 0, 0xC0, 0, 0, 0, 0xA8, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0}),
      row("IPv6", CZEL_IpAddress(CZEL_String("1:2:3:4:5:6:7:65535")),
          {1, 0, 8, 0, 0, 0, 1, 0, 0, 0, 2, 0, 0, 0, 3, 0,    0,    0, 4,
           0, 0, 0, 5, 0, 0, 0, 6, 0, 0, 0, 7, 0, 0, 0, 0xFF, 0xFF, 0, 0}),
  };
  for (auto const& r : rows) {
    F file;
    ASSERT_EQ(file.Open(Z("v"), F::FILE_OPEN_WRITE | F::FILE_OPEN_TRUNCATE), 0u);
    CZEL_FileBuffer out(4);
    ASSERT_EQ(out.AttachFile(&file, B::ACCESS_WRITE), 0u);
    r.write(out);
    out.Close();
    file.Close();
    EXPECT_EQ(zel_test::SlurpBytes(PathOf("v")), r.bytes) << r.what;

    ASSERT_EQ(file.Open(Z("v"), F::FILE_OPEN_READ), 0u);
    CZEL_FileBuffer in(4);
    ASSERT_EQ(in.AttachFile(&file, B::ACCESS_READ), 0u);
    EXPECT_TRUE(r.readsBack(in)) << r.what;
    EXPECT_EQ(in.GetAbsPosition(), in.GetSize()) << r.what;
  }
}

// A date opened, written, closed, read back, and read once too often.
TEST_F(StreamFormsTest, DateToFileAndBack) {
  CZEL_Date const date(2026, 11, 24);
  CZEL_File file;
  ASSERT_EQ(file.Open(Z("d"), F::FILE_OPEN_WRITE | F::FILE_OPEN_TRUNCATE), 0u);
  CZEL_FileBuffer buffer;
  ASSERT_EQ(buffer.AttachFile(&file, B::ACCESS_WRITE), 0u);
  buffer << date;
  buffer.Close();
  file.Close();

  ASSERT_EQ(file.Open(Z("d"), F::FILE_OPEN_READ), 0u);
  ASSERT_EQ(buffer.AttachFile(&file, B::ACCESS_READ), 0u);
  EXPECT_EQ(buffer.GetSize(), 8u);
  CZEL_Date back;
  buffer >> back;
  EXPECT_TRUE(back == date);
  EXPECT_ZEL_THROW(buffer >> back, ZEL_ERR_OUT_OF_RANGE, &buffer);
  EXPECT_EQ(buffer.GetAbsPosition(), 8u);
  EXPECT_TRUE(back == date);
}

TEST_F(StreamFormsTest, StringsAcrossBlocks) {
  std::string long_text(3000, 0);
  for (std::size_t i = 0; i < long_text.size(); ++i) long_text[i] = static_cast<char>(i % 251);
  for (ZEL::u32 lead = 0; lead < 16; ++lead) {
    CZEL_MemoryBuffer b(16);
    for (ZEL::u32 i = 0; i < lead; ++i) b << ZEL::u8(i);
    b << Make(long_text) << CZEL_String("end");
    b.ToStart();
    b.RetrieveData(nullptr, 0);
    for (ZEL::u32 i = 0; i < lead; ++i) {
      ZEL::u8 skip = 0;
      b >> skip;
    }
    CZEL_String got("old"), tail;
    b >> got >> tail;
    EXPECT_EQ(Text(got), long_text) << lead;
    EXPECT_EQ(Text(tail), "end");
    EXPECT_EQ(b.IsEnd(), 1);
  }
}

// No rollback: a string whose characters are missing keeps the length read.
TEST_F(StreamFormsTest, FailedReadsLeaveWhatWasDone) {
  CZEL_MemoryBuffer b = Holding({5, 0, 0, 0, 'x', 'y'});
  CZEL_String s("abc");
  EXPECT_ZEL_THROW(b >> s, ZEL_ERR_OUT_OF_RANGE, &b);
  EXPECT_EQ(Text(s), "abc  ");
  EXPECT_EQ(b.GetAbsPosition(), 4u);

  // A single failed read leaves colour, date and time alone.
  CZEL_MemoryBuffer three = Holding({1, 2, 3});
  CZEL_Color c(9, 9, 9);
  CZEL_Date d(2000, 1, 1);
  CZEL_Time t(1, 2, 3, 4);
  EXPECT_ZEL_THROW(three >> c, ZEL_ERR_OUT_OF_RANGE, &three);
  EXPECT_ZEL_THROW(three >> d, ZEL_ERR_OUT_OF_RANGE, &three);
  EXPECT_ZEL_THROW(three >> t, ZEL_ERR_OUT_OF_RANGE, &three);
  EXPECT_TRUE(c == CZEL_Color(9, 9, 9));
  EXPECT_TRUE(d == CZEL_Date(2000, 1, 1));
  EXPECT_TRUE(t == CZEL_Time(1, 2, 3, 4));
  EXPECT_EQ(three.GetAbsPosition(), 0u);

  // Values are not validated on the way in.
  CZEL_MemoryBuffer late = Holding({0x80, 0x4A, 0x5D, 0x05});  // 90,000,000 ms
  late >> t;
  EXPECT_EQ(t.IsValid(), 0);
}

TEST_F(StreamFormsTest, AccessIsCheckedByTheBuffer) {
  F file;
  ASSERT_EQ(file.Open(Z("a"), F::FILE_OPEN_WRITE | F::FILE_OPEN_READ | F::FILE_OPEN_TRUNCATE), 0u);
  CZEL_FileBuffer b(8);
  ASSERT_EQ(b.AttachFile(&file, B::ACCESS_WRITE), 0u);
  CZEL_String s("keep");
  EXPECT_ZEL_THROW(b >> s, ZEL_ERR_READ_DENIED, &b);
  EXPECT_EQ(Text(s), "keep");
  b.Close();
  ASSERT_EQ(b.AttachFile(&file, B::ACCESS_READ), 0u);
  EXPECT_ZEL_THROW(b << s, ZEL_ERR_WRITE_DENIED, &b);
  EXPECT_ZEL_THROW(b << CZEL_IpAddress(), ZEL_ERR_WRITE_DENIED, &b);
}

// The address reader: the invalid form's count left behind, unknown kinds,
// digit counts that disagree with the kind, and digits that run out.
TEST_F(StreamFormsTest, AddressReading) {
  CZEL_IpAddress const invalid;
  CZEL_MemoryBuffer b;
  b << invalid << CZEL_IpAddress(CZEL_String("1.2.3.4"));
  EXPECT_EQ(b.GetSize(), 6u + 22u);
  b.ToStart();
  CZEL_IpAddress got(CZEL_String("9.9.9.9"));
  b >> got;
  EXPECT_TRUE(got == invalid);
  EXPECT_EQ(b.GetAbsPosition(), 2u);
  ZEL::u32 count = 7;
  b >> count;  // the writer's digit count, taken off by hand
  EXPECT_EQ(count, 0u);
  b >> got;
  EXPECT_EQ(Text(got.ToString()), "1.2.3.4");

  CZEL_MemoryBuffer unknown = Holding({2, 0, 4, 0, 0, 0});
  got = CZEL_String("9.9.9.9");
  EXPECT_ZEL_THROW(unknown >> got, ZEL_ERR_FAILED, &unknown);
  EXPECT_TRUE(got == invalid);
  EXPECT_EQ(unknown.GetAbsPosition(), 2u);

  CZEL_MemoryBuffer three = Holding({0, 0, 3, 0, 0, 0, 10, 0, 0, 0, 20, 0, 0, 0, 30, 0, 0, 0});
  three >> got;
  EXPECT_EQ(Text(got.ToString()), "10.20.30.0");  // three digits, the fourth printed as 0
  EXPECT_EQ(got.GetDigit(2), 30);
  EXPECT_EQ(got.GetDigit(3), 0);

  CZEL_MemoryBuffer wide =
      Holding({0, 0, 4, 0, 0, 0, 0x2C, 0x01, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0});
  wide >> got;
  EXPECT_EQ(Text(got.ToString()), "300.1.1.1");  // the digits' ranges are free

  CZEL_MemoryBuffer kindOnly = Holding({1, 0});
  EXPECT_ZEL_THROW(kindOnly >> got, ZEL_ERR_OUT_OF_RANGE, &kindOnly);
  EXPECT_FALSE(got == invalid);  // the kind is set, no digits
  EXPECT_EQ(Text(got.ToString()), "0000:0000:0000:0000:0000:0000:0000:0000");

  CZEL_MemoryBuffer short_digits = Holding({0, 0, 4, 0, 0, 0, 7, 0, 0, 0, 8, 0});
  EXPECT_ZEL_THROW(short_digits >> got, ZEL_ERR_OUT_OF_RANGE, &short_digits);
  EXPECT_EQ(got.GetDigit(0), 7);
  EXPECT_EQ(short_digits.GetAbsPosition(), 10u);

  CZEL_MemoryBuffer nothing = Holding({0});
  got = CZEL_String("9.9.9.9");
  EXPECT_ZEL_THROW(nothing >> got, ZEL_ERR_OUT_OF_RANGE, &nothing);
  EXPECT_TRUE(got == invalid);
}

}  // namespace
