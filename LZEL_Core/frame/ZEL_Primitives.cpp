// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/frame/ZEL_Primitives.h>

#include <cstring>

namespace ZEL {

namespace {

// 1 shifted left by `count`, and 0 for a count of 64 or more: the shifts of
// the field computations that can reach 64 go through here.
constexpr u64 Pow2(u32 count) { return count < 64 ? (u64{1} << count) : 0; }

// The low `count` bits set; all 64 for a count of 64 or more.
constexpr u64 LowBits(u32 count) { return count < 64 ? (u64{1} << count) - 1 : ~u64{0}; }

// The field mask rule, shared by GetField and every SetField form. Bit i of
// an N-bit word (N <= 64) belongs to the field if start <= i < start + width,
// the sum computed in 32 bits. So a field is cut at the word's top, a start
// at or beyond N, a width of 0 and a wrapped sum all give an empty mask.
constexpr u64 FieldMask(u32 start, u32 width, u32 n) {
  u32 end = static_cast<u32>(start + width);  // wraps in 32 bits, by design
  if (end > n) end = n;
  if (start >= end) return 0;  // also covers start >= n; then start < 64
  return LowBits(end) & ~LowBits(start);
}

// SetField for any width: the field moved up by `start`, cut to the mask,
// written over the mask's bits of the word.
template <typename T>
void SetFieldOf(T& word, u32 start, u32 width, T field) {
  u64 const mask = FieldMask(start, width, 8 * sizeof(T));
  if (mask == 0) return;  // start may be >= 64 here: no shift
  u64 const bits = (static_cast<u64>(field) << start) & mask;
  word = static_cast<T>((static_cast<u64>(word) & ~mask) | bits);
}

// Reinterprets the bits of one type as another of the same size.
template <typename To, typename From>
To BitCast(From const& from) {
  static_assert(sizeof(To) == sizeof(From), "BitCast needs equal sizes");
  To to;
  std::memcpy(&to, &from, sizeof(To));
  return to;
}

// A u64 pattern as i64, modulo 2^64.
inline i64 AsSigned(u64 bits) { return BitCast<i64>(bits); }

// The unsigned readers and writers do the byte-by-byte work.
template <typename T>
T UnsignedFromBuf(u8 const* buffer, t_ByteOrdering order) {
  constexpr unsigned kBytes = sizeof(T);
  T value = 0;
  if (order == 0) {
    for (unsigned i = kBytes; i-- > 0;) value = static_cast<T>((value << 8) | buffer[i]);
  } else {
    for (unsigned i = 0; i < kBytes; ++i) value = static_cast<T>((value << 8) | buffer[i]);
  }
  return value;
}

template <typename T>
void UnsignedToBuf(T value, u8* buffer, t_ByteOrdering order) {
  constexpr unsigned kBytes = sizeof(T);
  for (unsigned i = 0; i < kBytes; ++i) {
    u8 const byte = static_cast<u8>(value >> (8 * i));
    buffer[order == 0 ? i : kBytes - 1 - i] = byte;
  }
}

// The narrow SetBit forms: the mask built in 32 bits with the shift count
// modulo 32, then cut to the word.
template <typename T>
void SetBitNarrow(T& word, u32 pos, u8 on) {
  T const mask = static_cast<T>(u32{1} << (pos & 31u));
  word = on ? static_cast<T>(word | mask) : static_cast<T>(word & ~mask);
}

// The wide SetBit forms: the mask built in 64 bits, cut to the word.
template <typename T>
void SetBitWide(T& word, u32 pos, u8 on) {
  T const mask = static_cast<T>(Pow2(pos));
  word = on ? static_cast<T>(word | mask) : static_cast<T>(word & ~mask);
}

template <typename T>
T RotateLeft(T value, T count) {
  constexpr unsigned kBits = 8 * sizeof(T);
  unsigned const n = static_cast<unsigned>(count % kBits);
  if (n == 0) return value;
  return static_cast<T>((value << n) | (value >> (kBits - n)));
}

template <typename T>
T RotateRight(T value, T count) {
  constexpr unsigned kBits = 8 * sizeof(T);
  unsigned const n = static_cast<unsigned>(count % kBits);
  if (n == 0) return value;
  return static_cast<T>((value >> n) | (value << (kBits - n)));
}

}  // namespace

// --- Single bits and fields ---------------------------------------------------

u8 GetBit(u64 value, u32 pos) { return pos < 64 ? static_cast<u8>((value >> pos) & 1u) : 0; }

void SetBit(u8& word, u32 pos, u8 on) { SetBitNarrow(word, pos, on); }
void SetBit(u16& word, u32 pos, u8 on) { SetBitNarrow(word, pos, on); }
void SetBit(u32& word, u32 pos, u8 on) { SetBitWide(word, pos, on); }
void SetBit(u64& word, u32 pos, u8 on) { SetBitWide(word, pos, on); }

u64 GetField(u64 value, u32 start, u32 width) {
  u64 const mask = FieldMask(start, width, 64);
  if (mask == 0) return 0;  // start may be >= 64 here: no shift
  return (value & mask) >> start;
}

void SetField(u8& word, u32 start, u32 width, u8 field) { SetFieldOf(word, start, width, field); }
void SetField(u16& word, u32 start, u32 width, u16 field) { SetFieldOf(word, start, width, field); }
void SetField(u32& word, u32 start, u32 width, u32 field) { SetFieldOf(word, start, width, field); }
void SetField(u64& word, u32 start, u32 width, u64 field) { SetFieldOf(word, start, width, field); }

// The results are worked out in u64 and turned into i64 at the end as a bit
// pattern, so that INT64_MIN and minus 2^63 need no signed overflow.
i64 GetSignedField(u64 value, u32 start, u32 width, t_ZEL_NumberRepr repr) {
  u64 const field = GetField(value, start, width);
  if (width == 0) return 0;
  u64 const top = Pow2(width - 1);  // the field's top bit; 0 beyond 64 bits
  bool const negative = (field & top) != 0;
  switch (static_cast<u32>(repr)) {
    case ZEL_REPR_UNSIGNED:
      return AsSigned(field);
    case ZEL_REPR_ONES_COMPLEMENT:
      if (width == 1) return 0;
      if (!negative) return AsSigned(field);
      return AsSigned(u64{0} - (~field & LowBits(width - 1)));
    case ZEL_REPR_TWOS_COMPLEMENT:
      if (width == 1) return 0;
      if (width == 64) return AsSigned(value);  // unshifted, by design
      if (!negative) return AsSigned(field);
      // Here 2 <= width <= 63: 2^width fits.
      return AsSigned(u64{0} - (Pow2(width) - field));
    case ZEL_REPR_SIGN_MAGNITUDE:
      if (width == 1) return 0;
      if (!negative) return AsSigned(field);
      return AsSigned(u64{0} - (field & LowBits(width - 1)));
    case ZEL_REPR_OFFSET_BINARY:
      return AsSigned(field - top);
    default:
      return 0;
  }
}

void SetSignedField(u64& word, u32 start, u32 width, i64 number, t_ZEL_NumberRepr repr) {
  u64 const bits = static_cast<u64>(number);  // the two's complement pattern
  u64 const magnitude = u64{0} - bits;        // - number, also for INT64_MIN
  bool const negative = number < 0;
  u64 raw = 0;
  switch (static_cast<u32>(repr)) {
    case ZEL_REPR_UNSIGNED:
      raw = bits;
      break;
    case ZEL_REPR_ONES_COMPLEMENT:
      raw = negative ? ~magnitude : bits;
      break;
    case ZEL_REPR_TWOS_COMPLEMENT:
      raw = (width >= 64 || !negative) ? bits : Pow2(width) + bits;
      break;
    case ZEL_REPR_SIGN_MAGNITUDE:
      raw = negative ? (magnitude | Pow2(width - 1)) : bits;
      break;
    case ZEL_REPR_OFFSET_BINARY:
      raw = bits + Pow2(width - 1);
      break;
    default:
      raw = 0;
      break;
  }
  SetField(word, start, width, raw);
}

u64 GetBcdField(u64 value, u32 start, u32 digits) {
  u32 const n = digits < 16 ? digits : 16;
  u64 raw = GetField(value, start, 4 * n);
  u64 result = 0;
  u64 weight = 1;
  for (u32 i = 0; i < n; ++i) {
    result += (raw & 15u) * weight;
    weight *= 10;
    raw /= 16;
  }
  return result;
}

void SetBcdField(u64& word, u32 start, u32 digits, u64 number) {
  u32 const n = digits < 16 ? digits : 16;
  u64 raw = 0;
  for (u32 i = 0; i < n; ++i) {
    raw |= (number % 10) << (4 * i);
    number /= 10;
  }
  SetField(word, start, 4 * n, raw);
}

// --- Bit reversal and rotation ----------------------------------------------

u8 ReflectUint8(u8 value) {
  u32 v = value;
  v = ((v & 0xF0u) >> 4) | ((v & 0x0Fu) << 4);
  v = ((v & 0xCCu) >> 2) | ((v & 0x33u) << 2);
  v = ((v & 0xAAu) >> 1) | ((v & 0x55u) << 1);
  return static_cast<u8>(v);
}

u16 ReflectUint16(u16 value) {
  u32 v = value;
  v = ((v & 0xFF00u) >> 8) | ((v & 0x00FFu) << 8);
  v = ((v & 0xF0F0u) >> 4) | ((v & 0x0F0Fu) << 4);
  v = ((v & 0xCCCCu) >> 2) | ((v & 0x3333u) << 2);
  v = ((v & 0xAAAAu) >> 1) | ((v & 0x5555u) << 1);
  return static_cast<u16>(v);
}

u32 ReflectUint32(u32 value) {
  u32 v = value;
  v = (v >> 16) | (v << 16);
  v = ((v & 0xFF00FF00u) >> 8) | ((v & 0x00FF00FFu) << 8);
  v = ((v & 0xF0F0F0F0u) >> 4) | ((v & 0x0F0F0F0Fu) << 4);
  v = ((v & 0xCCCCCCCCu) >> 2) | ((v & 0x33333333u) << 2);
  v = ((v & 0xAAAAAAAAu) >> 1) | ((v & 0x55555555u) << 1);
  return v;
}

u64 ReflectUint64(u64 value) {
  u64 v = value;
  v = (v >> 32) | (v << 32);
  v = ((v & 0xFFFF0000FFFF0000ull) >> 16) | ((v & 0x0000FFFF0000FFFFull) << 16);
  v = ((v & 0xFF00FF00FF00FF00ull) >> 8) | ((v & 0x00FF00FF00FF00FFull) << 8);
  v = ((v & 0xF0F0F0F0F0F0F0F0ull) >> 4) | ((v & 0x0F0F0F0F0F0F0F0Full) << 4);
  v = ((v & 0xCCCCCCCCCCCCCCCCull) >> 2) | ((v & 0x3333333333333333ull) << 2);
  v = ((v & 0xAAAAAAAAAAAAAAAAull) >> 1) | ((v & 0x5555555555555555ull) << 1);
  return v;
}

u8 ShiftRotatedLeft8(u8 value, u8 count) { return RotateLeft(value, count); }
u16 ShiftRotatedLeft16(u16 value, u16 count) { return RotateLeft(value, count); }
u32 ShiftRotatedLeft32(u32 value, u32 count) { return RotateLeft(value, count); }
u64 ShiftRotatedLeft64(u64 value, u64 count) { return RotateLeft(value, count); }

u8 ShiftRotatedRight8(u8 value, u8 count) { return RotateRight(value, count); }
u16 ShiftRotatedRight16(u16 value, u16 count) { return RotateRight(value, count); }
u32 ShiftRotatedRight32(u32 value, u32 count) { return RotateRight(value, count); }
u64 ShiftRotatedRight64(u64 value, u64 count) { return RotateRight(value, count); }

// --- Integer ceiling ----------------------------------------------------------

u64 IntCeil(u64 a, u64 b) { return a / b + (a % b != 0 ? 1 : 0); }

// --- Packing into and out of byte buffers -------------------------------------

u16 Uint16FromBuf(u8* buffer, t_ByteOrdering order) { return UnsignedFromBuf<u16>(buffer, order); }
u32 Uint32FromBuf(u8* buffer, t_ByteOrdering order) { return UnsignedFromBuf<u32>(buffer, order); }
u64 Uint64FromBuf(u8* buffer, t_ByteOrdering order) { return UnsignedFromBuf<u64>(buffer, order); }

short Int16FromBuf(u8* buffer, t_ByteOrdering order) {
  return BitCast<short>(Uint16FromBuf(buffer, order));
}
int Int32FromBuf(u8* buffer, t_ByteOrdering order) {
  return BitCast<int>(Uint32FromBuf(buffer, order));
}
i64 Int64FromBuf(u8* buffer, t_ByteOrdering order) {
  return BitCast<i64>(Uint64FromBuf(buffer, order));
}
float FloatFromBuf(u8* buffer, t_ByteOrdering order) {
  return BitCast<float>(Uint32FromBuf(buffer, order));
}
double DoubleFromBuf(u8* buffer, t_ByteOrdering order) {
  return BitCast<double>(Uint64FromBuf(buffer, order));
}

void Uint16ToBuf(u16 const& value, u8* buffer, t_ByteOrdering order) {
  UnsignedToBuf(value, buffer, order);
}
void Uint32ToBuf(u32 const& value, u8* buffer, t_ByteOrdering order) {
  UnsignedToBuf(value, buffer, order);
}
void Uint64ToBuf(u64 const& value, u8* buffer, t_ByteOrdering order) {
  UnsignedToBuf(value, buffer, order);
}

void Int16ToBuf(short const& value, u8* buffer, t_ByteOrdering order) {
  Uint16ToBuf(BitCast<u16>(value), buffer, order);
}
void Int32ToBuf(int const& value, u8* buffer, t_ByteOrdering order) {
  Uint32ToBuf(BitCast<u32>(value), buffer, order);
}
void Int64ToBuf(i64 const& value, u8* buffer, t_ByteOrdering order) {
  Uint64ToBuf(BitCast<u64>(value), buffer, order);
}
void FloatToBuf(float const& value, u8* buffer, t_ByteOrdering order) {
  Uint32ToBuf(BitCast<u32>(value), buffer, order);
}
void DoubleToBuf(double const& value, u8* buffer, t_ByteOrdering order) {
  Uint64ToBuf(BitCast<u64>(value), buffer, order);
}

void InvertByteOrder(u8* buffer, u32 size) {
  for (u32 i = 0; i < size / 2; ++i) {
    u8 const tmp = buffer[i];
    buffer[i] = buffer[size - 1 - i];
    buffer[size - 1 - i] = tmp;
  }
}

t_WinRgbQuad ToWinRgbQuad32Bit(u32 color) { return internal::SplitWinRgbQuad(color); }

}  // namespace ZEL
