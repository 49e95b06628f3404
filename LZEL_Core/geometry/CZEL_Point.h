// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Point.h
// -----------------------------------------------------------------------------
//
// `CZEL_Point<T>` is a plain pair of coordinates, x and y, for `T` of `int`
// or `double`; the named classes `CZEL_Int32Point` and `CZEL_DoublePoint`
// fix the type. A point has no failure modes: nothing throws, nothing
// clamps, and `int` sums and differences wrap in 32 bits.
//
//   CZEL_Point<int> a(3, 4);
//   CZEL_Point<int> b = a - CZEL_Point<int>(1, 1);   // (2, 3); a stays
//   a += b;                                          // (5, 7); returns nothing
//   ZEL::u8 same = (a == b);                         // 0
//
// The pair operations work within one template only: a point and a size
// (<LZEL_Core/geometry/CZEL_Size.h>) don't add. Equality of the `double`
// form is exact, with no tolerance, so a NaN makes a point unequal even to
// itself.
//
// The library holds the instances for `int` and `double`; use this header
// through <LZEL_Core/geometry/ZEL_GeometryExterns.h> or a named class, so
// that a program links against them.

#ifndef LZEL_CORE_GEOMETRY_CZEL_POINT_H_
#define LZEL_CORE_GEOMETRY_CZEL_POINT_H_

#include <LZEL_Core/frame/CZEL_Object.h>
#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/geometry/ZEL_Coordinate.h>

template <typename T>
class ZEL_TEMPLATE_API CZEL_Point : public CZEL_Object {
 public:
  // (0, 0).
  CZEL_Point();

  // (x, y).
  CZEL_Point(T const& x, T const& y);

  // A copy of `src`.
  CZEL_Point(CZEL_Point<T> const& src);

  // A copy of `src`; returns this point.
  CZEL_Point<T>& operator=(CZEL_Point<T> const& src);

  // The horizontal and the vertical coordinate.
  T GetX() const;
  T GetY() const;

  // Sets one coordinate.
  void SetX(T const& x);
  void SetY(T const& y);

  // Sets both coordinates; returns this point.
  CZEL_Point<T>& Set(T const& x, T const& y);

  // A new point, the sum or the difference (this minus `other`) per
  // coordinate; this point stays as it is.
  CZEL_Point<T> operator+(CZEL_Point<T> const& other) const;
  CZEL_Point<T> operator-(CZEL_Point<T> const& other) const;

  // Adds or subtracts `other` per coordinate. Returns nothing, unlike the
  // assignment.
  void operator+=(CZEL_Point<T> const& other);
  void operator-=(CZEL_Point<T> const& other);

  // 1 if both coordinates are equal, x compared first; exact for `double`.
  ZEL::u8 operator==(CZEL_Point<T> const& other) const;

  // The negation of `operator==`.
  ZEL::u8 operator!=(CZEL_Point<T> const& other) const;

 protected:
  // Copies both coordinates of `src`, which may be this point.
  void DataCopy(CZEL_Point<T> const& src);

  // The horizontal coordinate.
  T m_X;
  // The vertical coordinate.
  T m_Y;
};

// -----------------------------------------------------------------------------
// Implementation
// -----------------------------------------------------------------------------

template <typename T>
CZEL_Point<T>::CZEL_Point() : m_X(0), m_Y(0) {}

template <typename T>
CZEL_Point<T>::CZEL_Point(T const& x, T const& y) : m_X(x), m_Y(y) {}

template <typename T>
CZEL_Point<T>::CZEL_Point(CZEL_Point<T> const& src) : CZEL_Object(src), m_X(0), m_Y(0) {
  DataCopy(src);
}

template <typename T>
CZEL_Point<T>& CZEL_Point<T>::operator=(CZEL_Point<T> const& src) {
  DataCopy(src);
  return *this;
}

template <typename T>
T CZEL_Point<T>::GetX() const {
  return m_X;
}

template <typename T>
T CZEL_Point<T>::GetY() const {
  return m_Y;
}

template <typename T>
void CZEL_Point<T>::SetX(T const& x) {
  m_X = x;
}

template <typename T>
void CZEL_Point<T>::SetY(T const& y) {
  m_Y = y;
}

template <typename T>
CZEL_Point<T>& CZEL_Point<T>::Set(T const& x, T const& y) {
  m_X = x;
  m_Y = y;
  return *this;
}

template <typename T>
CZEL_Point<T> CZEL_Point<T>::operator+(CZEL_Point<T> const& other) const {
  return CZEL_Point<T>(ZEL::CoordinateSum(m_X, other.m_X), ZEL::CoordinateSum(m_Y, other.m_Y));
}

template <typename T>
CZEL_Point<T> CZEL_Point<T>::operator-(CZEL_Point<T> const& other) const {
  return CZEL_Point<T>(ZEL::CoordinateDifference(m_X, other.m_X),
                       ZEL::CoordinateDifference(m_Y, other.m_Y));
}

template <typename T>
void CZEL_Point<T>::operator+=(CZEL_Point<T> const& other) {
  *this = *this + other;
}

template <typename T>
void CZEL_Point<T>::operator-=(CZEL_Point<T> const& other) {
  *this = *this - other;
}

template <typename T>
ZEL::u8 CZEL_Point<T>::operator==(CZEL_Point<T> const& other) const {
  return m_X == other.m_X && m_Y == other.m_Y;
}

template <typename T>
ZEL::u8 CZEL_Point<T>::operator!=(CZEL_Point<T> const& other) const {
  return !(*this == other);
}

template <typename T>
void CZEL_Point<T>::DataCopy(CZEL_Point<T> const& src) {
  m_X = src.m_X;
  m_Y = src.m_Y;
}

#endif  // LZEL_CORE_GEOMETRY_CZEL_POINT_H_
