// Colours: the packing of the word and its top byte, and the integer HLS
// conversions in both directions, to the unit.

#include <LZEL_Core/geometry/CZEL_Color.h>

#include <gtest/gtest.h>

namespace {

struct Rgb {
  int r, g, b;
};
struct Hls {
  int h, l, s;
};

void ExpectRgb(CZEL_Color const& c, Rgb e) {
  EXPECT_EQ(c.GetR(), e.r);
  EXPECT_EQ(c.GetG(), e.g);
  EXPECT_EQ(c.GetB(), e.b);
  EXPECT_EQ(c.GetUnsignedColor() >> 24, 0u);
}

Hls HlsOf(CZEL_Color const& c) {
  ZEL::u8 h = 0;
  ZEL::u8 l = 0;
  ZEL::u8 s = 0;
  c.GetHLS(h, l, s);
  return {h, l, s};
}

CZEL_Color FromHls(int h, int l, int s) {
  CZEL_Color c(0xFF000000u);
  c.SetHLS(ZEL::u16(h), ZEL::u16(l), ZEL::u16(s));
  return c;
}

TEST(ColorTest, HlsTableBothWays) {
  struct Row {
    Rgb rgb;
    Hls hls;
    Rgb back;
  };
  Row const rows[] = {
      {{255, 0, 0}, {0, 120, 240}, {255, 0, 0}},
      {{0, 255, 0}, {80, 120, 240}, {0, 255, 0}},
      {{0, 0, 255}, {160, 120, 240}, {0, 0, 255}},
      {{255, 255, 0}, {40, 120, 240}, {255, 255, 0}},
      {{0, 255, 255}, {120, 120, 240}, {0, 255, 255}},
      {{255, 0, 255}, {200, 120, 240}, {255, 0, 255}},
      {{0, 0, 0}, {170, 0, 0}, {0, 0, 0}},
      {{255, 255, 255}, {170, 240, 0}, {255, 255, 255}},
      {{128, 128, 128}, {170, 120, 0}, {127, 127, 127}},
      {{100, 150, 200}, {140, 141, 114}, {100, 150, 200}},
      {{10, 20, 30}, {140, 19, 120}, {10, 20, 31}},
      {{200, 100, 50}, {13, 118, 144}, {201, 99, 50}},
      // Ties for the largest component: red wins over green, green over blue.
      {{255, 255, 128}, {40, 180, 240}, {255, 255, 128}},
      {{128, 255, 255}, {120, 180, 240}, {128, 255, 255}},
      {{255, 128, 255}, {200, 180, 240}, {255, 128, 255}},
  };
  for (Row const& row : rows) {
    SCOPED_TRACE(::testing::Message() << row.rgb.r << ',' << row.rgb.g << ',' << row.rgb.b);
    CZEL_Color const c(ZEL::u8(row.rgb.r), ZEL::u8(row.rgb.g), ZEL::u8(row.rgb.b));
    Hls const hls = HlsOf(c);
    EXPECT_EQ(hls.h, row.hls.h);
    EXPECT_EQ(hls.l, row.hls.l);
    EXPECT_EQ(hls.s, row.hls.s);
    EXPECT_EQ(c.GetHue(), row.hls.h);
    EXPECT_EQ(c.GetLuminosity(), row.hls.l);
    EXPECT_EQ(c.GetSaturation(), row.hls.s);
    ExpectRgb(FromHls(row.hls.h, row.hls.l, row.hls.s), row.back);
  }
}

TEST(ColorTest, SetHlsRunsEveryArgumentThroughTheSameArithmetic) {
  ExpectRgb(FromHls(240, 120, 240), {255, 0, 0});
  ExpectRgb(FromHls(300, 120, 240), {128, 255, 0});  // as hue 60
  ExpectRgb(FromHls(60, 120, 240), {128, 255, 0});
  ExpectRgb(FromHls(600, 120, 240), {0, 0, 0});  // still above 240: the low branch
  ExpectRgb(FromHls(0, 255, 0), {14, 14, 14});   // 255 * 255 / 240 is 270: its low byte
  ExpectRgb(FromHls(0, 65535, 65535), {32, 222, 222});
  ExpectRgb(FromHls(65535, 65535, 1), {32, 32, 32});  // every hue far above 240 gives m1
}

TEST(ColorTest, WordKeepsTheTopByteComponentsDropIt) {
  CZEL_Color c;
  EXPECT_EQ(c.GetUnsignedColor(), 0u);
  EXPECT_EQ(&(c = 0xAB223344u), &c);
  EXPECT_EQ(c.GetR(), 68);
  EXPECT_EQ(c.GetG(), 51);
  EXPECT_EQ(c.GetB(), 34);
  EXPECT_EQ(c.GetUnsignedColor(), 0xAB223344u);
  EXPECT_EQ(ZEL::u32(c), 0xAB223344u);
  ZEL::u8 r = 0;
  ZEL::u8 g = 0;
  ZEL::u8 b = 0;
  c.GetRGB(r, g, b);
  EXPECT_EQ(r + g * 256 + b * 65536, 0x223344);
  CZEL_Color copy(c);
  CZEL_Color assigned;
  EXPECT_EQ(&(assigned = copy), &assigned);
  EXPECT_EQ(assigned.GetUnsignedColor(), 0xAB223344u);
  assigned = CZEL_Color(0xFF000001u);  // a temporary assigns through its word
  EXPECT_EQ(assigned.GetUnsignedColor(), 0xFF000001u);
  EXPECT_EQ(&c.SetR(68), &c);
  EXPECT_EQ(c.GetUnsignedColor(), 0x00223344u);
  copy.SetG(1).SetB(2);
  EXPECT_EQ(copy.GetUnsignedColor(), 0x00020144u);
  EXPECT_EQ(CZEL_Color(1, 2, 3).GetUnsignedColor(), 0x030201u);
  EXPECT_EQ(CZEL_Color(0x12345678u).GetUnsignedColor(), 0x12345678u);
}

TEST(ColorTest, OneHlsComponentAtATime) {
  CZEL_Color c(255, 0, 0);
  EXPECT_EQ(&c.SetHue(80), &c);
  ExpectRgb(c, {0, 255, 0});
  c.SetLuminosity(60);
  ExpectRgb(c, {0, 128, 0});
  c.SetSaturation(0);
  ExpectRgb(c, {63, 63, 63});
  CZEL_Color grey(0xFF808080u);
  grey.SetHue(40);  // saturation 0 ignores the hue
  ExpectRgb(grey, {127, 127, 127});
  EXPECT_EQ(grey.GetHue(), 170);
}

}  // namespace
