// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Color.h
// -----------------------------------------------------------------------------
//
// `CZEL_Color` holds one colour as a packed 32-bit word: red in bits 0 to 7,
// green in bits 8 to 15, blue in bits 16 to 23, and in bits 24 to 31 whatever
// the caller stored. It converts to and from hue, luminosity and saturation
// (HLS) in integer arithmetic on a fixed scale: H, L and S run from 0 to
// 240, R, G and B from 0 to 255, and each step rounds as stated below, so
// that results agree with the library's formulas to the unit.
//
//   CZEL_Color c(255, 0, 0);          // red
//   ZEL::u8 h, l, s;
//   c.GetHLS(h, l, s);                // 0, 120, 240
//   c.SetHue(80);                     // green: 0, 255, 0
//   ZEL::u32 word = c;                // 0x0000FF00
//
// HLS values are not stored: every read converts from the word, and every
// write of one component converts there and back, which can move a
// component by a unit (a mid grey 128 comes back as 127). A grey has hue
// 170, a fixed value of the format. The word-level operations keep the top
// byte; the component ones (`SetRGB`, `SetHLS` and the setters built on
// them) write 0 there.
//
// No operation throws and no input is refused: HLS arguments above 240 run
// through the same arithmetic.

#ifndef LZEL_CORE_GEOMETRY_CZEL_COLOR_H_
#define LZEL_CORE_GEOMETRY_CZEL_COLOR_H_

#include <LZEL_Core/frame/CZEL_Object.h>
#include <LZEL_Core/frame/ZEL_Types.h>

// The stream in which a colour travels as its 32-bit word.
class CZEL_Buffer;

class ZEL_API CZEL_Color : public CZEL_Object {
 public:
  // ---------------------------------------------------------------------------
  // The word
  // ---------------------------------------------------------------------------

  // Black: the word 0.
  CZEL_Color();

  // The word `value`, all 32 bits.
  CZEL_Color(ZEL::u32 const& value);

  // The components `r`, `g`, `b`, top byte 0.
  CZEL_Color(ZEL::u8 r, ZEL::u8 g, ZEL::u8 b);

  // A copy of `src`'s word.
  CZEL_Color(CZEL_Color const& src);

  // A copy of `src`'s word; returns this colour. The source is a non-const
  // reference; a const colour or a temporary assigns through its word.
  CZEL_Color& operator=(CZEL_Color& src);

  // The word `value`, all 32 bits; returns this colour.
  CZEL_Color& operator=(ZEL::u32 value);

  // The word, all 32 bits.
  ZEL::u32 GetUnsignedColor() const;
  operator ZEL::u32() const;

  // ---------------------------------------------------------------------------
  // Red, green and blue
  // ---------------------------------------------------------------------------

  // The byte at bits 0, 8 or 16.
  ZEL::u8 GetR() const;
  ZEL::u8 GetG() const;
  ZEL::u8 GetB() const;

  // The three components.
  void GetRGB(ZEL::u8& r, ZEL::u8& g, ZEL::u8& b) const;

  // The word r + (g << 8) + (b << 16), top byte 0; returns this colour.
  CZEL_Color& SetRGB(ZEL::u8 r, ZEL::u8 g, ZEL::u8 b);

  // One component replaced, by `SetRGB`, so the top byte becomes 0; returns
  // this colour.
  CZEL_Color& SetR(ZEL::u8 r);
  CZEL_Color& SetG(ZEL::u8 g);
  CZEL_Color& SetB(ZEL::u8 b);

  // ---------------------------------------------------------------------------
  // Hue, luminosity and saturation
  // ---------------------------------------------------------------------------

  // The colour's hue, luminosity and saturation, in that order, from 0 to
  // 240. L = ((max + min) * 240 + 255) / 510 of the components; a grey has
  // S 0 and H 170. Red wins a tie for the largest component over green, and
  // green over blue.
  void GetHLS(ZEL::u8& h, ZEL::u8& l, ZEL::u8& s) const;

  // Sets the colour from hue, luminosity and saturation, top byte 0; returns
  // this colour. S 0 gives the grey L * 255 / 240, whatever H is. Hue 240
  // is hue 0. Values above 240 are not refused: they run through the same
  // integer arithmetic, and only the low byte of each component is kept.
  CZEL_Color& SetHLS(ZEL::u16 h, ZEL::u16 l, ZEL::u16 s);

  // One component of `GetHLS`.
  ZEL::u8 GetHue() const;
  ZEL::u8 GetLuminosity() const;
  ZEL::u8 GetSaturation() const;

  // One component of `GetHLS` replaced, by `SetHLS`; returns this colour. A
  // hue set on a grey is lost, since saturation 0 ignores it.
  CZEL_Color& SetHue(ZEL::u8 h);
  CZEL_Color& SetLuminosity(ZEL::u8 l);
  CZEL_Color& SetSaturation(ZEL::u8 s);

  // The stream form: the word as a little-endian u32.
  friend ZEL_API CZEL_Buffer& operator<<(CZEL_Buffer& buffer, CZEL_Color const& color);
  friend ZEL_API CZEL_Buffer& operator>>(CZEL_Buffer& buffer, CZEL_Color& color);

 protected:
  // Red in bits 0 to 7, green 8 to 15, blue 16 to 23, the caller's top byte.
  ZEL::u32 m_Color;

 private:
  // One component of `SetHLS` on the scale 0 to 240: between `low` and
  // `high` by the hue, brought once into 0 to 240.
  static int HueToRGB(int low, int high, int hue);
};

#endif  // LZEL_CORE_GEOMETRY_CZEL_COLOR_H_
