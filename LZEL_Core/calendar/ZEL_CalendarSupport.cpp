#include <LZEL_Core/calendar/ZEL_CalendarSupport.h>
#include <LZEL_Core/platform/ZEL_Platform.h>

namespace ZEL {

// The platform's local clock; every field -1 when it can't be read.
t_LocalClock ReadLocalClock() {
  Platform::SClockReading now{};
  if (!Platform::ReadLocalClock(now)) return t_LocalClock{-1, -1, -1, -1, -1, -1, -1};
  return t_LocalClock{now.year,   now.month,  now.day,        now.hour,
                      now.minute, now.second, now.millisecond};
}

}  // namespace ZEL
