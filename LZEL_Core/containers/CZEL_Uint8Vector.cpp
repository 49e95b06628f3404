// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_Uint8Vector.h>

#include <LZEL_Core/containers/CZEL_Uint8List.h>

ZEL_NAMED_VECTOR_DEFINITIONS(CZEL_Uint8Vector, CZEL_Uint8List, ZEL::u8, CZEL_OrderedVector<ZEL::u8>)

// Each getter twice, for a const vector and for the others, both reading
// through `Get`.
#define ZEL_BYTE_FIELD_GETTERS(V, Name)                                          \
  V CZEL_Uint8Vector::Get##Name(ZEL::u32 pos, ZEL::t_ByteOrdering order) const { \
    return Get(pos, order, &ZEL::Name##FromBuf);                                 \
  }                                                                              \
  V CZEL_Uint8Vector::Get##Name(ZEL::u32 pos, ZEL::t_ByteOrdering order) {       \
    return Get(pos, order, &ZEL::Name##FromBuf);                                 \
  }

ZEL_BYTE_FIELD_GETTERS(short, Int16)
ZEL_BYTE_FIELD_GETTERS(ZEL::u16, Uint16)
ZEL_BYTE_FIELD_GETTERS(int, Int32)
ZEL_BYTE_FIELD_GETTERS(ZEL::u32, Uint32)
ZEL_BYTE_FIELD_GETTERS(ZEL::i64, Int64)
ZEL_BYTE_FIELD_GETTERS(ZEL::u64, Uint64)
ZEL_BYTE_FIELD_GETTERS(float, Float)
ZEL_BYTE_FIELD_GETTERS(double, Double)

#undef ZEL_BYTE_FIELD_GETTERS

CZEL_Uint8Vector& CZEL_Uint8Vector::SetInt16(short const& value, ZEL::u32 pos,
                                             ZEL::t_ByteOrdering order) {
  return Set(value, pos, order, &ZEL::Int16ToBuf);
}

CZEL_Uint8Vector& CZEL_Uint8Vector::SetUint16(ZEL::u16 const& value, ZEL::u32 pos,
                                              ZEL::t_ByteOrdering order) {
  return Set(value, pos, order, &ZEL::Uint16ToBuf);
}

CZEL_Uint8Vector& CZEL_Uint8Vector::SetInt32(int const& value, ZEL::u32 pos,
                                             ZEL::t_ByteOrdering order) {
  return Set(value, pos, order, &ZEL::Int32ToBuf);
}

CZEL_Uint8Vector& CZEL_Uint8Vector::SetUint32(ZEL::u32 const& value, ZEL::u32 pos,
                                              ZEL::t_ByteOrdering order) {
  return Set(value, pos, order, &ZEL::Uint32ToBuf);
}

CZEL_Uint8Vector& CZEL_Uint8Vector::SetInt64(ZEL::i64 const& value, ZEL::u32 pos,
                                             ZEL::t_ByteOrdering order) {
  return Set(value, pos, order, &ZEL::Int64ToBuf);
}

CZEL_Uint8Vector& CZEL_Uint8Vector::SetUint64(ZEL::u64 const& value, ZEL::u32 pos,
                                              ZEL::t_ByteOrdering order) {
  return Set(value, pos, order, &ZEL::Uint64ToBuf);
}

CZEL_Uint8Vector& CZEL_Uint8Vector::SetFloat(float const& value, ZEL::u32 pos,
                                             ZEL::t_ByteOrdering order) {
  return Set(value, pos, order, &ZEL::FloatToBuf);
}

CZEL_Uint8Vector& CZEL_Uint8Vector::SetDouble(double const& value, ZEL::u32 pos,
                                              ZEL::t_ByteOrdering order) {
  return Set(value, pos, order, &ZEL::DoubleToBuf);
}

// The address of the field, after the range test in 32-bit arithmetic; null
// when that sum wrapped and the field lies outside the vector after all.
ZEL::u8* CZEL_Uint8Vector::FieldAt(ZEL::u32 pos, ZEL::u32 width) const {
  if (pos + width > m_Length) Fail(ZEL_ERR_INVALID_ARGUMENT);
  if (!InArray(pos, width - 1)) return nullptr;
  return m_Buf + pos;
}

template <typename V>
V CZEL_Uint8Vector::Get(ZEL::u32 pos, ZEL::t_ByteOrdering order,
                        V (*from)(ZEL::u8*, ZEL::t_ByteOrdering)) const {
  ZEL::u8* field = FieldAt(pos, sizeof(V));
  return field != nullptr ? from(field, order) : V(0);
}

template <typename V>
CZEL_Uint8Vector& CZEL_Uint8Vector::Set(V const& value, ZEL::u32 pos, ZEL::t_ByteOrdering order,
                                        void (*to)(V const&, ZEL::u8*, ZEL::t_ByteOrdering)) {
  ZEL::u8* field = FieldAt(pos, sizeof(V));
  if (field != nullptr) to(value, field, order);
  return *this;
}
