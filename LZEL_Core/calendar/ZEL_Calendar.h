// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: ZEL_Calendar.h
// -----------------------------------------------------------------------------
//
// Dates in five calendars and times of day in one include.

#ifndef LZEL_CORE_CALENDAR_ZEL_CALENDAR_H_
#define LZEL_CORE_CALENDAR_ZEL_CALENDAR_H_

#include <LZEL_Core/calendar/CZEL_Date.h>
#include <LZEL_Core/calendar/CZEL_Time.h>

#endif  // LZEL_CORE_CALENDAR_ZEL_CALENDAR_H_
