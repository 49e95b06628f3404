// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: ZEL_NamedContainer.h
// -----------------------------------------------------------------------------
//
// The members that every named container class repeats. A named class
// (`CZEL_Int32List`, `CZEL_StringVector`, ...) fixes the element type of a
// list or vector template, adds no data, repeats the base's constructors and
// gives assignment between the list and the vector form of the same element
// type in both directions. These macros spell those members once:
//
//   // CZEL_Int32List.h
//   class CZEL_Int32Vector;
//   class ZEL_API CZEL_Int32List : public CZEL_OrderedList<int> {
//     ZEL_NAMED_LIST_MEMBERS(CZEL_Int32List, CZEL_Int32Vector, int)
//   };
//
//   // CZEL_Int32List.cpp, where both classes are complete
//   ZEL_NAMED_LIST_DEFINITIONS(CZEL_Int32List, CZEL_Int32Vector, int,
//                              CZEL_OrderedList<int>)
//
// The members of a named list class `L` over `T`, with `V` its vector class:
//
//   L(), L(count, value), L(src, count), L(L const&)
//       The list constructors: (0, value) gives an empty list, (src, 0)
//       throws ZEL_ERR_EMPTY_INPUT.
//   operator=(L const&), operator=(CZEL_List<T> const&)
//       The list's assignment: the existing nodes are reused, the cursor goes
//       to the head, and an empty source changes nothing.
//   operator=(V&), operator=(CZEL_Vector<T>&)
//       The vector's items; an empty vector empties the list. The cursor ends
//       on the tail.
//   L(L&&), operator=(L&&), operator=(CZEL_List<T>&&), swap(L&, L&)
//       The list's moves, with the copy's results: the cursor on the head, and
//       an empty source changes nothing. The source is left empty.
//
// The members of a named vector class `V` over `T`, with `L` its list class:
//
//   V(), V(count), V(count, value), V(src, count), V(V const&)
//       The vector constructors: a count of 0 throws ZEL_ERR_EMPTY_INPUT.
//   operator=(V const&), operator=(CZEL_Vector<T> const&)
//       The vector's assignment: an empty source empties this vector.
//   operator=(L&), operator=(CZEL_List<T>&)
//       The list's items from its head; the list's cursor ends on its tail.
//   V(V&&), operator=(V&&), operator=(CZEL_Vector<T>&&), swap(V&, V&)
//       The vector's moves: the source is left empty.
//
// The classes of number items also take their count as any integer type, so
// that `L(0, 0)` and `V(0, 0)` mean a count and a value, not a null source.
//
// Every assignment returns a reference to this object; a named or unnamed
// source gives the same result.

#ifndef LZEL_CORE_CONTAINERS_ZEL_NAMED_CONTAINER_H_
#define LZEL_CORE_CONTAINERS_ZEL_NAMED_CONTAINER_H_

#include <LZEL_Core/containers/CZEL_List.h>
#include <LZEL_Core/containers/CZEL_Vector.h>
#include <LZEL_Core/containers/CZEL_VectorListOps.h>
#include <LZEL_Core/frame/ZEL_Types.h>

#include <type_traits>
#include <utility>

// A constructor (count, value) whose count is any integer type, for number
// items only; it forwards the count cut to 32 bits to the u32 form.
#define ZEL_NAMED_COUNT_CONSTRUCTOR(C, T)                                                     \
  template <typename N, typename U = T,                                                       \
            typename =                                                                        \
                std::enable_if_t<std::is_integral<N>::value && std::is_arithmetic<U>::value>> \
  C(N count, T const& value) : C(static_cast<ZEL::u32>(count), value) {}

// Declares the members of named list class L over T; V is its vector class.
#define ZEL_NAMED_LIST_MEMBERS(L, V, T)                \
 public:                                               \
  L();                                                 \
  L(ZEL::u32 count, T const& value);                   \
  L(T* src, ZEL::u32 count);                           \
  L(L const& src);                                     \
  L& operator=(L const& src);                          \
  L& operator=(CZEL_List<T> const& src);               \
  L& operator=(V& src);                                \
  L& operator=(CZEL_Vector<T>& src);                   \
  L(L&& src) noexcept;                                 \
  L& operator=(L&& src) noexcept;                      \
  L& operator=(CZEL_List<T>&& src) noexcept;           \
  friend void swap(L& a, L& b) noexcept { a.Swap(b); } \
  ZEL_NAMED_COUNT_CONSTRUCTOR(L, T)

// Defines them, in a source file where L and V are both complete.
#define ZEL_NAMED_LIST_DEFINITIONS(L, V, T, Base)               \
  L::L() : Base() {}                                            \
  L::L(ZEL::u32 count, T const& value) : Base(count, value) {}  \
  L::L(T* src, ZEL::u32 count) : Base(src, count) {}            \
  L::L(L const& src) : Base(src) {}                             \
  L& L::operator=(L const& src) {                               \
    CZEL_List<T>::operator=(src);                               \
    return *this;                                               \
  }                                                             \
  L& L::operator=(CZEL_List<T> const& src) {                    \
    CZEL_List<T>::operator=(src);                               \
    return *this;                                               \
  }                                                             \
  L& L::operator=(V& src) {                                     \
    CZEL_List<T>::operator=(static_cast<CZEL_Vector<T>&>(src)); \
    return *this;                                               \
  }                                                             \
  L& L::operator=(CZEL_Vector<T>& src) {                        \
    CZEL_List<T>::operator=(src);                               \
    return *this;                                               \
  }                                                             \
  L::L(L&& src) noexcept : Base(std::move(src)) {}              \
  L& L::operator=(L&& src) noexcept {                           \
    CZEL_List<T>::operator=(std::move(src));                    \
    return *this;                                               \
  }                                                             \
  L& L::operator=(CZEL_List<T>&& src) noexcept {                \
    CZEL_List<T>::operator=(std::move(src));                    \
    return *this;                                               \
  }

// Declares the members of named vector class V over T; L is its list class.
#define ZEL_NAMED_VECTOR_MEMBERS(V, L, T)              \
 public:                                               \
  V();                                                 \
  explicit V(ZEL::u32 count);                          \
  V(ZEL::u32 count, T const& value);                   \
  V(T* src, ZEL::u32 count);                           \
  V(V const& src);                                     \
  V& operator=(V const& src);                          \
  V& operator=(CZEL_Vector<T> const& src);             \
  V& operator=(L& src);                                \
  V& operator=(CZEL_List<T>& src);                     \
  V(V&& src) noexcept;                                 \
  V& operator=(V&& src) noexcept;                      \
  V& operator=(CZEL_Vector<T>&& src) noexcept;         \
  friend void swap(V& a, V& b) noexcept { a.Swap(b); } \
  ZEL_NAMED_COUNT_CONSTRUCTOR(V, T)

// Defines them, in a source file where V and L are both complete.
#define ZEL_NAMED_VECTOR_DEFINITIONS(V, L, T, Base)             \
  V::V() : Base() {}                                            \
  V::V(ZEL::u32 count) : Base(count) {}                         \
  V::V(ZEL::u32 count, T const& value) : Base(count, value) {}  \
  V::V(T* src, ZEL::u32 count) : Base(src, count) {}            \
  V::V(V const& src) : Base(src) {}                             \
  V& V::operator=(V const& src) {                               \
    CZEL_Vector<T>::operator=(src);                             \
    return *this;                                               \
  }                                                             \
  V& V::operator=(CZEL_Vector<T> const& src) {                  \
    CZEL_Vector<T>::operator=(src);                             \
    return *this;                                               \
  }                                                             \
  V& V::operator=(L& src) {                                     \
    CZEL_Vector<T>::operator=(static_cast<CZEL_List<T>&>(src)); \
    return *this;                                               \
  }                                                             \
  V& V::operator=(CZEL_List<T>& src) {                          \
    CZEL_Vector<T>::operator=(src);                             \
    return *this;                                               \
  }                                                             \
  V::V(V&& src) noexcept : Base(std::move(src)) {}              \
  V& V::operator=(V&& src) noexcept {                           \
    CZEL_Vector<T>::operator=(std::move(src));                  \
    return *this;                                               \
  }                                                             \
  V& V::operator=(CZEL_Vector<T>&& src) noexcept {              \
    CZEL_Vector<T>::operator=(std::move(src));                  \
    return *this;                                               \
  }

#endif  // LZEL_CORE_CONTAINERS_ZEL_NAMED_CONTAINER_H_
