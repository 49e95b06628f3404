// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_TimeList.h
// -----------------------------------------------------------------------------
//
// `CZEL_TimeList` is the cursor list of `CZEL_Time` (times of day): a
// `CZEL_List<CZEL_Time>` with assignment to and from `CZEL_TimeVector`. Its
// items are deep copies of the values put in. The members it adds are those of
// every named list class, described in
// <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_TimeList items;
//   items += CZEL_Time(12, 30, 0, 0);
//   CZEL_TimeVector array;
//   array = items;   // the list's items; its cursor ends on the tail

#ifndef LZEL_CORE_CONTAINERS_CZEL_TIME_LIST_H_
#define LZEL_CORE_CONTAINERS_CZEL_TIME_LIST_H_

#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/containers/ZEL_ValueContainerExterns.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_TimeVector;

class ZEL_API CZEL_TimeList : public CZEL_List<CZEL_Time> {
  ZEL_NAMED_LIST_MEMBERS(CZEL_TimeList, CZEL_TimeVector, CZEL_Time)

 public:
  // The list's `Sort` with `CZEL_Time::SortCompare`; a non-zero `ascending` gives rising
  // order, 0 falling order. Equal items keep their order. Fewer than two items
  // return at once; the cursor stays on its node.
  CZEL_TimeList& Sort(ZEL::u8 ascending);

  // The base's `Sort` with a comparator of the caller's.
  using CZEL_List<CZEL_Time>::Sort;
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_TIME_LIST_H_
