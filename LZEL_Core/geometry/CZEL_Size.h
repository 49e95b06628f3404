// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Size.h
// -----------------------------------------------------------------------------
//
// `CZEL_Size<T>` is a plain pair of extents, width and height, for `T` of
// `int` or `double`; the named classes `CZEL_Int32Size` and
// `CZEL_DoubleSize` fix the type. A size has no sign restriction (a negative
// size is a legal value) and no failure modes: nothing throws, nothing
// clamps, and `int` sums and differences wrap in 32 bits.
//
//   CZEL_Size<double> size(2.0, 1.5);
//   size += CZEL_Size<double>(1.0, 1.0);   // 3.0 by 2.5; returns nothing
//   double area = size.GetWidth() * size.GetHeight();
//
// The pair operations work within one template only: a size and a point
// (<LZEL_Core/geometry/CZEL_Point.h>) don't add. Equality of the `double`
// form is exact, with no tolerance.
//
// The library holds the instances for `int` and `double`; use this header
// through <LZEL_Core/geometry/ZEL_GeometryExterns.h> or a named class, so
// that a program links against them.

#ifndef LZEL_CORE_GEOMETRY_CZEL_SIZE_H_
#define LZEL_CORE_GEOMETRY_CZEL_SIZE_H_

#include <LZEL_Core/frame/CZEL_Object.h>
#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/geometry/ZEL_Coordinate.h>

template <typename T>
class ZEL_TEMPLATE_API CZEL_Size : public CZEL_Object {
 public:
  // 0 by 0.
  CZEL_Size();

  // `width` by `height`.
  CZEL_Size(T const& width, T const& height);

  // A copy of `src`.
  CZEL_Size(CZEL_Size<T> const& src);

  // A copy of `src`; returns this size.
  CZEL_Size<T>& operator=(CZEL_Size<T> const& src);

  // The horizontal and the vertical extent.
  T GetWidth() const;
  T GetHeight() const;

  // Sets one extent.
  void SetWidth(T const& width);
  void SetHeight(T const& height);

  // Sets both extents; returns this size.
  CZEL_Size<T>& Set(T const& width, T const& height);

  // A new size, the sum or the difference (this minus `other`) per extent;
  // this size stays as it is.
  CZEL_Size<T> operator+(CZEL_Size<T> const& other) const;
  CZEL_Size<T> operator-(CZEL_Size<T> const& other) const;

  // Adds or subtracts `other` per extent. Returns nothing, unlike the
  // assignment.
  void operator+=(CZEL_Size<T> const& other);
  void operator-=(CZEL_Size<T> const& other);

  // 1 if both extents are equal, the width compared first; exact for
  // `double`.
  ZEL::u8 operator==(CZEL_Size<T> const& other) const;

  // The negation of `operator==`.
  ZEL::u8 operator!=(CZEL_Size<T> const& other) const;

 protected:
  // Copies both extents of `src`, which may be this size.
  void DataCopy(CZEL_Size<T> const& src);

  // The horizontal extent.
  T m_Width;
  // The vertical extent.
  T m_Height;
};

// -----------------------------------------------------------------------------
// Implementation
// -----------------------------------------------------------------------------

template <typename T>
CZEL_Size<T>::CZEL_Size() : m_Width(0), m_Height(0) {}

template <typename T>
CZEL_Size<T>::CZEL_Size(T const& width, T const& height) : m_Width(width), m_Height(height) {}

template <typename T>
CZEL_Size<T>::CZEL_Size(CZEL_Size<T> const& src) : CZEL_Object(src), m_Width(0), m_Height(0) {
  DataCopy(src);
}

template <typename T>
CZEL_Size<T>& CZEL_Size<T>::operator=(CZEL_Size<T> const& src) {
  DataCopy(src);
  return *this;
}

template <typename T>
T CZEL_Size<T>::GetWidth() const {
  return m_Width;
}

template <typename T>
T CZEL_Size<T>::GetHeight() const {
  return m_Height;
}

template <typename T>
void CZEL_Size<T>::SetWidth(T const& width) {
  m_Width = width;
}

template <typename T>
void CZEL_Size<T>::SetHeight(T const& height) {
  m_Height = height;
}

template <typename T>
CZEL_Size<T>& CZEL_Size<T>::Set(T const& width, T const& height) {
  m_Width = width;
  m_Height = height;
  return *this;
}

template <typename T>
CZEL_Size<T> CZEL_Size<T>::operator+(CZEL_Size<T> const& other) const {
  return CZEL_Size<T>(ZEL::CoordinateSum(m_Width, other.m_Width),
                      ZEL::CoordinateSum(m_Height, other.m_Height));
}

template <typename T>
CZEL_Size<T> CZEL_Size<T>::operator-(CZEL_Size<T> const& other) const {
  return CZEL_Size<T>(ZEL::CoordinateDifference(m_Width, other.m_Width),
                      ZEL::CoordinateDifference(m_Height, other.m_Height));
}

template <typename T>
void CZEL_Size<T>::operator+=(CZEL_Size<T> const& other) {
  *this = *this + other;
}

template <typename T>
void CZEL_Size<T>::operator-=(CZEL_Size<T> const& other) {
  *this = *this - other;
}

template <typename T>
ZEL::u8 CZEL_Size<T>::operator==(CZEL_Size<T> const& other) const {
  return m_Width == other.m_Width && m_Height == other.m_Height;
}

template <typename T>
ZEL::u8 CZEL_Size<T>::operator!=(CZEL_Size<T> const& other) const {
  return !(*this == other);
}

template <typename T>
void CZEL_Size<T>::DataCopy(CZEL_Size<T> const& src) {
  m_Width = src.m_Width;
  m_Height = src.m_Height;
}

#endif  // LZEL_CORE_GEOMETRY_CZEL_SIZE_H_
