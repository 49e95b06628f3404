// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/values/ZEL_CrcEngine.h>

#include <LZEL_Core/frame/ZEL_Primitives.h>

#include <cstring>
#include <memory>

// The folding paths are standard C++ over the x86-64 intrinsics; what is
// particular to a compiler stands in one macro each:
//   ZEL_CRC_FOLDING  1 where the folding paths are compiled in;
//   ZEL_FOLD_TARGET  compiles a function for 128-bit carry-less products;
//   ZEL_WIDE_TARGET  the same on 512-bit registers;
//   ZEL_CPU_HAS(f)   whether the running processor has the feature "f".
// GCC and clang (also for MinGW) compile the folding functions with target
// attributes and run them only where the processor reports the features, so
// the library needs no special flags. Other compilers (MSVC among them) take
// the eight-byte path, and so does a build with ZEL_CRC_FOLDING defined as 0.
#if !defined(ZEL_CRC_FOLDING) && defined(__x86_64__) && (defined(__GNUC__) || defined(__clang__))
#define ZEL_CRC_FOLDING 1
#include <immintrin.h>
#define ZEL_FOLD_TARGET __attribute__((target("pclmul,sse4.1")))
#define ZEL_WIDE_TARGET \
  __attribute__((target("vpclmulqdq,avx512f,avx512bw,avx512vl,pclmul,sse4.1")))
#define ZEL_CPU_HAS(feature) (__builtin_cpu_init(), __builtin_cpu_supports(feature))
#elif !defined(ZEL_CRC_FOLDING)
#define ZEL_CRC_FOLDING 0
#endif

namespace ZEL {
namespace crc_engine {
namespace {

// The folding paths, as `SCrcWide::folding` names them.
constexpr u8 kFoldNone = 0;
#if ZEL_CRC_FOLDING
constexpr u8 kFoldLanes = 1;  // 128-bit carry-less multiplication
constexpr u8 kFoldWide = 2;   // 512-bit carry-less multiplication

// Blocks shorter than these go through the narrower paths: folding pays for
// its 16-byte finish only over a few rounds.
constexpr u64 kFoldMinimum = 256;
constexpr u64 kFoldWideMinimum = 512;
#endif

// The long-block tables are derived once this many bytes have gone through
// the byte path: about the cost of deriving them.
constexpr u64 kWideAfter = 4096;

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

// The folding constants, from one walk through the powers x^n modulo
// G = x^64 + q (bit i the coefficient of x^i). A lane moves forward by
// `distance` bits: the normal form multiplies its high half by
// x^(distance + 64) and its low half by x^distance. In the reflected form a
// lane's low half holds the high coefficients, bit-reversed, and a carry-less
// product of two reversed operands comes out one place too far up, hence the
// exponents less one.
void FillFoldConstants(SCrcWide& w, u64 q, bool reflected) {
  u32 const distances[] = {128, 512, 1024, 2048};
  u64(*const constants[])[2] = {&w.fold128, &w.fold512, &w.fold1024, &w.fold2048};
  u64 power = 1;
  u32 n = 0;
  auto const upTo = [&](u32 exponent) {
    for (; n < exponent; ++n) power = (power << 1) ^ ((power >> 63) != 0 ? q : 0);
    return power;
  };
  for (u32 i = 0; i < 4; ++i) {
    u64(&k)[2] = *constants[i];
    if (reflected) {
      k[1] = Reflect64(upTo(distances[i] - 1));
      k[0] = Reflect64(upTo(distances[i] + 63));
    } else {
      k[0] = upTo(distances[i]);
      k[1] = upTo(distances[i] + 64);
    }
  }
}

// The widest folding path that this processor runs.
u8 FoldingOfCpu() {
#if ZEL_CRC_FOLDING
  if (!ZEL_CPU_HAS("pclmul") || !ZEL_CPU_HAS("sse4.1")) return kFoldNone;
  bool const wide = ZEL_CPU_HAS("vpclmulqdq") && ZEL_CPU_HAS("avx512f") &&
                    ZEL_CPU_HAS("avx512bw") && ZEL_CPU_HAS("avx512vl");
  return wide ? kFoldWide : kFoldLanes;
#else
  return kFoldNone;
#endif
}

// Eight bytes at a time: the register XOR the next eight bytes is replaced by
// the sum of each byte's contribution across the bytes that follow it.
template <bool kReflected>
u64 Slice(SCrcWide const& e, u64 r, u8 const* p, u64 n) {
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

// The byte order of a 16-byte lane reversed, for the normal form, where the
// first byte of a chunk is its highest.
ZEL_FOLD_TARGET __m128i ReverseMask() {
  return _mm_setr_epi8(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0);
}

ZEL_FOLD_TARGET __m128i LoadConstants(u64 const (&k)[2]) {
  return _mm_loadu_si128(reinterpret_cast<__m128i const*>(k));
}

// Sixteen bytes as one polynomial lane: as they stand in the reflected form,
// byte-reversed in the normal form.
template <bool kReflected>
ZEL_FOLD_TARGET __m128i LoadLane(u8 const* p) {
  __m128i const v = _mm_loadu_si128(reinterpret_cast<__m128i const*>(p));
  return kReflected ? v : _mm_shuffle_epi8(v, ReverseMask());
}

// The register as a lane to XOR onto the first chunk: it meets the first
// eight bytes of the block.
template <bool kReflected>
ZEL_FOLD_TARGET __m128i SeedLane(u64 r) {
  auto const seed = static_cast<long long>(r);
  return kReflected ? _mm_set_epi64x(0, seed) : _mm_set_epi64x(seed, 0);
}

// `lane` moved forward by the distance of the constants `k`, plus `next`.
ZEL_FOLD_TARGET __m128i FoldLane(__m128i lane, __m128i k, __m128i next) {
  __m128i const low = _mm_clmulepi64_si128(lane, k, 0x00);
  __m128i const high = _mm_clmulepi64_si128(lane, k, 0x11);
  return _mm_xor_si128(_mm_xor_si128(low, high), next);
}

// Folds the remaining whole 16-byte chunks onto `lane`, which is congruent
// to the block so far with the register in it, then runs the lane's 16 bytes
// through the table from a register of 0. Advances `p` and `n`.
template <bool kReflected>
ZEL_FOLD_TARGET u64 FinishLane(SCrcWide const& e, __m128i lane, u8 const*& p, u64& n) {
  __m128i const k128 = LoadConstants(e.fold128);
  for (; n >= 16; p += 16, n -= 16) lane = FoldLane(lane, k128, LoadLane<kReflected>(p));
  alignas(16) u8 bytes[16];
  _mm_store_si128(reinterpret_cast<__m128i*>(bytes),
                  kReflected ? lane : _mm_shuffle_epi8(lane, ReverseMask()));
  return Slice<kReflected>(e, 0, bytes, sizeof bytes);
}

// Eight lanes of 16 bytes side by side, 128 bytes a round; `n` is at least
// 128.
template <bool kReflected>
ZEL_FOLD_TARGET u64 Fold(SCrcWide const& e, u64 r, u8 const*& p, u64& n) {
  __m128i const k1024 = LoadConstants(e.fold1024);
  __m128i const k128 = LoadConstants(e.fold128);
  __m128i x[8];
  for (int i = 0; i < 8; ++i) x[i] = LoadLane<kReflected>(p + 16 * i);
  x[0] = _mm_xor_si128(x[0], SeedLane<kReflected>(r));
  for (p += 128, n -= 128; n >= 128; p += 128, n -= 128) {
    for (int i = 0; i < 8; ++i) x[i] = FoldLane(x[i], k1024, LoadLane<kReflected>(p + 16 * i));
  }
  __m128i lane = x[0];
  for (int i = 1; i < 8; ++i) lane = FoldLane(lane, k128, x[i]);
  return FinishLane<kReflected>(e, lane, p, n);
}

// The same with 512-bit registers of four lanes each, four registers side by
// side, 256 bytes a round; `n` is at least 256.
// `lane` in each of the four lanes of a 512-bit register. (The zeroing forms of
// broadcast and extract keep GCC 12 from warning about the undefined start
// value inside the plain ones.)
ZEL_WIDE_TARGET __m512i Broadcast(__m128i lane) {
  return _mm512_maskz_broadcast_i32x4(0xFFFF, lane);
}

template <bool kReflected>
ZEL_WIDE_TARGET __m512i LoadWide(u8 const* p) {
  __m512i const v = _mm512_loadu_si512(p);
  return kReflected ? v : _mm512_shuffle_epi8(v, Broadcast(ReverseMask()));
}

ZEL_WIDE_TARGET __m512i FoldWide(__m512i x, __m512i k, __m512i next) {
  __m512i const low = _mm512_clmulepi64_epi128(x, k, 0x00);
  __m512i const high = _mm512_clmulepi64_epi128(x, k, 0x11);
  return _mm512_ternarylogic_epi64(low, high, next, 0x96);  // three-way XOR
}

template <bool kReflected>
ZEL_WIDE_TARGET u64 FoldWide(SCrcWide const& e, u64 r, u8 const*& p, u64& n) {
  __m512i const k2048 = Broadcast(LoadConstants(e.fold2048));
  __m512i const k512 = Broadcast(LoadConstants(e.fold512));
  __m512i x[4];
  for (int i = 0; i < 4; ++i) x[i] = LoadWide<kReflected>(p + 64 * i);
  x[0] = _mm512_xor_si512(x[0], _mm512_zextsi128_si512(SeedLane<kReflected>(r)));
  for (p += 256, n -= 256; n >= 256; p += 256, n -= 256) {
    for (int i = 0; i < 4; ++i) x[i] = FoldWide(x[i], k2048, LoadWide<kReflected>(p + 64 * i));
  }
  __m512i wide = x[0];
  for (int i = 1; i < 4; ++i) wide = FoldWide(wide, k512, x[i]);
  for (; n >= 64; p += 64, n -= 64) wide = FoldWide(wide, k512, LoadWide<kReflected>(p));
  __m128i const k128 = LoadConstants(e.fold128);
  __m128i lane = _mm512_maskz_extracti32x4_epi32(0xF, wide, 0);
  lane = FoldLane(lane, k128, _mm512_maskz_extracti32x4_epi32(0xF, wide, 1));
  lane = FoldLane(lane, k128, _mm512_maskz_extracti32x4_epi32(0xF, wide, 2));
  lane = FoldLane(lane, k128, _mm512_maskz_extracti32x4_epi32(0xF, wide, 3));
  return FinishLane<kReflected>(e, lane, p, n);
}

#endif  // ZEL_CRC_FOLDING

template <bool kReflected>
u64 Run(SCrcWide const& e, u64 r, u8 const* p, u64 n) {
#if ZEL_CRC_FOLDING
  if (e.folding == kFoldWide && n >= kFoldWideMinimum) {
    r = FoldWide<kReflected>(e, r, p, n);
  } else if (e.folding != kFoldNone && n >= kFoldMinimum) {
    r = Fold<kReflected>(e, r, p, n);
  }
#endif
  return Slice<kReflected>(e, r, p, n);
}

// A byte at a time through the one table of a configuration.
template <bool kReflected>
u64 RunBytes(u64 const* table, u64 r, u8 const* p, u64 n) {
  for (; n != 0; ++p, --n) {
    r = kReflected ? (r >> 8) ^ table[(r ^ *p) & 0xFF] : (r << 8) ^ table[(r >> 56) ^ *p];
  }
  return r;
}

// The long-block tables of `e`, derived from its byte table.
std::unique_ptr<SCrcWide> DeriveWide(SCrcEngine const& e) {
  std::unique_ptr<SCrcWide> w(new SCrcWide);
  auto& t = w->slice;
  std::memcpy(t[0], e.byteTable, sizeof t[0]);
  bool const reflected = e.reflected != 0;
  for (u32 k = 1; k < 8; ++k) {
    for (u32 b = 0; b < 256; ++b) {
      u64 const prev = t[k - 1][b];
      t[k][b] = reflected ? (prev >> 8) ^ t[0][prev & 0xFF] : (prev << 8) ^ t[0][prev >> 56];
    }
  }
  FillFoldConstants(*w, e.polynomial, reflected);
  w->folding = FoldingOfCpu();
  return w;
}

// The long-block tables of `e` if it has them or should have them from now
// on, with `size` more bytes to run; otherwise null.
SCrcWide const* WideFor(SCrcEngine const& e, u64 size) {
  SCrcWide* wide = e.wide.load(std::memory_order_acquire);
  if (wide != nullptr) return wide;
  if (size < 8 || e.bytesSeen.fetch_add(size, std::memory_order_relaxed) + size < kWideAfter)
    return nullptr;
  std::unique_ptr<SCrcWide> derived = DeriveWide(e);
  if (e.wide.compare_exchange_strong(wide, derived.get(), std::memory_order_acq_rel))
    return derived.release();
  return wide;  // another thread published its own first
}

}  // namespace

SCrcEngine::SCrcEngine(SCrcEngine const& src)
    : polynomial(src.polynomial), shift(src.shift), reflected(src.reflected) {
  std::memcpy(byteTable, src.byteTable, sizeof byteTable);
  SCrcWide const* wide = src.wide.load(std::memory_order_acquire);
  if (wide != nullptr) this->wide.store(new SCrcWide(*wide), std::memory_order_relaxed);
}

SCrcEngine::~SCrcEngine() { delete wide.load(std::memory_order_relaxed); }

void BuildCrcEngine(SCrcEngine& e, u32 width, u64 polynomial, bool reflectInput) {
  e.shift = 64 - width;
  e.reflected = reflectInput ? 1 : 0;
  delete e.wide.exchange(nullptr, std::memory_order_relaxed);
  e.bytesSeen.store(0, std::memory_order_relaxed);
  u64 const q = polynomial << e.shift;  // bits above the width fall out
  e.polynomial = q;
  u64 bits[8];
  FillByteTableBits(bits, q);
  if (reflectInput) {
    // Byte b taken least-significant-bit first is the reversed byte taken
    // most-significant-bit first, its contribution reversed as a whole; that
    // too is linear in b, bit k standing for bit 7 - k.
    u64 const normal[8] = {bits[0], bits[1], bits[2], bits[3], bits[4], bits[5], bits[6], bits[7]};
    for (u32 k = 0; k < 8; ++k) bits[k] = Reflect64(normal[7 - k]);
  }
  FillLinearTable(e.byteTable, bits);
}

u64 RunCrcEngine(SCrcEngine const& e, u64 reg, u8 const* data, u64 size) {
  u32 const s = e.shift;
  SCrcWide const* wide = WideFor(e, size);
  if (e.reflected != 0) {
    u64 const r = Reflect64(reg << s);
    return Reflect64(wide != nullptr ? Run<true>(*wide, r, data, size)
                                     : RunBytes<true>(e.byteTable, r, data, size)) >>
           s;
  }
  u64 const r = reg << s;
  return (wide != nullptr ? Run<false>(*wide, r, data, size)
                          : RunBytes<false>(e.byteTable, r, data, size)) >>
         s;
}

}  // namespace crc_engine
}  // namespace ZEL
