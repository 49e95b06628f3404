// SPDX-License-Identifier: Apache-2.0
// Feeds arbitrary texts and formats, zeros included, to CZEL_Date::Parse and
// CZEL_Time::Parse. The first two bytes choose the calendar (known or not)
// and where the format ends and the text begins. Beside memory and
// undefined-behaviour faults, it checks the model of reading: whatever
// parses is what ToString writes with the same format, and reads back to the
// same value; whatever fails leaves the value as it was.

#include <LZEL_Core/calendar/CZEL_Date.h>
#include <LZEL_Core/calendar/CZEL_Time.h>

#include "FuzzSupport.h"

#include <cstddef>
#include <cstdint>

using zel_fuzz::Require;
using zel_fuzz::Text;

namespace {

constexpr std::size_t kHeader = 2;

// The value `Parse` must leave alone when it fails.
CZEL_Date const kUntouchedDate(1999, 9, 9);
CZEL_Time const kUntouchedTime(1, 2, 3, 4);

void CheckDate(CZEL_String const& text, CZEL_String const& format, CZEL_Date::t_Calendar calendar) {
  CZEL_Date date = kUntouchedDate;
  if (date.Parse(text, format, calendar) != 0) {
    Require(date == kUntouchedDate);
    return;
  }
  CZEL_String const printed = date.ToString(format, calendar);
  Require(Text(printed) == Text(text));
  CZEL_Date again;
  Require(again.Parse(printed, format, calendar) == 0 && again == date);
}

void CheckTime(CZEL_String const& text, CZEL_String const& format) {
  CZEL_Time time = kUntouchedTime;
  if (time.Parse(text, format) != 0) {
    Require(time == kUntouchedTime);
    return;
  }
  CZEL_String const printed = time.ToString(format);
  Require(Text(printed) == Text(text));
  CZEL_Time again;
  Require(again.Parse(printed, format) == 0 && again == time);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  if (size < kHeader || size > 1u << 12) return 0;
  auto const calendar = static_cast<CZEL_Date::t_Calendar>(data[0] % 6);
  std::size_t const formatLength = data[1] % (size - kHeader + 1);
  auto const* const bytes = reinterpret_cast<char const*>(data + kHeader);
  CZEL_String const format(bytes, static_cast<ZEL::u32>(formatLength));
  CZEL_String const text(bytes + formatLength,
                         static_cast<ZEL::u32>(size - kHeader - formatLength));
  CheckDate(text, format, calendar);
  CheckTime(text, format);
  return 0;
}
