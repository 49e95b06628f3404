#include <LZEL_Core/containers/CZEL_Uint8Vector.h>

#include <LZEL_Core/containers/CZEL_Uint8List.h>

ZEL_NAMED_VECTOR_DEFINITIONS(CZEL_Uint8Vector, CZEL_Uint8List, ZEL::u8, CZEL_OrderedVector<ZEL::u8>)

short CZEL_Uint8Vector::GetInt16(ZEL::u32 pos, ZEL::t_ByteOrdering order) {
  return Get(pos, order, &ZEL::Int16FromBuf);
}

ZEL::u16 CZEL_Uint8Vector::GetUint16(ZEL::u32 pos, ZEL::t_ByteOrdering order) {
  return Get(pos, order, &ZEL::Uint16FromBuf);
}

int CZEL_Uint8Vector::GetInt32(ZEL::u32 pos, ZEL::t_ByteOrdering order) {
  return Get(pos, order, &ZEL::Int32FromBuf);
}

ZEL::u32 CZEL_Uint8Vector::GetUint32(ZEL::u32 pos, ZEL::t_ByteOrdering order) {
  return Get(pos, order, &ZEL::Uint32FromBuf);
}

ZEL::i64 CZEL_Uint8Vector::GetInt64(ZEL::u32 pos, ZEL::t_ByteOrdering order) {
  return Get(pos, order, &ZEL::Int64FromBuf);
}

ZEL::u64 CZEL_Uint8Vector::GetUint64(ZEL::u32 pos, ZEL::t_ByteOrdering order) {
  return Get(pos, order, &ZEL::Uint64FromBuf);
}

float CZEL_Uint8Vector::GetFloat(ZEL::u32 pos, ZEL::t_ByteOrdering order) {
  return Get(pos, order, &ZEL::FloatFromBuf);
}

double CZEL_Uint8Vector::GetDouble(ZEL::u32 pos, ZEL::t_ByteOrdering order) {
  return Get(pos, order, &ZEL::DoubleFromBuf);
}

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
ZEL::u8* CZEL_Uint8Vector::FieldAt(ZEL::u32 pos, ZEL::u32 width) {
  if (pos + width > m_Length) Fail(ZEL_ERR_INVALID_ARGUMENT);
  if (!InArray(pos, width - 1)) return nullptr;
  return m_Buf + pos;
}

template <typename V>
V CZEL_Uint8Vector::Get(ZEL::u32 pos, ZEL::t_ByteOrdering order,
                        V (*from)(ZEL::u8*, ZEL::t_ByteOrdering)) {
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
