// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: ZEL_Primitives.h
// -----------------------------------------------------------------------------
//
// The bit and byte primitives of namespace `ZEL`: 45 free functions that treat
// integers as fields of bits and buffers as sequences of bytes, and the three
// types they speak in (`t_ByteOrdering`, `t_ZEL_NumberRepr`, `t_WinRgbQuad`).
// Every function is a pure function of its arguments, or changes only the one
// word or buffer passed to it. None has state, allocates, throws or reports an
// error: bad positions and widths have a defined quiet result.
//
// Bit numbering
//
// Bits are numbered from 0 at the least significant end, in every function.
// A field is given by its lowest bit `start` and its `width` in bits.
//
// The field mask
//
// `GetField` and every `SetField` form select the field's bits by one rule.
// For a word of N bits (N is 64 for `GetField`), bit i belongs to the field
// when i >= start and i < start + width, that sum being computed in 32
// unsigned bits. Four consequences follow, and they are part of the interface:
//
//   1. A field that runs over the top of the word is cut there:
//      `GetField(v, 60, 8)` is the top 4 bits of v.
//   2. A `start` at or beyond N gives an empty mask: `GetField(v, 64, 1)` is 0.
//   3. A `width` of 0 gives an empty mask: `SetField(w, 3, 0, x)` changes
//      nothing.
//   4. When start + width wraps past 32 bits the sum is small, so the mask is
//      empty: `GetField(v, 1, 0xFFFFFFFF)` is 0, while
//      `GetField(v, 0, 0xFFFFFFFF)` is v.
//
// `GetField` returns (value AND mask) moved down to bit 0. `SetField` moves
// the field up by `start`, keeps only the mask's bits of it, clears the mask's
// bits in the word and ORs the result in: bits of the field beyond `width`
// are dropped, and an empty mask leaves the word as it was.
//
// Representations
//
// `t_ZEL_NumberRepr` tells how a signed number is coded in a field of `width`
// bits, whose top bit is bit width - 1: unsigned (the bits as they stand),
// one's complement (a negative number is the inverse of its magnitude), two's
// complement (a negative n is 2^width + n), sign and magnitude (top bit the
// sign, the rest the magnitude) and offset binary (n + 2^(width - 1)).
// `SetSignedField` makes no range check: a number that does not fit loses its
// top bits. Required oddities of `GetSignedField`, kept as they stand:
//   - a one-bit field reads 0 in the three representations with a sign bit,
//     whatever the bit says (offset binary reads -1 or 0, unsigned 0 or 1);
//   - two's complement with `width` 64 returns `value` itself, unshifted,
//     whatever `start` says;
//   - an unknown representation reads 0, and `SetSignedField` with one clears
//     the field.
// Binary-coded decimal fields hold up to 16 digits of 4 bits each, the least
// significant digit at `start`; nibbles above 9 are not validated.
//
// Byte buffers
//
// The `FromBuf` and `ToBuf` functions move numbers to and from unaligned byte
// buffers in a chosen order, byte by byte, so the result does not depend on
// the host's own order. `ZEL_LITTLE_ENDIAN` is 0; any other value of
// `t_ByteOrdering` acts as big-endian.
//
// Example:
//
//   ZEL::u64 reg = 0;
//   ZEL::SetSignedField(reg, 8, 8, -1, ZEL::ZEL_REPR_SIGN_MAGNITUDE);
//   // reg == 0x8100
//   ZEL::i64 n = ZEL::GetSignedField(reg, 8, 8, ZEL::ZEL_REPR_SIGN_MAGNITUDE);
//   // n == -1
//
//   ZEL::u8 header[4];
//   ZEL::u32 size = 0x01020304;
//   ZEL::Uint32ToBuf(size, header, ZEL::ZEL_BIG_ENDIAN);
//   // header is 01 02 03 04
//   ZEL::u32 back = ZEL::Uint32FromBuf(header, ZEL::ZEL_BIG_ENDIAN);
//   // back == 0x01020304

#ifndef LZEL_CORE_FRAME_ZEL_PRIMITIVES_H_
#define LZEL_CORE_FRAME_ZEL_PRIMITIVES_H_

#include <LZEL_Core/frame/ZEL_Types.h>

namespace ZEL {

// The order of the bytes of a number in a buffer. Every function tests the
// ordering against 0 only, so any value other than 0 acts as big-endian.
enum t_ByteOrdering : u32 {
  // Byte 0 of the buffer is the least significant.
  ZEL_LITTLE_ENDIAN = 0,
  // Byte 0 of the buffer is the most significant.
  ZEL_BIG_ENDIAN = 1
};

// How a signed number is coded in a field of `width` bits.
enum t_ZEL_NumberRepr : u32 {
  // No sign: the bits as they stand.
  ZEL_REPR_UNSIGNED = 0,
  // A negative number is the bitwise inverse of its magnitude.
  ZEL_REPR_ONES_COMPLEMENT = 1,
  // A negative number n is 2^width + n.
  ZEL_REPR_TWOS_COMPLEMENT = 2,
  // The top bit is the sign, the rest the magnitude.
  ZEL_REPR_SIGN_MAGNITUDE = 3,
  // The stored value is n + 2^(width - 1).
  ZEL_REPR_OFFSET_BINARY = 4
};

// A colour of the Windows bitmap palette. Each field holds 0 to 255, although
// the fields are 16 bits wide.
struct t_WinRgbQuad {
  u16 red;       // 0 to 255
  u16 green;     // 0 to 255
  u16 blue;      // 0 to 255
  u16 reserved;  // the palette word's fourth byte
};

// --- Single bits and fields ---------------------------------------------------

// 1 if bit `pos` of `value` is set, else 0. A `pos` of 64 or more gives 0.
ZEL_API u8 GetBit(u64 value, u32 pos);

// Set bit `pos` of `word` if `on` is non-zero, clear it otherwise.
// The u8 and u16 forms build the one-bit mask in 32 bits with the shift count
// taken modulo 32, then cut it to the word: `pos` 8 (16) to 31 leaves the
// word unchanged, but `pos` 32 acts on bit 0 again.
// The u32 and u64 forms build the mask in 64 bits: a `pos` at or beyond the
// word's width leaves the word unchanged.
// A `pos` of 256 or more is outside the contract.
ZEL_API void SetBit(u8& word, u32 pos, u8 on);
ZEL_API void SetBit(u16& word, u32 pos, u8 on);
ZEL_API void SetBit(u32& word, u32 pos, u8 on);
ZEL_API void SetBit(u64& word, u32 pos, u8 on);

// The field of `width` bits from bit `start` of `value`, moved down to bit 0
// (the field mask rule above, with N = 64).
ZEL_API u64 GetField(u64 value, u32 start, u32 width);

// Writes the low bits of `field` into the field of `word` (the field mask
// rule above, N being the width of the word).
ZEL_API void SetField(u8& word, u32 start, u32 width, u8 field);
ZEL_API void SetField(u16& word, u32 start, u32 width, u16 field);
ZEL_API void SetField(u32& word, u32 start, u32 width, u32 field);
ZEL_API void SetField(u64& word, u32 start, u32 width, u64 field);

// The field as a signed number in representation `repr`. `width` 0 and an
// unknown `repr` give 0; see "Representations" above for the one-bit field
// and the width-64 two's complement shortcut.
ZEL_API i64 GetSignedField(u64 value, u32 start, u32 width, t_ZEL_NumberRepr repr);

// Codes `number` in representation `repr` and writes it into the field with
// the 64-bit `SetField`, which cuts it to the field. No range check is made.
// An unknown `repr` clears the field.
ZEL_API void SetSignedField(u64& word, u32 start, u32 width, i64 number, t_ZEL_NumberRepr repr);

// The binary value of a field of min(`digits`, 16) decimal digits of 4 bits
// each, the least significant digit at `start`. Nibbles above 9 count with
// their binary value.
ZEL_API u64 GetBcdField(u64 value, u32 start, u32 digits);

// Writes the lowest min(`digits`, 16) decimal digits of `number` into the
// field from `start`. Higher digits are dropped.
ZEL_API void SetBcdField(u64& word, u32 start, u32 digits, u64 number);

// --- Bit reversal and rotation ----------------------------------------------

// The word with its bits in reverse order: bit i goes to bit N - 1 - i.
ZEL_API u8 ReflectUint8(u8 value);
ZEL_API u16 ReflectUint16(u16 value);
ZEL_API u32 ReflectUint32(u32 value);
ZEL_API u64 ReflectUint64(u64 value);

// The word rotated left by `count` modulo N. A count of 0 or N returns the
// word unchanged.
ZEL_API u8 ShiftRotatedLeft8(u8 value, u8 count);
ZEL_API u16 ShiftRotatedLeft16(u16 value, u16 count);
ZEL_API u32 ShiftRotatedLeft32(u32 value, u32 count);
ZEL_API u64 ShiftRotatedLeft64(u64 value, u64 count);

// The word rotated right by `count` modulo N.
ZEL_API u8 ShiftRotatedRight8(u8 value, u8 count);
ZEL_API u16 ShiftRotatedRight16(u16 value, u16 count);
ZEL_API u32 ShiftRotatedRight32(u32 value, u32 count);
ZEL_API u64 ShiftRotatedRight64(u64 value, u64 count);

// --- Integer ceiling ----------------------------------------------------------

// a / b, plus 1 if the remainder is not 0. `b` must not be 0 (not guarded).
ZEL_API u64 IntCeil(u64 a, u64 b);

// --- Packing into and out of byte buffers -------------------------------------
//
// Each `FromBuf` reads the value's bytes from `buffer` in `order`; each
// `ToBuf` writes them. No alignment is needed. The unsigned forms do the
// work; the signed forms and float/double move the same bit pattern through
// them, with no conversion of value.

ZEL_API u16 Uint16FromBuf(u8* buffer, t_ByteOrdering order);
ZEL_API short Int16FromBuf(u8* buffer, t_ByteOrdering order);
ZEL_API u32 Uint32FromBuf(u8* buffer, t_ByteOrdering order);
ZEL_API int Int32FromBuf(u8* buffer, t_ByteOrdering order);
ZEL_API u64 Uint64FromBuf(u8* buffer, t_ByteOrdering order);
ZEL_API i64 Int64FromBuf(u8* buffer, t_ByteOrdering order);
ZEL_API float FloatFromBuf(u8* buffer, t_ByteOrdering order);
ZEL_API double DoubleFromBuf(u8* buffer, t_ByteOrdering order);

ZEL_API void Uint16ToBuf(u16 const& value, u8* buffer, t_ByteOrdering order);
ZEL_API void Int16ToBuf(short const& value, u8* buffer, t_ByteOrdering order);
ZEL_API void Uint32ToBuf(u32 const& value, u8* buffer, t_ByteOrdering order);
ZEL_API void Int32ToBuf(int const& value, u8* buffer, t_ByteOrdering order);
ZEL_API void Uint64ToBuf(u64 const& value, u8* buffer, t_ByteOrdering order);
ZEL_API void Int64ToBuf(i64 const& value, u8* buffer, t_ByteOrdering order);
ZEL_API void FloatToBuf(float const& value, u8* buffer, t_ByteOrdering order);
ZEL_API void DoubleToBuf(double const& value, u8* buffer, t_ByteOrdering order);

// Reverses `size` bytes of `buffer` in place. Size 0 and 1 change nothing.
ZEL_API void InvertByteOrder(u8* buffer, u32 size);

// Splits a palette word: `blue` from bits 0-7, `green` 8-15, `red` 16-23 and
// `reserved` 24-31.
ZEL_API t_WinRgbQuad ToWinRgbQuad32Bit(u32 color);

namespace internal {
// The split of `ToWinRgbQuad32Bit`, inline for the library's pixel queries,
// which must call nothing out of line inside a caller's pixel loop.
inline t_WinRgbQuad SplitWinRgbQuad(u32 color) {
  auto const byte = [color](int shift) { return static_cast<u16>((color >> shift) & 0xFFu); };
  return t_WinRgbQuad{byte(16), byte(8), byte(0), byte(24)};
}
}  // namespace internal

}  // namespace ZEL

#endif  // LZEL_CORE_FRAME_ZEL_PRIMITIVES_H_
