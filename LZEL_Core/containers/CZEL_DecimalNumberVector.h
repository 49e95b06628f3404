// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_DecimalNumberVector.h
// -----------------------------------------------------------------------------
//
// `CZEL_DecimalNumberVector` is the exact-size array of `CZEL_DecimalNumber`
// (decimal numbers): a `CZEL_Vector<CZEL_DecimalNumber>` with assignment to and
// from `CZEL_DecimalNumberList`. New slots hold default values; items are deep
// copies, assigned one by one. The members it adds are those of every named
// vector class, described in <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_DecimalNumberVector items(2, CZEL_DecimalNumber(2, "3.25", CZEL_DecimalNumber::DecimalPoint_Dot));
//   CZEL_DecimalNumberList list;
//   list = items;

#ifndef LZEL_CORE_CONTAINERS_CZEL_DECIMAL_NUMBER_VECTOR_H_
#define LZEL_CORE_CONTAINERS_CZEL_DECIMAL_NUMBER_VECTOR_H_

#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/containers/ZEL_ValueContainerExterns.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_DecimalNumberList;

class ZEL_API CZEL_DecimalNumberVector : public CZEL_Vector<CZEL_DecimalNumber> {
  ZEL_NAMED_VECTOR_MEMBERS(CZEL_DecimalNumberVector, CZEL_DecimalNumberList, CZEL_DecimalNumber)

 public:
  // The vector's `Sort` with `CZEL_DecimalNumber::Compare`; a non-zero `ascending` gives rising
  // order. Throws ZEL_ERR_INVALID_ARGUMENT on an empty vector and returns on one
  // item; on two or more it never returns, as `CZEL_Vector<T>::Sort` (which
  // takes a comparator that can end it).
  CZEL_DecimalNumberVector& Sort(ZEL::u8 ascending);

  // The base's `Sort` with a comparator of the caller's.
  using CZEL_Vector<CZEL_DecimalNumber>::Sort;
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_DECIMAL_NUMBER_VECTOR_H_
