// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Int32Size.h
// -----------------------------------------------------------------------------
//
// `CZEL_Int32Size` is the size of `int` extents: a `CZEL_Size<int>` with all of
// the template's operations, and the constructors and assignments that every
// named geometry class repeats, described in
// <LZEL_Core/geometry/ZEL_NamedGeometry.h>. Results of the template's
// operations are `CZEL_Size<int>` values, which assign to it.
//
//   CZEL_Int32Size s(640, 480);
//   s -= CZEL_Int32Size(700, 0);           // -60 by 480: no sign check

#ifndef LZEL_CORE_GEOMETRY_CZEL_INT32_SIZE_H_
#define LZEL_CORE_GEOMETRY_CZEL_INT32_SIZE_H_

#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/geometry/ZEL_GeometryExterns.h>
#include <LZEL_Core/geometry/ZEL_NamedGeometry.h>

class ZEL_API CZEL_Int32Size : public CZEL_Size<int> {
  ZEL_NAMED_PAIR_MEMBERS(CZEL_Int32Size, CZEL_Size<int>, int)
};

#endif  // LZEL_CORE_GEOMETRY_CZEL_INT32_SIZE_H_
