// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_DateList.h
// -----------------------------------------------------------------------------
//
// `CZEL_DateList` is the cursor list of `CZEL_Date` (dates): a
// `CZEL_List<CZEL_Date>` with assignment to and from `CZEL_DateVector`. Its
// items are deep copies of the values put in. The members it adds are those of
// every named list class, described in
// <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_DateList items;
//   items += CZEL_Date(2024, 2, 29);
//   CZEL_DateVector array;
//   array = items;   // the list's items; its cursor ends on the tail

#ifndef LZEL_CORE_CONTAINERS_CZEL_DATE_LIST_H_
#define LZEL_CORE_CONTAINERS_CZEL_DATE_LIST_H_

#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/containers/ZEL_ValueContainerExterns.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_DateVector;

class ZEL_API CZEL_DateList : public CZEL_List<CZEL_Date> {
  ZEL_NAMED_LIST_MEMBERS(CZEL_DateList, CZEL_DateVector, CZEL_Date)

 public:
  // The list's `Sort` with `CZEL_Date::SortCompare`; a non-zero `ascending` gives rising
  // order, 0 falling order. Equal items keep their order. Fewer than two items
  // return at once; the cursor stays on its node.
  CZEL_DateList& Sort(ZEL::u8 ascending);

  // The base's `Sort` with a comparator of the caller's.
  using CZEL_List<CZEL_Date>::Sort;
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_DATE_LIST_H_
