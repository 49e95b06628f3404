// SPDX-License-Identifier: Apache-2.0
// Colours: the packing of the word and its top byte, and the integer HLS
// conversions in both directions, to the unit.

#include <LZEL_Core/geometry/CZEL_Color.h>

#include <gtest/gtest.h>

#include <tuple>

namespace {

using Triple = std::tuple<int, int, int>;

// The components, or -1s if the top byte of the word isn't 0.
Triple RgbOf(CZEL_Color const& c) {
  if (c.GetUnsignedColor() >> 24 != 0) return {-1, -1, -1};
  return {c.GetR(), c.GetG(), c.GetB()};
}

Triple FromHls(int h, int l, int s) {
  CZEL_Color c(0xFF000000u);
  c.SetHLS(ZEL::u16(h), ZEL::u16(l), ZEL::u16(s));
  return RgbOf(c);
}

TEST(ColorTest, HlsTableBothWays) {
  struct Row {
    Triple rgb, hls, back;
  } const rows[] = {
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
    auto const [r, g, b] = row.rgb;
    SCOPED_TRACE(::testing::Message() << r << ',' << g << ',' << b);
    CZEL_Color const c(static_cast<ZEL::u8>(r), static_cast<ZEL::u8>(g), static_cast<ZEL::u8>(b));
    ZEL::u8 h = 0, l = 0, s = 0;
    c.GetHLS(h, l, s);
    EXPECT_EQ(Triple(h, l, s), row.hls);
    EXPECT_EQ(Triple(c.GetHue(), c.GetLuminosity(), c.GetSaturation()), row.hls);
    EXPECT_EQ(FromHls(std::get<0>(row.hls), std::get<1>(row.hls), std::get<2>(row.hls)), row.back);
  }
}

TEST(ColorTest, SetHlsRunsEveryArgumentThroughTheSameArithmetic) {
  EXPECT_EQ(FromHls(240, 120, 240), Triple(255, 0, 0));
  EXPECT_EQ(FromHls(300, 120, 240), Triple(128, 255, 0));  // as hue 60
  EXPECT_EQ(FromHls(600, 120, 240), Triple(0, 0, 0));      // still above 240: the low branch
  EXPECT_EQ(FromHls(0, 255, 0), Triple(14, 14, 14));       // 255 * 255 / 240 is 270: its low byte
  EXPECT_EQ(FromHls(0, 65535, 65535), Triple(32, 222, 222));
}

TEST(ColorTest, WordKeepsTheTopByteComponentsDropIt) {
  CZEL_Color c, assigned;
  ZEL::u8 r = 0, g = 0, b = 0;
  (c = 0xAB223344u).GetRGB(r, g, b);
  EXPECT_EQ(Triple(r, g, b), Triple(0x44, 0x33, 0x22));
  CZEL_Color copy(c);
  EXPECT_EQ(ZEL::u32(assigned = copy), 0xAB223344u);
  EXPECT_EQ(ZEL::u32(assigned = CZEL_Color(0xFF000001u)), 0xFF000001u);  // through the word
  EXPECT_EQ(c.SetR(68).GetUnsignedColor(), 0x00223344u);
  EXPECT_EQ(copy.SetG(1).SetB(2).GetUnsignedColor(), 0x00020144u);
  EXPECT_EQ(CZEL_Color(1, 2, 3).GetUnsignedColor(), 0x030201u);
}

TEST(ColorTest, OneHlsComponentAtATime) {
  CZEL_Color c(255, 0, 0);
  EXPECT_EQ(RgbOf(c.SetHue(80)), Triple(0, 255, 0));
  EXPECT_EQ(RgbOf(c.SetLuminosity(60)), Triple(0, 128, 0));
  EXPECT_EQ(RgbOf(c.SetSaturation(0)), Triple(63, 63, 63));
  CZEL_Color grey(0xFF808080u);
  EXPECT_EQ(RgbOf(grey.SetHue(40)), Triple(127, 127, 127));  // saturation 0 ignores the hue
  EXPECT_EQ(grey.GetHue(), 170);
}

}  // namespace
