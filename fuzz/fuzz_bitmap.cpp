// SPDX-License-Identifier: Apache-2.0
// Feeds arbitrary file bytes to CZEL_WinBitmapData::LoadFromFile and queries
// the pixels of what loads. Beside memory and undefined-behaviour faults (a
// read outside the file's bytes among them), it checks that every failure is
// one of the reader's codes: the load returns 0, ZEL_ERR_IO or
// ZEL_ERR_BAD_FORMAT and throws nothing but ZEL_ERR_EMPTY_INPUT; a query
// returns 0, ZEL_ERR_OUT_OF_RANGE, ZEL_ERR_NOT_READY or ZEL_ERR_NOT_SUPPORTED
// and throws nothing but ZEL_ERR_BAD_POSITION.

#include <LZEL_Core/frame/CZEL_Exception.h>
#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/io/CZEL_WinBitmapData.h>

#include "FuzzSupport.h"
#include "FuzzTempFile.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <initializer_list>

using zel_fuzz::Require;

namespace {

bool IsQueryCode(ZEL::u32 code) {
  return code == ZEL_ERR_NONE || code == ZEL_ERR_OUT_OF_RANGE || code == ZEL_ERR_NOT_READY ||
         code == ZEL_ERR_NOT_SUPPORTED;
}

void Query(CZEL_WinBitmapData& bitmap, ZEL::u32 x, ZEL::u32 y) {
  try {
    ZEL::u32 index = 0;
    Require(IsQueryCode(bitmap.GetPixelColorIndex(x, y, index)));
  } catch (CZEL_Exception const& e) {
    Require(e.m_Code == ZEL_ERR_BAD_POSITION);
  }
  try {
    ZEL::t_WinRgbQuad color{};
    ZEL::u32 const code = bitmap.GetPixelColor(x, y, color);
    Require(IsQueryCode(code));
    Require(code != 0 || (color.red < 256 && color.green < 256 && color.blue < 256));
  } catch (CZEL_Exception const& e) {
    Require(e.m_Code == ZEL_ERR_BAD_POSITION);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  zel_fuzz::TempFile const file(data, size);
  CZEL_WinBitmapData bitmap;
  ZEL::u32 code = 0;
  try {
    code = bitmap.LoadFromFile(file.Path());
  } catch (CZEL_Exception const& e) {
    Require(e.m_Code == ZEL_ERR_EMPTY_INPUT);
    return 0;
  }
  Require(code == ZEL_ERR_NONE || code == ZEL_ERR_IO || code == ZEL_ERR_BAD_FORMAT);

  // The header alone reads the same as the header of the whole load.
  CZEL_WinBitmapData::SInfoHeader info{};
  ZEL::u32 const infoCode = CZEL_WinBitmapData::ReadInfoFromFile(file.Path(), info, nullptr);
  Require(infoCode == ZEL_ERR_NONE || infoCode == ZEL_ERR_BAD_FORMAT);
  Require((infoCode == ZEL_ERR_BAD_FORMAT) == (code == ZEL_ERR_BAD_FORMAT));
  if (code != ZEL_ERR_NONE) return 0;

  CZEL_WinBitmapData copy(bitmap);
  CZEL_WinBitmapData::SInfoHeader const& loaded = *copy.GetInfo();
  int const width = std::clamp(loaded.biWidth, 0, 16);
  int const height = std::clamp(loaded.biHeight, 0, 16);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) Query(copy, ZEL::u32(x), ZEL::u32(y));
  }
  for (ZEL::u32 far : {0x7FFFFFFFu, 0x80000000u, 0xAAAAAAACu, 0xFFFFFFFFu}) {
    Query(copy, far, 0);
    Query(copy, 0, far);
  }
  for (ZEL::u32 i = 0; i < 4; ++i) copy.GetPaletteEntry(i);
  return 0;
}
