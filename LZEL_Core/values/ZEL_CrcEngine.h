// -----------------------------------------------------------------------------
// File: ZEL_CrcEngine.h
// -----------------------------------------------------------------------------
//
// The fast paths behind `CZEL_Crc`: internal to the library, not part of its
// surface. Every configuration of the CRC engine runs here as a 64-bit
// register, whatever its width:
//
//   - without input reflection the register is kept in its normal form
//     shifted to the top of 64 bits, and the polynomial with it, so that
//     "the top byte of the register meets the next data byte" holds at every
//     width;
//   - with input reflection the register is kept bit-reversed in the low
//     bits, and bytes enter at its bottom unreversed: taking each byte
//     bit-reversed most-significant-bit first is the same as taking it as it
//     stands least-significant-bit first.
//
// Both forms give exactly the register of the byte-table definition. Blocks
// are taken eight bytes at a time through eight tables (slicing), and where
// the processor has carry-less multiplication, 128 bytes at a time by
// folding, or 256 bytes at a time where it has it on 512-bit registers, with
// constants derived from the polynomial at configuration time.

#ifndef LZEL_CORE_VALUES_ZEL_CRC_ENGINE_H_
#define LZEL_CORE_VALUES_ZEL_CRC_ENGINE_H_

#include <LZEL_Core/frame/ZEL_Types.h>

namespace ZEL {
namespace crc_engine {

// The tables and constants of one configuration.
struct SCrcEngine {
  // slice[k][b]: the register contribution of byte b followed by k bytes.
  u64 slice[8][256];
  // Folding constants (x^n mod G) that move a 128-bit lane forward by 128,
  // 512, 1024 or 2048 bits, as the low and high halves of one operand.
  u64 fold128[2];
  u64 fold512[2];
  u64 fold1024[2];
  u64 fold2048[2];
  // 64 - width: where the register sits in the normal form.
  u32 shift;
  // 1 for the reflected form.
  u8 reflected;
  // The folding path used: 0 none, 1 on 128 bits, 2 on 512 bits.
  u8 folding;
};

// The 256-entry byte table of a CRC of the width of T with `polynomial` in
// normal form: each entry i is i at the top of the register, shifted left
// eight times, XORed with the polynomial whenever the top bit falls out.
template <typename T>
void FillByteTable(T* table, T polynomial) {
  constexpr T kTop = T(T(1) << (8 * sizeof(T) - 1));
  for (u32 i = 0; i < 256; ++i) {
    T reg = T(T(i) << (8 * sizeof(T) - 8));
    for (int bit = 0; bit < 8; ++bit) {
      reg = (reg & kTop) != 0 ? T(T(reg << 1) ^ polynomial) : T(reg << 1);
    }
    table[i] = reg;
  }
}

// Prepares `engine` for a CRC of `width` bits (8, 16, 32 or 64) with
// `polynomial` (bits above the width ignored) and input reflection on or off.
void BuildCrcEngine(SCrcEngine& engine, u32 width, u64 polynomial, bool reflectInput);

// Runs `size` bytes at `data` through the register `reg`, given and returned
// in its normal form in the low `width` bits, exactly as the byte table would.
u64 RunCrcEngine(SCrcEngine const& engine, u64 reg, u8 const* data, u64 size);

}  // namespace crc_engine
}  // namespace ZEL

#endif  // LZEL_CORE_VALUES_ZEL_CRC_ENGINE_H_
