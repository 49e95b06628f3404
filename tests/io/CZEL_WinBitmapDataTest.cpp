#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/frame/ZEL_Primitives.h>
#include <LZEL_Core/io/CZEL_WinBitmapData.h>

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "IoTestSupport.h"

namespace {

using ZEL::u16;
using ZEL::u32;
using Info = CZEL_WinBitmapData::SInfoHeader;

// A bitmap file with every header field under the test's control; the pixel
// bytes default to 0, 1, 2, ... so that a colour tells its address.
struct Bmp {
  std::string signature = "BM";
  u32 size = 40;
  int width = 3;
  int height = 2;
  u16 bits = 24;
  u32 sizeImage = 0;
  u32 used = 0;
  std::vector<u32> palette;
  u32 pixelBytes = 24;

  std::string Bytes() const {
    std::string b = signature;
    auto put = [&b](u32 value, int width) {
      for (int i = 0; i < width; ++i) b += char(value >> (8 * i));
    };
    u32 const offset = 14 + size + 4 * u32(palette.size());
    for (u32 field : {0u, 0u, offset, size, u32(width), u32(height)}) put(field, 4);
    put(1, 2);
    put(bits, 2);
    for (u32 field : {0u, sizeImage, 1u, 2u, used, 0u}) put(field, 4);
    b.resize(14 + size);
    for (u32 entry : palette) put(entry, 4);
    for (u32 i = 0; i < pixelBytes; ++i) b += char(i);
    return b;
  }
};

Bmp Indexed(u16 bits, int width, std::vector<u32> palette) {
  Bmp bmp;
  bmp.bits = bits;
  bmp.width = width;
  bmp.used = u32(palette.size());
  bmp.palette = palette;
  bmp.pixelBytes = 16;
  return bmp;
}

// Opens the vectors to the checks.
class Bitmap : public CZEL_WinBitmapData {
 public:
  u32 PixelBytes() const { return m_Pixels.GetLength(); }
  void const* Pixels() const { return &m_Pixels; }
  void const* Palette() const { return &m_Palette; }
};

// The results of both queries at (x, y): code and index, code and colour as
// 0xRRGGBB with the reserved byte on top.
using Answer = std::tuple<u32, u32, u32, u32>;
Answer Ask(CZEL_WinBitmapData& bitmap, u32 x, u32 y) {
  u32 index = 0;
  ZEL::t_WinRgbQuad c{0, 0, 0, 0};
  u32 const indexCode = bitmap.GetPixelColorIndex(x, y, index);
  u32 const colorCode = bitmap.GetPixelColor(x, y, c);
  return {indexCode, index, colorCode,
          u32(c.reserved) << 24 | u32(c.red) << 16 | u32(c.green) << 8 | c.blue};
}

class WinBitmapDataTest : public zel_test::TempDirTest {
 protected:
  u32 Load(std::string const& bytes, CZEL_WinBitmapData& bitmap) {
    zel_test::Spit(PathOf("t.bmp"), bytes);
    return bitmap.LoadFromFile(Z("t.bmp"));
  }
};

TEST_F(WinBitmapDataTest, HeaderChecksAndFields) {
  std::string const good = Bmp().Bytes();
  std::string size12 = good.substr(0, 30);
  size12[14] = 12;
  Bmp wrongSignature;
  wrongSignature.signature = "MB";
  Bmp size56;
  size56.size = 56;
  for (std::string const& bytes : {good.substr(0, 17), good.substr(0, 30), size12,
                                   good.substr(0, 53), wrongSignature.Bytes(), size56.Bytes()}) {
    Info info{};
    info.biWidth = 77;
    CZEL_WinBitmapData bitmap;
    EXPECT_EQ(Load(bytes, bitmap), ZEL_ERR_BAD_FORMAT) << bytes.size();
    EXPECT_EQ(CZEL_WinBitmapData::ReadInfoFromFile(Z("t.bmp"), info, nullptr), ZEL_ERR_BAD_FORMAT);
    EXPECT_EQ(info.biWidth, 77);  // the fields before the failure only
  }
  Info info{};
  u32 offset = 0;
  EXPECT_EQ(CZEL_WinBitmapData::ReadInfoFromFile(Z("none"), info, &offset), ZEL_ERR_IO);
  zel_test::Spit(PathOf("t.bmp"), good);
  ASSERT_EQ(CZEL_WinBitmapData::ReadInfoFromFile(Z("t.bmp"), info, &offset), 0u);
  EXPECT_EQ(offset, 54u);
  EXPECT_EQ(info.biSizeImage, 24u);  // computed from 3 x 2 at 24 bits
  EXPECT_EQ(info.biYPelsPerMeter, 2);
  EXPECT_EQ(CZEL_WinBitmapData().LoadFromFile(Z("none")), ZEL_ERR_IO);
}

TEST(CZEL_WinBitmapDataDepth, PaletteDepthByBitsAndColoursUsed) {
  u32 const cases[][3] = {{1, 0, 2},  {4, 0, 16}, {8, 0, 256},   {16, 0, 0},   {24, 0, 0},
                          {32, 0, 0}, {24, 3, 3}, {8, 65537, 1}, {8, 65536, 0}};
  for (auto const& c : cases) {
    Info info{};
    info.biBitCount = u16(c[0]);
    info.biClrUsed = c[1];
    EXPECT_EQ(CZEL_WinBitmapData::GetPaletteDepth(info), c[2]) << c[0] << '/' << c[1];
  }
}

// Rows run bottom-up; pixel (0, 0) of the 3 x 2 true-colour image is at byte
// 12. Palette colours take the reserved byte from the entry.
TEST_F(WinBitmapDataTest, PixelsOfEveryReadableKind) {
  std::vector<u32> palette = {0x11223344, 0xAA0000FF, 0x00FF0000, 0x00000001};
  for (u32 i = 4; i < 16; ++i) palette.push_back(i);
  CZEL_WinBitmapData color, bytes, bits;
  ASSERT_EQ(Load(Bmp().Bytes(), color), 0u);
  ASSERT_EQ(Load(Indexed(8, 5, palette).Bytes(), bytes), 0u);
  ASSERT_EQ(Load(Indexed(1, 9, {0x00000000, 0x00FFFFFF}).Bytes(), bits), 0u);
  struct Case {
    CZEL_WinBitmapData* bitmap;
    u32 x, y;
    Answer answer;
  } const cases[] = {
      {&color, 0, 0, {ZEL_ERR_NOT_READY, 0, 0, 0x0E0D0C}},
      {&color, 2, 1, {ZEL_ERR_NOT_READY, 0, 0, 0x080706}},
      {&color, 3, 0, {ZEL_ERR_NOT_READY, 0, ZEL_ERR_OUT_OF_RANGE, 0}},
      {&color, 0xAAAAAAAC, 0, {ZEL_ERR_NOT_READY, 0, 0, 0x121110}},  // x * 3 wraps to 4
      {&bytes, 1, 1, {0, 1, 0, 0xAA0000FF}},                         // byte 1
      {&bytes, 3, 0, {0, 11, 0, 0x00000B}},                          // byte 8 + 3
      {&bytes, 0, 2, {ZEL_ERR_OUT_OF_RANGE, 0, ZEL_ERR_OUT_OF_RANGE, 0}},
      {&bits, 0, 1, {0, 0, 0, 0}},         // byte 0: bit 7 of 0
      {&bits, 7, 1, {0, 0, 0, 0}},         // bit 0 of 0
      {&bits, 5, 0, {0, 1, 0, 0xFFFFFF}},  // byte 4 (0x04): bit 2
      {&bits, 8, 0, {0, 0, 0, 0}},         // byte 5: bit 7 of 0x05
  };
  for (Case const& c : cases) EXPECT_EQ(Ask(*c.bitmap, c.x, c.y), c.answer) << c.x << ',' << c.y;
  EXPECT_EQ(bytes.GetPaletteEntry(3), 1u);
  EXPECT_EQ(bytes.GetPaletteEntry(16), 0u);
}

// Kinds without a reader, long headers, and top-down files.
TEST_F(WinBitmapDataTest, QueriesThatAreRefused) {
  struct Case {
    Bmp bmp;
    Answer answer;
  } cases[] = {
      {Indexed(4, 5, std::vector<u32>(16)), {ZEL_ERR_NOT_SUPPORTED, 0, ZEL_ERR_NOT_SUPPORTED, 0}},
      {Indexed(24, 5, {1, 2}), {ZEL_ERR_NOT_SUPPORTED, 0, ZEL_ERR_NOT_SUPPORTED, 0}},
      {Indexed(16, 5, {}), {ZEL_ERR_NOT_READY, 0, ZEL_ERR_NOT_SUPPORTED, 0}},
      {Indexed(32, 5, {}), {ZEL_ERR_NOT_READY, 0, ZEL_ERR_NOT_SUPPORTED, 0}},
      {Indexed(8, 5, {1, 2, 3}), {0, 2, ZEL_ERR_NOT_READY, 0}},  // 108 bytes: row length 0
      {Indexed(8, 5, {1, 2, 3}), {0, 2, ZEL_ERR_NOT_READY, 0}},  // 124 bytes
      {Bmp(), {ZEL_ERR_NOT_READY, 0, ZEL_ERR_OUT_OF_RANGE, 0}},  // height -2
  };
  cases[4].bmp.size = 108;
  cases[5].bmp.size = 124;
  cases[6].bmp.height = -2;
  cases[6].bmp.sizeImage = 24;
  for (Case const& c : cases) {
    Bmp bmp = c.bmp;
    bmp.pixelBytes = 64;  // enough for every width here
    CZEL_WinBitmapData bitmap;
    ASSERT_EQ(Load(bmp.Bytes(), bitmap), 0u) << c.bmp.bits;
    EXPECT_EQ(Ask(bitmap, 2, 0), c.answer) << c.bmp.bits << '/' << c.bmp.size;
  }
  CZEL_WinBitmapData topDown;
  ASSERT_EQ(Load(cases[6].bmp.Bytes(), topDown), 0u);
  EXPECT_EQ(std::get<2>(Ask(topDown, 0, 0x7FFFFFFF)), ZEL_ERR_OUT_OF_RANGE);
}

// Queries that reach past the bytes held throw from the vectors.
TEST_F(WinBitmapDataTest, ReachingPastTheBytesThrows) {
  Bmp shortColor;
  shortColor.pixelBytes = shortColor.sizeImage = 13;
  Bitmap color, bytes;
  ASSERT_EQ(Load(shortColor.Bytes(), color), 0u);
  ASSERT_EQ(Load(Indexed(8, 5, {1, 2}).Bytes(), bytes), 0u);
  ZEL::t_WinRgbQuad c{};
  u32 index = 0;
  EXPECT_ZEL_THROW(color.GetPixelColor(0, 0, c), ZEL_ERR_BAD_POSITION, color.Pixels());
  EXPECT_EQ(color.GetPixelColor(1, 0, c), ZEL_ERR_OUT_OF_RANGE);  // byte 15 of 13
  EXPECT_ZEL_THROW(bytes.GetPixelColor(2, 1, c), ZEL_ERR_BAD_POSITION, bytes.Palette());
  EXPECT_ZEL_THROW(bytes.GetPixelColorIndex(0x80000000, 0, index), ZEL_ERR_BAD_POSITION,
                   bytes.Pixels());
  EXPECT_ZEL_THROW(bytes.GetPixelColorIndex(0, 0xFFFFFFFF, index), ZEL_ERR_BAD_POSITION,
                   bytes.Pixels());
}

// A load that fails at the palette or the pixels leaves a destroyed object;
// one that fails at the header keeps the old palette and pixels.
TEST_F(WinBitmapDataTest, FailedLoadsAndCopies) {
  std::string const good = Indexed(8, 5, {7, 8, 9, 10}).Bytes();
  for (std::string const& bytes : {good.substr(0, 60), good.substr(0, good.size() - 1)}) {
    Bitmap bitmap;
    ASSERT_EQ(Load(Bmp().Bytes(), bitmap), 0u);
    EXPECT_EQ(Load(bytes, bitmap), ZEL_ERR_IO);
    Info const& info = *bitmap.GetInfo();
    EXPECT_EQ(info.biWidth | info.biHeight | info.biBitCount, 0);
    EXPECT_EQ(info.biClrUsed, 4u);  // the rest of the header stays
    EXPECT_EQ(bitmap.PixelBytes() + bitmap.GetPaletteEntry(0), 0u);
    EXPECT_EQ(Ask(bitmap, 0, 0), (Answer{ZEL_ERR_OUT_OF_RANGE, 0, ZEL_ERR_OUT_OF_RANGE, 0}));
  }
  Bitmap bitmap;
  ASSERT_EQ(Load(good, bitmap), 0u);
  EXPECT_EQ(Load(good.substr(0, 40), bitmap), ZEL_ERR_BAD_FORMAT);
  EXPECT_EQ(Ask(bitmap, 1, 1), (Answer{0, 1, 0, 8}));

  CZEL_WinBitmapData copy(bitmap);
  CZEL_WinBitmapData assigned;
  assigned = bitmap;
  bitmap.Destroy();
  EXPECT_EQ(Ask(copy, 1, 1), (Answer{0, 1, 0, 8}));
  EXPECT_EQ(Ask(assigned, 1, 1), (Answer{0, 1, 0, 8}));
  Bmp empty;
  empty.width = 0;
  EXPECT_ZEL_THROW(Load(empty.Bytes(), bitmap), ZEL_ERR_EMPTY_INPUT, bitmap.Pixels());
}

}  // namespace
