#include <LZEL_Core/values/ZEL_CrcEngine.h>

#include <LZEL_Core/frame/ZEL_Primitives.h>

#include <cstring>

#if defined(__x86_64__) && (defined(__GNUC__) || defined(__clang__))
#define ZEL_CRC_FOLDING 1
#include <immintrin.h>
// The folding functions are compiled for carry-less multiplication and run
// only where the processor reports it, so the library needs no special flags.
#define ZEL_FOLD_TARGET __attribute__((target("pclmul,sse4.1")))
#else
#define ZEL_CRC_FOLDING 0
#endif

namespace ZEL {
namespace crc_engine {
namespace {

// Blocks shorter than this go through the slicing path alone: folding pays
// for its 16-byte finish only over a few stripes.
constexpr u64 kFoldMinimum = 256;

constexpr bool kBigEndianHost =
#if defined(__BYTE_ORDER__) && defined(__ORDER_BIG_ENDIAN__)
    __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__;
#else
    false;
#endif

u64 ByteSwap64(u64 v) {
  v = ((v & 0x00FF00FF00FF00FFull) << 8) | ((v >> 8) & 0x00FF00FF00FF00FFull);
  v = ((v & 0x0000FFFF0000FFFFull) << 16) | ((v >> 16) & 0x0000FFFF0000FFFFull);
  return (v << 32) | (v >> 32);
}

// Eight bytes from an unaligned address, the first byte lowest (or, with
// `firstHighest`, highest).
u64 Load64(u8 const* p, bool firstHighest) {
  u64 v;
  std::memcpy(&v, p, sizeof v);
  return firstHighest != kBigEndianHost ? ByteSwap64(v) : v;
}

// x^n modulo G = x^64 + q, as a polynomial of degree below 64 with bit i the
// coefficient of x^i.
u64 XPowMod(u32 n, u64 q) {
  u64 r = 1;
  for (u32 i = 0; i < n; ++i) r = (r << 1) ^ ((r >> 63) != 0 ? q : 0);
  return r;
}

// The constants that move a 128-bit lane forward by `distance` bits. The
// normal form multiplies the high half by x^(distance + 64) and the low half
// by x^distance. In the reflected form a lane's low half holds the high
// coefficients, bit-reversed, and a carry-less product of two reversed
// operands comes out one place too far up, hence the exponents less one.
void FoldConstants(u64 (&k)[2], u32 distance, u64 q, bool reflected) {
  if (reflected) {
    k[0] = ReflectUint64(XPowMod(distance + 63, q));
    k[1] = ReflectUint64(XPowMod(distance - 1, q));
  } else {
    k[0] = XPowMod(distance, q);
    k[1] = XPowMod(distance + 64, q);
  }
}

bool CpuCanFold() {
#if ZEL_CRC_FOLDING
  __builtin_cpu_init();
  return __builtin_cpu_supports("pclmul") && __builtin_cpu_supports("sse4.1");
#else
  return false;
#endif
}

// Eight bytes at a time: the register XOR the next eight bytes is replaced by
// the sum of each byte's contribution across the bytes that follow it.
template <bool kReflected>
u64 Slice(SCrcEngine const& e, u64 r, u8 const* p, u64 n) {
  for (; n >= 8; p += 8, n -= 8) {
    u64 const v = r ^ Load64(p, !kReflected);
    u64 next = 0;
    for (u32 k = 0; k < 8; ++k) {
      u32 const shift = kReflected ? 8 * k : 56 - 8 * k;  // byte k in data order
      next ^= e.slice[7 - k][(v >> shift) & 0xFF];
    }
    r = next;
  }
  for (; n != 0; ++p, --n) {
    r = kReflected ? (r >> 8) ^ e.slice[0][(r ^ *p) & 0xFF] : (r << 8) ^ e.slice[0][(r >> 56) ^ *p];
  }
  return r;
}

#if ZEL_CRC_FOLDING

// Sixteen bytes as one polynomial lane: as they stand in the reflected form,
// byte-reversed in the normal form so that the first byte is highest.
template <bool kReflected>
ZEL_FOLD_TARGET __m128i LoadLane(u8 const* p) {
  __m128i const v = _mm_loadu_si128(reinterpret_cast<__m128i const*>(p));
  if (kReflected) return v;
  return _mm_shuffle_epi8(v, _mm_setr_epi8(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0));
}

ZEL_FOLD_TARGET __m128i FoldLane(__m128i lane, __m128i k, __m128i next) {
  __m128i const low = _mm_clmulepi64_si128(lane, k, 0x00);
  __m128i const high = _mm_clmulepi64_si128(lane, k, 0x11);
  return _mm_xor_si128(_mm_xor_si128(low, high), next);
}

// Folds the whole 16-byte chunks of a block of at least 128 bytes into one
// lane, congruent to the register-seeded message, then runs that lane's 16
// bytes through the table from a register of 0. Advances `p` and `n` past
// what it consumed.
template <bool kReflected>
ZEL_FOLD_TARGET u64 Fold(SCrcEngine const& e, u64 r, u8 const*& p, u64& n) {
  __m128i const k1024 = _mm_loadu_si128(reinterpret_cast<__m128i const*>(e.fold1024));
  __m128i const k128 = _mm_loadu_si128(reinterpret_cast<__m128i const*>(e.fold128));
  auto const seed = static_cast<long long>(r);
  __m128i x[8];
  for (int i = 0; i < 8; ++i) x[i] = LoadLane<kReflected>(p + 16 * i);
  x[0] = _mm_xor_si128(x[0], kReflected ? _mm_set_epi64x(0, seed) : _mm_set_epi64x(seed, 0));
  for (p += 128, n -= 128; n >= 128; p += 128, n -= 128) {
    for (int i = 0; i < 8; ++i) x[i] = FoldLane(x[i], k1024, LoadLane<kReflected>(p + 16 * i));
  }
  __m128i lane = x[0];
  for (int i = 1; i < 8; ++i) lane = FoldLane(lane, k128, x[i]);
  for (; n >= 16; p += 16, n -= 16) lane = FoldLane(lane, k128, LoadLane<kReflected>(p));
  alignas(16) u8 bytes[16];
  if (!kReflected) {
    lane =
        _mm_shuffle_epi8(lane, _mm_setr_epi8(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0));
  }
  _mm_store_si128(reinterpret_cast<__m128i*>(bytes), lane);
  return Slice<kReflected>(e, 0, bytes, sizeof bytes);
}

#endif  // ZEL_CRC_FOLDING

template <bool kReflected>
u64 Run(SCrcEngine const& e, u64 r, u8 const* p, u64 n) {
#if ZEL_CRC_FOLDING
  if (e.folding != 0 && n >= kFoldMinimum) r = Fold<kReflected>(e, r, p, n);
#endif
  return Slice<kReflected>(e, r, p, n);
}

}  // namespace

void BuildCrcEngine(SCrcEngine& e, u32 width, u64 polynomial, bool reflectInput) {
  e.shift = 64 - width;
  e.reflected = reflectInput ? 1 : 0;
  e.folding = CpuCanFold() ? 1 : 0;
  u64 const q = polynomial << e.shift;  // bits above the width fall out
  auto& t = e.slice;
  FillByteTable<u64>(t[0], q);
  if (reflectInput) {
    // Byte b taken least-significant-bit first is the reversed byte taken
    // most-significant-bit first, its contribution reversed as a whole.
    std::memcpy(t[1], t[0], sizeof t[0]);
    for (u32 b = 0; b < 256; ++b) t[0][b] = ReflectUint64(t[1][ReflectUint8(u8(b))]);
  }
  for (u32 k = 1; k < 8; ++k) {
    for (u32 b = 0; b < 256; ++b) {
      u64 const prev = t[k - 1][b];
      t[k][b] = reflectInput ? (prev >> 8) ^ t[0][prev & 0xFF] : (prev << 8) ^ t[0][prev >> 56];
    }
  }
  FoldConstants(e.fold128, 128, q, reflectInput);
  FoldConstants(e.fold1024, 1024, q, reflectInput);
}

u64 RunCrcEngine(SCrcEngine const& e, u64 reg, u8 const* data, u64 size) {
  u32 const s = e.shift;
  if (e.reflected != 0)
    return ReflectUint64(Run<true>(e, ReflectUint64(reg << s), data, size)) >> s;
  return Run<false>(e, reg << s, data, size) >> s;
}

}  // namespace crc_engine
}  // namespace ZEL
