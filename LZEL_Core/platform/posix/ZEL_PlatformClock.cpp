// SPDX-License-Identifier: Apache-2.0
// The local clock on POSIX: the real-time clock for the instant, and the C
// library's local-time conversion (time zone and summer time included).

#include <LZEL_Core/platform/ZEL_Platform.h>

#include <ctime>

#include <time.h>

namespace ZEL {
namespace Platform {

bool ReadLocalClock(SClockReading& now) {
  timespec instant{};
  std::tm local{};
  if (clock_gettime(CLOCK_REALTIME, &instant) != 0 ||
      localtime_r(&instant.tv_sec, &local) == nullptr) {
    return false;
  }
  now = SClockReading{local.tm_year + 1900,
                      local.tm_mon + 1,
                      local.tm_mday,
                      local.tm_hour,
                      local.tm_min,
                      local.tm_sec,
                      static_cast<int>(instant.tv_nsec / 1000000)};
  return true;
}

}  // namespace Platform
}  // namespace ZEL
