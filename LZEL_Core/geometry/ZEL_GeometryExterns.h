// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: ZEL_GeometryExterns.h
// -----------------------------------------------------------------------------
//
// The geometry templates with `extern template` declarations for their two
// coordinate types. Their code is instantiated once, in the library, and
// exported from it; a program that includes this header (directly or
// through any named geometry class) links against those instances instead
// of compiling its own.
//
// `ZEL_GEOMETRY_COORDINATES(X)` is the one list of coordinate types: it
// expands to X(type) once for `int` and once for `double`. It serves here
// for the declarations and in ZEL_GeometryInstances.cpp for the
// instantiations.

#ifndef LZEL_CORE_GEOMETRY_ZEL_GEOMETRY_EXTERNS_H_
#define LZEL_CORE_GEOMETRY_ZEL_GEOMETRY_EXTERNS_H_

#include <LZEL_Core/geometry/CZEL_Point.h>
#include <LZEL_Core/geometry/CZEL_Rect.h>
#include <LZEL_Core/geometry/CZEL_Size.h>

#define ZEL_GEOMETRY_COORDINATES(X) \
  X(int)                            \
  X(double)

#define ZEL_EXTERN_GEOMETRY(T)             \
  ZEL_EXTERN_TEMPLATE(class CZEL_Point<T>) \
  ZEL_EXTERN_TEMPLATE(class CZEL_Size<T>)  \
  ZEL_EXTERN_TEMPLATE(class CZEL_Rect<T>)

ZEL_GEOMETRY_COORDINATES(ZEL_EXTERN_GEOMETRY)

#undef ZEL_EXTERN_GEOMETRY

#endif  // LZEL_CORE_GEOMETRY_ZEL_GEOMETRY_EXTERNS_H_
