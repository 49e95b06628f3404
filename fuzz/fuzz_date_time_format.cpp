// SPDX-License-Identifier: Apache-2.0
// Feeds arbitrary format strings, zeros included, with arbitrary dates and
// times to CZEL_Date::ToString and CZEL_Time::ToString. The first 13 bytes
// choose the date's day number (valid or not), the calendar (known or not)
// and the time's milliseconds (valid or not); the rest is the format. Beside
// memory and undefined-behaviour faults, it checks what holds for every
// input: a format without `%` comes back as it is, no field grows the text
// by more than a signed int's digits, and a valid day number read in the
// Gregorian calendar converts back to itself.

#include <LZEL_Core/calendar/CZEL_Date.h>
#include <LZEL_Core/calendar/CZEL_Time.h>

#include "FuzzSupport.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

using zel_fuzz::Require;
using zel_fuzz::Text;

namespace {

constexpr std::size_t kHeader = 13;
constexpr ZEL::i64 kFirstValidDay = -784350574879;
constexpr ZEL::u64 kValidDays = 784354017364 - kFirstValidDay + 1;

// A date and a time whose fields the target sets as they stand.
class FuzzDate : public CZEL_Date {
 public:
  explicit FuzzDate(ZEL::i64 day) { m_JulianDay = day; }
};

class FuzzTime : public CZEL_Time {
 public:
  explicit FuzzTime(int msecs) { m_Msecs = msecs; }
};

// The longest expansion of one field, "-2147483648", less the two
// characters of the field itself.
constexpr std::size_t kMaxGrowth = 9;

void CheckFormat(CZEL_String const& format, CZEL_String const& result) {
  std::string const in = Text(format);
  std::string const out = Text(result);
  Require(out.size() <= in.size() + kMaxGrowth * in.size());
  if (in.find('%') == std::string::npos) Require(out == in);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  if (size < kHeader || size > 1u << 16) return 0;
  ZEL::u64 rawDay = 0;
  std::memcpy(&rawDay, data, sizeof rawDay);
  auto const calendar = static_cast<CZEL_Date::t_Calendar>(data[8] % 7);
  ZEL::u32 rawMsecs = 0;
  std::memcpy(&rawMsecs, data + 9, sizeof rawMsecs);
  CZEL_String const format(reinterpret_cast<char const*>(data + kHeader),
                           static_cast<ZEL::u32>(size - kHeader));

  // Half the inputs take a day number in the valid range, the others any.
  ZEL::i64 const day = (rawDay & 1) != 0
                           ? kFirstValidDay + static_cast<ZEL::i64>((rawDay >> 1) % kValidDays)
                           : static_cast<ZEL::i64>(rawDay);
  FuzzDate const date(day);
  CheckFormat(format, date.ToString(format, calendar));

  FuzzTime const time(static_cast<int>(rawMsecs % 2 != 0 ? rawMsecs % 86400000 : rawMsecs));
  CheckFormat(format, time.ToString(format));

  if (date.IsValid()) {
    CZEL_Date::t_Date_Struct s{};
    Require(date.GetDateStruct(s, CZEL_Date::Calendar_Gregorian) == 0);
    Require(CZEL_Date(s.year, s.month, s.day, CZEL_Date::Calendar_Gregorian) == date);
  }
  return 0;
}
