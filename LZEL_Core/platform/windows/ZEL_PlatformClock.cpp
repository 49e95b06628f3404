// SPDX-License-Identifier: Apache-2.0
// The local clock on Windows: the system's local time, which it keeps to the
// millisecond.

#include <LZEL_Core/platform/ZEL_Platform.h>

#include <windows.h>

namespace ZEL {
namespace Platform {

bool ReadLocalClock(SClockReading& now) {
  SYSTEMTIME local{};
  GetLocalTime(&local);
  now = SClockReading{local.wYear,   local.wMonth,  local.wDay,         local.wHour,
                      local.wMinute, local.wSecond, local.wMilliseconds};
  return true;
}

}  // namespace Platform
}  // namespace ZEL
