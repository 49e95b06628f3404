// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/io/CZEL_WinBitmapData.h>

#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/io/CZEL_File.h>

using ZEL::u16;
using ZEL::u32;
using ZEL::u64;
using ZEL::u8;

namespace {

// The bytes of the file header and of the info header up to `biSize`, and of
// the rest of a 40-byte info header.
constexpr u32 kFileHeaderBytes = 18;
constexpr u32 kInfoRestBytes = 36;
// The shortest file that holds a whole 40-byte info header.
constexpr u32 kMinInfoFileBytes = kFileHeaderBytes + kInfoRestBytes;
// Where the info header starts, so the palette starts at this plus `biSize`.
constexpr u32 kInfoOffset = 14;

bool IsKnownHeaderSize(u32 size) { return size == 40 || size == 108 || size == 124; }

u32 LittleU32(u8* bytes) { return ZEL::Uint32FromBuf(bytes, ZEL::ZEL_LITTLE_ENDIAN); }
int LittleInt(u8* bytes) { return ZEL::Int32FromBuf(bytes, ZEL::ZEL_LITTLE_ENDIAN); }
u16 LittleU16(u8* bytes) { return ZEL::Uint16FromBuf(bytes, ZEL::ZEL_LITTLE_ENDIAN); }

// Creates `vector` with `items` items of `itemSize` bytes and fills it with
// the bytes at `offset` of `file`: 0, or the read's ZEL_ERR_IO. A file that
// ends before those bytes would fail the read in any case; it fails here
// before anything is allocated, so that a header that promises more than the
// file holds costs no memory. A count of 0 still goes to `Create`, which
// throws ZEL_ERR_EMPTY_INPUT.
template <typename Vector>
u32 ReadItems(CZEL_File& file, u64 offset, Vector& vector, u32 items, u32 itemSize) {
  u64 const bytes = u64{items} * itemSize;
  u64 const length = file.GetLength();
  if (items != 0 && (offset > length || length - offset < bytes)) return ZEL_ERR_IO;
  vector.Create(items);
  file.To(offset, CZEL_File::FILE_FROM_START);
  return file.Read(vector.GetBuf(), bytes);
}

}  // namespace

// -----------------------------------------------------------------------------
// Construction
// -----------------------------------------------------------------------------

CZEL_WinBitmapData::CZEL_WinBitmapData()
    : m_Info(), m_PixelOffset(0), m_FirstPixelWord(0), m_RowStride(0) {}

CZEL_WinBitmapData::CZEL_WinBitmapData(CZEL_WinBitmapData const& src)
    : CZEL_Object(src), m_Info(), m_PixelOffset(0), m_FirstPixelWord(0), m_RowStride(0) {
  DataCopy(src);
}

CZEL_WinBitmapData& CZEL_WinBitmapData::operator=(CZEL_WinBitmapData const& src) {
  DataCopy(src);
  return *this;
}

CZEL_WinBitmapData::~CZEL_WinBitmapData() = default;

void CZEL_WinBitmapData::DataCopy(CZEL_WinBitmapData const& src) {
  m_Info = src.m_Info;
  m_PixelOffset = src.m_PixelOffset;
  m_Palette = src.m_Palette;
  m_FirstPixelWord = src.m_FirstPixelWord;
  m_RowStride = src.m_RowStride;
  m_Pixels = src.m_Pixels;
}

// -----------------------------------------------------------------------------
// Loading
// -----------------------------------------------------------------------------

// The header's checks run on the length taken at the start, so that the
// single reads behind them can't come up short in a sound file. A file that
// holds fewer bytes than its length says, or can't be read at all, is too
// short like one of a lesser length: no field is taken from bytes that no
// read wrote.
u32 CZEL_WinBitmapData::ReadInfoFromFile(CZEL_File& file, SInfoHeader& info, u32* pixelOffset) {
  file.ToStart();
  u64 const length = file.GetLength();
  if (length < kFileHeaderBytes) return ZEL_ERR_BAD_FORMAT;

  u8 head[kFileHeaderBytes];
  if (file.Read(head, kFileHeaderBytes) != ZEL_ERR_NONE) return ZEL_ERR_BAD_FORMAT;
  if (head[0] != 'B' || head[1] != 'M') return ZEL_ERR_BAD_FORMAT;
  // Bytes 2 to 9, the file size and the reserved word, are skipped.
  if (pixelOffset != nullptr) *pixelOffset = LittleU32(head + 10);
  info.biSize = LittleU32(head + 14);
  if (!IsKnownHeaderSize(info.biSize)) return ZEL_ERR_BAD_FORMAT;
  if (length < kMinInfoFileBytes) return ZEL_ERR_BAD_FORMAT;

  u8 rest[kInfoRestBytes];
  if (file.Read(rest, kInfoRestBytes) != ZEL_ERR_NONE) return ZEL_ERR_BAD_FORMAT;
  info.biWidth = LittleInt(rest + 0);
  info.biHeight = LittleInt(rest + 4);
  info.biPlanes = LittleU16(rest + 8);
  info.biBitCount = LittleU16(rest + 10);
  info.biCompression = LittleU32(rest + 12);
  info.biSizeImage = LittleU32(rest + 16);
  if (info.biSizeImage == 0) {
    // Whole rows of 4-byte units, all in unsigned 32 bits.
    u32 const bits = u32{info.biBitCount} * static_cast<u32>(info.biWidth);
    info.biSizeImage = ((bits + 31) >> 5) * 4 * static_cast<u32>(info.biHeight);
  }
  info.biXPelsPerMeter = LittleInt(rest + 20);
  info.biYPelsPerMeter = LittleInt(rest + 24);
  info.biClrUsed = LittleU32(rest + 28);
  info.biClrImportant = LittleU32(rest + 32);
  return ZEL_ERR_NONE;
}

u32 CZEL_WinBitmapData::ReadInfoFromFile(CZEL_String const& path, SInfoHeader& info,
                                         u32* pixelOffset) {
  CZEL_File file;
  if (file.Open(path, CZEL_File::FILE_OPEN_READ) != ZEL_ERR_NONE) return ZEL_ERR_IO;
  u32 const result = ReadInfoFromFile(file, info, pixelOffset);
  file.Close();
  return result;
}

// The local file closes as it goes out of scope, on every way out, the
// exception of an empty pixel array included.
u32 CZEL_WinBitmapData::LoadFromFile(CZEL_String const& path) {
  CZEL_File file;
  if (file.Open(path, CZEL_File::FILE_OPEN_READ) != ZEL_ERR_NONE) return ZEL_ERR_IO;
  u32 result = ReadInfoFromFile(file, m_Info, &m_PixelOffset);
  if (result != ZEL_ERR_NONE) return result;

  m_Palette.DeleteAll();
  u32 const depth = PaletteDepthOf(m_Info);
  if (depth != 0) {
    result = ReadItems(file, u64{m_Info.biSize} + kInfoOffset, m_Palette, depth, 4);
    if (result != ZEL_ERR_NONE) {
      Destroy();
      return result;
    }
    // Each entry is the file's four bytes, least significant first.
    u32* entries = m_Palette.GetBuf();
    for (u32 i = 0; i < depth; ++i) entries[i] = LittleU32(reinterpret_cast<u8*>(entries + i));
  }

  m_Pixels.DeleteAll();
  result = ReadItems(file, m_PixelOffset, m_Pixels, m_Info.biSizeImage, 1);
  if (result != ZEL_ERR_NONE) {
    Destroy();
    return result;
  }
  SetIntParams();
  file.Close();
  return ZEL_ERR_NONE;
}

void CZEL_WinBitmapData::Destroy() {
  m_Pixels.DeleteAll();
  m_Palette.DeleteAll();
  m_Info.biWidth = 0;
  m_Info.biHeight = 0;
  m_Info.biBitCount = 0;
  m_Info.biCompression = 0;
}

CZEL_WinBitmapData::SInfoHeader const* CZEL_WinBitmapData::GetInfo() { return &m_Info; }

// The row parameters are computed in unsigned 32 bits, so that any width the
// header gives has a defined result.
void CZEL_WinBitmapData::SetIntParams() {
  if (m_Info.biSize != kClassicHeaderSize) return;
  u32 const bits = u32{m_Info.biBitCount} * static_cast<u32>(m_Info.biWidth);
  if (PaletteDepthOf(m_Info) > 0) {
    u32 const bytes = bits / 8 + (bits % 8 != 0 ? 1 : 0);
    m_RowStride = bytes % 4 == 0 ? bytes : (bytes / 4) * 4 + 4;
  } else {
    m_FirstPixelWord = (u32{1} << (m_Info.biBitCount % 32)) & 65535;
    m_RowStride = (bits + 31) / 32;
  }
}

// -----------------------------------------------------------------------------
// Palette
// -----------------------------------------------------------------------------

u32 CZEL_WinBitmapData::GetPaletteDepth() { return PaletteDepthOf(m_Info); }

u32 CZEL_WinBitmapData::GetPaletteDepth(SInfoHeader& info) { return PaletteDepthOf(info); }

u32 CZEL_WinBitmapData::GetPaletteEntry(u32 index) {
  return index < m_Palette.GetLength() ? m_Palette[index] : 0;
}
