// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_StringVector.h
// -----------------------------------------------------------------------------
//
// `CZEL_StringVector` is the exact-size array of `CZEL_String`: a
// `CZEL_Vector<CZEL_String>` with assignment to and from `CZEL_StringList`.
// New slots hold empty strings; items are deep copies, assigned one by one.
// The members it adds are those of every named vector class, described in
// <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_StringVector fields(3);    // three empty strings
//   fields[0] = "name";
//   fields.AppendItem(CZEL_String("extra"));   // one reallocation

#ifndef LZEL_CORE_CONTAINERS_CZEL_STRING_VECTOR_H_
#define LZEL_CORE_CONTAINERS_CZEL_STRING_VECTOR_H_

#include <LZEL_Core/containers/ZEL_ContainerExterns.h>
#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/text/CZEL_String.h>

#include <type_traits>

class CZEL_StringList;

class ZEL_API CZEL_StringVector : public CZEL_Vector<CZEL_String> {
  ZEL_NAMED_VECTOR_MEMBERS(CZEL_StringVector, CZEL_StringList, CZEL_String)

 public:
  // The vector's `Sort` with `CZEL_String::CompareMatchingCase` if `matchCase`
  // is non-zero, else with `CZEL_String::CompareNoMatchingCase`; a non-zero
  // `ascending` gives rising order. Throws ZEL_ERR_INVALID_ARGUMENT on an
  // empty vector and returns on one item; on two or more it never returns,
  // as `CZEL_Vector<T>::Sort` (which takes a comparator that can end it).
  CZEL_StringVector& Sort(ZEL::u8 ascending, ZEL::u8 matchCase);

  // `Sort(ascending, matchCase)` for flags of other integer types, so that
  // `Sort(0, 0)` means falling order, blind to case, rather than clashing
  // with the comparator form. Each flag is cut to its low byte, as the u8
  // form takes it.
  template <typename A, typename M,
            typename = std::enable_if_t<std::is_integral<A>::value && std::is_integral<M>::value>>
  CZEL_StringVector& Sort(A ascending, M matchCase) {
    return Sort(static_cast<ZEL::u8>(ascending), static_cast<ZEL::u8>(matchCase));
  }

  // The base's `Sort` with a comparator of the caller's.
  using CZEL_Vector<CZEL_String>::Sort;
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_STRING_VECTOR_H_
