// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: ZEL_Text.h
// -----------------------------------------------------------------------------
//
// The text subsystem in one include: the string class `CZEL_String` and the
// field-coded strings of `CZEL_Code`.

#ifndef LZEL_CORE_TEXT_ZEL_TEXT_H_
#define LZEL_CORE_TEXT_ZEL_TEXT_H_

#include <LZEL_Core/text/CZEL_Code.h>
#include <LZEL_Core/text/CZEL_String.h>

#endif  // LZEL_CORE_TEXT_ZEL_TEXT_H_
