// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_DoubleList.h
// -----------------------------------------------------------------------------
//
// `CZEL_DoubleList` is the cursor list of `double` (64-bit IEEE): a `CZEL_OrderedList<double>`
// with the list's cursor operations, `Min`, `Max` and `Sort(ascending)`, and
// assignment to and from `CZEL_DoubleVector`. The members it adds are those of every
// named list class, described in <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_DoubleList list(3, 2.5);
//   CZEL_DoubleVector vector;
//   vector = list;                  // three items; the list's cursor on its tail
//   list = vector;                  // back again; the cursor on the tail

#ifndef LZEL_CORE_CONTAINERS_CZEL_DOUBLE_LIST_H_
#define LZEL_CORE_CONTAINERS_CZEL_DOUBLE_LIST_H_

#include <LZEL_Core/containers/ZEL_ContainerExterns.h>
#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_DoubleVector;

class ZEL_API CZEL_DoubleList : public CZEL_OrderedList<double> {
  ZEL_NAMED_LIST_MEMBERS(CZEL_DoubleList, CZEL_DoubleVector, double)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_DOUBLE_LIST_H_
