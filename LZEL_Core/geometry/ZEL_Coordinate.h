// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: ZEL_Coordinate.h
// -----------------------------------------------------------------------------
//
// The arithmetic of the geometry templates on their two coordinate types.
// `int` coordinates wrap in 32 bits, silently, as two's complement: the sum
// is taken on the unsigned bit patterns, so that an overflow is a defined
// wrap and never undefined behaviour. `double` coordinates follow the
// floating-point rules unchanged.
//
//   ZEL::CoordinateSum(INT_MAX, 1);   // INT_MIN
//   ZEL::CoordinateSum(0.5, 0.25);    // 0.75

#ifndef LZEL_CORE_GEOMETRY_ZEL_COORDINATE_H_
#define LZEL_CORE_GEOMETRY_ZEL_COORDINATE_H_

#include <LZEL_Core/frame/ZEL_Types.h>

namespace ZEL {

// a + b, wrapping in 32 bits.
inline int CoordinateSum(int a, int b) {
  return static_cast<int>(static_cast<u32>(a) + static_cast<u32>(b));
}

// a - b, wrapping in 32 bits.
inline int CoordinateDifference(int a, int b) {
  return static_cast<int>(static_cast<u32>(a) - static_cast<u32>(b));
}

// a + b.
inline double CoordinateSum(double a, double b) { return a + b; }

// a - b.
inline double CoordinateDifference(double a, double b) { return a - b; }

}  // namespace ZEL

#endif  // LZEL_CORE_GEOMETRY_ZEL_COORDINATE_H_
