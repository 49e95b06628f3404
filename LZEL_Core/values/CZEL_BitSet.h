// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_BitSet.h
// -----------------------------------------------------------------------------
//
// `CZEL_BitSet` is a value class holding a bit string of any length chosen at
// run time. It is at once a set of addressable bits, an unsigned integer of
// any width (it compares numerically and converts to and from `ZEL::u64`) and
// a raw byte image. Copies are deep.
//
//   CZEL_BitSet flags(10, 0);             // ten bits, all clear
//   flags.SetBit(1, 1);
//   flags[3] = 1;                         // through the `CBit` proxy
//   flags.SetFieldUnsigned(6, 4, 0xA);    // bits 6 to 9 become 1010
//   flags.ToString(2, 4, ' ');            // "10 1000 1010"
//   flags.ToString(16, 0, ' ');           // "28A"
//   flags.GetFieldUnsigned(6, 4);         // 0xA
//   CZEL_BitSet wide = flags.Join(flags); // 20 bits: flags above flags
//   flags == ZEL::u64(0x28A);             // 1
//
// Layout
//
// The bits lie in an array of 64-bit words: bit i is at position i % 64 of
// word i / 64, position 0 being the least significant, and word 0 holds the
// least significant bits of the number. A set is valid when it has a word
// array and at least one bit; a default-constructed set is invalid.
//
// The tail
//
// The bits of the last word above the length (the tail) are not kept clear,
// and callers rely on that. The whole-word operations write and read them:
// `Fill(u8)` with a non-zero value sets them, `operator~` inverts them,
// `operator=(u64)` and `SetRawByteBuffer` can write them and `SetNumBits`
// leaves them alone; `Compare`, the comparison operators, `ToUnsigned` and
// `ToString` in every base but 2 see them. The bit-wise operations
// (`GetBit`, `GetField`, the shifts, the reductions `And`, `Or`, `Xor`, and
// base 2 of `ToString`) go only up to the length and never see them. So
// `CZEL_BitSet(4, 1).ToUnsigned()` is 0xFFFFFFFFFFFFFFFF, and
// `CZEL_BitSet(6, 1).ToString(16, 4, ' ')` is "FF".
//
// Failures
//
// Only three things throw a `CZEL_Exception`: constructing a set of 0 bits
// (ZEL_ERR_BAD_POSITION, from the set being constructed), shifting a set of
// 0 bits (the same, from the shift's result) and `Join` or `Merge` with an
// invalid operand (ZEL_ERR_FAILED). Every other misuse is quiet: an index out
// of range reads 0 and writes nothing, `GetField` returns an empty set and
// `ToString` an empty string. `operator[]` and `CBit` check nothing: an index
// beyond the word array is the caller's fault.

#ifndef LZEL_CORE_VALUES_CZEL_BITSET_H_
#define LZEL_CORE_VALUES_CZEL_BITSET_H_

#include <LZEL_Core/frame/CZEL_Object.h>
#include <LZEL_Core/frame/ZEL_Primitives.h>
#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/text/CZEL_String.h>

class ZEL_API CZEL_BitSet : public CZEL_Object {
 public:
  // The proxy of one bit that `operator[]` returns. It reads and writes the
  // bit's word without any check, also beyond the length.
  class ZEL_API CBit {
   public:
    // Index 0, no owner.
    CBit();

    // Copies the index and the owner.
    CBit(CBit const& other);

    // The bit, 0 or 1.
    operator ZEL::u8() const;  // NOLINT(google-explicit-constructor): a proxy

    // Sets the bit for any non-zero `value`, clears it for 0; returns the
    // proxy.
    CBit& operator=(ZEL::u8 const& value);

    // Writes the bit of `other` into this proxy's bit, then takes over the
    // index of `other`: from then on this proxy stands for that index in its
    // own owner. The owner is not copied.
    CBit& operator=(CBit const& other);

    // The bit's number.
    ZEL::u32 m_Index;
    // The set the bit belongs to; not owned.
    CZEL_BitSet* m_Owner;
  };

  // ---------------------------------------------------------------------------
  // Construction and storage
  // ---------------------------------------------------------------------------

  // An invalid set: no bits, no words.
  CZEL_BitSet();

  // `numBits` bits, every word (tail included) all ones for a non-zero
  // `value`, all zeros for 0. Throws ZEL_ERR_BAD_POSITION if `numBits` is 0.
  CZEL_BitSet(ZEL::u32 numBits, ZEL::u8 value);

  // A deep copy of `src`, tail included; an invalid source gives an invalid
  // set.
  CZEL_BitSet(CZEL_BitSet const& src);

  // Releases the words.
  ~CZEL_BitSet() override;

  // Takes the words of `src` without copying them; `src` is left an invalid
  // set of 0 bits and no words. Never throws.
  CZEL_BitSet(CZEL_BitSet&& src) noexcept;

  // A deep copy of `src`; returns this object.
  CZEL_BitSet& operator=(CZEL_BitSet const& src);

  // Takes the words of `src` and releases this set's own; `src` is left an
  // invalid set. Moving a set onto itself keeps it. Returns this object.
  CZEL_BitSet& operator=(CZEL_BitSet&& src) noexcept;

  // Exchanges the length and words of the two sets. Never throws.
  void Swap(CZEL_BitSet& other) noexcept;

  // Stores `value` in a one-word set. A set that has one word already keeps
  // its length, so the rest of the value goes into its tail: a 12-bit set
  // assigned 0x12345 stays 12 bits long. Any other set becomes 64 bits long.
  CZEL_BitSet& operator=(ZEL::u64 const& value);

  // The length in bits.
  ZEL::u32 GetNumBits() const;

  // 1 if the set has words and at least one bit, else 0.
  ZEL::u8 IsValid() const;

  // Changes the length to `numBits`. The low bits survive. Within the same
  // number of words nothing is cleared, so a set that shrinks and grows again
  // gets its old bits back; words added are 0, and the last word of a shorter
  // set keeps its tail. `SetNumBits(0)` leaves an invalid set.
  void SetNumBits(ZEL::u32 numBits);

  // ---------------------------------------------------------------------------
  // Single bits
  // ---------------------------------------------------------------------------

  // Bit `index`, 0 or 1; 0 if the set is invalid or `index` is not below the
  // length.
  ZEL::u8 GetBit(ZEL::u32 index) const;

  // Sets bit `index` for any non-zero `value`, clears it for 0. Does nothing
  // if the set is invalid or `index` is not below the length.
  void SetBit(ZEL::u32 index, ZEL::u8 value);

  // The proxy of bit `index` of this set. Checks nothing.
  CBit operator[](ZEL::u32 const& index);

  // ---------------------------------------------------------------------------
  // Ranges
  // ---------------------------------------------------------------------------

  // Every whole word, tail included, all ones for a non-zero `value`, all
  // zeros for 0. Returns this object.
  CZEL_BitSet& Fill(ZEL::u8 value);

  // Sets (non-zero `value`) or clears `count` bits from `start`, cut at the
  // length. Does nothing if `start` exceeds the length. The end
  // `start + count` is taken in 32 bits: when it wraps, the bits from 0 up to
  // the wrapped end are filled as well. Returns this object.
  CZEL_BitSet& Fill(ZEL::u32 start, ZEL::u32 count, ZEL::u8 value);

  // A new set of `count` bits holding bits `start` and up of this set, cut
  // at the length; its tail is 0. An empty (invalid) set if this set is
  // invalid, `start` exceeds the length or nothing is left to take.
  CZEL_BitSet GetField(ZEL::u32 start, ZEL::u32 count) const;

  // `GetField(start, count).ToUnsigned()`: 0 for an empty field,
  // 0xFFFFFFFFFFFFFFFF for a field with a bit set above bit 63.
  ZEL::u64 GetFieldUnsigned(ZEL::u32 start, ZEL::u32 count) const;

  // Writes the low `count` bits of `source` into this set from `start`.
  // `count` is cut at this set's length and then at the length of `source`;
  // nothing happens if `start` exceeds the length. The end `start + count`
  // is taken in 32 bits: a `count` so large that it wraps is not cut at the
  // length, and the bits then run on into the tail, up to the end of the
  // last word. `source` may be this set: it is read as it was before the
  // call. Returns this object.
  CZEL_BitSet& SetField(ZEL::u32 start, ZEL::u32 count, CZEL_BitSet const& source);

  // `SetField(start, count, s)` where `s` is `value` as a 64-bit set: at most
  // 64 bits are written. Returns this object.
  CZEL_BitSet& SetFieldUnsigned(ZEL::u32 start, ZEL::u32 count, ZEL::u64 const& value);

  // A new set with `other` as its low bits and this set above them, as long
  // as both together. Throws ZEL_ERR_FAILED unless both sets are valid.
  CZEL_BitSet Join(CZEL_BitSet const& other) const;

  // Lengthens this set by the length of `other` and writes `other` above the
  // existing bits (non-zero `append`) or below them, shifting them up (0).
  // Throws ZEL_ERR_FAILED, changing nothing, unless both sets are valid.
  // `other` may be this set. Returns this object.
  CZEL_BitSet& Merge(CZEL_BitSet const& other, ZEL::u8 append);

  // 1 if every bit below the length is set (1 for a set of 0 bits).
  ZEL::u8 And() const;
  // 1 if any bit below the length is set.
  ZEL::u8 Or() const;
  // The parity of the bits below the length: 1 for an odd count of ones.
  ZEL::u8 Xor() const;

  // ---------------------------------------------------------------------------
  // Whole-set arithmetic
  // ---------------------------------------------------------------------------

  // Word by word, tail included, over the shorter operand: the result has
  // the smaller length and the smaller number of words, and the excess of
  // the longer operand is ignored.
  CZEL_BitSet operator&(CZEL_BitSet const& other) const;
  CZEL_BitSet operator|(CZEL_BitSet const& other) const;
  CZEL_BitSet operator^(CZEL_BitSet const& other) const;

  // Every whole word inverted, tail included; same length.
  CZEL_BitSet operator~() const;

  // The two-operand form assigned to this set, which takes the smaller size.
  CZEL_BitSet& operator&=(CZEL_BitSet const& other);
  CZEL_BitSet& operator|=(CZEL_BitSet const& other);
  CZEL_BitSet& operator^=(CZEL_BitSet const& other);

  // A new set of the same length with the bits moved `count` places toward
  // higher (<<) or lower (>>) indices. Bits moved past either end are lost,
  // vacated bits and the tail are 0; a `count` of the length or more gives
  // all zeros. Throws ZEL_ERR_BAD_POSITION for a set of 0 bits.
  CZEL_BitSet operator<<(ZEL::u32 const& count) const;
  CZEL_BitSet operator>>(ZEL::u32 const& count) const;

  // The shift assigned to this set; throws as the shift does.
  CZEL_BitSet& operator<<=(ZEL::u32 const& count);
  CZEL_BitSet& operator>>=(ZEL::u32 const& count);

  // ---------------------------------------------------------------------------
  // Comparison and conversion
  // ---------------------------------------------------------------------------

  // The numeric order of the two sets read as unsigned integers over their
  // words, tails included; the lengths don't enter: -1, 0 or 1. A 3-bit and
  // a 300-bit set of one value are equal, and an empty set equals one of all
  // zeros. The static form is a comparator for the containers' `Sort`.
  signed char Compare(CZEL_BitSet const& other) const;
  static signed char Compare(CZEL_BitSet const& a, CZEL_BitSet const& b);

  // 1 or 0 by the sign of `Compare`.
  ZEL::u8 operator==(CZEL_BitSet const& other) const;
  ZEL::u8 operator!=(CZEL_BitSet const& other) const;
  ZEL::u8 operator<(CZEL_BitSet const& other) const;
  ZEL::u8 operator<=(CZEL_BitSet const& other) const;
  ZEL::u8 operator>(CZEL_BitSet const& other) const;
  ZEL::u8 operator>=(CZEL_BitSet const& other) const;

  // 1 or 0 by the sign of `Compare` with `value` as a 64-bit set.
  ZEL::u8 operator==(ZEL::u64 const& value) const;
  ZEL::u8 operator!=(ZEL::u64 const& value) const;
  ZEL::u8 operator<(ZEL::u64 const& value) const;
  ZEL::u8 operator<=(ZEL::u64 const& value) const;
  ZEL::u8 operator>(ZEL::u64 const& value) const;
  ZEL::u8 operator>=(ZEL::u64 const& value) const;

  // Word 0 whole, tail included; 0 for an invalid set, and
  // 0xFFFFFFFFFFFFFFFF as a saturation mark if any higher word is not 0.
  ZEL::u64 ToUnsigned() const;

  // The number as text, most significant digit first. Base 2 gives exactly
  // one digit per bit; base 16 exactly ceil(length / 4) digits 0-9, A-F, the
  // top one taken from the word as it stands, tail bits included. No leading
  // zero is dropped. `separator` goes between every `group` digits counted
  // from the least significant one, never at either end; `group` must not be
  // 0. Any other `base` gives what `CZEL_String::FromNumber` makes of word 0
  // whole with `base`, `group` and `separator`, and an empty string for a set
  // longer than 64 bits; that base must be at least 2. An invalid set gives
  // an empty string.
  CZEL_String ToString(ZEL::u32 base, ZEL::u32 group, char separator) const;

  // Copies the low four bytes of each word, least significant first, into
  // `buffer`: byte i of the image is byte i % 4 of word i / 4. The copying
  // stops at the last word; the rest of the buffer keeps its content. In
  // `ZEL_LITTLE_ENDIAN` byte i goes to buffer[i], in any other order to
  // buffer[size - 1 - i]. A `size` of 0 does nothing.
  void GetRawByteBuffer(ZEL::u8* buffer, ZEL::u32 size, ZEL::t_ByteOrdering order) const;

  // The mirror of `GetRawByteBuffer` with all eight bytes of each word: byte
  // i of the image is byte i % 8 of word i / 8, taken from buffer[i] in
  // `ZEL_LITTLE_ENDIAN` and from buffer[size - 1 - i] otherwise, up to the
  // last word (tail included). Only the bytes read are written; the length
  // stays. So writing with this and reading with `GetRawByteBuffer` agree
  // only on the first four bytes of a set. Returns this object.
  CZEL_BitSet& SetRawByteBuffer(ZEL::u8 const* buffer, ZEL::u32 size, ZEL::t_ByteOrdering order);

 protected:
  // The number of words for `numBits` bits: 0 for 0 bits.
  static ZEL::u32 GetNumWords(ZEL::u32 numBits);

  // Gives the set an array of `words` words of undefined content, unless it
  // has that many already. The length stays.
  void CreateWords(ZEL::u32 words);

  // Makes this set a copy of `src`, words whole; `src` may be this set.
  void DataCopy(CZEL_BitSet const& src);

  // Releases the words and leaves an invalid set of 0 bits and no words.
  void Destroy();

  // Writes 0 into every word; the length stays.
  void Reset();

  // Bit `index` of its word, unchecked, also beyond the length.
  ZEL::u8 UnsafeGetBit(ZEL::u32 index) const;
  void UnsafeSetBit(ZEL::u32 index, ZEL::u8 value);

  // The length in bits.
  ZEL::u32 m_NumBits;
  // The number of words in `m_Words`.
  ZEL::u32 m_NumWords;
  // The words, least significant first; null for a set without words.
  ZEL::u64* m_Words;

 private:
  // The order of two word arrays read as unsigned integers: -1, 0 or 1.
  static signed char CompareWords(ZEL::u64 const* a, ZEL::u32 aWords, ZEL::u64 const* b,
                                  ZEL::u32 bWords);

  // A new set with the smaller length and word count of this set and
  // `other`, each word `op` of the two words.
  template <typename Op>
  CZEL_BitSet Combine(CZEL_BitSet const& other, Op op) const;

  // `Combine` assigned to this set; done in place when this set has no more
  // words than `other`.
  template <typename Op>
  CZEL_BitSet& CombineInPlace(CZEL_BitSet const& other, Op op);

  // Sets or clears bits [`low`, `high`) of the words, a word at a time.
  void FillBits(ZEL::u64 low, ZEL::u64 high, ZEL::u8 value);

  // A cleared set of the same length that holds the bits of this set moved
  // `count` places up (`up` non-zero) or down.
  CZEL_BitSet Shifted(ZEL::u32 count, ZEL::u8 up) const;
};

// `CZEL_BitSet::Swap`, found by argument-dependent lookup.
inline void swap(CZEL_BitSet& a, CZEL_BitSet& b) noexcept { a.Swap(b); }

// A u64 on the left: 1 or 0 as the comparison with the sides exchanged, so
// `value < set` is `set > value`. These keep the u64 forms unambiguous and of
// one result type in every language version.
inline ZEL::u8 operator==(ZEL::u64 const& value, CZEL_BitSet const& set) { return set == value; }
inline ZEL::u8 operator!=(ZEL::u64 const& value, CZEL_BitSet const& set) { return set != value; }
inline ZEL::u8 operator<(ZEL::u64 const& value, CZEL_BitSet const& set) { return set > value; }
inline ZEL::u8 operator<=(ZEL::u64 const& value, CZEL_BitSet const& set) { return set >= value; }
inline ZEL::u8 operator>(ZEL::u64 const& value, CZEL_BitSet const& set) { return set < value; }
inline ZEL::u8 operator>=(ZEL::u64 const& value, CZEL_BitSet const& set) { return set <= value; }

#endif  // LZEL_CORE_VALUES_CZEL_BITSET_H_
