// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_BitSetList.h
// -----------------------------------------------------------------------------
//
// `CZEL_BitSetList` is the cursor list of `CZEL_BitSet` (bit sets): a
// `CZEL_List<CZEL_BitSet>` with assignment to and from `CZEL_BitSetVector`. Its
// items are deep copies of the values put in. The members it adds are those of
// every named list class, described in
// <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_BitSetList items;
//   items += CZEL_BitSet(12, 1);
//   CZEL_BitSetVector array;
//   array = items;   // the list's items; its cursor ends on the tail

#ifndef LZEL_CORE_CONTAINERS_CZEL_BIT_SET_LIST_H_
#define LZEL_CORE_CONTAINERS_CZEL_BIT_SET_LIST_H_

#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/containers/ZEL_ValueContainerExterns.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_BitSetVector;

class ZEL_API CZEL_BitSetList : public CZEL_List<CZEL_BitSet> {
  ZEL_NAMED_LIST_MEMBERS(CZEL_BitSetList, CZEL_BitSetVector, CZEL_BitSet)

 public:
  // The list's `Sort` with `CZEL_BitSet::Compare`; a non-zero `ascending` gives rising
  // order, 0 falling order. Equal items keep their order. Fewer than two items
  // return at once; the cursor stays on its node.
  CZEL_BitSetList& Sort(ZEL::u8 ascending);

  // The base's `Sort` with a comparator of the caller's.
  using CZEL_List<CZEL_BitSet>::Sort;
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_BIT_SET_LIST_H_
