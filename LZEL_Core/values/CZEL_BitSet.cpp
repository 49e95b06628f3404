// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/values/CZEL_BitSet.h>

#include <LZEL_Core/frame/CZEL_Exception.h>
#include <LZEL_Core/frame/ZEL_Errors.h>

#include <algorithm>
#include <bitset>
#include <utility>

using ZEL::u32;
using ZEL::u64;
using ZEL::u8;

namespace {

constexpr u32 kWordBits = 64;
constexpr u64 kAllOnes = ~u64{0};

// Copies `count` bits from bit `from` of `src` to bit `to` of `dst`, in runs
// that stay inside one word of each, through the field primitives. The two
// ranges must not overlap.
void CopyBits(u64* dst, u64 to, u64 const* src, u64 from, u64 count) {
  while (count != 0) {
    u32 const srcOffset = from % kWordBits;
    u32 const dstOffset = to % kWordBits;
    u64 const width = std::min({count, u64{kWordBits - srcOffset}, u64{kWordBits - dstOffset}});
    u64 const field = ZEL::GetField(src[from / kWordBits], srcOffset, static_cast<u32>(width));
    ZEL::SetField(dst[to / kWordBits], dstOffset, static_cast<u32>(width), field);
    from += width;
    to += width;
    count -= width;
  }
}

// The number of ones in `word`.
u32 CountOnes(u64 word) { return static_cast<u32>(std::bitset<kWordBits>(word).count()); }

// The bits of the word that holds bit `low`, from `low` up to bit 63 or up to
// `numBits`, whichever comes first, moved down to bit 0.
u64 WordBelowLength(u64 const* words, u32 numBits, u64 low) {
  return ZEL::GetField(words[low / kWordBits], low % kWordBits,
                       static_cast<u32>(std::min(u64{kWordBits}, numBits - low)));
}

}  // namespace

// -----------------------------------------------------------------------------
// CBit
// -----------------------------------------------------------------------------

CZEL_BitSet::CBit::CBit() : m_Index(0), m_Owner(nullptr) {}

CZEL_BitSet::CBit::CBit(CBit const& other) : m_Index(other.m_Index), m_Owner(other.m_Owner) {}

CZEL_BitSet::CBit::operator u8() const { return m_Owner->UnsafeGetBit(m_Index); }

CZEL_BitSet::CBit& CZEL_BitSet::CBit::operator=(u8 const& value) {
  m_Owner->UnsafeSetBit(m_Index, value);
  return *this;
}

// Taking over the other proxy's index is deliberate: callers rely on it.
CZEL_BitSet::CBit& CZEL_BitSet::CBit::operator=(CBit const& other) {
  m_Owner->UnsafeSetBit(m_Index, static_cast<u8>(other));
  m_Index = other.m_Index;
  return *this;
}

// -----------------------------------------------------------------------------
// Construction and storage
// -----------------------------------------------------------------------------

CZEL_BitSet::CZEL_BitSet() : m_NumBits(0), m_NumWords(0), m_Words(nullptr) {}

CZEL_BitSet::CZEL_BitSet(u32 numBits, u8 value) : CZEL_BitSet() {
  if (numBits == 0) throw CZEL_Exception(ZEL_ERR_BAD_POSITION, this, 0);
  m_NumBits = numBits;
  CreateWords(GetNumWords(numBits));
  Fill(value);
}

CZEL_BitSet::CZEL_BitSet(CZEL_BitSet const& src) : CZEL_BitSet() { DataCopy(src); }

CZEL_BitSet::CZEL_BitSet(CZEL_BitSet&& src) noexcept : CZEL_BitSet() { Swap(src); }

CZEL_BitSet& CZEL_BitSet::operator=(CZEL_BitSet&& src) noexcept {
  CZEL_BitSet taken(std::move(src));
  Swap(taken);
  return *this;
}

void CZEL_BitSet::Swap(CZEL_BitSet& other) noexcept {
  std::swap(m_NumBits, other.m_NumBits);
  std::swap(m_NumWords, other.m_NumWords);
  std::swap(m_Words, other.m_Words);
}

CZEL_BitSet::~CZEL_BitSet() { Destroy(); }

CZEL_BitSet& CZEL_BitSet::operator=(CZEL_BitSet const& src) {
  DataCopy(src);
  return *this;
}

CZEL_BitSet& CZEL_BitSet::operator=(u64 const& value) {
  if (m_NumWords != 1) {
    CreateWords(1);
    m_NumBits = kWordBits;
  }
  m_Words[0] = value;
  return *this;
}

u32 CZEL_BitSet::GetNumWords(u32 numBits) { return numBits == 0 ? 0 : ((numBits - 1) >> 6) + 1; }

void CZEL_BitSet::CreateWords(u32 words) {
  if (words == m_NumWords) return;
  u64* const fresh = new u64[words];
  delete[] m_Words;
  m_Words = fresh;
  m_NumWords = words;
}

void CZEL_BitSet::DataCopy(CZEL_BitSet const& src) {
  if (src.IsValid() == 0) {
    Destroy();
    return;
  }
  CreateWords(src.m_NumWords);
  std::copy_n(src.m_Words, src.m_NumWords, m_Words);
  m_NumBits = src.m_NumBits;
}

void CZEL_BitSet::Destroy() {
  delete[] m_Words;
  m_Words = nullptr;
  m_NumWords = 0;
  m_NumBits = 0;
}

void CZEL_BitSet::Reset() { std::fill_n(m_Words, m_NumWords, 0); }

u32 CZEL_BitSet::GetNumBits() const { return m_NumBits; }

u8 CZEL_BitSet::IsValid() const { return m_Words != nullptr && m_NumBits != 0 ? 1 : 0; }

void CZEL_BitSet::SetNumBits(u32 numBits) {
  if (numBits == m_NumBits) return;
  u32 const words = GetNumWords(numBits);
  if (words != m_NumWords) {
    u64* const fresh = new u64[words];
    u32 const kept = std::min(words, m_NumWords);
    std::copy_n(m_Words, kept, fresh);
    std::fill(fresh + kept, fresh + words, 0);
    delete[] m_Words;
    m_Words = fresh;
    m_NumWords = words;
  }
  m_NumBits = numBits;
}

// -----------------------------------------------------------------------------
// Single bits
// -----------------------------------------------------------------------------

u8 CZEL_BitSet::GetBit(u32 index) const {
  return IsValid() != 0 && index < m_NumBits ? UnsafeGetBit(index) : 0;
}

void CZEL_BitSet::SetBit(u32 index, u8 value) {
  if (IsValid() != 0 && index < m_NumBits) UnsafeSetBit(index, value);
}

u8 CZEL_BitSet::UnsafeGetBit(u32 index) const {
  return ZEL::GetBit(m_Words[index / kWordBits], index % kWordBits);
}

void CZEL_BitSet::UnsafeSetBit(u32 index, u8 value) {
  ZEL::SetBit(m_Words[index / kWordBits], index % kWordBits, value);
}

CZEL_BitSet::CBit CZEL_BitSet::operator[](u32 const& index) {
  CBit bit;
  bit.m_Index = index;
  bit.m_Owner = this;
  return bit;
}

// -----------------------------------------------------------------------------
// Ranges
// -----------------------------------------------------------------------------

CZEL_BitSet& CZEL_BitSet::Fill(u8 value) {
  std::fill_n(m_Words, m_NumWords, value != 0 ? kAllOnes : 0);
  return *this;
}

void CZEL_BitSet::FillBits(u64 low, u64 high, u8 value) {
  u64 const pattern = value != 0 ? kAllOnes : 0;
  while (low < high) {
    u32 const offset = low % kWordBits;
    u64 const width = std::min(u64{kWordBits - offset}, high - low);
    ZEL::SetField(m_Words[low / kWordBits], offset, static_cast<u32>(width), pattern);
    low += width;
  }
}

// The bits `start + i` for i below `count`, that sum taken in 32 bits, that
// lie below the length: when the end wraps past 32 bits without leaving the
// length behind, the run goes on from bit 0 up to the wrapped end.
CZEL_BitSet& CZEL_BitSet::Fill(u32 start, u32 count, u8 value) {
  if (IsValid() == 0 || start > m_NumBits) return *this;
  u32 const end = start + count;
  if (end > m_NumBits) {
    FillBits(start, m_NumBits, value);
  } else if (end >= start) {
    FillBits(start, end, value);
  } else {
    FillBits(start, m_NumBits, value);
    FillBits(0, end, value);
  }
  return *this;
}

CZEL_BitSet CZEL_BitSet::GetField(u32 start, u32 count) const {
  CZEL_BitSet field;
  if (IsValid() == 0 || start > m_NumBits) return field;
  count = std::min(count, m_NumBits - start);
  field.SetNumBits(count);
  CopyBits(field.m_Words, 0, m_Words, start, count);
  return field;
}

u64 CZEL_BitSet::GetFieldUnsigned(u32 start, u32 count) const {
  return GetField(start, count).ToUnsigned();
}

CZEL_BitSet& CZEL_BitSet::SetField(u32 start, u32 count, CZEL_BitSet const& source) {
  if (&source == this) {
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): `source` is this set
    CZEL_BitSet const before(source);
    return SetField(start, count, before);
  }
  if (start > m_NumBits) return *this;
  if (start + count > m_NumBits) count = m_NumBits - start;
  count = std::min(count, source.m_NumBits);
  // A count that wrapped is not cut at the length: it runs on into the tail
  // and stops at the end of the last word.
  u64 const room = u64{m_NumWords} * kWordBits - start;
  CopyBits(m_Words, start, source.m_Words, 0, std::min(u64{count}, room));
  return *this;
}

CZEL_BitSet& CZEL_BitSet::SetFieldUnsigned(u32 start, u32 count, u64 const& value) {
  CZEL_BitSet source;
  source = value;
  return SetField(start, count, source);
}

CZEL_BitSet CZEL_BitSet::Join(CZEL_BitSet const& other) const {
  if (IsValid() == 0 || other.IsValid() == 0) throw CZEL_Exception(ZEL_ERR_FAILED, this, 0);
  CZEL_BitSet joined(other);
  joined.SetNumBits(other.m_NumBits + m_NumBits);
  joined.SetField(other.m_NumBits, m_NumBits, *this);
  return joined;
}

CZEL_BitSet& CZEL_BitSet::Merge(CZEL_BitSet const& other, u8 append) {
  if (IsValid() == 0 || other.IsValid() == 0) throw CZEL_Exception(ZEL_ERR_FAILED, this, 0);
  if (&other == this) {
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): `other` is this set
    CZEL_BitSet const before(other);
    return Merge(before, append);
  }
  u32 const oldNumBits = m_NumBits;
  SetNumBits(oldNumBits + other.m_NumBits);
  if (append != 0) return SetField(oldNumBits, other.m_NumBits, other);
  *this <<= other.m_NumBits;
  return SetField(0, other.m_NumBits, other);
}

// The reductions read the bits below the length a word at a time.
u8 CZEL_BitSet::And() const {
  for (u64 low = 0; low < m_NumBits; low += kWordBits) {
    u32 const width = static_cast<u32>(std::min(u64{kWordBits}, m_NumBits - low));
    if (WordBelowLength(m_Words, m_NumBits, low) != ZEL::GetField(kAllOnes, 0, width)) return 0;
  }
  return 1;
}

u8 CZEL_BitSet::Or() const {
  for (u64 low = 0; low < m_NumBits; low += kWordBits) {
    if (WordBelowLength(m_Words, m_NumBits, low) != 0) return 1;
  }
  return 0;
}

u8 CZEL_BitSet::Xor() const {
  u32 ones = 0;
  for (u64 low = 0; low < m_NumBits; low += kWordBits) {
    ones += CountOnes(WordBelowLength(m_Words, m_NumBits, low));
  }
  return static_cast<u8>(ones & 1);
}

// -----------------------------------------------------------------------------
// Whole-set arithmetic
// -----------------------------------------------------------------------------

template <typename Op>
CZEL_BitSet CZEL_BitSet::Combine(CZEL_BitSet const& other, Op op) const {
  CZEL_BitSet result;
  result.m_NumBits = std::min(m_NumBits, other.m_NumBits);
  result.CreateWords(std::min(m_NumWords, other.m_NumWords));
  u64 const* const a = m_Words;
  u64 const* const b = other.m_Words;
  u64* const out = result.m_Words;
  for (u32 i = 0; i < result.m_NumWords; ++i) out[i] = op(a[i], b[i]);
  return result;
}

template <typename Op>
CZEL_BitSet& CZEL_BitSet::CombineInPlace(CZEL_BitSet const& other, Op op) {
  if (m_NumWords > other.m_NumWords) return *this = Combine(other, op);
  for (u32 i = 0; i < m_NumWords; ++i) m_Words[i] = op(m_Words[i], other.m_Words[i]);
  m_NumBits = std::min(m_NumBits, other.m_NumBits);
  return *this;
}

namespace {

u64 AndWords(u64 a, u64 b) { return a & b; }
u64 OrWords(u64 a, u64 b) { return a | b; }
u64 XorWords(u64 a, u64 b) { return a ^ b; }
u64 InvertFirst(u64 a, u64 /*unused*/) { return ~a; }

}  // namespace

CZEL_BitSet CZEL_BitSet::operator&(CZEL_BitSet const& other) const {
  return Combine(other, AndWords);
}

CZEL_BitSet CZEL_BitSet::operator|(CZEL_BitSet const& other) const {
  return Combine(other, OrWords);
}

CZEL_BitSet CZEL_BitSet::operator^(CZEL_BitSet const& other) const {
  return Combine(other, XorWords);
}

CZEL_BitSet CZEL_BitSet::operator~() const { return Combine(*this, InvertFirst); }

CZEL_BitSet& CZEL_BitSet::operator&=(CZEL_BitSet const& other) {
  return CombineInPlace(other, AndWords);
}

CZEL_BitSet& CZEL_BitSet::operator|=(CZEL_BitSet const& other) {
  return CombineInPlace(other, OrWords);
}

CZEL_BitSet& CZEL_BitSet::operator^=(CZEL_BitSet const& other) {
  return CombineInPlace(other, XorWords);
}

// Constructing the result first is what makes a shift of an empty set throw.
CZEL_BitSet CZEL_BitSet::Shifted(u32 count, u8 up) const {
  CZEL_BitSet result(m_NumBits, 0);
  if (m_NumBits >= count) {
    u32 const keep = m_NumBits - count;
    CopyBits(result.m_Words, up != 0 ? count : 0, m_Words, up != 0 ? 0 : count, keep);
  }
  return result;
}

CZEL_BitSet CZEL_BitSet::operator<<(u32 const& count) const { return Shifted(count, 1); }

CZEL_BitSet CZEL_BitSet::operator>>(u32 const& count) const { return Shifted(count, 0); }

CZEL_BitSet& CZEL_BitSet::operator<<=(u32 const& count) { return *this = Shifted(count, 1); }

CZEL_BitSet& CZEL_BitSet::operator>>=(u32 const& count) { return *this = Shifted(count, 0); }

// -----------------------------------------------------------------------------
// Comparison and conversion
// -----------------------------------------------------------------------------

signed char CZEL_BitSet::CompareWords(u64 const* a, u32 aWords, u64 const* b, u32 bWords) {
  u32 const common = std::min(aWords, bWords);
  for (u32 i = aWords; i > common; --i) {
    if (a[i - 1] != 0) return 1;
  }
  for (u32 i = bWords; i > common; --i) {
    if (b[i - 1] != 0) return -1;
  }
  // Equal runs are skipped four words at a time; the first difference is
  // then found word by word.
  u32 i = common;
  while (i >= 4 && ((a[i - 1] ^ b[i - 1]) | (a[i - 2] ^ b[i - 2]) | (a[i - 3] ^ b[i - 3]) |
                    (a[i - 4] ^ b[i - 4])) == 0) {
    i -= 4;
  }
  for (; i > 0; --i) {
    if (a[i - 1] != b[i - 1]) return a[i - 1] > b[i - 1] ? 1 : -1;
  }
  return 0;
}

signed char CZEL_BitSet::Compare(CZEL_BitSet const& other) const { return Compare(*this, other); }

signed char CZEL_BitSet::Compare(CZEL_BitSet const& a, CZEL_BitSet const& b) {
  return CompareWords(a.m_Words, a.m_NumWords, b.m_Words, b.m_NumWords);
}

// A u64 operand compares as the one-word set that `operator=(u64)` makes.
u8 CZEL_BitSet::operator==(CZEL_BitSet const& other) const { return Compare(other) == 0; }
u8 CZEL_BitSet::operator!=(CZEL_BitSet const& other) const { return Compare(other) != 0; }
u8 CZEL_BitSet::operator<(CZEL_BitSet const& other) const { return Compare(other) < 0; }
u8 CZEL_BitSet::operator<=(CZEL_BitSet const& other) const { return Compare(other) <= 0; }
u8 CZEL_BitSet::operator>(CZEL_BitSet const& other) const { return Compare(other) > 0; }
u8 CZEL_BitSet::operator>=(CZEL_BitSet const& other) const { return Compare(other) >= 0; }
u8 CZEL_BitSet::operator==(u64 const& value) const {
  return CompareWords(m_Words, m_NumWords, &value, 1) == 0;
}
u8 CZEL_BitSet::operator!=(u64 const& value) const {
  return CompareWords(m_Words, m_NumWords, &value, 1) != 0;
}
u8 CZEL_BitSet::operator<(u64 const& value) const {
  return CompareWords(m_Words, m_NumWords, &value, 1) < 0;
}
u8 CZEL_BitSet::operator<=(u64 const& value) const {
  return CompareWords(m_Words, m_NumWords, &value, 1) <= 0;
}
u8 CZEL_BitSet::operator>(u64 const& value) const {
  return CompareWords(m_Words, m_NumWords, &value, 1) > 0;
}
u8 CZEL_BitSet::operator>=(u64 const& value) const {
  return CompareWords(m_Words, m_NumWords, &value, 1) >= 0;
}

u64 CZEL_BitSet::ToUnsigned() const {
  if (IsValid() == 0) return 0;
  bool const beyond = std::any_of(m_Words + 1, m_Words + m_NumWords, [](u64 w) { return w != 0; });
  return beyond ? kAllOnes : m_Words[0];
}

// Digits come out of each word by repeated division (a shift, the bases
// being powers of two), least significant first, and are written from the end of the text backward, so that the
// groups count from the least significant digit and the top group may be
// short. Base 16 takes its top digit from the word as it stands, tail bits
// included; base 2 stops at the length.
CZEL_String CZEL_BitSet::ToString(u32 base, u32 group, char separator) const {
  if (base != 2 && base != 16) {
    if (m_NumBits > kWordBits || IsValid() == 0) return CZEL_String();
    return CZEL_String::FromNumber(m_Words[0], base, group, separator);
  }
  if (IsValid() == 0) return CZEL_String();
  u32 const digitBits = base == 2 ? 1 : 4;
  u64 const digits = (u64{m_NumBits} + digitBits - 1) / digitBits;
  u64 const separators = group == 0 ? 0 : (digits - 1) / group;
  CZEL_String text(static_cast<u32>(digits + separators), separator);
  char* out = text.GetStringC() + text.GetLength();
  u64 const digitMask = base - 1;
  u64 const digitsPerWord = kWordBits / digitBits;
  u64 inGroup = 0;
  for (u64 done = 0; done < digits;) {
    u64 word = m_Words[done / digitsPerWord];
    u64 const wordEnd = std::min(digits, done + digitsPerWord);
    while (done < wordEnd) {
      // A run of digits up to the end of the word or of the group.
      u64 const run = std::min(wordEnd - done, group == 0 ? digits : group - inGroup);
      for (u64 k = 0; k < run; ++k) {
        *--out = "0123456789ABCDEF"[word & digitMask];
        word >>= digitBits;
      }
      done += run;
      inGroup += run;
      if (inGroup == group && done < digits) {
        *--out = separator;
        inGroup = 0;
      }
    }
  }
  return text;
}

void CZEL_BitSet::GetRawByteBuffer(u8* buffer, u32 size, ZEL::t_ByteOrdering order) const {
  for (u32 i = 0; i < size && i / 4 < m_NumWords; ++i) {
    auto const byte = static_cast<u8>(ZEL::GetField(m_Words[i / 4], 8 * (i % 4), 8));
    buffer[order == ZEL::ZEL_LITTLE_ENDIAN ? i : size - 1 - i] = byte;
  }
}

CZEL_BitSet& CZEL_BitSet::SetRawByteBuffer(u8 const* buffer, u32 size, ZEL::t_ByteOrdering order) {
  for (u32 i = 0; i < size && i / 8 < m_NumWords; ++i) {
    u8 const byte = buffer[order == ZEL::ZEL_LITTLE_ENDIAN ? i : size - 1 - i];
    ZEL::SetField(m_Words[i / 8], 8 * (i % 8), 8, u64{byte});
  }
  return *this;
}
