// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/calendar/CZEL_Time.h>

#include <LZEL_Core/calendar/ZEL_CalendarFormat.h>
#include <LZEL_Core/calendar/ZEL_CalendarSupport.h>
#include <LZEL_Core/frame/ZEL_Errors.h>

using ZEL::i64;
using ZEL::u16;
using ZEL::u32;
using ZEL::u8;

namespace {

constexpr int kNullTime = -1;
constexpr int kMsecsPerDay = 86400000;

// The number fields of the format strings, read by `ToString` and `Parse`
// alike: the upper-case letter of a field pads with zeros, to three digits
// for the millisecond and to two for the others.
enum : u8 { kPartHour, kPartMinute, kPartSecond, kPartMillisecond };
constexpr ZEL::t_FormatField kTimeFieldTable[] = {
    {'h', kPartHour, 0, 2, 0},        {'H', kPartHour, 2, 2, 0},       {'t', kPartMinute, 0, 2, 0},
    {'T', kPartMinute, 2, 2, 0},      {'s', kPartSecond, 0, 2, 0},     {'S', kPartSecond, 2, 2, 0},
    {'x', kPartMillisecond, 0, 3, 0}, {'X', kPartMillisecond, 3, 3, 0}};
constexpr ZEL::t_FormatFields kTimeFields{kTimeFieldTable, 8};

// The text of a `ToString` field of `time`, or -1 for a character that
// names none.
int ExpandTimeField(char code, CZEL_Time::t_Date_Struct const& time, char* text) {
  ZEL::t_FormatField const* const field = kTimeFields.Find(code);
  if (field == nullptr) return -1;
  int const parts[] = {time.hour, time.minute, time.second, time.millisecond};
  return ZEL::FormatFieldNumber(parts[field->part], field->width, text);
}

}  // namespace

// -----------------------------------------------------------------------------
// Construction and setting
// -----------------------------------------------------------------------------

CZEL_Time::CZEL_Time() : m_Msecs(kNullTime) {}

CZEL_Time::CZEL_Time(int hour, int minute, int second, int millisecond) : m_Msecs(kNullTime) {
  Set(hour, minute, second, millisecond);
}

CZEL_Time::CZEL_Time(CZEL_Time const& src) : CZEL_Object(src), m_Msecs(kNullTime) { DataCopy(src); }

CZEL_Time::~CZEL_Time() = default;

CZEL_Time& CZEL_Time::operator=(CZEL_Time const& src) {
  DataCopy(src);
  return *this;
}

void CZEL_Time::DataCopy(CZEL_Time const& src) { m_Msecs = src.m_Msecs; }

u32 CZEL_Time::Set(int hour, int minute, int second, int millisecond) {
  m_Msecs = IsValid(hour, minute, second, millisecond)
                ? (minute * 60 + hour * 3600 + second) * 1000 + millisecond
                : kNullTime;
  return IsValid();
}

u32 CZEL_Time::Set(t_Date_Struct const& time) {
  return Set(time.hour, time.minute, time.second, time.millisecond);
}

CZEL_Time CZEL_Time::GetCurrentTime() {
  ZEL::t_LocalClock const now = ZEL::ReadLocalClock();
  return CZEL_Time(now.hour, now.minute, now.second, now.millisecond);
}

CZEL_Time& CZEL_Time::FromCurrentTime() { return *this = GetCurrentTime(); }

u8 CZEL_Time::IsValid(int hour, int minute, int second, int millisecond) {
  return hour >= 0 && hour <= 23 && minute >= 0 && minute <= 59 && second >= 0 && second <= 59 &&
                 millisecond >= 0 && millisecond <= 999
             ? 1
             : 0;
}

// -----------------------------------------------------------------------------
// Reading
// -----------------------------------------------------------------------------

u8 CZEL_Time::IsValid() const { return m_Msecs > -1 && m_Msecs < kMsecsPerDay ? 1 : 0; }

u8 CZEL_Time::IsNull() const { return IsValid() ? 0 : 1; }

int CZEL_Time::GetHour() const { return IsNull() ? -1 : m_Msecs / 3600000; }

int CZEL_Time::GetMinute() const { return IsNull() ? -1 : m_Msecs % 3600000 / 60000; }

int CZEL_Time::GetSecond() const { return IsNull() ? -1 : m_Msecs / 1000 % 60; }

int CZEL_Time::GetMillisecond() const { return IsNull() ? -1 : m_Msecs % 1000; }

u32 CZEL_Time::GetTimeStruct(t_Date_Struct& time) const {
  if (IsNull()) return ZEL_ERR_FAILED;
  time.hour = static_cast<u8>(GetHour());
  time.minute = static_cast<u8>(GetMinute());
  time.second = static_cast<u8>(GetSecond());
  time.millisecond = static_cast<u16>(GetMillisecond());
  return ZEL_ERR_NONE;
}

CZEL_String CZEL_Time::ToString(CZEL_String const& format) const {
  t_Date_Struct time{};  // Zeros for a null time.
  (void)GetTimeStruct(time);
  return ZEL::ExpandFormatFields(
      format, [&time](char field, char* text) { return ExpandTimeField(field, time, text); });
}

// The numbers are read first, the parts the format doesn't name being 0;
// the time they make must exist, and must write the text back exactly as
// `ToString` would.
u32 CZEL_Time::Parse(CZEL_String const& text, CZEL_String const& format) {
  ZEL::t_FormatValues read{};
  if (!ZEL::ReadFormatFields(text, format, kTimeFields, read)) return ZEL_ERR_BAD_FORMAT;
  auto part = [&read](u8 index) { return static_cast<int>(read.values[index]); };
  CZEL_Time parsed;
  if (!parsed.Set(part(kPartHour), part(kPartMinute), part(kPartSecond), part(kPartMillisecond))) {
    return ZEL_ERR_INVALID_ARGUMENT;
  }
  t_Date_Struct time{};
  (void)parsed.GetTimeStruct(time);
  auto const expand = [&time](char field, char* out) { return ExpandTimeField(field, time, out); };
  if (!ZEL::FormatWrites(format, expand, text)) return ZEL_ERR_BAD_FORMAT;
  m_Msecs = parsed.m_Msecs;
  return ZEL_ERR_NONE;
}

// -----------------------------------------------------------------------------
// Arithmetic
// -----------------------------------------------------------------------------

// A negative step first gains as many whole days as make the sum positive.
// The sums are taken in 64 bits: within the range of int they are the 32-bit
// sums, and beyond it they still give a time of the day.
CZEL_Time CZEL_Time::AddMilliseconds(int milliseconds) const {
  if (IsNull()) return CZEL_Time();
  i64 const n = milliseconds;
  i64 const days = n < 0 ? (kMsecsPerDay - n) / kMsecsPerDay : 0;
  CZEL_Time result;
  result.m_Msecs = static_cast<int>((m_Msecs + n + days * kMsecsPerDay) % kMsecsPerDay);
  return result;
}

CZEL_Time CZEL_Time::AddSeconds(int seconds) const {
  return AddMilliseconds(seconds % 86400 * 1000);
}

// The interface takes `other` by value in both differences.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
int CZEL_Time::MillisecondsTo(CZEL_Time other) const {
  if (IsNull() || other.IsNull()) return 0;
  return other.m_Msecs - m_Msecs;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param)
int CZEL_Time::SecondsTo(CZEL_Time other) const { return MillisecondsTo(other) / 1000; }

// -----------------------------------------------------------------------------
// Comparison
// -----------------------------------------------------------------------------

u8 CZEL_Time::operator==(CZEL_Time const& other) const { return SortCompare(*this, other) == 0; }
u8 CZEL_Time::operator!=(CZEL_Time const& other) const { return SortCompare(*this, other) != 0; }
u8 CZEL_Time::operator<(CZEL_Time const& other) const { return SortCompare(*this, other) < 0; }
u8 CZEL_Time::operator<=(CZEL_Time const& other) const { return SortCompare(*this, other) <= 0; }
u8 CZEL_Time::operator>(CZEL_Time const& other) const { return SortCompare(*this, other) > 0; }
u8 CZEL_Time::operator>=(CZEL_Time const& other) const { return SortCompare(*this, other) >= 0; }

signed char CZEL_Time::SortCompare(CZEL_Time const& a, CZEL_Time const& b) {
  if (a.m_Msecs == b.m_Msecs) return 0;
  return a.m_Msecs > b.m_Msecs ? 1 : -1;
}
