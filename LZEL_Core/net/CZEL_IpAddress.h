// SPDX-License-Identifier: Apache-2.0
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
// `IsValid` and `GetKind` tell them apart.
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
// Beside that parser stands `ParseStandard`, which reads only the standard
// text forms and refuses everything else, and `ToStandardString`, which
// prints the canonical one; the two are each other's inverse:
//
//   CZEL_IpAddress c;
//   c.ParseStandard(CZEL_String("2001:DB8:0:0:1:0:0:1"));   // 1
//   c.ToStandardString();                   // "2001:db8::1:0:0:1"
//   c.ToString();                           // "2001:0DB8:0000:...:0001"
//   c.ParseStandard(CZEL_String("1.2.3.04"));                // 0, c stays
//
// Both forms hold a group as its value (0x2001 is the digit 8193), so that
// `GetDigit`, `ToString` and the stream form see the same address whichever
// parser made it.
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

  // Takes over `other`'s kind and digits without copying; `other` is left
  // invalid.
  CZEL_IpAddress(CZEL_IpAddress&& other) noexcept;

  // A copy of `other`; returns this address.
  CZEL_IpAddress& operator=(CZEL_IpAddress const& other);

  // Takes over `other`'s kind and digits; `other` is left invalid. Moving an
  // address onto itself keeps it. Returns this address.
  CZEL_IpAddress& operator=(CZEL_IpAddress&& other) noexcept;

  // Exchanges the kinds and digits of the two addresses, without copying.
  void Swap(CZEL_IpAddress& other) noexcept;

  // `a.Swap(b)`, found by argument-dependent lookup, so that `std::swap` and
  // the standard algorithms exchange addresses without copying.
  friend void swap(CZEL_IpAddress& a, CZEL_IpAddress& b) noexcept { a.Swap(b); }

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
  // invalid address. Digits are printed as the address holds them, which
  // matters only for what the stream form can deliver: a digit above the
  // kind's range prints in full (through "%d" for IPv4, so one above
  // 2147483647 prints negative), a digit missing from a short list prints
  // as 0, and digits past the fourth or eighth are left out.
  CZEL_String ToString() const;

  // 1 if the address is IPv4 or IPv6, 0 if it is invalid.
  ZEL::u8 IsValid() const;

  // The kind's number: `IP_V4` 0, `IP_V6` 1, `IP_INVALID` 65535.
  ZEL::u32 GetKind() const;

  // Reads the standard text forms and returns 1, or returns 0 and leaves
  // this address as it was. IPv4 is dotted decimal: exactly four parts of
  // 0 to 255, no part empty, no sign, no blank, and no leading zero ("0" is
  // a part, "01" is refused). IPv6 is eight groups of 1 to 4 hexadecimal
  // digits of either case joined by ':'; one "::" at most stands for one or
  // more zero groups ("::", "::1", "fe80::", "1:2:3:4::5:6:7"), and the last
  // two groups may be written as a dotted IPv4 tail ("::ffff:192.0.2.1").
  // Zone indices ("fe80::1%eth0"), brackets, prefixes and ports are
  // refused. Accepts and refuses exactly as the C library's `inet_pton` of
  // the matching family, with the same value, for text without 0 bytes;
  // a 0 byte anywhere refuses.
  ZEL::u8 ParseStandard(CZEL_String const& text);

  // The canonical text form: IPv4 dotted decimal ("192.0.2.1"); IPv6 in
  // lower-case hexadecimal without leading zeros, the longest run of two or
  // more zero groups written "::" (the first of equal runs, a lone zero
  // group written "0"): "2001:db8::1", "2001:db8:0:1:1:1:1:1", "::". Every
  // IPv6 address prints in hexadecimal groups, an IPv4-mapped one too
  // ("::ffff:c000:201", where `inet_ntop` writes "::ffff:192.0.2.1").
  // `ParseStandard` reads the result back to the same address. An invalid
  // address gives "". A digit that only the stream form can deliver prints
  // cut to the kind's width (8 or 16 bits), and a missing one as 0.
  CZEL_String ToStandardString() const;

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

  // The parser: takes `text` as the class comment describes; text that
  // doesn't count out leaves this address invalid, whatever it held.
  void DataCopy(CZEL_String const& text);

  // Kind `IP_INVALID`, no digits.
  void SetToInvalid();

  // One of `t_IpKind`.
  ZEL::u32 m_Kind;
  // 4 digits for IPv4, 8 for IPv6, none when invalid; one number per u32.
  CZEL_Uint32Vector m_Digits;
};

#endif  // LZEL_CORE_NET_CZEL_IP_ADDRESS_H_
