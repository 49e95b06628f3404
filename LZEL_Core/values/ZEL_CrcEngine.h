// SPDX-License-Identifier: Apache-2.0
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
// Both forms give exactly the register of the byte-table definition.
//
// Configuring builds one 256-entry table, derived from the eight entries of
// the single bits, since each table is linear in its index; short blocks go
// through it a byte at a time. Once an engine has seen a few KiB (or one
// long block) it derives, once, the tables and constants of the long-block
// paths: eight bytes at a time through eight tables (slicing) and, where the
// processor has carry-less multiplication, 128 bytes at a time by folding
// (256 bytes where it has it on 512-bit registers). That derivation happens
// inside const computations, possibly on several threads at once: each
// thread that finds it missing may build it, one of them publishes it
// atomically and the others discard theirs, and until it is published every
// caller takes the byte path. The results never depend on the path.

#ifndef LZEL_CORE_VALUES_ZEL_CRC_ENGINE_H_
#define LZEL_CORE_VALUES_ZEL_CRC_ENGINE_H_

#include <LZEL_Core/frame/ZEL_Types.h>

#include <atomic>

namespace ZEL {
namespace crc_engine {

// The tables and constants of the long-block paths.
struct SCrcWide {
  // slice[k][b]: the register contribution of byte b followed by k bytes.
  u64 slice[8][256];
  // Folding constants (x^n mod G) that move a 128-bit lane forward by 128,
  // 512, 1024 or 2048 bits, as the low and high halves of one operand.
  u64 fold128[2];
  u64 fold512[2];
  u64 fold1024[2];
  u64 fold2048[2];
  // The folding path used: 0 none, 1 on 128 bits, 2 on 512 bits.
  u8 folding;
};

// One configuration. Copies take the long-block tables along if the source
// has them.
struct SCrcEngine {
  SCrcEngine() = default;
  SCrcEngine(SCrcEngine const& src);
  SCrcEngine& operator=(SCrcEngine const&) = delete;
  ~SCrcEngine();

  // The contribution of one byte in the engine's form.
  u64 byteTable[256];
  // The polynomial in normal form at the top of 64 bits.
  u64 polynomial = 0;
  // 64 - width: where the register sits in the normal form.
  u32 shift = 0;
  // 1 for the reflected form.
  u8 reflected = 0;
  // The long-block tables, null until derived.
  mutable std::atomic<SCrcWide*> wide{nullptr};
  // Bytes run through the byte path so far, counted toward deriving them.
  mutable std::atomic<u64> bytesSeen{0};
};

// `value` with its 64 bits in reverse order, inline for the short paths.
inline u64 Reflect64(u64 v) {
  v = ((v & 0x5555555555555555ull) << 1) | ((v >> 1) & 0x5555555555555555ull);
  v = ((v & 0x3333333333333333ull) << 2) | ((v >> 2) & 0x3333333333333333ull);
  v = ((v & 0x0F0F0F0F0F0F0F0Full) << 4) | ((v >> 4) & 0x0F0F0F0F0F0F0F0Full);
  v = ((v & 0x00FF00FF00FF00FFull) << 8) | ((v >> 8) & 0x00FF00FF00FF00FFull);
  v = ((v & 0x0000FFFF0000FFFFull) << 16) | ((v >> 16) & 0x0000FFFF0000FFFFull);
  return (v << 32) | (v >> 32);
}

// The entries 1, 2, 4, ..., 128 of the byte table below: bit k at the top of
// the register, shifted left eight times, XORed with `polynomial` (normal
// form) whenever the top bit falls out. Each is the one before times x.
template <typename T>
void FillByteTableBits(T (&bits)[8], T polynomial) {
  constexpr u32 kBits = 8 * sizeof(T);
  auto const timesX = [polynomial](T r) {
    return T(T(r << 1) ^ (((r >> (kBits - 1)) & 1u) != 0 ? polynomial : T(0)));
  };
  T bit = T(T(1) << (kBits - 8));
  for (int step = 0; step < 8; ++step) bit = timesX(bit);
  for (T& entry : bits) {
    entry = bit;
    bit = timesX(bit);
  }
}

// A 256-entry table that is linear in its index, from its entries at the
// single bits: every other entry is the XOR of two earlier ones.
template <typename T>
void FillLinearTable(T* table, T const (&bits)[8]) {
  table[0] = 0;
  for (u32 k = 0, high = 1; k < 8; ++k, high <<= 1) {
    for (u32 low = 0; low < high; ++low) table[high + low] = T(bits[k] ^ table[low]);
  }
}

// The 256-entry byte table of a CRC of the width of T with `polynomial` in
// normal form: entry i is i at the top of the register, shifted left eight
// times, XORed with the polynomial whenever the top bit falls out.
template <typename T>
void FillByteTable(T* table, T polynomial) {
  T bits[8];
  FillByteTableBits(bits, polynomial);
  FillLinearTable(table, bits);
}

// Prepares `engine` for a CRC of `width` bits (8, 16, 32 or 64) with
// `polynomial` (bits above the width ignored) and input reflection on or
// off. The long-block tables are dropped, to be derived when needed.
void BuildCrcEngine(SCrcEngine& engine, u32 width, u64 polynomial, bool reflectInput);

// Runs `size` bytes at `data` through the register `reg`, given and returned
// in its normal form in the low `width` bits, exactly as the byte table would.
u64 RunCrcEngine(SCrcEngine const& engine, u64 reg, u8 const* data, u64 size);

}  // namespace crc_engine
}  // namespace ZEL

#endif  // LZEL_CORE_VALUES_ZEL_CRC_ENGINE_H_
