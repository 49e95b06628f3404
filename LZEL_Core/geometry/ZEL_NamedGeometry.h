// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: ZEL_NamedGeometry.h
// -----------------------------------------------------------------------------
//
// The members that every named geometry class repeats. A named class
// (`CZEL_Int32Point`, `CZEL_DoubleRect`, ...) fixes the coordinate type of a
// template, adds no data and forwards its constructors and assignments to
// the template. Its operations are the template's, so the results of sums,
// differences and the combining operations of rectangles are of the template
// type; a named object takes them by assignment (and a named rectangle by
// construction too):
//
//   CZEL_Int32Point p(1, 2);
//   p = p + CZEL_Int32Point(3, 4);                  // (4, 6)
//   CZEL_Int32Rect r = CZEL_Int32Rect(0, 0, 4, 4) & CZEL_Int32Rect(2, 2, 8, 8);
//
// The members of a named point or size class `N` over the template `Base`
// with coordinates `T`:
//
//   N(), N(T const&, T const&), N(N const&)
//       (0, 0); the two coordinates or extents; a copy.
//   operator=(N const&), operator=(Base const&)
//       A copy; returns this object.
//
// The members of a named rectangle class `N` with coordinates `T`:
//
//   N(), N(left, top, right, bottom), N(topLeft, bottomRight),
//   N(topLeft, size), N(N const&), N(CZEL_Rect<T> const&)
//       As the constructors of `CZEL_Rect<T>`; the last two copy.
//   operator=(N const&), operator=(CZEL_Rect<T> const&)
//       A copy; returns this object.
//
// The class body holds the declaring macro, a source file the defining one:
//
//   // CZEL_Int32Point.h
//   class ZEL_API CZEL_Int32Point : public CZEL_Point<int> {
//     ZEL_NAMED_PAIR_MEMBERS(CZEL_Int32Point, CZEL_Point<int>, int)
//   };
//
//   // CZEL_Int32Point.cpp
//   ZEL_NAMED_PAIR_DEFINITIONS(CZEL_Int32Point, CZEL_Point<int>, int)

#ifndef LZEL_CORE_GEOMETRY_ZEL_NAMED_GEOMETRY_H_
#define LZEL_CORE_GEOMETRY_ZEL_NAMED_GEOMETRY_H_

#include <LZEL_Core/geometry/CZEL_Point.h>
#include <LZEL_Core/geometry/CZEL_Rect.h>
#include <LZEL_Core/geometry/CZEL_Size.h>

// Declares the members of named point or size class N over Base, of T.
#define ZEL_NAMED_PAIR_MEMBERS(N, Base, T) \
 public:                                   \
  N();                                     \
  N(T const& first, T const& second);      \
  N(N const& src);                         \
  N& operator=(N const& src);              \
  N& operator=(Base const& src);

// Defines them.
#define ZEL_NAMED_PAIR_DEFINITIONS(N, Base, T)                   \
  N::N() : Base() {}                                             \
  N::N(T const& first, T const& second) : Base(first, second) {} \
  N::N(N const& src) : Base(src) {}                              \
  N& N::operator=(N const& src) {                                \
    Base::operator=(src);                                        \
    return *this;                                                \
  }                                                              \
  N& N::operator=(Base const& src) {                             \
    Base::operator=(src);                                        \
    return *this;                                                \
  }

// Declares the members of named rectangle class N of T.
#define ZEL_NAMED_RECT_MEMBERS(N, T)                                 \
 public:                                                             \
  N();                                                               \
  N(T left, T top, T right, T bottom);                               \
  N(CZEL_Point<T> const& topLeft, CZEL_Point<T> const& bottomRight); \
  N(CZEL_Point<T> const& topLeft, CZEL_Size<T> const& size);         \
  N(N const& src);                                                   \
  N(CZEL_Rect<T> const& src);                                        \
  N& operator=(N const& src);                                        \
  N& operator=(CZEL_Rect<T> const& src);

// Defines them.
#define ZEL_NAMED_RECT_DEFINITIONS(N, T)                                                        \
  N::N() : CZEL_Rect<T>() {}                                                                    \
  N::N(T left, T top, T right, T bottom) : CZEL_Rect<T>(left, top, right, bottom) {}            \
  N::N(CZEL_Point<T> const& topLeft, CZEL_Point<T> const& bottomRight)                          \
      : CZEL_Rect<T>(topLeft, bottomRight) {}                                                   \
  N::N(CZEL_Point<T> const& topLeft, CZEL_Size<T> const& size) : CZEL_Rect<T>(topLeft, size) {} \
  N::N(N const& src) : CZEL_Rect<T>(src) {}                                                     \
  N::N(CZEL_Rect<T> const& src) : CZEL_Rect<T>(src) {}                                          \
  N& N::operator=(N const& src) {                                                               \
    CZEL_Rect<T>::operator=(src);                                                               \
    return *this;                                                                               \
  }                                                                                             \
  N& N::operator=(CZEL_Rect<T> const& src) {                                                    \
    CZEL_Rect<T>::operator=(src);                                                               \
    return *this;                                                                               \
  }

#endif  // LZEL_CORE_GEOMETRY_ZEL_NAMED_GEOMETRY_H_
