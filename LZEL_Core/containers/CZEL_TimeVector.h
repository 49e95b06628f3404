// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_TimeVector.h
// -----------------------------------------------------------------------------
//
// `CZEL_TimeVector` is the exact-size array of `CZEL_Time` (times of day): a
// `CZEL_Vector<CZEL_Time>` with assignment to and from `CZEL_TimeList`. New
// slots hold default values; items are deep copies, assigned one by one. The
// members it adds are those of every named vector class, described in
// <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_TimeVector items(2, CZEL_Time(12, 30, 0, 0));
//   CZEL_TimeList list;
//   list = items;

#ifndef LZEL_CORE_CONTAINERS_CZEL_TIME_VECTOR_H_
#define LZEL_CORE_CONTAINERS_CZEL_TIME_VECTOR_H_

#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/containers/ZEL_ValueContainerExterns.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_TimeList;

class ZEL_API CZEL_TimeVector : public CZEL_Vector<CZEL_Time> {
  ZEL_NAMED_VECTOR_MEMBERS(CZEL_TimeVector, CZEL_TimeList, CZEL_Time)

 public:
  // The vector's `Sort` with `CZEL_Time::SortCompare`; a non-zero `ascending` gives rising
  // order. Throws ZEL_ERR_INVALID_ARGUMENT on an empty vector and returns on one
  // item; on two or more it never returns, as `CZEL_Vector<T>::Sort` (which
  // takes a comparator that can end it).
  CZEL_TimeVector& Sort(ZEL::u8 ascending);

  // The base's `Sort` with a comparator of the caller's.
  using CZEL_Vector<CZEL_Time>::Sort;
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_TIME_VECTOR_H_
