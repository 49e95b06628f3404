// -----------------------------------------------------------------------------
// File: CZEL_IpAddress.h
// -----------------------------------------------------------------------------
//
// `CZEL_IpAddress` is a value class for one IPv4 or IPv6 address, held as a
// list of numbers that the class calls digits: four for IPv4 (the dotted
// parts), eight for IPv6 (the groups). It does no networking: it parses and
// prints text, compares, and reads and writes single digits.
//
//   CZEL_IpAddress a(CZEL_String("192.168.0.1"));
//   a.ToString();                             // "192.168.0.1"
//   a.GetDigit(1);                            // 168
//   CZEL_IpAddress b(CZEL_String("1:2:3:4:5:6:7:10"));
//   b.ToString();                             // "0001:0002:...:0007:000A"
//   a = CZEL_String("1.2.3");                 // invalid: ToString() is ""
//
// An address is valid (IPv4 or IPv6) or invalid, with no digits; an invalid
// address prints as the empty string and equals every other invalid one.
// There is no accessor for the kind: compare with a default address.
//
// The parser validates little, and callers rely on that:
//   - Text without a ':' is IPv4, and valid if the '.' separators cut it
//     into exactly 4 tags; text with a ':' anywhere is IPv6, and valid if the
//     ':' separators cut it into exactly 8 tags. Empty tags count, but an
//     empty tag after a final separator doesn't: "1..3.4", "...." and
//     "1.2.3.4." are valid IPv4, "..." is not.
//   - Each tag is read as a decimal number by `CZEL_String::ToUnsigned(10)`:
//     leading blanks and a sign are accepted, reading stops at the first
//     other character, no digit reads 0 (" 1.2x.3.4" is 1.2.3.4, "a.b.c.d"
//     0.0.0.0), and the number is cut to its low 8 (IPv4) or 16 (IPv6) bits:
//     "300.1.1.1" is 44.1.1.1, "-1.0.0.0" is 255.0.0.0.
//   - IPv6 groups are read in radix 10 but printed in radix 16, so printed
//     IPv6 text generally doesn't parse back to the same address ("000A"
//     reads 0). There is no shortened form ("::1" is invalid) and no dotted
//     tail; "1.2.3.4:80" is IPv6 text of 2 tags, and so invalid.
//   - A failed parse leaves the address invalid, whatever it held before.
//
// No operation throws, and none returns a code.

#ifndef LZEL_CORE_NET_CZEL_IP_ADDRESS_H_
#define LZEL_CORE_NET_CZEL_IP_ADDRESS_H_

#include <LZEL_Core/containers/CZEL_Uint32Vector.h>
#include <LZEL_Core/frame/CZEL_Object.h>
#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/text/CZEL_String.h>

// The stream in which an address travels as its kind and its digits.
class CZEL_Buffer;

class ZEL_API CZEL_IpAddress : public CZEL_Object {
 public:
  // The kinds of address. The values are those of the stream form.
  enum t_IpKind : ZEL::u32 {
    IP_V4 = 0,           // 4 digits, each from 0 to 255.
    IP_V6 = 1,           // 8 digits, each from 0 to 65535.
    IP_INVALID = 65535,  // No digits.
  };

  // An invalid address.
  CZEL_IpAddress();

  // The address that `text` parses to, or an invalid one.
  CZEL_IpAddress(CZEL_String const& text);

  // A copy of `other`.
  CZEL_IpAddress(CZEL_IpAddress const& other);

  // A copy of `other`; returns this address.
  CZEL_IpAddress& operator=(CZEL_IpAddress const& other);

  // The address that `text` parses to, or invalid; returns this address.
  CZEL_IpAddress& operator=(CZEL_String const& text);

  // 1 if the kinds and the digits are equal: two invalid addresses are
  // equal, an IPv4 and an IPv6 address never, whatever their numbers.
  ZEL::u8 operator==(CZEL_IpAddress const& other) const;

  // The negation of `operator==`.
  ZEL::u8 operator!=(CZEL_IpAddress const& other) const;

  // IPv4 as "%d.%d.%d.%d" ("192.168.0.1"); IPv6 as eight groups of
  // "%04X" joined by ':', upper-case hexadecimal, never shortened
  // ("000A:0014:001E:0028:0032:003C:0046:0050"); the empty string for an
  // invalid address. Digits are printed as the address holds them: one that
  // the stream form delivered above the kind's range prints in full, and a
  // digit missing from a short digit list prints as 0.
  CZEL_String ToString() const;

  // The low 8 bits of digit `index` (for IPv6 the low byte of the group:
  // 232 for a group of 1000), or 0 if `index` is not below the number of
  // digits.
  ZEL::u8 GetDigit(ZEL::u32 index) const;

  // Stores `value` in digit `index`, which clears the digit's upper bits, so
  // that an IPv6 group can only be set to 0 through 255. An `index` not
  // below the number of digits is ignored: an invalid address gets no
  // digits this way.
  void SetDigit(ZEL::u32 index, ZEL::u8 value);

  // The stream form: the kind's low 16 bits, the digit count and the digits.
  friend ZEL_API CZEL_Buffer& operator<<(CZEL_Buffer& buffer, CZEL_IpAddress const& address);
  friend ZEL_API CZEL_Buffer& operator>>(CZEL_Buffer& buffer, CZEL_IpAddress& address);

 protected:
  // Copies the kind and the digits of `other`, which may be this address.
  void DataCopy(CZEL_IpAddress const& other);

  // The parser: makes this address invalid, then takes `text` as the class
  // comment describes.
  void DataCopy(CZEL_String const& text);

  // Kind `IP_INVALID`, no digits.
  void SetToInvalid();

  // One of `t_IpKind`.
  ZEL::u32 m_Kind;
  // 4 digits for IPv4, 8 for IPv6, none when invalid; one number per u32.
  CZEL_Uint32Vector m_Digits;
};

#endif  // LZEL_CORE_NET_CZEL_IP_ADDRESS_H_
