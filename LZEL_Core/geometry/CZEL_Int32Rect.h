// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Int32Rect.h
// -----------------------------------------------------------------------------
//
// `CZEL_Int32Rect` is the rectangle of `int` edges: a `CZEL_Rect<int>` with all
// of the template's operations, and the constructors and assignments that every
// named geometry class repeats, described in
// <LZEL_Core/geometry/ZEL_NamedGeometry.h>. Results of the template's
// operations are `CZEL_Rect<int>` values, which assign to it.
//
//   CZEL_Int32Rect r(-3, 0, 0, 0);
//   r.GetCenter();                         // (-1, 0): truncated toward 0
//   CZEL_Int32Rect m = r | CZEL_Int32Rect(1, 1, 2, 2);   // (-3, 0, 2, 2)

#ifndef LZEL_CORE_GEOMETRY_CZEL_INT32_RECT_H_
#define LZEL_CORE_GEOMETRY_CZEL_INT32_RECT_H_

#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/geometry/ZEL_GeometryExterns.h>
#include <LZEL_Core/geometry/ZEL_NamedGeometry.h>

class ZEL_API CZEL_Int32Rect : public CZEL_Rect<int> {
  ZEL_NAMED_RECT_MEMBERS(CZEL_Int32Rect, int)
};

#endif  // LZEL_CORE_GEOMETRY_CZEL_INT32_RECT_H_
