// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_OrderedVector.h
// -----------------------------------------------------------------------------
//
// `CZEL_OrderedVector<T>` is a `CZEL_Vector<T>` of one of the ten built-in
// number types with what needs an order: the smallest item, the largest item,
// and sorting without a caller's comparator. It keeps nothing in sorted
// state: items stay where they are put until `Sort` is called.
//
//   int raw[] = {3, 1, 1, 2};
//   CZEL_OrderedVector<int> v(raw, 4);
//   v.Min() = 0;                    // the first 1, at position 1, becomes 0
//   int largest = v.Max();          // 3
//
// `Sort` is the vector's sort and keeps its behaviour: on two or more items
// it does not return. Callers use the ordered list, or the vector's own
// `Sort` with a comparator that ends the call, where a sorted result is
// needed.
//
// The named classes (`CZEL_Int32Vector` and so on) derive from this template;
// applications use those.

#ifndef LZEL_CORE_CONTAINERS_CZEL_ORDERED_VECTOR_H_
#define LZEL_CORE_CONTAINERS_CZEL_ORDERED_VECTOR_H_

#include <LZEL_Core/containers/CZEL_Vector.h>
#include <LZEL_Core/containers/ZEL_NoItem.h>
#include <LZEL_Core/containers/ZEL_Order.h>
#include <LZEL_Core/frame/ZEL_Types.h>

#include <type_traits>
#include <utility>

template <typename T>
class ZEL_TEMPLATE_API CZEL_OrderedVector : public CZEL_Vector<T> {
 public:
  // The constructors of `CZEL_Vector<T>`, with their ZEL_ERR_EMPTY_INPUT for
  // a count of 0.
  CZEL_OrderedVector();
  explicit CZEL_OrderedVector(ZEL::u32 count);
  CZEL_OrderedVector(ZEL::u32 count, T const& value);
  CZEL_OrderedVector(T* src, ZEL::u32 count);
  CZEL_OrderedVector(CZEL_OrderedVector<T> const& src);

  // The base's forms for a count of another integer type (`(0, 0)` included)
  // and for moves, with the same results.
  template <typename N, typename = std::enable_if_t<std::is_integral<N>::value>>
  CZEL_OrderedVector(N count, T const& value)
      : CZEL_OrderedVector(static_cast<ZEL::u32>(count), value) {}
  CZEL_OrderedVector(CZEL_OrderedVector<T>&& src) noexcept;

  // The vector's assignment.
  CZEL_OrderedVector<T>& operator=(CZEL_OrderedVector<T> const& src);

  // The base's move assignment.
  CZEL_OrderedVector<T>& operator=(CZEL_OrderedVector<T>&& src) noexcept;

  // `a.Swap(b)`, found by argument-dependent lookup.
  friend void swap(CZEL_OrderedVector<T>& a, CZEL_OrderedVector<T>& b) noexcept { a.Swap(b); }

  // The vector's `Sort` with `Compare`: a non-zero `ascending` gives rising
  // order, 0 falling order. Throws ZEL_ERR_INVALID_ARGUMENT on an empty
  // vector, returns on one item, and on two or more never returns (see
  // `CZEL_Vector<T>::Sort`).
  CZEL_OrderedVector<T>& Sort(ZEL::u8 ascending);

  // The base's `Sort` with a comparator of the caller's.
  using CZEL_Vector<T>::Sort;

  // The smallest item itself: the first of equal smallest items, by the
  // element's own `<`. An empty vector is not looked for: the reference is
  // then invalid and must not be used.
  T& Min();

  // The largest item itself, the first of equal largest ones; as `Min` when
  // empty.
  T& Max();

 protected:
  // 1 if a is greater than b, -1 if less, else 0 (so a NaN equals anything).
  static signed char Compare(T const& a, T const& b);

 private:
  T& Extreme(bool (*beats)(T const&, T const&));
};

template <typename T>
CZEL_OrderedVector<T>::CZEL_OrderedVector() : CZEL_Vector<T>() {}

template <typename T>
CZEL_OrderedVector<T>::CZEL_OrderedVector(ZEL::u32 count) : CZEL_Vector<T>(count) {}

template <typename T>
CZEL_OrderedVector<T>::CZEL_OrderedVector(ZEL::u32 count, T const& value)
    : CZEL_Vector<T>(count, value) {}

template <typename T>
CZEL_OrderedVector<T>::CZEL_OrderedVector(T* src, ZEL::u32 count) : CZEL_Vector<T>(src, count) {}

template <typename T>
CZEL_OrderedVector<T>::CZEL_OrderedVector(CZEL_OrderedVector<T> const& src) : CZEL_Vector<T>(src) {}

template <typename T>
CZEL_OrderedVector<T>::CZEL_OrderedVector(CZEL_OrderedVector<T>&& src) noexcept
    : CZEL_Vector<T>(std::move(src)) {}

template <typename T>
CZEL_OrderedVector<T>& CZEL_OrderedVector<T>::operator=(CZEL_OrderedVector<T>&& src) noexcept {
  CZEL_Vector<T>::operator=(std::move(src));
  return *this;
}

template <typename T>
CZEL_OrderedVector<T>& CZEL_OrderedVector<T>::operator=(CZEL_OrderedVector<T> const& src) {
  this->DataCopy(src);
  return *this;
}

template <typename T>
CZEL_OrderedVector<T>& CZEL_OrderedVector<T>::Sort(ZEL::u8 ascending) {
  CZEL_Vector<T>::Sort(&Compare, ascending);
  return *this;
}

template <typename T>
T& CZEL_OrderedVector<T>::Min() {
  return Extreme(&ZEL::OrderBeats<true, T>);
}

template <typename T>
T& CZEL_OrderedVector<T>::Max() {
  return Extreme(&ZEL::OrderBeats<false, T>);
}

template <typename T>
signed char CZEL_OrderedVector<T>::Compare(T const& a, T const& b) {
  return ZEL::OrderCompare(a, b);
}

// The first item that no later item beats strictly.
template <typename T>
T& CZEL_OrderedVector<T>::Extreme(bool (*beats)(T const&, T const&)) {
  if (this->m_Length == 0) return ZEL::NoItem<T>();
  ZEL::u32 best = 0;
  for (ZEL::u32 i = 1; i < this->m_Length; ++i) {
    if (beats(this->m_Buf[i], this->m_Buf[best])) best = i;
  }
  return this->m_Buf[best];
}

#endif  // LZEL_CORE_CONTAINERS_CZEL_ORDERED_VECTOR_H_
