// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_DoublePoint.h
// -----------------------------------------------------------------------------
//
// `CZEL_DoublePoint` is the point of `double` coordinates: a
// `CZEL_Point<double>` with all of the template's operations, and the
// constructors and assignments that every named geometry class repeats,
// described in <LZEL_Core/geometry/ZEL_NamedGeometry.h>. Results of the
// template's operations are `CZEL_Point<double>` values, which assign to it.
//
//   CZEL_DoublePoint p(0.1, 0.2);
//   p = p + CZEL_DoublePoint(0.2, 0.0);   // (0.1 + 0.2, 0.2)
//   p == CZEL_DoublePoint(0.3, 0.2);      // 0: equality is exact

#ifndef LZEL_CORE_GEOMETRY_CZEL_DOUBLE_POINT_H_
#define LZEL_CORE_GEOMETRY_CZEL_DOUBLE_POINT_H_

#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/geometry/ZEL_GeometryExterns.h>
#include <LZEL_Core/geometry/ZEL_NamedGeometry.h>

class ZEL_API CZEL_DoublePoint : public CZEL_Point<double> {
  ZEL_NAMED_PAIR_MEMBERS(CZEL_DoublePoint, CZEL_Point<double>, double)
};

#endif  // LZEL_CORE_GEOMETRY_CZEL_DOUBLE_POINT_H_
