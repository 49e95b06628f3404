#include <LZEL_Core/calendar/ZEL_CalendarSupport.h>

#include <ctime>

#include <time.h>

namespace ZEL {

// The platform's local clock: the real-time clock for the instant, and the
// C library's local-time conversion (time zone and summer time included).
t_LocalClock ReadLocalClock() {
  timespec now{};
  std::tm local{};
  if (clock_gettime(CLOCK_REALTIME, &now) != 0 || localtime_r(&now.tv_sec, &local) == nullptr) {
    return t_LocalClock{-1, -1, -1, -1, -1, -1, -1};
  }
  return t_LocalClock{local.tm_year + 1900,
                      local.tm_mon + 1,
                      local.tm_mday,
                      local.tm_hour,
                      local.tm_min,
                      local.tm_sec,
                      static_cast<int>(now.tv_nsec / 1000000)};
}

}  // namespace ZEL
