// SPDX-License-Identifier: Apache-2.0
// The CRC by its definition, one bit at a time: slow and obvious, the
// yardstick for CZEL_Crc in the tests and in the fuzz target.

#ifndef LZEL_TESTS_VALUES_CRC_REFERENCE_H_
#define LZEL_TESTS_VALUES_CRC_REFERENCE_H_

#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/values/CZEL_Crc.h>

#include <cstddef>

namespace zel_crc_reference {

struct Params {
  ZEL::u32 width;
  ZEL::u64 poly;
  ZEL::u64 seed;
  bool reflectIn;
  bool reflectOut;
  ZEL::u64 finalXor;
};

// The width class of `width` bits (8, 16, 32 or 64).
inline CZEL_Crc::t_CrcType TypeOf(ZEL::u32 width) {
  return static_cast<CZEL_Crc::t_CrcType>(CZEL_Crc::CrcType_8 + (width >= 16) + (width >= 32) +
                                          (width >= 64));
}

inline ZEL::u64 Mask(ZEL::u32 width) { return ~ZEL::u64{0} >> (64 - width); }

inline ZEL::u64 Reverse(ZEL::u64 value, ZEL::u32 bits) {
  ZEL::u64 out = 0;
  for (ZEL::u32 i = 0; i < bits; ++i) out |= ((value >> i) & 1) << (bits - 1 - i);
  return out;
}

// The CRC of `size` bytes, the register starting from `reg` as it stands:
// each data bit, most significant first (after the byte's reversal if input
// reflection is on), meets the top bit of the register.
inline ZEL::u64 Reference(Params const& p, ZEL::u64 reg, ZEL::u8 const* data, std::size_t size) {
  ZEL::u64 const top = ZEL::u64{1} << (p.width - 1);
  for (std::size_t i = 0; i < size; ++i) {
    ZEL::u64 const byte = p.reflectIn ? Reverse(data[i], 8) : data[i];
    for (int bit = 7; bit >= 0; --bit) {
      bool const feedback = ((reg & top) != 0) != (((byte >> bit) & 1) != 0);
      reg = ((reg << 1) ^ (feedback ? p.poly : 0)) & Mask(p.width);
    }
  }
  return ((p.reflectOut ? Reverse(reg, p.width) : reg) ^ p.finalXor) & Mask(p.width);
}

}  // namespace zel_crc_reference

#endif  // LZEL_TESTS_VALUES_CRC_REFERENCE_H_
