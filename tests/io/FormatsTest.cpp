// SPDX-License-Identifier: Apache-2.0
// The formats on files: CSV records and Windows bitmaps, whose fixture files
// the tests write byte by byte.

#include <tuple>

#include "IoTestSupport.h"

using namespace std::string_literals;
using namespace zel_test;
using ZEL::u32;

namespace {

constexpr u32 kCrLf = F::LINE_END_CR | F::LINE_END_LF;
constexpr u32 kNewFile = F::FILE_OPEN_WRITE | F::FILE_OPEN_TRUNCATE;

CZEL_StringVector Record(Lines const& fields) {
  CZEL_StringVector record;
  for (std::string const& f : fields) record += Make(f);
  return record;
}

class CsvFileTest : public TempDirTest {};

// Only a field with the separator is quoted, and a NUL ends the line's text.
TEST_F(CsvFileTest, Writing) {
  for (auto const& [fields, lineEnd, bytes] :
       {std::tuple(Lines{"a", "b;c", ""}, kCrLf, "a;\"b;c\";\r\n"s),
        std::tuple(Lines{"\"q\"", "x,y", "l\nf"}, u32{F::LINE_END_LF}, "\"q\";x,y;l\nf\n"s),
        std::tuple(Lines{"a", "b\0c"s, "d"}, 7u, "a;b\0\r\n"s)}) {
    CZEL_CsvFile csv(3, ';', lineEnd);
    CZEL_StringVector record = Record(fields);
    ASSERT_EQ(csv.Open(Z("w"), kNewFile), 0u);
    EXPECT_EQ(csv.WriteRecord(record), 0u);
    csv.Close();
    EXPECT_EQ(OnDisk("w"), bytes);
  }
  EXPECT_ZEL_THROW(CZEL_CsvFile(0, ';', kCrLf), ZEL_ERR_INVALID_ARGUMENT, nullptr);
  CZEL_CsvFile csv(3, ';', kCrLf), bare(1, ';', 0);
  CZEL_StringVector two = Record({"a", "b"}), three = Record({"a", "b", "c"}), empty = Record({""});
  EXPECT_EQ(csv.WriteRecord(three) + bare.WriteRecord(empty), ZEL_ERR_FILE_NOT_OPEN);  // an empty
  ASSERT_EQ(csv.Open(Z("w"), kNewFile), 0u);  // line without line end writes nothing, even closed
  EXPECT_EQ(csv.WriteRecord(two), ZEL_ERR_INVALID_ARGUMENT);
  // The reader fails the whole file on one line of another field count, the
  // count of records kept; reading closes the object.
  u32 count = 7;
  for (auto const& [bytes, countAfter] : {std::pair("a;b;c\na;\"b;c\";d\n"s, 2u),  // four fields
                                          {"a;b;\n"s, 1u},          // an empty tail is no field
                                          {"a;b;c\n\n"s, 2u},       // nor has an empty line
                                          {"a;b;c\r\n\r"s, 1u}}) {  // a line of dropped bytes
    Spit("in", bytes);
    EXPECT_EQ(csv.ReadFile(Z("in"), count), nullptr) << bytes;
    EXPECT_EQ(count, countAfter) << bytes;
  }
  EXPECT_EQ(csv.WriteRecord(three), ZEL_ERR_FILE_NOT_OPEN);
  EXPECT_EQ(csv.ReadFile(Z("missing"), count), nullptr);
  EXPECT_EQ(count, 1u);
}

// A bitmap file with its header fields under the test's control, a 3 x 2
// true-colour image by default; the pixel bytes are 0, 1, 2, ... (more than
// any image here needs) so that a colour tells its address.
struct Bmp {
  ZEL::u16 bits = 24;
  int width = 3;
  std::vector<u32> palette{};  // also the count of colours used
  u32 size = 40, pixelBytes = 64, sizeImage = 0;
  int height = 2;

  std::string Bytes() const {
    std::string b = "BM";
    auto put = [&b](u32 value, int width) {
      for (int i = 0; i < width; ++i) b += char(value >> (8 * i));
    };
    u32 const colours = u32(palette.size());
    for (u32 field : {0u, 0u, 14 + size + 4 * colours, size, u32(width), u32(height),
                      1u | bits << 16, 0u, sizeImage, 1u, 2u, colours, 0u})
      put(field, 4);
    b.resize(14 + size);
    for (u32 entry : palette) put(entry, 4);
    for (u32 i = 0; i < pixelBytes; ++i) b += char(i);
    return b;
  }
};

// The results of both queries at (x, y): codes, index and colour as
// 0xRRGGBB with the reserved byte on top.
Codes Ask(CZEL_WinBitmapData& bitmap, u32 x, u32 y) {
  u32 index = 0;
  ZEL::t_WinRgbQuad c{0, 0, 0, 0};
  // A braced list is evaluated in order: each value after the call that sets it.
  return {bitmap.GetPixelColorIndex(x, y, index), index, bitmap.GetPixelColor(x, y, c),
          u32(c.reserved) << 24 | u32(c.red) << 16 | u32(c.green) << 8 | c.blue};
}

class WinBitmapDataTest : public TempDirTest {
 protected:
  u32 Load(std::string const& bytes, CZEL_WinBitmapData& bitmap) {
    Spit("t.bmp", bytes);
    return bitmap.LoadFromFile(Z("t.bmp"));
  }
  CZEL_WinBitmapData m_Bitmap;
};

// Each header mutation and cut of the file: the code of a load and of a
// header read, which keeps only the fields before a failure.
TEST_F(WinBitmapDataTest, HeaderChecks) {
  struct Row {
    u32 size, cut;
    char signature;
    u32 code;
  } const rows[] = {{40, 17, 'B', ZEL_ERR_BAD_FORMAT}, {40, 53, 'B', ZEL_ERR_BAD_FORMAT},
                    {40, 99, 'b', ZEL_ERR_BAD_FORMAT}, {12, 99, 'B', ZEL_ERR_BAD_FORMAT},
                    {56, 99, 'B', ZEL_ERR_BAD_FORMAT}, {124, 999, 'B', 0}};
  for (Row const& row : rows) {
    SCOPED_TRACE(std::to_string(row.size) + "/" + std::to_string(row.cut) + row.signature);
    CZEL_WinBitmapData::SInfoHeader info{};
    info.biWidth = 77;
    std::string bytes = Bmp{24, 3, {}, row.size}.Bytes().substr(0, row.cut);
    bytes[0] = row.signature;
    EXPECT_EQ(Load(bytes, m_Bitmap), row.code);
    EXPECT_EQ(CZEL_WinBitmapData::ReadInfoFromFile(Z("t.bmp"), info, nullptr), row.code);
    EXPECT_EQ(info.biWidth, row.code == 0 ? 3 : 77);  // the fields before a failure only
  }
  // A header that can't be read, from a file open for writing alone, is
  // refused as too short whatever its bytes hold.
  struct Reader : CZEL_WinBitmapData {
    using CZEL_WinBitmapData::ReadInfoFromFile;
  };
  CZEL_WinBitmapData::SInfoHeader info{};
  F writeOnly;
  Spit("t.bmp", Bmp().Bytes());
  ASSERT_EQ(writeOnly.Open(Z("t.bmp"), F::FILE_OPEN_WRITE), 0u);
  EXPECT_EQ(Reader::ReadInfoFromFile(writeOnly, info, nullptr) + info.biSize, ZEL_ERR_BAD_FORMAT);
  u32 offset = 0;
  EXPECT_EQ(CZEL_WinBitmapData::ReadInfoFromFile(Z("none"), info, &offset) +
                m_Bitmap.LoadFromFile(Z("none")),
            2 * ZEL_ERR_IO);
  Spit("t.bmp", Bmp().Bytes().substr(0, 54));
  ASSERT_EQ(CZEL_WinBitmapData::ReadInfoFromFile(Z("t.bmp"), info, &offset), 0u);
  EXPECT_EQ((Codes{offset, info.biSizeImage, u32(info.biYPelsPerMeter)}), (Codes{54, 24, 2}));
  u32 const depths[][3] = {{4, 0, 16}, {32, 0, 0}, {24, 3, 3}, {8, 65537, 1}, {8, 65536, 0}};
  for (auto const& d : depths) {
    info.biBitCount = ZEL::u16(d[0]);
    info.biClrUsed = d[1];
    EXPECT_EQ(CZEL_WinBitmapData::GetPaletteDepth(info), d[2]) << d[0] << '/' << d[1];
  }
}

// Rows run bottom-up; pixel (0, 0) of the true-colour image is at byte 12.
// Palette colours take the reserved byte from the entry. Kinds without a
// reader, long headers and top-down files are refused.
TEST_F(WinBitmapDataTest, PixelsAndFailedLoads) {
  std::vector<u32> palette = {0, 0xAA0000FF};
  for (u32 i = 2; i < 16; ++i) palette.push_back(i);
  Bmp const topDown{24, 3, {}, 40, 64, 24, -2};
  u32 const kRdy = ZEL_ERR_NOT_READY, kOut = ZEL_ERR_OUT_OF_RANGE, kNo = ZEL_ERR_NOT_SUPPORTED;
  struct {
    Bmp bmp;
    u32 x, y;
    Codes answer;
  } const rows[] = {
      {Bmp(), 0, 0, {kRdy, 0, 0, 0x0E0D0C}},
      {Bmp(), 0xAAAAAAAC, 0, {kRdy, 0, 0, 0x121110}},  // x * 3 wraps to 4
      {Bmp{8, 5, palette}, 1, 1, {0, 1, 0, 0xAA0000FF}},
      {Bmp{8, 5, palette}, 3, 0, {0, 11, 0, 0x00000B}},       // byte 8 + 3
      {Bmp{1, 9, {0, 0xFFFFFF}}, 5, 0, {0, 1, 0, 0xFFFFFF}},  // byte 4 (0x04): bit 2
      {Bmp{4, 5, std::vector<u32>(16)}, 2, 0, {kNo, 0, kNo, 0}},
      {Bmp{24, 5, {1, 2}}, 2, 0, {kNo, 0, kNo, 0}},
      {Bmp{8, 5, {1, 2, 3}, 124}, 2, 0, {0, 2, kRdy, 0}},  // row length 0
      {topDown, 0, 0x7FFFFFFF, {kRdy, 0, kOut, 0}},
  };
  for (auto const& row : rows) {
    SCOPED_TRACE(&row - rows);
    CZEL_WinBitmapData bitmap;
    ASSERT_EQ(Load(row.bmp.Bytes(), bitmap), 0u);
    EXPECT_EQ(Ask(bitmap, row.x, row.y), row.answer);
  }
  CZEL_WinBitmapData color, bytes;
  ASSERT_EQ(Load(Bmp{24, 3, {}, 40, 13, 13}.Bytes(), color), 0u);
  ASSERT_EQ(Load(Bmp{8, 5, {1, 2}, 40, 16}.Bytes(), bytes), 0u);
  ZEL::t_WinRgbQuad c{};
  u32 index = 0;
  // Queries that reach past the bytes held throw from the vectors.
  EXPECT_EQ((Codes{CodeOf([&] { color.GetPixelColor(0, 0, c); }), color.GetPixelColor(1, 0, c),
                   CodeOf([&] { bytes.GetPixelColor(2, 1, c); }),
                   CodeOf([&] { bytes.GetPixelColorIndex(0, 0xFFFFFFFF, index); })}),
            (Codes{ZEL_ERR_BAD_POSITION, ZEL_ERR_OUT_OF_RANGE, ZEL_ERR_BAD_POSITION,
                   ZEL_ERR_BAD_POSITION}));
  // A load that fails at the palette or the pixels leaves a destroyed object;
  // one that fails at the header keeps the old palette and pixels.
  std::string const good = Bmp{8, 5, {7, 8, 9, 10}, 40, 16}.Bytes();
  ASSERT_EQ(Load(Bmp().Bytes(), m_Bitmap), 0u);
  EXPECT_EQ(Load(good.substr(0, 60), m_Bitmap), ZEL_ERR_IO);  // in the palette
  CZEL_WinBitmapData::SInfoHeader const& info = *m_Bitmap.GetInfo();
  EXPECT_EQ(info.biWidth | info.biHeight | info.biBitCount, 0);
  EXPECT_EQ(info.biClrUsed, 4u);  // the rest of the header stays
  EXPECT_EQ(Ask(m_Bitmap, 0, 0), (Codes{ZEL_ERR_OUT_OF_RANGE, 0, ZEL_ERR_OUT_OF_RANGE, 0}));
  ASSERT_EQ(Load(good, bytes), 0u);
  EXPECT_EQ(Load(good.substr(0, 40), bytes), ZEL_ERR_BAD_FORMAT);
  EXPECT_EQ(Ask(bytes, 1, 1), (Codes{0, 1, 0, 8}));
  EXPECT_EQ(CodeOf([&] { Load(Bmp{24, 0}.Bytes(), bytes); }), ZEL_ERR_EMPTY_INPUT);
}

}  // namespace
