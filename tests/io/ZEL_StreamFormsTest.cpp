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

#include <string>

#include "IoTestSupport.h"

using namespace std::string_literals;
using zel_test::Bytes;
using zel_test::Text;

namespace {

using F = CZEL_File;
using B = CZEL_Buffer;

class StreamFormsTest : public zel_test::TempDirTest {};

// A memory buffer holding `bytes`, ready to be read.
CZEL_MemoryBuffer Holding(Bytes bytes) {
  CZEL_MemoryBuffer b(5);
  b.AppendData(bytes.data(), ZEL::u32(bytes.size()));
  b.ToStart();
  return b;
}
CZEL_String Make(std::string const& s) { return CZEL_String(s.data(), ZEL::u32(s.size())); }

// One value of each class on its way to a file and back, its bytes checked
// on disk; then a read past the end moves nothing.
TEST_F(StreamFormsTest, ValuesToFileAndBack) {
  CZEL_String const ab("AB"), withNul = Make("a\0b"s);
  CZEL_Color const color(1, 2, 3);
  CZEL_Date const date(2000, 1, 1), noDate;
  CZEL_Time const noon(12, 0, 0, 0), noTime;
  CZEL_IpAddress const v4(CZEL_String("192.168.0.1")), v6(CZEL_String("1:2:3:4:5:6:7:65535"));
  F file;
  ASSERT_EQ(file.Open(Z("v"), F::FILE_OPEN_WRITE | F::FILE_OPEN_TRUNCATE), 0u);
  CZEL_FileBuffer buffer(4);
  ASSERT_EQ(buffer.AttachFile(&file, B::ACCESS_WRITE), 0u);
  buffer << ab << CZEL_String() << withNul << color << date << noDate << noon << noTime << v4 << v6;
  buffer.Close();
  file.Close();
  Bytes const expected = {2,    0,    0,    0,    'A',  'B',  0,    0,    0,    0,    3,    0,
                          0,    0,    'a',  0,    'b',  // strings
                          1,    2,    3,    0,          // colour
                          0x59, 0x68, 0x25, 0,    0,    0,    0,    0,    0,    0,    0,    0,
                          0,    0,    0,    0x80,                          // dates
                          0x00, 0x2E, 0x93, 0x02, 0xFF, 0xFF, 0xFF, 0xFF,  // times
                          0,    0,    4,    0,    0,    0,    0xC0, 0,    0,    0,    0xA8, 0,
                          0,    0,    0,    0,    0,    0,    1,    0,    0,    0,    1,    0,
                          8,    0,    0,    0,    1,    0,    0,    0,    2,    0,    0,    0,
                          3,    0,    0,    0,    4,    0,    0,    0,    5,    0,    0,    0,
                          6,    0,    0,    0,    7,    0,    0,    0,    0xFF, 0xFF, 0,    0};
  EXPECT_EQ(zel_test::SlurpBytes(PathOf("v")), expected);

  ASSERT_EQ(file.Open(Z("v"), F::FILE_OPEN_READ), 0u);
  ASSERT_EQ(buffer.AttachFile(&file, B::ACCESS_READ), 0u);
  CZEL_String s1, s2("old"), s3;
  CZEL_Color c;
  CZEL_Date d1, d2(date);
  CZEL_Time t1, t2(noon);
  CZEL_IpAddress a1, a2;
  buffer >> s1 >> s2 >> s3 >> c >> d1 >> d2 >> t1 >> t2 >> a1 >> a2;
  EXPECT_EQ(Text(s1) + "|" + Text(s2) + "|" + Text(s3), "AB||a\0b"s);
  EXPECT_EQ(c.GetUnsignedColor(), color.GetUnsignedColor());
  EXPECT_TRUE(d1 == date && d2 == noDate && t1 == noon && t2 == noTime && a1 == v4 && a2 == v6);
  EXPECT_ZEL_THROW(buffer >> d1, ZEL_ERR_OUT_OF_RANGE, &buffer);
  EXPECT_EQ(buffer.GetAbsPosition(), expected.size());
  EXPECT_TRUE(d1 == date);
}

TEST_F(StreamFormsTest, Strings) {
  std::string text(3000, 0);
  for (std::size_t i = 0; i < text.size(); ++i) text[i] = static_cast<char>(i % 251);
  CZEL_MemoryBuffer across(16);  // the length and the text across block ends
  across.AppendData(text.data(), 14);
  across << Make(text);
  across.ToStart();
  across.RetrieveData(text.data(), 14);
  CZEL_String got("old");
  across >> got;
  EXPECT_EQ(Text(got), text);
  // No rollback: a string whose characters are missing has taken the length.
  CZEL_MemoryBuffer b = Holding({5, 0, 0, 0, 'x', 'y'});
  CZEL_String s("abc");
  EXPECT_ZEL_THROW(b >> s, ZEL_ERR_OUT_OF_RANGE, &b);
  EXPECT_EQ(Text(s), "abc  ");
  EXPECT_EQ(b.GetAbsPosition(), 4u);
}

// The invalid form's count stays behind, unknown kinds throw, and counts and
// digits are taken as they come.
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
  b >> count;  // the writer's count of 0, taken off by hand
  b >> got;
  EXPECT_EQ(count, 0u);
  EXPECT_EQ(Text(got.ToString()), "1.2.3.4");

  CZEL_MemoryBuffer unknown = Holding({2, 0, 4, 0, 0, 0});
  EXPECT_ZEL_THROW(unknown >> got, ZEL_ERR_FAILED, &unknown);
  EXPECT_TRUE(got == invalid);
  EXPECT_EQ(unknown.GetAbsPosition(), 2u);

  CZEL_MemoryBuffer three = Holding({0, 0, 3, 0, 0, 0, 0x2C, 1, 0, 0, 20, 0, 0, 0, 30, 0, 0, 0});
  three >> got;
  EXPECT_EQ(Text(got.ToString()), "300.20.30.0");  // three digits, one out of range

  CZEL_MemoryBuffer cut = Holding({1, 0, 8, 0, 0, 0, 7, 0, 0});
  EXPECT_ZEL_THROW(cut >> got, ZEL_ERR_OUT_OF_RANGE, &cut);
  EXPECT_FALSE(got == invalid);  // the kind is kept
  EXPECT_EQ(cut.GetAbsPosition(), 6u);
}

}  // namespace
