// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_BitSetVector.h
// -----------------------------------------------------------------------------
//
// `CZEL_BitSetVector` is the exact-size array of `CZEL_BitSet` (bit sets): a
// `CZEL_Vector<CZEL_BitSet>` with assignment to and from `CZEL_BitSetList`. New
// slots hold default values; items are deep copies, assigned one by one. The
// members it adds are those of every named vector class, described in
// <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_BitSetVector items(2, CZEL_BitSet(12, 1));
//   CZEL_BitSetList list;
//   list = items;

#ifndef LZEL_CORE_CONTAINERS_CZEL_BIT_SET_VECTOR_H_
#define LZEL_CORE_CONTAINERS_CZEL_BIT_SET_VECTOR_H_

#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/containers/ZEL_ValueContainerExterns.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_BitSetList;

class ZEL_API CZEL_BitSetVector : public CZEL_Vector<CZEL_BitSet> {
  ZEL_NAMED_VECTOR_MEMBERS(CZEL_BitSetVector, CZEL_BitSetList, CZEL_BitSet)

 public:
  // The vector's `Sort` with `CZEL_BitSet::Compare`; a non-zero `ascending` gives rising
  // order. Throws ZEL_ERR_INVALID_ARGUMENT on an empty vector and returns on one
  // item; on two or more it never returns, as `CZEL_Vector<T>::Sort` (which
  // takes a comparator that can end it).
  CZEL_BitSetVector& Sort(ZEL::u8 ascending);

  // The base's `Sort` with a comparator of the caller's.
  using CZEL_Vector<CZEL_BitSet>::Sort;
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_BIT_SET_VECTOR_H_
