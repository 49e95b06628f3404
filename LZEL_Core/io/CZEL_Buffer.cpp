// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/io/CZEL_Buffer.h>

#include <LZEL_Core/frame/CZEL_Exception.h>
#include <LZEL_Core/frame/ZEL_Errors.h>

#include <cstddef>
#include <cstring>

using ZEL::i64;
using ZEL::u16;
using ZEL::u32;
using ZEL::u64;
using ZEL::u8;

namespace {

template <std::size_t N>
struct UnsignedOf;
template <>
struct UnsignedOf<1> {
  using type = u8;
};
template <>
struct UnsignedOf<2> {
  using type = u16;
};
template <>
struct UnsignedOf<4> {
  using type = u32;
};
template <>
struct UnsignedOf<8> {
  using type = u64;
};

// A host that keeps numbers least significant byte first holds the stream's
// bytes of a value as they are, and moves them with one copy.
#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
constexpr bool kHostIsLittleEndian = true;
#else
constexpr bool kHostIsLittleEndian = false;
#endif

// The stream's bytes of `value`: its bit pattern least significant byte
// first, as the `ToBuf` functions give them with ZEL_LITTLE_ENDIAN.
template <typename V>
void Put(CZEL_Buffer& buffer, V value) {
  using U = typename UnsignedOf<sizeof(V)>::type;
  U bits;
  std::memcpy(&bits, &value, sizeof(V));
  u8 bytes[sizeof(V)];
  if constexpr (kHostIsLittleEndian) {
    std::memcpy(bytes, &bits, sizeof(V));
  } else {
    for (std::size_t i = 0; i < sizeof(V); ++i) bytes[i] = static_cast<u8>(bits >> (8 * i));
  }
  buffer.AppendData(bytes, sizeof(V));
}

// Retrieves the bytes of a `V` and unpacks them into `value`, as the
// `FromBuf` functions do; a failed read leaves `value` alone.
template <typename V>
void Get(CZEL_Buffer& buffer, V& value) {
  using U = typename UnsignedOf<sizeof(V)>::type;
  u8 bytes[sizeof(V)];
  buffer.RetrieveData(bytes, sizeof(V));
  U bits = 0;
  if constexpr (kHostIsLittleEndian) {
    std::memcpy(&bits, bytes, sizeof(V));
  } else {
    for (std::size_t i = 0; i < sizeof(V); ++i) bits |= static_cast<U>(U{bytes[i]} << (8 * i));
  }
  std::memcpy(&value, &bits, sizeof(V));
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
void CZEL_Buffer::operator<<(double value) { Put(*this, value); }
void CZEL_Buffer::operator<<(float value) { Put(*this, value); }
void CZEL_Buffer::operator<<(i64 value) { Put(*this, value); }
void CZEL_Buffer::operator<<(int value) { Put(*this, value); }
void CZEL_Buffer::operator<<(short value) { Put(*this, value); }
void CZEL_Buffer::operator<<(signed char value) { Put(*this, value); }
void CZEL_Buffer::operator<<(u64 value) { Put(*this, value); }
void CZEL_Buffer::operator<<(u32 value) { Put(*this, value); }
void CZEL_Buffer::operator<<(u16 value) { Put(*this, value); }
void CZEL_Buffer::operator<<(u8 value) { Put(*this, value); }
void CZEL_Buffer::operator<<(char value) { Put(*this, value); }

void CZEL_Buffer::operator>>(void* /*value*/) {}
void CZEL_Buffer::operator>>(double& value) { Get(*this, value); }
void CZEL_Buffer::operator>>(float& value) { Get(*this, value); }
void CZEL_Buffer::operator>>(i64& value) { Get(*this, value); }
void CZEL_Buffer::operator>>(int& value) { Get(*this, value); }
void CZEL_Buffer::operator>>(short& value) { Get(*this, value); }
void CZEL_Buffer::operator>>(signed char& value) { Get(*this, value); }
void CZEL_Buffer::operator>>(u64& value) { Get(*this, value); }
void CZEL_Buffer::operator>>(u32& value) { Get(*this, value); }
void CZEL_Buffer::operator>>(u16& value) { Get(*this, value); }
void CZEL_Buffer::operator>>(u8& value) { Get(*this, value); }
void CZEL_Buffer::operator>>(char& value) { Get(*this, value); }
