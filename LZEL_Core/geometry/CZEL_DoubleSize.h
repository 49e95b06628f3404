// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_DoubleSize.h
// -----------------------------------------------------------------------------
//
// `CZEL_DoubleSize` is the size of `double` extents: a `CZEL_Size<double>` with
// all of the template's operations, and the constructors and assignments that
// every named geometry class repeats, described in
// <LZEL_Core/geometry/ZEL_NamedGeometry.h>. Results of the template's
// operations are `CZEL_Size<double>` values, which assign to it.
//
//   CZEL_DoubleSize s;                     // 0.0 by 0.0
//   s.Set(2.5, 1.0);

#ifndef LZEL_CORE_GEOMETRY_CZEL_DOUBLE_SIZE_H_
#define LZEL_CORE_GEOMETRY_CZEL_DOUBLE_SIZE_H_

#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/geometry/ZEL_GeometryExterns.h>
#include <LZEL_Core/geometry/ZEL_NamedGeometry.h>

class ZEL_API CZEL_DoubleSize : public CZEL_Size<double> {
  ZEL_NAMED_PAIR_MEMBERS(CZEL_DoubleSize, CZEL_Size<double>, double)
};

#endif  // LZEL_CORE_GEOMETRY_CZEL_DOUBLE_SIZE_H_
