// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_DecimalNumberList.h
// -----------------------------------------------------------------------------
//
// `CZEL_DecimalNumberList` is the cursor list of `CZEL_DecimalNumber` (decimal
// numbers): a `CZEL_List<CZEL_DecimalNumber>` with assignment to and from
// `CZEL_DecimalNumberVector`. Its items are deep copies of the values put in.
// The members it adds are those of every named list class, described in
// <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_DecimalNumberList items;
//   items += CZEL_DecimalNumber(2, "3.25", CZEL_DecimalNumber::DecimalPoint_Dot);
//   CZEL_DecimalNumberVector array;
//   array = items;   // the list's items; its cursor ends on the tail

#ifndef LZEL_CORE_CONTAINERS_CZEL_DECIMAL_NUMBER_LIST_H_
#define LZEL_CORE_CONTAINERS_CZEL_DECIMAL_NUMBER_LIST_H_

#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/containers/ZEL_ValueContainerExterns.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_DecimalNumberVector;

class ZEL_API CZEL_DecimalNumberList : public CZEL_List<CZEL_DecimalNumber> {
  ZEL_NAMED_LIST_MEMBERS(CZEL_DecimalNumberList, CZEL_DecimalNumberVector, CZEL_DecimalNumber)

 public:
  // The list's `Sort` with `CZEL_DecimalNumber::Compare`; a non-zero `ascending` gives rising
  // order, 0 falling order. Equal items keep their order. Fewer than two items
  // return at once; the cursor stays on its node.
  CZEL_DecimalNumberList& Sort(ZEL::u8 ascending);

  // The base's `Sort` with a comparator of the caller's.
  using CZEL_List<CZEL_DecimalNumber>::Sort;
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_DECIMAL_NUMBER_LIST_H_
