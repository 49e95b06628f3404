// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Int32Point.h
// -----------------------------------------------------------------------------
//
// `CZEL_Int32Point` is the point of `int` coordinates: a `CZEL_Point<int>` with
// all of the template's operations, and the constructors and assignments that
// every named geometry class repeats, described in
// <LZEL_Core/geometry/ZEL_NamedGeometry.h>. Results of the template's
// operations are `CZEL_Point<int>` values, which assign to it.
//
//   CZEL_Int32Point p(3, 4);
//   p = p - CZEL_Int32Point(1, 1);        // (2, 3)
//   p += CZEL_Int32Point(INT_MAX, 0);     // x wraps: INT_MIN + 1

#ifndef LZEL_CORE_GEOMETRY_CZEL_INT32_POINT_H_
#define LZEL_CORE_GEOMETRY_CZEL_INT32_POINT_H_

#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/geometry/ZEL_GeometryExterns.h>
#include <LZEL_Core/geometry/ZEL_NamedGeometry.h>

class ZEL_API CZEL_Int32Point : public CZEL_Point<int> {
  ZEL_NAMED_PAIR_MEMBERS(CZEL_Int32Point, CZEL_Point<int>, int)
};

#endif  // LZEL_CORE_GEOMETRY_CZEL_INT32_POINT_H_
