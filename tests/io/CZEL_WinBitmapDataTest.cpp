#include <LZEL_Core/frame/CZEL_Exception.h>
#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/frame/ZEL_Primitives.h>
#include <LZEL_Core/io/CZEL_WinBitmapData.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "IoTestSupport.h"

namespace {

using ZEL::u16;
using ZEL::u32;
using Info = CZEL_WinBitmapData::SInfoHeader;

// Appends `value` to `bytes`, least significant byte first.
void Put(std::string& bytes, u32 value, int width) {
  for (int i = 0; i < width; ++i) bytes += static_cast<char>((value >> (8 * i)) & 0xFF);
}

// A bitmap file with every header field under the test's control.
struct Bmp {
  std::string signature = "BM";
  u32 pixelOffset = 0;  // 0: right behind the palette
  u32 size = 40;
  int width = 1;
  int height = 1;
  u16 planes = 1;
  u16 bitCount = 24;
  u32 compression = 0;
  u32 sizeImage = 0;
  int xPels = 2835;
  int yPels = -7;
  u32 clrUsed = 0;
  u32 clrImportant = 0;
  std::vector<u32> palette;
  std::string pixels;

  // The file: the headers, the info header padded to `size` bytes, the
  // palette, zeros up to the pixel offset, the pixels.
  std::string Bytes() const {
    u32 const paletteAt = 14 + size;
    u32 const offset =
        pixelOffset != 0 ? pixelOffset : paletteAt + 4 * static_cast<u32>(palette.size());
    std::string b = signature;
    Put(b, 0xDEAD, 4);  // file size, skipped
    Put(b, 0xBEEF, 4);  // reserved, skipped
    Put(b, offset, 4);
    for (u32 field : {size, u32(width), u32(height)}) Put(b, field, 4);
    Put(b, planes, 2);
    Put(b, bitCount, 2);
    for (u32 field : {compression, sizeImage, u32(xPels), u32(yPels), clrUsed, clrImportant}) {
      Put(b, field, 4);
    }
    b.resize(paletteAt, '\0');
    for (u32 entry : palette) Put(b, entry, 4);
    if (b.size() < offset) b.resize(offset, '\0');
    return b + pixels;
  }
};

// The palette entries that a header of these values calls for.
u32 Depth(u16 bits, u32 used) {
  Info info{};
  info.biBitCount = bits;
  info.biClrUsed = used;
  return CZEL_WinBitmapData::GetPaletteDepth(info);
}

// `count` bytes 0, 1, 2, ...: every pixel byte tells its own address.
std::string Counting(u32 count) {
  std::string bytes;
  for (u32 i = 0; i < count; ++i) bytes += static_cast<char>(i);
  return bytes;
}

// Opens the protected state to the checks.
class Bitmap : public CZEL_WinBitmapData {
 public:
  u32 Stride() const { return m_RowStride; }
  u32 FirstPixelWord() const { return m_FirstPixelWord; }
  u32 PixelOffset() const { return m_PixelOffset; }
  u32 PixelBytes() const { return m_Pixels.GetLength(); }
  void const* Pixels() const { return &m_Pixels; }
  void const* Palette() const { return &m_Palette; }
};

struct Rgb {
  u32 red, green, blue, reserved;
  bool operator==(Rgb const& o) const {
    return red == o.red && green == o.green && blue == o.blue && reserved == o.reserved;
  }
};
std::ostream& operator<<(std::ostream& out, Rgb const& c) {
  return out << c.red << ',' << c.green << ',' << c.blue << ',' << c.reserved;
}

Rgb Color(CZEL_WinBitmapData& bitmap, u32 x, u32 y) {
  ZEL::t_WinRgbQuad c{9, 9, 9, 9};
  EXPECT_EQ(bitmap.GetPixelColor(x, y, c), 0u) << x << ',' << y;
  return {c.red, c.green, c.blue, c.reserved};
}

u32 Index(CZEL_WinBitmapData& bitmap, u32 x, u32 y) {
  u32 index = 999;
  EXPECT_EQ(bitmap.GetPixelColorIndex(x, y, index), 0u) << x << ',' << y;
  return index;
}

// The codes of both queries at (x, y).
std::pair<u32, u32> Codes(CZEL_WinBitmapData& bitmap, u32 x, u32 y) {
  u32 index = 0;
  ZEL::t_WinRgbQuad c{};
  return {bitmap.GetPixelColorIndex(x, y, index), bitmap.GetPixelColor(x, y, c)};
}

class WinBitmapDataTest : public zel_test::TempDirTest {
 protected:
  // Writes `bmp` and loads it into `bitmap`.
  u32 Load(Bmp const& bmp, CZEL_WinBitmapData& bitmap) { return LoadBytes(bmp.Bytes(), bitmap); }
  u32 LoadBytes(std::string const& bytes, CZEL_WinBitmapData& bitmap) {
    zel_test::Spit(PathOf("t.bmp"), bytes);
    return bitmap.LoadFromFile(Z("t.bmp"));
  }
};

// A 24-bit image 3 wide and 2 high: rows of 3 units, 12 bytes, of which 9
// are pixels.
Bmp TrueColor3x2() {
  Bmp bmp;
  bmp.width = 3;
  bmp.height = 2;
  bmp.pixels = Counting(24);
  return bmp;
}

// An 8-bit image 5 wide and 2 high with four palette entries.
Bmp Indexed5x2() {
  Bmp bmp;
  bmp.bitCount = 8;
  bmp.width = 5;
  bmp.height = 2;
  bmp.clrUsed = 4;
  bmp.palette = {0x00000000, 0x11223344, 0xAA0000FF, 0x00FF0000};
  bmp.pixels = std::string("\1\2\3\0\1xyz\0\0\3\2\1abc", 16);
  return bmp;
}

TEST_F(WinBitmapDataTest, BadHeadersAndMissingFiles) {
  std::string const good = TrueColor3x2().Bytes();
  Bmp wrongSignature = TrueColor3x2();
  wrongSignature.signature = "MB";
  Bmp wrongSize = TrueColor3x2();
  wrongSize.size = 56;
  std::string shortSize = good.substr(0, 30);
  shortSize[14] = 12;
  struct Case {
    std::string bytes;
    char const* what;
  } const cases[] = {
      {good.substr(0, 17), "17 bytes"},        {good.substr(0, 30), "30 bytes, header size 40"},
      {shortSize, "30 bytes, header size 12"}, {good.substr(0, 53), "53 bytes"},
      {wrongSignature.Bytes(), "signature"},   {wrongSize.Bytes(), "header size 56"},
  };
  for (Case const& c : cases) {
    CZEL_WinBitmapData bitmap;
    Info info{};
    EXPECT_EQ(LoadBytes(c.bytes, bitmap), ZEL_ERR_BAD_FORMAT) << c.what;
    EXPECT_EQ(CZEL_WinBitmapData::ReadInfoFromFile(Z("t.bmp"), info, nullptr), ZEL_ERR_BAD_FORMAT)
        << c.what;
  }
  CZEL_WinBitmapData bitmap;
  Info info{};
  EXPECT_EQ(bitmap.LoadFromFile(Z("missing.bmp")), ZEL_ERR_IO);
  EXPECT_EQ(CZEL_WinBitmapData::ReadInfoFromFile(Z("missing.bmp"), info, nullptr), ZEL_ERR_IO);
}

TEST_F(WinBitmapDataTest, HeaderFieldsAsStored) {
  Bmp bmp = TrueColor3x2();
  bmp.width = -3;
  bmp.planes = 7;
  bmp.compression = 3;
  bmp.sizeImage = 0x12345678;
  bmp.clrUsed = 0x10001;
  bmp.clrImportant = 9;
  bmp.pixelOffset = 0x99;
  zel_test::Spit(PathOf("t.bmp"), bmp.Bytes());
  Info info{};
  u32 offset = 0;
  ASSERT_EQ(CZEL_WinBitmapData::ReadInfoFromFile(Z("t.bmp"), info, &offset), 0u);
  EXPECT_EQ(offset, 0x99u);
  EXPECT_EQ(info.biSize, 40u);
  EXPECT_EQ(info.biWidth, -3);
  EXPECT_EQ(info.biHeight, 2);
  EXPECT_EQ(info.biPlanes, 7);
  EXPECT_EQ(info.biBitCount, 24);
  EXPECT_EQ(info.biCompression, 3u);
  EXPECT_EQ(info.biSizeImage, 0x12345678u);
  EXPECT_EQ(info.biXPelsPerMeter, 2835);
  EXPECT_EQ(info.biYPelsPerMeter, -7);
  EXPECT_EQ(info.biClrUsed, 0x10001u);
  EXPECT_EQ(info.biClrImportant, 9u);
  EXPECT_EQ(CZEL_WinBitmapData::GetPaletteDepth(info), 1u);

  // A pixel array size of 0 comes back computed: whole rows of 4 bytes.
  CZEL_WinBitmapData bitmap;
  ASSERT_EQ(Load(TrueColor3x2(), bitmap), 0u);
  EXPECT_EQ(bitmap.GetInfo()->biSizeImage, 24u);

  // A failing header keeps the fields read before the failure.
  std::string bytes = TrueColor3x2().Bytes().substr(0, 30);
  bytes[14] = 12;
  zel_test::Spit(PathOf("t.bmp"), bytes);
  info = Info{};
  info.biWidth = 77;
  EXPECT_EQ(CZEL_WinBitmapData::ReadInfoFromFile(Z("t.bmp"), info, &offset), ZEL_ERR_BAD_FORMAT);
  EXPECT_EQ(info.biSize, 12u);
  EXPECT_EQ(info.biWidth, 77);
  EXPECT_EQ(offset, 54u);
}

TEST(CZEL_WinBitmapDataDepth, PaletteDepthByBitsAndColoursUsed) {
  struct Case {
    u16 bits;
    u32 used;
    u32 depth;
  } const cases[] = {
      {1, 0, 2},  {4, 0, 16}, {8, 0, 256},   {16, 0, 0},    {24, 0, 0},
      {32, 0, 0}, {24, 3, 3}, {8, 65537, 1}, {8, 65536, 0}, {2, 0, 0},
  };
  for (Case const& c : cases) {
    Info info{};
    info.biBitCount = c.bits;
    info.biClrUsed = c.used;
    EXPECT_EQ(CZEL_WinBitmapData::GetPaletteDepth(info), c.depth) << c.bits << '/' << c.used;
  }
}

TEST_F(WinBitmapDataTest, RowStridesAndFirstPixelWord) {
  struct Case {
    u16 bits;
    int width;
    u32 used;
    u32 stride;
    u32 firstWord;
  } const cases[] = {
      {24, 3, 0, 3, 0},       // units of 4 bytes
      {24, 1, 0, 1, 0},       //
      {32, 2, 0, 2, 1},       // 1 << 32 is 1 << 0
      {16, 3, 0, 2, 0},       //
      {8, 5, 0, 8, 0},        // bytes, rounded up to 4
      {8, 8, 0, 8, 0},        //
      {1, 9, 0, 4, 0},        // 9 bits, 2 bytes, 4
      {4, 3, 0, 4, 0},        //
      {8, 3, 65536, 1, 256},  // no palette: units, and 1 << 8
  };
  for (Case const& c : cases) {
    Bmp bmp;
    bmp.bitCount = c.bits;
    bmp.width = c.width;
    bmp.clrUsed = c.used;
    bmp.sizeImage = 64;
    bmp.pixels = Counting(64);
    bmp.palette.assign(Depth(c.bits, c.used), 0);
    Bitmap bitmap;
    ASSERT_EQ(Load(bmp, bitmap), 0u) << c.bits << '/' << c.width;
    EXPECT_EQ(bitmap.Stride(), c.stride) << c.bits << '/' << c.width;
    EXPECT_EQ(bitmap.FirstPixelWord(), c.firstWord) << c.bits << '/' << c.width;
  }
}

TEST_F(WinBitmapDataTest, TrueColorRowsRunBottomUp) {
  CZEL_WinBitmapData bitmap;
  ASSERT_EQ(Load(TrueColor3x2(), bitmap), 0u);
  EXPECT_EQ(Color(bitmap, 0, 0), (Rgb{14, 13, 12, 0}));  // second stored row, byte 12
  EXPECT_EQ(Color(bitmap, 2, 0), (Rgb{20, 19, 18, 0}));
  EXPECT_EQ(Color(bitmap, 2, 1), (Rgb{8, 7, 6, 0}));
  EXPECT_EQ(bitmap.GetPaletteEntry(0), 0u);
  u32 index = 0;
  EXPECT_EQ(bitmap.GetPixelColorIndex(0, 0, index), ZEL_ERR_NOT_READY);
  ZEL::t_WinRgbQuad c{};
  EXPECT_EQ(bitmap.GetPixelColor(3, 0, c), ZEL_ERR_OUT_OF_RANGE);
  EXPECT_EQ(bitmap.GetPixelColor(0, 2, c), ZEL_ERR_OUT_OF_RANGE);
}

TEST_F(WinBitmapDataTest, EightBitIndicesAndPaletteColours) {
  CZEL_WinBitmapData bitmap;
  ASSERT_EQ(Load(Indexed5x2(), bitmap), 0u);
  // Stored row 1 (image row 0) starts at byte 8.
  EXPECT_EQ(Index(bitmap, 0, 0), 0u);
  EXPECT_EQ(Index(bitmap, 1, 0), 0u);
  EXPECT_EQ(Index(bitmap, 2, 0), 3u);
  EXPECT_EQ(Index(bitmap, 0, 1), 1u);
  EXPECT_EQ(Index(bitmap, 4, 1), 1u);
  EXPECT_EQ(Color(bitmap, 0, 1), (Rgb{0x22, 0x33, 0x44, 0x11}));  // reserved from the entry
  EXPECT_EQ(Color(bitmap, 1, 1), (Rgb{0, 0, 0xFF, 0xAA}));
  EXPECT_EQ(Color(bitmap, 2, 0), (Rgb{0xFF, 0, 0, 0}));
  EXPECT_EQ(bitmap.GetPaletteEntry(1), 0x11223344u);
  EXPECT_EQ(bitmap.GetPaletteEntry(4), 0u);
  u32 index = 0;
  EXPECT_EQ(bitmap.GetPixelColorIndex(5, 0, index), ZEL_ERR_OUT_OF_RANGE);
}

TEST_F(WinBitmapDataTest, OneBitPixelsReadFromTheTopBit) {
  Bmp bmp;
  bmp.bitCount = 1;
  bmp.width = 9;
  bmp.height = 2;
  bmp.palette = {0x00000000, 0x00FFFFFF};
  bmp.pixels = std::string("\x80\x00\x00\x00\x40\x80\x00\x00", 8);
  CZEL_WinBitmapData bitmap;
  ASSERT_EQ(Load(bmp, bitmap), 0u);
  EXPECT_EQ(Index(bitmap, 0, 1), 1u);  // first stored row
  EXPECT_EQ(Index(bitmap, 1, 1), 0u);
  EXPECT_EQ(Index(bitmap, 1, 0), 1u);  // second stored row, 4 bytes on
  EXPECT_EQ(Index(bitmap, 8, 0), 1u);
  EXPECT_EQ(Color(bitmap, 8, 0), (Rgb{255, 255, 255, 0}));
  EXPECT_EQ(Color(bitmap, 0, 0), (Rgb{0, 0, 0, 0}));
}

// Which query answers for which kind of bitmap.
TEST_F(WinBitmapDataTest, QueriesByKindOfBitmap) {
  struct Case {
    u16 bits;
    u32 used;
    u32 indexCode;
    u32 colorCode;
  } const cases[] = {
      {1, 0, 0, 0},
      {8, 0, 0, 0},
      {4, 0, ZEL_ERR_NOT_SUPPORTED, ZEL_ERR_NOT_SUPPORTED},
      {24, 0, ZEL_ERR_NOT_READY, 0},
      {24, 2, ZEL_ERR_NOT_SUPPORTED, ZEL_ERR_NOT_SUPPORTED},
      {16, 0, ZEL_ERR_NOT_READY, ZEL_ERR_NOT_SUPPORTED},
      {32, 0, ZEL_ERR_NOT_READY, ZEL_ERR_NOT_SUPPORTED},
  };
  for (Case const& c : cases) {
    Bmp bmp;
    bmp.bitCount = c.bits;
    bmp.clrUsed = c.used;
    bmp.palette.assign(Depth(c.bits, c.used), 0);
    bmp.pixels = std::string(4, '\0');
    CZEL_WinBitmapData bitmap;
    ASSERT_EQ(Load(bmp, bitmap), 0u) << c.bits;
    EXPECT_EQ(Codes(bitmap, 0, 0), std::make_pair(c.indexCode, c.colorCode))
        << c.bits << '/' << c.used;
  }
}

// Longer headers load, with the palette behind them; colours are refused,
// and indices read with the row length left from before.
TEST_F(WinBitmapDataTest, LongHeadersLoadButOnlyIndicesAnswer) {
  for (u32 size : {108u, 124u}) {
    Bmp bmp = Indexed5x2();
    bmp.size = size;
    Bitmap fresh;
    ASSERT_EQ(Load(bmp, fresh), 0u) << size;
    EXPECT_EQ(fresh.GetPaletteEntry(1), 0x11223344u);
    EXPECT_EQ(fresh.Stride(), 0u);
    EXPECT_EQ(Index(fresh, 2, 0), 3u);  // row length 0: the first stored row
    EXPECT_EQ(Index(fresh, 2, 1), 3u);
    ZEL::t_WinRgbQuad c{};
    EXPECT_EQ(fresh.GetPixelColor(0, 0, c), ZEL_ERR_NOT_READY);

    Bitmap reused;
    Bmp wide = Indexed5x2();
    wide.width = 9;  // rows of 12 bytes
    wide.pixels = Counting(24);
    ASSERT_EQ(Load(wide, reused), 0u);
    ASSERT_EQ(Load(bmp, reused), 0u);
    EXPECT_EQ(reused.Stride(), 12u);
    EXPECT_EQ(Index(reused, 2, 1), 3u);
    EXPECT_EQ(Index(reused, 2, 0), u32{'b'});  // byte 12 + 2
  }
}

TEST_F(WinBitmapDataTest, TopDownFilesLoadButNoPixelAnswers) {
  Bmp bmp = TrueColor3x2();
  bmp.height = -2;
  bmp.sizeImage = 24;
  CZEL_WinBitmapData bitmap;
  ASSERT_EQ(Load(bmp, bitmap), 0u);
  for (u32 y : {0u, 1u, 0x7FFFFFFFu}) {
    ZEL::t_WinRgbQuad c{};
    EXPECT_EQ(bitmap.GetPixelColor(0, y, c), ZEL_ERR_OUT_OF_RANGE) << y;
  }
}

// Coordinates of 2^31 and more pass the signed bounds; the address then
// reaches outside the pixels or wraps.
TEST_F(WinBitmapDataTest, HighCoordinatesPassTheBounds) {
  Bitmap indexed;
  ASSERT_EQ(Load(Indexed5x2(), indexed), 0u);
  u32 index = 0;
  EXPECT_ZEL_THROW(indexed.GetPixelColorIndex(0x80000000u, 0, index), ZEL_ERR_BAD_POSITION,
                   indexed.Pixels());
  // y of -1: stored row 2, 16 bytes in.
  EXPECT_ZEL_THROW(indexed.GetPixelColorIndex(0, 0xFFFFFFFFu, index), ZEL_ERR_BAD_POSITION,
                   indexed.Pixels());

  CZEL_WinBitmapData color;
  ASSERT_EQ(Load(TrueColor3x2(), color), 0u);
  ZEL::t_WinRgbQuad c{};
  EXPECT_EQ(color.GetPixelColor(0x80000000u, 0, c), ZEL_ERR_OUT_OF_RANGE);
  // x * 3 wraps to 4: byte 16 of the second stored row.
  EXPECT_EQ(Color(color, 0xAAAAAAACu, 0), (Rgb{18, 17, 16, 0}));
}

// Pixel bytes shorter than the header promises load; the queries that reach
// past them fail or throw.
TEST_F(WinBitmapDataTest, PixelsShorterThanTheImage) {
  Bmp bmp = TrueColor3x2();
  bmp.sizeImage = 13;
  bmp.pixels = Counting(13);
  Bitmap color;
  ASSERT_EQ(Load(bmp, color), 0u);
  ZEL::t_WinRgbQuad c{};
  EXPECT_ZEL_THROW(color.GetPixelColor(0, 0, c), ZEL_ERR_BAD_POSITION, color.Pixels());
  EXPECT_EQ(color.GetPixelColor(1, 0, c), ZEL_ERR_OUT_OF_RANGE);
  EXPECT_EQ(Color(color, 2, 1), (Rgb{8, 7, 6, 0}));

  bmp = Indexed5x2();
  bmp.clrUsed = 2;
  bmp.palette.resize(2);
  Bitmap indexed;
  ASSERT_EQ(Load(bmp, indexed), 0u);
  EXPECT_EQ(Index(indexed, 2, 0), 3u);  // an index past the palette is still an index
  EXPECT_ZEL_THROW(indexed.GetPixelColor(2, 0, c), ZEL_ERR_BAD_POSITION, indexed.Palette());
}

// A load that fails at the palette or the pixels leaves a destroyed object;
// one that fails at the header keeps the old palette and pixels.
TEST_F(WinBitmapDataTest, FailedLoadsLeaveTheirStates) {
  std::string const good = Indexed5x2().Bytes();
  struct Case {
    std::string bytes;
    char const* what;
  } const cases[] = {
      {good.substr(0, 60), "ends in the palette"},
      {good.substr(0, good.size() - 1), "ends in the pixels"},
  };
  for (Case const& c : cases) {
    Bitmap bitmap;
    ASSERT_EQ(Load(TrueColor3x2(), bitmap), 0u);
    EXPECT_EQ(LoadBytes(c.bytes, bitmap), ZEL_ERR_IO) << c.what;
    Info const& info = *bitmap.GetInfo();
    EXPECT_EQ(info.biWidth, 0) << c.what;
    EXPECT_EQ(info.biHeight, 0) << c.what;
    EXPECT_EQ(info.biBitCount, 0) << c.what;
    EXPECT_EQ(info.biClrUsed, 4u) << c.what;  // the rest of the header stays
    EXPECT_EQ(bitmap.PixelBytes(), 0u) << c.what;
    EXPECT_EQ(bitmap.GetPaletteEntry(1), 0u) << c.what;
    EXPECT_EQ(bitmap.Stride(), 3u) << c.what;  // from the load before
    ZEL::t_WinRgbQuad color{};
    EXPECT_EQ(bitmap.GetPixelColor(0, 0, color), ZEL_ERR_OUT_OF_RANGE) << c.what;
  }

  Bmp farOffset = Indexed5x2();
  farOffset.pixelOffset = 4000;
  Bitmap bitmap;
  EXPECT_EQ(LoadBytes(farOffset.Bytes().substr(0, 100), bitmap), ZEL_ERR_IO);

  ASSERT_EQ(Load(Indexed5x2(), bitmap), 0u);
  std::string header = TrueColor3x2().Bytes().substr(0, 40);
  EXPECT_EQ(LoadBytes(header, bitmap), ZEL_ERR_BAD_FORMAT);
  EXPECT_EQ(bitmap.GetPaletteEntry(1), 0x11223344u);
  EXPECT_EQ(bitmap.PixelBytes(), 16u);
  EXPECT_EQ(Index(bitmap, 2, 0), 3u);

  Bmp empty = TrueColor3x2();
  empty.width = 0;
  empty.pixels.clear();
  EXPECT_ZEL_THROW(Load(empty, bitmap), ZEL_ERR_EMPTY_INPUT, bitmap.Pixels());
}

TEST_F(WinBitmapDataTest, NewDestroyedAndCopiedObjects) {
  CZEL_WinBitmapData fresh;
  Info const& info = *fresh.GetInfo();
  EXPECT_EQ(info.biWidth | info.biHeight | info.biBitCount | int(info.biCompression), 0);
  EXPECT_EQ(fresh.GetPaletteEntry(0), 0u);

  CZEL_WinBitmapData bitmap;
  ASSERT_EQ(Load(Indexed5x2(), bitmap), 0u);
  CZEL_WinBitmapData copy(bitmap);
  CZEL_WinBitmapData assigned;
  assigned = bitmap;
  bitmap.Destroy();
  EXPECT_EQ(bitmap.GetInfo()->biSizeImage, 16u);
  ZEL::t_WinRgbQuad c{};
  EXPECT_EQ(bitmap.GetPixelColor(0, 0, c), ZEL_ERR_OUT_OF_RANGE);
  u32 index = 0;
  EXPECT_EQ(bitmap.GetPixelColorIndex(0, 0, index), ZEL_ERR_OUT_OF_RANGE);  // a palette still
  for (CZEL_WinBitmapData* other : {&copy, &assigned}) {
    EXPECT_EQ(Index(*other, 2, 0), 3u);
    EXPECT_EQ(Color(*other, 0, 1), (Rgb{0x22, 0x33, 0x44, 0x11}));
  }
}

}  // namespace
