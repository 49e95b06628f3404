// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: ZEL_Std.h
// -----------------------------------------------------------------------------
//
// The bridge between LZEL_Core's value classes and the standard library, for
// applications that keep them in standard containers or print them to
// streams. It is opt-in: the umbrella header <LZEL_Core/LZEL_Core.h> does not
// include it, so code that needs neither hashing nor streams doesn't pay for
// <ostream> and <functional>.
//
//   #include <LZEL_Core/ZEL_Std.h>
//
//   std::unordered_map<CZEL_Date, int> visits;
//   visits[CZEL_Date(2024, 3, 20)] += 1;
//   std::unordered_set<CZEL_String> seen{CZEL_String("a"), CZEL_String("b")};
//   std::cout << CZEL_Time(9, 5, 3, 7) << '\n';           // "09:05:03.007"
//   std::string_view text = CZEL_String("label").View();  // no copy
//
// `std::hash` is specialised for `CZEL_String`, `CZEL_Date`, `CZEL_Time`,
// `CZEL_IpAddress`, `CZEL_BitSet` and `CZEL_DecimalNumber`. Each hash agrees
// with the class's own `operator==`: values that compare equal hash alike,
// also where equality is wider than the stored form (a string compares up to
// its first 0 byte, bit sets of different lengths compare as numbers, 1.10 at
// two places equals 1.1 at one). `operator<<` prints each of them in its
// usual text form, named below.
//
// The string's own bridge, `CZEL_String(std::string_view)` and
// `CZEL_String::View()`, is part of the class; this header includes it.

#ifndef LZEL_CORE_ZEL_STD_H_
#define LZEL_CORE_ZEL_STD_H_

#include <LZEL_Core/LZEL_Core.h>

#include <cstddef>
#include <cstring>
#include <functional>
#include <ostream>
#include <string_view>

namespace ZEL {
namespace internal {

// Mixes `value` into `seed`, as a 64-bit multiply-xorshift step.
inline std::size_t HashMix(std::size_t seed, u64 value) {
  u64 h = (static_cast<u64>(seed) ^ value) * 0x9E3779B97F4A7C15ull;
  h ^= h >> 29;
  return static_cast<std::size_t>(h);
}

// The NUL-terminated text of `s`: what the string's comparisons read.
inline std::string_view ComparedText(CZEL_String const& s) {
  char const* text = s.GetStringC();
  return text == nullptr ? std::string_view() : std::string_view(text, std::strlen(text));
}

}  // namespace internal
}  // namespace ZEL

namespace std {

// Hashes the text up to the first 0 byte, since comparisons stop there.
template <>
struct hash<CZEL_String> {
  // The hash of `s`.
  std::size_t operator()(CZEL_String const& s) const noexcept {
    return std::hash<std::string_view>()(ZEL::internal::ComparedText(s));
  }
};

// Hashes the day number; every null date hashes alike.
template <>
struct hash<CZEL_Date> {
  // The hash of `d`.
  std::size_t operator()(CZEL_Date const& d) const {
    if (d.IsNull()) return 0;
    return ZEL::internal::HashMix(1, static_cast<ZEL::u64>(CZEL_Date(2000, 1, 1).GetDaysTo(d)));
  }
};

// Hashes the milliseconds of the day; every null time hashes alike.
template <>
struct hash<CZEL_Time> {
  // The hash of `t`.
  std::size_t operator()(CZEL_Time const& t) const noexcept {
    ZEL::i64 const ms =
        ((static_cast<ZEL::i64>(t.GetHour()) * 60 + t.GetMinute()) * 60 + t.GetSecond()) * 1000 +
        t.GetMillisecond();
    return ZEL::internal::HashMix(2, static_cast<ZEL::u64>(ms));
  }
};

// Hashes the kind and the digits as `ToString` prints them.
template <>
struct hash<CZEL_IpAddress> {
  // The hash of `a`.
  std::size_t operator()(CZEL_IpAddress const& a) const {
    return std::hash<CZEL_String>()(a.ToString());
  }
};

// Hashes the numeric value's lowest word, tail included, and whether any
// higher word is set: equal numbers of any lengths agree on both.
template <>
struct hash<CZEL_BitSet> {
  // The hash of `b`.
  std::size_t operator()(CZEL_BitSet const& b) const {
    return ZEL::internal::HashMix(3, b.ToUnsigned());
  }
};

// Hashes the value taken to four places, where every fraction is exact, so
// that 1.1 at one place and 1.10 at two hash alike.
template <>
struct hash<CZEL_DecimalNumber> {
  // The hash of `n`.
  std::size_t operator()(CZEL_DecimalNumber const& n) const {
    CZEL_DecimalNumber at4(n);
    at4.ChangeNumDigits(4);
    std::size_t h = ZEL::internal::HashMix(4, at4.GetIntegral());
    h = ZEL::internal::HashMix(h, at4.GetDecimal());
    return ZEL::internal::HashMix(h, static_cast<ZEL::u64>(at4.GetSign() < 0));
  }
};

}  // namespace std

// Writes all `GetLength()` bytes of the string, zeros included.
inline std::ostream& operator<<(std::ostream& out, CZEL_String const& s) {
  return out.write(s.GetStringC(), static_cast<std::streamsize>(s.GetLength()));
}

// Writes the Gregorian date as `ToString("%Y-%M-%D")`: "2024-03-20",
// "-44-03-15"; a null date as "0-00-00".
inline std::ostream& operator<<(std::ostream& out, CZEL_Date const& d) {
  return out << d.ToString("%Y-%M-%D");
}

// Writes the time as `ToString("%H:%T:%S.%X")`: "09:05:03.007"; a null time
// as "00:00:00.000".
inline std::ostream& operator<<(std::ostream& out, CZEL_Time const& t) {
  return out << t.ToString("%H:%T:%S.%X");
}

// Writes `ToString()`: "192.168.0.1", IPv6 in eight upper-case groups, and
// nothing for an invalid address.
inline std::ostream& operator<<(std::ostream& out, CZEL_IpAddress const& a) {
  return out << a.ToString();
}

// Writes the bits in base 2, one digit per bit, most significant first and
// without separators: "1010" for a 4-bit set of 10; nothing for an empty set.
inline std::ostream& operator<<(std::ostream& out, CZEL_BitSet const& b) {
  return out << b.ToString(2, 0xFFFFFFFFu, ' ');
}

// Writes `ToString('.')`: "-19.99", "60.00".
inline std::ostream& operator<<(std::ostream& out, CZEL_DecimalNumber const& n) {
  return out << n.ToString('.');
}

#endif  // LZEL_CORE_ZEL_STD_H_
