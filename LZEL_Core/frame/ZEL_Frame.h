// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: ZEL_Frame.h
// -----------------------------------------------------------------------------
//
// The library frame in one include: the integer widths, the error codes, the
// root class `CZEL_Object`, the exception `CZEL_Exception`, and the bit and
// byte primitives of namespace `ZEL`, and the console dumper `CZEL_Dumper`
// and the lock `CZEL_Mutex` that stand beside the class tree.

#ifndef LZEL_CORE_FRAME_ZEL_FRAME_H_
#define LZEL_CORE_FRAME_ZEL_FRAME_H_

#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/frame/CZEL_Object.h>
#include <LZEL_Core/frame/CZEL_Exception.h>
#include <LZEL_Core/frame/ZEL_Primitives.h>
#include <LZEL_Core/frame/CZEL_Dumper.h>
#include <LZEL_Core/frame/CZEL_Mutex.h>

#endif  // LZEL_CORE_FRAME_ZEL_FRAME_H_
