// SPDX-License-Identifier: Apache-2.0
// Runs CZEL_Crc::Compute with parameters and data from the input and checks
// the result against a plain bit-by-bit CRC. The first byte picks the width
// (bits 0-1), the two reflections (bits 2 and 3) and how often the data is
// repeated (bits 4-7, 1 to 16 times, so that blocks reach the wide paths);
// then come the polynomial, the seed and the final XOR (8 bytes each, low
// byte first), one byte that places the split point, and the data. The
// same split also goes through Begin, Update and Finish.

#include <LZEL_Core/values/CZEL_Crc.h>

#include "../tests/values/CrcReference.h"
#include "FuzzSupport.h"

#include <cstddef>
#include <cstdint>
#include <vector>

using ZEL::u64;
using ZEL::u8;
using zel_crc_reference::Params;
using zel_crc_reference::Reference;
using zel_fuzz::Require;

namespace {

u64 Word(u8 const* data) {
  u64 v = 0;
  for (int i = 7; i >= 0; --i) v = (v << 8) | data[i];
  return v;
}

template <typename T>
void Check(Params const& p, std::vector<u8>& data, std::size_t split) {
  CZEL_Crc const crc(zel_crc_reference::TypeOf(p.width), p.poly, p.seed, p.reflectIn, p.reflectOut,
                     p.finalXor);
  T whole = 0;
  crc.Compute(data.data(), data.size(), &whole, 0);
  Require(whole == Reference(p, p.seed, data.data(), data.size()));
  T part = 0;
  crc.Compute(data.data(), split, &part, 0);
  T const first = part;
  crc.Compute(data.data() + split, data.size() - split, &part, 1);
  Require(part == Reference(p, first, data.data() + split, data.size() - split));
  CZEL_Crc pieces(crc);
  pieces.Begin().Update(data.data(), split).Update(data.data() + split, data.size() - split);
  Require(pieces.Finish() == whole);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* input, std::size_t size) {
  if (size < 26) return 0;
  Params const p{8u << (input[0] & 3), Word(input + 1),     Word(input + 9),
                 (input[0] & 4) != 0,  (input[0] & 8) != 0, Word(input + 17)};
  std::vector<u8> data;
  for (unsigned i = 0; i <= unsigned(input[0] >> 4); ++i)
    data.insert(data.end(), input + 26, input + size);
  std::size_t const split = data.size() * input[25] / 255;
  switch (p.width) {
    case 8:
      Check<ZEL::u8>(p, data, split);
      break;
    case 16:
      Check<ZEL::u16>(p, data, split);
      break;
    case 32:
      Check<ZEL::u32>(p, data, split);
      break;
    default:
      Check<ZEL::u64>(p, data, split);
  }
  return 0;
}
