// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Register.h
// -----------------------------------------------------------------------------
//
// `CZEL_Register` is a 64-bit word with field access and a lock of its own: a
// `CZEL_BitSet` of 64 bits, a `CZEL_Mutex`, and fields addressed by u8
// positions. Every public operation of the bit set stays available.
//
//   CZEL_Register status;                  // 64 bits, all zero
//   status.Lock();
//   status.SetField(4, 4, 0x1F);           // bits 4 to 7 become 1111
//   ZEL::u64 mode = status.GetField(4, 4); // 15
//   status.Unlock();
//
// The lock is advisory: `GetField`, `SetField` and `Reset` take no lock of
// their own, and nothing records who holds it. A caller that shares a
// register between threads brackets each sequence of accesses with `Lock` and
// `Unlock`. A copy of a register shares the lock of its source (see
// CZEL_Mutex.h): locking one blocks the other, and the first of them to be
// destroyed closes the lock for both.
//
// Fields are cut at bit 63, and a `start` above 64 reads 0 and writes nothing,
// as for the bit set's fields.

#ifndef LZEL_CORE_VALUES_CZEL_REGISTER_H_
#define LZEL_CORE_VALUES_CZEL_REGISTER_H_

#include <LZEL_Core/frame/CZEL_Mutex.h>
#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/values/CZEL_BitSet.h>

class ZEL_API CZEL_Register : public CZEL_BitSet {
 public:
  // 64 bits, all zero, both marks 0, with a lock of its own. Throws
  // ZEL_ERR_FAILED if the platform refuses the lock.
  CZEL_Register();

  // A copy of the bits and marks of `other` that shares its lock.
  CZEL_Register(CZEL_Register const& other);

  // Takes the bits and marks of `other` and shares its lock; the lock held
  // before is dropped without being closed. Returns this object.
  CZEL_Register& operator=(CZEL_Register const& other);

  // Takes the bits of `other` without copying them and shares its lock, as a
  // copy does; `other` keeps its lock and marks but is left with no bits
  // (an invalid set) until it is assigned again. Never throws.
  CZEL_Register(CZEL_Register&& other) noexcept;

  // Takes the bits and marks of `other` and shares its lock, as copying
  // does; `other` is left with no bits. Returns this object. Never throws.
  CZEL_Register& operator=(CZEL_Register&& other) noexcept;

  // Exchanges the bits, the marks and the locks of the two registers. Never
  // throws.
  void Swap(CZEL_Register& other) noexcept;

  // The bit set's assignments stay available.
  using CZEL_BitSet::operator=;

  // Closes the lock for every register that shares it (see CZEL_Mutex.h).
  ~CZEL_Register() override;

  // Writes 0 into the word and clears both marks; the length stays.
  void Reset();

  // Waits without limit for the lock; the outcome isn't reported.
  void Lock();

  // Releases the lock; the outcome isn't reported.
  void Unlock();

  // The field of `count` bits from bit `start`, cut at bit 63; 0 if `start`
  // is above 64.
  ZEL::u64 GetField(ZEL::u8 start, ZEL::u8 count) const;

  // Writes the low `count` bits of `value` from bit `start`, cut at bit 63;
  // nothing if `start` is above 64.
  void SetField(ZEL::u8 start, ZEL::u8 count, ZEL::u64 value);

 protected:
  // The register's lock, shared with its copies.
  CZEL_Mutex m_Mutex;
  // Copied with the register and cleared by `Reset`; for the caller's use.
  ZEL::u8 m_Mark0;
  // The same.
  ZEL::u8 m_Mark1;
};

// `CZEL_Register::Swap`, found by argument-dependent lookup.
inline void swap(CZEL_Register& a, CZEL_Register& b) noexcept { a.Swap(b); }

#endif  // LZEL_CORE_VALUES_CZEL_REGISTER_H_
