// -----------------------------------------------------------------------------
// File: ZEL_Geometry.h
// -----------------------------------------------------------------------------
//
// Points, sizes, rectangles and colours in one include.

#ifndef LZEL_CORE_GEOMETRY_ZEL_GEOMETRY_H_
#define LZEL_CORE_GEOMETRY_ZEL_GEOMETRY_H_

#endif  // LZEL_CORE_GEOMETRY_ZEL_GEOMETRY_H_
