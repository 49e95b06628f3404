// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_OrderedList.h
// -----------------------------------------------------------------------------
//
// `CZEL_OrderedList<T>` is a `CZEL_List<T>` of one of the ten built-in number
// types with what needs an order: the smallest item, the largest item, and
// sorting without a caller's comparator. It keeps nothing in sorted state:
// items stay where they are put until `Sort` is called.
//
//   double raw[] = {3, 1, 2};
//   CZEL_OrderedList<double> list(raw, 3);
//   list.Sort(1);                   // 1, 2, 3; the cursor stays on its node
//   double largest = list.Max();    // 3, the cursor not moved
//
// The named classes (`CZEL_DoubleList` and so on) derive from this template;
// applications use those.

#ifndef LZEL_CORE_CONTAINERS_CZEL_ORDERED_LIST_H_
#define LZEL_CORE_CONTAINERS_CZEL_ORDERED_LIST_H_

#include <LZEL_Core/containers/CZEL_List.h>
#include <LZEL_Core/containers/ZEL_NoItem.h>
#include <LZEL_Core/containers/ZEL_Order.h>
#include <LZEL_Core/frame/ZEL_Types.h>

#include <type_traits>
#include <utility>

template <typename T>
class ZEL_TEMPLATE_API CZEL_OrderedList : public CZEL_List<T> {
 public:
  // The constructors of `CZEL_List<T>`: (0, value) gives an empty list,
  // (src, 0) throws ZEL_ERR_EMPTY_INPUT.
  CZEL_OrderedList();
  CZEL_OrderedList(ZEL::u32 count, T const& value);
  CZEL_OrderedList(T* src, ZEL::u32 count);
  CZEL_OrderedList(CZEL_OrderedList<T> const& src);

  // The base's forms for a count of another integer type (`(0, 0)` included)
  // and for moves, with the same results.
  template <typename N, typename = std::enable_if_t<std::is_integral<N>::value>>
  CZEL_OrderedList(N count, T const& value)
      : CZEL_OrderedList(static_cast<ZEL::u32>(count), value) {}
  CZEL_OrderedList(CZEL_OrderedList<T>&& src) noexcept;

  // The list's assignment: an empty source changes nothing.
  CZEL_OrderedList<T>& operator=(CZEL_OrderedList<T> const& src);

  // The base's move assignment.
  CZEL_OrderedList<T>& operator=(CZEL_OrderedList<T>&& src) noexcept;

  // `a.Swap(b)`, found by argument-dependent lookup.
  friend void swap(CZEL_OrderedList<T>& a, CZEL_OrderedList<T>& b) noexcept { a.Swap(b); }

  // The list's `Sort` with `Compare`: a non-zero `ascending` gives rising
  // order, 0 falling order. Fewer than two items return at once.
  CZEL_OrderedList<T>& Sort(ZEL::u8 ascending);

  // The base's `Sort` with a comparator of the caller's.
  using CZEL_List<T>::Sort;

  // The smallest item itself: the first of equal smallest items from the
  // head, by the element's own `<`. The cursor does not move. An empty list is
  // not looked for: the reference is then invalid and must not be used.
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
CZEL_OrderedList<T>::CZEL_OrderedList() : CZEL_List<T>() {}

template <typename T>
CZEL_OrderedList<T>::CZEL_OrderedList(ZEL::u32 count, T const& value)
    : CZEL_List<T>(count, value) {}

template <typename T>
CZEL_OrderedList<T>::CZEL_OrderedList(T* src, ZEL::u32 count) : CZEL_List<T>(src, count) {}

template <typename T>
CZEL_OrderedList<T>::CZEL_OrderedList(CZEL_OrderedList<T> const& src) : CZEL_List<T>(src) {}

template <typename T>
CZEL_OrderedList<T>::CZEL_OrderedList(CZEL_OrderedList<T>&& src) noexcept
    : CZEL_List<T>(std::move(src)) {}

template <typename T>
CZEL_OrderedList<T>& CZEL_OrderedList<T>::operator=(CZEL_OrderedList<T>&& src) noexcept {
  CZEL_List<T>::operator=(std::move(src));
  return *this;
}

template <typename T>
CZEL_OrderedList<T>& CZEL_OrderedList<T>::operator=(CZEL_OrderedList<T> const& src) {
  this->DataCopy(src);
  return *this;
}

template <typename T>
CZEL_OrderedList<T>& CZEL_OrderedList<T>::Sort(ZEL::u8 ascending) {
  CZEL_List<T>::Sort(&Compare, ascending);
  return *this;
}

template <typename T>
T& CZEL_OrderedList<T>::Min() {
  return Extreme(&ZEL::OrderBeats<true, T>);
}

template <typename T>
T& CZEL_OrderedList<T>::Max() {
  return Extreme(&ZEL::OrderBeats<false, T>);
}

template <typename T>
signed char CZEL_OrderedList<T>::Compare(T const& a, T const& b) {
  return ZEL::OrderCompare(a, b);
}

// The first item from the head that no later item beats strictly, found with
// a node pointer of its own so that the cursor stays.
template <typename T>
T& CZEL_OrderedList<T>::Extreme(bool (*beats)(T const&, T const&)) {
  if (this->m_Head == nullptr) return ZEL::NoItem<T>();
  typename CZEL_List<T>::SNode* best = this->m_Head;
  for (auto* n = best->m_pNext; n != nullptr; n = n->m_pNext) {
    if (beats(n->m_Item, best->m_Item)) best = n;
  }
  return best->m_Item;
}

#endif  // LZEL_CORE_CONTAINERS_CZEL_ORDERED_LIST_H_
