// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Uint8Vector.h
// -----------------------------------------------------------------------------
//
// `CZEL_Uint8Vector` is LZEL_Core's raw record: a vector of bytes that can
// also be read and written as typed fields at any byte offset, in a chosen
// byte order. It is a `CZEL_OrderedVector<ZEL::u8>` (so also a
// `CZEL_Vector<ZEL::u8>` with `Min`, `Max` and `Sort`), with assignment to and
// from `CZEL_Uint8List` as described in
// <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_Uint8Vector record(8, 0);
//   record.SetUint16(0x1234, 0, ZEL::ZEL_BIG_ENDIAN);    // bytes 12 34
//   record.SetFloat(1.5f, 4, ZEL::ZEL_LITTLE_ENDIAN);
//   ZEL::u16 tag = record.GetUint16(0, ZEL::ZEL_BIG_ENDIAN);  // 0x1234
//
// Typed access. `pos` is a byte offset with no alignment demand, and `order`
// a `ZEL::t_ByteOrdering` (`ZEL_LITTLE_ENDIAN` is 0, any other value reads as
// big-endian). Each accessor first tests pos + width, computed in 32 unsigned
// bits, against the length, and throws ZEL_ERR_INVALID_ARGUMENT (not the
// ZEL_ERR_BAD_POSITION of `operator[]`) if it is greater, reading and writing
// nothing. An empty vector therefore refuses every accessor. Setters never
// grow the vector: they overwrite width bytes in place. There is no one-byte
// accessor: `operator[]` serves for that.
//
// The sum can wrap for a pos near the top of the u32 range, and the test then
// passes: such a field lies outside the vector, so a getter yields 0 and a
// setter writes nothing.
//
// A list of these vectors, `CZEL_List<CZEL_Uint8Vector>`, is instantiated in
// the library as well: it is the block list of the memory buffer.

#ifndef LZEL_CORE_CONTAINERS_CZEL_UINT8_VECTOR_H_
#define LZEL_CORE_CONTAINERS_CZEL_UINT8_VECTOR_H_

#include <LZEL_Core/containers/ZEL_ContainerExterns.h>
#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/frame/ZEL_Primitives.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_Uint8List;

class ZEL_API CZEL_Uint8Vector : public CZEL_OrderedVector<ZEL::u8> {
  ZEL_NAMED_VECTOR_MEMBERS(CZEL_Uint8Vector, CZEL_Uint8List, ZEL::u8)

 public:
  // The field of the given width at byte `pos`, in `order`. Each throws
  // ZEL_ERR_INVALID_ARGUMENT if pos + width exceeds the length.
  short GetInt16(ZEL::u32 pos, ZEL::t_ByteOrdering order);
  ZEL::u16 GetUint16(ZEL::u32 pos, ZEL::t_ByteOrdering order);
  int GetInt32(ZEL::u32 pos, ZEL::t_ByteOrdering order);
  ZEL::u32 GetUint32(ZEL::u32 pos, ZEL::t_ByteOrdering order);
  ZEL::i64 GetInt64(ZEL::u32 pos, ZEL::t_ByteOrdering order);
  ZEL::u64 GetUint64(ZEL::u32 pos, ZEL::t_ByteOrdering order);
  float GetFloat(ZEL::u32 pos, ZEL::t_ByteOrdering order);
  double GetDouble(ZEL::u32 pos, ZEL::t_ByteOrdering order);

  // The same getters on a const vector, with the same results and throws.
  short GetInt16(ZEL::u32 pos, ZEL::t_ByteOrdering order) const;
  ZEL::u16 GetUint16(ZEL::u32 pos, ZEL::t_ByteOrdering order) const;
  int GetInt32(ZEL::u32 pos, ZEL::t_ByteOrdering order) const;
  ZEL::u32 GetUint32(ZEL::u32 pos, ZEL::t_ByteOrdering order) const;
  ZEL::i64 GetInt64(ZEL::u32 pos, ZEL::t_ByteOrdering order) const;
  ZEL::u64 GetUint64(ZEL::u32 pos, ZEL::t_ByteOrdering order) const;
  float GetFloat(ZEL::u32 pos, ZEL::t_ByteOrdering order) const;
  double GetDouble(ZEL::u32 pos, ZEL::t_ByteOrdering order) const;

  // Writes `value` into the field of its width at byte `pos`, in `order`.
  // Each throws ZEL_ERR_INVALID_ARGUMENT, changing nothing, if pos + width
  // exceeds the length.
  CZEL_Uint8Vector& SetInt16(short const& value, ZEL::u32 pos, ZEL::t_ByteOrdering order);
  CZEL_Uint8Vector& SetUint16(ZEL::u16 const& value, ZEL::u32 pos, ZEL::t_ByteOrdering order);
  CZEL_Uint8Vector& SetInt32(int const& value, ZEL::u32 pos, ZEL::t_ByteOrdering order);
  CZEL_Uint8Vector& SetUint32(ZEL::u32 const& value, ZEL::u32 pos, ZEL::t_ByteOrdering order);
  CZEL_Uint8Vector& SetInt64(ZEL::i64 const& value, ZEL::u32 pos, ZEL::t_ByteOrdering order);
  CZEL_Uint8Vector& SetUint64(ZEL::u64 const& value, ZEL::u32 pos, ZEL::t_ByteOrdering order);
  CZEL_Uint8Vector& SetFloat(float const& value, ZEL::u32 pos, ZEL::t_ByteOrdering order);
  CZEL_Uint8Vector& SetDouble(double const& value, ZEL::u32 pos, ZEL::t_ByteOrdering order);

 private:
  ZEL::u8* FieldAt(ZEL::u32 pos, ZEL::u32 width) const;
  template <typename V>
  V Get(ZEL::u32 pos, ZEL::t_ByteOrdering order, V (*from)(ZEL::u8*, ZEL::t_ByteOrdering)) const;
  template <typename V>
  CZEL_Uint8Vector& Set(V const& value, ZEL::u32 pos, ZEL::t_ByteOrdering order,
                        void (*to)(V const&, ZEL::u8*, ZEL::t_ByteOrdering));
};

ZEL_EXTERN_TEMPLATE(class CZEL_List<CZEL_Uint8Vector>)

#endif  // LZEL_CORE_CONTAINERS_CZEL_UINT8_VECTOR_H_
