// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Buffer.h
// -----------------------------------------------------------------------------
//
// `CZEL_Buffer` is LZEL_Core's byte stream: a polymorphic object that values
// are written to and read from in sequence, through `AppendData`,
// `RetrieveData` and a typed `operator<<` and `operator>>` for every built-in
// number. It keeps what all streams share (the size, the end mark, the block
// size and the access right) and makes the checks of access and range.
// `CZEL_MemoryBuffer` keeps the bytes in memory, `CZEL_FileBuffer` runs them
// through a file; the value classes add their own stream operators in
// <LZEL_Core/io/ZEL_StreamForms.h>.
//
//   CZEL_MemoryBuffer buffer;
//   buffer << ZEL::u32(7);          // 07 00 00 00
//   buffer << 1.0;                   // 00 00 00 00 00 00 F0 3F
//   buffer.ToStart();
//   ZEL::u32 n;
//   double d;
//   buffer >> n;
//   buffer >> d;                     // n is 7, d is 1.0
//
// The stream format. A stream is a bare sequence of values: no header, no
// type tags, no alignment. Every number is packed least significant byte
// first (`ZEL::ZEL_LITTLE_ENDIAN`) on every platform: 1, 2, 4 or 8 bytes for
// the char, short, int and 64-bit types, a float and a double as their IEEE
// 754 bit patterns in 4 and 8 bytes. A `void*` is not a value of the stream:
// both of its operators do nothing and check nothing.
//
// The typed operators return nothing, so they do not chain; the free
// operators of the value classes return the buffer and do.
//
// Failures are thrown as `CZEL_Exception` with the buffer as the object:
// ZEL_ERR_WRITE_DENIED for a write and ZEL_ERR_READ_DENIED for a read that the
// access forbids, ZEL_ERR_OUT_OF_RANGE for a read past the size, tested
// before anything moves, and ZEL_ERR_NOT_SUPPORTED from the base forms of the
// positioning members. A plain `CZEL_Buffer` holds no bytes: its
// `AppendData` and `RetrieveData` are the checks alone, which the derived
// classes run first.

#ifndef LZEL_CORE_IO_CZEL_BUFFER_H_
#define LZEL_CORE_IO_CZEL_BUFFER_H_

#include <LZEL_Core/frame/CZEL_Object.h>
#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/frame/ZEL_Types.h>

#include <cstring>
#include <type_traits>

namespace ZEL {
namespace internal {
// `long long` and `unsigned long long` where they are types of their own
// beside `i64` and `u64` (as on LP64 platforms, where those are `long`).
template <typename T>
constexpr bool kIsOwnLongLong = (std::is_same_v<T, long long> ||
                                 std::is_same_v<T, unsigned long long>)&&!std::is_same_v<T, i64> &&
                                !std::is_same_v<T, u64>;
// The stream's 8-byte type for such a `T`.
template <typename T>
using StreamWideOf = std::conditional_t<std::is_signed_v<T>, i64, u64>;
}  // namespace internal
}  // namespace ZEL

class ZEL_API CZEL_Buffer : public CZEL_Object {
 public:
  // What a buffer may do. Only `CZEL_FileBuffer` changes it: a memory buffer
  // can always do both.
  enum t_Access : ZEL::u32 {
    ACCESS_WRITE = 0,       // `AppendData` only.
    ACCESS_READ = 1,        // `RetrieveData` only.
    ACCESS_READ_WRITE = 2,  // Both.
  };

  // Size 0, at its end, `blockSize` kept for the derived classes, both ways
  // allowed.
  explicit CZEL_Buffer(ZEL::u32 blockSize = 1024);

  // Copy the size, the end mark, the block size and the access.
  CZEL_Buffer(CZEL_Buffer const& src);
  CZEL_Buffer& operator=(CZEL_Buffer const& src);

  ~CZEL_Buffer() override;

  // ---------------------------------------------------------------------------
  // Positioning; the base forms throw ZEL_ERR_NOT_SUPPORTED
  // ---------------------------------------------------------------------------

  // The position of the next byte read or written.
  virtual ZEL::u64 GetAbsPosition();

  // Drops every byte held.
  virtual void DeleteAll();

  // Goes back to the first byte, to read the data again.
  virtual void ToStart();

  // Goes to the end mark.
  virtual void ToEnd();

  // ---------------------------------------------------------------------------
  // Transfers
  // ---------------------------------------------------------------------------

  // Writes `count` bytes from `data` at the position. The base form throws
  // ZEL_ERR_WRITE_DENIED unless the access allows writing, and does nothing
  // else.
  virtual void AppendData(void* data, ZEL::u32 count);

  // Reads `count` bytes into `data` from the position. The base form throws
  // ZEL_ERR_READ_DENIED unless the access allows reading, then
  // ZEL_ERR_OUT_OF_RANGE if `GetAbsPosition()` + `count` exceeds the size,
  // and does nothing else: on a plain `CZEL_Buffer` the position itself
  // throws ZEL_ERR_NOT_SUPPORTED.
  virtual void RetrieveData(void* data, ZEL::u32 count);

  // ---------------------------------------------------------------------------
  // Typed values, little-endian, through `AppendData` and `RetrieveData`
  // ---------------------------------------------------------------------------

  // Write nothing and check nothing.
  virtual void operator<<(void* value);
  virtual void operator<<(double value);
  virtual void operator<<(float value);
  virtual void operator<<(ZEL::i64 value);
  virtual void operator<<(int value);
  virtual void operator<<(short value);
  virtual void operator<<(signed char value);
  virtual void operator<<(ZEL::u64 value);
  virtual void operator<<(ZEL::u32 value);
  virtual void operator<<(ZEL::u16 value);
  virtual void operator<<(ZEL::u8 value);
  virtual void operator<<(char value);

  // Read nothing and check nothing.
  virtual void operator>>(void* value);
  // A failed read leaves `value` alone.
  virtual void operator>>(double& value);
  virtual void operator>>(float& value);
  virtual void operator>>(ZEL::i64& value);
  virtual void operator>>(int& value);
  virtual void operator>>(short& value);
  virtual void operator>>(signed char& value);
  virtual void operator>>(ZEL::u64& value);
  virtual void operator>>(ZEL::u32& value);
  virtual void operator>>(ZEL::u16& value);
  virtual void operator>>(ZEL::u8& value);
  virtual void operator>>(char& value);

  // A `long long` or `unsigned long long` where it is not `i64` or `u64`
  // itself: written as the 8-byte `i64` or `u64`, so that `buffer << 1LL`
  // means what it says. Throws as `AppendData`.
  template <typename T, std::enable_if_t<ZEL::internal::kIsOwnLongLong<T>, int> = 0>
  void operator<<(T value) {
    operator<<(static_cast<ZEL::internal::StreamWideOf<T>>(value));
  }

  // Reads the 8-byte `i64` or `u64` into a `long long` or `unsigned long
  // long`. Throws as `RetrieveData`; a failed read leaves `value` alone.
  template <typename T, std::enable_if_t<ZEL::internal::kIsOwnLongLong<T>, int> = 0>
  void operator>>(T& value) {
    ZEL::internal::StreamWideOf<T> wide = 0;
    operator>>(wide);
    value = static_cast<T>(wide);
  }

  // ---------------------------------------------------------------------------
  // State
  // ---------------------------------------------------------------------------

  // The number of bytes in the stream.
  ZEL::u64 GetSize() const;

  // The end mark: 1 after construction and after a write; after a read or a
  // repositioning, whether the position has reached the size.
  ZEL::u8 IsEnd() const;

 protected:
  // Copies the four fields of `src`.
  void DataCopy(CZEL_Buffer const& src);

  // Throws `code` with this buffer as the object.
  [[noreturn]] void Fail(ZEL::u32 code) const;

  // The access checks of `AppendData` and `RetrieveData`, without the range.
  void CheckWrite() const {
    if (m_Access != ACCESS_READ_WRITE && m_Access != ACCESS_WRITE) Fail(ZEL_ERR_WRITE_DENIED);
  }
  void CheckRead() const {
    if (m_Access != ACCESS_READ_WRITE && m_Access != ACCESS_READ) Fail(ZEL_ERR_READ_DENIED);
  }

  // Copies `count` bytes, none for a `count` of 0 whatever the pointers.
  // The sizes of the typed values are copied with a fixed size each, which
  // the compiler makes into one load and one store.
  static void CopyBytes(void* to, void const* from, ZEL::u64 count) {
    if (count == 8) {
      std::memcpy(to, from, 8);
    } else if (count == 4) {
      std::memcpy(to, from, 4);
    } else if (count == 2) {
      std::memcpy(to, from, 2);
    } else if (count == 1) {
      std::memcpy(to, from, 1);
    } else if (count != 0) {
      std::memcpy(to, from, count);
    }
  }

  // The block walk that the derived classes share: moves `count` bytes
  // between `data` and blocks of `m_BlockSize` bytes, into the blocks if
  // `intoBlocks`, starting in `block` at `offset`. A chunk is at most one
  // block. A chunk that ends inside the block moves `offset` on; one that
  // reaches or crosses the block's end takes the bytes up to the end, calls
  // `turn()` for the next block's bytes and goes on at its start. `step` is
  // told each chunk's size once it has moved.
  template <typename Offset, typename Turn, typename Step>
  void WalkBlocks(ZEL::u8* data, ZEL::u32 count, bool intoBlocks, ZEL::u8* block, Offset& offset,
                  Turn turn, Step step) {
    auto move = [intoBlocks](ZEL::u8* in, ZEL::u8* out, ZEL::u64 n) {
      if (intoBlocks) {
        CopyBytes(in, out, n);
      } else {
        CopyBytes(out, in, n);
      }
    };
    for (ZEL::u32 remaining = count; remaining > 0;) {
      ZEL::u32 const chunk = remaining < m_BlockSize ? remaining : m_BlockSize;
      if (ZEL::u64{chunk} + offset < m_BlockSize) {
        move(block + offset, data, chunk);
        offset += chunk;
      } else {
        auto const first = static_cast<ZEL::u32>(m_BlockSize - offset);
        move(block + offset, data, first);
        block = turn();
        offset = chunk - first;
        move(block, data + first, offset);
      }
      step(chunk);
      data += chunk;
      remaining -= chunk;
    }
  }

  // Bytes in the stream.
  ZEL::u64 m_Size;
  // The end mark.
  ZEL::u8 m_AtEnd;
  // The block size given at construction; never changes.
  ZEL::u32 m_BlockSize;
  // What the buffer may do.
  t_Access m_Access;
};

#endif  // LZEL_CORE_IO_CZEL_BUFFER_H_
