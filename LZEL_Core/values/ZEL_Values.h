// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: ZEL_Values.h
// -----------------------------------------------------------------------------
//
// The bit-level and arithmetic value types in one include.

#ifndef LZEL_CORE_VALUES_ZEL_VALUES_H_
#define LZEL_CORE_VALUES_ZEL_VALUES_H_

#include <LZEL_Core/values/CZEL_BitSet.h>
#include <LZEL_Core/values/CZEL_Register.h>
#include <LZEL_Core/values/CZEL_Crc.h>
#include <LZEL_Core/values/CZEL_DecimalNumber.h>

#endif  // LZEL_CORE_VALUES_ZEL_VALUES_H_
