// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/io/ZEL_StreamForms.h>

#include <LZEL_Core/frame/CZEL_Exception.h>
#include <LZEL_Core/frame/ZEL_Errors.h>

using ZEL::u16;
using ZEL::u32;

CZEL_Buffer& operator<<(CZEL_Buffer& buffer, CZEL_String const& text) {
  buffer << text.GetLength();
  buffer.AppendData(text.GetStringC(), text.GetLength());
  return buffer;
}

CZEL_Buffer& operator>>(CZEL_Buffer& buffer, CZEL_String& text) {
  u32 uiSize = 0;
  buffer >> uiSize;
  text.SetLength(uiSize, ' ');
  buffer.RetrieveData(text.GetStringC(), uiSize);
  return buffer;
}

CZEL_Buffer& operator<<(CZEL_Buffer& buffer, CZEL_Color const& color) {
  buffer << color.m_Color;
  return buffer;
}

CZEL_Buffer& operator>>(CZEL_Buffer& buffer, CZEL_Color& color) {
  buffer >> color.m_Color;
  return buffer;
}

CZEL_Buffer& operator<<(CZEL_Buffer& buffer, CZEL_Date const& date) {
  buffer << date.m_JulianDay;
  return buffer;
}

CZEL_Buffer& operator>>(CZEL_Buffer& buffer, CZEL_Date& date) {
  buffer >> date.m_JulianDay;
  return buffer;
}

CZEL_Buffer& operator<<(CZEL_Buffer& buffer, CZEL_Time const& time) {
  buffer << time.m_Msecs;
  return buffer;
}

CZEL_Buffer& operator>>(CZEL_Buffer& buffer, CZEL_Time& time) {
  buffer >> time.m_Msecs;
  return buffer;
}

// The count and the digits are the one general form of a vector of u32.
CZEL_Buffer& operator<<(CZEL_Buffer& buffer, CZEL_IpAddress const& address) {
  buffer << static_cast<u16>(address.m_Kind);
  u32 const count = address.m_Digits.GetLength();
  buffer << count;
  for (u32 i = 0; i < count; ++i) buffer << address.m_Digits[i];
  return buffer;
}

CZEL_Buffer& operator>>(CZEL_Buffer& buffer, CZEL_IpAddress& address) {
  address.SetToInvalid();
  u16 usType = 0;
  buffer >> usType;
  if (usType == CZEL_IpAddress::IP_INVALID) return buffer;
  if (usType != CZEL_IpAddress::IP_V4 && usType != CZEL_IpAddress::IP_V6) {
    throw CZEL_Exception(ZEL_ERR_FAILED, &buffer, 0);
  }
  address.m_Kind = usType;
  u32 count = 0;
  buffer >> count;
  // The digits start at 0, so that a stream that ends among them leaves
  // zeros behind the digits read, never bytes that no read wrote.
  if (count != address.m_Digits.GetLength()) address.m_Digits.Create(count, 0);
  for (u32 i = 0; i < count; ++i) buffer >> address.m_Digits[i];
  return buffer;
}
