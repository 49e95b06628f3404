// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_DateVector.h
// -----------------------------------------------------------------------------
//
// `CZEL_DateVector` is the exact-size array of `CZEL_Date` (dates): a
// `CZEL_Vector<CZEL_Date>` with assignment to and from `CZEL_DateList`. New
// slots hold default values; items are deep copies, assigned one by one. The
// members it adds are those of every named vector class, described in
// <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_DateVector items(2, CZEL_Date(2024, 2, 29));
//   CZEL_DateList list;
//   list = items;

#ifndef LZEL_CORE_CONTAINERS_CZEL_DATE_VECTOR_H_
#define LZEL_CORE_CONTAINERS_CZEL_DATE_VECTOR_H_

#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/containers/ZEL_ValueContainerExterns.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_DateList;

class ZEL_API CZEL_DateVector : public CZEL_Vector<CZEL_Date> {
  ZEL_NAMED_VECTOR_MEMBERS(CZEL_DateVector, CZEL_DateList, CZEL_Date)

 public:
  // The vector's `Sort` with `CZEL_Date::SortCompare`; a non-zero `ascending` gives rising
  // order. Throws ZEL_ERR_INVALID_ARGUMENT on an empty vector and returns on one
  // item; on two or more it never returns, as `CZEL_Vector<T>::Sort` (which
  // takes a comparator that can end it).
  CZEL_DateVector& Sort(ZEL::u8 ascending);

  // The base's `Sort` with a comparator of the caller's.
  using CZEL_Vector<CZEL_Date>::Sort;
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_DATE_VECTOR_H_
