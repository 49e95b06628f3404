#include <LZEL_Core/net/CZEL_IpAddress.h>

#include <cstdlib>
#include <cstring>

using ZEL::u32;
using ZEL::u8;

namespace {

// The most digits an address has: the eight groups of IPv6.
constexpr u32 kMaxDigits = 8;

// Finds the tags of `text` by the rules of `CZEL_String::ExtractTags`
// (empty tags count, an empty one after a final separator doesn't) and
// stores where each begins. Returns whether there are exactly `count` of
// them, stopping as soon as there are more.
bool FindTags(char const* text, u32 length, char separator, u32 count, u32* starts) {
  u32 tags = 0;
  u32 start = 0;
  for (u32 pos = 0; pos < length; ++pos) {
    if (text[pos] != separator) continue;
    if (tags == count) return false;
    starts[tags++] = start;
    start = pos + 1;
  }
  if (start < length) {
    if (tags == count) return false;
    starts[tags++] = start;
  }
  return tags == count;
}

// Writes `value` in decimal, with a leading minus when negative, as "%d"
// does; returns the end of the text written.
char* AppendDecimal(char* out, int value) {
  u32 magnitude = static_cast<u32>(value);
  if (value < 0) {
    *out++ = '-';
    magnitude = 0u - magnitude;
  }
  char digits[10];
  u32 count = 0;
  do {
    digits[count++] = static_cast<char>('0' + magnitude % 10);
    magnitude /= 10;
  } while (magnitude != 0);
  while (count != 0) *out++ = digits[--count];
  return out;
}

// Writes `value` in upper-case hexadecimal, at least four places, as
// "%04X" does; returns the end of the text written.
char* AppendHex(char* out, u32 value) {
  char digits[8];
  u32 count = 0;
  do {
    digits[count++] = "0123456789ABCDEF"[value & 15];
    value >>= 4;
  } while (value != 0);
  while (count < 4) digits[count++] = '0';
  while (count != 0) *out++ = digits[--count];
  return out;
}

}  // namespace

CZEL_IpAddress::CZEL_IpAddress() : m_Kind(IP_INVALID) {}

CZEL_IpAddress::CZEL_IpAddress(CZEL_String const& text) : m_Kind(IP_INVALID) { DataCopy(text); }

CZEL_IpAddress::CZEL_IpAddress(CZEL_IpAddress const& other)
    : CZEL_Object(other), m_Kind(IP_INVALID) {
  DataCopy(other);
}

CZEL_IpAddress& CZEL_IpAddress::operator=(CZEL_IpAddress const& other) {
  DataCopy(other);
  return *this;
}

CZEL_IpAddress& CZEL_IpAddress::operator=(CZEL_String const& text) {
  DataCopy(text);
  return *this;
}

u8 CZEL_IpAddress::operator==(CZEL_IpAddress const& other) const {
  return m_Kind == other.m_Kind && m_Digits == other.m_Digits;
}

u8 CZEL_IpAddress::operator!=(CZEL_IpAddress const& other) const { return !(*this == other); }

// The text is built in place: eight groups of at most eight hexadecimal
// places and their seven separators fill 71 bytes, four signed decimals
// and three dots at most 47.
CZEL_String CZEL_IpAddress::ToString() const {
  bool const v4 = m_Kind == IP_V4;
  u32 const count = v4 ? 4 : m_Kind == IP_V6 ? kMaxDigits : 0;
  char text[kMaxDigits * 9];
  char* out = text;
  for (u32 i = 0; i < count; ++i) {
    u32 const digit = i < m_Digits.GetLength() ? m_Digits.GetBuf()[i] : 0;
    if (i != 0) *out++ = v4 ? '.' : ':';
    out = v4 ? AppendDecimal(out, static_cast<int>(digit)) : AppendHex(out, digit);
  }
  return CZEL_String(text, static_cast<u32>(out - text));
}

u8 CZEL_IpAddress::GetDigit(u32 index) const {
  return index < m_Digits.GetLength() ? static_cast<u8>(m_Digits.GetBuf()[index]) : 0;
}

void CZEL_IpAddress::SetDigit(u32 index, u8 value) {
  if (index < m_Digits.GetLength()) m_Digits.GetBuf()[index] = value;
}

void CZEL_IpAddress::DataCopy(CZEL_IpAddress const& other) {
  m_Kind = other.m_Kind;
  m_Digits = other.m_Digits;
}

// The tags are read in place rather than cut out as strings: a tag ends at
// a separator or at the end of the text, neither of which can continue a
// number, so `strtoull` from the tag's start reads exactly what
// `CZEL_String::ToUnsigned(10)` reads from the tag on its own, up to a 0
// byte inside it included. A number too large reads as the largest u64,
// and every number is then cut to the kind's width.
void CZEL_IpAddress::DataCopy(CZEL_String const& text) {
  SetToInvalid();
  char const* const chars = text.GetStringC();
  u32 const length = text.GetLength();
  bool const v6 = std::memchr(chars, ':', length) != nullptr;
  u32 const count = v6 ? kMaxDigits : 4;
  u32 starts[kMaxDigits];
  if (!FindTags(chars, length, v6 ? ':' : '.', count, starts)) return;
  u32 const mask = v6 ? 0xFFFF : 0xFF;
  m_Kind = v6 ? IP_V6 : IP_V4;
  m_Digits.Create(count);
  for (u32 i = 0; i < count; ++i) {
    m_Digits.GetBuf()[i] = static_cast<u32>(std::strtoull(chars + starts[i], nullptr, 10)) & mask;
  }
}

void CZEL_IpAddress::SetToInvalid() {
  m_Kind = IP_INVALID;
  m_Digits.DeleteAll();
}
