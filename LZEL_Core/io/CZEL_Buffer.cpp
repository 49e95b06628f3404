#include <LZEL_Core/io/CZEL_Buffer.h>

#include <LZEL_Core/frame/CZEL_Exception.h>
#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/frame/ZEL_Primitives.h>

using ZEL::i64;
using ZEL::u16;
using ZEL::u32;
using ZEL::u64;
using ZEL::u8;

namespace {

constexpr ZEL::t_ByteOrdering kStreamOrder = ZEL::ZEL_LITTLE_ENDIAN;

// Packs `value` with its `ToBuf` function and appends its bytes.
template <typename V>
void Put(CZEL_Buffer& buffer, V const& value, void (*to)(V const&, u8*, ZEL::t_ByteOrdering)) {
  u8 bytes[sizeof(V)];
  to(value, bytes, kStreamOrder);
  buffer.AppendData(bytes, sizeof(V));
}

// Retrieves the bytes of a `V` and unpacks them into `value` with its
// `FromBuf` function; a failed read leaves `value` alone.
template <typename V>
void Get(CZEL_Buffer& buffer, V& value, V (*from)(u8*, ZEL::t_ByteOrdering)) {
  u8 bytes[sizeof(V)];
  buffer.RetrieveData(bytes, sizeof(V));
  value = from(bytes, kStreamOrder);
}

// A single byte goes through as it is.
template <typename V>
void PutByte(CZEL_Buffer& buffer, V value) {
  buffer.AppendData(&value, 1);
}
template <typename V>
void GetByte(CZEL_Buffer& buffer, V& value) {
  V byte;
  buffer.RetrieveData(&byte, 1);
  value = byte;
}

}  // namespace

CZEL_Buffer::CZEL_Buffer(u32 blockSize)
    : m_Size(0), m_AtEnd(1), m_BlockSize(blockSize), m_Access(ACCESS_READ_WRITE) {}

CZEL_Buffer::CZEL_Buffer(CZEL_Buffer const& src)
    : CZEL_Object(), m_Size(0), m_AtEnd(1), m_BlockSize(0), m_Access(ACCESS_READ_WRITE) {
  DataCopy(src);
}

CZEL_Buffer& CZEL_Buffer::operator=(CZEL_Buffer const& src) {
  DataCopy(src);
  return *this;
}

CZEL_Buffer::~CZEL_Buffer() = default;

void CZEL_Buffer::DataCopy(CZEL_Buffer const& src) {
  m_Size = src.m_Size;
  m_AtEnd = src.m_AtEnd;
  m_BlockSize = src.m_BlockSize;
  m_Access = src.m_Access;
}

void CZEL_Buffer::Fail(u32 code) const { throw CZEL_Exception(code, this, 0); }

u64 CZEL_Buffer::GetAbsPosition() { Fail(ZEL_ERR_NOT_SUPPORTED); }

void CZEL_Buffer::DeleteAll() { Fail(ZEL_ERR_NOT_SUPPORTED); }

void CZEL_Buffer::ToStart() { Fail(ZEL_ERR_NOT_SUPPORTED); }

void CZEL_Buffer::ToEnd() { Fail(ZEL_ERR_NOT_SUPPORTED); }

void CZEL_Buffer::AppendData(void* /*data*/, u32 /*count*/) { CheckWrite(); }

void CZEL_Buffer::RetrieveData(void* /*data*/, u32 count) {
  CheckRead();
  if (GetAbsPosition() + count > m_Size) Fail(ZEL_ERR_OUT_OF_RANGE);
}

u64 CZEL_Buffer::GetSize() const { return m_Size; }

u8 CZEL_Buffer::IsEnd() const { return m_AtEnd; }

void CZEL_Buffer::operator<<(void* /*value*/) {}
void CZEL_Buffer::operator<<(double value) { Put(*this, value, ZEL::DoubleToBuf); }
void CZEL_Buffer::operator<<(float value) { Put(*this, value, ZEL::FloatToBuf); }
void CZEL_Buffer::operator<<(i64 value) { Put(*this, value, ZEL::Int64ToBuf); }
void CZEL_Buffer::operator<<(int value) { Put(*this, value, ZEL::Int32ToBuf); }
void CZEL_Buffer::operator<<(short value) { Put(*this, value, ZEL::Int16ToBuf); }
void CZEL_Buffer::operator<<(signed char value) { PutByte(*this, value); }
void CZEL_Buffer::operator<<(u64 value) { Put(*this, value, ZEL::Uint64ToBuf); }
void CZEL_Buffer::operator<<(u32 value) { Put(*this, value, ZEL::Uint32ToBuf); }
void CZEL_Buffer::operator<<(u16 value) { Put(*this, value, ZEL::Uint16ToBuf); }
void CZEL_Buffer::operator<<(u8 value) { PutByte(*this, value); }
void CZEL_Buffer::operator<<(char value) { PutByte(*this, value); }

void CZEL_Buffer::operator>>(void* /*value*/) {}
void CZEL_Buffer::operator>>(double& value) { Get(*this, value, ZEL::DoubleFromBuf); }
void CZEL_Buffer::operator>>(float& value) { Get(*this, value, ZEL::FloatFromBuf); }
void CZEL_Buffer::operator>>(i64& value) { Get(*this, value, ZEL::Int64FromBuf); }
void CZEL_Buffer::operator>>(int& value) { Get(*this, value, ZEL::Int32FromBuf); }
void CZEL_Buffer::operator>>(short& value) { Get(*this, value, ZEL::Int16FromBuf); }
void CZEL_Buffer::operator>>(signed char& value) { GetByte(*this, value); }
void CZEL_Buffer::operator>>(u64& value) { Get(*this, value, ZEL::Uint64FromBuf); }
void CZEL_Buffer::operator>>(u32& value) { Get(*this, value, ZEL::Uint32FromBuf); }
void CZEL_Buffer::operator>>(u16& value) { Get(*this, value, ZEL::Uint16FromBuf); }
void CZEL_Buffer::operator>>(u8& value) { GetByte(*this, value); }
void CZEL_Buffer::operator>>(char& value) { GetByte(*this, value); }
