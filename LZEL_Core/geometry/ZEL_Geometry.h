// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: ZEL_Geometry.h
// -----------------------------------------------------------------------------
//
// Points, sizes, rectangles and colours in one include.

#ifndef LZEL_CORE_GEOMETRY_ZEL_GEOMETRY_H_
#define LZEL_CORE_GEOMETRY_ZEL_GEOMETRY_H_

#include <LZEL_Core/geometry/CZEL_Color.h>
#include <LZEL_Core/geometry/CZEL_DoublePoint.h>
#include <LZEL_Core/geometry/CZEL_DoubleRect.h>
#include <LZEL_Core/geometry/CZEL_DoubleSize.h>
#include <LZEL_Core/geometry/CZEL_Int32Point.h>
#include <LZEL_Core/geometry/CZEL_Int32Rect.h>
#include <LZEL_Core/geometry/CZEL_Int32Size.h>
#include <LZEL_Core/geometry/ZEL_GeometryExterns.h>

#endif  // LZEL_CORE_GEOMETRY_ZEL_GEOMETRY_H_
