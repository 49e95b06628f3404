// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Rect.h
// -----------------------------------------------------------------------------
//
// `CZEL_Rect<T>` is an axis-aligned rectangle stored by its four edges, for
// `T` of `int` or `double`; the named classes `CZEL_Int32Rect` and
// `CZEL_DoubleRect` fix the type. The orientation is that of the screen, y
// growing downward: the width is right - left, the height bottom - top, and
// the right and bottom edges are plain coordinates, so a rectangle from 0 to
// 10 is 10 wide.
//
//   CZEL_Rect<int> r(0, 0, 10, 20);
//   r.GetCenter();                          // (5, 10)
//   r.IsInside(10, 5, 1);                   // 1: edges count
//   r.IsInside(10, 5, 0);                   // 0: edges don't
//   CZEL_Rect<int> both = r & CZEL_Rect<int>(5, 5, 30, 30);   // (5, 5, 10, 20)
//
// A rectangle is never normalised: what the caller sets is what it holds. An
// inverted rectangle (left above right, or top above bottom) is a value like
// any other, which `IsValid` reports, and every derived quantity is taken
// from the edges as they stand (its width is negative). No operation throws.
// The `int` form wraps its sums and differences in 32 bits; the `double`
// form compares exactly, and a comparison with a NaN is false wherever it is
// made, so that a NaN coordinate counts as inside in `IsInside`.
//
// The library holds the instances for `int` and `double`; use this header
// through <LZEL_Core/geometry/ZEL_GeometryExterns.h> or a named class, so
// that a program links against them.

#ifndef LZEL_CORE_GEOMETRY_CZEL_RECT_H_
#define LZEL_CORE_GEOMETRY_CZEL_RECT_H_

#include <LZEL_Core/frame/CZEL_Object.h>
#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/geometry/CZEL_Point.h>
#include <LZEL_Core/geometry/CZEL_Size.h>
#include <LZEL_Core/geometry/ZEL_Coordinate.h>

template <typename T>
class ZEL_TEMPLATE_API CZEL_Rect : public CZEL_Object {
 public:
  // ---------------------------------------------------------------------------
  // Construction and assignment
  // ---------------------------------------------------------------------------

  // (0, 0, 0, 0): the default rectangle.
  CZEL_Rect();

  // The four edges, unchanged, whatever their order.
  CZEL_Rect(T left, T top, T right, T bottom);

  // Left and top from `topLeft`, right and bottom from `bottomRight`.
  CZEL_Rect(CZEL_Point<T> const& topLeft, CZEL_Point<T> const& bottomRight);

  // Left and top from `topLeft`; right = left + width of `size`, bottom =
  // top + height of `size`.
  CZEL_Rect(CZEL_Point<T> const& topLeft, CZEL_Size<T> const& size);

  // A copy of `src`.
  CZEL_Rect(CZEL_Rect<T> const& src);

  // A copy of `src`; returns this rectangle.
  CZEL_Rect<T>& operator=(CZEL_Rect<T> const& src);

  // As the constructors of the same shape; each returns this rectangle.
  CZEL_Rect<T>& Set(T const& left, T const& top, T const& right, T const& bottom);
  CZEL_Rect<T>& Set(CZEL_Point<T> const& topLeft, CZEL_Point<T> const& bottomRight);
  CZEL_Rect<T>& Set(CZEL_Point<T> const& topLeft, CZEL_Size<T> const& size);

  // ---------------------------------------------------------------------------
  // Reading, from the edges as stored
  // ---------------------------------------------------------------------------

  // One edge.
  T GetLeft() const;
  T GetTop() const;
  T GetRight() const;
  T GetBottom() const;

  // right - left and bottom - top: negative for an inverted rectangle.
  T GetWidth() const;
  T GetHeight() const;

  // The corners (left, top), (right, top), (left, bottom), (right, bottom).
  CZEL_Point<T> GetTopLeft() const;
  CZEL_Point<T> GetTopRight() const;
  CZEL_Point<T> GetBottomLeft() const;
  CZEL_Point<T> GetBottomRight() const;

  // ((right + left) / 2, (bottom + top) / 2). For `int` the sum wraps in 32
  // bits and the division truncates toward 0: (-3, 0, 0, 0) has the center
  // x -1. For `double` it is a division by 2.0.
  CZEL_Point<T> GetCenter() const;

  // 1 if left equals right or top equals bottom: one zero extent suffices,
  // so a rectangle 0 by 10 is null.
  ZEL::u8 IsNull() const;

  // 1 if left is not above right and top is not above bottom. A null
  // rectangle is valid.
  ZEL::u8 IsValid() const;

  // 1 if all four edges are equal, compared exactly in the order left, top,
  // right, bottom.
  ZEL::u8 operator==(CZEL_Rect<T> const& other) const;

  // The negation of `operator==`.
  ZEL::u8 operator!=(CZEL_Rect<T> const& other) const;

  // ---------------------------------------------------------------------------
  // Containment
  // ---------------------------------------------------------------------------

  // With `edges` non-zero: 1 if left <= x <= right and top <= y <= bottom.
  // With `edges` 0 the comparisons are strict, so a point on an edge is
  // outside. Each comparison only rejects, so one that fails on a NaN
  // doesn't: a NaN coordinate counts as inside.
  ZEL::u8 IsInside(T x, T y, ZEL::u8 edges) const;

  // `IsInside(x, y, edges)` with the point's coordinates.
  ZEL::u8 IsInside(CZEL_Point<T> const& point, ZEL::u8 edges) const;

  // 1 if the four corners of `rect` are inside by the point form, tested in
  // the order top left, top right, bottom left, bottom right up to the first
  // failure. A rectangle is inside itself with `edges` 1, not with 0.
  ZEL::u8 IsInside(CZEL_Rect<T> const& rect, ZEL::u8 edges) const;

  // ---------------------------------------------------------------------------
  // Changing edges: nothing is reordered, the opposite edges stay
  // ---------------------------------------------------------------------------

  // One edge.
  void SetLeft(T const& left);
  void SetTop(T const& top);
  void SetRight(T const& right);
  void SetBottom(T const& bottom);

  // The two edges that meet at the corner, from the point's x and y.
  void SetTopLeft(CZEL_Point<T> const& point);
  void SetTopRight(CZEL_Point<T> const& point);
  void SetBottomLeft(CZEL_Point<T> const& point);
  void SetBottomRight(CZEL_Point<T> const& point);

  // right = left + `width`; this may repair an inverted width alone.
  void SetWidth(T width);

  // bottom = top + `height`.
  void SetHeight(T height);

  // `SetWidth` and `SetHeight` from `size`.
  void SetSize(CZEL_Size<T> const& size);

  // ---------------------------------------------------------------------------
  // Moving: the width and the height stay, also negative ones
  // ---------------------------------------------------------------------------

  // Puts the top left corner on (x, y) and the other edges at the old width
  // and height from it.
  void MoveTo(T x, T y);
  void MoveTo(CZEL_Point<T> const& point);

  // Adds `dx` to left and right, and `dy` to top and bottom.
  void Translate(T dx, T dy);
  void TranslateX(T dx);
  void TranslateY(T dy);

  // ---------------------------------------------------------------------------
  // Combining: the results are new rectangles of the template type
  // ---------------------------------------------------------------------------

  // The overlap: the larger left and top, the smaller right and bottom. If
  // that is inverted the result is the default rectangle (four zeros), not
  // the inverted one. Rectangles that share only an edge give a null, valid
  // rectangle on that edge: (0, 0, 10, 10) & (10, 0, 20, 10) is
  // (10, 0, 10, 10).
  CZEL_Rect<T> Intersect(CZEL_Rect<T> const& other) const;
  CZEL_Rect<T> operator&(CZEL_Rect<T> const& other) const;

  // The bounding rectangle: the smaller left and top, the larger right and
  // bottom, whatever lies between. No input is skipped for being null, so
  // merging with the default rectangle pulls in the origin. Only inverted
  // inputs can make the result inverted; it is then the default rectangle.
  CZEL_Rect<T> Merge(CZEL_Rect<T> const& other) const;
  CZEL_Rect<T> operator|(CZEL_Rect<T> const& other) const;

  // This = `Intersect(other)` or `Merge(other)`; returns this rectangle.
  CZEL_Rect<T>& operator&=(CZEL_Rect<T> const& other);
  CZEL_Rect<T>& operator|=(CZEL_Rect<T> const& other);

  // Grows the rectangle by `size` from its top left corner: right = left +
  // (width + size's width), bottom = top + (height + size's height). Returns
  // this rectangle. (0, 5, 10, 15) += (1, 1) gives (0, 5, 11, 16).
  CZEL_Rect<T>& operator+=(CZEL_Size<T> const& size);

  // A new rectangle with the right edge of `operator+=`, but a bottom edge
  // taken from the bottom, not from the top: bottom + (height + size's
  // height), so that the new height is twice the old one plus the size's.
  // (0, 5, 10, 15) + (1, 1) gives (0, 5, 11, 26). Callers rely on this
  // difference from `operator+=`.
  CZEL_Rect<T> operator+(CZEL_Size<T> const& size) const;

 protected:
  // Copies the four edges of `src`, which may be this rectangle.
  void DataCopy(CZEL_Rect<T> const& src);

  // x of the left edge.
  T m_Left;
  // y of the top edge.
  T m_Top;
  // x of the right edge.
  T m_Right;
  // y of the bottom edge.
  T m_Bottom;

 private:
  // The larger and the smaller of two edges; on a tie, or a NaN, `a`.
  static T Larger(T a, T b);
  static T Smaller(T a, T b);

  // The rectangle of these edges if it is valid, else the default one.
  static CZEL_Rect<T> ValidOrDefault(T left, T top, T right, T bottom);
};

// -----------------------------------------------------------------------------
// Implementation
// -----------------------------------------------------------------------------

template <typename T>
CZEL_Rect<T>::CZEL_Rect() : m_Left(0), m_Top(0), m_Right(0), m_Bottom(0) {}

template <typename T>
CZEL_Rect<T>::CZEL_Rect(T left, T top, T right, T bottom)
    : m_Left(left), m_Top(top), m_Right(right), m_Bottom(bottom) {}

template <typename T>
CZEL_Rect<T>::CZEL_Rect(CZEL_Point<T> const& topLeft, CZEL_Point<T> const& bottomRight)
    : CZEL_Rect() {
  Set(topLeft, bottomRight);
}

template <typename T>
CZEL_Rect<T>::CZEL_Rect(CZEL_Point<T> const& topLeft, CZEL_Size<T> const& size) : CZEL_Rect() {
  Set(topLeft, size);
}

template <typename T>
CZEL_Rect<T>::CZEL_Rect(CZEL_Rect<T> const& src)
    : CZEL_Object(src), m_Left(0), m_Top(0), m_Right(0), m_Bottom(0) {
  DataCopy(src);
}

template <typename T>
CZEL_Rect<T>& CZEL_Rect<T>::operator=(CZEL_Rect<T> const& src) {
  DataCopy(src);
  return *this;
}

template <typename T>
CZEL_Rect<T>& CZEL_Rect<T>::Set(T const& left, T const& top, T const& right, T const& bottom) {
  m_Left = left;
  m_Top = top;
  m_Right = right;
  m_Bottom = bottom;
  return *this;
}

template <typename T>
CZEL_Rect<T>& CZEL_Rect<T>::Set(CZEL_Point<T> const& topLeft, CZEL_Point<T> const& bottomRight) {
  return Set(topLeft.GetX(), topLeft.GetY(), bottomRight.GetX(), bottomRight.GetY());
}

template <typename T>
CZEL_Rect<T>& CZEL_Rect<T>::Set(CZEL_Point<T> const& topLeft, CZEL_Size<T> const& size) {
  T const left = topLeft.GetX();
  T const top = topLeft.GetY();
  return Set(left, top, ZEL::CoordinateSum(left, size.GetWidth()),
             ZEL::CoordinateSum(top, size.GetHeight()));
}

template <typename T>
T CZEL_Rect<T>::GetLeft() const {
  return m_Left;
}

template <typename T>
T CZEL_Rect<T>::GetTop() const {
  return m_Top;
}

template <typename T>
T CZEL_Rect<T>::GetRight() const {
  return m_Right;
}

template <typename T>
T CZEL_Rect<T>::GetBottom() const {
  return m_Bottom;
}

template <typename T>
T CZEL_Rect<T>::GetWidth() const {
  return ZEL::CoordinateDifference(m_Right, m_Left);
}

template <typename T>
T CZEL_Rect<T>::GetHeight() const {
  return ZEL::CoordinateDifference(m_Bottom, m_Top);
}

template <typename T>
CZEL_Point<T> CZEL_Rect<T>::GetTopLeft() const {
  return CZEL_Point<T>(m_Left, m_Top);
}

template <typename T>
CZEL_Point<T> CZEL_Rect<T>::GetTopRight() const {
  return CZEL_Point<T>(m_Right, m_Top);
}

template <typename T>
CZEL_Point<T> CZEL_Rect<T>::GetBottomLeft() const {
  return CZEL_Point<T>(m_Left, m_Bottom);
}

template <typename T>
CZEL_Point<T> CZEL_Rect<T>::GetBottomRight() const {
  return CZEL_Point<T>(m_Right, m_Bottom);
}

// `int` divided by 2 truncates toward 0, `double` halves exactly.
template <typename T>
CZEL_Point<T> CZEL_Rect<T>::GetCenter() const {
  T const two = 2;
  return CZEL_Point<T>(ZEL::CoordinateSum(m_Right, m_Left) / two,
                       ZEL::CoordinateSum(m_Bottom, m_Top) / two);
}

template <typename T>
ZEL::u8 CZEL_Rect<T>::IsNull() const {
  return m_Left == m_Right || m_Top == m_Bottom;
}

template <typename T>
ZEL::u8 CZEL_Rect<T>::IsValid() const {
  return !(m_Left > m_Right) && !(m_Top > m_Bottom);
}

template <typename T>
ZEL::u8 CZEL_Rect<T>::operator==(CZEL_Rect<T> const& other) const {
  return m_Left == other.m_Left && m_Top == other.m_Top && m_Right == other.m_Right &&
         m_Bottom == other.m_Bottom;
}

template <typename T>
ZEL::u8 CZEL_Rect<T>::operator!=(CZEL_Rect<T> const& other) const {
  return !(*this == other);
}

template <typename T>
ZEL::u8 CZEL_Rect<T>::IsInside(T x, T y, ZEL::u8 edges) const {
  if (edges) {
    if (x < m_Left || x > m_Right || y < m_Top || y > m_Bottom) return 0;
  } else {
    if (x <= m_Left || x >= m_Right || y <= m_Top || y >= m_Bottom) return 0;
  }
  return 1;
}

template <typename T>
ZEL::u8 CZEL_Rect<T>::IsInside(CZEL_Point<T> const& point, ZEL::u8 edges) const {
  return IsInside(point.GetX(), point.GetY(), edges);
}

template <typename T>
ZEL::u8 CZEL_Rect<T>::IsInside(CZEL_Rect<T> const& rect, ZEL::u8 edges) const {
  return IsInside(rect.GetTopLeft(), edges) && IsInside(rect.GetTopRight(), edges) &&
         IsInside(rect.GetBottomLeft(), edges) && IsInside(rect.GetBottomRight(), edges);
}

template <typename T>
void CZEL_Rect<T>::SetLeft(T const& left) {
  m_Left = left;
}

template <typename T>
void CZEL_Rect<T>::SetTop(T const& top) {
  m_Top = top;
}

template <typename T>
void CZEL_Rect<T>::SetRight(T const& right) {
  m_Right = right;
}

template <typename T>
void CZEL_Rect<T>::SetBottom(T const& bottom) {
  m_Bottom = bottom;
}

template <typename T>
void CZEL_Rect<T>::SetTopLeft(CZEL_Point<T> const& point) {
  m_Left = point.GetX();
  m_Top = point.GetY();
}

template <typename T>
void CZEL_Rect<T>::SetTopRight(CZEL_Point<T> const& point) {
  m_Right = point.GetX();
  m_Top = point.GetY();
}

template <typename T>
void CZEL_Rect<T>::SetBottomLeft(CZEL_Point<T> const& point) {
  m_Left = point.GetX();
  m_Bottom = point.GetY();
}

template <typename T>
void CZEL_Rect<T>::SetBottomRight(CZEL_Point<T> const& point) {
  m_Right = point.GetX();
  m_Bottom = point.GetY();
}

template <typename T>
void CZEL_Rect<T>::SetWidth(T width) {
  m_Right = ZEL::CoordinateSum(m_Left, width);
}

template <typename T>
void CZEL_Rect<T>::SetHeight(T height) {
  m_Bottom = ZEL::CoordinateSum(m_Top, height);
}

template <typename T>
void CZEL_Rect<T>::SetSize(CZEL_Size<T> const& size) {
  SetWidth(size.GetWidth());
  SetHeight(size.GetHeight());
}

// The extents are taken before the top left corner moves.
template <typename T>
void CZEL_Rect<T>::MoveTo(T x, T y) {
  Set(CZEL_Point<T>(x, y), CZEL_Size<T>(GetWidth(), GetHeight()));
}

template <typename T>
void CZEL_Rect<T>::MoveTo(CZEL_Point<T> const& point) {
  MoveTo(point.GetX(), point.GetY());
}

template <typename T>
void CZEL_Rect<T>::Translate(T dx, T dy) {
  TranslateX(dx);
  TranslateY(dy);
}

template <typename T>
void CZEL_Rect<T>::TranslateX(T dx) {
  m_Left = ZEL::CoordinateSum(m_Left, dx);
  m_Right = ZEL::CoordinateSum(m_Right, dx);
}

template <typename T>
void CZEL_Rect<T>::TranslateY(T dy) {
  m_Top = ZEL::CoordinateSum(m_Top, dy);
  m_Bottom = ZEL::CoordinateSum(m_Bottom, dy);
}

template <typename T>
CZEL_Rect<T> CZEL_Rect<T>::Intersect(CZEL_Rect<T> const& other) const {
  return ValidOrDefault(Larger(m_Left, other.m_Left), Larger(m_Top, other.m_Top),
                        Smaller(m_Right, other.m_Right), Smaller(m_Bottom, other.m_Bottom));
}

template <typename T>
CZEL_Rect<T> CZEL_Rect<T>::operator&(CZEL_Rect<T> const& other) const {
  return Intersect(other);
}

template <typename T>
CZEL_Rect<T> CZEL_Rect<T>::Merge(CZEL_Rect<T> const& other) const {
  return ValidOrDefault(Smaller(m_Left, other.m_Left), Smaller(m_Top, other.m_Top),
                        Larger(m_Right, other.m_Right), Larger(m_Bottom, other.m_Bottom));
}

template <typename T>
CZEL_Rect<T> CZEL_Rect<T>::operator|(CZEL_Rect<T> const& other) const {
  return Merge(other);
}

template <typename T>
CZEL_Rect<T>& CZEL_Rect<T>::operator&=(CZEL_Rect<T> const& other) {
  return *this = Intersect(other);
}

template <typename T>
CZEL_Rect<T>& CZEL_Rect<T>::operator|=(CZEL_Rect<T> const& other) {
  return *this = Merge(other);
}

template <typename T>
CZEL_Rect<T>& CZEL_Rect<T>::operator+=(CZEL_Size<T> const& size) {
  CZEL_Size<T> const grown = CZEL_Size<T>(GetWidth(), GetHeight()) + size;
  return Set(GetTopLeft(), grown);
}

template <typename T>
CZEL_Rect<T> CZEL_Rect<T>::operator+(CZEL_Size<T> const& size) const {
  CZEL_Size<T> const grown = CZEL_Size<T>(GetWidth(), GetHeight()) + size;
  return CZEL_Rect<T>(m_Left, m_Top, ZEL::CoordinateSum(m_Left, grown.GetWidth()),
                      ZEL::CoordinateSum(m_Bottom, grown.GetHeight()));
}

template <typename T>
void CZEL_Rect<T>::DataCopy(CZEL_Rect<T> const& src) {
  m_Left = src.m_Left;
  m_Top = src.m_Top;
  m_Right = src.m_Right;
  m_Bottom = src.m_Bottom;
}

template <typename T>
T CZEL_Rect<T>::Larger(T a, T b) {
  return a < b ? b : a;
}

template <typename T>
T CZEL_Rect<T>::Smaller(T a, T b) {
  return b < a ? b : a;
}

template <typename T>
CZEL_Rect<T> CZEL_Rect<T>::ValidOrDefault(T left, T top, T right, T bottom) {
  CZEL_Rect<T> const result(left, top, right, bottom);
  return result.IsValid() ? result : CZEL_Rect<T>();
}

#endif  // LZEL_CORE_GEOMETRY_CZEL_RECT_H_
