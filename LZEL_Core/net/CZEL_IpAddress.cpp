// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/net/CZEL_IpAddress.h>

#include <cstdlib>
#include <cstring>
#include <utility>

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

// The number that `strtoull(text, nullptr, 10)` reads. A run of decimal
// digits at the very start, too short to overflow, is read here directly;
// anything else (blanks, a sign, no digit, a long run) goes to `strtoull`.
ZEL::u64 ReadNumber(char const* text) {
  constexpr int kSafeDigits = 19;
  ZEL::u64 value = 0;
  int count = 0;
  for (; count < kSafeDigits && text[count] >= '0' && text[count] <= '9'; ++count) {
    value = value * 10 + static_cast<ZEL::u64>(text[count] - '0');
  }
  bool const done = count > 0 && !(text[count] >= '0' && text[count] <= '9');
  return done ? value : std::strtoull(text, nullptr, 10);
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

// Writes `value` in hexadecimal from `alphabet` ("0123456789ABCDEF" or
// lower case), at least `places` places, as "%04X" or "%x" do; returns the
// end of the text written.
char* AppendHex(char* out, u32 value, u32 places, char const* alphabet) {
  char digits[8];
  u32 count = 0;
  do {
    digits[count++] = alphabet[value & 15];
    value >>= 4;
  } while (value != 0);
  while (count < places) digits[count++] = '0';
  while (count != 0) *out++ = digits[--count];
  return out;
}

// The value of the hexadecimal digit `c`, or -1.
int HexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

// Reads dotted decimal that fills [text, end) exactly: four parts of one to
// three decimal digits, each at most 255 and without a leading zero, into
// `parts`. Returns whether it did.
bool ReadDotted(char const* text, char const* end, u32* parts) {
  for (u32 i = 0; i < 4; ++i) {
    if (i != 0 && (text == end || *text++ != '.')) return false;
    char const* const start = text;
    u32 value = 0;
    for (; text != end && text - start < 3 && *text >= '0' && *text <= '9'; ++text)
      value = value * 10 + static_cast<u32>(*text - '0');
    if (text == start || value > 255 || (*start == '0' && text - start > 1)) return false;
    parts[i] = value;
  }
  return text == end;
}

// Reads IPv6 text that fills [text, end) exactly into eight `groups`:
// groups of one to four hexadecimal digits joined by ':', at most one "::"
// for one or more zero groups, and a dotted tail for the last two groups.
// Returns whether it did.
bool ReadGroups(char const* text, char const* end, u32* groups) {
  u32 count = 0;
  u32 gap = kMaxDigits + 1;  // where "::" stands, in groups; none yet
  if (end - text >= 2 && text[0] == ':' && text[1] == ':') {
    gap = 0;
    text += 2;
  }
  while (text != end) {
    char const* const start = text;
    u32 value = 0;
    for (; text != end && text - start < 4 && HexValue(*text) >= 0; ++text)
      value = value * 16 + static_cast<u32>(HexValue(*text));
    if (text != end && *text == '.') {  // the dotted tail ends the text
      u32 parts[4];
      if (count > kMaxDigits - 2 || !ReadDotted(start, end, parts)) return false;
      groups[count++] = parts[0] << 8 | parts[1];
      groups[count++] = parts[2] << 8 | parts[3];
      break;
    }
    if (text == start || count == kMaxDigits) return false;
    groups[count++] = value;
    if (text == end) break;
    if (*text++ != ':' || text == end) return false;
    if (*text != ':') continue;
    if (gap <= kMaxDigits) return false;
    gap = count;
    ++text;
  }
  if (gap > kMaxDigits) return count == kMaxDigits;
  if (count == kMaxDigits) return false;  // "::" stands for no group
  u32 const moved = count - gap;
  for (u32 i = 0; i < moved; ++i) groups[kMaxDigits - 1 - i] = groups[count - 1 - i];
  for (u32 i = gap; i < kMaxDigits - moved; ++i) groups[i] = 0;
  return true;
}

// Writes eight groups in the canonical form: lower-case hexadecimal without
// leading zeros, the first longest run of two or more zero groups as "::".
// Returns the end of the text written.
char* AppendGroups(char* out, u32 const* groups) {
  u32 best = kMaxDigits, bestLength = 1;
  for (u32 i = 0; i < kMaxDigits;) {
    u32 run = 0;
    while (i + run < kMaxDigits && groups[i + run] == 0) ++run;
    if (run > bestLength) {
      best = i;
      bestLength = run;
    }
    i += run == 0 ? 1 : run;
  }
  for (u32 i = 0; i < kMaxDigits;) {
    if (i == best) {
      *out++ = ':';
      *out++ = ':';
      i += bestLength;
      continue;
    }
    if (i != 0 && i != best + bestLength) *out++ = ':';
    out = AppendHex(out, groups[i++], 1, "0123456789abcdef");
  }
  return out;
}

// Digit `index` of `digits`, or 0 past their end.
u32 DigitAt(CZEL_Uint32Vector const& digits, u32 index) {
  return index < digits.GetLength() ? digits.GetBuf()[index] : 0;
}

// Gives `digits` the length `count`, keeping the buffer when it has it
// already; returns the buffer to fill.
u32* SizeDigits(CZEL_Uint32Vector& digits, u32 count) {
  if (digits.GetLength() != count) digits.Create(count);
  return digits.GetBuf();
}

}  // namespace

CZEL_IpAddress::CZEL_IpAddress() : m_Kind(IP_INVALID) {}

CZEL_IpAddress::CZEL_IpAddress(CZEL_String const& text) : m_Kind(IP_INVALID) { DataCopy(text); }

CZEL_IpAddress::CZEL_IpAddress(CZEL_IpAddress const& other)
    : CZEL_Object(other), m_Kind(IP_INVALID) {
  DataCopy(other);
}

CZEL_IpAddress::CZEL_IpAddress(CZEL_IpAddress&& other) noexcept
    : CZEL_Object(other), m_Kind(IP_INVALID) {
  Swap(other);
}

CZEL_IpAddress& CZEL_IpAddress::operator=(CZEL_IpAddress const& other) {
  DataCopy(other);
  return *this;
}

// The old address goes with the local that takes it over; moved onto itself,
// the address keeps its value.
CZEL_IpAddress& CZEL_IpAddress::operator=(CZEL_IpAddress&& other) noexcept {
  CZEL_IpAddress taken(std::move(other));
  Swap(taken);
  return *this;
}

void CZEL_IpAddress::Swap(CZEL_IpAddress& other) noexcept {
  std::swap(m_Kind, other.m_Kind);
  m_Digits.Swap(other.m_Digits);
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
    u32 const digit = DigitAt(m_Digits, i);
    if (i != 0) *out++ = v4 ? '.' : ':';
    out = v4 ? AppendDecimal(out, static_cast<int>(digit))
             : AppendHex(out, digit, 4, "0123456789ABCDEF");
  }
  return CZEL_String(text, static_cast<u32>(out - text));
}

u8 CZEL_IpAddress::IsValid() const { return m_Kind == IP_V4 || m_Kind == IP_V6; }

u32 CZEL_IpAddress::GetKind() const { return m_Kind; }

// The text is read into a local list first, so that a refusal leaves the
// address alone. Text with a ':' can only be IPv6 and text without one only
// IPv4, so the kind is chosen as the old parser chooses it.
u8 CZEL_IpAddress::ParseStandard(CZEL_String const& text) {
  char const* const chars = text.GetStringC();
  char const* const end = chars + text.GetLength();
  bool const v6 = std::memchr(chars, ':', text.GetLength()) != nullptr;
  u32 digits[kMaxDigits];
  if (!(v6 ? ReadGroups(chars, end, digits) : ReadDotted(chars, end, digits))) return 0;
  u32 const count = v6 ? kMaxDigits : 4;
  std::memcpy(SizeDigits(m_Digits, count), digits, count * sizeof(u32));
  m_Kind = v6 ? IP_V6 : IP_V4;
  return 1;
}

// Eight groups and seven separators take at most 39 bytes, four parts and
// three dots 15.
CZEL_String CZEL_IpAddress::ToStandardString() const {
  char text[kMaxDigits * 5];
  char* out = text;
  if (m_Kind == IP_V4) {
    for (u32 i = 0; i < 4; ++i) {
      if (i != 0) *out++ = '.';
      out = AppendDecimal(out, static_cast<int>(DigitAt(m_Digits, i) & 0xFF));
    }
  } else if (m_Kind == IP_V6) {
    u32 groups[kMaxDigits];
    for (u32 i = 0; i < kMaxDigits; ++i) groups[i] = DigitAt(m_Digits, i) & 0xFFFF;
    out = AppendGroups(out, groups);
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
// number, so reading from the tag's start gives exactly what
// `CZEL_String::ToUnsigned(10)` reads from the tag on its own, up to a 0
// byte inside it included. A number too large reads as the largest u64,
// and every number is then cut to the kind's width. The address becomes
// invalid before anything else when the tags don't count out; otherwise a
// digit list of the right length is kept and overwritten.
void CZEL_IpAddress::DataCopy(CZEL_String const& text) {
  char const* const chars = text.GetStringC();
  u32 const length = text.GetLength();
  bool const v6 = std::memchr(chars, ':', length) != nullptr;
  u32 const count = v6 ? kMaxDigits : 4;
  u32 starts[kMaxDigits];
  if (!FindTags(chars, length, v6 ? ':' : '.', count, starts)) {
    SetToInvalid();
    return;
  }
  u32 const mask = v6 ? 0xFFFF : 0xFF;
  u32* const digits = SizeDigits(m_Digits, count);
  m_Kind = v6 ? IP_V6 : IP_V4;
  for (u32 i = 0; i < count; ++i)
    digits[i] = static_cast<u32>(ReadNumber(chars + starts[i]) & mask);
}

void CZEL_IpAddress::SetToInvalid() {
  m_Kind = IP_INVALID;
  m_Digits.DeleteAll();
}
