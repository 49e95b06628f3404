// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_DoubleRect.h
// -----------------------------------------------------------------------------
//
// `CZEL_DoubleRect` is the rectangle of `double` edges: a `CZEL_Rect<double>`
// with all of the template's operations, and the constructors and assignments
// that every named geometry class repeats, described in
// <LZEL_Core/geometry/ZEL_NamedGeometry.h>. Results of the template's
// operations are `CZEL_Rect<double>` values, which assign to it.
//
//   CZEL_DoubleRect r(0.0, 0.0, 1.0, 3.0);
//   r.GetCenter();                         // (0.5, 1.5)
//   r.IsInside(std::nan(""), 9.0, 1);     // 0: y is outside, a NaN x is not

#ifndef LZEL_CORE_GEOMETRY_CZEL_DOUBLE_RECT_H_
#define LZEL_CORE_GEOMETRY_CZEL_DOUBLE_RECT_H_

#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/geometry/ZEL_GeometryExterns.h>
#include <LZEL_Core/geometry/ZEL_NamedGeometry.h>

class ZEL_API CZEL_DoubleRect : public CZEL_Rect<double> {
  ZEL_NAMED_RECT_MEMBERS(CZEL_DoubleRect, double)
};

#endif  // LZEL_CORE_GEOMETRY_CZEL_DOUBLE_RECT_H_
