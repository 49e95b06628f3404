// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: ZEL_CalendarSupport.h
// -----------------------------------------------------------------------------
//
// What `CZEL_Date` and `CZEL_Time` share, inside the library: the one reading
// of the local wall clock, and the expansion of `%` fields in their format
// strings. Applications use the classes' own members (`GetCurrentDate`,
// `GetCurrentTime`, `ToString`) instead.

#ifndef LZEL_CORE_CALENDAR_ZEL_CALENDAR_SUPPORT_H_
#define LZEL_CORE_CALENDAR_ZEL_CALENDAR_SUPPORT_H_

#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/platform/ZEL_Platform.h>
#include <LZEL_Core/text/CZEL_String.h>

#include <cstdio>
#include <string>

namespace ZEL {

// The local wall-clock time, Gregorian, to the millisecond, as the platform
// reads it.
using t_LocalClock = Platform::SClockReading;

// Reads the local clock. Every field is -1 if it can't be read, which makes
// the date and the time built from it null.
t_LocalClock ReadLocalClock();

// The room a field expansion may fill: any int in decimal with its sign.
constexpr int kFieldTextSize = 24;

// Writes `value` in decimal into `text` (kFieldTextSize bytes), with zeros
// in front up to `width` digits as "%0*d" gives them, and returns the length.
// Written by hand rather than by snprintf, since `Parse` writes every field
// it reads once more to check it.
inline int FormatFieldNumber(int value, int width, char* text) {
  char digits[kFieldTextSize];
  int count = 0;
  long long rest = value < 0 ? -static_cast<long long>(value) : value;
  do {
    digits[count++] = static_cast<char>('0' + rest % 10);
    rest /= 10;
  } while (rest != 0);
  int length = 0;
  if (value < 0) text[length++] = '-';
  while (length + count < width) text[length++] = '0';
  while (count > 0) text[length++] = digits[--count];
  text[length] = 0;
  return length;
}

// `format` with its `%` fields expanded. `expand(field, text)` writes the
// expansion of the field character `field` into `text` (kFieldTextSize bytes)
// and returns its length, or returns -1 for a character that names no field.
// `%%` gives a single `%`; an unknown field repeats the last expansion, or
// gives nothing before the first; a `%` at the end gives nothing. Every
// other character of the format, a 0 byte included, is copied.
template <typename Expand>
CZEL_String ExpandFormatFields(CZEL_String const& format, Expand&& expand) {
  char const* const text = format.GetStringC();
  u32 const length = format.GetLength();
  std::string result;
  result.reserve(length);
  char last[kFieldTextSize];
  int lastLength = 0;
  for (u32 pos = 0; pos < length; ++pos) {
    if (text[pos] != '%') {
      result += text[pos];
    } else if (++pos == length) {
      break;
    } else if (text[pos] == '%') {
      result += '%';
    } else {
      char field[kFieldTextSize];
      int const fieldLength = expand(text[pos], field);
      if (fieldLength >= 0) {
        std::string::traits_type::copy(last, field, static_cast<std::size_t>(fieldLength));
        lastLength = fieldLength;
      }
      result.append(last, static_cast<std::size_t>(lastLength));
    }
  }
  return CZEL_String(result.data(), static_cast<u32>(result.size()));
}

}  // namespace ZEL

#endif  // LZEL_CORE_CALENDAR_ZEL_CALENDAR_SUPPORT_H_
