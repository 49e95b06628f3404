// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/calendar/ZEL_CalendarSupport.h>

namespace ZEL {

// The platform's local clock; every field -1 when it can't be read.
t_LocalClock ReadLocalClock() {
  t_LocalClock now{};
  if (!Platform::ReadLocalClock(now)) return t_LocalClock{-1, -1, -1, -1, -1, -1, -1};
  return now;
}

}  // namespace ZEL
