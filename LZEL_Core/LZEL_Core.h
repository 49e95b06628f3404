// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: LZEL_Core.h
// -----------------------------------------------------------------------------
//
// The umbrella header of LZEL_Core: one include for the whole public surface.
//
//   #include <LZEL_Core/LZEL_Core.h>
//
// An application may instead include a single subsystem's header
// (<LZEL_Core/frame/ZEL_Frame.h>, <LZEL_Core/text/ZEL_Text.h>, ...) or a
// single class's header.

#ifndef LZEL_CORE_LZEL_CORE_H_
#define LZEL_CORE_LZEL_CORE_H_

#include <LZEL_Core/frame/ZEL_Frame.h>
#include <LZEL_Core/text/ZEL_Text.h>
#include <LZEL_Core/containers/ZEL_Containers.h>
#include <LZEL_Core/values/ZEL_Values.h>
#include <LZEL_Core/calendar/ZEL_Calendar.h>
#include <LZEL_Core/geometry/ZEL_Geometry.h>
#include <LZEL_Core/net/ZEL_Net.h>
#include <LZEL_Core/io/ZEL_Io.h>

#endif  // LZEL_CORE_LZEL_CORE_H_
