// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_WinBitmapData.h
// -----------------------------------------------------------------------------
//
// `CZEL_WinBitmapData` reads a Windows bitmap file (BMP) whole into memory and
// answers questions about single pixels. It keeps the info header, the palette
// and the pixel array exactly as the file stores them: nothing is decoded in
// advance, and every query computes the address of one pixel.
//
//   CZEL_WinBitmapData bitmap;
//   if (bitmap.LoadFromFile(CZEL_String("photo.bmp")) == ZEL_ERR_NONE) {
//     ZEL::t_WinRgbQuad color;
//     if (bitmap.GetPixelColor(0, 0, color) == ZEL_ERR_NONE) {
//       // color.red, color.green, color.blue of the top left pixel
//     }
//   }
//
// What is understood
//
// The classic 40-byte info header completely; the 108- and 124-byte headers
// load, but only their first 40 bytes are read. Pixel indices are read for 1
// and 8 bits per pixel; colours for those two through the palette and for 24
// bits without palette. No compression is decoded and none is refused.
//
//   bits per pixel      palette depth      GetPixelColorIndex   GetPixelColor
//   1                   2, or biClrUsed    the index            palette colour
//   4                   16, or biClrUsed   NOT_SUPPORTED        NOT_SUPPORTED
//   8                   256, or biClrUsed  the index            palette colour
//   24, biClrUsed 0     0                  NOT_READY            true colour
//   24, biClrUsed > 0   biClrUsed          NOT_SUPPORTED        NOT_SUPPORTED
//   16, 32, biClrUsed 0 0                  NOT_READY            NOT_SUPPORTED
//
// With a 108- or 124-byte header, `GetPixelColor` refuses with
// ZEL_ERR_NOT_READY, and `GetPixelColorIndex` reads with the row length left
// from an earlier 40-byte load (0 in a new object), so in the first stored row.
//
// Coordinates
//
// `x` counts from the left and `y` from the top, row 0 being the top row. A
// file with a positive `biHeight` stores its rows bottom-up; one with a
// negative `biHeight` (top-down) loads, but since every `y` from 0 to 2^31 - 1
// is then at least the height, none of its pixels can be queried. Both bounds
// are compared as signed 32-bit numbers, so an `x` or `y` of 2^31 or more
// passes them; the address then reaches outside the pixels, which throws
// ZEL_ERR_BAD_POSITION, or wraps in 32 bits.
//
// Failures are returned as codes: ZEL_ERR_IO when the file can't be opened or
// ends before its palette or pixels do, ZEL_ERR_BAD_FORMAT for a bad header,
// the codes of the table above for queries. Two come as exceptions: a pixel
// array size of 0 throws ZEL_ERR_EMPTY_INPUT from `LoadFromFile`, and a query
// that reaches past pixel bytes that are shorter than the header promises
// throws ZEL_ERR_BAD_POSITION.

#ifndef LZEL_CORE_IO_CZEL_WIN_BITMAP_DATA_H_
#define LZEL_CORE_IO_CZEL_WIN_BITMAP_DATA_H_

#include <LZEL_Core/containers/CZEL_Uint32Vector.h>
#include <LZEL_Core/containers/CZEL_Uint8Vector.h>
#include <LZEL_Core/frame/CZEL_Object.h>
#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/frame/ZEL_Primitives.h>
#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/text/CZEL_String.h>

class CZEL_File;

class ZEL_API CZEL_WinBitmapData : public CZEL_Object {
 public:
  // The info header of a bitmap file, from `biSize` on, in the file's order.
  // Copy and move assignment are plain field copies.
  struct SInfoHeader {
    ZEL::u32 biSize;          // Header size: 40, 108 or 124.
    int biWidth;              // Pixels per row.
    int biHeight;             // Rows; positive for bottom-up files.
    ZEL::u16 biPlanes;        // Kept, not used.
    ZEL::u16 biBitCount;      // Bits per pixel.
    ZEL::u32 biCompression;   // Kept, never looked at.
    ZEL::u32 biSizeImage;     // Bytes of the pixel array.
    int biXPelsPerMeter;      // Kept.
    int biYPelsPerMeter;      // Kept.
    ZEL::u32 biClrUsed;       // Palette entries; 0 for the default of the depth.
    ZEL::u32 biClrImportant;  // Kept, not used.
  };

  // An empty bitmap: no pixels, no palette, width, height, bits per pixel and
  // compression 0. The other header fields mean nothing until a load.
  CZEL_WinBitmapData();

  // A deep copy of every field, the palette and pixels included.
  CZEL_WinBitmapData(CZEL_WinBitmapData const& src);
  CZEL_WinBitmapData& operator=(CZEL_WinBitmapData const& src);

  // Releases the palette and the pixels.
  ~CZEL_WinBitmapData() override;

  // ---------------------------------------------------------------------------
  // Loading
  // ---------------------------------------------------------------------------

  // Reads the bitmap at `path`: header, palette and pixel array. Returns 0, or
  // ZEL_ERR_IO if the file can't be opened; the header's codes of
  // `ReadInfoFromFile`, the earlier palette and pixels kept beside a partly
  // changed header; ZEL_ERR_IO if the file ends before its palette or pixels
  // do, the object then destroyed. Throws ZEL_ERR_EMPTY_INPUT when the pixel
  // array size, as given or computed, is 0. The file is closed afterwards.
  ZEL::u32 LoadFromFile(CZEL_String const& path);

  // Empties the pixels and the palette and sets width, height, bits per pixel
  // and compression to 0. The other header fields, the pixel offset and the
  // row parameters stay.
  void Destroy();

  // The header of the last load; the pointer lives as long as the object.
  SInfoHeader const* GetInfo();

  // Reads only the header of the bitmap at `path` into `info`, and the pixel
  // array's offset into `*pixelOffset` unless it is null. Returns 0,
  // ZEL_ERR_IO if the file can't be opened, or ZEL_ERR_BAD_FORMAT if the file
  // is shorter than 18 bytes, lacks the "BM" signature, has a header size
  // other than 40, 108 or 124, or is shorter than 54 bytes; also if it
  // holds fewer bytes than its length says, or can't be read. The fields read
  // before a failure stay in `info`. A pixel array size of 0 comes back
  // computed from width, height and bits per pixel, in 32 bits.
  static ZEL::u32 ReadInfoFromFile(CZEL_String const& path, SInfoHeader& info,
                                   ZEL::u32* pixelOffset);

  // ---------------------------------------------------------------------------
  // Palette
  // ---------------------------------------------------------------------------

  // The palette depth of this bitmap's header; see the static form.
  ZEL::u32 GetPaletteDepth();

  // The number of palette entries that `info` calls for: the low 16 bits of
  // `biClrUsed` if that is not 0 (so 65537 gives 1), else 2, 16 or 256 for 1,
  // 4 or 8 bits per pixel, and 0 for any other depth.
  static ZEL::u32 GetPaletteDepth(SInfoHeader& info);

  // Palette entry `index` as stored: blue in bits 0 to 7, green in 8 to 15,
  // red in 16 to 23, the fourth byte in 24 to 31. 0 if `index` is not below
  // the number of entries, so always 0 without a palette.
  ZEL::u32 GetPaletteEntry(ZEL::u32 index);

  // ---------------------------------------------------------------------------
  // Pixels
  // ---------------------------------------------------------------------------

  // The palette index of pixel (x, y) into `index`, for 1 and 8 bits per
  // pixel. Returns 0; ZEL_ERR_NOT_READY without a palette;
  // ZEL_ERR_OUT_OF_RANGE outside the image; ZEL_ERR_NOT_SUPPORTED for any
  // other depth. Throws ZEL_ERR_BAD_POSITION if the pixel lies past the bytes
  // held.
  ZEL::u32 GetPixelColorIndex(ZEL::u32 x, ZEL::u32 y, ZEL::u32& index);

  // The colour of pixel (x, y) into `color`: through the palette, `reserved`
  // then being the entry's fourth byte, or from the three bytes blue, green,
  // red of a 24-bit pixel, `reserved` then 0. Returns 0; ZEL_ERR_OUT_OF_RANGE
  // outside the image or past the end of the 24-bit pixels; ZEL_ERR_NOT_READY
  // for a header other than the 40-byte one; ZEL_ERR_NOT_SUPPORTED for a depth
  // without reader. Throws ZEL_ERR_BAD_POSITION if a palette pixel lies past
  // the bytes held, its index past the palette, or a 24-bit pixel's last
  // bytes past the end of the pixels.
  ZEL::u32 GetPixelColor(ZEL::u32 x, ZEL::u32 y, ZEL::t_WinRgbQuad& color);

 protected:
  // Reads the header from the open `file`, as the path form describes.
  static ZEL::u32 ReadInfoFromFile(CZEL_File& file, SInfoHeader& info, ZEL::u32* pixelOffset);

  // The index of pixel (x, y) with no bound check: 8 bits read a byte, 1 bit
  // the byte's bit 7 - x % 8. Returns ZEL_ERR_NOT_SUPPORTED for other depths.
  // Throws ZEL_ERR_BAD_POSITION for an address outside the pixels.
  ZEL::u32 GetPixelColorIndexNoCheck(ZEL::u32 x, ZEL::u32 y, ZEL::u32& index);

  // Sets the row length, and the first pixel word of a bitmap without
  // palette, from a 40-byte header; does nothing for any other header size.
  void SetIntParams();

  // Makes this bitmap a copy of `src`; `src` may be this bitmap.
  void DataCopy(CZEL_WinBitmapData const& src);

  // The header of the last load.
  SInfoHeader m_Info;
  // The offset of the pixel array from the start of the file.
  ZEL::u32 m_PixelOffset;
  // The palette, one raw entry per item.
  CZEL_Uint32Vector m_Palette;
  // Without palette, (1 << biBitCount) & 65535, the shift count taken modulo
  // 32: added in units of 4 bytes to a 24-bit pixel's address (0 for 24 bits).
  ZEL::u32 m_FirstPixelWord;
  // A row's length: in bytes with a palette, in units of 4 bytes without.
  ZEL::u32 m_RowStride;
  // The pixel array as the file stores it.
  CZEL_Uint8Vector m_Pixels;

 private:
  // The size of the one header that is read completely.
  static constexpr ZEL::u32 kClassicHeaderSize = 40;

  // The palette depth of `info`, as `GetPaletteDepth` gives it.
  static ZEL::u32 PaletteDepthOf(SInfoHeader const& info);

  // ZEL_ERR_OUT_OF_RANGE unless (x, y) lies inside the image, both compared
  // as signed 32-bit numbers; else 0.
  ZEL::u32 CheckInside(ZEL::u32 x, ZEL::u32 y) const;

  // The stored row of image row `y`: rows run bottom-up for a positive height.
  ZEL::u32 StoredRow(ZEL::u32 y) const;
};

// -----------------------------------------------------------------------------
// The pixel queries
// -----------------------------------------------------------------------------
//
// They are inline: a query is a few comparisons and one or three vector
// accesses, which a call into the shared library would cost several times
// over when a caller walks all the pixels of an image. Inlined into such a
// loop, the tests on the header fields stay the same from pixel to pixel and
// cost next to nothing.

inline ZEL::u32 CZEL_WinBitmapData::PaletteDepthOf(SInfoHeader const& info) {
  if (info.biClrUsed != 0) return info.biClrUsed & 0xFFFF;
  switch (info.biBitCount) {
    case 1:
      return 2;
    case 4:
      return 16;
    case 8:
      return 256;
    default:
      return 0;
  }
}

inline ZEL::u32 CZEL_WinBitmapData::CheckInside(ZEL::u32 x, ZEL::u32 y) const {
  bool const outside =
      static_cast<int>(y) >= m_Info.biHeight || static_cast<int>(x) >= m_Info.biWidth;
  return outside ? ZEL_ERR_OUT_OF_RANGE : ZEL_ERR_NONE;
}

inline ZEL::u32 CZEL_WinBitmapData::StoredRow(ZEL::u32 y) const {
  return m_Info.biHeight > 0 ? static_cast<ZEL::u32>(m_Info.biHeight) - y - 1 : y;
}

inline ZEL::u32 CZEL_WinBitmapData::GetPixelColorIndexNoCheck(ZEL::u32 x, ZEL::u32 y,
                                                              ZEL::u32& index) {
  ZEL::u32 const row = StoredRow(y) * m_RowStride;
  switch (m_Info.biBitCount) {
    case 8:
      index = m_Pixels[row + x];
      return ZEL_ERR_NONE;
    case 1:
      // The leftmost pixel is the byte's top bit.
      index = (m_Pixels[row + x / 8] >> (7 - x % 8)) & 1u;
      return ZEL_ERR_NONE;
    default:
      return ZEL_ERR_NOT_SUPPORTED;
  }
}

inline ZEL::u32 CZEL_WinBitmapData::GetPixelColorIndex(ZEL::u32 x, ZEL::u32 y, ZEL::u32& index) {
  if (PaletteDepthOf(m_Info) == 0) return ZEL_ERR_NOT_READY;
  ZEL::u32 const result = CheckInside(x, y);
  if (result != ZEL_ERR_NONE) return result;
  return GetPixelColorIndexNoCheck(x, y, index);
}

// A true-colour address is a byte offset computed in 32 bits, with the row in
// units of 4 bytes. Only its first byte is tested against the length; when
// the pixels end within the pixel, the bytes go in one by one, so that the
// vector throws for the first one missing, after blue has been stored.
inline ZEL::u32 CZEL_WinBitmapData::GetPixelColor(ZEL::u32 x, ZEL::u32 y,
                                                  ZEL::t_WinRgbQuad& color) {
  ZEL::u32 result = CheckInside(x, y);
  if (result != ZEL_ERR_NONE) return result;
  if (m_Info.biSize != kClassicHeaderSize) return ZEL_ERR_NOT_READY;
  if (PaletteDepthOf(m_Info) != 0) {
    ZEL::u32 colidx = 0;
    result = GetPixelColorIndexNoCheck(x, y, colidx);
    if (result != ZEL_ERR_NONE) return result;
    color = ZEL::internal::SplitWinRgbQuad(m_Palette[colidx]);
    return ZEL_ERR_NONE;
  }
  if (m_Info.biBitCount != 24) return ZEL_ERR_NOT_SUPPORTED;
  ZEL::u32 const address = x * 3 + (m_FirstPixelWord + StoredRow(y) * m_RowStride) * 4;
  ZEL::u32 const length = m_Pixels.GetLength();
  if (address >= length) return ZEL_ERR_OUT_OF_RANGE;
  if (length - address < 3) {
    color.blue = m_Pixels[address];
    color.green = m_Pixels[address + 1];
    color.red = m_Pixels[address + 2];
  }
  ZEL::u8 const* const pixel = m_Pixels.GetBuf() + address;
  color = ZEL::t_WinRgbQuad{pixel[2], pixel[1], pixel[0], 0};
  return ZEL_ERR_NONE;
}

#endif  // LZEL_CORE_IO_CZEL_WIN_BITMAP_DATA_H_
