// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/geometry/CZEL_Color.h>

#include <algorithm>

using ZEL::i64;
using ZEL::u16;
using ZEL::u32;
using ZEL::u8;

namespace {

// The hue of every grey.
constexpr int kGreyHue = 170;

// The top of the HLS scale, and its half.
constexpr int kScale = 240;
constexpr int kHalfScale = 120;

// How far component `c` lies below the largest one, on the scale of one
// sixth of the hue circle (40), rounded: (max - c) * 40 / d.
int HueShare(int max, int c, int d) { return ((max - c) * 40 + d / 2) / d; }

// The three results of one `GetHLS`.
struct SHls {
  u8 m_Hue = 0;
  u8 m_Luminosity = 0;
  u8 m_Saturation = 0;
};

SHls HlsOf(CZEL_Color const& color) {
  SHls hls;
  color.GetHLS(hls.m_Hue, hls.m_Luminosity, hls.m_Saturation);
  return hls;
}

}  // namespace

// -----------------------------------------------------------------------------
// The word
// -----------------------------------------------------------------------------

CZEL_Color::CZEL_Color() : m_Color(0) {}

CZEL_Color::CZEL_Color(u32 const& value) : m_Color(value) {}

CZEL_Color::CZEL_Color(u8 r, u8 g, u8 b) : m_Color(0) { SetRGB(r, g, b); }

CZEL_Color::CZEL_Color(CZEL_Color const& src) : CZEL_Object(src), m_Color(src.m_Color) {}

CZEL_Color& CZEL_Color::operator=(CZEL_Color& src) {
  m_Color = src.m_Color;
  return *this;
}

CZEL_Color& CZEL_Color::operator=(u32 value) {
  m_Color = value;
  return *this;
}

u32 CZEL_Color::GetUnsignedColor() const { return m_Color; }

CZEL_Color::operator u32() const { return m_Color; }

// -----------------------------------------------------------------------------
// Red, green and blue
// -----------------------------------------------------------------------------

u8 CZEL_Color::GetR() const { return static_cast<u8>(m_Color); }

u8 CZEL_Color::GetG() const { return static_cast<u8>(m_Color >> 8); }

u8 CZEL_Color::GetB() const { return static_cast<u8>(m_Color >> 16); }

void CZEL_Color::GetRGB(u8& r, u8& g, u8& b) const {
  r = GetR();
  g = GetG();
  b = GetB();
}

CZEL_Color& CZEL_Color::SetRGB(u8 r, u8 g, u8 b) {
  m_Color = u32(r) | u32(g) << 8 | u32(b) << 16;
  return *this;
}

CZEL_Color& CZEL_Color::SetR(u8 r) { return SetRGB(r, GetG(), GetB()); }

CZEL_Color& CZEL_Color::SetG(u8 g) { return SetRGB(GetR(), g, GetB()); }

CZEL_Color& CZEL_Color::SetB(u8 b) { return SetRGB(GetR(), GetG(), b); }

// -----------------------------------------------------------------------------
// Hue, luminosity and saturation
// -----------------------------------------------------------------------------

// The hue is the position of the colour on a circle of 240 with red at 0,
// green at 80 and blue at 160, measured from the largest component by the
// shares of the other two. It lies between -40 and 200 before the wrap.
void CZEL_Color::GetHLS(u8& h, u8& l, u8& s) const {
  int const r = GetR();
  int const g = GetG();
  int const b = GetB();
  int const max = std::max({r, g, b});
  int const min = std::min({r, g, b});
  int const sum = max + min;
  int const lum = (sum * kScale + 255) / 510;
  int hue = kGreyHue;
  int sat = 0;
  if (max != min) {
    int const d = max - min;
    int const span = lum <= kHalfScale ? sum : 510 - sum;
    sat = (d * kScale + span / 2) / span;
    int const rd = HueShare(max, r, d);
    int const gd = HueShare(max, g, d);
    int const bd = HueShare(max, b, d);
    if (r == max) {
      hue = bd - gd;
    } else if (g == max) {
      hue = rd + 80 - bd;
    } else {
      hue = gd + 160 - rd;
    }
    if (hue < 0) hue += kScale;
    if (hue > kScale) hue -= kScale;
  }
  h = static_cast<u8>(hue);
  l = static_cast<u8>(lum);
  s = static_cast<u8>(sat);
}

// m2 is the largest component and m1 the smallest, on the HLS scale. Both
// are held in 16 unsigned bits; for arguments above the scale the
// intermediate products are taken exactly in 64 bits before that cut.
CZEL_Color& CZEL_Color::SetHLS(u16 h, u16 l, u16 s) {
  if (s == 0) {
    auto const grey = static_cast<u8>(l * 255 / kScale);
    return SetRGB(grey, grey, grey);
  }
  i64 const lum = l;
  i64 const sat = s;
  auto const m2 = static_cast<u16>(lum <= kHalfScale ? (lum * (sat + kScale) + 120) / kScale
                                                     : lum + sat - (lum * sat + 120) / kScale);
  auto const m1 = static_cast<u16>(2 * lum - m2);
  auto component = [m1, m2](int hue) {
    return static_cast<u8>((HueToRGB(m1, m2, hue) * 255 + 120) / kScale);
  };
  return SetRGB(component(h + 80), component(h), component(h - 80));
}

u8 CZEL_Color::GetHue() const { return HlsOf(*this).m_Hue; }

u8 CZEL_Color::GetLuminosity() const { return HlsOf(*this).m_Luminosity; }

u8 CZEL_Color::GetSaturation() const { return HlsOf(*this).m_Saturation; }

CZEL_Color& CZEL_Color::SetHue(u8 h) {
  SHls const hls = HlsOf(*this);
  return SetHLS(h, hls.m_Luminosity, hls.m_Saturation);
}

CZEL_Color& CZEL_Color::SetLuminosity(u8 l) {
  SHls const hls = HlsOf(*this);
  return SetHLS(hls.m_Hue, l, hls.m_Saturation);
}

CZEL_Color& CZEL_Color::SetSaturation(u8 s) {
  SHls const hls = HlsOf(*this);
  return SetHLS(hls.m_Hue, hls.m_Luminosity, s);
}

// A hue that is still outside 0 to 240 after the one correction falls
// through to the branch that its size selects.
int CZEL_Color::HueToRGB(int low, int high, int hue) {
  if (hue < 0) hue += kScale;
  if (hue > kScale) hue -= kScale;
  if (hue < 40) return low + ((high - low) * hue + 20) / 40;
  if (hue < 120) return high;
  if (hue < 160) return low + ((high - low) * (160 - hue) + 20) / 40;
  return low;
}
